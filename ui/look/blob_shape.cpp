// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/look/blob_shape.h"

#include <QPainter>
#include <QRadialGradient>
#include <array>
#include <cmath>
#include <numbers>

#include "ui/look/palette.h"

namespace plasmos {

namespace {

constexpr int Corners = 9;

/// The body leaves room in the marker for outline and shadow.
constexpr double BodyShare = 0.9;

QRadialGradient BodyGradient(const ClanShades& shades, QPointF centre, double radius) {
    QRadialGradient gradient(centre - QPointF(0.34, 0.46) * radius, radius * 1.6);
    gradient.setColorAt(0, shades.Light);
    gradient.setColorAt(0.42, shades.Body);
    gradient.setColorAt(1, shades.Deep);
    return gradient;
}

void DrawCracks(QPainter& painter, int damage, QPointF centre, double radius) {
    for (int crack = 0; crack < std::min(damage, 4); ++crack) {
        const double angle = -2.5 + 0.62 * crack;
        const QPointF out(std::cos(angle), std::sin(angle));
        const QPointF across(-out.y(), out.x());
        QPainterPath path(centre + out * radius * 0.98);
        path.lineTo(centre + out * radius * 0.82 + across * radius * 0.1);
        path.lineTo(centre + out * radius * 0.72 - across * radius * 0.08);
        path.lineTo(centre + out * radius * 0.5 + across * radius * 0.06);
        painter.setBrush(Qt::NoBrush);
        painter.setPen(QPen(Shade(Tone::PieceHalo), radius * 0.15, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        painter.drawPath(path);
        painter.setPen(QPen(Shade(Tone::Crack), radius * 0.075, Qt::SolidLine, Qt::RoundCap, Qt::MiterJoin));
        painter.drawPath(path);
    }
}

void DrawNucleus(QPainter& painter, const BlobLook& blob, QPointF centre, double radius) {
    const ClanShades& shades = ShadesOf(blob.Clan);
    const QPointF nucleus = centre - QPointF(0, radius * 0.1);
    painter.setBrush(shades.Nucleus);
    painter.setPen(QPen(QColor(shades.Deep.red(), shades.Deep.green(), shades.Deep.blue(), 110), radius * 0.04));
    painter.drawEllipse(nucleus, radius * 0.5, radius * 0.5);
    QFont font = DrawnFont(radius * 0.62, true);
    painter.setFont(font);
    painter.setPen(shades.Ink);
    painter.drawText(QRectF(nucleus - QPointF(radius, radius), QSizeF(2 * radius, 2 * radius)), Qt::AlignCenter,
                     QString::number(blob.Amoeba));
    painter.setPen(Qt::NoPen);
    painter.setBrush(shades.Ink);
    painter.drawPath(SignPath(blob.Clan, centre + QPointF(0, radius * 0.64), radius * 0.16));
}

}  // namespace

QPainterPath BlobPath(int clan, int amoeba, QPointF centre, double radius) {
    std::array<QPointF, Corners> corners;
    const double body = radius * BodyShare;
    for (std::size_t i = 0; i < Corners; ++i) {
        const double turn = 2 * std::numbers::pi * static_cast<double>(i) / Corners;
        const double wobble = 0.055 * std::sin(3 * turn + clan * 1.7 + amoeba * 2.3) +
                              0.05 * std::sin(2 * turn + clan * 0.9 - amoeba * 1.1) - 0.02;
        corners[i] = centre + QPointF(std::cos(turn), std::sin(turn)) * body * (1.02 + wobble);
    }
    QPainterPath path((corners[Corners - 1] + corners[0]) / 2);
    for (std::size_t i = 0; i < Corners; ++i) {
        path.quadTo(corners[i], (corners[i] + corners[(i + 1) % Corners]) / 2);
    }
    path.closeSubpath();
    return path;
}

void DrawBlob(QPainter& painter, const BlobLook& blob, QPointF centre, double radius) {
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setOpacity(painter.opacity() * blob.Opacity * (blob.Dimmed ? 0.45 : 1));
    const QPainterPath path = BlobPath(blob.Clan, blob.Amoeba, centre, radius);
    const ClanShades& shades = ShadesOf(blob.Clan);
    painter.setPen(Qt::NoPen);
    painter.setBrush(Shade(Tone::PieceShadow));
    for (const double drop : {0.05, 0.09, 0.13}) {
        painter.drawPath(path.translated(radius * 0.02, radius * drop));
    }
    if (blob.Outlined) {
        painter.setBrush(Qt::NoBrush);
        painter.setPen(QPen(Shade(Tone::PieceHalo), radius * 0.42, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        painter.drawPath(path);
    }
    painter.setBrush(BodyGradient(shades, centre, radius));
    painter.setPen(blob.Outlined ? QPen(Shade(Tone::PieceEdge), radius * 0.15) : QPen(shades.Edge, radius * 0.065));
    painter.drawPath(path);
    painter.setPen(Qt::NoPen);
    painter.setBrush(Shade(Tone::Shine));
    painter.save();
    painter.translate(centre - QPointF(0.36, 0.52) * radius);
    painter.rotate(-28);
    painter.drawEllipse(QPointF(0, 0), radius * 0.3, radius * 0.14);
    painter.restore();
    DrawNucleus(painter, blob, centre, radius);
    DrawCracks(painter, blob.Damage, centre, radius * BodyShare);
    painter.restore();
}

}  // namespace plasmos
