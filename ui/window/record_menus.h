// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <functional>

class QAction;
class QMainWindow;
class QMenu;

namespace plasmos {

class RecordDesk;

/// What of the menus concerns the record of a game: opening, saving and the recent games in the menu File, taking back
/// in the menu Game.
class RecordMenus : public QObject {
public:
    RecordMenus(QMainWindow& window, RecordDesk& records);

    /// What can be chosen now. A guided game is neither saved nor taken back.
    void Enable(bool guided);
    /// The same, as the game goes on.
    void ShowPossible();
    /// A file that was given to the program.
    void Open(const QString& path);

private:
    QAction* AddItem(QMenu* menu, const char* name, const QString& caption, const QString& keys);
    void BuildFileMenu(QMenu* file);
    void BuildGameMenu(QMenu* menu);
    void FillRecent();
    void AddRecent(const QString& path, const QString& caption);
    void AskForFile();
    void AskWhereToSave();
    void NoteFile(const QString& path);

    QMainWindow* window_;
    RecordDesk* records_;
    QMenu* recent_ = nullptr;
    QAction* openmen_ = nullptr;
    QAction* savemen_ = nullptr;
    QAction* backmen_ = nullptr;
    QAction* againmen_ = nullptr;
    bool guided_ = false;
};

}  // namespace plasmos
