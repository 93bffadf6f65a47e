// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QList>
#include <QObject>
#include <functional>

class QAction;
class QMainWindow;
class QMenu;

namespace plasmos {

class LookDesk;
class RecordDesk;

/// What of the menus concerns the record of a game: opening, saving and the recent games in the menu File, taking back
/// and looking back in the menu Game.
class RecordMenus : public QObject {
public:
    RecordMenus(QMainWindow& window, RecordDesk& records, LookDesk& look);

    /// What can be chosen now. A guided game is neither saved nor taken back.
    void Enable(bool guided);
    /// The same, as the game goes on.
    void ShowPossible();
    /// A file that was given to the program.
    void Open(const QString& path);
    /// Asks where the game is to be saved, and saves it.
    void AskWhereToSave(const QString& proposed = {});

private:
    QAction* AddItem(QMenu* menu, const char* name, const QString& caption, const QString& keys);
    void BuildFileMenu(QMenu* file);
    void BuildGameMenu(QMenu* menu);
    void FillRecent();
    void AddRecent(const QString& path, const QString& caption);
    void AddLooks(QMenu* menu);
    void AskForFile();
    void SaveAs(const QString& chosen);
    void NoteFile(const QString& path);

    QMainWindow* window_;
    RecordDesk* records_;
    LookDesk* look_;
    QList<QAction*> looks_;
    QMenu* recent_ = nullptr;
    QAction* openmen_ = nullptr;
    QAction* savemen_ = nullptr;
    QAction* backmen_ = nullptr;
    QAction* againmen_ = nullptr;
    bool guided_ = false;
};

}  // namespace plasmos
