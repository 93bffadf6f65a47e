// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/strip/side_strip.h"

#include <QEvent>
#include <algorithm>

#include "model/game_state.h"
#include "ui/dialogs/question_panel.h"
#include "ui/look/dress.h"
#include "ui/strip/clan_panel.h"
#include "ui/strip/environment_view.h"
#include "ui/strip/log_view.h"
#include "ui/strip/question_card.h"
#include "ui/strip/start_card.h"
#include "ui/strip/summary_panel.h"

namespace plasmos {

namespace {

constexpr int Gap = 8;
constexpr int UsualQuestion = 154;
constexpr int LeastQuestion = 124;
constexpr int LeastLog = 48;
constexpr int PleasantLog = 130;

}  // namespace

SideStrip::SideStrip(QWidget* parent, const GameState& state)
    : QWidget(parent),
      Environment(new EnvironmentView(this, state)),
      Start(new StartCard(this, state)),
      Question(new QuestionCard(this, state)),
      Clans(new ClanPanel(this, state)),
      Log(new LogView(this)),
      Summary(new SummaryPanel(this, state)),
      state_(&state) {
    SetPlaying(false);
}

void SideStrip::ShowState(const GameState& state) {
    state_ = &state;
    Environment->ShowState(state);
    Clans->ShowState(state);
    Arrange();
}

void SideStrip::SetPlaying(bool playing) {
    playing_ = playing;
    Start->setVisible(!playing);
    Question->setVisible(playing);
    Arrange();
}

void SideStrip::ShowSummary(const std::vector<TurnFigures>& figures) {
    Summary->Show(figures);
    Arrange();
}

bool SideStrip::LooksBack() const {
    return !playing_ && Summary->HasGame() &&
           Start->ShortHeight(width()) + Gap + Summary->LeastHeight(width()) <= height();
}

void SideStrip::SetPanels(const std::vector<QuestionPanel*>& panels) {
    panels_ = panels;
    Arrange();
}

void SideStrip::resizeEvent(QResizeEvent*) {
    Arrange();
}

// A dialog wants another height: somebody was marked, a line came or went. Or all is read in other letters.
bool SideStrip::event(QEvent* event) {
    if (event->type() == QEvent::LayoutRequest || event->type() == QEvent::StyleChange) {
        Arrange();
    }
    return QWidget::event(event);
}

// Every arrangement decides it once: what is shown and hidden in turn asks for another arrangement.
void SideStrip::MakePlan() {
    if (playing_) {
        plan_ = panels_.empty() ? Plan{true, false, 0} : PlanAround(*panels_.back());
        return;
    }
    // After a game the final scores are worth more than the last light.
    const int scores =
        LooksBack() ? Start->ShortHeight(width()) + Gap + Summary->HeightFor(width(), height()) + Gap + Px(PleasantLog)
                    : Start->HeightFor(width(), height()) + Clans->ShortHeight() + Gap;
    const int environment = Environment->sizeHint().height() + Gap;
    plan_ = {state_->NumPlayers > 0 && height() >= environment + scores, false, 0};
}

// Levels and clans stay in sight around a dialog: the message goes into it, and it scrolls at most a quarter of itself
// away. In a low window the levels give way to the clans; where that is not enough, the dialog has what there is.
SideStrip::Plan SideStrip::PlanAround(const QuestionPanel& dialog) const {
    const int environment = Environment->sizeHint().height() + Gap;
    const int asked = Question->HeightFor(width(), true) + Gap + dialog.HeightWith(false, width());
    const int alone = std::max(dialog.HeightWith(true, width()) * 3 / 4, dialog.LeastHeight(width()));
    const int clans = Gap + Clans->ShortHeight();
    for (const int levels : {environment, 0}) {
        if (levels + asked + clans <= height()) {
            return {levels > 0, false, clans};
        }
        if (levels + alone + clans <= height()) {
            return {levels > 0, true, clans};
        }
    }
    if (environment + asked <= height()) {
        return {true, false, 0};
    }
    return {environment + dialog.LeastHeight(width()) <= height(), asked > height(), 0};
}

int SideStrip::ArrangeHead() {
    const int environment = Environment->sizeHint().height();
    const bool shown = plan_.ShowsEnvironment;
    Environment->setGeometry(0, 0, width(), environment);
    Environment->setVisible(shown);
    int top = shown ? environment + Gap : 0;
    if (playing_) {
        // The card gives way as long as the clans find room below it.
        const int left = height() - top - Gap - Clans->ShortHeight();
        const int least = std::min(std::max(Px(LeastQuestion), Question->LeastHeight(width())), Px(UsualQuestion));
        const int most = Px(UsualQuestion) + Question->AboutHeight(width());
        const int question = panels_.empty() ? std::clamp(left, least, most) : Question->HeightFor(width(), true);
        Question->setGeometry(0, top, width(), question);
        top += question + Gap;
    } else {
        const int start = LooksBack() ? std::min(Start->ShortHeight(width()), height() - top)
                                      : Start->HeightFor(width(), height() - top - Gap - Clans->ShortHeight());
        Start->setGeometry(0, top, width(), start);
        top += start + Gap;
    }
    return top;
}

// The topmost dialog comes first; those below it follow while there is room.
int SideStrip::ArrangePanels(int top) {
    bool first = true;
    // NOLINTNEXTLINE(modernize-loop-convert): clang++ 14 cannot compile the views of <ranges>
    for (auto panel = panels_.rbegin(); panel != panels_.rend(); ++panel) {
        const bool alone = first && plan_.Alone;
        if (alone) {
            top = plan_.ShowsEnvironment ? Environment->height() + Gap : 0;
        }
        const int wanted = (*panel)->HeightWith(alone, width());
        const bool fits = top + wanted <= height();
        if (first) {
            Question->setVisible(playing_ && !alone);
        }
        (*panel)->ShowMessage(alone);
        (*panel)->setVisible(first || fits);
        if (first || fits) {
            const int room = height() - top - (first ? plan_.Clans : 0);
            const int high = std::min(wanted, std::max(room, Px(60)));
            (*panel)->setGeometry(0, top, width(), high);
            top += high + Gap;
        }
        first = false;
    }
    if (panels_.empty()) {
        Question->setVisible(playing_);
    }
    return top;
}

int SideStrip::ArrangeSummary(int top) {
    Summary->setVisible(LooksBack());
    if (!LooksBack()) {
        return top;
    }
    const int high = Summary->HeightFor(width(), height() - top);
    Summary->setGeometry(0, top, width(), high);
    return top + high + Gap;
}

// The clans' figures stand in the summary of a game, too.
int SideStrip::ArrangeClans(int top) {
    const int room = height() - top;
    const int least = Clans->LeastHeight();
    const bool cards = room >= least + (LooksBack() ? Gap + Px(PleasantLog) : 0);
    const bool clans = least > 0 && (cards || (!LooksBack() && room >= Clans->ShortHeight()));
    Clans->setVisible(clans);
    if (clans) {
        const int wanted = cards ? std::clamp(room - Px(PleasantLog), least, std::max(Clans->FullHeight(), least))
                                 : Clans->ShortHeight();
        Clans->setGeometry(0, top, width(), wanted);
        top += wanted + Gap;
    }
    return top;
}

void SideStrip::Arrange() {
    MakePlan();
    const int top = ArrangeClans(ArrangeSummary(ArrangePanels(ArrangeHead())));
    const int log = height() - top;
    Log->setVisible(log >= Px(LeastLog));
    Log->setGeometry(0, top, width(), std::max(log, Px(LeastLog)));
}

}  // namespace plasmos
