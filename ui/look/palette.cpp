// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/look/palette.h"

#include <QApplication>
#include <QIcon>
#include <QPainter>
#include <QStyleFactory>
#include <cmath>
#include <numbers>

#include "model/game_state.h"

namespace plasmos {

namespace {

constexpr std::int32_t Blue = 0xFF0000;
constexpr std::int32_t Yellow = 0x00FFFF;
constexpr std::int32_t Black = 0x000000;

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

QColor FromBgr(std::int32_t colour) {
    return {colour & 0xFF, (colour >> 8) & 0xFF, (colour >> 16) & 0xFF};
}

QColor LabelBackground(const GameState& state, int clan) {
    return clan >= 1 && clan <= MaxClans ? FromBgr(state.Players[clan].Colour) : Shade(Tone::Card);
}

QColor LabelText(const GameState& state, int clan) {
    if (clan < 1 || clan > MaxClans) {
        return Shade(Tone::Ink);
    }
    return FromBgr(state.Players[clan].Colour == Blue ? Yellow : Black);
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
    painter.setPen(QPen(shades.Edge, radius * 0.14));
    painter.setBrush(shades.Body);
    painter.drawEllipse(centre, radius, radius);
    painter.setPen(Qt::NoPen);
    painter.setBrush(shades.Ink);
    painter.drawPath(SignPath(clan, centre, radius * 0.58));
}

QFont DrawnFont(double units, bool bold) {
    QFont font;
    font.setFamilies({QApplication::font().family(), QStringLiteral("Noto Sans"), QStringLiteral("Segoe UI"),
                      QStringLiteral("DejaVu Sans")});
    font.setPixelSize(std::max(1, static_cast<int>(std::lround(units))));
    font.setBold(bold);
    font.setHintingPreference(QFont::PreferNoHinting);
    return font;
}

QFont LookFont(double pixels, bool bold) {
    return DrawnFont(pixels * Letters(), bold);
}

QPalette LookPalette() {
    QPalette palette;
    palette.setColor(QPalette::Window, Shade(Tone::Window));
    palette.setColor(QPalette::WindowText, Shade(Tone::Ink));
    palette.setColor(QPalette::Base, Shade(Tone::Field));
    palette.setColor(QPalette::AlternateBase, Shade(Tone::TrackOdd));
    palette.setColor(QPalette::Text, Shade(Tone::Ink));
    palette.setColor(QPalette::PlaceholderText, Shade(Tone::Placeholder));
    palette.setColor(QPalette::Button, Shade(Tone::Button));
    palette.setColor(QPalette::ButtonText, Shade(Tone::Ink));
    palette.setColor(QPalette::Highlight, Shade(Tone::Accent));
    palette.setColor(QPalette::HighlightedText, Shade(Tone::OnAccent));
    palette.setColor(QPalette::ToolTipBase, Shade(Tone::Tip));
    palette.setColor(QPalette::ToolTipText, Shade(Tone::Ink));
    palette.setColor(QPalette::BrightText, Shade(Tone::OnAccent));
    palette.setColor(QPalette::Link, Shade(Tone::Accent));
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        palette.setColor(QPalette::Disabled, role, Shade(Tone::Disabled));
    }
    return palette;
}

QString LookSheet() {
    return Styled(QStringLiteral(
        "QMenuBar{background:@Button;color:@Ink;border-bottom:1px solid @MenuEdge;font-size:@13px}"
        "QMenuBar::item{padding:4px 12px;background:transparent}"
        "QMenuBar::item:selected{background:@Highlight;border-radius:4px}"
        "QMenu{background:@Card;color:@Ink;border:1px solid @MenuEdge;font-size:@13px}"
        "QMenu::item:selected{background:@Accent;color:@OnAccent}"
        "QMenu::item:disabled{color:@Disabled}"
        "QPushButton{background:@Card;color:@Accent;border:1.5px solid @Accent;border-radius:7px;"
        "padding:4px 14px;font-weight:bold;font-size:@13px;min-height:@18px}"
        "QPushButton:hover{background:@Highlight}"
        "QPushButton:pressed{background:@AccentPressed}"
        "QPushButton:focus{border:2.5px solid @Focus;outline:none}"
        "QPushButton:disabled{color:@Disabled;border-color:@MenuEdge;background:@ButtonDisabled}"
        "QPushButton[main=\"true\"]{background:@Accent;color:@OnAccent}"
        "QPushButton[main=\"true\"]:hover{background:@AccentHover}"
        "QPushButton[main=\"true\"]:disabled{background:@AccentDisabled;color:@OnAccent;border-color:@AccentDisabled}"
        "QLineEdit{background:@Field;color:@Ink;border:1px solid @FieldEdge;border-radius:5px;padding:2px "
        "5px;font-size:@13px}"
        "QLineEdit:focus{border:2px solid @Focus}"
        "QLineEdit:disabled{background:@FieldDisabled;color:@Disabled}"
        "QScrollBar:vertical{background:transparent;width:11px;margin:0}"
        "QScrollBar::handle:vertical{background:@FieldEdge;border-radius:4px;min-height:24px;margin:1px 1px 1px 2px}"
        "QScrollBar::handle:vertical:hover{background:@Accent}"
        "QScrollBar::add-line:vertical,QScrollBar::sub-line:vertical{height:0}"
        "QScrollBar::add-page:vertical,QScrollBar::sub-page:vertical{background:transparent}"
        "QToolTip{background:@Tip;color:@Ink;border:1px solid @MenuEdge}"));
}

void PrepareApplication() {
    QApplication::setOrganizationName(QStringLiteral("QX"));
    QApplication::setApplicationName(QStringLiteral("Plasmos"));
    const QString id = QStringLiteral("org.plasmos.Plasmos");  // as the desktop entry and the icons are called
    QGuiApplication::setDesktopFileName(id);
    QApplication::setWindowIcon(QIcon::fromTheme(id));
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
}

}  // namespace plasmos
