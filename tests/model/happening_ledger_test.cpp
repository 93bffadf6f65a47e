// SPDX-License-Identifier: GPL-3.0-or-later
// Whole games, worked out from nothing but what happens in them.
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <functional>

#include "flow/play_game.h"
#include "model/happening.h"
#include "model/observer.h"
#include "sim/robot.h"
#include "tests/support/game_fixture.h"
#include "tests/support/test_scale.h"

namespace plasmos::testing {
namespace {

using Kind = Happening::Kind;

/// A second set of tables, kept by what is heard alone.
struct Ledger {
    Table<Table<Piece, 0, MaxClans>, 0, MaxPieces> Amoeba;
    Table<int, 0, MaxClans> Count, BP, Score;
    Table<Table<bool, 0, MaxClans>, 0, GeneCount> Genes;
    Table<Table<int, 0, MaxClans>, 0, MaxSquares> Food;
    int UVLevel = 0;
    int Drift = 0;

    /// What every clan and square begins with.
    void Begin();
    void Enter(const Happening& happening);

private:
    void EnterPiece(const Happening& happening);
    void EnterMeal(const Happening& meal);
    void EnterClan(const Happening& happening);
    void LeaveFood(const Happening& end);
};

void Ledger::Begin() {
    for (int clan = 1; clan <= game.NumPlayers; ++clan) {
        BP[clan] = 4;
        for (int square = 1; square <= game.NumSquares; ++square) {
            Food[square][clan] = game.Blocked[square] ? 0 : 2;
        }
    }
}

void Ledger::EnterPiece(const Happening& happening) {
    Piece& piece = Amoeba[happening.Amoeba][happening.Clan];
    switch (happening.What) {
        case Kind::Moves:
        case Kind::Rides:
        case Kind::IsDragged:
        case Kind::Escapes:
            EXPECT_EQ(piece.Square, happening.From);
            piece.Square = happening.Square;
            piece.Slot = happening.Number;
            break;
        case Kind::ChangesSpot: piece.Slot = happening.Number; break;
        case Kind::Starves:
        case Kind::IsWounded: EXPECT_EQ(++piece.Damage, happening.Number); break;
        case Kind::IsBorn:
            piece.Square = happening.Square;
            piece.Slot = happening.Number;
            ++Count[happening.Clan];
            break;
        case Kind::Dies:
            piece = {};
            --Count[happening.Clan];
            break;
        default: break;
    }
}

void Ledger::EnterMeal(const Happening& meal) {
    int colours = meal.Second;
    for (int menu = meal.Number; menu > 0; menu /= 10, colours /= 10) {
        Food[meal.Square][colours % 10] -= colours % 10 == 0 ? 0 : menu % 10;
    }
    Food[meal.Square][meal.Clan] += 2;
}

void Ledger::LeaveFood(const Happening& end) {
    for (int colour = 1; colour <= game.NumPlayers; ++colour) {
        Food[end.Square][colour] += end.Number;
    }
}

void Ledger::EnterClan(const Happening& happening) {
    switch (happening.What) {
        case Kind::BuysGene: Genes[happening.Number][happening.Clan] = true; break;
        case Kind::LosesGene: Genes[happening.Number][happening.Clan] = false; break;
        case Kind::PaysBP: BP[happening.Clan] -= happening.Number; break;
        case Kind::GainsBP: BP[happening.Clan] += happening.Number; break;
        case Kind::ScoreMoves: Score[happening.Clan] = happening.Number; break;
        default: break;
    }
}

void Ledger::Enter(const Happening& happening) {
    EnterPiece(happening);
    EnterClan(happening);
    switch (happening.What) {
        case Kind::CarriesFood:
            Food[happening.From][happening.OtherClan] -= happening.Number;
            Food[happening.Square][happening.OtherClan] += happening.Number;
            break;
        case Kind::Eats: EnterMeal(happening); break;
        case Kind::Dies:
        case Kind::IsEaten:
        case Kind::IsTorn: LeaveFood(happening); break;
        case Kind::CardIsTurned:
            UVLevel = happening.Number;
            Drift = happening.Second;
            break;
        default: break;
    }
}

/// Keeps a ledger and compares it with the state after every step.
class Bookkeeper : public Observer {
public:
    Bookkeeper() { services.Listener = this; }
    ~Bookkeeper() override { services.Listener = nullptr; }

