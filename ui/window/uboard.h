// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QMainWindow>
#include <QPointer>
#include <QTimer>
#include <exception>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "model/presentation.h"
#include "ui/window/event_wait.h"

class QAction;
class QMenu;

namespace plasmos {

class OptionsDialog;
class QuestionPanel;
class ScoreTrack;
class SideStrip;
class ToolTips;

/// The board window. The rules run inside its start buttons and talk to it as their Presentation; the
/// window lives on inside Wait and Pause, nowhere else.
///
/// It is the current game's window from its making to its end. Files and settings of the game are those
/// that stand in `services` when the window is made.
class UBoard : public QMainWindow, public Presentation {
    Q_OBJECT

public:
    UBoard();
    ~UBoard() override;

    /// Plays one game; returns when it is over. A second start while a game runs does nothing.
    void gob_Click();
    /// Plays one game of computer clans only.
    void watch_Click();
    bool Playing() const { return playing_; }
    /// Runs a game, or a part of one, the way the start buttons do.
    void Play(const std::function<void()>& play);

    /// Shows board, clans and environment of a state, which is to live as long as it is shown; of the current game
    /// with ShowState(game). What is asked, told and marked stays.
    void ShowState(const GameState& state);

    /// Pauses and animations: 1 as they are meant, 0 none.
    void SetSpeed(double factor) { speed_ = factor; }

    /// Called, from the event loop, when a question has opened or is the topmost again and may be
    /// answered. Tests answer from here.
    std::function<void(Question&)> OnQuestion;
    /// The question that may be answered now; none: nullptr.
    Question* TopQuestion() const;
    /// The game and its program are to end: every wait of the rules ends with ProgramEnd.
    void EndProgram();

    // ---- what the rules need ----
    void ShowHappening(const Happening& happening) override;
    void ShowMessage(std::string_view text, int clan) override;
    void StartLog(std::string_view header) override;
    void Log(std::string_view line, int clan) override;
    void ShowPhase(std::string_view phase) override;
    void ShowCaption(std::string_view caption) override;
    void ShowTurn() override;
    void ShowClan(int clan) override;
    void ShowCurrentClan(int clan) override;
    void ShowAutoFlags(int clan) override;
    void DisableAutoEating() override;
    std::string TakeReplayText() override;
    void DrawBoard() override;
    void OutlinePiece(int clan, int amoeba, bool on) override;
    void Pause(int units) override;
    void Open(Question& question) override;
    void Refresh(Question& question) override;
    void Close(Question& question) override;
    void Wait() override;

protected:
    void closeEvent(QCloseEvent* event) override;
    void showEvent(QShowEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    struct Asked {
        Question* What;
        std::unique_ptr<QuestionPanel> Panel;  ///< none for what the message line asks
    };

    // uboard.cpp: the window and its games
    void BuildStrip();
    void SetPlaying(bool playing);
    void LoadWindow();
    void SaveWindow();
    /// The window, its frame included, is never larger than the free area of its screen.
    void KeepOnScreen();
    void ClearBoard();
    void LeaveGame();
    void Tell(const QString& text);

    // uboard_menus.cpp: the menus and the labels that lend themselves
    void BuildMenus();
    QAction* AddItem(QMenu* menu, const char* name, const QString& caption, bool checkable);
    void BuildOptionsMenu();
    void BuildDifficultyMenu(QMenu* options);
    void EnableStart();
    void lines_men_Click();
    void autoeat_men_Click();
    void autoten_men_Click();
    /// Turns a flag of the acting person over (column 1 eating, 2 tentacle); otherwise the item's mark stays.
    void ToggleAutomatic(QAction& item, int column);
    void pref_men_Click();
    /// Takes the saved board; a save that was tried may have reached the settings and not the file.
    void OptionsClosed(bool saveTried);
    void driftlab_MouseDown();
    void UVlab_MouseUp();
    void Borrow(const QString& label);
    void GiveBack();

    // uboard_presentation.cpp: what happens
    void Glide(const Happening& move);
    void FadeAway(const Happening& death);
    void DrawPuddle();
    void ShowBP(int clan);
    void ShowGenes(int clan);
    void ShowOrder();
    void ShowCard();

    // uboard_questions.cpp: what is asked
    /// The topmost question takes the keyboard; one that has just opened brings its first control into sight.
    void ActivateTop(Qt::FocusReason reason);
    void AnnounceTop();
    void Answer(void (*handler)());
    void AnswerSquare(int x, int y);
    void ThrowIfOver();
    int Milliseconds(int full) const;

    ScoreTrack* track_ = nullptr;
    SideStrip* strip_ = nullptr;
    ToolTips* tips_ = nullptr;
    QTimer zyTimer_;
    QString borrowed_;
    QPointer<OptionsDialog> options_;
    EventWait wait_;
    std::exception_ptr fault_;  ///< thrown by a question's handler; the rules get it
    std::vector<Asked> asked_;
    unsigned announced_ = 0;
    double speed_ = 1;
    bool playing_ = false;
    bool leaving_ = false;
    bool screenWatched_ = false;

    QAction* watchmen_ = nullptr;
    QAction* leavemen_ = nullptr;
    QAction* autoeat_men_ = nullptr;
    QAction* autoten_men_ = nullptr;
    QAction* sqno_men_ = nullptr;
    QAction* lines_men_ = nullptr;
    QAction* easymen_ = nullptr;
    QAction* normmen_ = nullptr;
    QAction* victorymen_ = nullptr;
    QAction* twoplayermen_ = nullptr;
    QAction* pref_men_ = nullptr;
    QAction* fast_men_ = nullptr;
};

}  // namespace plasmos
