// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/look/palette.h"

#include <QApplication>
#include <QPainter>
#include <QStyleFactory>
#include <array>
#include <cmath>
#include <numbers>

#include "model/game_state.h"

namespace plasmos {

namespace {

constexpr std::int32_t Blue = 0xFF0000;

QPainterPath Polygon(QPointF centre, double radius, int corners, double start, double inner) {
    QPainterPath path;
    for (int i = 0; i < corners; ++i) {
        const double angle = start + 2 * std::numbers::pi * i / corners;
        const double reach = i % 2 == 1 ? radius * inner : radius;
        const QPointF point = centre + QPointF(std::cos(angle), std::sin(angle)) * reach;
        i == 0 ? path.moveTo(point) : path.lineTo(point);
    }
    path.closeSubpath();
    return path;
}

}  // namespace

const ClanShades& ShadesOf(int clan) {
    static const std::array<ClanShades, 7> shades = {{
        {QColor(0xE8E6E0), QColor(0xB5B1A6), QColor(0x6E6A60), QColor(0x222222)},
        {QColor(0x9DA8FF), QColor(0x2A3BFF), QColor(0x0A1AA8), QColor(0xFFFFFF)},
        {QColor(0xFFC2FF), QColor(0xE637E6), QColor(0x8E0F8E), QColor(0xFFFFFF)},
        {QColor(0xFFF8B8), QColor(0xFFE52B), QColor(0x9C8500), QColor(0x1B1B12)},
        {QColor(0xFFB3B6), QColor(0xF0303A), QColor(0x8A0A12), QColor(0xFFFFFF)},
        {QColor(0xA9EBB4), QColor(0x12B02A), QColor(0x07611A), QColor(0xFFFFFF)},
        {QColor(0xFFD3A6), QColor(0xFF8A1F), QColor(0x9A4B00), QColor(0x1B1B12)},
    }};
    return shades[clan >= 1 && clan <= MaxClans ? static_cast<std::size_t>(clan) : 0];
}

QColor FromBgr(std::int32_t colour) {
    return {colour & 0xFF, (colour >> 8) & 0xFF, (colour >> 16) & 0xFF};
}

QColor LabelBackground(const GameState& state, int clan) {
    return clan >= 1 && clan <= MaxClans ? FromBgr(state.Players[clan].Colour) : QColor(look::Card);
}

QColor LabelText(const GameState& state, int clan) {
    if (clan < 1 || clan > MaxClans) {
        return {look::Ink};
    }
    return state.Players[clan].Colour == Blue ? QColor(255, 255, 0) : QColor(Qt::black);
}

QPainterPath SignPath(int clan, QPointF centre, double radius) {
    constexpr double up = -std::numbers::pi / 2;
    QPainterPath path;
    switch (clan) {
        case 1: path.addEllipse(centre, radius * 0.82, radius * 0.82); return path;
        case 2: return Polygon(centre + QPointF(0, radius * 0.14), radius * 1.05, 3, up, 1);
        case 3: return Polygon(centre, radius * 1.05, 4, -std::numbers::pi / 4, 1);
        case 4: return Polygon(centre, radius * 1.08, 4, up, 1);
        case 5: {
            const double arm = radius * 0.32;
            path.addRect(QRectF(centre.x() - arm, centre.y() - radius, 2 * arm, 2 * radius));
            QPainterPath bar;
            bar.addRect(QRectF(centre.x() - radius, centre.y() - arm, 2 * radius, 2 * arm));
            return path.united(bar);
        }
        case 6: return Polygon(centre, radius * 1.15, 10, up, 0.45);
        default: return path;
    }
}

QString SignCharacter(int clan) {
    static const std::array<QString, 7> signs = {QString(),           QStringLiteral("●"), QStringLiteral("▲"),
                                                 QStringLiteral("■"), QStringLiteral("◆"), QStringLiteral("✚"),
                                                 QStringLiteral("★")};
    return signs[clan >= 1 && clan <= MaxClans ? static_cast<std::size_t>(clan) : 0];
}

void DrawClanBadge(QPainter& painter, int clan, QPointF centre, double radius) {
    const ClanShades& shades = ShadesOf(clan);
    painter.setPen(QPen(shades.Dark, radius * 0.14));
    painter.setBrush(shades.Body);
    painter.drawEllipse(centre, radius, radius);
    painter.setPen(Qt::NoPen);
    painter.setBrush(shades.Ink);
    painter.drawPath(SignPath(clan, centre, radius * 0.44));
}

QFont LookFont(double pixels, bool bold) {
    QFont font;
    font.setFamilies({QStringLiteral("Noto Sans"), QStringLiteral("Segoe UI"), QStringLiteral("DejaVu Sans")});
    font.setPixelSize(std::max(1, static_cast<int>(std::lround(pixels))));
    font.setBold(bold);
    font.setHintingPreference(QFont::PreferNoHinting);
    return font;
}

QPalette LookPalette() {
    QPalette palette;
    palette.setColor(QPalette::Window, QColor(look::Window));
    palette.setColor(QPalette::WindowText, QColor(look::Ink));
    palette.setColor(QPalette::Base, Qt::white);
    palette.setColor(QPalette::AlternateBase, QColor(0xF7F3E8));
    palette.setColor(QPalette::Text, QColor(look::Ink));
    palette.setColor(QPalette::PlaceholderText, QColor(0x9A958A));
    palette.setColor(QPalette::Button, QColor(0xFBFAF7));
    palette.setColor(QPalette::ButtonText, QColor(look::Ink));
    palette.setColor(QPalette::Highlight, QColor(look::Teal));
    palette.setColor(QPalette::HighlightedText, Qt::white);
    palette.setColor(QPalette::ToolTipBase, QColor(0xFFFBE6));
    palette.setColor(QPalette::ToolTipText, QColor(look::Ink));
    palette.setColor(QPalette::BrightText, Qt::white);
    palette.setColor(QPalette::Link, QColor(look::Teal));
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        palette.setColor(QPalette::Disabled, role, QColor(0xA5A195));
    }
    return palette;
}

