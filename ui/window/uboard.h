// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QMainWindow>
#include <functional>
#include <memory>

#include "record/turn_figures.h"
#include "ui/window/board_presentation.h"

namespace plasmos {

class GuideDesk;
class HistoryDesk;
class LeaveGuard;
class LentLabels;
class PreferencesDesk;
class ResultDesk;
class ToolTips;
class TableTop;
class ViewMenus;
class WindowPlace;

/// The board window. The rules run inside its start buttons and talk to its presentation; the window lives on
/// inside the waits and pauses of its desk, nowhere else.
///
/// It is the current game's window from its making to its end. Files and settings of the game are those
/// that stand in `services` when the window is made.
class UBoard : public QMainWindow {
    Q_OBJECT

public:
    UBoard();
    /// A window whose game is shown by a presentation of another making.
    explicit UBoard(const PresentationMaker& make);
    ~UBoard() override;

    /// Plays one game; returns when it is over. A second start while a game runs does nothing.
    void gob_Click();
    /// Plays one game of computer clans only.
    void watch_Click();
    /// Plays the guided game.
    void guide_Click();
    bool Playing() const { return playing_; }
    /// Runs a game, or a part of one, the way the start buttons do.
    void Play(const std::function<void()>& play);

    /// Opens the record of a game, which is gone on with once the window lives.
    void OpenGame(const QString& path);
    /// The record of the game that is played, or was played last.
    HistoryDesk& History() { return *history_; }

    /// Shows board, clans and environment of a state, which is to live as long as it is shown; of the current game
    /// with ShowState(game). What is asked, told and marked stays.
    void ShowState(const GameState& state);

    /// Pauses and animations: 1 as they are meant, 0 none.
    void SetSpeed(double factor);

    /// Called, from the event loop, when a question has opened or is the topmost again and may be
    /// answered. Tests answer from here.
    std::function<void(Question&)> OnQuestion;
    /// The question that may be answered now; none: nullptr.
    Question* TopQuestion() const;
    /// Closes the window without asking, as when the desktop's session ends.
    void CloseAtOnce();
    /// The game and its program are to end: every wait of the rules ends with ProgramEnd.
    void EndProgram();

protected:
    void closeEvent(QCloseEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void BuildDesks(TableTop& table);
    void BuildStart();
    void SetPlaying(bool playing);
    void EnableStart();
    void ClearBoard();
    void NoteBegun();
    bool AsksBeforeLeaving() const;
    void BuildView();
    void BuildHistory(TableTop& table);
    void ClearTable();
    void LeaveGame();
    void ClearResults();
    bool IsWaiting() const;

    ScoreTrack* track_ = nullptr;
    SideStrip* strip_ = nullptr;
    LentLabels* lent_ = nullptr;
    ToolTips* tips_ = nullptr;
    std::unique_ptr<WindowPlace> place_;
    std::unique_ptr<BoardMenus> menus_;
    std::unique_ptr<QuestionDesk> desk_;
    std::unique_ptr<PreferencesDesk> preferences_;
    std::unique_ptr<ResultDesk> results_;
    std::unique_ptr<ViewMenus> view_;
    std::unique_ptr<LeaveGuard> guard_;
    std::unique_ptr<GuideDesk> guide_;
    std::unique_ptr<HistoryDesk> history_;
    std::unique_ptr<BoardPresentation> presentation_;
    bool playing_ = false;
    bool guided_ = false;  ///< the game that is played is the guided one
    bool sure_ = false;    ///< the window closes without asking
};

}  // namespace plasmos
