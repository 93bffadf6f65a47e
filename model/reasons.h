// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>
#include <type_traits>

#include "files/text.h"
#include "model/game_state.h"
#include "model/services.h"

namespace plasmos {

/// Why a computer clan does what it does: the rule that decides tells it, in sentences for a player, at the place
/// where it decides and before anything comes of it. Sentences belong to the step they are told in.

/// Whether whoever listens reads reasons. Where nobody does, none is put together.
inline bool ReasonsAreWanted() {
    return services.Listener != nullptr && services.ReasonsWanted;
}

/// Use Because.
[[gnu::cold]] void TellReason(const std::string& sentence);

// Pieces of a sentence that cost nothing as long as they are not read: they look up names when it is put together.

struct TheClan {
    int Clan;
};
struct ThePiece {
    int Clan, Amoeba;
};
struct TheGene {
    int Gene;
};
/// "1 amoeba", "2 amoebas".
struct Counted {
    int Number;
    std::string_view What;
};
/// Something that is said only where it holds.
struct Where {
    bool Holds;
    std::string_view Text;
    std::string_view Else{};
};

void AppendPiece(std::string& text, TheClan clan);
void AppendPiece(std::string& text, ThePiece piece);
void AppendPiece(std::string& text, TheGene gene);
void AppendPiece(std::string& text, const Counted& counted);
void AppendPiece(std::string& text, const Where& part);

/// Adds an element to a list in words: ", " or " and " before it, nothing before the first. `place` counts from 1.
void AppendSeparator(std::string& text, int place, int count);

namespace detail {

template <class Piece>
constexpr auto HandOver(const Piece& piece) {
    if constexpr (std::is_convertible_v<const Piece&, std::string_view>) {
        return std::string_view(piece);
    } else {
        return piece;
    }
}

/// The pieces come by value: whoever decides need not keep them in memory for it.
template <class... Pieces>
[[gnu::cold, gnu::noinline]] void TellBecause(Pieces... pieces) {
    TellReason(Concat(pieces...));
}

}  // namespace detail

/// One sentence of a reason, from texts, whole numbers and the pieces above.
template <class... Pieces>
[[gnu::always_inline]] inline void Because(const Pieces&... pieces) {
    if (ReasonsAreWanted()) [[unlikely]] {
        detail::TellBecause(detail::HandOver(pieces)...);
    }
}

/// The same where a person's clan comes to the same place: persons have reasons of their own.
template <class... Pieces>
[[gnu::always_inline]] inline void ComputerBecause(int clan, const Pieces&... pieces) {
    if (ReasonsAreWanted() && game.Players[clan].IsComputer) [[unlikely]] {
        detail::TellBecause(detail::HandOver(pieces)...);
    }
}

}  // namespace plasmos
