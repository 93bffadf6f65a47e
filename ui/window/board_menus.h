// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QList>
#include <QObject>
#include <functional>

#include "model/switches.h"

class QAction;
class QMainWindow;
class QMenu;

namespace plasmos {

class PuddleView;

/// The menus of a window: what they mark reaches the state, the settings and the puddle.
class BoardMenus : public QObject {
public:
    /// What the window does itself.
    struct Deeds {
        std::function<void()> Watch;
        std::function<void()> Leave;
        std::function<void()> Wake;  ///< there is something for the rules to take over
        std::function<void()> Preferences;
        std::function<void()> ClearResults;
        std::function<void(const QString& text)> Tell;  ///< a box for the person
    };

    BoardMenus(QMainWindow& window, PuddleView& puddle, Deeds deeds);

    /// What can be chosen while a game is played or not, and while nothing else keeps a game from beginning.
    /// In a guided game the rules stay as they are.
    void Enable(bool playing, bool free, bool guided);
    /// An earlier board is shown: nothing that the rules take over can be turned until that is over.
    void Hold(bool on);
    /// The marks of what a person has made automatic; whether the tentacle can be.
    void ShowAutoFlags(bool eating, bool tentacle, bool hasTentacle);
    /// The marks of the setup: difficulty, victory, persons, fast mode.
    void ShowMarks();
    /// What can be made automatic can be switched on.
    void EnableAutoEating();
    /// Squares show their numbers, or not; what the menu said before.
    bool ShowNumbers(bool on);
    /// Nothing automatic can be switched on until the next game.
    void DisableAutoEating();

private:
    QAction* AddItem(QMenu* menu, const char* name, const QString& caption, bool checkable);
    void BuildFileMenu();
    void BuildOptionsMenu();
    void ConnectOptions();
    void BuildDifficultyMenu(QMenu* options);
    void lines_men_Click();
    void autoeat_men_Click();
    void autoten_men_Click();
    void fast_men_Click(bool on);
    /// The acting person's amoebas eat or carry by themselves, or no longer; without one the item's mark stays.
    void ToggleAutomatic(QAction& item, Switch::Kind what);
    /// While a game is played the rules take a switch over; otherwise it counts at once.
    void Turn(const Switch& turned);
    void ChooseDifficulty(bool normal);
    void MarkDifficulty(bool normal);

    QMainWindow* window_;
    PuddleView* puddle_;
    Deeds deeds_;
    bool playing_ = false;
    QList<QAction*> held_;
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
