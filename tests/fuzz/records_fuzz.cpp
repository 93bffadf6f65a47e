// SPDX-License-Identifier: GPL-3.0-or-later
// The reader of records, and games played from what it has read: whatever a file holds, it is refused with one line
// or played as far as it is sound, and what is sound is written as it was read.
#include "model/consistency.h"
#include "record/play_record.h"
#include "tests/fuzz/fuzz.h"

namespace plasmos::fuzz {
namespace {

constexpr std::size_t MostInputs = 400;

void PlaySound(const ReadRecord& read) {
    GameRecord record = read.Record;
    record.Inputs.resize(std::min(record.Inputs.size(), MostInputs));
    const PlayedRecord played = PlayRecord(record);
    Require(played.Sound <= record.Inputs.size(), "no more is sound than there is");
    Require(played.Fault.find('\n') == std::string::npos, "a fault is one line");
    if (!played.HeadFits) {
        return;
    }
    record.Inputs.resize(played.Sound);
    const PlayedRecord again = PlayRecord(record);
    Require(again.Fault.empty() && again.Sound == played.Sound, "what is sound can be played alone");
}

}  // namespace
}  // namespace plasmos::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace plasmos;
    using namespace plasmos::fuzz;
    const ReadRecord read = ParseRecord(Bytes(data, size).Rest());
    Require(read.HasHead || !read.Fault.Text.empty(), "without a head there is a fault");
    Require(read.Fault.Told().find('\n') == std::string::npos, "a fault is one line");
    Require(read.Lines.size() == read.Record.Inputs.size(), "every input has its line");
    if (read.HasHead) {
        const ReadRecord again = ParseRecord(RecordText(read.Record));
        Require(again.Fault.Text.empty() && again.Record.Head == read.Record.Head &&
                    again.Record.Inputs == read.Record.Inputs,
                "what was read is written and read again");
        PlaySound(read);
    }
    return 0;
}
