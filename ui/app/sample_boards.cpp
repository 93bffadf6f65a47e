// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/app/sample_boards.h"

#include <QDir>
#include <QPainter>
#include <algorithm>
#include <cmath>
#include <memory>
#include <vector>

#include "model/game_state.h"
#include "model/genes.h"
#include "ui/board/motion_painter.h"
#include "ui/board/puddle_view.h"
#include "ui/look/piece_layout.h"
#include "ui/look/theme.h"
#include "ui/strip/clan_panel.h"

namespace plasmos {

namespace {

constexpr int PixelsOfSquare = 132;
constexpr int PixelsOfOne = 190;      ///< where there is one square only
constexpr QSize CardPixels(360, 76);  ///< the uppermost, which is the person's
constexpr int Clans = 4;

struct Place {
    int Clan, Amoeba, Square;
    int Spot;
    int Damage = 0;
};

struct Heap {
    int Square, Clan, Pieces;
};

/// A way from one square to another, with cubes that come along.
struct Way {
    int From, To;
    int Colour = 0;
    int Pieces = 0;
    double Across = 0;    ///< beside the middle, in squares
    double Start = 0.36;  ///< from the middle of the first square, in squares
};

struct Fight {
    PieceId Attacker, Victim;
    const char* Outcome = nullptr;  ///< none: no fight
    bool Safe = false;
};

struct SampleBoard {
    const char* Name;
    int Columns, Rows;
    std::vector<Place> Pieces;
    std::vector<Heap> Food{};
    std::vector<int> Offered{};
    std::vector<Way> Ways{};
    PieceId Acting{};
    Fight Attack{};
};

// Spots 13 to 18 of a square are its middle row, from the left; the food lies below.
const std::vector<SampleBoard>& Boards() {
    static const std::vector<SampleBoard> boards = {
        {"drift", 3, 1, {{3, 1, 1, 15}, {4, 2, 2, 18}}, {{2, 1, 1}, {2, 2, 1}, {2, 4, 1}}, {}, {{1, 2}}, {3, 1}},
        {"square", 1, 1, {{3, 1, 1, 15}}, {{1, 1, 2}, {1, 2, 1}, {1, 3, 2}, {1, 4, 1}}, {}, {}, {3, 1}},
        {"division", 3, 3, {{3, 1, 1, 15}, {3, 2, 5, 15}}, {}, {2, 4, 6, 8}, {}},
        {"movement-1", 3, 2, {{3, 1, 2, 15}}, {{1, 1, 1}, {1, 2, 1}, {1, 4, 1}}, {1, 5}, {}, {3, 1}},
        {"movement-2", 3, 3, {{3, 1, 5, 15}}, {{6, 1, 1}, {6, 2, 1}, {6, 4, 1}}, {2, 4, 6, 8}, {}, {3, 1}},
        {"speed", 3, 1, {{3, 1, 1, 15}}, {{3, 1, 1}, {3, 2, 1}, {3, 4, 1}}, {}, {{1, 2}, {2, 3}}, {3, 1}},
        {"persistence", 3, 1, {{4, 1, 2, 19}, {3, 1, 2, 24}}, {}, {}, {}, {}, {{3, 1}, {4, 1}, "once more", true}},
        {"streamlining", 3, 1, {{3, 1, 2, 15}}, {{1, 1, 1}, {1, 2, 1}, {1, 4, 1}}, {}, {{2, 1}, {2, 3}}, {3, 1}},
        {"division-rate", 3, 1, {{3, 1, 2, 15}, {3, 2, 1, 15}}, {}, {3}, {}},
        {"spores", 3, 2, {{3, 1, 1, 15}, {3, 2, 4, 15}, {4, 1, 3, 15}}, {}, {2, 3, 5, 6}, {}},
        {"defence", 3, 1, {{4, 1, 2, 19}, {3, 1, 2, 24}}, {}, {}, {}, {}, {{4, 1}, {3, 1}, "beaten off", true}},
        {"escape", 2, 1, {{4, 1, 1, 13}, {3, 1, 1, 17}}, {}, {}, {{1, 2, 0, 0, 0, 0.62}}, {3, 1}},
        {"substitution", 1, 1, {{3, 1, 1, 15}}, {{1, 1, 2}, {1, 4, 2}}, {}, {}, {3, 1}},
        {"frugality", 1, 1, {{3, 1, 1, 15}}, {{1, 1, 1}, {1, 4, 1}}, {}, {}, {3, 1}},
        {"tentacle", 2, 1, {{3, 1, 1, 15}}, {{1, 1, 3}, {2, 2, 1}, {2, 4, 1}}, {}, {{1, 2, 1, 1}}, {3, 1}},
        {"holding", 2, 1, {{4, 1, 1, 3}, {3, 1, 1, 27}}, {}, {}, {{1, 2, 0, 0, -0.18}, {1, 2, 0, 0, 0.2}}, {3, 1}},
        {"life-expectancy", 1, 1, {{3, 1, 1, 15, 2}}, {}, {}, {}, {}},
        {"struggle", 3, 1, {{3, 1, 2, 19}, {4, 1, 2, 24}}, {}, {}, {}, {}, {{3, 1}, {4, 1}, "eaten", false}},
        {"parasitism", 1, 1, {{3, 1, 1, 13}, {4, 1, 1, 18}}, {{1, 1, 1}, {1, 2, 1}}, {}, {}, {3, 1}},
        {"armour", 3, 1, {{4, 1, 2, 19}, {3, 1, 2, 24, 1}}, {}, {}, {}, {}, {{4, 1}, {3, 1}, "1 damage", true}},
        {"aggression", 3, 1, {{3, 1, 2, 19}, {4, 1, 2, 24}}, {}, {}, {}, {}, {{3, 1}, {4, 1}, "torn to pieces"}},
    };
    return boards;
}

/// A clan's card, for genes that do nothing on the board.
struct SampleCard {
    const char* Name;
    std::vector<GeneCode> Genes;
};

const std::vector<SampleCard>& Cards() {
    static const std::vector<SampleCard> cards = {
        {"intelligence", {"int", "mv1", "esc"}},
        {"ray-protection", {"mv1", "esc", "ray", "ten"}},
    };
    return cards;
}

std::unique_ptr<GameState> StateOf(const SampleBoard& board) {
    auto state = std::make_unique<GameState>();
    state->NumCols = board.Columns;
    state->NumRows = board.Rows;
    state->NumSquares = board.Columns * board.Rows;
    state->NumPlayers = Clans;
    state->MaxAmoeba = MaxPieces;
    for (const Place& place : board.Pieces) {
        Piece& piece = state->Amoeba[place.Amoeba][place.Clan];
        piece.Square = place.Square;
        piece.Damage = place.Damage;
        piece.Slot = place.Spot;
    }
    for (const Heap& heap : board.Food) {
        state->Food[heap.Square][heap.Clan] = heap.Pieces;
    }
    return state;
}

std::unique_ptr<GameState> StateOf(const SampleCard& card) {
    constexpr int person = 3;
    auto state = std::make_unique<GameState>();
    state->NumPlayers = person;
    state->MaxAmoeba = MaxPieces;
    for (int place = 1; place <= person; ++place) {
        state->PlayOrder[place] = person + 1 - place;
    }
    state->UVLevel = 10;
    state->AmoebaCount[person] = 4;
    Clan& clan = state->Players[person];
    clan.Name = "Player 3";
    clan.Colour = 0x00FFFF;
    clan.Score = 12;
    state->BP[person] = 5;
    for (const GeneCode gene : card.Genes) {
        state->Genes[gene.Number][person] = true;
        clan.MutationLevel += GeneRows[gene.Number - 1].PointsFew;
    }
    return state;
}

/// An arrow with a light edge, seen on any water.
void DrawArrow(QPainter& painter, QPointF from, QPointF to) {
    const QLineF line(from, to);
    const QPointF along = (to - from) / line.length();
    const QPointF aside(-along.y(), along.x());
    QPainterPath path(from);
    path.lineTo(to);
    path.moveTo(to - along * 110 + aside * 80);
    path.lineTo(to);
    path.lineTo(to - along * 110 - aside * 80);
    painter.setBrush(Qt::NoBrush);
    for (const auto& [tone, width] : {std::pair(Tone::PieceHalo, 88), std::pair(Tone::Accent, 46)}) {
        painter.setPen(QPen(Shade(tone), width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        painter.drawPath(path);
    }
}

void DrawWay(QPainter& painter, const GameState& state, const Way& way) {
    constexpr double level = -0.14;  // with the pieces, above the food
    const QPointF lift(0, (level + way.Across) * SquareUnits);
    const QPointF from = SquareMiddle(state, way.From) + lift;
    const QPointF to = SquareMiddle(state, way.To) + lift;
    const QPointF start = from + (to - from) * way.Start;
    DrawArrow(painter, start, start + (to - from) * 0.45);
    if (way.Pieces > 0) {
        DrawCarried(painter, way.Colour, way.Pieces, start + QPointF(120, -190));
    }
}

void DrawFight(QPainter& painter, const GameState& state, const Fight& fight) {
    if (fight.Outcome != nullptr) {
        DrawAttack(painter, MarkerOf(state, fight.Attacker.Clan, fight.Attacker.Amoeba),
                   MarkerOf(state, fight.Victim.Clan, fight.Victim.Amoeba), 1, QString::fromLatin1(fight.Outcome),
                   fight.Safe);
    }
}

QImage Paint(const SampleBoard& board) {
    const auto state = StateOf(board);
    PuddleView puddle(nullptr, *state);
    const int pixels = board.Columns * board.Rows == 1 ? PixelsOfOne : PixelsOfSquare;
    puddle.resize(board.Columns * pixels, board.Rows * pixels);
    puddle.SetOffered(board.Offered);
    if (board.Acting.Clan > 0) {
        puddle.OutlinePiece(board.Acting.Clan, board.Acting.Amoeba, true);
    }
    QImage picture(puddle.size(), QImage::Format_ARGB32);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    puddle.render(&painter, QPoint(), QRegion(), QWidget::DrawChildren);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(static_cast<double>(pixels) / SquareUnits, static_cast<double>(pixels) / SquareUnits);
    for (const Way& way : board.Ways) {
        DrawWay(painter, *state, way);
    }
    DrawFight(painter, *state, board.Attack);
    return picture;
}

QImage Paint(const SampleCard& card) {
    const auto state = StateOf(card);
    ClanPanel panel(nullptr, *state);
    panel.resize(CardPixels.width(), panel.FullHeight());
    panel.ShowAll();
    return panel.grab(QRect(QPoint(), CardPixels)).toImage();
}

template <class Sample>
bool PaintAll(const std::vector<Sample>& samples, const QString& folder) {
    return std::all_of(samples.begin(), samples.end(), [&](const Sample& sample) {
        constexpr int small = 0;
        const QString file = QDir(folder).filePath(QString::fromLatin1(sample.Name) + QStringLiteral(".png"));
        return Paint(sample).save(file, nullptr, small);
    });
}

}  // namespace

bool PaintSampleBoards(const QString& folder) {
    return PaintAll(Boards(), folder) && PaintAll(Cards(), folder);
}

}  // namespace plasmos
