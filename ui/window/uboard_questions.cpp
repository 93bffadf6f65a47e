// SPDX-License-Identifier: GPL-3.0-or-later
#include <algorithm>
#include <utility>

#include "files/runtime_error.h"
#include "model/game_state.h"
#include "questions/visit.h"
#include "ui/board/puddle_view.h"
#include "ui/board/score_track.h"
#include "ui/dialogs/question_panel.h"
#include "ui/look/palette.h"
#include "ui/strip/question_card.h"
#include "ui/strip/side_strip.h"
#include "ui/window/uboard.h"

namespace plasmos {

namespace {

constexpr int PauseUnit = 75;
constexpr int LongestWait = 100;

}  // namespace

int UBoard::Milliseconds(int full) const {
    return game.FastMode ? 0 : static_cast<int>(full * speed_);
}

void UBoard::ThrowIfOver() {
    if (wait_.Ended()) {
        throw ProgramEnd{0};
    }
    if (fault_) {
        std::rethrow_exception(std::exchange(fault_, nullptr));
    }
    if (leaving_) {
        throw GameLeft{};
    }
}

void UBoard::Wait() {
    ThrowIfOver();
    wait_.ForAnswer(LongestWait);
    ThrowIfOver();
}

void UBoard::Pause(int units) {
    ThrowIfOver();
    wait_.ForTime(Milliseconds(units * PauseUnit));
    ThrowIfOver();
}

void UBoard::LeaveGame() {
    if (playing_) {
        leaving_ = true;
        wait_.Interrupt();
    }
}

Question* UBoard::TopQuestion() const {
    return asked_.empty() ? nullptr : asked_.back().What;
}

void UBoard::Open(Question& question) {
    auto panel = MakePanel(strip_, game, question);
    if (panel) {
        panel->OnHandled = [this] { wait_.Wake(); };
        panel->OnFault = [this](std::exception_ptr fault) {
            fault_ = std::move(fault);
            wait_.Wake();
        };
    }
    asked_.push_back({&question, std::move(panel)});
    ActivateTop(Qt::TabFocusReason);
}

void UBoard::Refresh(Question& question) {
    for (const Asked& asked : asked_) {
        if (asked.What == &question && asked.Panel) {
            asked.Panel->Reread();
        }
    }
    strip_->Arrange();
    if (TopQuestion() == &question) {
        AnnounceTop();
    }
}

void UBoard::Close(Question& question) {
    for (const Asked& asked : asked_) {
        if (asked.What == &question && asked.Panel) {
            asked.Panel->Retire();
        }
    }
    std::unique_ptr<QuestionPanel> gone;
    const auto found =
        std::find_if(asked_.begin(), asked_.end(), [&question](const Asked& asked) { return asked.What == &question; });
    if (found != asked_.end()) {
        gone = std::move(found->Panel);
        asked_.erase(found);
    }
    ActivateTop(Qt::OtherFocusReason);
}

// Only the topmost question answers; those below stay in sight where there is room.
void UBoard::ActivateTop(Qt::FocusReason reason) {
    std::vector<QuestionPanel*> panels;
    for (std::size_t i = 0; i < asked_.size(); ++i) {
        if (asked_[i].Panel) {
            asked_[i].Panel->setEnabled(i + 1 == asked_.size());
            panels.push_back(asked_[i].Panel.get());
        }
    }
    Question* top = TopQuestion();
    const auto* square = As<SquareQuestion>(top);
    strip_->Question->ShowHint(square != nullptr ? QStringLiteral("Click one of the glowing squares.") : QString());
    track_->Puddle()->SetOffered(square != nullptr ? square->Offered : std::vector<int>());
    const auto* yesNo = As<YesNoQuestion>(top);
    track_->Puddle()->SetSpokenOf(yesNo != nullptr ? yesNo->About : 0);
    strip_->SetPanels(panels);
    strip_->Question->AskYesNo(yesNo != nullptr);
    if (square != nullptr) {
        track_->Puddle()->setFocus();
    } else if (top != nullptr && asked_.back().Panel) {
        asked_.back().Panel->FirstControl()->setFocus(reason);
    }
    AnnounceTop();
}

void UBoard::AnnounceTop() {
    const unsigned number = ++announced_;
    if (TopQuestion() == nullptr) {
        return;
    }
    QMetaObject::invokeMethod(
        this,
        [this, number] {
            if (number == announced_ && TopQuestion() != nullptr && OnQuestion) {
                OnQuestion(*TopQuestion());
            }
        },
        Qt::QueuedConnection);
}

void UBoard::Answer(void (*handler)()) {
    const Question* top = TopQuestion();
    if (top == nullptr || top->Kind != QuestionKind::YesNo) {
        return;
    }
    strip_->Question->yesb->setEnabled(false);
    strip_->Question->nob->setEnabled(false);
    handler();
    wait_.Wake();
}

void UBoard::AnswerSquare(int x, int y) {
    const Question* top = TopQuestion();
    if (top != nullptr && top->Kind == QuestionKind::Square) {
        Picture1_MouseUp(x, y);
        wait_.Wake();
    }
}

}  // namespace plasmos
