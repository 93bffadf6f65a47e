// SPDX-License-Identifier: GPL-3.0-or-later
#include "rules/division.h"

#include <algorithm>

#include "model/bio_points.h"
#include "model/dice.h"
#include "model/genes.h"
#include "model/happening.h"
#include "model/presentation.h"
#include "model/reasons.h"
#include "model/step.h"
#include "model/trace.h"
#include "questions/ask.h"
#include "questions/choice_forms.h"
#include "rules/computer_clan.h"
#include "rules/hints.h"
#include "rules/move_amoeba.h"

namespace plasmos {

namespace {

int FreeSlot(int clan) {
    for (int amoeba = 1; amoeba <= game.MaxAmoeba; ++amoeba) {
        if (game.Amoeba[amoeba][clan].Square == 0) {
            return amoeba;
        }
    }
    return 0;
}

template <class Test>
SquareSet SquaresWhere(Test&& test) {
    SquareSet squares;
    for (int square = 1; square <= game.NumSquares; ++square) {
        if (!game.Blocked[square] && test(square)) {
            squares.Add(square);
        }
    }
    return squares;
}

SquareSet SquaresNextToOwn(int clan) {
    SquareSet squares;
    for (int amoeba = 1; amoeba <= game.MaxAmoeba; ++amoeba) {
        const int own = game.Amoeba[amoeba][clan].Square;
        for (int direction = 1; own != 0 && direction <= 4; ++direction) {
            if (const int next = game.NextTo[own][direction]; next != own) {
                squares.Add(next);
            }
        }
    }
    return squares;
}

/// Whether any square is without the clan's own amoebas.
bool HasRoom(int clan) {
    for (int square = 1; square <= game.NumSquares; ++square) {
        if (IsValidSquare(square) && game.Occupancy[square][clan] == 0) {
            return true;
        }
    }
    return false;
}

bool IsEmptySquare(int square) {
    return game.Occupancy[square][0] == 0;
}

/// A square of the board is drawn until it is a real one that holds no amoeba.
int DrawStartSquare(int clan) {
    for (int draw = 1; draw <= MaxDraws; ++draw) {
        const int square = RollDie(game.NumSquares);
        if (IsValidSquare(square) && IsEmptySquare(square)) {
            Because("At the start a die over all squares decides for ", TheClan{clan}, ": ", square,
                    " is the first it threw without an amoeba.");
            return square;
        }
    }
    return SquaresWhere(IsEmptySquare).Lowest();
}

int ChooseSquareFor(int clan, const NewAmoeba& which) {
    const bool inPlay = game.Turn >= 1;
    if (!game.Players[clan].IsComputer) {
        return PlacingSquares(clan, inPlay).Empty() ? 0 : ChoosePlaceSquare(clan, inPlay, which);
    }
    if (!inPlay) {
        return DrawStartSquare(clan);
    }
    if (HasGene(clan, "spo") || game.AmoebaCount[clan] < 2) {
        return ComputerPlaceSquare(clan);
    }
    return ComputerPlaceBeside(clan);
}

void TraceCreation(int clan, int amoeba, int square) {
    if (TracesAreKept()) {
        WriteTrace(Concat("Amoeba Created! Player: ", clan, " (", game.Players[clan].Name, ") Moeba: ", amoeba,
                          "  square: ", square),
                   "crt");
    }
}

void Complete(int clan, int amoeba, int square) {
    game.Amoeba[amoeba][clan].Damage = 0;
    const int slot = SquareCapacity(square);
    PutPiece(clan, amoeba, square, slot);
    ++game.AmoebaCount[clan];
    Happened({.What = Happening::Kind::IsBorn, .Clan = clan, .Amoeba = amoeba, .Square = square, .Number = slot});
    if (game.Players[clan].IsComputer) {
        TraceCreation(clan, amoeba, square);
    }
}

int AskHowMany(int clan, int affordable) {
    AmNumfrm form(clan, "Amoeba-number form", "How many amoebas would you like to create?", -1, 0);
    form.Activate(DivisionPrice(clan));
    form.LimitTo(affordable);
    form.Hint = DivisionHint(clan, DivisionPrice(clan), affordable);
    ShowQuestionText(form.Text, clan);
    OpenQuestion open(form);
    open.Wait();
    const int count = form.Chosen();
    NoteAnswer(form, Numbered(Answer::Kind::Number, count), true);
    return count;
}

void DividePerson(int clan, int price) {
    int affordable = std::min(game.BP[clan] / price, game.MaxAmoeba - game.AmoebaCount[clan]);
    if (affordable < 1) {
        return;
    }
    const auto& name = game.Players[clan].Name;
    const bool first = game.AmoebaCount[clan] == 0;
    if (AskYesNo(clan, Concat("Clan ", name, ", would you like to Divide new Plasmos onto the board?"), 0,
                 DivisionHint(clan, price, affordable + (first ? 1 : 0)))) {
        if (first) {
            ShowBox(clan, Concat("Your first amoeba will be free of cost; all further amoebas will cost you ", price,
                                 " BPs as normal."));
            ++affordable;
        }
        const int count = AskHowMany(clan, affordable);
        for (int i = 1; i <= count && DivideOnce(clan, price, {i, count}); ++i) {
        }
    }
    ClearMessage();
}

}  // namespace

int DivisionIncome() {
    return game.NumPlayers >= 5 ? 11 : 10;
}

int DivisionPrice(int clan) {
    return HasGene(clan, "div") ? 4 : 6;
}

SquareSet PlacingSquares(int clan, bool inPlay) {
    const auto withoutOwn = [&](int square) { return game.Occupancy[square][clan] == 0; };
    SquareSet squares;
    if (game.AmoebaCount[clan] == 0 || !inPlay) {
        squares = SquaresWhere(IsEmptySquare);
    } else if (HasGene(clan, "spo") || game.AmoebaCount[clan] < 2) {
        squares = SquaresWhere(withoutOwn);
    } else {
        squares = SquaresNextToOwn(clan);
    }
    return squares.Empty() ? SquaresWhere(withoutOwn) : squares;
}

int ChoosePlaceSquare(int clan, bool inPlay, const NewAmoeba& which) {
    return AskSquare(clan, "Choose a square in which to place your amoeba:", PlacingSquares(clan, inPlay).List(),
                     PlacingHint(clan, inPlay, which));
}

bool CreateAmoeba(int clan, const NewAmoeba& which) {
    const int amoeba = FreeSlot(clan);
    if (amoeba == 0) {
        return false;
    }
    const int square = ChooseSquareFor(clan, which);
    if (square == 0) {
        return false;
    }
    Complete(clan, amoeba, square);
    return true;
}

bool DivideOnce(int clan, int price, const NewAmoeba& which) {
    if (FreeSlot(clan) == 0 || !HasRoom(clan)) {
        return false;
    }
    if (game.AmoebaCount[clan] >= 1) {
        PayBP(clan, price);
    }
    return CreateAmoeba(clan, which);
}

void DivisionPhase() {
    GuardPhase([] {
        BeginPhase("Division");
        for (int place = 1; place <= game.NumPlayers; ++place) {
            const int clan = ClanAtPlace(place);
            game.CurPlayer = clan;
            RunStep(Step::Divide, clan, 0, [&] {
                Show(&Presentation::ShowCurrentClan, clan);
                GainBP(clan, DivisionIncome());
                if (game.Players[clan].IsComputer) {
                    ComputerDivide(DivisionPrice(clan));
                } else {
                    DividePerson(clan, DivisionPrice(clan));
                }
            });
        }
    });
}

}  // namespace plasmos
