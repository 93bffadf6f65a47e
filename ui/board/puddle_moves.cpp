// SPDX-License-Identifier: GPL-3.0-or-later
#include "model/game_state.h"
#include "ui/board/puddle_painter.h"
#include "ui/board/puddle_view.h"
#include "ui/look/piece_layout.h"

namespace plasmos {

QRectF PuddleView::LastSeen(PieceId piece, int square) const {
    const QRectF& seen = seen_[static_cast<std::size_t>(piece.Clan)][static_cast<std::size_t>(piece.Amoeba)];
    const QRectF there(SquareCorner(*state_, square), QSizeF(SquareUnits, SquareUnits));
    if (!seen.isEmpty() && there.contains(seen.center())) {
        return seen;
    }
    constexpr double Radius = 200;
    const QPointF centre = SquareCorner(*state_, square) + SpotCentre(piece.Amoeba * 3, square, Radius);
    return {centre - QPointF(Radius, Radius), QSizeF(2 * Radius, 2 * Radius)};
}

QRectF PuddleView::PlaceOf(PieceId piece, int square) const {
    const QRectF marker = MarkerOf(*state_, piece.Clan, piece.Amoeba);
    return marker.isEmpty() ? LastSeen(piece, square) : marker;
}

QPointF PuddleView::FoodPlace(int square, int colour) const {
    return FoodRect(*state_, square, colour, Scale()).center();
}

void PuddleView::Settle() {
    motions_.Stop();
    update();
}

}  // namespace plasmos
