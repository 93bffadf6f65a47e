// SPDX-License-Identifier: GPL-3.0-or-later
//
// Saving and opening records.

#include <algorithm>
#include <filesystem>
#include <system_error>

#include "flow/start.h"
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

std::string RecordDesk::KeptPath(const std::string& path) const {
    namespace fs = std::filesystem;
    std::error_code fault;
    const fs::path file = fs::canonical(path, fault);
    const bool kept = !folder_.empty() && !fault && fs::equivalent(file.parent_path(), folder_, fault);
    return kept ? (fs::path(folder_) / file.filename()).string() : std::string();
}

bool RecordDesk::Open(const std::string& path) {
    const std::string kept = KeptPath(path);
    if (!kept.empty() && IsPlayedElsewhere(kept)) {
        deeds_.Tell(QStringLiteral("This game is being played already.\n%1").arg(ToQt(path)));
        return false;
    }
    if (const auto refused = PrepareDataFolder(); !refused.empty()) {
        deeds_.Tell(ToQt(refused));
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
        // What was not sound stays as it is, for whoever wants to know why; half a line is only where the power went.
        const bool goesOnThere = fault.Text.empty() || (played.Fault.empty() && read.CutOff);
        read.Record.Inputs.resize(std::min(inputs, played.Sound));
        Go({.Record = std::move(read.Record),
            .Opened = true,
            .Path = goesOnThere ? kept : std::string(),
            .Counted = kept.empty() || read.Counted});
    }
    return opens;
}

}  // namespace plasmos
