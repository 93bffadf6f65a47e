// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QRectF>

class QPainter;

namespace plasmos {

/// One cube of a clan's colour with its sign.
void DrawCube(QPainter& painter, int clan, const QRectF& cube);

}  // namespace plasmos
