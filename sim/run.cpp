// SPDX-License-Identifier: GPL-3.0-or-later
#include "sim/run.h"

#include <atomic>
#include <chrono>
#include <cinttypes>
#include <cstdio>
#include <filesystem>
#include <functional>
#include <memory>
#include <new>
#include <optional>

#include "files/file_place.h"
#include "files/game_files.h"
#include "model/dice.h"
#include "model/signature.h"
#include "record/record_file.h"
#include "sim/merge.h"
#include "sim/options.h"
#include "sim/output.h"
#include "sim/progress_bar.h"
#include "sim/results.h"
#include "sim/simulate.h"

namespace plasmos {

namespace {

std::atomic<bool> interrupted{false};

constexpr int ExitFinding = 1;
constexpr int ExitBadInput = 2;
constexpr int ExitInterrupted = 130;

bool Interrupted() {
    return interrupted.load(std::memory_order_relaxed);
}

std::unique_ptr<DataFolder> OpenData(const SimOptions& options) {
    if (options.Data.empty()) {
        return nullptr;
    }
    auto folder = std::make_unique<DataFolder>(options.Data);
    try {
        folder->MakeFolder();
    } catch (const RuntimeError& error) {
        throw OutputError(Concat("--data: ", std::string_view(error.what())));
    }
    return folder;
}

void TellFault(const SimOptions& options, const GameResult& result) {
    std::fprintf(stderr, "plasmos-sim: game %s%s: %s\n", ReplayText(result.Replay).c_str(),
                 options.Check ? " (checked)" : "", result.Fault.c_str());
}

int ExitCode(bool faulty) {
    if (faulty) {
        return ExitFinding;
    }
    return Interrupted() ? ExitInterrupted : 0;
}

int RunBench(const SimOptions& options) {
    const auto start = Clock::now();
    std::int64_t games = 0;
    std::int64_t decisions = 0;
    std::uint64_t signature = 0;
    bool faulty = false;
    SimulateGames(options, nullptr, Interrupted, [&](const GameResult& result) {
        faulty = !result.Fault.empty();
        if (faulty) {
            TellFault(options, result);
            return false;
        }
        ++games;
        decisions += result.Decisions;
        signature = FoldHash(signature, result.Signature);
        return true;
    });
    const double seconds = SecondsSince(start);
    char line[200];
    std::snprintf(line, sizeof line,
                  "games=%" PRId64 " decisions=%" PRId64 " seconds=%.3f games_per_second=%.0f signature=%016" PRIx64
                  "\n",
                  games, decisions, seconds, static_cast<double>(games) / seconds, signature);
    PrintOut(line, Interrupted);
    return ExitCode(faulty);
}

[[noreturn]] void RefuseOnePlaceForBoth(const SimOptions& options) {
    throw UsageError(
        Concat("--journal: ", options.Journal, " is where the results go; the journal must have a place of its own"));
}

/// The same place for both is refused before anything waits for somebody who reads there.
void CheckPlaces(const SimOptions& options) {
    const bool same = !options.Journal.empty() && !options.Output.empty() &&
                      (WithoutLinks(options.Journal) == WithoutLinks(options.Output)
                           ? !IdentityOf(options.Journal).KeepsNothing
                           : IdentityOf(options.Journal).IsSameAs(IdentityOf(options.Output)));
    if (same) {
        RefuseOnePlaceForBoth(options);
    }
}

/// What is read is not written to.
void CheckMergedPlaces(const SimOptions& options) {
    for (const std::string& path : options.Merge) {
        if (!options.Output.empty() && IdentityOf(options.Output).IsSameAs(IdentityOf(path))) {
            throw UsageError(Concat("--output: ", options.Output, " is one of the results that are added up"));
        }
    }
}

std::string RecordPath(const SimOptions& options, float replay) {
    return (std::filesystem::path(options.Records) / Concat(ReplayText(replay), RecordEnding)).string();
}

/// Nothing that lies in the folder already is overwritten.
void MakeRecordFolder(const SimOptions& options) {
    if (options.Records.empty()) {
        return;
    }
    std::error_code error;
    if (std::filesystem::create_directories(options.Records, error); error) {
        throw OutputError(Concat("--records: the folder ", options.Records, " cannot be made: ", error.message()));
    }
    for (std::int64_t index = 0; index < options.Games; ++index) {
        const auto path = RecordPath(options, ReplayOf(options, index));
        if (std::filesystem::exists(path, error)) {
            throw UsageError(Concat("--records: ", path, " is there already, and no record is overwritten"));
        }
    }
}

/// The games of a run on their way to the results and the journal.
class GameRun {
public:
    explicit GameRun(const SimOptions& options)
        : options_(options),
          output_(options.Output, Interrupted),
          writer_(options.Format),
          progress_(options.Progress, options.Games) {
        if (!options.Journal.empty()) {
            journal_.emplace(options.Journal, Interrupted);
            if (journal_->IsSameAs(output_)) {
                RefuseOnePlaceForBoth(options);
            }
        }
    }

