// SPDX-License-Identifier: GPL-3.0-or-later
#include "rules/new_genes.h"

#include <gmock/gmock.h>
#include <rapidcheck.h>

#include "model/consistency.h"
#include "questions/visit.h"
#include "tests/support/game_fixture.h"
#include "tests/support/scripted_board.h"

namespace plasmos::testing {
namespace {

/// What a person's clan holds, what is sold out, its BP, and whether it is asked.
struct OfferRow {
    std::string_view Name;
    int BP;
    std::vector<std::string_view> Held;
    std::vector<std::string_view> SoldOut;
    bool Asked;
};

void PrintTo(const OfferRow& row, std::ostream* out) {
    *out << row.Name;
}

class Offers : public GameRows<OfferRow> {};

TEST_P(Offers, AreMadeToWhoCanBuyAmongTheFirstTenGenes) {
    NewPosition(6);
    for (const auto code : GetParam().Held) {
        Give(3, code);
    }
    for (const auto code : GetParam().SoldOut) {
        game.Catalogue[GeneNumber(code)].Supply = 0;
    }
    game.BP[3] = GetParam().BP;
    EXPECT_EQ(OffersGenes(3), GetParam().Asked);
}

const OfferRow OfferRows[] = {
    {"one_bp_is_never_asked", 1, {}, {}, false},
    {"no_bp_is_never_asked", 0, {}, {}, false},
    {"two_bp_buy_intelligence", 2, {}, {}, true},
    {"two_bp_with_intelligence_are_not_asked", 2, {"int"}, {}, false},
    {"two_bp_with_intelligence_sold_out_are_not_asked", 2, {}, {"int"}, false},
    {"three_bp_with_intelligence_buy_movement", 3, {"int"}, {}, true},
    {"four_bp_pass_over_what_is_held", 4, {"int", "mv1", "spo"}, {}, true},
    {"four_bp_stop_at_the_first_gene_that_costs_5", 4, {"int", "mv1", "spo", "spe", "def", "esc", "sub"}, {}, false},
    {"a_held_gene_that_costs_too_much_ends_the_walk_too",
     4,
     {"int", "mv1", "spo", "spe", "def", "esc", "sub", "ray"},
     {},
     false},
    {"all_ten_held_and_5_bp_is_asked",
     5,
     {"int", "mv1", "spo", "spe", "def", "esc", "sub", "ray", "str", "ten"},
     {},
     true},
    {"the_first_ten_sold_out_and_5_bp_is_asked",
     5,
     {},
     {"int", "mv1", "spo", "spe", "def", "esc", "sub", "ray", "str", "ten"},
     true},
};
INSTANTIATE_TEST_SUITE_P(NewGenes, Offers, ::testing::ValuesIn(OfferRows), RowName());

class NewGenesTest : public GameTest {
protected:
    static void Begin(int bp) {
        NewPosition(4);
        Person(3);
        game.Turn = 2;
        game.BP[3] = bp;
    }
    static GeneForm& Form(Question& question) { return *As<GeneForm>(&question); }
};

TEST_F(NewGenesTest, ThePersonIsAskedWithItsNameAndBp) {
    Begin(7);
    ScriptedBoard board;
    board.Then(No());
    NewGenesPhase();
    ASSERT_EQ(board.Questions.size(), 1U);
    EXPECT_EQ(board.Questions[0].Text, "Clan Player 3, you have 7 BP.\nWould you like to buy new Genes?");
    EXPECT_EQ(HeldGenes(3), "");
}

TEST_F(NewGenesTest, BoxesBuyAtOnceAndCanBeTakenBack) {
    Begin(9);
    ScriptedBoard board;
    board.Then({Yes(),
                Do("buy",
                   [](Question& question) {
                       auto& form = Form(question);
                       EXPECT_EQ(form.BPlabel, "9");
                       EXPECT_TRUE(form.BPlabelVisible);
                       form.gcheck_Click(GeneId("spe"));
                       EXPECT_EQ(game.BP[3], 9) << "the rule buys, not the click";
                   }),
                Do("give back",
                   [](Question& question) {
                       auto& form = Form(question);
                       EXPECT_EQ(game.BP[3], 5);
                       EXPECT_EQ(form.BPlabel, "5");
                       EXPECT_EQ(game.Catalogue[4].Supply, 1);
                       EXPECT_EQ(game.Players[3].MutationLevel, 3);
                       EXPECT_TRUE(form.gcheck[4].Enabled) << "a purchase of this visit can be undone";
                       EXPECT_FALSE(form.gcheck[GeneId("sfs")].Enabled) << "6 BP are too much now";
                       form.gcheck_Click(GeneId("spe"));
                   }),
                Do("buy another",
                   [](Question& question) {
                       EXPECT_EQ(game.BP[3], 9);
                       EXPECT_EQ(game.Catalogue[4].Supply, 2);
                       EXPECT_EQ(game.Players[3].MutationLevel, 0);
                       Form(question).gcheck_Click(GeneId("int"));
                       Form(question).gcheck_Click(GeneId("mv1"));
                   }),
                Do("done", [](Question& question) {
                    EXPECT_FALSE(Form(question).gcheck[2].Ticked) << "a click before the rule has bought is ignored";
                    Form(question).doneb_Click();
                    EXPECT_EQ(game.DoneFlag, 1);
                    Form(question).gcheck_Click(GeneId("mv1"));
                })});
    NewGenesPhase();
    EXPECT_EQ(HeldGenes(3), "int") << "a click after done is ignored";
    EXPECT_EQ(game.BP[3], 7);
    EXPECT_EQ(game.DoneFlag, 0);
}

TEST_F(NewGenesTest, WhatWasHeldBeforeCannotBeGivenUpHere) {
    Begin(9);
    Give(3, {"int", "mv1"});
    ScriptedBoard board;
    board.Then({Yes(),
                Do("try",
                   [](Question& question) {
                       auto& form = Form(question);
                       EXPECT_TRUE(form.gcheck[1].Ticked);
                       EXPECT_FALSE(form.gcheck[1].Enabled);
                       form.gcheck_Click(1);
                       form.gcheck_Click(GeneId("spo"));
                   }),
                Do("done", [](Question& question) {
                    EXPECT_FALSE(Form(question).gcheck[1].Enabled);
                    Form(question).doneb_Click();
                })});
    NewGenesPhase();
    EXPECT_EQ(HeldGenes(3), "int mv1 spo");
}

TEST_F(NewGenesTest, WhatAnUpgradeDiscardsStaysDiscarded) {
    Begin(12);
    Give(3, "mv1");
    ScriptedBoard board;
    const auto click = [](Question& question) { Form(question).gcheck_Click(GeneId("mv2")); };
    board.Then({Yes(), Do("upgrade", click),
                Do("and back",
                   [&](Question& question) {
                       EXPECT_FALSE(Form(question).gcheck[2].Ticked) << "the box of the lower gene follows";
                       EXPECT_FALSE(Form(question).gcheck[2].Enabled);
                       click(question);
                   }),
                Do("done", [](Question& question) {
                    EXPECT_EQ(game.BP[3], 12);
                    EXPECT_FALSE(Form(question).gcheck[2].Ticked);
                    EXPECT_TRUE(Form(question).gcheck[2].Enabled) << "it can be bought again";
                    Form(question).doneb_Click();
                })});
    NewGenesPhase();
    EXPECT_EQ(HeldGenes(3), "");
}

TEST_F(NewGenesTest, ClosingTheDialogIsItsDone) {
    Begin(9);
    ScriptedBoard board;
    board.Then({Yes(), CloseIt()});
    NewGenesPhase();
    EXPECT_EQ(game.DialogMode, "NEWGENES") << "the mode stays until another phase sets it";
}

TEST_F(NewGenesTest, TheTipOfStreamliningIsWrongInSmallGamesAndThatOfStruggleRight) {
    NewPosition(4);
    EXPECT_EQ(GeneTip(GeneId("int")), "2 BP; UV 3");
    EXPECT_EQ(GeneTip(GeneId("ray")), "5 BP; UV -2");
    EXPECT_EQ(GeneTip(GeneId("arm")), "6 BP; UV 6");
    EXPECT_EQ(GeneTip(GeneId("str")), "5 BP; UV 5");
    EXPECT_EQ(GeneTip(GeneId("sfs")), "6 BP; UV 4");
    NewPosition(5);
    EXPECT_EQ(GeneTip(GeneId("sfs")), "6 BP; UV 5");
}

/// Clicks boxes one after the other, and looks at the books after each; then it is done.
class Shopper {
public:
    explicit Shopper(std::vector<int> clicks) : clicks_(std::move(clicks)) {}

