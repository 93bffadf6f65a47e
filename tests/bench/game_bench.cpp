// SPDX-License-Identifier: GPL-3.0-or-later
// What a game and its parts cost, and how a decision compares with the plain work it consists of.
#include <benchmark/benchmark.h>

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <vector>

#include "ai/computer_genes.h"
#include "ai/computer_move.h"
#include "flow/new_game.h"
#include "flow/play_game.h"
#include "model/dice.h"
#include "model/genes.h"
#include "rules/computer_clan.h"
#include "rules/menus.h"

namespace {

using namespace plasmos;

void Prepare(float replay, int clans) {
    SetBoard(5, 5);
    game.AutoPlay = game.FastMode = true;
    game.HasRequestedReplay = true;
    game.RequestedReplay = replay;
    game.RequestedClans = clans;
}

/// A position in the middle of a game with five clans, to start every repetition from.
GameState MiddleOfGame() {
    Prepare(7, 5);
    NewGame();
    for (game.Turn = 1; game.Turn <= 4; ++game.Turn) {
        PlayRound();
    }
    return game;
}

void WholeGame(benchmark::State& state) {
    float replay = 0;
    std::int64_t decisions = 0;
    for (auto _ : state) {
        Prepare(++replay, 0);
        PlayUnattended();
        decisions += game.Decisions;
    }
    state.counters["decision"] =
        benchmark::Counter(static_cast<double>(decisions), benchmark::Counter::kIsRate | benchmark::Counter::kInvert);
}
BENCHMARK(WholeGame)->Unit(benchmark::kMicrosecond);

void SuggestMenuInMiddle(benchmark::State& state) {
    game = MiddleOfGame();
    int square = 0;
    for (auto _ : state) {
        square = square % game.NumSquares + 1;
        benchmark::DoNotOptimize(SuggestMenu(square, 3));
    }
}
BENCHMARK(SuggestMenuInMiddle);

void CanEatInMiddle(benchmark::State& state) {
    game = MiddleOfGame();
    int square = 0;
    for (auto _ : state) {
        square = square % game.NumSquares + 1;
        benchmark::DoNotOptimize(CanEat(square, 3));
    }
}
BENCHMARK(CanEatInMiddle);

void OneComputerMove(benchmark::State& state) {
    const GameState middle = MiddleOfGame();
    game = middle;
    for (auto _ : state) {
        for (int clan = 1; clan <= game.NumPlayers; ++clan) {
            game.BP[clan] = 4;
            for (int amoeba = 1; amoeba <= game.MaxAmoeba; ++amoeba) {
                if (game.Amoeba[amoeba][clan].Square > 0) {
                    game.CurPlayer = clan;
                    game.CurAmoeba = amoeba;
                    ComputerMoveAmoeba(clan, amoeba);
                }
            }
        }
    }
    int pieces = 0;
    for (int clan = 1; clan <= middle.NumPlayers; ++clan) {
        pieces += middle.AmoebaCount[clan];
    }
    state.SetItemsProcessed(state.iterations() * pieces);
}
BENCHMARK(OneComputerMove);

void OneComputerPurchase(benchmark::State& state) {
    const GameState middle = MiddleOfGame();
    for (auto _ : state) {
        state.PauseTiming();
        game = middle;
        game.CurPlayer = 1;
        game.BP[1] = 12;
        state.ResumeTiming();
        ComputerBuyGenes();
    }
}
BENCHMARK(OneComputerPurchase);

void NewGameAlone(benchmark::State& state) {
    float replay = 0;
    for (auto _ : state) {
        Prepare(++replay, 5);
        NewGame();
    }
}
BENCHMARK(NewGameAlone)->Unit(benchmark::kMicrosecond);

using FoodTable = int[MaxSquares][MaxClans];

/// Looks for the squares that hold enough of some colour; every look is a branch that the dice decide.
int ScanFood(const FoodTable& food, int wanted) {
    int found = 0;
    for (const auto& square : food) {
        for (const int pieces : square) {
            if (pieces >= wanted) {
                ++found;
                benchmark::DoNotOptimize(found);
            } else if (pieces + 1 == wanted) {
                --found;
                benchmark::DoNotOptimize(found);
            }
        }
    }
    return found;
}

/// The plain work a decision is measured by: one die, one copy of a food table, one branchy scan.
void ScanDieAndCopy(benchmark::State& state) {
    Pcg32 generator;
    generator.Seed(42, 54);
    FoodTable food;
    for (auto& square : food) {
        for (int& pieces : square) {
            pieces = static_cast<int>(generator.Next() % 6);
        }
    }
    FoodTable copy;
    for (auto _ : state) {
        const auto face = static_cast<int>((std::uint64_t{generator.Next()} * 6) >> 32U) + 1;
        std::copy(&food[0][0], &food[0][0] + MaxSquares * MaxClans, &copy[0][0]);
        benchmark::DoNotOptimize(copy);
        benchmark::DoNotOptimize(ScanFood(copy, face));
    }
}
BENCHMARK(ScanDieAndCopy);

/// Collects the two figures of the ratio from the repetitions.
class RatioReporter : public benchmark::ConsoleReporter {
public:
    void ReportRuns(const std::vector<Run>& runs) override {
        ConsoleReporter::ReportRuns(runs);
        for (const Run& run : runs) {
            if (run.run_type != Run::RT_Iteration) {
                continue;
            }
            if (run.benchmark_name().rfind("WholeGame", 0) == 0) {
                decision_.push_back(run.counters.at("decision").value * 1e9);
            } else if (run.benchmark_name().rfind("ScanDieAndCopy", 0) == 0) {
                plain_.push_back(run.GetAdjustedCPUTime());
            }
        }
    }

    void PrintRatio() {
        if (decision_.empty() || plain_.empty()) {
            return;
        }
        std::printf("decision: %.1f ns, scan + die + copy: %.1f ns, ratio (of medians): %.2f\n", Median(decision_),
                    Median(plain_), Median(decision_) / Median(plain_));
    }

private:
    static double Median(std::vector<double> values) {
        std::sort(values.begin(), values.end());
        return values[values.size() / 2];
    }

    std::vector<double> decision_;
    std::vector<double> plain_;
};

}  // namespace

int main(int argc, char** argv) {
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) {
        return 2;
    }
    RatioReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    reporter.PrintRatio();
    return 0;
}