    using Games = std::function<void(const std::function<bool(const GameResult&)>& take)>;

    /// Takes the games as they are played. True: one of them was faulty, which ended the run.
    bool Play(const Games& games) {
        output_.Write(writer_.Begin());
        const auto start = Clock::now();
        games([this](const GameResult& result) { return Take(result); });
        seconds_ = SecondsSince(start);
        progress_.Clear();
        Finish();
        return faulty_;
    }

    void Tell() const {
        std::fprintf(stderr, "%" PRId64 " games in %.2f s, %.0f games per second\n", games_, seconds_,
                     static_cast<double>(games_) / seconds_);
    }

private:
    bool Take(const GameResult& result) {
        if (journal_) {
            journal_->Write(result.Journal);
        }
        KeepRecord(result);
        faulty_ = !result.Fault.empty();
        if (faulty_) {
            progress_.Clear();
            TellFault(options_, result);
            return false;
        }
        output_.Write(writer_.Add(result));
        ++games_;
        progress_.Advance();
        return true;
    }

    void KeepRecord(const GameResult& result) const {
        if (!options_.Records.empty()) {
            const auto path = RecordPath(options_, result.Replay);
            if (const auto fault = WriteRecordFile(path, result.Record); !fault.empty()) {
                throw OutputError(Concat("--records: ", fault));
            }
        }
    }

    void Finish() {
        output_.Write(writer_.End());
        output_.Finish();
        if (journal_) {
            journal_->Finish();
            journal_->Commit();
        }
        output_.Commit();
    }

    const SimOptions& options_;
    Output output_;
    std::optional<Output> journal_;
    ResultWriter writer_;
    ProgressBar progress_;
    std::int64_t games_ = 0;
    double seconds_ = 0;
    bool faulty_ = false;
};

int RunGames(const SimOptions& options) {
    CheckPlaces(options);
    MakeRecordFolder(options);
    GameRun run(options);
    const auto data = OpenData(options);
    const bool faulty = run.Play([&](const auto& take) { SimulateGames(options, data.get(), Interrupted, take); });
    run.Tell();
    return ExitCode(faulty);
}

/// A record that does not fit leaves every output as it was.
int RunRecord(const SimOptions& options) {
    CheckPlaces(options);
    const auto data = OpenData(options);
    const GameResult result = SimulateRecord(options, data.get());
    GameRun run(options);
    return ExitCode(run.Play([&](const auto& take) { take(result); }));
}

/// Results that do not fit together leave the output as it was.
int RunMerge(const SimOptions& options) {
    CheckMergedPlaces(options);
    Output output(options.Output, Interrupted);
    ResultWriter writer(options.Format);
    output.Write(writer.Begin());
    MergeResults(options, [&](const GameResult& result) {
        output.Write(writer.Add(result));
        return !Interrupted();
    });
    if (Interrupted()) {
        return ExitInterrupted;
    }
    output.Write(writer.End());
    output.Finish();
    output.Commit();
    return 0;
}

int Run(int argc, const char* const* argv) {
    try {
        const SimOptions options = ParseOptions(argc, argv);
        if (!options.Record.empty()) {
            return RunRecord(options);
        }
        if (!options.Merge.empty()) {
            return RunMerge(options);
        }
        return options.Bench ? RunBench(options) : RunGames(options);
    } catch (const HelpWanted& help) {
        PrintOut(help.Text, Interrupted);
        return 0;
    }
}

}  // namespace

void InterruptSimulator() {
    interrupted.store(true, std::memory_order_relaxed);
}

int RunSimulator(int argc, const char* const* argv) {
    try {
        return Run(argc, argv);
    } catch (const WaitEnded&) {
        return ExitInterrupted;
    } catch (const std::bad_alloc&) {
        std::fputs("plasmos-sim: out of memory\n", stderr);
    } catch (const std::exception& error) {
        std::fprintf(stderr, "plasmos-sim: %s\n", error.what());
    }
    return ExitBadInput;
}

}  // namespace plasmos
