// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/window/question_desk.h"

#include <QAccessible>
#include <QShortcut>
#include <algorithm>
#include <utility>

#include "files/runtime_error.h"
#include "model/game_state.h"
#include "model/services.h"
#include "questions/visit.h"
#include "ui/board/puddle_view.h"
#include "ui/board/score_track.h"
#include "ui/dialogs/question_panel.h"
#include "ui/look/palette.h"
#include "ui/strip/clan_panel.h"
#include "ui/strip/question_card.h"
#include "ui/strip/side_strip.h"

namespace plasmos {

namespace {

constexpr int PauseUnit = 75;
constexpr int LongestWait = 100;

}  // namespace

QuestionDesk::QuestionDesk(QWidget& window, ScoreTrack& track, SideStrip& strip) : track_(&track), strip_(&strip) {
    for (QPushButton* button : {strip_->Question->yesb, strip_->Question->nob}) {
        RefuseRepeats(button);
        button->setAutoDefault(true);
    }
    connect(strip_->Question->yesb, &QPushButton::clicked, this, [this] { Answer(yesb_Click); });
    connect(strip_->Question->nob, &QPushButton::clicked, this, [this] { Answer(nob_Click); });
    for (const auto& [key, button] :
         {std::pair{Qt::Key_Y, strip_->Question->yesb}, std::pair{Qt::Key_N, strip_->Question->nob}}) {
        auto* shortcut = new QShortcut(QKeySequence(key), &window);
        shortcut->setAutoRepeat(false);
        connect(shortcut, &QShortcut::activated, button, &QPushButton::click);
    }
    track_->Puddle()->OnSquarePoint = [this](int x, int y) { AnswerSquare(x, y); };
}

QuestionDesk::~QuestionDesk() = default;

int QuestionDesk::Duration(int full) const {
    return WantsFastMode() ? 0 : static_cast<int>(full * speed_ * pace_ / 100);
}

// No animation takes longer than it is meant to.
int QuestionDesk::Milliseconds(int full) const {
    return motion_ ? std::min(full, Duration(full)) : 0;
}

void QuestionDesk::Hold(bool on) {
    held_ = on;
    step_ = false;
    wait_.Interrupt();
}

void QuestionDesk::Freeze(bool on) {
    if (std::exchange(frozen_, on) != on) {
        ShowTop(Qt::OtherFocusReason);
        wait_.Interrupt();
    }
}

void QuestionDesk::Step() {
    step_ = true;
    wait_.Interrupt();
}

void QuestionDesk::WaitWhileHeld() {
    if (held_) {
        strip_->Question->ShowHint(QStringLiteral("Paused. F8 goes on, F9 takes a step."));
    }
    while ((frozen_ || (held_ && !std::exchange(step_, false))) && !services.Switches.Leaves()) {
        wait_.ForAnswer(LongestWait);
        ThrowIfOver();
    }
    strip_->Question->ShowHint(QString());
}

void QuestionDesk::ThrowIfOver() {
    if (wait_.Ended()) {
        throw ProgramEnd{0};
    }
}

void QuestionDesk::Wait() {
    ThrowIfOver();
    wait_.ForAnswer(LongestWait);
    ThrowIfOver();
}

void QuestionDesk::Pause(int units) {
    ThrowIfOver();
    if (!services.Switches.Leaves()) {
        wait_.ForTime(Duration(units * PauseUnit));
    }
    if (held_ || frozen_) {
        WaitWhileHeld();
    }
    ThrowIfOver();
}

void QuestionDesk::LeaveGame() {
    services.Switches.Add({Switch::Kind::Leave});
    wait_.Interrupt();
}

Question* QuestionDesk::TopQuestion() const {
    return asked_.empty() ? nullptr : asked_.back().What;
}

void QuestionDesk::Open(Question& question) {
    auto panel = MakePanel(strip_, game, question);
    if (panel) {
        panel->OnHandled = [this] {
            ShowSafety();
            wait_.Wake();
            TellTop();
        };
    }
    asked_.push_back({&question, std::move(panel)});
    ActivateTop(Qt::TabFocusReason);
}

void QuestionDesk::Refresh(Question& question) {
    for (const Asked& asked : asked_) {
        if (asked.What == &question && asked.Panel) {
            asked.Panel->Reread();
        }
    }
    ShowAsked();
    strip_->Arrange();
    TellTop();
    if (TopQuestion() == &question) {
        AnnounceTop();
    }
}

void QuestionDesk::Close(Question& question) {
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
void QuestionDesk::ShowTop(Qt::FocusReason reason) {
    std::vector<QuestionPanel*> panels;
    for (std::size_t i = 0; i < asked_.size(); ++i) {
        if (asked_[i].Panel) {
            asked_[i].Panel->setEnabled(!frozen_ && i + 1 == asked_.size());
            panels.push_back(asked_[i].Panel.get());
        }
    }
    Question* top = TopQuestion();
    const auto* square = frozen_ ? nullptr : As<SquareQuestion>(top);
    strip_->Question->ShowHint(square != nullptr ? QStringLiteral("Click one of the glowing squares.") : QString());
    track_->Puddle()->SetAsked(square != nullptr ? ToQt(square->Text).trimmed() : QString());
    track_->Puddle()->SetOffered(square != nullptr ? square->Offered : std::vector<int>());
    const auto* yesNo = As<YesNoQuestion>(top);
    track_->Puddle()->SetSpokenOf(yesNo != nullptr && !frozen_ ? yesNo->About : 0);
    strip_->Question->ShowAbout(top != nullptr && !asked_.back().Panel ? ToQt(top->Hint) : QString());
    strip_->SetPanels(panels);
    strip_->Question->AskYesNo(yesNo != nullptr && !frozen_);
    ShowAsked();
    ShowSafety();
    if (frozen_) {
        strip_->Question->ShowHint(QStringLiteral("The game waits while you look back."));
        return;
    }
    if (square != nullptr) {
        track_->Puddle()->setFocus();
    } else if (top != nullptr && asked_.back().Panel) {
        asked_.back().Panel->FirstControl()->setFocus(reason);
    }
}

void QuestionDesk::ActivateTop(Qt::FocusReason reason) {
    ShowTop(reason);
    if (!frozen_) {
        Speak();
        TellTop();
        AnnounceTop();
    }
}

void QuestionDesk::TellTop() {
    if (OnTop) {
        OnTop(TopQuestion());
    }
}

// Who adapts is safe as soon as its dialog says so.
void QuestionDesk::ShowSafety() {
    if (const auto* genes = As<GeneForm>(TopQuestion()); genes != nullptr) {
        strip_->Clans->ShowSafe(genes->Adapts && genes->UVdiff <= 0 ? genes->Clan : 0);
    }
}

// A message box asks nothing.
void QuestionDesk::ShowAsked() {
    strip_->Question->ShowAsked(std::any_of(asked_.begin(), asked_.end(),
                                            [](const Asked& asked) { return asked.What->Kind != QuestionKind::Box; }));
}

void QuestionDesk::Speak() {
    if (asked_.empty()) {
        return;
    }
    QWidget* part = asked_.back().Panel.get();
    if (part == nullptr) {
        part = strip_->Question;
        part->setAccessibleName(ToQt(TopQuestion()->Text).trimmed());
    }
    QAccessibleEvent event(part, QAccessible::Alert);
    QAccessible::updateAccessibility(&event);
}

void QuestionDesk::AnnounceTop() {
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

void QuestionDesk::Answer(void (*handler)()) {
    const Question* top = TopQuestion();
    if (top == nullptr || top->Kind != QuestionKind::YesNo || frozen_) {
        return;
    }
    strip_->Question->yesb->setEnabled(false);
    strip_->Question->nob->setEnabled(false);
    handler();
    wait_.Wake();
}

void QuestionDesk::WarnOfSquare(const SquareQuestion& question, int square) {
    if (square > 0 && std::find(question.Offered.begin(), question.Offered.end(), square) == question.Offered.end()) {
        strip_->Question->WarnHint(QStringLiteral("Square %1 cannot be chosen now; the glowing ones can.").arg(square));
    }
}

void QuestionDesk::AnswerSquare(int x, int y) {
    Question* top = TopQuestion();
    if (const auto* square = As<SquareQuestion>(top); square != nullptr && !frozen_) {
        WarnOfSquare(*square, SquareAt(game, x, y));
        Picture1_MouseUp(x, y);
        wait_.Wake();
    }
}

}  // namespace plasmos
