// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace plasmos {

/// What a person answers, as a value. It is what a control of a question puts in, what a robot, a script and a
/// game that is played again give, and what a rule tells that came back.
///
/// Its text is one line: a word and what belongs to it, "square 7", "eat 0,2,1", "pick 3,1 3,2".
struct Answer {
    enum class Kind : std::uint8_t {
        Yes,         ///< the button Yes
        No,          ///< the button No
        Square,      ///< a click on a square; Number 0: off the board
        Number,      ///< a number of the number dialog
        Amoeba,      ///< a piece of the asked clan, by its slot
        Nobody,      ///< none of the pieces
        Field,       ///< Number's entry field of the food dialog is changed to Typed
        LeaveField,  ///< Number's entry field is left
        Suggestion,  ///< the suggested menu is taken over into the fields
        Parasitism,  ///< the parasite's way is chosen, or given up
        Struggle,    ///< the fighter's way is chosen, or given up
        Eat,         ///< what the fields hold is eaten; with Amounts they hold these
        Victim,      ///< the dialog of the chosen way is opened
        Starve,      ///< nothing is eaten
        Carry,       ///< what the fields hold is carried; with Amounts they hold these, and are told so
        CarryNothing,
        Fight,        ///< told: the amoeba fights Pieces' first for its meal
        Mark,         ///< the figure with the index Number is clicked
        LookAway,     ///< the window has lost the focus
        Pick,         ///< Pieces are marked, and done; none: nothing is picked
        Tick,         ///< the box of the gene Number is clicked, which ticks it
        Untick,       ///< the box of the gene Number is clicked, which unticks it
        Pay,          ///< the BP to be paid are changed to Typed
        Reset,        ///< the choices begin afresh
        Done,         ///< the choices are done
        Acknowledge,  ///< the message has been read
        Close         ///< the dialog's window is closed
    };

    /// A piece on the board.
    struct Piece {
        int Clan = 0;
        int Amoeba = 0;

        friend bool operator==(const Piece&, const Piece&) = default;
    };

    Kind What = Kind::Yes;
    int Number = 0;
    std::string Typed;         ///< as it was typed, whatever it is
    std::vector<int> Amounts;  ///< pieces of the colours 1, 2, ...
    std::vector<Piece> Pieces;

    /// The answer as one line.
    std::string Text() const;
    /// Reads what Text() writes. What comes back is what is wrong with the line and what is expected, or an
    /// empty text.
    static std::string Parse(std::string_view line, Answer& answer);

    friend bool operator==(const Answer&, const Answer&) = default;
};

// ---- answers by name ----

inline Answer YesAnswer() {
    return {Answer::Kind::Yes, 0, {}, {}, {}};
}
inline Answer NoAnswer() {
    return {Answer::Kind::No, 0, {}, {}, {}};
}
/// An answer that is a word alone.
inline Answer Plain(Answer::Kind kind) {
    return {kind, 0, {}, {}, {}};
}
/// An answer with a number: a square, a number, a slot, a field, an index, a gene.
inline Answer Numbered(Answer::Kind kind, int number) {
    return {kind, number, {}, {}, {}};
}
/// Something typed: into a field of the food dialog, or as BP to pay.
inline Answer TypedInto(Answer::Kind kind, int field, std::string text) {
    return {kind, field, std::move(text), {}, {}};
}
/// Amounts of the colours 1, 2, ...
inline Answer WithAmounts(Answer::Kind kind, std::vector<int> amounts) {
    return {kind, 0, {}, std::move(amounts), {}};
}
inline Answer WithPieces(Answer::Kind kind, std::vector<Answer::Piece> pieces) {
    return {kind, 0, {}, {}, std::move(pieces)};
}

/// Amounts as "0,2,1".
std::string AmountsText(const std::vector<int>& amounts);
/// Pieces as "3,1 3,2": clan and slot.
std::string PiecesText(const std::vector<Answer::Piece>& pieces);

}  // namespace plasmos
