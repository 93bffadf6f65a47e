// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/app/shot_moments.h"

#include <algorithm>
#include <iterator>
#include <string_view>

#include "model/game_state.h"
#include "questions/question.h"

namespace plasmos {

namespace {

constexpr int TurnOfPicture = 4;

bool AsksIn(const Question& question, QuestionKind kind, std::string_view phase) {
    return question.Kind == kind && game.Phase.View() == phase;
}

bool IsTurnOfPicture(const Question& question) {
    return game.Turn > TurnOfPicture || (game.Turn == TurnOfPicture && question.Kind == QuestionKind::YesNo);
}

constexpr int PhasesBack = 8;

constexpr ShotMoment Moments[] = {
    {"turn", IsTurnOfPicture},
    {"start", [](const Question&) { return true; }},
    {"look", IsTurnOfPicture, "earliermen", PhasesBack},
    {"why", IsTurnOfPicture, "whymen"},
    {"resume", IsTurnOfPicture, "leavemen", 1, true},
    {"meal", [](const Question& question) { return game.Turn > 1 && question.Kind == QuestionKind::Food; }},
    {"genes", [](const Question& question) { return AsksIn(question, QuestionKind::Genes, "New genes"); }},
    {"adapt", [](const Question& question) { return AsksIn(question, QuestionKind::Genes, "Environment"); }},
    {"birth", [](const Question& question) { return AsksIn(question, QuestionKind::Square, "Division"); }},
    {"attack", [](const Question& question) { return question.Text.find("the attack?") != std::string::npos; }},
    {"victim", [](const Question& question) { return question.Kind == QuestionKind::Victim; }},
    {"end", [](const Question&) { return false; }},
};

}  // namespace

const ShotMoment* ShotMomentNamed(const QString& name) {
    const auto* found = std::find_if(std::begin(Moments), std::end(Moments),
                                     [&](const ShotMoment& moment) { return name == QLatin1String(moment.Name); });
    return found != std::end(Moments) ? found : nullptr;
}

}  // namespace plasmos
