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

bool WantsFastGames() {
    return services.Settings != nullptr ? services.Settings->Get("play", "fastmode", "0") == "1" : game.FastMode;
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

/// The record of a new game grows. Nothing of a person's is lost with a game of computer clans.
void RecordDesk::KeepNew(std::string_view lines) {
    if (game.AutoPlay) {
        return;
    }
    if (std::exchange(begun_, true)) {
        keeper_.Add(lines);
    } else if (keeper_.Path().empty()) {
        keeper_.Begin(std::string(lines));
    } else {
        keeper_.GoOn(keeper_.Path(), std::string(lines));
    }
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
    } else {
        marksBefore_ = game.Menu;
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
        kept_ = recorder_->Inputs;
    }
}

void RecordDesk::Replay(Next next) {
    if (next.Opened) {
        EndKeeping();
        takenBack_.Forget();
        counted_ = next.Path.empty();
        marksBefore_ = marksBefore_.value_or(game.Menu);
    }
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
        if (held) {
            held->LetGo();
        }
        window_->setUpdatesEnabled(true);
        deeds_.CaughtUp();
        Keep(next);
        if (!catchUp.Fault().empty()) {
            deeds_.Tell(
                ToQt(Concat("The game goes on from here: what came later cannot be played again.\n", catchUp.Fault())));
        }
    };
    PlayAsSetUp();
    catchUp.Finish();
}

/// The marks are the person's again, and not those of a game that was opened or gone back to.
void RecordDesk::TakeOwnMarks() {
    if (marksBefore_) {
        game.Menu = *std::exchange(marksBefore_, std::nullopt);
        game.FastMode = WantsFastGames();
    }
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

// ---- keeping ----

/// The game goes on from here: its file has what it has come to, and takes what comes. Before clans and names are dealt
/// it may become another game.
void RecordDesk::Keep(const Next& next) {
    if (record_.Head.Persons == 0) {
        return;
    }
    if (!recorder_->CanBePlayed()) {
        begun_ = false;
        recorder_->OnText = [this](std::string_view lines) { KeepNew(lines); };
        return;
    }
    const InputList& inputs = recorder_->Inputs;
    if (!next.Path.empty()) {
        keeper_.GoOn(next.Path, RecordText(recorder_->Record()));
    } else if (keeper_.Path().empty()) {
        keeper_.Begin(RecordText(recorder_->Record()));
    } else {
        const auto [one, other] = std::mismatch(inputs.begin(), inputs.end(), kept_.begin(), kept_.end());
        std::string lines = other != kept_.end() ? Concat("back to ", one - inputs.begin(), "\n") : std::string();
        for (auto more = one; more != inputs.end(); ++more) {
            lines += InputText(*more);
        }
        keeper_.Add(lines);
    }
    recorder_->OnText = [this](std::string_view lines) { keeper_.Add(lines); };
}

void RecordDesk::EndKeeping() {
    IsOver() ? keeper_.Remove() : keeper_.LetGo();
    kept_.clear();
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

/// The same game, with other inputs. One that is back before its deal has the head of the game it was.
void RecordDesk::GoTo(InputList inputs, int until) {
    GameRecord record = HasGame() ? recorder_->Record() : record_;
    record.Inputs = std::move(inputs);
    Go({std::move(record), until, false, {}});
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
