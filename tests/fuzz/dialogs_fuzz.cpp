// SPDX-License-Identifier: GPL-3.0-or-later
// The entries of the food and the gene dialog: nothing ever becomes negative, and the books are right.
#include "model/consistency.h"
#include "model/genes.h"
#include "model/presentation.h"
#include "model/services.h"
#include "questions/ask.h"
#include "questions/food_form.h"
#include "questions/gene_form.h"
#include "questions/victim_form.h"
#include "rules/environment.h"
#include "rules/feeding.h"
#include "rules/new_genes.h"
#include "tests/fuzz/fuzz.h"

namespace plasmos::fuzz {
namespace {

/// A person whose answers are the bytes; after their end it gives the plainest answer.
class TypingPerson : public Presentation {
public:
    explicit TypingPerson(Bytes& bytes) : bytes_(bytes) { services.Window = this; }
    ~TypingPerson() override { services.Window = nullptr; }

    bool WantsText() const override { return false; }
    void Open(Question& question) override { open_.push_back(&question); }
    void Close(Question&) override { open_.pop_back(); }

    void Wait() override {
        Question& question = *open_.back();
        switch (question.Kind) {
            case QuestionKind::YesNo: bytes_.AtEnd() || bytes_.Below(4) == 0 ? nob_Click() : yesb_Click(); break;
            case QuestionKind::Food: Eat(static_cast<FoodForm&>(question)); break;
            case QuestionKind::Genes: Choose(static_cast<GeneForm&>(question)); break;
            case QuestionKind::Victim: Pick(static_cast<VictimForm&>(question)); break;
            default: static_cast<BoxQuestion&>(question).ok_Click(); break;
        }
    }

private:
    void Eat(FoodForm& form) {
        if (bytes_.AtEnd()) {
            EatPlainly(form);
            return;
        }
        switch (bytes_.Below(8)) {
            case 0:
            case 1: form.fdtxt_Change(bytes_.Below(9) - 1, bytes_.Text(45)); break;
            case 2: form.fdtxt_LostFocus(bytes_.Below(8)); break;
            case 3: form.paropt_Click(); break;
            case 4: form.sfsopt_Click(); break;
            case 5: form.victimb_Click(); break;
            case 6: form.suggest_Click(); break;
            default: bytes_.Below(2) == 0 ? form.eatb_Click() : form.Form_Close(); break;
        }
    }

    static void EatPlainly(FoodForm& form) {
        for (int colour = 1; colour <= game.NumPlayers; ++colour) {
            form.fdtxt_Change(colour, "0");
        }
        if (form.sfsoptValue) {
            form.sfsopt_Click();
        }
        if (form.paroptValue || form.fdtxt[0].Visible) {
            form.paropt_Click();
        }
        form.suggest_Click();
        form.eatb_Click();
    }

    void Choose(GeneForm& form) {
        if (bytes_.AtEnd()) {
            form.resetb_Click();
            for (int gene = 1; gene <= GeneCount && game.DialogMode == "ENVIRONMENT"; ++gene) {
                form.gcheck_Click(gene);
            }
            form.doneb_Click();
            return;
        }
        switch (bytes_.Below(5)) {
            case 0:
            case 1: form.gcheck_Click(bytes_.Below(23) - 1); break;
            case 2: form.EnvBP_Change(bytes_.Text(45)); break;
            case 3: form.resetb_Click(); break;
            default: form.doneb_Click(); break;
        }
    }

    void Pick(VictimForm& form) {
        form.figure_Click(bytes_.Below(9) - 1);
        bytes_.Below(3) == 0 ? form.Form_Close() : form.doneb_Click();
        if (!form.Answered() && bytes_.AtEnd()) {
            form.Form_Close();
        }
    }

    Bytes& bytes_;
    std::vector<Question*> open_;
};

void Put(int clan, int amoeba, int square, int slot) {
    PutPiece(clan, amoeba, square, slot);
    ++game.AmoebaCount[clan];
}

void Position(Bytes& bytes) {
    ResetTables();
    SetBoard(5, 5);
    game.NumPlayers = 3 + bytes.Below(4);
    game.MaxAmoeba = game.NumPlayers >= 5 ? 6 : 7;
    game.Turn = 3;
    game.FastMode = true;
    ResetGenes();
    for (int clan = 1; clan <= game.NumPlayers; ++clan) {
        game.PlayOrder[clan] = clan;
        game.Players[clan].Score = 10 - clan;
        game.Players[clan].IsComputer = clan != 3;
        game.BP[clan] = bytes.Below(12);
        Put(clan, 1, 7, clan);
        game.Food[7][clan] = bytes.Below(12);
    }
    Put(1, 2, 7, 20);
    for (int gene = 1; gene <= GeneCount; ++gene) {
        if (bytes.Below(3) == 0 && game.Catalogue[gene].Supply > 0) {
            game.Genes[gene][3] = true;
            --game.Catalogue[gene].Supply;
            game.Players[3].MutationLevel += game.Catalogue[gene].MutationPoints;
        }
    }
    game.EnvDeck[3] = {2 + bytes.Below(12), 1};
    game.CurPlayer = 3;
    game.CurAmoeba = 1;
}

}  // namespace
}  // namespace plasmos::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace plasmos;
    using namespace plasmos::fuzz;
    Bytes bytes(data, size);
    Position(bytes);
    TypingPerson person(bytes);
    FeedAmoeba(7, 3);
    Require(CheckConsistency().empty(), "the state is sound after feeding");
    NewGenesPhase();
    Require(CheckConsistency().empty(), "the state is sound after buying");
    EnvironmentPhase();
    Require(CheckConsistency().empty(), "the state is sound after adapting");
    return 0;
}