    bool WantsText() const override { return false; }
    void OnRoll(int, int) override {}
    void OnBegin(Step, int, int) override {}
    void OnHappening(const Happening& happening) override {
        ++Heard[static_cast<std::size_t>(happening.What)];
        if (happening.What == Kind::OrderIsMade && game.Turn == 0) {
            ledger_.Begin();
        }
        ledger_.Enter(happening);
    }
    void OnEnd(Step step, int, int) override {
        ComparePieces();
        CompareClans(step == Step::Score);
        EXPECT_EQ(ledger_.UVLevel, game.UVLevel);
        EXPECT_EQ(ledger_.Drift, game.Drift);
        for (int square = 1; square <= game.NumSquares; ++square) {
            EXPECT_EQ(ledger_.Food[square], game.Food[square]) << "square " << square;
        }
    }
    void OnSay(std::string_view) override {}
    void OnBox(std::string_view) override {}
    void OnAsk(const Question&) override {}
    void OnAnswer(const Question&, const Answer&, bool) override {}
    void OnOver() override {}

    std::array<long, static_cast<std::size_t>(Kind::OrderIsMade) + 1> Heard{};

private:
    void ComparePieces() const {
        for (int amoeba = 1; amoeba <= MaxPieces; ++amoeba) {
            for (int clan = 1; clan <= game.NumPlayers; ++clan) {
                const Piece& told = ledger_.Amoeba[amoeba][clan];
                const Piece& piece = game.Amoeba[amoeba][clan];
                EXPECT_EQ(told.Square, piece.Square) << clan << ',' << amoeba;
                EXPECT_EQ(told.Slot, piece.Slot) << clan << ',' << amoeba;
                EXPECT_EQ(told.Damage, piece.Damage) << clan << ',' << amoeba;
            }
        }
    }
    void CompareClans(bool scored) const {
        EXPECT_EQ(ledger_.Genes, game.Genes);
        for (int clan = 1; clan <= game.NumPlayers; ++clan) {
            EXPECT_EQ(ledger_.BP[clan], game.BP[clan]) << clan;
            EXPECT_EQ(ledger_.Count[clan], game.AmoebaCount[clan]) << clan;
            if (scored) {
                EXPECT_EQ(ledger_.Score[clan], game.Players[clan].Score) << clan;
            }
        }
    }

    Ledger ledger_;
};

/// A board and the number of clans that play on it.
struct LedgerRow {
    std::string_view Name;
    int Clans, Rows, Cols;
    std::string_view Blocks;
};

void PrintTo(const LedgerRow& row, std::ostream* out) {
    *out << row.Name;
}

constexpr int Games = 500;

class Ledgers : public GameRows<LedgerRow> {};

TEST_P(Ledgers, EqualTheStateAfterEveryStep) {
    std::array<long, static_cast<std::size_t>(Kind::OrderIsMade) + 1> heard{};
    for (int replay = 1; replay <= Scaled(Games); ++replay) {
        SetBoard(GetParam().Rows, GetParam().Cols, GetParam().Blocks);
        game.RequestedClans = GetParam().Clans;
        game.HasRequestedReplay = true;
        game.RequestedReplay = static_cast<float>(replay);
        game.Menu.twoplayermen = replay % 2 == 0;
        Robot robot(7, static_cast<std::uint64_t>(replay));
        services.Window = &robot;
        Bookkeeper bookkeeper;
        PlayOneGame();
        services.Window = nullptr;
        ASSERT_FALSE(HasFailure()) << "replay number " << replay;
        std::transform(heard.begin(), heard.end(), bookkeeper.Heard.begin(), heard.begin(), std::plus<>());
    }
    for (std::size_t kind = 0; kind < heard.size() && Scaled(Games) >= Games; ++kind) {
        EXPECT_GT(heard[kind], 0) << KindName(static_cast<Kind>(kind));
    }
}

const LedgerRow LedgerRows[] = {
    {"of_four_clans", 4, 5, 5, ""},
    {"of_six_clans_on_the_smallest_board", 6, 3, 4, ""},
    {"of_five_clans_between_blocks", 5, 6, 6, "7:12:22:"},
};

INSTANTIATE_TEST_SUITE_P(Boards, Ledgers, ::testing::ValuesIn(LedgerRows), RowName());

}  // namespace
}  // namespace plasmos::testing
