// SPDX-License-Identifier: GPL-3.0-or-later
#include "record/game_recorder.h"

#include <algorithm>

#include "model/game_state.h"
#include "questions/question.h"

namespace plasmos {

namespace {

bool Leaves(const Input& input) {
    return input.IsSwitch && input.Turned.What == Switch::Kind::Leave;
}

}  // namespace

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
    InputRecorder::OnBegin(step, clan, amoeba);
}

void GameRecorder::OnEnd(Step step, int clan, int amoeba) {
    LookWhetherDealt();
    CountMoment();
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
    if (left_) {
        PassingObserver::OnInput(question, answer);
        return;
    }
    LookWhetherDealt();
    momentOf_.push_back(moment_);
    InputRecorder::OnInput(question, answer);
    Tell(InputText(Inputs.back()));
}

void GameRecorder::OnSwitch(const Switch& turned, TakenAt place) {
    LookWhetherDealt();
    momentOf_.push_back(moment_);
    InputRecorder::OnSwitch(turned, place);
    left_ = Leaves(Inputs.back());
    if (!left_) {
        Tell(InputText(Inputs.back()));
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

std::size_t GameRecorder::InputsBefore(int moment) const {
    const auto found = std::lower_bound(momentOf_.begin(), momentOf_.end(), moment);
    return static_cast<std::size_t>(found - momentOf_.begin());
}

void DropLeaving(InputList& inputs) {
    while (!inputs.empty() && Leaves(inputs.back())) {
        inputs.pop_back();
    }
}

}  // namespace plasmos
