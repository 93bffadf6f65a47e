// SPDX-License-Identifier: GPL-3.0-or-later
#include "record/kept_games.h"

#include <algorithm>
#include <cerrno>
#include <filesystem>
#include <system_error>

#include "files/file_draft.h"
#include "files/platform.h"
#include "files/text.h"
#include "record/record_file.h"

namespace plasmos {

namespace fs = std::filesystem;

namespace {

/// "2026-11-22 05.30.12.plasmos", with a number where that is taken.
std::string NameOfNow(int taken) {
    std::string name = DateAndTime();
    std::replace(name.begin(), name.end(), ':', '.');
    return taken == 0 ? Concat(name, RecordEnding) : Concat(name, " (", taken + 1, ")", RecordEnding);
}

void Forget(const std::string& path) {
    std::error_code error;
    fs::remove(path, error);
}

}  // namespace

void GameKeeper::Begin(std::string text) {
    LetGo();
    text_ = std::move(text);
    path_.clear();
    Write();
}

void GameKeeper::GoOn(const std::string& path, std::string text) {
    if (path != path_) {
        LetGo(path);
    }
    file_.Close();
    text_ = std::move(text);
    path_ = path;
    Write();
}

void GameKeeper::Add(std::string_view lines) {
    text_ += lines;
    if (!file_.IsOpen() || file_.IsGone()) {
        file_.Close();
        Write();
        return;
    }
    int reason = file_.AppendToClaimed(lines);
    if (reason == 0) {
        reason = file_.Flush();
    }
    if (reason != 0) {
        file_.Close();
        Told(reason);
    }
}

/// All of the game so far.
void GameKeeper::Write() {
    if (Keeps()) {
        Told(path_.empty() ? WriteNew() : WriteOver());
    }
}

void GameKeeper::Told(int reason) {
    if (reason == 0) {
        told_ = false;
    } else if (!told_ && OnFault) {
        told_ = true;
        OnFault(Concat("This game cannot be kept in ", folder_, ": ", ReasonText(reason)));
    }
}

int GameKeeper::WriteNew() {
    std::error_code error;
    if (fs::create_directories(folder_, error); error) {
        return error.value();
    }
    constexpr int mostTries = 1000;
    int reason = EEXIST;
    for (int taken = 0; taken < mostTries && reason == EEXIST; ++taken) {
        path_ = (fs::path(folder_) / NameOfNow(taken)).string();
        const DiskFile made = OpenDiskFile(path_, OpenFor::Draft, reason);
    }
    if (reason == 0) {
        reason = WriteOver();
    }
    if (reason != 0) {
        Forget(path_);
        path_.clear();
    }
    return reason;
}

/// At one stroke, so that there is always a whole record.
int GameKeeper::WriteOver() {
    std::error_code error;
    if (fs::create_directories(folder_, error); error) {
        return error.value();
    }
    FileDraft draft;
    int reason = draft.Open(path_);
    if (reason == 0) {
        reason = draft.Write(text_);
    }
    if (reason == 0) {
        reason = draft.CommitForGood();
    }
    return reason == 0 ? OpenWritten() : reason;
}

int GameKeeper::OpenWritten() {
    int reason = 0;
    file_ = OpenDiskFile(path_, OpenFor::Appending, reason);
    if (file_.IsOpen() && !file_.Claim()) {
        file_.Close();
        reason = EBUSY;
    }
    return reason == 0 ? file_.Flush() : reason;
}

void GameKeeper::Remove() {
    file_.Close();
    if (!path_.empty()) {
        Forget(path_);
    }
    path_.clear();
    text_.clear();
}

void GameKeeper::LetGo(const std::string& goneOnWith) {
    file_.Close();
    path_.clear();
    text_.clear();
    told_ = false;
    if (Keeps()) {
        const auto games = KeptGames(folder_);
        for (std::size_t old = MostKeptGames; old < games.size(); ++old) {
            if (games[old].Path != goneOnWith) {
                Forget(games[old].Path);
            }
        }
    }
}

std::vector<KeptGame> KeptGames(const std::string& folder) {
    std::vector<KeptGame> games;
    std::error_code error;
    for (fs::directory_iterator entry(folder, error), end; !error && entry != end; entry.increment(error)) {
        std::error_code fault;
        const auto changed = entry->last_write_time(fault);
        if (!fault && entry->path().extension() == RecordEnding && entry->is_regular_file(fault) &&
            !IsPlayedElsewhere(entry->path().string())) {
            games.push_back({entry->path().string(), static_cast<std::int64_t>(changed.time_since_epoch().count())});
        }
    }
    std::sort(games.begin(), games.end(), [](const KeptGame& one, const KeptGame& other) {
        return one.Changed != other.Changed ? one.Changed > other.Changed : one.Path > other.Path;
    });
    return games;
}

bool IsPlayedElsewhere(const std::string& path) {
    int reason = 0;
    const DiskFile file = OpenDiskFile(path, OpenFor::Reading, reason);
    return file.IsOpen() && !file.Claim();
}

}  // namespace plasmos
