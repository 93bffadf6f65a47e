// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/support/line_reader.h"

#include <cctype>

#include "model/game_state.h"

namespace plasmos::testing {

namespace {

constexpr int UnitsForALine = 4;
constexpr int UnitsForAPersonsLine = 10;

bool IsPerson(int clan) {
    return clan >= 1 && clan <= game.NumPlayers && !game.Players[clan].IsComputer;
}

bool IsPartOfAWord(std::string_view text, std::size_t at) {
    return at < text.size() && (std::isalnum(static_cast<unsigned char>(text[at])) != 0 || text[at] < 0);
}

/// Whether a name stands in a text as a word of its own.
bool Names(std::string_view text, std::string_view name) {
    for (auto at = text.find(name); !name.empty() && at != std::string_view::npos; at = text.find(name, at + 1)) {
        if ((at == 0 || !IsPartOfAWord(text, at - 1)) && !IsPartOfAWord(text, at + name.size())) {
            return true;
        }
    }
    return false;
}

bool NamesAPerson(std::string_view text) {
    for (int clan = 1; clan <= game.NumPlayers; ++clan) {
        if (!IsPerson(clan)) {
            continue;
        }
        if (Names(text, game.Players[clan].Name)) {
            return true;
        }
        for (int amoeba = 1; amoeba <= game.MaxAmoeba; ++amoeba) {
            if (Names(text, game.Amoeba[amoeba][clan].Name)) {
                return true;
            }
        }
    }
    return false;
}

std::vector<std::string_view> SplitLines(std::string_view text) {
    std::vector<std::string_view> lines;
    while (!text.empty()) {
        const auto end = text.find('\n');
        lines.push_back(text.substr(0, end));
        text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
    }
    return lines;
}

}  // namespace

void LineReader::ShowMessage(std::string_view text, int clan) {
    const auto kept = CountKept(text);
    Drop(kept);
    const auto lines = SplitLines(text);
    if (lines.size() > kept) {
        for (Line& line : lines_) {
            line.Paused = 0;
        }
    }
    for (std::size_t i = kept; i < lines.size(); ++i) {
        Add(lines[i], clan);
    }
    message_ = text;
}

void LineReader::Pause(int units) {
    for (Line& line : lines_) {
        line.Paused += units;
    }
}

void LineReader::Wait() {
    Robot::Wait();
    for (Line& line : lines_) {
        line.Read = true;
    }
}

/// So many lines stay where they are: all of them below which something is added, and those that are
/// left when the last ones go. The same text once more is another one.
std::size_t LineReader::CountKept(std::string_view text) const {
    if (text == message_) {
        return 0;
    }
    const auto lines = SplitLines(text);
    std::size_t kept = 0;
    while (kept < lines.size() && kept < lines_.size() && lines_[kept].Text == lines[kept]) {
        ++kept;
    }
    return kept == lines_.size() || kept == lines.size() ? kept : 0;
}

void LineReader::Drop(std::size_t from) {
    for (std::size_t i = from; i < lines_.size(); ++i) {
        Gone.push_back(lines_[i].Text);
        if (!lines_[i].Read && lines_[i].Paused < lines_[i].Needed) {
            Unseen.push_back(lines_[i].Text);
        }
    }
    lines_.resize(from);
}

void LineReader::Add(std::string_view text, int clan) {
    const bool person = IsPerson(clan) || NamesAPerson(text);
    ++Lines;
    PersonsLines += person ? 1 : 0;
    lines_.push_back({std::string(text), person ? UnitsForAPersonsLine : UnitsForALine});
}

}  // namespace plasmos::testing
