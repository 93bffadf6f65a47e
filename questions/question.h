// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "questions/answer.h"

namespace plasmos {

enum class QuestionKind { YesNo, Square, Number, Amoeba, Food, Victim, Genes, Box };

/// The name a kind of question has in a journal: "yesno", "square", "number", "amoeba", "food",
/// "victim", "genes", "box".
std::string_view QuestionKindName(QuestionKind kind);

/// A question put to a person. A rule makes it, opens it on the board, and waits until there is something for
/// it to look at. What may be answered stands in the question, and so does what has been answered.
///
/// Whoever answers puts in one answer after the other, `Put()`, and the handlers that are named after the
/// controls (_Click, _Change and so on) do nothing else. What belongs to the dialog alone (a typed amount, a
/// mark, a tick that can still be taken back) shows in it at once; whatever changes the game is left for the
/// rule that waits.
class Question {
public:
    Question(QuestionKind kind, int clan, std::string text) : Kind(kind), Clan(clan), Text(std::move(text)) {}
    virtual ~Question() = default;
    Question(const Question&) = delete;
    Question& operator=(const Question&) = delete;

    /// Puts in an answer. One that is not allowed now is told as refused, or shows no effect where the control
    /// for it has none; after one that the rule has to look at nothing more is taken until it has, and nothing while
    /// another question lies on top.
    void Put(const Answer& answer);

    /// What may be answered now: everything where that can be listed, the steps that are enabled where the
    /// question is a dialogue. Whatever stands here has an effect.
    virtual std::vector<Answer> Allowed() const = 0;

    /// Whether the rule has something to look at: an answer, or a step that the rule carries out.
    virtual bool Answered() const = 0;

    /// What the question serves, as the state's dialog mode names it; empty where it has none.
    virtual std::string_view ModeName() const { return {}; }

    const QuestionKind Kind;
    const int Clan;    ///< the asked clan, 1..NumPlayers; 0 before the clans are known
    std::string Text;  ///< the question as it is shown, with line breaks
    /// What the answers cost and bring, and which of several like it this question is; shown beside the text. Empty
    /// where there is nothing to say, or nobody who reads it.
    std::string Hint;

protected:
    /// Takes an answer that was put in.
    virtual void Store(const Answer& answer) = 0;
};

/// Whether anybody reads what stands beside a question. No hint is put into words when nobody does.
bool HintsAreWanted();

/// Tells a listener what came back.
void NoteAnswer(const Question& question, const Answer& answer, bool accepted);

}  // namespace plasmos
