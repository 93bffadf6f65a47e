// SPDX-License-Identifier: GPL-3.0-or-later
#include "questions/ask.h"

#include <algorithm>
#include <utility>

#include "model/board_units.h"
#include "model/narration.h"
#include "model/observer.h"
#include "model/presentation.h"
#include "model/services.h"
#include "questions/visit.h"

namespace plasmos {

namespace {

/// Nothing answers any more: what is clicked after a question belongs to no later one.
void ForgetAnswer() {
    game.Reply = 0;
    game.ReplyY = -1;
}

/// Other questions have a panel, which may cover the message line.
bool IsAskedInMessageLine(const Question& question) {
    return question.Kind == QuestionKind::YesNo || question.Kind == QuestionKind::Square;
}

/// Yes and No are for the questions in the message line.
void PutButton(const Answer& answer) {
    if (TopQuestion() != nullptr && IsAskedInMessageLine(*TopQuestion())) {
        TopQuestion()->Put(answer);
    }
}

bool WaitForYes(int clan, const std::string& text, int about, std::string hint) {
    YesNoQuestion question(clan, text, about);
    question.Hint = std::move(hint);
    game.Reply = 0;
    OpenQuestion open(question);
    open.Wait();
    NoteAnswer(question, question.IsYes() ? YesAnswer() : NoAnswer(), true);
    return question.IsYes();
}

void LogBox(int clan, const std::string& text) {
    if (SomebodyListens()) {
        LogText(text, clan);
    }
}

}  // namespace

YesNoQuestion::~YesNoQuestion() {
    ForgetAnswer();
}

SquareQuestion::~SquareQuestion() {
    game.WantSquare = false;
    ForgetAnswer();
}

void YesNoQuestion::Store(const Answer& answer) {
    if (answer.What != Answer::Kind::Yes && answer.What != Answer::Kind::No) {
        NoteAnswer(*this, answer, false);
        return;
    }
    answer_ = answer.What == Answer::Kind::Yes;
    game.Reply = IsYes() ? ReplyYes : ReplyNo;
}

void BoxQuestion::Store(const Answer& answer) {
    dismissed_ = answer.What == Answer::Kind::Acknowledge || answer.What == Answer::Kind::Close;
    if (!dismissed_) {
        NoteAnswer(*this, answer, false);
    }
}

std::vector<Answer> SquareQuestion::Allowed() const {
    std::vector<Answer> allowed;
    for (const int square : Offered) {
        allowed.push_back(Numbered(Answer::Kind::Square, square));
    }
    return allowed;
}

int SquareQuestion::Take() {
    game.Reply = game.ReplyY = -1;
    return std::exchange(square_, std::nullopt).value();
}

void SquareQuestion::Store(const Answer& answer) {
    switch (answer.What) {
        case Answer::Kind::Yes:
        case Answer::Kind::No:
            square_ = 0;
            game.Reply = answer.What == Answer::Kind::Yes ? ReplyYes : ReplyNo;
            break;
        case Answer::Kind::Square:
            square_ = answer.Number >= 1 && answer.Number <= game.NumSquares ? answer.Number : 0;
            game.Reply = *square_ > 0 ? MiddleOf(*square_).X : -1;
            game.ReplyY = *square_ > 0 ? MiddleOf(*square_).Y : -1;
            break;
        default: NoteAnswer(*this, answer, false);
    }
}

OpenQuestion::OpenQuestion(Question& question) : question_(question), below_(services.Asked) {
    if (!IsAskedInMessageLine(question)) {
        LetMessageBeRead();
    }
    if (services.Listener != nullptr) {
        if (question.Kind == QuestionKind::Box) {
            services.Listener->OnBox(question.Text);
        } else {
            services.Listener->OnAsk(question);
        }
    }
    if (!question.ModeName().empty()) {
        game.DialogMode = question.ModeName();
    }
    services.Asked = &question_;
    try {
        Board().Open(question_);
    } catch (...) {
        services.Asked = below_;
        throw;
    }
}

OpenQuestion::~OpenQuestion() {
    services.Asked = below_;
    if (!question_.ModeName().empty() && question_.ModeName() != "NEWGENES") {
        game.DialogMode = below_ != nullptr ? below_->ModeName() : "";
    }
    Board().Close(question_);
}

void OpenQuestion::Wait() {
    while (!question_.Answered()) {
        TakeSwitches(TakenAt::Question);
        Board().Wait();
    }
    MessageIsRead();
}

void yesb_Click() {
    PutButton(YesAnswer());
}

void nob_Click() {
    PutButton(NoAnswer());
}

void Picture1_MouseUp(int x, int y) {
    auto* question = As<SquareQuestion>(TopQuestion());
    if (question == nullptr || question->Answered()) {
        return;
    }
    question->Put(Numbered(Answer::Kind::Square, SquareAt(x, y)));
    game.Reply = x;
    game.ReplyY = y;
}

bool AskYesNo(int clan, const std::string& text, int about, std::string hint) {
    ShowQuestionText(text, clan);
    return WaitForYes(clan, text, about, std::move(hint));
}

bool AskYesNoBelow(int clan, const std::string& text, std::string hint) {
    const std::string before = game.Message.String();
    ShowQuestionText(BelowMessage(text), clan);
    const bool yes = WaitForYes(clan, text, 0, std::move(hint));
    PutBackMessage(before, game.CurPlayer);
    return yes;
}

int SquareAt(const GameState& state, int x, int y) {
    if (x < 0 || y < 0) {
        return 0;
    }
    const int col = x / SquareUnits;
    const int row = y / SquareUnits;
    if (col >= state.NumCols || row >= state.NumRows) {
        return 0;
    }
    return row * state.NumCols + col + 1;
}

int AskSquare(int clan, const std::string& text, const std::vector<int>& offered, std::string hint) {
    std::vector<int> squares = offered;
    std::sort(squares.begin(), squares.end());
    squares.erase(std::unique(squares.begin(), squares.end()), squares.end());
    if (squares.empty()) {
        throw RuntimeError(5, "Invalid procedure call: no square can be offered");
    }
    if (squares.size() == 1) {
        return squares.front();
    }
    SquareQuestion question(clan, text, squares);
    question.Hint = std::move(hint);
    ShowQuestionText(text, clan);
    game.Reply = game.ReplyY = -1;
    game.WantSquare = true;
    OpenQuestion open(question);
    for (;;) {
        open.Wait();
        const int square = question.Take();
        const bool accepted = std::binary_search(squares.begin(), squares.end(), square);
        NoteAnswer(question, Numbered(Answer::Kind::Square, square), accepted);
        if (accepted) {
            return square;
        }
        Board().Refresh(question);
    }
}

void ShowBox(int clan, const std::string& text) {
    if (game.AutoPlay || services.Window == nullptr) {
        LogBox(clan, text);
        return;
    }
    BoxQuestion box(clan, text);
    OpenQuestion open(box);
    open.Wait();
}

void ReportBox(const std::string& text) {
    if (game.FastMode) {
        LogBox(game.CurPlayer, text);
    } else {
        ShowBox(game.CurPlayer, text);
    }
}

}  // namespace plasmos
