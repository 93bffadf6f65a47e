// SPDX-License-Identifier: GPL-3.0-or-later
//
// The file of the game that is played, and the person's own marks while another game is.

#include <algorithm>
#include <utility>

#include "files/settings_store.h"
#include "model/game_state.h"
#include "model/services.h"
#include "ui/window/record_desk.h"

namespace plasmos {

namespace {

bool WantsFastGames() {
    return services.Settings != nullptr ? services.Settings->Get("play", "fastmode", "0") == "1" : game.FastMode;
}

}  // namespace

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
        keeper_.GoOn(next.Path, KeptText());
    } else if (keeper_.Path().empty()) {
        keeper_.Begin(KeptText());
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

/// A game that has come to its end once and was taken back does not count again, even when it is resumed later.
std::string RecordDesk::KeptText() const {
    return RecordText(recorder_->Record()) + std::string(counted_ ? CountedLine : "");
}

void RecordDesk::EndKeeping(const std::string& goneOnWith) {
    if (IsOver()) {
        keeper_.Remove();
    }
    keeper_.LetGo(goneOnWith);
    kept_.clear();
}

// ---- the person's marks ----

/// What the person has marked: as it was before a game was played again, but for what has been turned since.
MenuMarks RecordDesk::OwnMarks() const {
    if (!marksBefore_) {
        return game.Menu;
    }
    MenuMarks own = game.Menu;
    own.twoplayermen = marksBefore_->twoplayermen;
    own.normmen = own.normmen == marksThen_.normmen ? marksBefore_->normmen : own.normmen;
    own.victorymen = own.victorymen == marksThen_.victorymen ? marksBefore_->victorymen : own.victorymen;
    return own;
}

/// A game begins to be played again.
void RecordDesk::NoteOwnMarks() {
    marksBefore_ = OwnMarks();
}

/// The marks are the person's again, and not those of a game that was opened or gone back in.
void RecordDesk::TakeOwnMarks() {
    if (marksBefore_) {
        game.Menu = OwnMarks();
        game.FastMode = WantsFastGames();
        marksBefore_.reset();
    }
}

}  // namespace plasmos
