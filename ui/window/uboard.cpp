// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/window/uboard.h"

#include <QApplication>
#include <QCloseEvent>
#include <QThread>
#include <utility>

#include "files/runtime_error.h"
#include "files/settings_store.h"
#include "flow/play_game.h"
#include "flow/start.h"
#include "model/game_state.h"
#include "model/message_line.h"
#include "model/services.h"
#include "ui/board/puddle_view.h"
#include "ui/board/score_track.h"
#include "ui/board/ttip.h"
#include "ui/dialogs/question_panel.h"
#include "ui/look/dress.h"
#include "ui/look/notice.h"
#include "ui/look/palette.h"
#include "ui/strip/clan_panel.h"
#include "ui/strip/environment_view.h"
#include "ui/strip/log_view.h"
#include "ui/strip/question_card.h"
#include "ui/strip/side_strip.h"
#include "ui/strip/start_card.h"
#include "ui/window/board_menus.h"
#include "ui/window/guide_bar.h"
#include "ui/window/guide_desk.h"
#include "ui/window/handbook.h"
#include "ui/window/history_desk.h"
#include "ui/window/leave_guard.h"
#include "ui/window/legend.h"
#include "ui/window/lent_labels.h"
#include "ui/window/preferences_desk.h"
#include "ui/window/question_desk.h"
#include "ui/window/result_desk.h"
#include "ui/window/table_top.h"
#include "ui/window/view_menus.h"
#include "ui/window/window_place.h"

