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
#include "ui/window/kept_game_view.h"
#include "ui/window/leave_guard.h"
#include "ui/window/legend.h"
#include "ui/window/lent_labels.h"
#include "ui/window/preferences_desk.h"
#include "ui/window/question_desk.h"
#include "ui/window/record_desk.h"
#include "ui/window/record_menus.h"
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
                          [this] { preferences_->Open(); }, [this] { results_->Clear(), strip_->Arrange(); },
                          [this](const QString& text) { ShowNotice(*this, text); }});
    BuildDesks(*table);
    lent_ = new LentLabels(this, *strip_->Environment);
    tips_ = new ToolTips(track_->Puddle());
    place_ = std::make_unique<WindowPlace>(*this);
    guard_ = std::make_unique<LeaveGuard>(*this);
    BuildView();
    results_ = std::make_unique<ResultDesk>(*strip_->Start, [this](const QString& text) { ShowNotice(*this, text); });
    BuildStart();
    BuildRecords();
    presentation_ = make({*this, *track_, *strip_, *menus_, *desk_});
    records_->ShowBy(*presentation_);
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
            ClearBoard();
        }
    });
    guide_ = std::make_unique<GuideDesk>(table);
    desk_->OnTop = [this](const Question* top) {
        guide_->Show(top);
        recordMenus_->ShowPossible();
    };
    connect(table.Guide->endguideb, &QPushButton::clicked, this, [this] { LeaveGame(); });
    RefuseRepeats(table.Guide->endguideb);
}

void UBoard::BuildView() {
    view_ = std::make_unique<ViewMenus>(
        *this, ViewMenus::Deeds{[this](Pace pace) { desk_->SetPace(static_cast<int>(pace)); },
                                [this](bool on) { desk_->Hold(on); }, [this] { desk_->Step(); },
                                [this](bool on) { desk_->SetMotion(on); }, [this] { guide_Click(); },
                                [this] { ShowSigns(*this); }, [this] { ShowKeys(*this); },
                                [this](const QString& text) { ShowNotice(*this, text); }});
    view_->Load();
}

void UBoard::BuildStart() {
    connect(strip_->Start->gob, &QPushButton::clicked, this, [this] { gob_Click(); });
    connect(strip_->Start->guideb, &QPushButton::clicked, this, [this] { guide_Click(); });
    connect(strip_->Start->watchb, &QPushButton::clicked, this, [this] { watch_Click(); });
    connect(strip_->Start->txtReplay, &QLineEdit::returnPressed, this, [this] { gob_Click(); });
    for (QPushButton* button : {strip_->Start->gob, strip_->Start->guideb, strip_->Start->watchb}) {
        RefuseRepeats(button);
        button->setAutoDefault(true);
    }
    strip_->Start->OfferGuide(services.Settings == nullptr || services.Settings->Get("play", "begun", "0") != "1");
}

void UBoard::BuildRecords() {
    records_ = std::make_unique<RecordDesk>(
        *this,
        RecordDesk::Deeds{[this](const std::function<void()>& play) { Play(play); }, [this] { desk_->LeaveGame(); },
                          [this] {
                              ClearTable();
                              ClearBoard();
                          },
                          [this] { EnableStart(); }, [this](const QString& text) { ShowNotice(*this, text); }});
    recordMenus_ = std::make_unique<RecordMenus>(*this, *records_);
    connect(strip_->Start->resumeb, &QPushButton::clicked, this, [this] { records_->Open(waiting_); });
    RefuseRepeats(strip_->Start->resumeb);
    strip_->Start->resumeb->setAutoDefault(true);
}

void UBoard::OpenGame(const QString& path) {
    recordMenus_->Open(path);
}

void UBoard::OfferResume() {
    const auto left = LatestKeptGame(records_->GamesFolder(), StartCard::PictureSide(), devicePixelRatioF());
    waiting_ = left ? left->Path : std::string();
    strip_->Start->OfferResume(left ? left->Line : QString(), left ? left->Board : QPixmap());
    strip_->Arrange();
}

void UBoard::gob_Click() {
    NoteBegun();
    Play([this] { records_->PlayNew(PlayGame); });
}

void UBoard::guide_Click() {
    NoteBegun();
    guided_ = true;
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
    Play([this] { records_->PlayNew(PlayUnattended); });
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
        track_->Puddle()->OutlinePiece(0, 0, false);
        strip_->Clans->ShowCurrentClan(0);
        results_->Show(played && !guided_ && records_->CountsNow());
        OfferResume();
    }
    strip_->SetPlaying(playing);
    view_->SetPlaying(playing);
    guard_->Drop();
    EnableStart();
    if (!playing) {
        strip_->Start->gob->setFocus();
    }
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
    track_->BoardChanged();
    strip_->Environment->Clear();
    strip_->Clans->ShowAll();
    strip_->Start->ShowWelcome();
    strip_->Arrange();
}

void UBoard::EnableStart() {
    const bool free = !playing_ && !preferences_->IsOpen();
    strip_->Start->gob->setVisible(!playing_);
    strip_->Start->gob->setEnabled(free);
    strip_->Start->guideb->setEnabled(free);
    strip_->Start->watchb->setEnabled(free);
    strip_->Start->txtReplay->setEnabled(free);
    menus_->Enable(playing_, free, playing_ && guided_);
    recordMenus_->Enable(playing_ && guided_);
    view_->SetFree(free);
}

// The guided game deals the same cards again, and a game that is kept can be gone on with.
bool UBoard::AsksBeforeLeaving() const {
    return !guided_ && !records_->IsKept() && LeaveGuard::IsNeeded();
}

void UBoard::LeaveGame() {
    if (playing_ && !AsksBeforeLeaving()) {
        desk_->LeaveGame();
    } else if (playing_) {
        guard_->Ask(QStringLiteral("Leave this game? It cannot be taken up again."), QStringLiteral("&Leave"),
                    [this] { desk_->LeaveGame(); });
    }
}

Question* UBoard::TopQuestion() const {
    return desk_->TopQuestion();
}

void UBoard::SetSpeed(double factor) {
    desk_->SetSpeed(factor);
}

void UBoard::EndProgram() {
    lent_->Stop();
    tips_->Stop();
    desk_->EndProgram();
}

void UBoard::resizeEvent(QResizeEvent* event) {
    FitLetters(size());
    QMainWindow::resizeEvent(event);
}

void UBoard::showEvent(QShowEvent* event) {
    QMainWindow::showEvent(event);
    place_->Watch();
}

void UBoard::CloseAtOnce() {
    sure_ = true;
    close();
}

void UBoard::closeEvent(QCloseEvent* event) {
    if (!sure_ && playing_ && !desk_->Ended() && AsksBeforeLeaving()) {
        event->ignore();
        guard_->Ask(QStringLiteral("Close the window in the middle of this game? It cannot be taken up again."),
                    QStringLiteral("&Close"), [this] { CloseAtOnce(); });
        return;
    }
    place_->Save();
    EndProgram();
    event->accept();
}

}  // namespace plasmos
