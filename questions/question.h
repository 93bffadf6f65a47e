// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>
#include <utility>

namespace plasmos {

enum class QuestionKind { YesNo, Square, Number, Amoeba, Food, Victim, Genes, Box };

/// The name a kind of question has in a journal: "yesno", "square", "number", "amoeba", "food",
/// "victim", "genes", "box".
std::string_view QuestionKindName(QuestionKind kind);

/// A question put to a person. A rule makes it, opens it on the board, and waits until a handler has
/// stored the answer. What may be answered stands in the question; a presentation shows it, hands the
/// person's input to the question's handlers (their names end in _Click, _Change and so on) and decides
/// nothing itself. A handler called where its control is disabled or hidden changes nothing.
class Question {
public:
    Question(QuestionKind kind, int clan, std::string text) : Kind(kind), Clan(clan), Text(std::move(text)) {}
    virtual ~Question() = default;
    Question(const Question&) = delete;
    Question& operator=(const Question&) = delete;

    /// Whether the rule has something to look at: an answer, or a button that the rule carries out.
    virtual bool Answered() const = 0;

    const QuestionKind Kind;
    const int Clan;    ///< the asked clan, 1..NumPlayers; 0 before the clans are known
    std::string Text;  ///< the question as it is shown, with line breaks
};

}  // namespace plasmos
