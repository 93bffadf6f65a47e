// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/support/scripted_board.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "model/game_state.h"
#include "model/services.h"
#include "questions/visit.h"

namespace plasmos::testing {

namespace {

/// More answers in a row than this to one question are a policy that never gets through.
constexpr int PatienceWithAnswers = 10000;

std::string Describe(const Question& question) {
    return Concat("a question of the kind ", QuestionKindName(question.Kind), " to clan ", question.Clan, ": \"",
                  question.Text, "\"");
}

std::vector<int> MarkableFigures(const VictimForm& form) {
    std::vector<int> figures;
    for (const VictimFigure& figure : form.Figures) {
        if (figure.Markable) {
            figures.push_back(10 * figure.Clan + figure.Amoeba);
        }
    }
    return figures;
}

/// The numbers of the answers that are of one of two kinds.
std::vector<int> AllowedNumbers(const Question& question, Answer::Kind kind, Answer::Kind other) {
    std::vector<int> numbers;
    for (const Answer& answer : question.Allowed()) {
        if (answer.What == kind || answer.What == other) {
            numbers.push_back(answer.Number);
        }
    }
    return numbers;
}

std::vector<int> OfferedBy(const Question& question) {
    const auto numbers = [](Answer::Kind kind) {
        return [kind](const Question& asked) { return AllowedNumbers(asked, kind, kind); };
    };
    switch (question.Kind) {
        case QuestionKind::Square: return numbers(Answer::Kind::Square)(question);
        case QuestionKind::Number: return numbers(Answer::Kind::Number)(question);
        case QuestionKind::Amoeba: return numbers(Answer::Kind::Amoeba)(question);
        case QuestionKind::Genes: return AllowedNumbers(question, Answer::Kind::Tick, Answer::Kind::Untick);
        case QuestionKind::YesNo:
        case QuestionKind::Food:
        case QuestionKind::Victim:
        case QuestionKind::Box: break;
    }
    const auto* victims = As<const VictimForm>(&question);
    return victims != nullptr ? MarkableFigures(*victims) : std::vector<int>();
}

Asked Remember(const Question& question) {
    const auto* yesNo = As<const YesNoQuestion>(&question);
    return {.Kind = question.Kind,
            .Clan = question.Clan,
            .Text = question.Text,
            .Offered = OfferedBy(question),
            .Mode = std::string(question.ModeName()),
            .About = yesNo != nullptr ? yesNo->About : 0,
            .Hint = question.Hint};
}

}  // namespace

ScriptedBoard::ScriptedBoard() {
    services.Window = this;
}

ScriptedBoard::~ScriptedBoard() {
    if (services.Window == this) {
        services.Window = nullptr;
    }
    if (!failure_.empty()) {
        ADD_FAILURE() << failure_;
    } else if (!script_.empty()) {
        ADD_FAILURE() << script_.size() << " answers were never asked for; the first is " << script_.front().Name;
    }
}

ScriptedBoard& ScriptedBoard::Then(Line line) {
    script_.push_back(std::move(line));
    return *this;
}

ScriptedBoard& ScriptedBoard::Then(std::initializer_list<Line> lines) {
    script_.insert(script_.end(), lines.begin(), lines.end());
    return *this;
}

std::string ScriptedBoard::ForgiveFailure() {
    script_.clear();
    return std::exchange(failure_, {});
}

bool ScriptedBoard::WasAsked(QuestionKind kind) const {
    return std::any_of(Questions.begin(), Questions.end(), [kind](const Asked& asked) { return asked.Kind == kind; });
}

bool ScriptedBoard::HasLogLine(const std::string& line) const {
    return std::find(LogLines.begin(), LogLines.end(), line) != LogLines.end();
}

void ScriptedBoard::ShowMessage(std::string_view text, int /*clan*/) {
    Messages.emplace_back(text);
}

void ScriptedBoard::Pause(int units) {
    Pauses.push_back(units);
    if (OnPause) {
        OnPause();
    }
}

void ScriptedBoard::StartLog(std::string_view header) {
    LogLines.assign(1, std::string(header));
}

void ScriptedBoard::Open(Question& question) {
    open_.push_back(&question);
    unanswered_ = 0;
    if (question.Kind == QuestionKind::Box) {
        Boxes.push_back(question.Text);
    } else {
        Questions.push_back(Remember(question));
    }
}

void ScriptedBoard::Close(Question& question) {
    const auto found = std::find(open_.begin(), open_.end(), &question);
    if (found != open_.end()) {
        open_.erase(found);
    }
}

void ScriptedBoard::Wait() {
    if (open_.empty()) {
        Fail("the rules wait, and no question is open");
    }
    Question& question = *open_.back();
    if (++unanswered_ > PatienceWithAnswers) {
        Fail("no answer is good enough for " + Describe(question));
    }
    if (dismissBoxes_ && question.Kind == QuestionKind::Box) {
        question.Put(Plain(Answer::Kind::Acknowledge));
        return;
    }
    if (!script_.empty()) {
        Line line = std::move(script_.front());
        script_.pop_front();
        try {
            Follow(line, question);
        } catch (const ScriptError& error) {
            Fail(error.what());
        }
        if (!line.Answers.empty()) {
            script_.push_front(std::move(line));
        }
        return;
    }
    if (!policy_) {
        Fail("nobody expected " + Describe(question));
    }
    policy_(question);
}

void ScriptedBoard::Follow(Line& line, Question& question) {
    if (line.Act) {
        line.Act(question);
        return;
    }
    auto next = line.Answers.begin();
    do {
        PutFitting(*next++, question);
    } while (next != line.Answers.end() && !question.Answered());
    line.Answers.erase(line.Answers.begin(), next);
}

void ScriptedBoard::Fail(const std::string& text) {
    if (failure_.empty()) {
        failure_ = text;
    }
    throw ScriptError(text);
}

}  // namespace plasmos::testing
