// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/look/piece_layout.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <vector>

#include "model/board_units.h"
#include "model/game_state.h"

namespace plasmos {

namespace {

constexpr int SpotsAcross = 6;
constexpr int SpotsDown = 5;
// The lower third of a square belongs to the food.
constexpr double PiecesBottom = 790;
constexpr double Rim = 36;
constexpr int Rounds = 24;

struct Lying {
    int Clan;
    int Amoeba;
    QPointF Centre;
};

double Jitter(unsigned seed) {
    std::uint32_t x = seed * 2654435761U;
    x ^= x >> 15;
    x *= 2246822519U;
    x ^= x >> 13;
    return (x & 0xFFFFU) / 32767.5 - 1.0;
}

double RadiusFor(std::size_t pieces) {
    return pieces <= 2 ? 240 : pieces <= 4 ? 200 : pieces <= 7 ? 162 : pieces <= 12 ? 126 : 100;
}

QPointF Inside(QPointF centre, double radius) {
    return {std::clamp(centre.x(), Rim + radius, SquareUnits - Rim - radius),
            std::clamp(centre.y(), Rim + radius, PiecesBottom - radius)};
}

void PushApart(std::vector<Lying>& pieces, double radius) {
    const double wanted = radius * 1.75;
    for (int round = 0; round < Rounds; ++round) {
        for (std::size_t i = 0; i < pieces.size(); ++i) {
            for (std::size_t j = i + 1; j < pieces.size(); ++j) {
                QPointF apart = pieces[j].Centre - pieces[i].Centre;
                double distance = std::hypot(apart.x(), apart.y());
                if (distance >= wanted) {
                    continue;
                }
                if (distance < 1) {
                    apart = QPointF(1, 0.3);
                    distance = 1.05;
                }
                const QPointF push = apart * ((wanted - distance) / distance / 2);
                pieces[i].Centre = Inside(pieces[i].Centre - push, radius);
                pieces[j].Centre = Inside(pieces[j].Centre + push, radius);
            }
        }
    }
}

std::vector<Lying> PiecesIn(const GameState& state, int square) {
    std::vector<Lying> pieces;
    for (int clan = 1; clan <= state.NumPlayers; ++clan) {
        for (int amoeba = 1; amoeba <= state.MaxAmoeba; ++amoeba) {
            const Piece& piece = state.Amoeba[amoeba][clan];
            if (piece.Square == square && piece.Slot >= 1 && piece.Slot <= MaxSpots) {
                pieces.push_back({clan, amoeba, {}});
            }
        }
    }
    return pieces;
}

}  // namespace

QPointF SquareCorner(const GameState& state, int square) {
    const BoardPoint corner = CornerOf(state, std::max(square, 1));
    return QPoint(corner.X, corner.Y);
}

QPointF SquareMiddle(const GameState& state, int square) {
    const BoardPoint middle = MiddleOf(state, std::max(square, 1));
    return QPoint(middle.X, middle.Y);
}

QPointF SpotCentre(int spot, int square, double radius) {
    const int column = (spot - 1) % SpotsAcross;
    const int row = (spot - 1) / SpotsAcross;
    const double width = SquareUnits - 2 * (Rim + radius);
    const double height = PiecesBottom - Rim - 2 * radius;
    const auto seed = static_cast<unsigned>(square * 64 + spot);
    const QPointF centre(Rim + radius + width * column / (SpotsAcross - 1) + 28 * Jitter(seed),
                         Rim + radius + height * row / (SpotsDown - 1) + 22 * Jitter(seed + 7001));
    return Inside(centre, radius);
}

QRectF MarkerOf(const GameState& state, int clan, int amoeba) {
    const Piece& piece = state.Amoeba[amoeba][clan];
    if (piece.Square < 1 || piece.Square > state.NumSquares || piece.Slot < 1 || piece.Slot > MaxSpots) {
        return {};
    }
    std::vector<Lying> pieces = PiecesIn(state, piece.Square);
    const double radius = RadiusFor(pieces.size());
    for (Lying& lying : pieces) {
        lying.Centre = SpotCentre(state.Amoeba[lying.Amoeba][lying.Clan].Slot, piece.Square, radius);
    }
    PushApart(pieces, radius);
    for (const Lying& lying : pieces) {
        if (lying.Clan == clan && lying.Amoeba == amoeba) {
            const QPointF corner = SquareCorner(state, piece.Square) + lying.Centre - QPointF(radius, radius);
            return {corner, QSizeF(2 * radius, 2 * radius)};
        }
    }
    return {};
}

}  // namespace plasmos
