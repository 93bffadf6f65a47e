// SPDX-License-Identifier: GPL-3.0-or-later
//
// What is heard of the puddle: square 1, 2, ... are its parts; in a square lie its pieces and its food.

#include <algorithm>

#include "files/text.h"
#include "model/game_state.h"
#include "questions/ask.h"
#include "ui/board/puddle_painter.h"
#include "ui/board/puddle_view.h"
#include "ui/look/colour_names.h"
#include "ui/look/palette.h"
#include "ui/look/piece_layout.h"

namespace plasmos {

namespace {

constexpr int FirstPiece = 1000;
constexpr int FirstFood = 2000;

int PartOf(PieceId piece) {
    return FirstPiece + piece.Clan * 10 + piece.Amoeba;
}

bool IsPiece(int part) {
    return part >= FirstPiece && part < FirstFood;
}

PieceId PieceOf(int part) {
    return {(part - FirstPiece) / 10, (part - FirstPiece) % 10};
}

int PartOfFood(int square, int clan) {
    return FirstFood + square * 10 + clan;
}

const Piece& In(const GameState& state, PieceId piece) {
    return state.Amoeba[piece.Amoeba][piece.Clan];
}

std::vector<PieceId> PiecesIn(const GameState& state, int square) {
    std::vector<PieceId> pieces;
    for (int clan = 1; clan <= state.NumPlayers; ++clan) {
        for (int amoeba = 1; amoeba <= state.MaxAmoeba; ++amoeba) {
            if (state.Amoeba[amoeba][clan].Square == square) {
                pieces.push_back({clan, amoeba});
            }
        }
    }
    return pieces;
}

std::string PieceWords(const GameState& state, PieceId id) {
    const Piece& piece = In(state, id);
    return Concat(piece.Name, " (", id.Amoeba, ") of ", state.Players[id.Clan].Name,
                  piece.Damage > 0 ? Concat(", damage ", piece.Damage) : std::string());
}

std::string SquareWords(const GameState& state, int square, bool offered) {
    std::string words = Concat("Square ", square, ", row ", (square - 1) / state.NumCols + 1, ", column ",
                               (square - 1) % state.NumCols + 1);
    if (state.Blocked[square]) {
        return words + ": a stone";
    }
    if (state.NumPlayers == 0) {
        return words;
    }
    std::string pieces;
    for (const PieceId piece : PiecesIn(state, square)) {
        pieces += (pieces.empty() ? "" : "; ") + PieceWords(state, piece);
    }
    words += Concat(": ", pieces.empty() ? "nobody" : pieces, "; food ", FoodWords(state, square));
    return offered ? words + "; can be chosen" : words;
}

}  // namespace

std::vector<int> PuddleView::PartsOf(int part) const {
    std::vector<int> parts;
    if (part == 0) {
        for (int square = 1; square <= state_->NumSquares; ++square) {
            parts.push_back(square);
        }
    } else if (part <= state_->NumSquares) {
        for (const PieceId piece : PiecesIn(*state_, part)) {
            parts.push_back(PartOf(piece));
        }
        for (int clan = 1; clan <= state_->NumPlayers; ++clan) {
            if (state_->Food[part][clan] > 0) {
                parts.push_back(PartOfFood(part, clan));
            }
        }
    }
    return parts;
}

int PuddleView::WholeOf(int part) const {
    return IsPiece(part) ? In(*state_, PieceOf(part)).Square : part >= FirstFood ? (part - FirstFood) / 10 : 0;
}

QRect PuddleView::SquareRect(int square) const {
    const QPointF corner = SquareCorner(*state_, square);
    return QRectF(PointAt(corner), PointAt(corner + QPointF(SquareUnits, SquareUnits))).toRect();
}

HeardPart PuddleView::Hear(int part) const {
    const auto placed = [this](const QRectF& units) {
        return QRectF(PointAt(units.topLeft()), PointAt(units.bottomRight())).toRect();
    };
    if (IsPiece(part)) {
        const PieceId piece = PieceOf(part);
        const QRectF marker = MarkerOf(*state_, piece.Clan, piece.Amoeba);
        return {ToQt(PieceWords(*state_, piece)), QAccessible::Graphic, marker.isEmpty() ? QRect() : placed(marker)};
    }
    if (part >= FirstFood) {
        const int square = WholeOf(part);
        const int clan = part % 10;
        const int pieces = square <= state_->NumSquares && clan <= state_->NumPlayers ? state_->Food[square][clan] : 0;
        return {ToQt(Concat(pieces, " ", ColourName(clan), " food")), QAccessible::Graphic,
                pieces > 0 ? placed(FoodRect(*state_, square, clan, Scale())) : QRect()};
    }
    if (part > state_->NumSquares) {
        return {};
    }
    return {ToQt(SquareWords(*state_, part, Offers(part))), QAccessible::Cell, SquareRect(part), true, Offers(part)};
}

int PuddleView::PartAt(QPoint point) const {
    const QPoint units = UnitsAt(QPointF(point));
    const int square = SquareAt(*state_, units.x(), units.y());
    for (const int part : square > 0 ? PartsOf(square) : std::vector<int>()) {
        if (Hear(part).Place.contains(point)) {
            return part;
        }
    }
    return square;
}

int PuddleView::FocusedPart() const {
    return hasFocus() ? cursor_ : 0;
}

void PuddleView::PressPart(int part) {
    AnswerAt(part);
}

QString PuddleView::TipAt(QPoint point) const {
    const int part = PartAt(point);
    if (part == 0 || IsPiece(part) || state_->NumPlayers == 0) {
        return {};
    }
    const int square = part >= FirstFood ? WholeOf(part) : part;
    constexpr double FoodTop = 840;  // below the pieces and their tips
    const bool low = UnitsAt(QPointF(point)).y() - SquareCorner(*state_, square).y() >= FoodTop;
    return low && !state_->Blocked[square] ? ToQt("Food: " + FoodWords(*state_, square)) : QString();
}

}  // namespace plasmos