namespace plasmos {

namespace {

std::unique_ptr<BoardPresentation> MakePresentation(const BoardParts& parts) {
    return std::make_unique<BoardPresentation>(parts);
}

}  // namespace

UBoard::UBoard() : UBoard(MakePresentation) {}

UBoard::UBoard(const PresentationMaker& make) {
    setObjectName(QStringLiteral("UBoard"));
    setWindowTitle(QStringLiteral("Plasmos"));
    Dress(*this);
    LoadBoard();
    auto* table = new TableTop(this, game);
    track_ = table->Track;
    strip_ = table->Strip;
    setCentralWidget(table);
    menus_ = std::make_unique<BoardMenus>(
        *this, *track_->Puddle(),
        BoardMenus::Deeds{[this] { watch_Click(); }, [this] { LeaveGame(); }, [this] { desk_->Wake(); },
                          [this] { preferences_->Open(); }, [this] { ClearResults(); },
                          [this](const QString& text) { ShowNotice(*this, text); }});
    BuildDesks(*table);
    lent_ = new LentLabels(this, *strip_->Environment);
    tips_ = new ToolTips(track_->Puddle());
    place_ = std::make_unique<WindowPlace>(*this);
    guard_ = std::make_unique<LeaveGuard>(*this);
    BuildView();
    results_ = std::make_unique<ResultDesk>(*strip_->Start, [this](const QString& text) { ShowNotice(*this, text); });
    BuildStart();
    BuildHistory(*table);
    presentation_ = make({*this, *track_, *strip_, *menus_, *desk_});
    history_->ShowBy(*presentation_);
    services.Window = presentation_.get();
    place_->Load();
    SetPlaying(false);
    connect(qApp, &QCoreApplication::aboutToQuit, this, [this] { EndProgram(); });
}

UBoard::~UBoard() {
    if (services.Window == presentation_.get()) {
        services.Window = nullptr;
    }
}

void UBoard::BuildDesks(TableTop& table) {
    desk_ = std::make_unique<QuestionDesk>(*this, *track_, *strip_);
    desk_->OnQuestion = [this](Question& question) {
        tips_->Hush();
        if (OnQuestion) {
            OnQuestion(question);
        }
    };
    preferences_ = std::make_unique<PreferencesDesk>(*this, [this](bool otherBoard) {
        EnableStart();
        if (otherBoard) {
            history_->Forget();
            ClearBoard();
        }
    });
    guide_ = std::make_unique<GuideDesk>(table);
    desk_->OnTop = [this](const Question* top) {
        guide_->Show(top);
        history_->Follow();
    };
    connect(table.Guide->endguideb, &QPushButton::clicked, this, [this] { LeaveGame(); });
    RefuseRepeats(table.Guide->endguideb);
}

void UBoard::BuildView() {
    view_ = std::make_unique<ViewMenus>(
        *this, ViewMenus::Deeds{[this](Pace pace) { desk_->SetPace(static_cast<int>(pace)); },
                                [this](bool on) { desk_->Hold(on); }, [this] { desk_->Step(); },
                                [this](bool on) { desk_->SetMotion(on); }, [this] { guide_Click(); },
                                [this] { ShowHandbook(*this); }, [this] { ShowSigns(*this); },
                                [this] { ShowKeys(*this); }, [this](const QString& text) { ShowNotice(*this, text); }});
    view_->Load();
}

void UBoard::BuildStart() {
    connect(strip_->Start->gob, &QPushButton::clicked, this, [this] { gob_Click(); });
    connect(strip_->Start->guideb, &QPushButton::clicked, this, [this] { guide_Click(); });
    connect(strip_->Start->watchb, &QPushButton::clicked, this, [this] { watch_Click(); });
    connect(strip_->Start->txtReplay, &QLineEdit::returnPressed, this, [this] { gob_Click(); });
    strip_->Start->OfferGuide(services.Settings == nullptr || services.Settings->Get("play", "begun", "0") != "1");
}

void UBoard::BuildHistory(TableTop& table) {
    const auto afresh = [this] {
        ClearTable();
        ClearBoard();
    };
    history_ = std::make_unique<HistoryDesk>(
        *this, table, *desk_,
        HistoryDesk::Deeds{[this](const std::function<void()>& play) { Play(play); }, afresh, [this] { EnableStart(); },
                           [this] { gob_Click(); }, [this](const GameState& state) { ShowState(state); },
                           [this](bool on) { menus_->Hold(on); },
                           [this] { results_->Show(!guided_ && history_->CountsNow(), false); },
                           [this](const QString& text) { ShowNotice(*this, text); }});
}

void UBoard::OpenGame(const QString& path) {
    history_->Open(path);
}

void UBoard::gob_Click() {
    NoteBegun();
    Play([this] { history_->PlayNew(PlayGame); });
}

void UBoard::guide_Click() {
    NoteBegun();
    guided_ = true;
    history_->Forget();
    const bool numbers = menus_->ShowNumbers(true);  // the notes tell squares by their numbers
    Play([this] { guide_->Play([this] { ClearBoard(); }, PlayGame); });
    guided_ = false;
    menus_->ShowNumbers(numbers);
    if (game.NumPlayers == 0) {
        ClearBoard();
    }
}

// Whoever has begun a game finds the guided one under Help; a setting that cannot be saved only offers it again.
void UBoard::NoteBegun() {
    if (services.Settings != nullptr) {
        services.Settings->Save("play", "begun", "1");
    }
    strip_->Start->OfferGuide(false);
}

void UBoard::watch_Click() {
    Play([this] { history_->PlayNew(PlayUnattended); });
}

// The rules run in here. What they throw stays in here too: nothing may pass through Qt.
void UBoard::Play(const std::function<void()>& play) {
    if (playing_ || preferences_->IsOpen() || desk_->Ended()) {
        return;
    }
    SetPlaying(true);
    int exitCode = -1;
    try {
        play();
    } catch (const ProgramEnd& end) {
        exitCode = end.ExitCode;
    } catch (const std::exception& error) {
        ShowNotice(*this, QStringLiteral("This game cannot go on.\n%1").arg(QString::fromUtf8(error.what())));
    } catch (const GameLeft&) {
        // Left before the driver could hear of it: the window is as after any game.
    }
    SetPlaying(false);
    if (exitCode >= 0) {
        desk_->EndProgram();
        close();
        // Without a loop to end there is no program to end, as in a test of the window.
        if (QThread::currentThread()->loopLevel() > 0) {
            QCoreApplication::exit(exitCode);
        }
    }
}

void UBoard::SetPlaying(bool playing) {
    const bool played = std::exchange(playing_, playing) && strip_->Log->Started();
    SettleSwitches();
    if (playing) {
        ClearTable();
    } else {
        strip_->Start->txtReplay->clear();
        strip_->Start->txtReplay->show();
        history_->GameIsOver();
        track_->Puddle()->OutlinePiece(0, 0, false);
        strip_->Clans->ShowCurrentClan(0);
        results_->Show(played && !guided_ && history_->CountsNow(), IsWaiting());
    }
    strip_->SetPlaying(playing);
    view_->SetPlaying(playing);
    guard_->Drop();
    EnableStart();
    if (!playing) {
        strip_->Start->gob->setFocus();
    }
}

/// Whether the game that was left can be gone on with.
bool UBoard::IsWaiting() const {
    return !guided_ && LeaveGuard::IsNeeded() && strip_->Start->resumeb->isVisibleTo(strip_);
}

void UBoard::ClearTable() {
    ForgetMessage();
    strip_->Question->ShowMessage(QString(), 0);
    strip_->Question->ShowClan(0);
    strip_->Environment->Clear();
    strip_->Clans->ShowAll();
    strip_->Log->Clear();
}

void UBoard::ShowState(const GameState& state) {
    lent_->GiveBack();
    track_->ShowState(state);
    strip_->ShowState(state);
}

// Another board: the pieces of the game before have no place on it.
void UBoard::ClearBoard() {
    ResetTables();
    track_->Puddle()->Settle();
    track_->Puddle()->OutlinePiece(0, 0, false);
    track_->BoardChanged();
    strip_->Environment->Clear();
    strip_->Clans->ShowAll();
    strip_->Start->ShowWelcome();
    strip_->ShowSummary({});
}

void UBoard::EnableStart() {
    const bool free = !playing_ && !preferences_->IsOpen();
    strip_->Start->gob->setVisible(!playing_);
    strip_->Start->gob->setEnabled(free);
    strip_->Start->guideb->setEnabled(free);
    strip_->Start->watchb->setEnabled(free);
    strip_->Start->txtReplay->setEnabled(free);
    menus_->Enable(playing_, free, playing_ && guided_);
    history_->Enable(playing_ && guided_);
    view_->SetFree(free);
}

Question* UBoard::TopQuestion() const {
    return desk_->TopQuestion();
}

void UBoard::SetSpeed(double factor) {
    desk_->SetSpeed(factor);
}

void UBoard::resizeEvent(QResizeEvent* event) {
    FitLetters(size());
    QMainWindow::resizeEvent(event);
}

void UBoard::showEvent(QShowEvent* event) {
    QMainWindow::showEvent(event);
    place_->Watch();
}

}  // namespace plasmos
