// SPDX-License-Identifier: GPL-3.0-or-later
#include <gmock/gmock.h>

#include <algorithm>
#include <functional>
#include <iterator>

#include "ai/computer_move.h"
#include "rules/aggression.h"
#include "rules/computer_clan.h"
#include "rules/division.h"
#include "rules/environment.h"
#include "rules/feeding.h"
#include "rules/fight.h"
#include "rules/menus.h"
#include "rules/move_amoeba.h"
#include "rules/movement.h"
#include "tests/support/game_fixture.h"
#include "tests/support/scripted_board.h"

namespace plasmos::testing {
namespace {

constexpr int Spot = 9;

/// What holding a gene changes: the same scene is played by four clans without and with it. A scene is
/// told whether the gene is held, for rolls that are rolled only then; what it gives is compared.
struct GeneRow {
    std::string_view Name;
    std::string_view Gene;
    int Clan;  ///< the clan that holds it
    std::function<int(bool holds)> Play;
    int Without;
    int With;
};

void PrintTo(const GeneRow& row, std::ostream* out) {
    *out << row.Name;
}

class GeneEffects : public GameRows<GeneRow> {};

TEST_P(GeneEffects, ShowInPlay) {
    const GeneRow& row = GetParam();
    for (const bool holds : {false, true}) {
        NewPosition(4);
        if (holds) {
            Give(row.Clan, row.Gene);
        }
        EXPECT_EQ(row.Play(holds), holds ? row.With : row.Without) << (holds ? "with " : "without ") << row.Gene;
    }
}

int SquareOf(int clan, int amoeba) {
    return game.Amoeba[amoeba][clan].Square;
}

/// A computer clan's A1 moves from square 13, where there is nothing to eat; the current is still.
int MoveA1(std::vector<int> rolls) {
    Put(1, 1, 13);
    Script script(std::move(rolls));
    ComputerMoveAmoeba(1, 1);
    return SquareOf(1, 1);
}

/// A person's A1 attempts to move elsewhere and rolls a 5; what the clan pays for that.
int PaidForAnAttempt() {
    Person(1);
    Put(1, 1, 13);
    game.BP[1] = 2;
    ScriptedBoard board;
    board.Then(Yes());
    Script script({5});
    MovePersonsAmoeba(1, 1);
    return 2 - game.BP[1];
}

/// A computer clan adapts to a UV level with 9 BP; what it pays for that.
int PaidForTheEnvironment(int uv) {
    game.EnvDeck[1] = {uv, 0};
    game.BP[1] = 9;
    EnvironmentPhase();
    return 9 - game.BP[1];
}

/// A1 attacks B1, whose clan has 2 BP, in the aggression step; 1: B1 is still on the board.
int SurvivesAnAttack(std::vector<int> rolls) {
    Put(1, 1, 13);
    Put(2, 1, 13);
    game.BP[2] = 2;
    Script script(std::move(rolls));
    AttackAmoeba(2, 13, 0);
    return SquareOf(2, 1) != 0 ? 1 : 0;
}

/// A1, a computer clan's with 1 BP, feeds in square 13 beside D1, whose clan has 1 BP; its damage.
int DamageAfterFeeding(std::vector<int> rolls) {
    Put(1, 1, 13);
    Put(4, 1, 13);
    game.BP[1] = game.BP[4] = 1;
    Script script(std::move(rolls));
    ComputerFeedAmoeba(1, 1, 13);
    return game.Amoeba[1][1].Damage;
}

/// What clan 1 is suggested to eat of the food in a square.
int Suggested(std::initializer_list<int> food) {
    Feed(13, food);
    return SuggestMenu(13, 1);
}

/// Clan 1 can eat in square 12, next to its amoeba in 13.
void MealLeft() {
    Feed(12, {0, 1, 1, 1});
}

using Rolls = std::vector<int>;

// clang-format off
const GeneRow GeneRows[] = {
    {"intelligence_is_worth_its_points_and_nothing_else", "int", 1, [](bool) { return PaidForTheEnvironment(2); }, 0,
     1},
    {"movement_1_steers_for_a_single_meal", "mv1", 1, [](bool holds)
     { MealLeft(); game.BP[1] = 1; return MoveA1(holds ? Rolls{2, 3, Spot} : Rolls{}); }, 13, 12},
    {"spores_are_placed_far_away", "spo", 1, [](bool)
     { Put(1, 1, 1); Put(1, 2, 2); return PlacingSquares(1, true).Count(); }, 5, 23},
    {"speed_moves_where_there_is_nothing_to_find", "spe", 1, [](bool holds)
     { game.BP[1] = 1; return MoveA1(holds ? Rolls{2, Spot} : Rolls{}); }, 13, 18},
    {"defence_beats_an_attack_off", "def", 2, [](bool holds)
     { return SurvivesAnAttack(holds ? Rolls{1, 2} : Rolls{}); }, 0, 1},
    {"escape_flees_from_an_attack", "esc", 2, [](bool holds)
     { return SurvivesAnAttack(holds ? Rolls{2, Spot} : Rolls{}); }, 0, 1},
    {"substitution_eats_fewer_colours", "sub", 1, [](bool) { return Suggested({0, 3, 1, 0}); }, 0, 31},
    {"ray_protection_lowers_the_mutation_level", "ray", 1, [](bool)
     { Give(1, "def"); return PaidForTheEnvironment(3); }, 1, 0},
    {"streamlining_moves_free", "str", 1, [](bool) { return PaidForAnAttempt(); }, 1, 0},
    {"a_tentacle_brings_its_meal", "ten", 1, [](bool) { Put(1, 1, 13); Feed(13, {0, 1, 0, 0}); Feed(14, {0, 0, 1, 1});
     Script script({Spot}); MoveAmoeba(1, 1, 14); return game.Food[14][2]; }, 0, 1},
    {"holding_stays_at_its_meal", "hol", 1, [](bool holds)
     { game.Drift = 1; Feed(13, {0, 1, 1, 1}); return MoveA1(holds ? Rolls{} : Rolls{Spot}); }, 14, 13},
    {"holding_rides_along", "hol", 2, [](bool holds) { Put(1, 1, 13); Put(2, 1, 13); Feed(14, {1, 0, 1, 1}); Script
     script(holds ? Rolls{Spot, 8} : Rolls{Spot}); MoveAmoeba(1, 1, 14); return SquareOf(2, 1); }, 13, 14},
    {"a_longer_life_survives_starving_twice", "lif", 1, [](bool)
     { Put(1, 1, 13); game.Amoeba[1][1].Damage = 2; AggressionPhase(); return SquareOf(1, 1); }, 0, 13},
    {"frugality_eats_less", "fru", 1, [](bool) { return Suggested({0, 1, 1, 0}); }, 0, 11},
    {"struggle_for_survival_eats_another_amoeba", "sfs", 1, [](bool holds)
     { return DamageAfterFeeding(holds ? Rolls{4} : Rolls{}); }, 1, 0},
    {"struggle_for_survival_hunts", "sfs", 1, [](bool holds)
     { game.BP[1] = 1; Put(2, 1, 12); Put(3, 1, 18); return MoveA1(holds ? Rolls{2, Spot} : Rolls{}); }, 13, 18},
    {"parasitism_borrows_what_is_missing", "par", 1, [](bool)
     { Feed(13, {0, 1, 1, 0}); return DamageAfterFeeding({}); }, 1, 0},
    {"parasitism_spares_the_poor", "par", 1, [](bool)
     { Put(1, 1, 13); Put(2, 1, 13); return HasVictim(13, 1) ? 1 : 0; }, 1, 0},
    {"division_rate_divides_for_less", "div", 1, [](bool) { return DivisionPrice(1); }, 6, 4},
    {"persistence_defends_itself_twice", "per", 2, [](bool holds)
     { Give(2, "def"); return SurvivesAnAttack(holds ? Rolls{2, 1, 1, 2} : Rolls{2, 1}); }, 0, 1},
    {"persistence_attacks_twice", "per", 1, [](bool holds)
     { Give(2, "def"); return SurvivesAnAttack(holds ? Rolls{1, 2, 2, 1} : Rolls{1, 2}); }, 1, 0},
    {"movement_2_goes_where_it_can_eat", "mv2", 1, [](bool holds)
     { MealLeft(); game.BP[1] = 1; return MoveA1(holds ? Rolls{1, Spot} : Rolls{}); }, 13, 12},
    {"aggression_attacks", "agg", 1, [](bool holds) { Put(1, 1, 13); Put(2, 1, 13); game.BP[1] = 1; Script
     script(holds ? Rolls{2} : Rolls{}); AggressionPhase(); return SquareOf(2, 1); }, 13, 0},
    {"armour_survives_an_attack", "arm", 2, [](bool) { return SurvivesAnAttack({}); }, 0, 1},
    {"armour_is_never_eaten_by_a_computer_clan", "arm", 4, [](bool)
     { Give(1, "agg"); return DamageAfterFeeding({4}); }, 0, 1},
};
// clang-format on

INSTANTIATE_TEST_SUITE_P(Genes, GeneEffects, ::testing::ValuesIn(GeneRows), RowName());

TEST(GeneEffectRows, NameEveryGene) {
    for (int gene = 1; gene <= GeneCount; ++gene) {
        const auto rows = std::count_if(std::begin(GeneRows), std::end(GeneRows),
                                        [gene](const GeneRow& row) { return row.Gene == GeneCodes[gene]; });
        EXPECT_GE(rows, 1) << GeneCodes[gene];
    }
}

}  // namespace
}  // namespace plasmos::testing
