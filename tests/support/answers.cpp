// SPDX-License-Identifier: GPL-3.0-or-later
#include "model/game_state.h"
#include "model/genes.h"
#include "questions/ask.h"
#include "questions/choice_forms.h"
#include "questions/food_form.h"
#include "questions/gene_form.h"
#include "questions/victim_form.h"
#include "tests/support/scripted_board.h"

namespace plasmos::testing {

namespace {

[[noreturn]] void RaiseUnfit(const std::string& answer, const Question& question) {
    throw ScriptError(Concat("the answer ", answer, " does not fit a question of the kind ",
                             QuestionKindName(question.Kind), " to clan ", question.Clan, ": \"", question.Text, "\""));
}

/// An answer for one kind of question; every other question is a fault of the script.
template <class Form, class Act>
Answer AnswerTo(const std::string& name, Act act) {
    return {name, [name, act](Question& question) {
                auto* form = dynamic_cast<Form*>(&question);
                if (form == nullptr) {
                    RaiseUnfit(name, question);
                }
                act(*form);
            }};
}

int FigureIndex(const VictimForm& form, const Figure& wanted) {
    for (std::size_t i = 0; i < form.Figures.size(); ++i) {
        if (form.Figures[i].Clan == wanted.Clan && form.Figures[i].Amoeba == wanted.Amoeba) {
            return static_cast<int>(i);
        }
    }
    RaiseUnfit(Concat("Pick(", wanted.Clan, ",", wanted.Amoeba, ")"), form);
}

}  // namespace

Answer Yes() {
    return AnswerTo<YesNoQuestion>("Yes", [](YesNoQuestion&) { yesb_Click(); });
}

Answer No() {
    return AnswerTo<YesNoQuestion>("No", [](YesNoQuestion&) { nob_Click(); });
}

Answer Square(int square) {
    return AnswerTo<SquareQuestion>(Concat("Square(", square, ")"), [square](SquareQuestion&) {
        const int col = (square - 1) % game.NumCols;
        const int row = (square - 1) / game.NumCols;
        Picture1_MouseUp(col * SquareUnits + SquareUnits / 2, row * SquareUnits + SquareUnits / 2);
    });
}

Answer ClickAt(int x, int y) {
    return AnswerTo<SquareQuestion>(Concat("ClickAt(", x, ",", y, ")"),
                                    [x, y](SquareQuestion&) { Picture1_MouseUp(x, y); });
}

Answer Ok() {
    return AnswerTo<BoxQuestion>("Ok", [](BoxQuestion& box) { box.ok_Click(); });
}

Answer Number(int number) {
    return AnswerTo<AmNumfrm>(Concat("Number(", number, ")"), [number](AmNumfrm& form) { form.amopt_Click(number); });
}

Answer Amoeba(int amoeba) {
    return AnswerTo<AmChoicefrm>(Concat("Amoeba(", amoeba, ")"),
                                 [amoeba](AmChoicefrm& form) { form.amopt_Click(amoeba); });
}

Answer Nobody() {
    return AnswerTo<AmChoicefrm>("Nobody", [](AmChoicefrm& form) { form.amoptb_Click(); });
}

Answer Eat(std::vector<int> amounts) {
    return AnswerTo<FoodForm>("Eat", [amounts = std::move(amounts)](FoodForm& form) {
        for (std::size_t i = 0; i < amounts.size(); ++i) {
            form.fdtxt_Change(static_cast<int>(i) + 1, Concat(amounts[i]));
        }
        form.eatb_Click();
    });
}

Answer EatSuggested() {
    return AnswerTo<FoodForm>("EatSuggested", [](FoodForm& form) {
        form.suggest_Click();
        form.eatb_Click();
    });
}

Answer Parasitize() {
    return AnswerTo<FoodForm>("Parasitize", [](FoodForm& form) {
        form.paropt_Click();
        form.victimb_Click();
    });
}

Answer Struggle() {
    return AnswerTo<FoodForm>("Struggle", [](FoodForm& form) {
        form.sfsopt_Click();
        form.victimb_Click();
    });
}

Answer Pick(std::vector<Figure> figures) {
    return AnswerTo<VictimForm>("Pick", [figures = std::move(figures)](VictimForm& form) {
        for (const Figure& figure : figures) {
            form.figure_Click(FigureIndex(form, figure));
        }
        if (figures.empty()) {
            form.Form_Close();
        } else {
            form.doneb_Click();
        }
    });
}

Answer Genes(std::vector<std::string> codes, std::string bp) {
    return AnswerTo<GeneForm>("Genes", [codes = std::move(codes), bp = std::move(bp)](GeneForm& form) {
        for (const std::string& code : codes) {
            form.gcheck_Click(GeneNumber(code));
        }
        if (!bp.empty()) {
            form.EnvBP_Change(bp);
        }
        form.doneb_Click();
    });
}

Answer CloseIt() {
    return {"CloseIt", [](Question& question) {
                if (auto* number = dynamic_cast<AmNumfrm*>(&question)) {
                    number->Form_Close();
                } else if (auto* choice = dynamic_cast<AmChoicefrm*>(&question)) {
                    choice->Form_Close();
                } else if (auto* food = dynamic_cast<FoodForm*>(&question)) {
                    food->Form_Close();
                } else if (auto* victim = dynamic_cast<VictimForm*>(&question)) {
                    victim->Form_Close();
                } else if (auto* genes = dynamic_cast<GeneForm*>(&question)) {
                    genes->Form_Close();
                } else if (auto* box = dynamic_cast<BoxQuestion*>(&question)) {
                    box->ok_Click();
                } else {
                    RaiseUnfit("CloseIt", question);
                }
            }};
}

Answer EndTheProgram() {
    return {"EndTheProgram", [](Question&) { throw ProgramEnd{}; }};
}

Answer Do(std::string name, std::function<void(Question&)> give) {
    return {std::move(name), std::move(give)};
}

}  // namespace plasmos::testing
