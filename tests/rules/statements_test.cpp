// SPDX-License-Identifier: GPL-3.0-or-later
#include <gmock/gmock.h>

#include <functional>

#include "model/genes.h"
#include "model/message_line.h"
#include "rules/feeding.h"
#include "rules/fight.h"
#include "rules/menus.h"
#include "rules/move_amoeba.h"
#include "tests/support/game_fixture.h"
#include "tests/support/scripted_board.h"

namespace plasmos::testing {
namespace {

/// Something that amoeba A1 of clan 1 does in square 13, and that is told without a question after it.
struct StatementRow {
    std::string_view Name;
    std::function<void()> Happens;
    std::vector<int> Rolls;
    std::vector<std::string> Texts;  ///< of the message line, one after the other
    bool Concerns3 = false;          ///< clan 3, too
};

void PrintTo(const StatementRow& row, std::ostream* out) {
    *out << row.Name;
}

bool BeginsWith(const std::string& text, const std::string& beginning) {
    return text.compare(0, beginning.size(), beginning) == 0;
}

/// The texts that were replaced by others, without those of questions.
std::vector<std::string> ReplacedTexts(const ScriptedBoard& board) {
    std::vector<std::string> texts;
    for (std::size_t i = 0; i + 1 < board.Messages.size(); ++i) {
        const auto& text = board.Messages[i];
        if (!BeginsWith(board.Messages[i + 1], text + "\n") && !BeginsWith(text, "Choose ")) {
            texts.push_back(text);
        }
    }
    return texts;
}

class Statement : public GameRows<StatementRow> {
protected:
    /// Every text is left for so many units where this clan is a person's (0: none is).
    static void ExpectPauses(int units, int person) {
        const StatementRow& row = GetParam();
        NewPosition(3);
        if (person != 0) {
            Person(person);
        }
        Put(1, 1, 13);
        Put(2, 1, 13);
        game.CurPlayer = game.CurAmoeba = 1;
        game.BP[1] = game.BP[2] = 3;
        ScriptedBoard board;
        board.AnswerBy([](Question& question) { question.Put(WithPieces(Answer::Kind::Pick, {{2, 1}})); });
        Script script(row.Rolls);
        row.Happens();
        ClearMessage();
        EXPECT_EQ(ReplacedTexts(board), row.Texts);
        EXPECT_EQ(board.Pauses, std::vector<int>(row.Texts.size(), units));
    }
};

TEST_P(Statement, IsLeftToAPersonToRead) {
    ExpectPauses(10, 1);
}

TEST_P(Statement, OfAComputerClanCanBeRead) {
    ExpectPauses(4, 0);
}

TEST_P(Statement, IsLeftToThePersonWhomItConcerns) {
    ExpectPauses(GetParam().Concerns3 ? 10 : 4, 3);
}

const StatementRow StatementRows[] = {
    {"a_meal",
     [] {
         Feed(13, {0, 2, 2});
         EatSuggestion(SuggestMenu(13, 1), 13);
     },
     {},
     {"A1 eats 21 in 13"}},
    {"a_parasites_meal_is_two_lines",
     [] {
         Give(1, "par");
         Put(3, 1, 13);
         Feed(13, {0, 2, 0});
         game.BP[2] = 0;
         game.BP[3] = 1;
         EatAsParasite(FindParasiteMeal(13, 1), 13);
     },
     {},
     {"A1 parasitizing off of clan Player 3\nA1 eats 21 in 13"},
     true},
    {"a_hitch_hiker",
     [] {
         Give(2, "hol");
         Feed(14, {3, 0, 3});
         MoveAmoeba(1, 1, 14);
     },
     {9, 10},
     {"B1 holding on to A1"}},
    {"an_attacked_clan_that_escapes",
     [] {
         Give(2, {"esc", "mv2"});
         AttackAmoeba(2, 13, 0);
     },
     {9},
     {"A1 picking a fight with B1 in 13", "B1 escaped to 12!"}},
    {"an_attack_on_armour",
     [] {
         Give(2, "arm");
         game.BP[2] = 0;
         AttackAmoeba(2, 13, 0);
     },
     {},
     {"A1 picking a fight with B1 in 13"}},
};

INSTANTIATE_TEST_SUITE_P(Told, Statement, ::testing::ValuesIn(StatementRows), RowName());

class Purchases : public GameTest {};

TEST_F(Purchases, OfAComputerClanCanBeReadOneByOne) {
    NewPosition(3);
    ScriptedBoard board;
    game.BP[1] = 10;
    BuyGene(GeneNumber("mv1"));
    BuyGene(GeneNumber("spe"));
    ClearMessage();
    EXPECT_THAT(board.Messages,
                ::testing::ElementsAre("Player 1 just bought: Movement 1", "Player 1 just bought: Speed", ""));
    EXPECT_THAT(board.Pauses, ::testing::ElementsAre(4, 4));
}

/// Clan 2 is a person's and can escape and defend; A1 of computer clan 1 attacks B1 in square 13.
class AttackOnAPerson : public GameTest {
protected:
    AttackOnAPerson() {
        NewPosition(3);
        Person(2);
        Give(2, {"esc", "def"});
        Put(1, 1, 13);
        Put(2, 1, 13);
        game.CurPlayer = game.CurAmoeba = 1;
        game.BP[2] = 3;
    }
    /// Says no and remembers what stood in the message line.
    Line LookAndRefuse() {
        return Do("LookAndRefuse", [this](Question& question) {
            Shown.push_back(game.Message.String());
            question.Put(NoAnswer());
        });
    }

