// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace plasmos {

inline constexpr std::string_view NamesFile = "zynames.txt";
inline constexpr std::string_view MoveFile = "movefil.txt";
inline constexpr std::string_view RandomFile = "randfil.txt";
inline constexpr std::string_view ErrorFile = "errfile.txt";
inline constexpr std::string_view OptionsFile = "Opts.txt";

/// The files of the game by their plain names. Texts are UTF-8 with "\n" in the program and
/// Windows-1252 with CR LF on disk. Every operation opens, works and closes; one that fails raises a
/// RuntimeError whose description names the file and the reason: 53 the folder is there and the file is
/// not, 57, 61, 70, 75 (a folder, a pipe or a device in the file's place, too; none is waited for), 76 a
/// folder of the path is missing.
class GameFiles {
public:
    virtual ~GameFiles() = default;

    /// The full path of a file, or of the folder for an empty name; for messages.
    virtual std::string PathOf(std::string_view name) const = 0;
    /// The folder in which games that are not over are kept; empty: none are.
    virtual std::string GamesFolder() const { return {}; }
    /// Makes sure that the folder is there, without the half-written files of programs that were killed.
    virtual void MakeFolder() = 0;
    virtual bool Exists(std::string_view name) const = 0;
    /// Adds text at the end of a file, which is made when it is missing. All of it or, when this fails,
    /// none of it.
    virtual void Append(std::string_view name, std::string_view text) = 0;
    /// Replaces a file whole; the old one stays when this fails.
    virtual void Rewrite(std::string_view name, std::string_view text) = 0;
    /// The first lines of a file, at most `most` of them, without line ends. A byte order mark is
    /// skipped; bytes beyond ASCII are UTF-8 where they are valid UTF-8, else Windows-1252. What goes
    /// beyond 1000 bytes in a line is left out.
    virtual std::vector<std::string> ReadLines(std::string_view name, int most) const = 0;
};

/// The files in a folder of the disk.
class DataFolder : public GameFiles {
public:
    explicit DataFolder(std::string folder) : folder_(std::move(folder)) {}

    std::string PathOf(std::string_view name) const override;
    std::string GamesFolder() const override { return PathOf("Games"); }
    void MakeFolder() override;
    bool Exists(std::string_view name) const override;
    void Append(std::string_view name, std::string_view text) override;
    void Rewrite(std::string_view name, std::string_view text) override;
    std::vector<std::string> ReadLines(std::string_view name, int most) const override;

private:
    std::string folder_;
};

}  // namespace plasmos
