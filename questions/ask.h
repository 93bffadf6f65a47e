// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "model/game_state.h"
#include "model/message_line.h"
#include "model/narration.h"
#include "model/presentation.h"
#include "model/services.h"
#include "questions/question.h"

namespace plasmos {

/// Values of `Reply` for a yes/no question.
inline constexpr int ReplyYes = 6;
inline constexpr int ReplyNo = 7;

/// A yes/no question in the message line. `Reply` becomes 6 or 7.
class YesNoQuestion : public Question {
public:
    YesNoQuestion(int clan, std::string text, int about)
        : Question(QuestionKind::YesNo, clan, std::move(text)), About(about) {}
    ~YesNoQuestion() override;
    std::vector<Answer> Allowed() const override { return {YesAnswer(), NoAnswer()}; }
    bool Answered() const override { return answer_.has_value(); }
    /// The answer; only once there is one.
    bool IsYes() const { return answer_.value(); }

    /// The square that the question speaks of; 0: none.
    const int About;

protected:
    void Store(const Answer& answer) override;

private:
    std::optional<bool> answer_;
};

/// A question that is answered by a click on one of the offered squares (ascending, once each). `Reply` and
/// `ReplyY` become the clicked point, -1 off the board. Another square, and the button Yes or No, is looked at and
/// refused.
class SquareQuestion : public Question {
public:
    SquareQuestion(int clan, std::string text, std::vector<int> offered)
        : Question(QuestionKind::Square, clan, std::move(text)), Offered(std::move(offered)) {}
    ~SquareQuestion() override;
    std::vector<Answer> Allowed() const override;
    bool Answered() const override { return square_.has_value(); }
    /// The clicked square, 0 where there is none; the question is then open again.
    int Take();

    const std::vector<int> Offered;

protected:
    void Store(const Answer& answer) override;

private:
    std::optional<int> square_;
};

/// A message box with an OK button.
class BoxQuestion : public Question {
public:
    explicit BoxQuestion(int clan, std::string text) : Question(QuestionKind::Box, clan, std::move(text)) {}
    std::vector<Answer> Allowed() const override { return {Plain(Answer::Kind::Acknowledge)}; }
    bool Answered() const override { return dismissed_; }
    /// OK, Escape, or the box closed.
    void ok_Click() { Put(Plain(Answer::Kind::Acknowledge)); }

protected:
    void Store(const Answer& answer) override;

private:
    bool dismissed_ = false;
};

/// Keeps a question open on the board while it lives, on top of those that are open already. The state's dialog
/// mode is the question's as long; "NEWGENES" stays afterwards, until another dialog sets it.
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
    Question* below_;
};

/// The question that is open on top and can be answered; none: nullptr.
inline Question* TopQuestion() {
    return services.Asked;
}

// ---- handlers of the board, called by the presentation; they answer the topmost question ----

/// The button Yes: `Reply` becomes 6. While a square is wanted it is looked at and refused.
void yesb_Click();
/// The button No: `Reply` becomes 7.
void nob_Click();
/// The mouse is released over the board at a point in board units. It counts only while a square is
/// wanted: `Reply` becomes x, `ReplyY` y.
void Picture1_MouseUp(int x, int y);

// ---- asking ----

/// Asks a clan a yes/no question, about a square if it speaks of one; true is yes.
bool AskYesNo(int clan, const std::string& text, int about = 0, std::string hint = {});

/// The same below what the message line tells, which stays in sight and is put back.
bool AskYesNoBelow(int clan, const std::string& text, std::string hint = {});

/// Asks a clan for one of the offered squares (in any order, not empty); every other answer is
/// refused and the wait goes on. A single square is the answer without a question.
int AskSquare(int clan, const std::string& text, const std::vector<int>& offered, std::string hint = {});

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

}  // namespace plasmos