    ScriptedBoard board;
    std::vector<std::string> Shown;
};

TEST_F(AttackOnAPerson, ToEatIsToldAboveEachQuestion) {
    board.Then({LookAndRefuse(), LookAndRefuse()});
    bool hungry = true;
    AttackToEat(2, 13, 1, hungry, 0);
    EXPECT_THAT(Shown, ::testing::ElementsAre(
                           "A1 (1) of Player 1 attacks B1 (1) in 13 to eat it.\n"
                           "Player 2: Would you like to pay 1BP for B1 to attempt to Escape the attack?",
                           "A1 (1) of Player 1 attacks B1 (1) in 13 to eat it.\n"
                           "Player 2: would you like to pay 1BP for B1 to Defend itself against the attack?"));
    EXPECT_EQ(board.Questions[0].Text, "Player 2: Would you like to pay 1BP for B1 to attempt to Escape the attack?");
    EXPECT_TRUE(board.HasLogLine("A1 (1) of Player 1 attacks B1 (1) in 13 to eat it."));
}

TEST_F(AttackOnAPerson, OfAggressionIsToldAboveEachQuestion) {
    board.Then({LookAndRefuse(), LookAndRefuse()});
    AttackAmoeba(2, 13, 0);
    EXPECT_THAT(Shown, ::testing::ElementsAre(
                           "A1 picking a fight with B1 in 13\nA1 belongs to Player 1.\n"
                           "Player 2: Would you like to pay 1BP for B1 to attempt to Escape the attack?",
                           "A1 picking a fight with B1 in 13\nA1 belongs to Player 1.\n"
                           "Player 2: would you like to pay 1BP for B1 to Defend itself against the attack?"));
}

TEST_F(AttackOnAPerson, WhoIsNotAskedIsToldToo) {
    game.BP[2] = 0;
    bool hungry = true;
    AttackToEat(2, 13, 1, hungry, 0);
    EXPECT_THAT(board.Messages,
                ::testing::ElementsAre("A1 (1) of Player 1 attacks B1 (1) in 13 to eat it.", "B1 Eaten!"));
    EXPECT_THAT(board.Pauses, ::testing::ElementsAre(10, 15));
}

}  // namespace
}  // namespace plasmos::testing
