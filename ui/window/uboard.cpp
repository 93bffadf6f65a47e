// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/window/uboard.h"

#include <QApplication>
#include <QCloseEvent>
#include <QMessageBox>
#include <QScreen>
#include <QShortcut>
#include <QThread>
#include <QWindow>
#include <algorithm>

#include "files/runtime_error.h"
#include "files/settings_store.h"
#include "files/text.h"
#include "flow/play_game.h"
#include "flow/start.h"
#include "model/game_state.h"
#include "model/message_line.h"
#include "model/services.h"
#include "questions/ask.h"
#include "ui/board/puddle_view.h"
#include "ui/board/score_track.h"
#include "ui/board/ttip.h"
#include "ui/dialogs/question_panel.h"
#include "ui/look/palette.h"
#include "ui/options/options_dialog.h"
#include "ui/strip/clan_panel.h"
#include "ui/strip/environment_view.h"
#include "ui/strip/log_view.h"
#include "ui/strip/question_card.h"
#include "ui/strip/side_strip.h"
#include "ui/strip/start_card.h"

namespace plasmos {

namespace {

constexpr QSize UsualSize(1320, 860);
constexpr QSize LeastSize(720, 400);
constexpr int FrameKnown = 300;
constexpr int Margin = 10;
constexpr int FarthestPixel = 100000;

/// Board and strip side by side; the strip takes what is left of a comfortable share.
class TableTop : public QWidget {
public:
    TableTop(QWidget* parent, ScoreTrack*& track, SideStrip*& strip) : QWidget(parent) {
        track_ = track = new ScoreTrack(this, game);
        strip_ = strip = new SideStrip(this, game);
    }

protected:
    void resizeEvent(QResizeEvent*) override {
        const int side = std::clamp(width() * 36 / 100, 380, 490);
        const QRect inner = rect().adjusted(Margin, Margin, -Margin, -Margin);
        strip_->setGeometry(inner.right() - side + 1, inner.top(), side, inner.height());
        track_->setGeometry(inner.left(), inner.top(), inner.width() - side - Margin, inner.height());
    }

private:
    ScoreTrack* track_;
    SideStrip* strip_;
};

}  // namespace

UBoard::UBoard() {
    setObjectName(QStringLiteral("UBoard"));
    setWindowTitle(QStringLiteral("The Puddle"));
    setPalette(LookPalette());
    setStyleSheet(LookSheet());
    setFont(LookFont(13));
    services.Window = this;
    LoadBoard();
    setCentralWidget(new TableTop(this, track_, strip_));
    BuildMenus();
    BuildStrip();
    tips_ = new ToolTips(track_->Puddle());
    LoadWindow();
    SetPlaying(false);
    connect(qApp, &QCoreApplication::aboutToQuit, this, [this] { EndProgram(); });
}

UBoard::~UBoard() {
    if (services.Window == this) {
        services.Window = nullptr;
    }
}

void UBoard::BuildStrip() {
    connect(strip_->Start->gob, &QPushButton::clicked, this, [this] { gob_Click(); });
    connect(strip_->Start->watchb, &QPushButton::clicked, this, [this] { watch_Click(); });
    connect(strip_->Start->txtReplay, &QLineEdit::returnPressed, this, [this] { gob_Click(); });
    for (QPushButton* button :
         {strip_->Start->gob, strip_->Start->watchb, strip_->Question->yesb, strip_->Question->nob}) {
        RefuseRepeats(button);
        button->setAutoDefault(true);
    }
    connect(strip_->Question->yesb, &QPushButton::clicked, this, [this] { Answer(yesb_Click); });
    connect(strip_->Question->nob, &QPushButton::clicked, this, [this] { Answer(nob_Click); });
    for (const auto& [key, button] :
         {std::pair{Qt::Key_Y, strip_->Question->yesb}, std::pair{Qt::Key_N, strip_->Question->nob}}) {
        auto* shortcut = new QShortcut(QKeySequence(key), this);
        shortcut->setAutoRepeat(false);
        connect(shortcut, &QShortcut::activated, button, &QPushButton::click);
    }
    track_->Puddle()->OnSquarePoint = [this](int x, int y) { AnswerSquare(x, y); };
    strip_->Environment->driftlab->installEventFilter(this);
    strip_->Environment->UVlab->installEventFilter(this);
    zyTimer_.setObjectName(QStringLiteral("zyTimer"));
    zyTimer_.setParent(this);
    zyTimer_.setSingleShot(true);
    connect(&zyTimer_, &QTimer::timeout, this, [this] { GiveBack(); });
}

void UBoard::gob_Click() {
    Play(PlayGame);
}

void UBoard::watch_Click() {
    Play(PlayUnattended);
}

// The rules run in here. What they throw stays in here too: nothing may pass through Qt.
void UBoard::Play(const std::function<void()>& play) {
    if (playing_ || options_ != nullptr || wait_.Ended()) {
        return;
    }
    SetPlaying(true);
    int exitCode = -1;
    try {
        play();
    } catch (const ProgramEnd& end) {
        exitCode = end.ExitCode;
    } catch (const std::exception& error) {
        Tell(QStringLiteral("This game cannot go on.\n%1").arg(QString::fromUtf8(error.what())));
    } catch (const GameLeft&) {
        // Left before the driver could hear of it: the window is as after any game.
    }
    SetPlaying(false);
    if (exitCode >= 0) {
        wait_.End();
        close();
        // Without a loop to end there is no program to end, as in a test of the window.
        if (QThread::currentThread()->loopLevel() > 0) {
            QCoreApplication::exit(exitCode);
        }
    }
}

void UBoard::SetPlaying(bool playing) {
    playing_ = playing;
    leaving_ = false;
    fault_ = nullptr;
    if (playing) {
        ForgetMessage();
        strip_->Question->ShowMessage(QString(), 0);
        strip_->Question->ShowClan(0);
        strip_->Environment->Clear();
        strip_->Clans->ShowAll();
    } else {
        strip_->Start->txtReplay->clear();
        strip_->Start->txtReplay->show();
        track_->Puddle()->OutlinePiece(0, 0, false);
        strip_->Clans->ShowCurrentClan(0);
        const bool over = game.Turn > LastTurn || game.GameOver;
        const int winner = over && game.NumPlayers > 0 ? ClanAtPlace(1) : 0;
        strip_->Start->ShowResult(
            winner > 0 ? QStringLiteral("%1 wins!").arg(ToQt(game.Players[winner].Name.View())) : QString(), winner);
        strip_->Start->gob->setFocus();
    }
    strip_->SetPlaying(playing);
    EnableStart();
}

void UBoard::ShowState(const GameState& state) {
    GiveBack();
    track_->ShowState(state);
    strip_->ShowState(state);
}

// Another board: the pieces of the game before have no place on it.
void UBoard::ClearBoard() {
    ResetTables();
    track_->Puddle()->Settle();
    track_->BoardChanged();
    strip_->Environment->Clear();
    strip_->Clans->ShowAll();
    strip_->Start->ShowResult(QString(), 0);
    strip_->Arrange();
}

void UBoard::Tell(const QString& text) {
    auto* box = new QMessageBox(QMessageBox::Warning, QStringLiteral("Plasmos"), text, QMessageBox::Ok, this);
    box->setTextFormat(Qt::PlainText);
    box->setPalette(LookPalette());
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->setModal(false);
    box->show();
}

void UBoard::LoadWindow() {
    QScreen* screen = QGuiApplication::primaryScreen();
    const QRect space = screen != nullptr ? screen->availableGeometry() : QRect(QPoint(0, 0), UsualSize);
    const QSize most = space.size() - look::UsualFrame;
    const QSize least = LeastSize.boundedTo(most);
    setMinimumSize(least);
    QSize size = UsualSize.boundedTo(most);
    if (services.Settings == nullptr) {
        resize(size);
        return;
    }
    const SettingsStore& store = *services.Settings;
    const int left = GetNumber(store, "board", "left", FarthestPixel, -FarthestPixel, FarthestPixel);
    const int top = GetNumber(store, "board", "top", FarthestPixel, -FarthestPixel, FarthestPixel);
    size.setWidth(GetNumber(store, "board", "width", size.width(), least.width(), most.width()));
    size.setHeight(GetNumber(store, "board", "height", size.height(), least.height(), most.height()));
    resize(size);
    const QRect title(left, top, size.width(), 30);
    const auto screens = QGuiApplication::screens();
    const bool seen = std::any_of(screens.begin(), screens.end(), [&title](const QScreen* one) {
        const QRect shared = one->availableGeometry().intersected(title);
        return shared.width() >= 60 && shared.height() >= 10;
    });
    if (seen) {
        move(left, top);
    }
}

// The window's frame is known only after the window is there, and the free area may change.
void UBoard::showEvent(QShowEvent* event) {
    QMainWindow::showEvent(event);
    if (screenWatched_) {
        return;
    }
    screenWatched_ = true;
    for (const int milliseconds : {0, FrameKnown}) {
        QTimer::singleShot(milliseconds, this, [this] { KeepOnScreen(); });
    }
    const auto watch = [this](QScreen* screen) {
        if (screen != nullptr) {
            connect(screen, &QScreen::availableGeometryChanged, this, &UBoard::KeepOnScreen, Qt::UniqueConnection);
            KeepOnScreen();
        }
    };
    connect(windowHandle(), &QWindow::screenChanged, this, watch);
    watch(screen());
}

void UBoard::KeepOnScreen() {
    if (screen() == nullptr || isMaximized() || isFullScreen() || isMinimized()) {
        return;
    }
    const QRect space = screen()->availableGeometry();
    const QSize most = space.size() - (frameGeometry().size() - size());
    setMinimumSize(LeastSize.boundedTo(most));
    if (size().boundedTo(most) == size()) {
        return;
    }
    resize(size().boundedTo(most));
    const QRect frame = frameGeometry();
    move(std::max(space.left(), std::min(frame.left(), space.right() + 1 - frame.width())),
         std::max(space.top(), std::min(frame.top(), space.bottom() + 1 - frame.height())));
}

void UBoard::SaveWindow() {
    if (services.Settings == nullptr || isMinimized()) {
        return;
    }
    QRect place(pos(), size());
    if (isMaximized() || isFullScreen()) {
        const QPoint frame = geometry().topLeft() - pos();
        place = normalGeometry().translated(-frame);
    }
    const std::pair<const char*, int> values[] = {
        {"left", place.x()}, {"top", place.y()}, {"width", place.width()}, {"height", place.height()}};
    for (const auto& [key, value] : values) {
        if (!services.Settings->Save("board", key, Concat(value))) {
            qWarning("The window's position could not be saved in %s", services.Settings->Where().c_str());
            return;
        }
    }
}

void UBoard::EndProgram() {
    zyTimer_.stop();
    tips_->Stop();
    wait_.End();
}

void UBoard::closeEvent(QCloseEvent* event) {
    SaveWindow();
    EndProgram();
    event->accept();
}

}  // namespace plasmos
