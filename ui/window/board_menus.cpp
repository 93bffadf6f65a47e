// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/window/board_menus.h"

#include <QAction>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <utility>

#include "files/platform.h"
#include "files/settings_store.h"
#include "model/game_state.h"
#include "model/presentation.h"
#include "model/services.h"
#include "ui/board/puddle_view.h"
#include "ui/look/palette.h"
#include "ui/strip/question_card.h"

namespace plasmos {

namespace {

bool PersonActs() {
    return game.CurPlayer >= 1 && game.CurPlayer <= game.NumPlayers && !game.Players[game.CurPlayer].IsComputer;
}

}  // namespace

BoardMenus::BoardMenus(QMainWindow& window, PuddleView& puddle, Deeds deeds)
    : window_(&window), puddle_(&puddle), deeds_(std::move(deeds)) {
    BuildFileMenu();
    BuildOptionsMenu();
}

QAction* BoardMenus::AddItem(QMenu* menu, const char* name, const QString& caption, bool checkable) {
    QAction* item = menu->addAction(caption);
    item->setObjectName(QString::fromLatin1(name));
    item->setCheckable(checkable);
    return item;
}

void BoardMenus::BuildFileMenu() {
    QMenu* file = window_->menuBar()->addMenu(QStringLiteral("&File"));
    file->setObjectName(QStringLiteral("fil_men"));
    watchmen_ = AddItem(file, "watchmen", QStringLiteral("&Watch a Game"), false);
    connect(watchmen_, &QAction::triggered, this, [this] { deeds_.Watch(); });
    leavemen_ = AddItem(file, "leavemen", QStringLiteral("&Leave this Game"), false);
    connect(leavemen_, &QAction::triggered, this, [this] { deeds_.Leave(); });
    QAction* clear = AddItem(file, "clearmen", QStringLiteral("&Clear my Results"), false);
    connect(clear, &QAction::triggered, this, [this] { deeds_.ClearResults(); });
    file->addSeparator();
    QAction* quit = AddItem(file, "men_quit", QStringLiteral("&Quit"), false);
    quit->setShortcut(QKeySequence(QStringLiteral("Ctrl+Q")));
    quit->setMenuRole(QAction::QuitRole);
    connect(quit, &QAction::triggered, window_, &QWidget::close);
}

void BoardMenus::BuildOptionsMenu() {
    QMenu* options = window_->menuBar()->addMenu(QStringLiteral("&Options"));
    options->setObjectName(QStringLiteral("opt_men"));
    options->setToolTipsVisible(true);
    autoeat_men_ = AddItem(options, "autoeat_men", QStringLiteral("Automatic &Eating"), true);
    autoeat_men_->setToolTip(QString::fromLatin1(AutoEatingTip));
    autoten_men_ = AddItem(options, "autoten_men", QStringLiteral("Automatic &Tentacle"), true);
    options->addSeparator();
    sqno_men_ = AddItem(options, "sqno_men", QStringLiteral("&Square-Numbers"), true);
    lines_men_ = AddItem(options, "lines_men", QStringLiteral("Remove &Gridlines"), false);
    fast_men_ = AddItem(options, "fast_men", QStringLiteral("&Fast Mode"), true);
    options->addSeparator();
    BuildDifficultyMenu(options);
    victorymen_ = AddItem(options, "victorymen", QStringLiteral("&Victory (42 points)"), true);
    twoplayermen_ = AddItem(options, "twoplayermen", QStringLiteral("T&wo Players"), true);
    options->addSeparator();
    pref_men_ = AddItem(options, "pref_men", QStringLiteral("&Preferences"), false);
    game.FastMode = services.Settings != nullptr && services.Settings->Get("play", "fastmode", "0") == "1";
    fast_men_->setChecked(game.FastMode);
    victorymen_->setChecked(game.Menu.victorymen);
    twoplayermen_->setChecked(game.Menu.twoplayermen);
    autoten_men_->setEnabled(false);
    ConnectOptions();
}

void BoardMenus::ConnectOptions() {
    connect(autoeat_men_, &QAction::triggered, this, [this] { autoeat_men_Click(); });
    connect(autoten_men_, &QAction::triggered, this, [this] { autoten_men_Click(); });
    connect(sqno_men_, &QAction::triggered, this, [this](bool on) { puddle_->ShowNumbers(on); });
    connect(lines_men_, &QAction::triggered, this, [this] { lines_men_Click(); });
    connect(victorymen_, &QAction::triggered, this, [this](bool on) { Turn({Switch::Kind::Victory, 0, on}); });
    connect(twoplayermen_, &QAction::triggered, this, [](bool on) { game.Menu.twoplayermen = on; });
    connect(pref_men_, &QAction::triggered, this, [this] { deeds_.Preferences(); });
    connect(fast_men_, &QAction::triggered, this, [this](bool on) { fast_men_Click(on); });
}

// Two exclusive marks: either item turns the other over.
void BoardMenus::BuildDifficultyMenu(QMenu* options) {
    QMenu* difficulty = options->addMenu(QStringLiteral("&Difficulty"));
    difficulty->setObjectName(QStringLiteral("diffmen"));
    difficulty->menuAction()->setObjectName(QStringLiteral("diffmen_action"));
    easymen_ = AddItem(difficulty, "easymen", QStringLiteral("Easy"), true);
    normmen_ = AddItem(difficulty, "normmen", QStringLiteral("Normal"), true);
    MarkDifficulty(game.Menu.normmen);
    connect(easymen_, &QAction::triggered, this, [this](bool on) { ChooseDifficulty(!on); });
    connect(normmen_, &QAction::triggered, this, [this](bool on) { ChooseDifficulty(on); });
}

void BoardMenus::MarkDifficulty(bool normal) {
    normmen_->setChecked(normal);
    easymen_->setChecked(!normal);
}

void BoardMenus::ChooseDifficulty(bool normal) {
    MarkDifficulty(normal);
    Turn({Switch::Kind::Normal, 0, normal});
}

void BoardMenus::Turn(const Switch& turned) {
    services.Switches.Add(turned);
    if (playing_) {
        deeds_.Wake();
    } else {
        SettleSwitches();
    }
}

void BoardMenus::Enable(bool playing, bool free, bool guided) {
    playing_ = playing;
    if (!playing) {
        ShowMarks();
    }
    watchmen_->setEnabled(free);
    leavemen_->setEnabled(playing);
    for (QAction* item : {easymen_, normmen_, victorymen_}) {
        item->setEnabled(!guided);
    }
    twoplayermen_->setEnabled(!playing);
    pref_men_->setEnabled(free && HasUpDownControls());
}

void BoardMenus::Hold(bool on) {
    for (QAction* item : {autoeat_men_, autoten_men_, fast_men_, easymen_, normmen_, victorymen_}) {
        if (on && playing_ && item->isEnabled()) {
            item->setEnabled(false);
            held_.append(item);
        }
    }
    for (QAction* item : on ? QList<QAction*>() : std::exchange(held_, {})) {
        item->setEnabled(true);
    }
}

void BoardMenus::ShowAutoFlags(bool eating, bool tentacle, bool hasTentacle) {
    if (game.Turn == 0) {
        autoeat_men_->setEnabled(true);
    }
    autoeat_men_->setChecked(eating);
    autoten_men_->setChecked(tentacle);
    autoten_men_->setEnabled(hasTentacle);
}

void BoardMenus::ShowMarks() {
    MarkDifficulty(game.Menu.normmen);
    victorymen_->setChecked(game.Menu.victorymen);
    twoplayermen_->setChecked(game.Menu.twoplayermen);
    fast_men_->setChecked(game.FastMode);
}

bool BoardMenus::ShowNumbers(bool on) {
    const bool before = sqno_men_->isChecked();
    sqno_men_->setChecked(on);
    puddle_->ShowNumbers(on);
    return before;
}

void BoardMenus::EnableAutoEating() {
    autoeat_men_->setEnabled(true);
}

void BoardMenus::DisableAutoEating() {
    autoeat_men_->setEnabled(false);
    autoten_men_->setEnabled(false);
}

void BoardMenus::fast_men_Click(bool on) {
    Turn({Switch::Kind::FastMode, 0, on});
    if (services.Settings != nullptr && !services.Settings->Save("play", "fastmode", on ? "1" : "0")) {
        deeds_.Tell(QStringLiteral("The setting could not be saved in\n%1").arg(ToQt(services.Settings->Where())));
    }
}

void BoardMenus::lines_men_Click() {
    const bool remove = lines_men_->text().contains(QStringLiteral("emove"));
    puddle_->ShowGridlines(!remove);
    lines_men_->setText(remove ? QStringLiteral("Replace &Gridlines") : QStringLiteral("Remove &Gridlines"));
}

void BoardMenus::autoeat_men_Click() {
    ToggleAutomatic(*autoeat_men_, Switch::Kind::Eating);
}

void BoardMenus::autoten_men_Click() {
    ToggleAutomatic(*autoten_men_, Switch::Kind::Tentacle);
}

void BoardMenus::ToggleAutomatic(QAction& item, Switch::Kind what) {
    if (PersonActs()) {
        Turn({what, game.CurPlayer, item.isChecked()});
    } else {
        item.setChecked(!item.isChecked());
    }
}

}  // namespace plasmos
