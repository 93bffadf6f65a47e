// SPDX-License-Identifier: GPL-3.0-or-later
#include "model/lost_line.h"

#include "files/encoding.h"
#include "files/text.h"
#include "model/observer.h"
#include "model/services.h"

namespace plasmos {

namespace {

constexpr std::string_view Word = "lost ";

}  // namespace

std::string LostLine::Text() const {
    return Concat(Word, Line, ": ", Error, " ", OneLine(FromFileBytes(Why)));
}

std::string LostLine::Parse(std::string_view line, LostLine& read) {
    read = {};
    auto rest = line;
    if (TakeWord(rest, Word) && TakeNumber(rest, read.Line) && read.Line > 0 && TakeWord(rest, ":") &&
        TakeNumber(rest, read.Error) && IsFileError(read.Error) && TakeWord(rest, " ") && !rest.empty()) {
        read.Why = OneLine(FromFileBytes(rest));
        return {};
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
