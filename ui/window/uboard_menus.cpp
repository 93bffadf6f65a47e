// SPDX-License-Identifier: GPL-3.0-or-later
#include <QAction>
#include <QActionGroup>
#include <QApplication>
#include <QMenu>
#include <QMenuBar>
#include <QMouseEvent>

#include "files/game_files.h"
#include "files/platform.h"
#include "files/settings_store.h"
#include "flow/start.h"
#include "model/dice.h"
#include "model/game_state.h"
#include "model/services.h"
#include "ui/board/puddle_view.h"
#include "ui/board/score_track.h"
#include "ui/look/palette.h"
#include "ui/options/options_dialog.h"
#include "ui/strip/environment_view.h"
#include "ui/strip/question_card.h"
#include "ui/strip/side_strip.h"
#include "ui/strip/start_card.h"
#include "ui/window/uboard.h"

namespace plasmos {

namespace {

constexpr int BorrowedMilliseconds = 3000;
const QString DriftBorrowed = QStringLiteral("DRIFTLAB");
const QString UVBorrowed = QStringLiteral("UVLAB");

/// Mean UV level of the cards still to come; without any the current one.
double MeanUV() {
    int sum = 0;
    int cards = 0;
    for (int card = game.TurnedCard + 1; game.NumPlayers > 0 && card <= LastCard; ++card) {
        sum += game.EnvDeck[card].UV;
        ++cards;
    }
    return cards > 0 ? static_cast<double>(sum) / cards : game.UVLevel;
}

bool PersonActs() {
    return game.CurPlayer >= 1 && game.CurPlayer <= game.NumPlayers && !game.Players[game.CurPlayer].IsComputer;
}

}  // namespace

QAction* UBoard::AddItem(QMenu* menu, const char* name, const QString& caption, bool checkable) {
    QAction* item = menu->addAction(caption);
    item->setObjectName(QString::fromLatin1(name));
    item->setCheckable(checkable);
    return item;
}

void UBoard::BuildMenus() {
    QMenu* file = menuBar()->addMenu(QStringLiteral("&File"));
    file->setObjectName(QStringLiteral("fil_men"));
    watchmen_ = AddItem(file, "watchmen", QStringLiteral("&Watch a Game"), false);
    connect(watchmen_, &QAction::triggered, this, [this] { watch_Click(); });
    leavemen_ = AddItem(file, "leavemen", QStringLiteral("&Leave this Game"), false);
    connect(leavemen_, &QAction::triggered, this, [this] { LeaveGame(); });
    file->addSeparator();
    QAction* quit = AddItem(file, "men_quit", QStringLiteral("&Quit"), false);
    quit->setShortcut(QKeySequence(QStringLiteral("Ctrl+Q")));
    quit->setMenuRole(QAction::QuitRole);
    connect(quit, &QAction::triggered, this, &QWidget::close);
    BuildOptionsMenu();
}

void UBoard::BuildOptionsMenu() {
    QMenu* options = menuBar()->addMenu(QStringLiteral("&Options"));
    options->setObjectName(QStringLiteral("opt_men"));
    autoeat_men_ = AddItem(options, "autoeat_men", QStringLiteral("Automatic &Eating"), true);
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
    connect(autoeat_men_, &QAction::triggered, this, [this] { autoeat_men_Click(); });
    connect(autoten_men_, &QAction::triggered, this, [this] { autoten_men_Click(); });
    connect(sqno_men_, &QAction::triggered, this, [this](bool on) { track_->Puddle()->ShowNumbers(on); });
    connect(lines_men_, &QAction::triggered, this, [this] { lines_men_Click(); });
    connect(victorymen_, &QAction::triggered, this, [](bool on) { game.Menu.victorymen = on; });
    connect(twoplayermen_, &QAction::triggered, this, [](bool on) { game.Menu.twoplayermen = on; });
    connect(pref_men_, &QAction::triggered, this, [this] { pref_men_Click(); });
    connect(fast_men_, &QAction::triggered, this, [this](bool on) {
        game.FastMode = on;
        if (services.Settings != nullptr && !services.Settings->Save("play", "fastmode", on ? "1" : "0")) {
            Tell(QStringLiteral("The setting could not be saved in\n%1").arg(ToQt(services.Settings->Where())));
        }
    });
}

// Two exclusive marks: either item turns the other over.
void UBoard::BuildDifficultyMenu(QMenu* options) {
    QMenu* difficulty = options->addMenu(QStringLiteral("&Difficulty"));
    difficulty->setObjectName(QStringLiteral("diffmen"));
    difficulty->menuAction()->setObjectName(QStringLiteral("diffmen_action"));
    easymen_ = AddItem(difficulty, "easymen", QStringLiteral("Easy"), true);
    normmen_ = AddItem(difficulty, "normmen", QStringLiteral("Normal"), true);
    const auto show = [this](bool normal) {
        game.Menu.normmen = normal;
        normmen_->setChecked(normal);
        easymen_->setChecked(!normal);
    };
    show(game.Menu.normmen);
    connect(easymen_, &QAction::triggered, this, [show](bool on) { show(!on); });
    connect(normmen_, &QAction::triggered, this, [show](bool on) { show(on); });
}

void UBoard::EnableStart() {
    const bool free = !playing_ && options_ == nullptr;
    strip_->Start->gob->setVisible(!playing_);
    strip_->Start->gob->setEnabled(free);
    strip_->Start->watchb->setEnabled(free);
    strip_->Start->txtReplay->setEnabled(free);
    watchmen_->setEnabled(free);
    leavemen_->setEnabled(playing_);
    twoplayermen_->setEnabled(!playing_);
    pref_men_->setEnabled(free && HasUpDownControls());
}

void UBoard::lines_men_Click() {
    const bool remove = lines_men_->text().contains(QStringLiteral("emove"));
    track_->Puddle()->ShowGridlines(!remove);
    lines_men_->setText(remove ? QStringLiteral("Replace &Gridlines") : QStringLiteral("Remove &Gridlines"));
}

void UBoard::autoeat_men_Click() {
    ToggleAutomatic(*autoeat_men_, 1);
}

void UBoard::autoten_men_Click() {
    ToggleAutomatic(*autoten_men_, 2);
}

void UBoard::ToggleAutomatic(QAction& item, int column) {
    if (!PersonActs()) {
        item.setChecked(!item.isChecked());
        return;
    }
    bool& automatic = game.AutoFlags[game.CurPlayer][column];
    automatic = !automatic;
    ShowAutoFlags(game.CurPlayer);
}

void UBoard::pref_men_Click() {
    if (playing_ || options_ != nullptr || services.Settings == nullptr || services.Files == nullptr) {
        return;
    }
    options_ = new OptionsDialog(this, *services.Settings, *services.Files);
    options_->setAttribute(Qt::WA_DeleteOnClose);
    connect(options_, &QDialog::finished, this, [this, dialog = options_.data()] { OptionsClosed(dialog->SaveTried); });
    EnableStart();
    options_->open();
}

void UBoard::OptionsClosed(bool saveTried) {
    options_ = nullptr;
    EnableStart();
    if (saveTried || (services.Files != nullptr && services.Files->Exists(OptionsFile))) {
        const GameSetup before = game;
        LoadBoard();
        if (before.NumRows != game.NumRows || before.NumCols != game.NumCols || before.Blocked != game.Blocked) {
            ClearBoard();
        }
    }
}

void UBoard::driftlab_MouseDown() {
    bool number = false;
    strip_->Environment->driftlab->text().toDouble(&number);
    if (number) {
        GiveBack();
        return;
    }
    Borrow(DriftBorrowed);
    strip_->Environment->driftlab->SetText(ToQt(ReplayText(game.ReplayNo)));
}

void UBoard::UVlab_MouseUp() {
    Borrow(UVBorrowed);
    strip_->Environment->UVlab->SetText(QStringLiteral("%1").arg(MeanUV(), 4, 'f', 1, QLatin1Char('0')));
}

void UBoard::Borrow(const QString& label) {
    GiveBack();
    borrowed_ = label;
    zyTimer_.start(BorrowedMilliseconds);
}

void UBoard::GiveBack() {
    zyTimer_.stop();
    if (borrowed_ == DriftBorrowed) {
        strip_->Environment->ShowDrift();
    } else if (borrowed_ == UVBorrowed) {
        strip_->Environment->ShowUV();
    }
    borrowed_.clear();
}

bool UBoard::eventFilter(QObject* watched, QEvent* event) {
    const bool press = event->type() == QEvent::MouseButtonPress || event->type() == QEvent::MouseButtonDblClick;
    const bool drift = watched == strip_->Environment->driftlab && press;
    const bool uv = watched == strip_->Environment->UVlab && event->type() == QEvent::MouseButtonRelease;
    if ((drift || uv) && static_cast<QMouseEvent*>(event)->button() == Qt::RightButton) {
        drift ? driftlab_MouseDown() : UVlab_MouseUp();
        return true;
    }
    return QMainWindow::eventFilter(watched, event);
}

}  // namespace plasmos
