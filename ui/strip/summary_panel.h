// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPushButton>
#include <QStringList>
#include <array>
#include <functional>
#include <vector>

#include "ui/look/card.h"
#include "ui/look/heard.h"
#include "ui/strip/chart_words.h"

namespace plasmos {

class ScrollBody;
class SummaryTable;
class TurnChart;
struct GameState;

/// How a game went, for who looks back at it: everybody's place, and one chart at a time over its turns. A turn of the
/// chart can be chosen. Where room is short, table and chart scroll, and what can be done stays below them.
class SummaryPanel : public Card, public HeardPlace {
public:
    SummaryPanel(QWidget* parent, const GameState& state);

    QPushButton* savegameb;
    QPushButton* playagainb;
    QPushButton* newgameb;

    // What the person wants. A button that has nothing behind it is hidden; set them before Show().
    std::function<void(int turn)> OnTurn;  ///< a turn, from 0, is to be looked back at
    std::function<void()> OnSave;
    std::function<void(int turn)> OnPlayAgain;  ///< from the beginning of that turn; 0: from the start
    std::function<void()> OnNewGame;

    /// Shows the game that the state has as it came to its end, whatever becomes of the state then. No figures: there
    /// is nothing to be shown.
    void Show(const std::vector<TurnFigures>& figures);
    bool HasGame() const { return !figures_.empty(); }

    /// The height it wants where so much is there.
    int HeightFor(int width, int room) const;
    /// Less than that is of no use.
    int LeastHeight(int width) const;

    bool eventFilter(QObject* watched, QEvent* event) override;

protected:
    void resizeEvent(QResizeEvent*) override { Redress(); }
    void Redress() override;

private:
    void MakeBody();
    void MakeKinds();
    void OrderControls();
    void Connect();
    void ShowChart(ChartKind kind);
    void ShowWords();
    void Choose(int turn);
    void ShowPlayAgain();
    int WordsHeight(int width) const;
    int LeastBody(int width) const;
    int ArrangeFoot(int width, int top, bool move) const;
    int WidthOf(const QPushButton* button) const;
    QWidget* NextTo(const QWidget* control, int key) const;

    const GameState& state_;
    std::vector<TurnFigures> figures_;
    QStringList names_;
    ScrollBody* scroll_;
    SummaryTable* table_;
    std::array<QPushButton*, ChartCount> kinds_{};
    TurnChart* chart_;
    FitLabel* words_;
    QStringList longest_;  ///< words of every turn of every chart
    int turn_ = -1;        ///< the chosen one; -1: none
};

}  // namespace plasmos
