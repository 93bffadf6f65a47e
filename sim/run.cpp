// SPDX-License-Identifier: GPL-3.0-or-later
#include "sim/run.h"

#include <atomic>
#include <chrono>
#include <cinttypes>
#include <cstdio>
#include <memory>
#include <new>
#include <optional>

#ifdef _WIN32
#include <io.h>
#else
#include <unistd.h>
#endif

#include "files/file_place.h"
#include "files/game_files.h"
#include "model/dice.h"
#include "model/signature.h"
#include "sim/options.h"
#include "sim/output.h"
#include "sim/results.h"
#include "sim/simulate.h"

namespace plasmos {

namespace {

std::atomic<bool> interrupted{false};

constexpr int ExitFinding = 1;
constexpr int ExitBadInput = 2;
constexpr int ExitInterrupted = 130;

using Clock = std::chrono::steady_clock;

double SecondsSince(Clock::time_point start) {
    return std::chrono::duration<double>(Clock::now() - start).count();
}

bool IsTerminal() {
#ifdef _WIN32
    return _isatty(_fileno(stderr)) != 0;
#else
    return isatty(fileno(stderr)) != 0;
#endif
}

/// A bar on standard error.
class ProgressBar {
public:
    ProgressBar(const SimOptions& options)
        : games_(options.Games),
          shown_(options.Progress == ProgressMode::Always || (options.Progress == ProgressMode::Auto && IsTerminal())) {
    }

    void Advance() {
        ++done_;
        if (shown_ && (SecondsSince(last_) > 0.1 || done_ == games_)) {
            Draw();
        }
    }
    void Clear() const {
        if (shown_) {
            std::fprintf(stderr, "\r%*s\r", Width + 40, "");
        }
    }

private:
    static constexpr int Width = 40;

    void Draw() {
        const auto filled = static_cast<int>(done_ * Width / games_);
        std::fprintf(stderr, "\r[%s%s] %" PRId64 "/%" PRId64,
                     std::string(static_cast<std::size_t>(filled), '#').c_str(),
                     std::string(static_cast<std::size_t>(Width - filled), '.').c_str(), done_, games_);
        std::fflush(stderr);
        last_ = Clock::now();
    }

    std::int64_t games_;
    bool shown_;
    std::int64_t done_ = 0;
    Clock::time_point last_ = Clock::now();
};

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

/// The games of a run on their way to the results and the journal.
class GameRun {
public:
    explicit GameRun(const SimOptions& options)
        : options_(options), output_(options.Output, Interrupted), writer_(options.Format), progress_(options) {
        if (!options.Journal.empty()) {
            journal_.emplace(options.Journal, Interrupted);
            if (journal_->IsSameAs(output_)) {
                RefuseOnePlaceForBoth(options);
            }
        }
    }

    /// Plays the games. True: one of them was faulty, which ended the run.
    bool Play() {
        const auto data = OpenData(options_);
        output_.Write(writer_.Begin());
        const auto start = Clock::now();
        SimulateGames(options_, data.get(), Interrupted, [this](const GameResult& result) { return Take(result); });
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
    GameRun run(options);
    const bool faulty = run.Play();
    run.Tell();
    return ExitCode(faulty);
}

int Run(int argc, const char* const* argv) {
    try {
        const SimOptions options = ParseOptions(argc, argv);
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
