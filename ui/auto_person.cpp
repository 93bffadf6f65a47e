// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/auto_person.h"

#include <QAbstractButton>

#include "model/game_state.h"
#include "model/text.h"
#include "rules/ask.h"
#include "rules/choice_forms.h"
#include "rules/food_form.h"
#include "rules/gene_form.h"
#include "rules/victim_form.h"
#include "ui/piece_layout.h"
#include "ui/puddle_view.h"
#include "ui/uboard.h"

namespace plasmos {

namespace {

int HighestEnabled(const Table<ChoiceOption, 0, 7>& options, int most) {
    for (int k = most; k > 0; --k) {
        if (options[k].Visible && options[k].Enabled) {
            return k;
        }
    }
    return 0;
}

}  // namespace

void AutoPerson::Click(const char* name) {
    for (auto* button : board_.findChildren<QAbstractButton*>(QString::fromLatin1(name))) {
        if (button->isEnabled() && button->isVisible()) {
            button->click();
            return;
        }
    }
}

void AutoPerson::ClickSquare(int square) {
    const auto* puddle = board_.findChild<PuddleView*>();
    const QPointF corner = SquareCorner(square);
    puddle->OnSquarePoint(static_cast<int>(corner.x()) + SquareUnits / 2,
                          static_cast<int>(corner.y()) + SquareUnits / 2);
}

void AutoPerson::AnswerFood(FoodForm& form) {
    if (form.Mode != "TENTACLE" && form.SuggestedMenu > 0 && form.AllZero()) {
        Click("suggestb");
    }
    Click("eatb");
}

// Genes are bought one by one while they are cheap; in the other mode the dearest is given up first.
void AutoPerson::AnswerGenes(GeneForm& form) {
    const bool adapting = game.DialogMode == "ENVIRONMENT";
    for (int gene = adapting ? GeneCount : 1; gene >= 1 && gene <= GeneCount; gene += adapting ? -1 : 1) {
        const bool enough = adapting ? form.UVdiff <= 0 : game.BP[form.Clan] < 5;
        if (!enough && form.gcheck[gene].Enabled && form.gcheck[gene].Ticked == adapting) {
            Click(Concat("gcheck", gene).c_str());
        }
    }
    Click("doneb");
}

void AutoPerson::Answer(Question& question) {
    switch (question.Kind) {
        case QuestionKind::YesNo:
            // Moves are declined twice out of three times, everything else is welcome.
            Click(game.Turn > 0 && game.DialogMode.empty() && ++turns_ % 3 != 0 ? "nob" : "yesb");
            return;
        case QuestionKind::Square: {
            const auto& offered = static_cast<SquareQuestion&>(question).Offered;
            ClickSquare(offered[static_cast<std::size_t>(++turns_) % offered.size()]);
            return;
        }
        case QuestionKind::Number: {
            const auto& form = static_cast<AmNumfrm&>(question);
            Click(Concat("amopt", HighestEnabled(form.amopt, question.Clan == 0 ? 4 : 2)).c_str());
            return;
        }
        case QuestionKind::Amoeba: {
            const int amoeba = HighestEnabled(static_cast<AmChoicefrm&>(question).amopt, 7);
            Click(amoeba > 0 ? Concat("amopt", amoeba).c_str() : "amoptb");
            return;
        }
        case QuestionKind::Food: AnswerFood(static_cast<FoodForm&>(question)); return;
        case QuestionKind::Victim:
            for (std::size_t i = 0; i < static_cast<VictimForm&>(question).Figures.size(); ++i) {
                if (static_cast<VictimForm&>(question).Figures[i].Markable) {
                    Click(Concat("figure", static_cast<int>(i)).c_str());
                    break;
                }
            }
            Click("doneb");
            return;
        case QuestionKind::Genes: AnswerGenes(static_cast<GeneForm&>(question)); return;
        case QuestionKind::Box: Click("okb"); return;
    }
}

}  // namespace plasmos
