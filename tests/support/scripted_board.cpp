// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/support/scripted_board.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "model/game_state.h"
#include "model/services.h"
#include "questions/ask.h"
#include "questions/choice_forms.h"
#include "questions/food_form.h"
#include "questions/gene_form.h"
#include "questions/victim_form.h"

namespace plasmos::testing {

namespace {

/// More answers in a row than this to one question are a policy that never gets through.
constexpr int PatienceWithAnswers = 10000;

std::string Describe(const Question& question) {
    return Concat("a question of the kind ", QuestionKindName(question.Kind), " to clan ", question.Clan, ": \"",
                  question.Text, "\"");
}

template <class Options>
std::vector<int> EnabledOptions(const Options& options) {
    std::vector<int> enabled;
    for (int k = 0; k <= 7; ++k) {
        if (options[k].Visible && options[k].Enabled) {
            enabled.push_back(k);
        }
    }
    return enabled;
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

std::vector<int> EnabledBoxes(const GeneForm& form) {
    std::vector<int> genes;
    for (int gene = 1; gene <= GeneCount; ++gene) {
        if (form.gcheck[gene].Enabled) {
            genes.push_back(gene);
        }
    }
    return genes;
}

Asked Remember(const Question& question) {
    Asked asked{question.Kind, question.Clan, question.Text, {}, {}};
    if (const auto* square = dynamic_cast<const SquareQuestion*>(&question)) {
        asked.Offered = square->Offered;
    } else if (const auto* yesNo = dynamic_cast<const YesNoQuestion*>(&question)) {
        asked.About = yesNo->About;
    } else if (const auto* number = dynamic_cast<const AmNumfrm*>(&question)) {
        asked.Offered = EnabledOptions(number->amopt);
    } else if (const auto* choice = dynamic_cast<const AmChoicefrm*>(&question)) {
        asked.Offered = EnabledOptions(choice->amopt);
    } else if (const auto* victim = dynamic_cast<const VictimForm*>(&question)) {
        asked.Offered = MarkableFigures(*victim);
        asked.Mode = std::string(victim->Mode);
    } else if (const auto* genes = dynamic_cast<const GeneForm*>(&question)) {
        asked.Offered = EnabledBoxes(*genes);
        asked.Mode = std::string(game.DialogMode);
    } else if (const auto* food = dynamic_cast<const FoodForm*>(&question)) {
        asked.Mode = std::string(food->Mode);
    }
    return asked;
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

ScriptedBoard& ScriptedBoard::Then(Answer answer) {
    script_.push_back(std::move(answer));
    return *this;
}

ScriptedBoard& ScriptedBoard::Then(std::initializer_list<Answer> answers) {
    script_.insert(script_.end(), answers.begin(), answers.end());
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
        static_cast<BoxQuestion&>(question).ok_Click();
        return;
    }
    if (!script_.empty()) {
        const Answer answer = std::move(script_.front());
        script_.pop_front();
        try {
            answer.Give(question);
        } catch (const ScriptError& error) {
            Fail(error.what());
        }
        return;
    }
    if (!policy_) {
        Fail("nobody expected " + Describe(question));
    }
    policy_(question);
}

void ScriptedBoard::Fail(const std::string& text) {
    if (failure_.empty()) {
        failure_ = text;
    }
    throw ScriptError(text);
}

}  // namespace plasmos::testing
