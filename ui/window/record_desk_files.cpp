// SPDX-License-Identifier: GPL-3.0-or-later
//
// Saving and opening records.

#include <algorithm>
#include <filesystem>

#include "model/game_state.h"
#include "record/play_record.h"
#include "record/record_file.h"
#include "ui/look/palette.h"
#include "ui/window/record_desk.h"

namespace plasmos {

namespace {

QString HowFar(const PlayedRecord& played, std::size_t inputs) {
    return QStringLiteral("\n\nThe game is opened as far as it is sound: %1 of %2 inputs, to turn %3.")
        .arg(played.Sound)
        .arg(inputs)
        .arg(std::min(played.State.Turn, LastTurn));
}

}  // namespace

bool RecordDesk::Save(const std::string& path) {
    GameRecord record = recorder_->Record();
    DropLeaving(record.Inputs);
    const auto fault = WriteRecordFile(path, RecordText(record));
    if (!fault.empty()) {
        deeds_.Tell(ToQt(fault));
    }
    return fault.empty();
}

bool RecordDesk::IsKeptGame(const std::string& path) const {
    return !folder_.empty() && std::filesystem::path(path).parent_path() == std::filesystem::path(folder_);
}

bool RecordDesk::Open(const std::string& path) {
    if (IsKeptGame(path) && IsPlayedElsewhere(path)) {
        deeds_.Tell(QStringLiteral("This game is being played already.\n%1").arg(ToQt(path)));
        return false;
    }
    ReadRecord read = ReadRecordFile(path);
    DropLeaving(read.Record.Inputs);
    const PlayedRecord played = read.HasHead ? PlayRecordApart(read.Record) : PlayedRecord();
    const RecordFault fault = FaultOf(read, played);
    const std::size_t inputs = read.Record.Inputs.size();
    const bool opens = read.HasHead && played.HeadFits;
    if (!fault.Text.empty()) {
        const auto told = fault.Line > 0 || opens ? Concat(path, "\n", fault.Told()) : fault.Told();
        deeds_.Tell(ToQt(told) + (opens ? HowFar(played, inputs) : QString()));
    }
    if (opens) {
        read.Record.Inputs.resize(std::min(inputs, played.Sound));
        Go({std::move(read.Record), 0, true, IsKeptGame(path) ? path : std::string()});
    }
    return opens;
}

}  // namespace plasmos