QString LookSheet() {
    return QStringLiteral(
        "QMenuBar{background:#FBFAF7;color:#333;border-bottom:1px solid #D8D4CA}"
        "QMenuBar::item{padding:4px 12px;background:transparent}"
        "QMenuBar::item:selected{background:#DCEBEA;border-radius:4px}"
        "QMenu{background:#FFFFFF;color:#22272B;border:1px solid #CFC8B8}"
        "QMenu::item:selected{background:#2C6E78;color:white}"
        "QMenu::item:disabled{color:#A5A195}"
        "QPushButton{background:white;color:#2C6E78;border:1.5px solid #2C6E78;border-radius:7px;"
        "padding:4px 14px;font-weight:bold;min-height:18px}"
        "QPushButton:hover{background:#E4F1F0}"
        "QPushButton:pressed{background:#CFE5E4}"
        "QPushButton:focus{border:2.5px solid #FFAE00}"
        "QPushButton:disabled{color:#A9A598;border-color:#CFCABC;background:#F3F1EA}"
        "QPushButton[main=\"true\"]{background:#2C6E78;color:white}"
        "QPushButton[main=\"true\"]:hover{background:#37848F}"
        "QPushButton[main=\"true\"]:disabled{background:#B9C9C8;color:#EEF3F2;border-color:#B9C9C8}"
        "QLineEdit{background:white;color:#22272B;border:1px solid #BDB7A8;border-radius:5px;padding:2px 5px}"
        "QLineEdit:focus{border:2px solid #FFAE00}"
        "QLineEdit:disabled{background:#EFEDE6;color:#A5A195}"
        "QScrollBar:vertical{background:transparent;width:11px;margin:0}"
        "QScrollBar::handle:vertical{background:#BDB7A8;border-radius:4px;min-height:24px;margin:1px 1px 1px 2px}"
        "QScrollBar::handle:vertical:hover{background:#2C6E78}"
        "QScrollBar::add-line:vertical,QScrollBar::sub-line:vertical{height:0}"
        "QScrollBar::add-page:vertical,QScrollBar::sub-page:vertical{background:transparent}"
        "QToolTip{background:#FFFBE6;color:#22272B;border:1px solid #CFC8B8}");
}

void PrepareApplication() {
    QApplication::setOrganizationName(QStringLiteral("QX"));
    QApplication::setApplicationName(QStringLiteral("Plasmos"));
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    QApplication::setPalette(LookPalette());
    QApplication::setFont(LookFont(13));
}

}  // namespace plasmos
