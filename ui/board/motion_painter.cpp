// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/board/motion_painter.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QPainterPath>
#include <algorithm>
#include <cmath>

#include "ui/look/cube.h"
#include "ui/look/palette.h"

namespace plasmos {

namespace {

/// Letters that can be read on any size of the board.
double Letters(const QPainter& painter) {
    constexpr double Usual = 150;
    constexpr double LeastPixels = 12;
    return std::max(Usual, LeastPixels / std::max(painter.worldTransform().m11(), 1e-6));
}

/// A tag of words; it stays on the board.
void DrawTag(QPainter& painter, const QString& words, const QColor& ink, QPointF centre) {
    const double letters = Letters(painter);
    const QFont font = DrawnFont(letters, true);
    const double wide = QFontMetricsF(font).horizontalAdvance(words) + letters;
    const QRectF board = painter.worldTransform().inverted().mapRect(QRectF(painter.viewport()).adjusted(1, 1, -1, -1));
    QRectF tag(centre.x() - wide / 2, centre.y() - letters * 0.75, wide, letters * 1.5);
    tag.moveLeft(std::clamp(tag.left(), board.left(), std::max(board.left(), board.right() - wide)));
    tag.moveTop(std::clamp(tag.top(), board.top(), std::max(board.top(), board.bottom() - tag.height())));
    painter.setPen(QPen(ink, letters * 0.08));
    painter.setBrush(Shade(Tone::Tip));
    painter.drawRoundedRect(tag, letters * 0.5, letters * 0.5);
    painter.setFont(font);
    painter.setPen(ink);
    painter.drawText(tag, Qt::AlignCenter | Qt::TextDontClip, words);
}

/// The part of a bow from its beginning on.
QPainterPath PartOf(const QPainterPath& bow, double share) {
    constexpr int Steps = 24;
    QPainterPath part(bow.pointAtPercent(0));
    for (int step = 1; step <= Steps; ++step) {
        part.lineTo(bow.pointAtPercent(share * step / Steps));
    }
    return part;
}

void DrawArrowHead(QPainter& painter, QPointF tip, QPointF before, double size) {
    const QPointF along = tip - before;
    const double length = std::max(std::hypot(along.x(), along.y()), 1.0);
    const QPointF unit = along / length;
    const QPointF across(-unit.y(), unit.x());
    QPainterPath head(tip + unit * size * 0.3);
    head.lineTo(tip - unit * size * 0.7 + across * size * 0.55);
    head.lineTo(tip - unit * size * 0.7 - across * size * 0.55);
    head.closeSubpath();
    painter.drawPath(head);
}

void DrawBow(QPainter& painter, const QPainterPath& bow, double share, const QColor& colour) {
    const QPainterPath part = PartOf(bow, share);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(Shade(Tone::PieceHalo), 78, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawPath(part);
    painter.setPen(QPen(colour, 42, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawPath(part);
    painter.setPen(QPen(Shade(Tone::PieceHalo), 18));
    painter.setBrush(colour);
    DrawArrowHead(painter, bow.pointAtPercent(share), bow.pointAtPercent(std::max(0.0, share - 0.12)), 170);
}

void DrawBar(QPainter& painter, QPointF middle) {
    constexpr double Half = 110;
    for (const auto& [tone, width] : {std::pair{Tone::PieceHalo, 84.0}, std::pair{Tone::PieceEdge, 46.0}}) {
        painter.setPen(QPen(Shade(tone), width, Qt::SolidLine, Qt::RoundCap));
        painter.drawLine(middle - QPointF(Half, Half), middle + QPointF(Half, Half));
        painter.drawLine(middle - QPointF(Half, -Half), middle + QPointF(Half, -Half));
    }
}

}  // namespace

void DrawCarried(QPainter& painter, int colour, int pieces, QPointF centre) {
    constexpr double Side = 150;
    constexpr int Most = 3;
    for (int piece = std::min(pieces, Most) - 1; piece >= 0; --piece) {
        const QPointF corner = centre + QPointF(Side * 0.45 * piece, -Side * 0.6 * piece) - QPointF(Side, Side) / 2;
        DrawCube(painter, colour, QRectF(corner, QSizeF(Side, Side)));
    }
    if (pieces > Most) {
        DrawTag(painter, QStringLiteral("×%1").arg(pieces), Shade(Tone::CountInk), centre - QPointF(0, 2.4 * Side));
    }
}

void DrawRising(QPainter& painter, const QString& words, const QColor& ink, QPointF from, double share) {
    painter.save();
    painter.setOpacity(1 - 0.7 * share * share);
    DrawTag(painter, words, ink, from - QPointF(0, 200 * share));
    painter.restore();
}

void DrawRing(QPainter& painter, QPointF centre, double radius, const QColor& colour, double opacity) {
    painter.save();
    painter.setOpacity(opacity);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(Shade(Tone::PieceHalo), 76));
    painter.drawEllipse(centre, radius, radius);
    painter.setPen(QPen(colour, 40));
    painter.drawEllipse(centre, radius, radius);
    painter.restore();
}

void DrawAttack(QPainter& painter, const QRectF& attacker, const QRectF& victim, double share, const QString& outcome,
                bool safe) {
    const QColor alarm = Shade(Tone::Alarm);
    const QPointF from = attacker.center() - QPointF(0, attacker.height() * 0.55);
    const QPointF to = victim.center() - QPointF(0, victim.height() * 0.6);
    const double high = 260 + 0.15 * std::hypot(to.x() - from.x(), to.y() - from.y());
    const QPointF top = (from + to) / 2 - QPointF(0, high);
    QPainterPath bow(from);
    bow.quadTo(top, to);
    painter.save();
    DrawRing(painter, attacker.center(), attacker.width() * 0.56, Shade(Tone::PieceEdge));
    DrawRing(painter, victim.center(), victim.width() * 0.56, safe ? Shade(Tone::Accent) : alarm);
    DrawBow(painter, bow, std::max(share, 0.1), safe ? Shade(Tone::Faint) : alarm);
    if (safe) {
        DrawBar(painter, bow.pointAtPercent(0.5));
    }
    if (!outcome.isEmpty()) {
        DrawTag(painter, outcome, safe ? Shade(Tone::Accent) : alarm, bow.pointAtPercent(0.5) - QPointF(0, 240));
    }
    painter.restore();
}

void DrawDoubleFrame(QPainter& painter, const QRectF& rect, double corner) {
    painter.setBrush(Qt::NoBrush);
    constexpr double Light = 66;
    constexpr double Dark = 30;
    painter.setPen(QPen(Shade(Tone::PieceHalo), Light));
    painter.drawRoundedRect(rect, corner, corner);
    painter.setPen(QPen(Shade(Tone::PieceEdge), Dark));
    painter.drawRoundedRect(rect, corner, corner);
}

}  // namespace plasmos
