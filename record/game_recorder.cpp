// SPDX-License-Identifier: GPL-3.0-or-later
#include "record/game_recorder.h"

#include <algorithm>

#include "model/game_state.h"
#include "questions/question.h"

namespace plasmos {

void GameRecorder::CountMoment() {
    ++moment_;
    if (chapters_.empty() || chapters_.back().Turn != game.Turn || !(chapters_.back().Phase == game.Phase)) {
        chapters_.push_back({game.Turn, game.Phase, moment_});
    }
    if (OnMoment) {
        OnMoment(moment_);
    }
}

void GameRecorder::LookWhetherDealt() {
    if (!dealt_ && NoteDealt(head_)) {
        dealt_ = true;
        chapters_.front().Moment = moment_;
        InputList inputs = Inputs;
        DropLeaving(inputs);
        Tell(RecordText({head_, inputs}));
    }
}

void GameRecorder::Tell(std::string_view lines) const {
    if (dealt_ && OnText) {
        OnText(lines);
    }
}

void GameRecorder::OnBegin(Step step, int clan, int amoeba) {
    if (step == Step::NewGame) {
        head_ = HeadOfBeginning();
    }
    CountMoment();
    step_ = {moment_, game.Turn, clan, amoeba, step, {}};
    InputRecorder::OnBegin(step, clan, amoeba);
}

void GameRecorder::OnReason(std::string_view sentence) {
    if (reasons_.empty() || reasons_.back().Begin != step_.Begin) {
        reasons_.push_back(step_);
    }
    reasons_.back().Sentences.emplace_back(moment_, sentence);
    InputRecorder::OnReason(sentence);
}

std::string GameRecorder::WhyAt(int moment) const {
    const auto next = std::upper_bound(reasons_.begin(), reasons_.end(), moment,
                                       [](int at, const Why& why) { return at < why.Begin; });
    std::string text;
    if (next == reasons_.begin()) {
        return text;
    }
    const Why& why = *std::prev(next);
    const auto end = std::upper_bound(ends_.begin(), ends_.end(), why.Begin);
    const bool after = end != ends_.end() && *end <= moment;
    for (const auto& [told, sentence] : why.Sentences) {
        if (!after && told <= moment) {
            text += (text.empty() ? "" : "\n") + sentence;
        }
    }
    return text;
}

void GameRecorder::OnEnd(Step step, int clan, int amoeba) {
    LookWhetherDealt();
    CountMoment();
    ends_.push_back(moment_);
    figures_.Note(step, game);
    if (step == Step::NewGame || step == Step::Score) {
        endOfTurn_.push_back(moment_);
    }
    InputRecorder::OnEnd(step, clan, amoeba);
}

void GameRecorder::OnHappening(const Happening& happening) {
    CountMoment();
    InputRecorder::OnHappening(happening);
}

void GameRecorder::OnAsk(const Question& question) {
    LookWhetherDealt();
    places_.push_back({Inputs.size(), question.Clan, moment_});
    InputRecorder::OnAsk(question);
}

// Written down before anything comes of it.
void GameRecorder::OnInput(const Question& question, const Answer& answer) {
    LookWhetherDealt();
    const auto before = Inputs.size();
    InputRecorder::OnInput(question, answer);
    Note(before);
}

void GameRecorder::OnSwitch(const Switch& turned, TakenAt place) {
    LookWhetherDealt();
    const auto before = Inputs.size();
    InputRecorder::OnSwitch(turned, place);
    Note(before);
}

void GameRecorder::OnLost(const LostLine& lost) {
    LookWhetherDealt();
    const auto before = Inputs.size();
    InputRecorder::OnLost(lost);
    Note(before);
}

/// What has come to the inputs since there were so many.
void GameRecorder::Note(std::size_t before) {
    for (; before < Inputs.size(); ++before) {
        momentOf_.push_back(moment_);
        if (!LeavesGame(Inputs[before])) {
            Tell(InputText(Inputs[before]));
        }
    }
}

void GameRecorder::OnAnswer(const Question& question, const Answer& answer, bool accepted) {
    const Input* given = LatestAnswer();
    const bool told = given == nullptr || given->Refused;
    InputRecorder::OnAnswer(question, answer, accepted);
    if (!accepted && !told) {
        Tell("refused\n");
    }
}

int GameRecorder::EndOfTurn(int turn) const {
    return turn >= 0 && turn < static_cast<int>(endOfTurn_.size()) ? endOfTurn_[static_cast<std::size_t>(turn)] : 0;
}

std::size_t GameRecorder::InputsBefore(int moment) const {
    const auto found = std::lower_bound(momentOf_.begin(), momentOf_.end(), moment);
    return static_cast<std::size_t>(found - momentOf_.begin());
}

void DropLeaving(InputList& inputs) {
    while (!inputs.empty() && LeavesGame(inputs.back())) {
        inputs.pop_back();
    }
}

}  // namespace plasmos
