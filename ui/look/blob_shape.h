// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPainterPath>
#include <QPointF>

class QPainter;

namespace plasmos {

/// How one amoeba is drawn.
struct BlobLook {
    int Clan = 0;
    int Amoeba = 0;
    int Damage = 0;
    bool Outlined = false;  ///< the acting piece: dark on white
    bool Dimmed = false;    ///< a piece that may not be picked
    double Opacity = 1;
};

/// The soft outline of a piece; every piece has a shape of its own.
QPainterPath BlobPath(int clan, int amoeba, QPointF centre, double radius);

/// Draws an amoeba: body, nucleus with its number, the clan's sign, cracks for its damage.
void DrawBlob(QPainter& painter, const BlobLook& blob, QPointF centre, double radius);

}  // namespace plasmos