    void operator()(Question& question) {
        auto* form = As<GeneForm>(&question);
        if (form == nullptr) {
            question.Put(YesAnswer());
            return;
        }
        Look();
        while (next_ < clicks_.size() && !form->Answered()) {
            gene_ = clicks_[next_++];
            const bool real = gene_ >= 1 && gene_ <= GeneCount;
            held_ = real && game.Genes[gene_][3];
            changes_ = real && (held_ || CanBuyGene(3, gene_));
            form->gcheck_Click(gene_);
            Sound = Sound && form->Answered() == changes_;
        }
        form->doneb_Click();
    }

    bool Sound = true;

private:
    void Look() {
        const bool real = gene_ >= 1 && gene_ <= GeneCount;
        Sound = Sound && game.BP[3] >= 0 && (real && game.Genes[gene_][3]) == (held_ != changes_) &&
                CheckConsistency().empty();
    }

    std::vector<int> clicks_;
    std::size_t next_ = 0;
    int gene_ = 0;
    bool held_ = false;
    bool changes_ = false;
};

TEST_F(NewGenesTest, AnySequenceOfClicksKeepsTheBooks) {
    EXPECT_TRUE(rc::check([] {
        NewPosition(*rc::gen::inRange(3, 7));
        Person(3);
        const int bp = *rc::gen::inRange(2, 40);
        game.BP[3] = bp;
        Shopper shopper(*rc::gen::container<std::vector<int>>(rc::gen::inRange(0, 22)));
        ScriptedBoard board;
        board.AnswerBy(std::ref(shopper));
        NewGenesPhase();
        RC_ASSERT(shopper.Sound);
        RC_ASSERT(board.WasAsked(QuestionKind::Genes));
        int value = game.BP[3];
        for (int gene = 1; gene <= GeneCount; ++gene) {
            value += game.Genes[gene][3] ? game.Catalogue[gene].Cost : 0;
        }
        RC_ASSERT(value <= bp);
    }));
}

}  // namespace
}  // namespace plasmos::testing
