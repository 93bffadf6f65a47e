// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/window/record_menus.h"

#include <QAction>
#include <QFileDialog>
#include <QFileInfo>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QStandardPaths>

#include "files/settings_store.h"
#include "model/dice.h"
#include "model/services.h"
#include "record/record_file.h"
#include "ui/look/dress.h"
#include "ui/look/palette.h"
#include "ui/window/kept_game_view.h"
#include "ui/window/look_desk.h"
#include "ui/window/record_desk.h"
#include "ui/window/why_window.h"

namespace plasmos {

namespace {

constexpr int MostFiles = 5;

QString Filter() {
    return QStringLiteral("Games (*.plasmos);;All files (*)");
}

std::string KeyOf(int file) {
    return Concat("file", file);
}

QStringList RecentFiles() {
    QStringList files;
    for (int file = 1; services.Settings != nullptr && file <= MostFiles; ++file) {
        const QString path = ToQt(services.Settings->Get("record", KeyOf(file), {}));
        if (QFileInfo::exists(path)) {
            files.append(path);
        }
    }
    return files;
}

QString FolderOfFiles() {
    const QStringList files = RecentFiles();
    return files.isEmpty() ? QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation)
                           : QFileInfo(files.first()).path();
}

}  // namespace

RecordMenus::RecordMenus(QMainWindow& window, RecordDesk& records, LookDesk& look)
    : window_(&window), records_(&records), look_(&look) {
    BuildFileMenu(window_->findChild<QMenu*>(QStringLiteral("fil_men")));
    auto* options = window_->findChild<QMenu*>(QStringLiteral("opt_men"));
    auto* menu = new QMenu(QStringLiteral("&Game"), window_);
    menu->setObjectName(QStringLiteral("game_men"));
    window_->menuBar()->insertMenu(options->menuAction(), menu);
    BuildGameMenu(menu);
}

QAction* RecordMenus::AddItem(QMenu* menu, const char* name, const QString& caption, const QString& keys) {
    QAction* item = menu->addAction(caption);
    item->setObjectName(QString::fromLatin1(name));
    item->setShortcut(QKeySequence(keys));
    return item;
}

void RecordMenus::BuildFileMenu(QMenu* file) {
    QAction* const first = file->actions().first();
    openmen_ = AddItem(file, "openmen", QStringLiteral("&Open a Game..."), QStringLiteral("Ctrl+O"));
    connect(openmen_, &QAction::triggered, this, [this] { AskForFile(); });
    savemen_ = AddItem(file, "savemen", QStringLiteral("&Save this Game..."), QStringLiteral("Ctrl+S"));
    connect(savemen_, &QAction::triggered, this, [this] { AskWhereToSave(); });
    recent_ = file->addMenu(QStringLiteral("&Recent Games"));
    recent_->setObjectName(QStringLiteral("recentmen"));
    recent_->menuAction()->setObjectName(QStringLiteral("recentmen_action"));
    connect(recent_, &QMenu::aboutToShow, this, [this] { FillRecent(); });
    QAction* separator = file->addSeparator();
    for (QAction* item : {openmen_, savemen_, recent_->menuAction(), separator}) {
        file->removeAction(item);
        file->insertAction(first, item);
    }
}

void RecordMenus::BuildGameMenu(QMenu* menu) {
    backmen_ = AddItem(menu, "backmen", QStringLiteral("&Take Back"), QStringLiteral("Ctrl+Z"));
    connect(backmen_, &QAction::triggered, this, [this] { records_->TakeBack(); });
    againmen_ = AddItem(menu, "againmen", QStringLiteral("&Again"), QStringLiteral("Ctrl+Shift+Z"));
    connect(againmen_, &QAction::triggered, this, [this] { records_->GoAgain(); });
    menu->addSeparator();
    AddLooks(menu);
}

void RecordMenus::AddLooks(QMenu* menu) {
    const auto add = [this, menu](const char* name, const char* caption, const char* keys, const auto& deed) {
        QAction* item = AddItem(menu, name, QString::fromLatin1(caption), QString::fromLatin1(keys));
        connect(item, &QAction::triggered, this, deed);
        looks_.append(item);
    };
    add("earliermen", "&Earlier", "PgUp", [this] { look_->Move(-1); });
    add("latermen", "&Later", "PgDown", [this] { look_->Move(1); });
    add("firstmen", "The &Beginning", "Home", [this] { look_->LookAtFirst(); });
    add("nowmen", "&Now", "End", [this] { look_->Return(); });
    menu->addSeparator();
    add("whymen", "&Why?", "F4", [this] { ShowReasons(*window_, *records_->Recorder()); });
}

