// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "model/game_state.h"
#include "model/message_line.h"
#include "model/presentation.h"
#include "questions/question.h"

namespace plasmos {

/// Values of `Reply` for a yes/no question.
inline constexpr int ReplyYes = 6;
inline constexpr int ReplyNo = 7;

/// A yes/no question in the message line.
class YesNoQuestion : public Question {
public:
    YesNoQuestion(int clan, std::string text, int about)
        : Question(QuestionKind::YesNo, clan, std::move(text)), About(about) {}
    bool Answered() const override;

    /// The square that the question speaks of; 0: none.
    const int About;
};

/// A question that is answered by a click on one of the offered squares (ascending, once each).
class SquareQuestion : public Question {
public:
    SquareQuestion(int clan, std::string text, std::vector<int> offered)
        : Question(QuestionKind::Square, clan, std::move(text)), Offered(std::move(offered)) {}
    bool Answered() const override;

    const std::vector<int> Offered;
};

/// A message box with an OK button.
class BoxQuestion : public Question {
public:
    explicit BoxQuestion(int clan, std::string text) : Question(QuestionKind::Box, clan, std::move(text)) {}
    bool Answered() const override { return dismissed_; }
    /// OK, Escape, or the box closed.
    void ok_Click() { dismissed_ = true; }

private:
    bool dismissed_ = false;
};

/// Keeps a question open on the board while it lives.
class OpenQuestion {
public:
    explicit OpenQuestion(Question& question);
    ~OpenQuestion();
    OpenQuestion(const OpenQuestion&) = delete;
    OpenQuestion& operator=(const OpenQuestion&) = delete;

    /// Waits until the question has something for the rule to look at. All waiting of the game is here.
    void Wait();

private:
    Question& question_;
};

/// Tells a listener what came back. Forms tell their answers in one line of text.
void NoteAnswer(const Question& question, std::string_view value, bool accepted);

// ---- handlers of the board, called by the presentation ----

/// The button Yes: `Reply` becomes 6.
void yesb_Click();
/// The button No: `Reply` becomes 7.
void nob_Click();
/// The mouse is released over the board at a point in board units. It counts only while a square is
/// wanted: `Reply` becomes x, `ReplyY` y.
void Picture1_MouseUp(int x, int y);

// ---- asking ----

/// Asks a clan a yes/no question, about a square if it speaks of one; true is yes.
bool AskYesNo(int clan, const std::string& text, int about = 0);

/// The same below what the message line tells, which stays in sight and is put back.
bool AskYesNoBelow(int clan, const std::string& text);

/// Asks a clan for one of the offered squares (in any order, not empty); every other answer is
/// refused and the wait goes on. A single square is the answer without a question.
int AskSquare(int clan, const std::string& text, const std::vector<int>& offered);

/// The square at a point in board units; 0: no square there.
int SquareAt(const GameState& state, int x, int y);
inline int SquareAt(int x, int y) {
    return SquareAt(game, x, y);
}

/// A message box for the person who plays a clan (0: for whoever sits at the screen). In games of
/// computer clans only it is a line of the log.
void ShowBox(int clan, const std::string& text);

/// A message box with which the computer clans report; in fast mode a line of the log.
void ReportBox(const std::string& text);

/// A statement to a person between two questions: the message line shows it, the log keeps it, and
/// there is a pause to read it in.
void TellPerson(int clan, const std::string& text);

}  // namespace plasmos
