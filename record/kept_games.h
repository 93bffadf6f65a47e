// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "files/disk_file.h"

namespace plasmos {

/// So many games that are not over are kept; of older ones the file is removed.
inline constexpr std::size_t MostKeptGames = 10;

/// Keeps the record of the game that is played in a file of its own, line by line, so that a power cut loses at most
/// the input that is being given. What cannot be kept is told once, and kept again as soon as that is possible.
class GameKeeper {
public:
    /// A folder, which is made when it is needed; empty: nothing is kept.
    explicit GameKeeper(std::string folder) : folder_(std::move(folder)) {}
    ~GameKeeper() { LetGo(); }
    GameKeeper(const GameKeeper&) = delete;
    GameKeeper& operator=(const GameKeeper&) = delete;

    /// Hears what went wrong, as one line, once until it works again.
    std::function<void(const std::string& fault)> OnFault;

    bool Keeps() const { return !folder_.empty(); }
    /// Whether the game that is played is kept as far as it has come.
    bool IsKept() const { return file_.IsOpen(); }
    const std::string& Path() const { return path_; }

    /// A game begins, or one that was not kept goes on: so much of its record is there.
    void Begin(std::string text);
    /// A kept game goes on in its file. `text` is what of it counts.
    void GoOn(const std::string& path, std::string text);
    /// Whole lines more.
    void Add(std::string_view lines);
    /// The game is over: its file goes.
    void Remove();
    /// The game is left: its file stays, among the latest ones. One that is gone on with now stays, too.
    void LetGo(const std::string& goneOnWith = {});

private:
    void Write();
    int WriteNew();
    int WriteOver();
    int OpenWritten();
    void Told(int reason);

    std::string folder_;
    std::string path_;
    std::string text_;
    DiskFile file_;
    bool told_ = false;
};

/// A game that was not played to its end.
struct KeptGame {
    std::string Path;
    std::int64_t Changed = 0;  ///< when, as the file system counts
};

/// The games that are kept in a folder and that no other window plays, the latest first.
std::vector<KeptGame> KeptGames(const std::string& folder);

/// Whether another window plays a kept game.
bool IsPlayedElsewhere(const std::string& path);

}  // namespace plasmos
