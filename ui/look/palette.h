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

#include "ui/look/theme.h"

class QPainter;

namespace plasmos {

struct GameState;

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

/// What a desktop lays around a window, as long as the true frame is not known.
inline constexpr QSize UsualFrame(12, 40);

/// A font of the program for what is read; pixels at the desktop's usual letter size.
QFont LookFont(double pixels, bool bold = false);
/// A font for what is drawn and grows with its picture: in the units of the painter.
QFont DrawnFont(double units, bool bold = false);

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
