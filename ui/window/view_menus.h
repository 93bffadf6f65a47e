// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <functional>

class QAction;
class QActionGroup;
class QMainWindow;
class QMenu;

namespace plasmos {

/// How fast what the computer clans do goes by: pauses and animations take so many hundredths of their usual time.
enum class Pace { Slow = 200, Normal = 100, Fast = 40, Instant = 0 };

/// The menus View and Help: colours, pace and motion, which the settings keep in "look", and what explains the window.
class ViewMenus : public QObject {
public:
    /// What the window does itself.
    struct Deeds {
        std::function<void(Pace)> SetPace;
        std::function<void(bool on)> Hold;  ///< nothing goes on until it is let go
        std::function<void()> Step;         ///< what is held goes on to the next pause
        std::function<void(bool on)> SetMotion;
        std::function<void()> Guide;  ///< plays the guided game
        std::function<void()> ShowHandbook;
        std::function<void()> ShowSigns;
        std::function<void()> ShowKeys;
        std::function<void(const QString& text)> Tell;  ///< a box for the person
    };

    ViewMenus(QMainWindow& window, Deeds deeds);

    /// Takes pace, motion and colours from the settings; motion from the desktop until the person has chosen.
    void Load();
    /// A game begins or is over: nothing is held any more.
    void SetPlaying(bool playing);
    /// Whether a game can begin.
    void SetFree(bool free);

private:
    QAction* AddItem(QMenu* menu, const char* name, const QString& caption, const QString& keys);
    void BuildColours(QMenu* view);
    void BuildPace(QMenu* view);
    void BuildHelp();
    void LoadMotion();
    void SetMotion(bool on);
    void Save(const char* key, const QString& value);

    QMainWindow* window_;
    Deeds deeds_;
    QActionGroup* colours_;
    QActionGroup* pace_;
    QAction* guidemen_ = nullptr;
    QAction* pausemen_ = nullptr;
    QAction* stepmen_ = nullptr;
    QAction* motionmen_ = nullptr;
    bool motionIsChosen_ = false;  ///< by the person, not by the desktop
};

}  // namespace plasmos
