// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string_view>
#include <type_traits>

#include "model/services.h"
#include "model/signature.h"

namespace plasmos {

/// One thing that has happened in the puddle, told once, when the state has it already. Clans, amoebas and squares
/// count from 1; a field that its kind does not name is 0.
///
/// Clan and Amoeba are the piece that acts or that it befalls, OtherClan and OtherAmoeba the piece that it has to do
/// with, Square is where it happens.
struct Happening {
    enum class Kind {
        // ---- pieces move: From, Square; Number: the spot it takes there, 0: not drawn ----
        Moves,
        Rides,      ///< holding on to the other piece, which has just moved
        IsDragged,  ///< by the tentacle of the other piece, which has just moved
        Escapes,    ///< from the other piece, which attacks

        CarriesFood,  ///< with a tentacle, From, to Square, right after its move; OtherClan: colour; Number: pieces
        ChangesSpot,  ///< and stays in Square; Number: the spot it takes, 0: not drawn
        Throws,  ///< the direction die for a person, in From; Number: its face, Square: where it leads, 0: a choice
        Stays,   ///< in Square, which its drift or its move has led to

        // ---- pieces feed, in Square ----
        /// Number: the menu, Second: the colour of each of its digits, 0 for a lent piece (menu 21 of colours 3 and 5:
        /// 21, 35); 2 pieces of its own colour are laid down. OtherClan: the first host, as a parasite's meal.
        Eats,
        Parasitizes,  ///< off clan OtherClan and, where there are two hosts, clan Second; the meal follows
        Starves,      ///< Number: its damage now

        // ---- pieces come and go, in Square ----
        IsBorn,     ///< Number: its spot, 0: not drawn
        Dies,       ///< and is off the board; Number: pieces that it leaves of every colour, but for those told before
        IsEaten,    ///< by the other piece; Number: pieces that it leaves of every colour; its death follows
        IsTorn,     ///< by the other piece, in the aggression step; else the same
        IsWounded,  ///< by the other piece, in its armour; Number: its damage now

        // ---- pieces fight, in Square ----
        Attacks,        ///< the other piece, in the aggression step
        AttacksToEat,   ///< the other piece
        FailsToEscape,  ///< from the other piece; it is where it was
        Defends,        ///< and beats the other piece off
        FailsToDefend,  ///< against the other piece

        // ---- clans ----
        BuysGene,    ///< Number: the gene; the price follows
        LosesGene,   ///< Number: the gene, given up, given back, or replaced by its upgrade
        PaysBP,      ///< Number: so many
        GainsBP,     ///< Number: so many
        ScoreMoves,  ///< From: the space it leaves, Number: the space of its marker now

        // ---- the game ----
        CardIsTurned,  ///< Number: the UV level, Second: the drift, as the state has it
        OrderIsMade,   ///< the order of play has been worked out; it may be the one before
    };

    Kind What = Kind::Moves;
    int Clan = 0;
    int Amoeba = 0;
    int From = 0;
    int Square = 0;
    int OtherClan = 0;
    int OtherAmoeba = 0;
    int Number = 0;
    int Second = 0;

    friend constexpr bool operator==(const Happening&, const Happening&) = default;
};

static_assert(std::is_trivially_copyable_v<Happening>);

/// The name of a kind: "Moves".
std::string_view KindName(Happening::Kind kind);

/// Whether anybody hears or shows what happens.
inline bool SomebodyFollows() {
    return services.Listener != nullptr || services.Window != nullptr;
}

/// Whether a piece leaves its square for another one.
constexpr bool IsMove(Happening::Kind kind) {
    return kind <= Happening::Kind::Escapes;
}

/// Folds a happening into the game's signature, if it is one that counts there.
[[gnu::always_inline]] inline void SignHappening(const Happening& happening) {
    using Kind = Happening::Kind;
    const auto& [what, clan, amoeba, from, square, otherClan, otherAmoeba, number, second] = happening;
    if (IsMove(what)) {
        Sign(SignedEvent::Move, clan, amoeba, square);
        return;
    }
    switch (what) {
        case Kind::Eats: Sign(SignedEvent::Meal, clan, square, number); break;
        case Kind::IsBorn: Sign(SignedEvent::Birth, clan, amoeba, square); break;
        case Kind::Dies: Sign(SignedEvent::Death, clan, amoeba, square); break;
        case Kind::Attacks:
        case Kind::AttacksToEat: Sign(SignedEvent::Attack, clan, otherClan, otherAmoeba); break;
        case Kind::BuysGene: Sign(SignedEvent::Purchase, clan, number); break;
        case Kind::ScoreMoves: Sign(SignedEvent::Score, clan, number); break;
        default: break;
    }
}

/// Tells the observer of a happening, puts it into words, and has the window show it; use Happened. It takes a copy:
/// where nobody listens the compiler need not put a happening together.
[[gnu::cold]] void TellHappening(Happening happening);

/// Something has happened, and the state has it. This is all that a rule says of it: its share of the signature, its
/// words and what the window shows follow. A game that nobody listens to only signs it.
[[gnu::always_inline]] inline void Happened(const Happening& happening) {
    SignHappening(happening);
    if (SomebodyFollows()) [[unlikely]] {
        TellHappening(happening);
    }
}

}  // namespace plasmos
