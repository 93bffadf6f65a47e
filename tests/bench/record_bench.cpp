// SPDX-License-Identifier: GPL-3.0-or-later
// What it costs to open a game's record, to look at a moment of it, and to keep an input.
#include <benchmark/benchmark.h>

#include <filesystem>

#include "record/kept_games.h"
#include "record/play_record.h"
#include "tests/bench/robots_game.h"

namespace {

using namespace plasmos;

/// A whole game of one robot person among five computer clans, by which turn 10 has been played.
const std::string& RecordOfAGame() {
    static const std::string text = [] {
        GameRecorder recorder;
        PlayRobotsGame(6, recorder);
        return RecordText(recorder.Record());
    }();
    return text;
}

void ReadARecord(benchmark::State& state) {
    const std::string& text = RecordOfAGame();
    for (auto _ : state) {
        benchmark::DoNotOptimize(ParseRecord(text));
    }
    state.counters["bytes"] = static_cast<double>(text.size());
}
BENCHMARK(ReadARecord)->Unit(benchmark::kMicrosecond);

void PlayARecordApart(benchmark::State& state) {
    const ReadRecord read = ParseRecord(RecordOfAGame());
    for (auto _ : state) {
        benchmark::DoNotOptimize(PlayRecordApart(read.Record).Sound);
    }
    state.counters["inputs"] = static_cast<double>(read.Record.Inputs.size());
}
BENCHMARK(PlayARecordApart)->Unit(benchmark::kMicrosecond);

void LookAtAMoment(benchmark::State& state) {
    const ReadRecord read = ParseRecord(RecordOfAGame());
    for (auto _ : state) {
        benchmark::DoNotOptimize(StateAt(read.Record, 1500).Turn);
    }
}
BENCHMARK(LookAtAMoment)->Unit(benchmark::kMicrosecond);

/// The hundredth input of a game costs what the thousandth does.
void KeepAnInput(benchmark::State& state) {
    const auto folder = std::filesystem::temp_directory_path() / "plasmos-record-bench";
    {
        GameKeeper keeper(folder.string());
        keeper.Begin(std::string(static_cast<std::size_t>(state.range(0)) * 16, 'x') + "\n");
        for (auto _ : state) {
            keeper.Add("03fa square 7\n");
        }
        keeper.Remove();
    }
    std::filesystem::remove_all(folder);
}
BENCHMARK(KeepAnInput)->Arg(100)->Arg(1000)->Unit(benchmark::kMicrosecond);

}  // namespace

BENCHMARK_MAIN();
