// SPDX-License-Identifier: GPL-3.0-or-later
#include "questions/ask.h"

#include <algorithm>

#include "model/narration.h"
#include "model/observer.h"
#include "model/presentation.h"
#include "model/services.h"

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

bool WaitForYes(int clan, const std::string& text, int about) {
    YesNoQuestion question(clan, text, about);
    game.Reply = 0;
    OpenQuestion open(question);
    open.Wait();
    const bool yes = game.Reply == ReplyYes;
    NoteAnswer(question, Concat(game.Reply), true);
    ForgetAnswer();
    return yes;
}

void LogBox(int clan, const std::string& text) {
    if (SomebodyListens()) {
        LogText(text, clan);
    }
}

}  // namespace

bool YesNoQuestion::Answered() const {
    return game.Reply == ReplyYes || game.Reply == ReplyNo;
}

bool SquareQuestion::Answered() const {
    return game.Reply != -1 || game.ReplyY != -1;
}

OpenQuestion::OpenQuestion(Question& question) : question_(question) {
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
    Board().Open(question_);
}

OpenQuestion::~OpenQuestion() {
    Board().Close(question_);
}

void OpenQuestion::Wait() {
    while (!question_.Answered()) {
        Board().Wait();
    }
    MessageIsRead();
}

void NoteAnswer(const Question& question, std::string_view value, bool accepted) {
    if (services.Listener != nullptr) {
        services.Listener->OnAnswer(question, value, accepted);
    }
}

void yesb_Click() {
    game.Reply = ReplyYes;
}

void nob_Click() {
    game.Reply = ReplyNo;
}

void Picture1_MouseUp(int x, int y) {
    if (!game.WantSquare) {
        return;
    }
    game.Reply = x;
    game.ReplyY = y;
}

bool AskYesNo(int clan, const std::string& text, int about) {
    ShowQuestionText(text, clan);
    return WaitForYes(clan, text, about);
}

bool AskYesNoBelow(int clan, const std::string& text) {
    const std::string before = game.Message.String();
    ShowQuestionText(BelowMessage(text), clan);
    const bool yes = WaitForYes(clan, text, 0);
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

int AskSquare(int clan, const std::string& text, const std::vector<int>& offered) {
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
    ShowQuestionText(text, clan);
    game.Reply = game.ReplyY = -1;
    game.WantSquare = true;
    OpenQuestion open(question);
    for (;;) {
        open.Wait();
        const int square = game.ReplyY < 0 ? 0 : SquareAt(game.Reply, game.ReplyY);
        const bool accepted = std::binary_search(squares.begin(), squares.end(), square);
        NoteAnswer(question, Concat(square), accepted);
        game.Reply = game.ReplyY = -1;
        if (accepted) {
            game.WantSquare = false;
            ForgetAnswer();
            return square;
        }
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

void TellPerson(int clan, const std::string& text) {
    ShowStatement(text, clan);
    LogBox(clan, text);
    TakePause(StatementPause);
}

}  // namespace plasmos
