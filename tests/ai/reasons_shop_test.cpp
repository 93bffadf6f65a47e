// SPDX-License-Identifier: GPL-3.0-or-later
// Why a computer clan buys a gene, gives one up, pays, and divides.
#include "rules/division.h"
#include "rules/environment.h"
#include "tests/support/reason_rows.h"

namespace plasmos::testing {
namespace {

constexpr std::int32_t Eater = 303110;
constexpr std::int32_t Mover = 131370;
constexpr std::int32_t Eccentric = 1616;
constexpr std::int32_t Miser = 20482;

/// Clan 1 has seven amoebas on the board unless `Set` takes some off, and UV values sum up to 100.
class ShopReasons : public Reasons {
protected:
    ShopReasons() {
        for (int amoeba = 2; amoeba <= 7; ++amoeba) {
            Put(1, amoeba, amoeba);
        }
        for (int card = 1; card <= 10; ++card) {
            game.EnvDeck[card].UV = 10;
        }
    }
};

TEST_P(ShopReasons, AreTold) {
    Expect(GetParam(), Step::BuyGenes, [] { ComputerBuyGenes(); });
}

void Is(const char* name, std::int32_t personality, int turn, int points) {
    game.Players[1].PersonalityName = name;
    game.Players[1].Personality = personality;
    game.Turn = turn;
    game.BP[1] = points;
}

constexpr const char* Nothing0 = "It has 0 BP and draws for more genes only with 5 to spare.";

// clang-format off
const ReasonRow ShopRows[] = {
    {"the_first_turn_buys_one_favourite", [] { Is("Eater", Eater, 1, 3); }, {},
     {"Movement 1 is a favourite of Player 1 (Eater) and costs 3 of its 3 BP.",
      "In turn 1 it buys one favourite at most.", Nothing0}},
    {"later_turns_buy_all_they_can", [] { Is("Eater", Eater, 2, 6); }, {},
     {"Movement 1 is a favourite of Player 1 (Eater) and costs 3 of its 6 BP.",
      "Spores is a favourite of Player 1 (Eater) and costs 3 of its 3 BP.",
      "Favourites that it cannot buy now: Struggle for Survival (6 BP), Division Rate (6 BP), Aggression (5 BP).",
      Nothing0}},
    {"why_not", [] { Is("Mover", Mover, 2, 5); Give(1, {"esc", "str"}); Give(2, "spe"); Give(3, "spe"); Give(2, "mv1");
                     Give(3, "mv1"); },
     {20, 20, 20, 20, 20},
     {"Favourites that it cannot buy now: Movement 1 (sold out), Speed (sold out), Movement 2 (it needs the lower gene).",
      "A die over all genes threw 5 in a row that it cannot buy."}},
    {"the_upgrade_is_held", [] { Is("Miser", Miser, 2, 0); Give(1, {"mv2", "fru", "par"}); game.BP[1] = 3; }, {},
     {"Favourites that it cannot buy now: Movement 1 (it holds the upgrade).",
      "It has 3 BP and draws for more genes only with 5 to spare."}},
    {"the_cap_of_mutation", [] { Is("Eccentric", Eccentric, 1, 9); Give(1, {"lif", "fru"}); }, {},
     {"Defence would be a favourite, but at mutation level 10 Player 1 buys none: this turn it stops at 10.",
      "It draws for no more genes at mutation level 10: this turn it stops at 10."}},
    {"a_fallback", [] { Is("Miser", Miser, 2, 4); Give(1, {"mv1", "spe"}); }, {},
     {"Favourites that it cannot buy now: Frugality (6 BP), Parasitism (6 BP).",
      "Beside its favourites it takes the first it can of Persistence, Aggression and Armor: Persistence, which costs 4 "
      "of its 4 BP.", Nothing0}},
    {"a_fallback_on_easy", [] { Is("Miser", Miser, 2, 5); Give(1, "mv1"); game.Menu.normmen = false; }, {},
     {"Favourites that it cannot buy now: Frugality (6 BP), Parasitism (6 BP).",
      "Beside its favourites it takes the first it can of Persistence, Aggression, Movement 2 and Armor: Movement 2, which "
      "costs 5 of its 5 BP.", Nothing0}},
    {"a_gene_by_die", [] { Is("Miser", Miser, 2, 6); Give(1, {"mv1", "fru", "par"}); game.EnvDeck[1].UV = 30; }, {20, 7},
     {"Player 1 (Miser) has all its favourites.", "The die over all genes threw 7: Substitution, which costs 4 of its 6 BP.",
      "It has 2 BP and draws for more genes only with 5 to spare."}},
    {"the_reserve_for_divisions", [] { Is("Miser", Miser, 2, 16); Give(1, {"mv1", "fru", "par"});
                                     LiftPiece(1, 6); LiftPiece(1, 7); game.AmoebaCount[1] = 5; },
     {}, {"Player 1 (Miser) has all its favourites.",
          "It has 16 BP, keeps 6 for each of the amoebas it could still divide (2) and draws for more genes only with 5 to "
          "spare."}},
    {"intelligence_from_turn_6_on", [] { Is("Miser", Miser, 6, 2); Give(1, {"mv1", "fru", "par"}); }, {},
     {"Player 1 (Miser) has all its favourites.", "It has 2 BP and draws for more genes only with 5 to spare.",
      "From turn 6 on BP that no division can use go into Intelligence, which costs 2 of its 2 BP."}},
    {"the_last_turn", [] { Is("Miser", Miser, 10, 4); Give(1, {"int", "mv1", "fru", "par"}); }, {},
     {"Player 1 (Miser) has all its favourites.", "It has 4 BP and draws for more genes only with 5 to spare.",
      "In turn 10 it buys whatever it can: Spores, which costs 3 of its 4 BP."}},
};
// clang-format on

INSTANTIATE_TEST_SUITE_P(Shop, ShopReasons, ::testing::ValuesIn(ShopRows), RowName());

/// Clan 1 adapts to the card of turn 1, UV 5.
class AdaptReasons : public Reasons {};

TEST_P(AdaptReasons, AreTold) {
    game.EnvDeck[1] = {5, 1};
    game.Players[1].Personality = Eater;
    GetParam().Set();
    ReasonEar ear;
    EnvironmentPhase();
    EXPECT_EQ(ear.Told, GetParam().Told);
}

// clang-format off
const ReasonRow AdaptRows[] = {
    {"it_fits", [] { Give(1, "mv1"); }, {}, {}},
    {"more_BP_than_that", [] { Give(1, {"mv1", "div"}); }, {},
     {"Player 1 is 2 above the UV level and pays, as its 3 BP are more than that."}},
    {"no_more_BP_than_that", [] { Give(1, {"int", "lif"}); }, {},
     {"Player 1 is 3 above the UV level and gives up genes, as its 3 BP are not more than that.",
      "Intelligence goes: at 2 BP it is the cheapest that is neither Division Rate nor a favourite."}},
    {"the_rest_is_paid", [] { Give(1, {"int", "lif", "hol"}); game.BP[1] = 6; }, {},
     {"Player 1 is 7 above the UV level and gives up genes, as its 6 BP are not more than that.",
      "Intelligence goes: at 2 BP it is the cheapest that is neither Division Rate nor a favourite.",
      "What is still above the UV level, 4, it pays: it is less than 6, and it has more than 5 BP."}},
    {"ray_protection_goes_with_the_others", [] { Give(1, {"ray", "lif", "hol"}); game.BP[1] = 1; }, {},
     {"Player 1 is 2 above the UV level and gives up genes, as its 1 BP are not more than that.",
      "Ray Protection goes: at 5 BP it is the cheapest that is neither Division Rate nor a favourite, which Ray "
      "Protection never is here."}},
    {"favourites_go_last", [] { Give(1, {"mv1", "spo", "div"}); game.BP[1] = 0; }, {},
     {"Player 1 is 5 above the UV level and gives up genes, as its 0 BP are not more than that.",
      "Division Rate goes: only Division Rate and favourites are left, and 0 BP do not cover the 5 still above the UV "
      "level."}},
    {"the_BP_cover_it", [] { Give(1, {"mv1", "spo", "div"}); game.BP[1] = 5; }, {},
     {"Player 1 is 5 above the UV level and gives up genes, as its 5 BP are not more than that.",
      "It keeps what is left, as its 5 BP cover the 5 still above the UV level."}},
    {"a_high_score_ends_the_love_of_ray_protection", []
     { Give(1, {"int", "lif"}); game.Players[1].Personality = Eater | 128; game.Players[1].Score = 34; }, {},
     {"Player 1 is 3 above the UV level and gives up genes, as its 3 BP are not more than that.",
      "With more than 33 points Ray Protection is no favourite any more.",
      "Intelligence goes: at 2 BP it is the cheapest that is neither Division Rate nor a favourite."}},
};
// clang-format on

INSTANTIATE_TEST_SUITE_P(Adapting, AdaptReasons, ::testing::ValuesIn(AdaptRows), RowName());

/// Clan 1 divides at 6 BP; a second amoeba stands in square 1.
class DivideReasons : public Reasons {
protected:
    DivideReasons() { Put(1, 2, 1); }
};

TEST_P(DivideReasons, AreTold) {
    Expect(GetParam(), Step::Divide, [] { ComputerDivide(6); });
}

void InTurn(int turn, int points) {
    game.Turn = turn;
    game.BP[1] = points;
}
/// So many failed draws of a square that will not do, then more rolls.
std::vector<int> AfterDraws(std::vector<int> more) {
    std::vector<int> rolls(23, 24);
    rolls.insert(rolls.end(), more.begin(), more.end());
    return rolls;
}

constexpr int Spot = 9;

// clang-format off
const ReasonRow DivideRows[] = {
    {"a_coin_says_no", [] { InTurn(1, 60); }, {2}, {"In turn 1 a coin decides whether Player 1 divides once: it threw 2, so it does not."}},
    {"a_coin_says_yes", [] { InTurn(1, 60); Meals({2}); }, {1, 24, 2, Spot},
     {"In turn 1 a coin decides whether Player 1 divides once: it threw 1, so it does.",
      "The die over squares 1 to 24 found 2, where it may divide and can eat, on draw 2 of up to 23."}},
    {"too_little_BP", [] { InTurn(5, 5); }, {}, {"Player 1 has 5 BP, too few for an amoeba at 6."}},
    {"all_on_the_board", [] { InTurn(5, 60); for (int piece = 3; piece <= 7; ++piece) { Put(1, piece, piece); } }, {},
     {"Player 1 has all its 7 amoebas on the board."}},
    {"one_less_until_turn_4", [] { InTurn(4, 13); Meals({2}); }, {2, Spot},
     {"Player 1 has BP for 2 amoebas at 6 and room for 5, and until turn 4 it makes one less than it could.",
      "The die over squares 1 to 24 found 2, where it may divide and can eat, on draw 1 of up to 23."}},
    {"no_meal_next_door", [] { InTurn(5, 6); }, AfterDraws({3, Spot}),
     {"Player 1 has BP for 1 amoeba at 6 and room for 5.",
      "23 draws found no meal where it may divide: of those 6 squares a die took 8."}},
    {"spores_fall_anywhere", [] { InTurn(5, 6); Give(1, "spo"); }, AfterDraws({1, 13, 20, Spot}),
     {"Player 1 has BP for 1 amoeba at 6 and room for 5.",
      "23 draws found no meal where it may divide; the next square without an amoeba of its own was 20."}},
};
// clang-format on

INSTANTIATE_TEST_SUITE_P(Dividing, DivideReasons, ::testing::ValuesIn(DivideRows), RowName());

}  // namespace
}  // namespace plasmos::testing
