// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/window/catch_up.h"

#include <algorithm>

#include "model/services.h"
#include "ui/window/board_presentation.h"

namespace plasmos {

CatchUp::CatchUp(const InputList& inputs, GameRecorder& recorder, BoardPresentation& window, int until)
    : InputPlayer(inputs, &recorder), recorder_(&recorder), window_(&window), until_(until) {
    window_->HoldLog(true);
}

CatchUp::~CatchUp() {
    window_->HoldLog(false);
}

void CatchUp::ShowMessage(std::string_view text, int clan) {
    message_ = text;
    messageClan_ = clan;
}

void CatchUp::StartLog(std::string_view header) {
    window_->StartLog(header);
}

void CatchUp::Log(std::string_view line, int clan) {
    window_->Log(line, clan);
}

void CatchUp::ShowPhase(std::string_view phase) {
    window_->LogPhase(phase);
}

void CatchUp::ShowHappening(const Happening& happening) {
    window_->LogHappening(happening);
}

void CatchUp::ShowCaption(std::string_view caption) {
    window_->ShowCaption(caption);
}

// The marks of the menu stay those of the last person who acted.
void CatchUp::ShowCurrentClan(int clan) {
    window_->ShowAutoFlags(clan);
}

void CatchUp::ShowAutoFlags(int clan) {
    window_->ShowAutoFlags(clan);
}

void CatchUp::OutlinePiece(int clan, int amoeba, bool on) {
    outlinedClan_ = on ? clan : 0;
    outlined_ = on ? amoeba : 0;
}

void CatchUp::Open(Question& question) {
    open_.push_back(&question);
}

void CatchUp::Close(Question& question) {
    open_.erase(std::remove(open_.begin(), open_.end(), &question), open_.end());
}

void CatchUp::OnBegin(Step step, int clan, int amoeba) {
    InputPlayer::OnBegin(step, clan, amoeba);
    LookAtMoment();
}

void CatchUp::OnEnd(Step step, int clan, int amoeba) {
    InputPlayer::OnEnd(step, clan, amoeba);
    LookAtMoment();
}

void CatchUp::OnHappening(const Happening& happening) {
    InputPlayer::OnHappening(happening);
    LookAtMoment();
}

void CatchUp::LookAtMoment() {
    if (until_ > 0 && recorder_->Moment() >= until_) {
        HandOver();
    }
}

void CatchUp::Exhausted(Question& /*question*/) {
    HandOver();
}

void CatchUp::Finish() {
    HandOver();
}

void CatchUp::HandOver() {
    if (handedOver_) {
        return;
    }
    handedOver_ = true;
    window_->HoldLog(false);
    services.Window = window_;
    services.Listener = recorder_;
    if (OnHandedOver) {
        OnHandedOver();
    }
    window_->ShowEverything(message_, messageClan_);
    if (outlined_ > 0) {
        window_->OutlinePiece(outlinedClan_, outlined_, true);
    }
    for (Question* question : open_) {
        window_->Open(*question);
    }
}

}  // namespace plasmos
