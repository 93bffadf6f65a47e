// SPDX-License-Identifier: GPL-3.0-or-later
#include "rules/move_amoeba.h"

#include <array>
#include <cstddef>
#include <exception>

#include "model/bio_points.h"
#include "model/genes.h"
#include "model/lost_line.h"
#include "model/narration.h"
#include "model/reasons.h"
#include "model/trace.h"
#include "questions/ask.h"
#include "questions/victim_form.h"
#include "rules/hints.h"
#include "rules/menus.h"

namespace plasmos {

namespace {

using Kind = Happening::Kind;

/// A hitch-hiker or a dragged piece.
struct Rider {
    int Clan;
    int Amoeba;
};

/// Riders in the order in which they follow; every piece of a game finds room.
class RiderList {
public:
    void Add(const Rider& rider) { riders_[count_++] = rider; }
    const Rider* begin() const { return riders_.data(); }
    const Rider* end() const { return riders_.data() + count_; }

private:
    std::array<Rider, std::size_t{MaxClans} * MaxPieces> riders_;  // filled as far as count_
    std::size_t count_ = 0;
};

void LayFood(const TentacleLoad& load, int from, int to, int sign) {
    for (int colour = 1; load.HasFood && colour <= game.NumPlayers; ++colour) {
        game.Food[from][colour] -= sign * load.Food[colour];
        game.Food[to][colour] += sign * load.Food[colour];
    }
}

/// The food lies at the destination while this lives, for rules that look ahead.
class CarriedFood {
public:
    CarriedFood(const TentacleLoad& load, int from, int to) : load_(load), from_(from), to_(to) {
        LayFood(load_, from_, to_, 1);
    }
    ~CarriedFood() { LayFood(load_, from_, to_, -1); }
    CarriedFood(const CarriedFood&) = delete;
    CarriedFood& operator=(const CarriedFood&) = delete;

private:
    const TentacleLoad& load_;
    int from_;
    int to_;
};

template <class Visit>
void ForPiecesIn(int square, int clan, Visit&& visit) {
    for (int amoeba = 1; amoeba <= game.MaxAmoeba; ++amoeba) {
        if (game.Amoeba[amoeba][clan].Square == square) {
            visit(amoeba);
        }
    }
}

void AskRiders(int clan, int from, int to, RiderList& riders) {
    const auto text = Concat(game.Players[clan].Name, ": there is an amoeba moving from square ", from, " to ", to,
                             "\nWould any of your amoebas like to hitch a ride?");
    if (!AskYesNo(clan, text, 0, RidersHint(to))) {
        return;
    }
    VictimForm form(clan, "HOLD", "Choose the Hitch-hiker(s):", from);
    form.Hint = RidersHint(to);
    ForPiecesIn(from, clan, [&](int amoeba) { form.Allow(clan, amoeba); });
    for (const VictimFigure& figure : AskVictims(form)) {
        riders.Add({figure.Clan, figure.Amoeba});
    }
}

/// A computer clan's pieces ride when they cannot eat where they are and can at the destination.
bool WantsToRide(int clan, int from, int to, const TentacleLoad& load) {
    const CarriedFood carried(load, from, to);
    if (CanEat(from, clan) || !CanEat(to, clan)) {
        return false;
    }
    Because("With Holding ", TheClan{clan}, " rides along: it cannot eat in square ", from, ", but can in ", to, ".");
    return true;
}

void ChooseRiders(int mover, int from, int to, const TentacleLoad& load, RiderList& riders) {
    for (int clan = 1; clan <= game.NumPlayers; ++clan) {
        if (!HasGene(clan, "hol") || clan == mover || game.Occupancy[from][clan] == 0) {
            continue;
        }
        if (!game.Players[clan].IsComputer) {
            AskRiders(clan, from, to, riders);
        } else if (WantsToRide(clan, from, to, load)) {
            ForPiecesIn(from, clan, [&](int amoeba) { riders.Add({clan, amoeba}); });
        }
    }
}

void TraceSpot(int clan, int slot, bool moved) {
    CountMoveLine();
    if (TracesAreKept()) {
        const bool computer = moved && game.Players[clan].IsComputer;
        WriteTrace(Concat(computer ? "mposition " : "position ", slot, "\n"), "");
    }
}

void TraceMove(int clan, int amoeba, int destination) {
    CountMoveLine();
    if (TracesAreKept()) {
        WriteTrace(Concat("Turn: ", game.Turn, "   Amoeba ", clan, ", ", amoeba, " moving to square ", destination),
                   "");
    }
}

void TellOfLoad(const TentacleLoad& load, int clan, int amoeba, int from, int to) {
    for (int colour = 1; load.HasFood && colour <= game.NumPlayers; ++colour) {
        if (load.Food[colour] != 0) {
            Happened({.What = Kind::CarriesFood,
                      .Clan = clan,
                      .Amoeba = amoeba,
                      .From = from,
                      .Square = to,
                      .OtherClan = colour,
                      .Number = load.Food[colour]});
        }
    }
}

/// Everything that can fail comes first, the tables change last.
void MoveWithFood(int clan, int amoeba, int destination, const TentacleLoad& load, const Manner& manner) {
    const int from = game.Amoeba[amoeba][clan].Square;
    TraceMove(clan, amoeba, destination);
    const int slot = SquareCapacity(destination);
    TraceSpot(clan, slot, true);
    LiftPiece(clan, amoeba);
    PutPiece(clan, amoeba, destination, slot);
    LayFood(load, from, destination, 1);
    Happened({.What = manner.What,
              .Clan = clan,
              .Amoeba = amoeba,
              .From = from,
              .Square = destination,
              .OtherClan = manner.OtherClan,
              .OtherAmoeba = manner.OtherAmoeba,
              .Number = slot});
    TellOfLoad(load, clan, amoeba, from, destination);
}

/// A part of a piece's move, by itself: an error in it is recorded for this piece, and the log tells when
/// it stays for that. True: there was none.
template <class Move>
bool MoveGuarded(int clan, int amoeba, Move&& move) {
    const Piece& piece = game.Amoeba[amoeba][clan];
    const int from = piece.Square;
    try {
        move();
        return true;
    } catch (const std::exception&) {
        const RuntimeError error = CurrentError();
        if (!IsLostAgain()) {
            AppendErrorRecord(error, clan, amoeba);
        }
        TellOfLostLine(error);
        if (piece.Square == from && SomebodyListens()) {
            LogText(Concat(piece.Name, " stays in ", from, ": ", std::string_view(error.what())), clan);
        }
        return false;
    }
}

/// The mover goes first; those that follow go each by itself, and nobody follows a mover that stays.
void MoveWithCompany(int clan, int amoeba, int destination) {
    TentacleLoad load;
    RiderList riders;
    const bool moved = MoveGuarded(clan, amoeba, [&] {
        const int from = game.Amoeba[amoeba][clan].Square;
        load = ChooseTentacleLoad(clan, amoeba, destination);
        ChooseRiders(clan, from, destination, load, riders);
        MoveWithFood(clan, amoeba, destination, load, {});
    });
    if (!moved) {
        return;
    }
    for (const Rider& rider : riders) {
        MoveAlone(rider.Clan, rider.Amoeba, destination, {Kind::Rides, clan, amoeba});
    }
    if (load.DraggedAmoeba != 0 && MoveAlone(clan, load.DraggedAmoeba, destination, {Kind::IsDragged, clan, amoeba})) {
        PayBP(clan, 1);
    }
}

}  // namespace

bool MoveAlone(int clan, int amoeba, int destination, const Manner& manner) {
    return MoveGuarded(clan, amoeba, [&] {
        const Piece& piece = game.Amoeba[amoeba][clan];
        if (piece.Square == destination) {
            TraceSpot(clan, piece.Slot, false);
        } else {
            MoveWithFood(clan, amoeba, destination, {}, manner);
        }
    });
}

void MoveAmoeba(int clan, int amoeba, int destination) {
    if (game.Amoeba[amoeba][clan].Square == destination) {
        if (MoveAlone(clan, amoeba, destination, {})) {
            Happened({.What = Kind::Stays, .Clan = clan, .Amoeba = amoeba, .Square = destination});
        }
    } else {
        MoveWithCompany(clan, amoeba, destination);
    }
}

}  // namespace plasmos