void RecordMenus::ShowPossible() {
    savemen_->setEnabled(!guided_ && records_->HasGame());
    backmen_->setEnabled(!guided_ && records_->CanTakeBack());
    againmen_->setEnabled(!guided_ && records_->CanGoAgain());
    for (QAction* item : looks_) {
        item->setEnabled(!guided_ && records_->HasGame());
    }
}

void RecordMenus::Enable(bool guided) {
    guided_ = guided;
    openmen_->setEnabled(!guided);
    recent_->menuAction()->setEnabled(!guided);
    ShowPossible();
}

// ---- files ----

void RecordMenus::AskForFile() {
    auto* dialog = new QFileDialog(window_, QStringLiteral("Open a Game"), FolderOfFiles(), Filter());
    dialog->setObjectName(QStringLiteral("opendialog"));
    dialog->setFileMode(QFileDialog::ExistingFile);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    connect(
        dialog, &QFileDialog::fileSelected, this, [this](const QString& path) { Open(path); }, Qt::QueuedConnection);
    dialog->open();
}

/// Qt adds the ending to a name without a dot alone. A file that this name would replace is asked about once more.
void RecordMenus::SaveAs(const QString& chosen) {
    const QString ending = ToQt(RecordEnding);
    const QString path = chosen.endsWith(ending, Qt::CaseInsensitive) ? chosen : chosen + ending;
    if (path != chosen && QFileInfo::exists(path)) {
        AskWhereToSave(path);
    } else if (records_->Save(path.toStdString())) {
        NoteFile(path);
    }
}

void RecordMenus::AskWhereToSave(const QString& proposed) {
    auto* dialog = new QFileDialog(window_, QStringLiteral("Save this Game"), FolderOfFiles(), Filter());
    dialog->setObjectName(QStringLiteral("savedialog"));
    dialog->setAcceptMode(QFileDialog::AcceptSave);
    dialog->setDefaultSuffix(QStringLiteral("plasmos"));
    dialog->selectFile(
        proposed.isEmpty()
            ? ToQt(Concat("Game ", ReplayText(records_->Recorder()->Record().Head.ReplayNo), RecordEnding))
            : proposed);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    connect(
        dialog, &QFileDialog::fileSelected, this, [this](const QString& path) { SaveAs(path); }, Qt::QueuedConnection);
    dialog->open();
}

void RecordMenus::Open(const QString& path) {
    if (records_->Open(path.toStdString())) {
        NoteFile(path);
    }
}

/// The latest first; a setting that cannot be saved forgets it.
void RecordMenus::NoteFile(const QString& path) {
    const QString whole = QFileInfo(path).absoluteFilePath();
    if (services.Settings == nullptr || !records_->KeptPath(path.toStdString()).empty()) {
        return;
    }
    QStringList files = RecentFiles();
    files.removeAll(whole);
    files.prepend(whole);
    for (int file = 1; file <= MostFiles && file <= files.size(); ++file) {
        services.Settings->Save("record", KeyOf(file), files[file - 1].toStdString());
    }
}

void RecordMenus::FillRecent() {
    recent_->clear();
    for (const KeptGame& kept : KeptGames(records_->GamesFolder())) {
        AddRecent(ToQt(kept.Path), KeptGameLine(kept));
    }
    const QStringList files = RecentFiles();
    if (!recent_->isEmpty() && !files.isEmpty()) {
        recent_->addSeparator();
    }
    for (const QString& path : files) {
        AddRecent(path, QFileInfo(path).fileName());
    }
    if (recent_->isEmpty()) {
        recent_->addAction(QStringLiteral("No game is waiting"))->setEnabled(false);
    }
}

void RecordMenus::AddRecent(const QString& path, const QString& caption) {
    QAction* item = recent_->addAction(QString(caption).replace(QLatin1Char('&'), QLatin1String("&&")));
    item->setToolTip(path);
    connect(
        item, &QAction::triggered, this, [this, path] { Open(path); }, Qt::QueuedConnection);
}

}  // namespace plasmos
