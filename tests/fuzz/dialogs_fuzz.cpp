// SPDX-License-Identifier: GPL-3.0-or-later
// The entries of the food and the gene dialog: nothing ever becomes negative, and the books are right.
#include "model/consistency.h"
#include "model/genes.h"
#include "model/presentation.h"
#include "model/services.h"
#include "questions/visit.h"
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
        question.Put(bytes_.AtEnd() ? Plainest(question) : Any(question));
    }

private:
    /// Any answer at all, whether the question has a control for it or not.
    Answer Any(const Question& question) {
        using Kind = Answer::Kind;
        const auto allowed = question.Allowed();
        switch (bytes_.Below(8)) {
            case 0:
            case 1:
            case 2: return allowed[static_cast<std::size_t>(bytes_.Below(static_cast<int>(allowed.size())))];
            case 3: return TypedInto(Kind::Field, bytes_.Below(9) - 1, bytes_.Text(45));
            case 4: return TypedInto(Kind::Pay, 0, bytes_.Text(45));
            case 5: return Numbered(Kind::Tick, bytes_.Below(23) - 1);
            case 6: return Numbered(Kind::Mark, bytes_.Below(9) - 1);
            default:
                return Numbered(static_cast<Kind>(bytes_.Below(static_cast<int>(Kind::Close) + 1)), bytes_.Below(9));
        }
    }

    /// What ends a question in the end: step after step the way out.
    static Answer Plainest(const Question& question) {
        using Kind = Answer::Kind;
        return Visit(question, Overloaded{[](const YesNoQuestion&) { return NoAnswer(); },
                                          [](const FoodForm& form) { return WayOutOf(form); },
                                          [](const GeneForm& form) { return WayOutOf(form); },
                                          [](const Question& other) {
                                              return other.Kind == QuestionKind::Square ? other.Allowed().front()
                                                                                        : Plain(Kind::Close);
                                          }});
    }

    static Answer WayOutOf(const FoodForm& form) {
        if (form.sfsoptValue) {
            return Plain(Answer::Kind::Struggle);
        }
        if (form.paroptValue) {
            return Plain(Answer::Kind::Parasitism);
        }
        return form.SuggestedMenu > 0 ? WithAmounts(Answer::Kind::Eat, Suggested(form)) : Plain(Answer::Kind::Starve);
    }

    static std::vector<int> Suggested(const FoodForm& form) {
        std::vector<int> amounts;
        for (int colour = 1; colour <= game.NumPlayers; ++colour) {
            amounts.push_back(form.SuggestedAmounts[colour]);
        }
        return amounts;
    }

    static Answer WayOutOf(const GeneForm& form) {
        for (int gene = 1; form.Adapts && form.UVdiff > 0 && gene <= GeneCount; ++gene) {
            if (form.gcheck[gene].Ticked && form.gcheck[gene].Enabled) {
                return Numbered(Answer::Kind::Untick, gene);
            }
        }
        return Plain(Answer::Kind::Done);
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
