// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QColor>
#include <QFont>
#include <QPainterPath>
#include <QPalette>
#include <QSize>
#include <QString>
#include <cstdint>
#include <string_view>

class QPainter;

namespace plasmos {

struct GameState;

/// The shades in which one clan is drawn.
struct ClanShades {
    QColor Light;  ///< the lit side of a blob
    QColor Body;   ///< cubes, markers, signs on white
    QColor Dark;   ///< outlines and small signs
    QColor Ink;    ///< numbers and signs on the body colour
};

/// Shades of clan 1..6; greys for any other number.
const ClanShades& ShadesOf(int clan);

/// A 0x00BBGGRR colour.
QColor FromBgr(std::int32_t colour);

/// Background and text of labels that speak for a clan: the clan's colour with black, or with yellow
/// where the colour is blue. Clan 0: white and dark grey.
QColor LabelBackground(const GameState& state, int clan);
QColor LabelText(const GameState& state, int clan);

/// The clan's sign as a shape: circle, triangle, square, diamond, cross, star.
QPainterPath SignPath(int clan, QPointF centre, double radius);
/// The same sign as a character for running text.
QString SignCharacter(int clan);
/// A disc in the clan's colour with its sign.
void DrawClanBadge(QPainter& painter, int clan, QPointF centre, double radius);

/// Colours of the furniture.
namespace look {
inline constexpr QRgb Window = 0xFFF4F2EC;
inline constexpr QRgb Card = 0xFFFFFFFF;
inline constexpr QRgb CardEdge = 0xFFDDD8CB;
inline constexpr QRgb Ink = 0xFF22272B;
inline constexpr QRgb Faint = 0xFF7A7669;
inline constexpr QRgb Teal = 0xFF2C6E78;
inline constexpr QRgb Amber = 0xFFFFAE00;
inline constexpr QRgb Alarm = 0xFFC8231E;
/// What a desktop lays around a window, as long as the true frame is not known.
inline constexpr QSize UsualFrame(12, 40);
}  // namespace look

/// A font of the program in pixels.
QFont LookFont(double pixels, bool bold = false);

/// A light palette, whatever the desktop's.
QPalette LookPalette();
/// Style sheet of the window's ordinary controls.
QString LookSheet();
/// Names, style and palette of the application; call once after it is made.
void PrepareApplication();

inline QString ToQt(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

}  // namespace plasmos
