// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>
#include <vector>

namespace plasmos {

class ClanPanel;
class EnvironmentView;
class LogView;
class QuestionCard;
class QuestionPanel;
class StartCard;
class SummaryPanel;
struct GameState;
struct TurnFigures;

/// The strip beside the board: environment, question or start, open dialogs, the game that is over, clans, log. What
/// does not fit below an open dialog makes room for it.
class SideStrip : public QWidget {
public:
    SideStrip(QWidget* parent, const GameState& state);

    EnvironmentView* Environment;
    StartCard* Start;
    QuestionCard* Question;
    ClanPanel* Clans;
    LogView* Log;
    SummaryPanel* Summary;

    /// Shows environment and clans of another state, which is to live as long as it is shown. What is asked and told
    /// stays.
    void ShowState(const GameState& state);
    /// A game is on: the question card takes the place of the start card.
    void SetPlaying(bool playing);
    /// The open dialogs, the topmost last.
    void SetPanels(const std::vector<QuestionPanel*>& panels);
    /// A game that came to its end is looked back at below the start card, until the next one begins. No figures: none
    /// is.
    void ShowSummary(const std::vector<TurnFigures>& figures);
    void Arrange();

protected:
    void resizeEvent(QResizeEvent* event) override;
    bool event(QEvent* event) override;

private:
    struct Plan {
        bool ShowsEnvironment = false;
        bool Alone = false;  ///< the dialog has taken in the message, and the question card is not shown
        int Clans = 0;       ///< height kept free below the dialog
    };

    void MakePlan();
    Plan PlanAround(const QuestionPanel& dialog) const;
    int ArrangeHead();
    int ArrangePanels(int top);
    int ArrangeSummary(int top);
    int ArrangeClans(int top);
    bool LooksBack() const;

    const GameState* state_;
    Plan plan_;
    bool playing_ = false;
    std::vector<QuestionPanel*> panels_;
};

}  // namespace plasmos
