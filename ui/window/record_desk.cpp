// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/window/record_desk.h"

#include <QScopeGuard>
#include <QWidget>
#include <algorithm>
#include <utility>

#include "files/game_files.h"
#include "files/settings_store.h"
#include "flow/play_game.h"
#include "flow/start.h"
#include "model/game_state.h"
#include "model/services.h"
#include "questions/ask.h"
#include "record/held_files.h"
#include "ui/look/palette.h"
#include "ui/window/catch_up.h"

namespace plasmos {

namespace {

std::string FolderOfGames() {
    return services.Files != nullptr ? services.Files->GamesFolder() : std::string();
}

/// What the setup of the current game says of the next one only.
void ForgetRequests(const GameSetup& before) {
    game.RequestedClans = before.RequestedClans;
    game.HasRequestedReplay = before.HasRequestedReplay;
    game.RequestedReplay = before.RequestedReplay;
    services.Dealt = nullptr;
}

}  // namespace

RecordDesk::RecordDesk(QWidget& window, Deeds deeds)
    : window_(&window), deeds_(std::move(deeds)), folder_(FolderOfGames()), keeper_(folder_) {
    keeper_.OnFault = [this](const std::string& fault) {
        deeds_.Tell(ToQt(Concat(fault, "\nThe game goes on, and is kept as soon as that is possible.")));
    };
}

RecordDesk::~RecordDesk() = default;

void RecordDesk::Forget() {
    recorder_.reset();
    takenBack_.Forget();
}

bool RecordDesk::HasGame() const {
    return recorder_ != nullptr && recorder_->CanBePlayed();
}

// ---- playing ----

void RecordDesk::PlayNew(const std::function<void()>& play) {
    TakeOwnBoard();
    takenBack_.Forget();
    Run([this, &play] {
        Record();
        counted_ = false;
        begun_ = false;
        recorder_->OnText = [this](std::string_view lines) { KeepNew(lines); };
        play();
    });
}

/// The games that follow from one another: each is left for the next.
void RecordDesk::Run(const std::function<void()>& first) {
    running_ = true;
    const GameSetup before = game;
    const auto end = qScopeGuard([this, &before] {
        Stop();
        ForgetRequests(before);
        next_.reset();
        running_ = false;
        EndKeeping();
        TakeOwnMarks();
    });
    if (first) {
        first();
    }
    while (next_) {
        Stop();
        ForgetRequests(before);
        services.Switches.Clear();
        Replay(*std::exchange(next_, std::nullopt));
    }
}

void RecordDesk::Record() {
    recorder_ = std::make_unique<GameRecorder>(services.Listener);
    listenerBefore_ = services.Listener;
    services.Listener = recorder_.get();
}

void RecordDesk::Stop() {
    if (recorder_ != nullptr && services.Listener == recorder_.get()) {
        services.Listener = listenerBefore_;
        recorder_->OnText = nullptr;
        DropLeaving(recorder_->Inputs);
        if (recorder_->CanBePlayed()) {
            kept_ = recorder_->Inputs;
        }
    }
}

/// Leaves the file of the game that was played, and its marks, for the next one.
void RecordDesk::LeaveFor(const Next& next) {
    if (next.Opened) {
        deeds_.Count();
        EndKeeping(next.Path);
        takenBack_.Forget();
        counted_ = next.Counted;
    }
    if (next.Apart) {
        keeper_.LetGo();
    }
    NoteOwnMarks();
}

void RecordDesk::Replay(Next next) {
    LeaveFor(next);
    record_ = std::move(next.Record);
    window_->setUpdatesEnabled(false);
    const auto seen = qScopeGuard([this] { window_->setUpdatesEnabled(true); });
    Record();
    std::optional<HeldFiles> held;
    GameFiles* const files = services.Files;
    const auto released = qScopeGuard([files] { services.Files = files; });
    if (files != nullptr) {
        services.Files = &held.emplace(*files);
    }
    BeginAs(record_.Head);
    otherBoard_ = otherBoard_ || next.Opened;
    deeds_.BeginAfresh();
    CatchUp catchUp(record_.Inputs, *recorder_, *presentation_, next.Until);
    catchUp.OnHandedOver = [&] {
        const std::string unwritten = held ? held->LetGo() : std::string();
        window_->setUpdatesEnabled(true);
        marksThen_ = game.Menu;
        deeds_.CaughtUp();
        Keep(next);
        if (!unwritten.empty()) {
            deeds_.Tell(ToQt(Concat("The traces of this game so far could not be written.\n", unwritten)));
        }
        if (!catchUp.Fault().empty()) {
            deeds_.Tell(
                ToQt(Concat("The game goes on from here: what came later cannot be played again.\n", catchUp.Fault())));
        }
    };
    PlayAsSetUp();
    catchUp.Finish();
}

void RecordDesk::TakeOwnBoard() {
    if (std::exchange(otherBoard_, false)) {
        LoadBoard();
        deeds_.BeginAfresh();
    }
}

bool RecordDesk::CountsNow() {
    return IsOver() && !std::exchange(counted_, true);
}

// ---- going back and on ----

bool RecordDesk::CanTakeBack() const {
    return HasGame() && !next_ && PlaceToTakeBackTo(*recorder_, WhoTakesBack()).has_value();
}

bool RecordDesk::CanGoAgain() const {
    return recorder_ != nullptr && !next_ && takenBack_.PlaceToGoOnTo(recorder_->Inputs).has_value();
}

/// The asked clan; 0: nobody is asked, or to read a message only.
int RecordDesk::WhoTakesBack() const {
    const Question* asked = TopQuestion();
    return running_ && asked != nullptr && asked->Kind != QuestionKind::Box ? asked->Clan : 0;
}

void RecordDesk::TakeBack() {
    if (CanTakeBack()) {
        const auto place = static_cast<std::ptrdiff_t>(*PlaceToTakeBackTo(*recorder_, WhoTakesBack()));
        takenBack_.Keep(*recorder_);
        GoTo({recorder_->Inputs.begin(), recorder_->Inputs.begin() + place}, 0);
    }
}

void RecordDesk::GoAgain() {
    if (CanGoAgain()) {
        GoTo(takenBack_.InputsTo(*takenBack_.PlaceToGoOnTo(recorder_->Inputs)), 0);
    }
}

void RecordDesk::GoOnFrom(int moment) {
    if (HasGame() && !next_) {
        takenBack_.Keep(*recorder_);
        const auto before = static_cast<std::ptrdiff_t>(recorder_->InputsBefore(moment));
        GoTo({recorder_->Inputs.begin(), recorder_->Inputs.begin() + before}, moment);
    }
}

/// The same game, with other inputs. One that is back before its deal has the head of the game it was. What is left for
/// a moment of it is not a single answer that is taken back, and stays.
void RecordDesk::GoTo(InputList inputs, int until) {
    GameRecord record = HasGame() ? recorder_->Record() : record_;
    const bool shorter = inputs.size() < recorder_->Inputs.size();
    record.Inputs = std::move(inputs);
    Go({.Record = std::move(record), .Until = until, .Apart = until > 0 && shorter});
}

void RecordDesk::Go(Next next) {
    next_ = std::move(next);
    if (running_) {
        deeds_.LeaveGame();
    } else {
        // Whoever wants it is not kept until that game is over.
        QMetaObject::invokeMethod(
            this,
            [this] {
                deeds_.Play([this] { Run({}); });
                next_.reset();
            },
            Qt::QueuedConnection);
    }
}

}  // namespace plasmos
