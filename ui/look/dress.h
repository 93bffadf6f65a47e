// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QRect>
#include <QString>
#include <optional>

#include "ui/look/theme.h"

class QLabel;
class QPainter;
class QSize;
class QWidget;

namespace plasmos {

// What windows wear: colours, style sheet and letters. They follow the desktop while the program runs.

/// Dresses a window and everything in it, now and whenever the desktop changes its colours or its letters. Whoever
/// paints for itself hears of it as QEvent::StyleChange, when all else is done.
void Dress(QWidget& window);
/// Text of so many pixels at the desktop's usual letter size.
void WearLetters(QWidget& widget, double pixels, bool bold = false);
void WearTone(QLabel& label, Tone tone);
/// A style sheet with tones, as Styled() takes it.
void WearSheet(QWidget& widget, const QString& sheet);

/// The scheme that the person wants; none: the desktop's.
void WantScheme(std::optional<Scheme> scheme);
std::optional<Scheme> WantedScheme();

/// "light", "dark" and "contrast", as settings have them; no scheme for any other text, and the text for none
/// "desktop".
std::optional<Scheme> SchemeNamed(const QString& name);
QString SchemeName(std::optional<Scheme> scheme);

/// What lays itself out for usual letters: its width and height, a place of it in pixels, and how it is painted.
double UsualWidth(const QWidget& widget);
double UsualHeight(const QWidget& widget);
QRect InPixels(const QRectF& usual);
void PaintUsual(QPainter& painter);
/// Works the size of the letters out again for a window of this size, and dresses every window where it has changed.
void FitLetters(const QSize& window);

}  // namespace plasmos
