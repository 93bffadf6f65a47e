// SPDX-License-Identifier: GPL-3.0-or-later
#include "model/lost_line.h"

#include <charconv>

#include "files/encoding.h"
#include "files/text.h"
#include "model/observer.h"
#include "model/services.h"

namespace plasmos {

namespace {

/// Takes a number and what follows it off a line. False: the line begins otherwise.
bool TakeNumber(std::string_view& line, int& number, std::string_view behind) {
    const auto [end, error] = std::from_chars(line.data(), line.data() + line.size(), number);
    if (error != std::errc()) {
        return false;
    }
    line.remove_prefix(static_cast<std::size_t>(end - line.data()));
    if (line.substr(0, behind.size()) != behind) {
        return false;
    }
    line.remove_prefix(behind.size());
    return true;
}

constexpr std::string_view Word = "lost ";

}  // namespace

std::string LostLine::Text() const {
    return Concat(Word, Line, ": ", Error, " ", OneLine(FromFileBytes(Why)));
}

std::string LostLine::Parse(std::string_view line, LostLine& read) {
    read = {};
    auto rest = line;
    if (rest.substr(0, Word.size()) == Word) {
        rest.remove_prefix(Word.size());
        if (TakeNumber(rest, read.Line, ": ") && read.Line > 0 && TakeNumber(rest, read.Error, " ") &&
            IsFileError(read.Error) && !rest.empty()) {
            read.Why = OneLine(FromFileBytes(rest));
            return {};
        }
    }
    return Concat("\"", line, R"(" names no line that was lost, as in "lost 57: 61 Disk full")");
}

void LoseAgain() {
    if (IsLostAgain()) {
        throw RuntimeError(services.ToLose->Error, services.ToLose->Why);
    }
}

void TellOfLostLine(const RuntimeError& error) {
    if (services.Listener != nullptr && IsFileError(error.Number)) {
        services.Listener->OnLost({services.MoveLines, error.Number, error.what()});
    }
}

bool IsLostAgain() {
    return services.ToLose != nullptr && services.ToLose->Line == services.MoveLines;
}

}  // namespace plasmos
