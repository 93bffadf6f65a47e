// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/app/auto_person.h"

#include <QAbstractButton>

#include "files/text.h"
#include "model/game_state.h"
#include "questions/ask.h"
#include "questions/choice_forms.h"
#include "questions/food_form.h"
#include "questions/gene_form.h"
#include "questions/victim_form.h"
#include "ui/board/puddle_view.h"
#include "ui/look/palette.h"
#include "ui/look/piece_layout.h"
#include "ui/window/uboard.h"

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

AutoPerson::Touch AutoPerson::At(const std::string& name, bool last) {
    last_ = name;
    for (auto* button : board_.findChildren<QAbstractButton*>(ToQt(name))) {
        if (button->isEnabled() && button->isVisible()) {
            return {button, button->rect().center(), last};
        }
    }
    return {nullptr, QPoint(), true};
}

AutoPerson::Touch AutoPerson::AtSquare(int square) {
    last_.clear();
    auto* puddle = board_.findChild<PuddleView*>();
    return {puddle, puddle->PointAt(SquareMiddle(game, square)).toPoint(), true};
}

// Whatever somebody else has typed or chosen before, the dialog comes to an end.
AutoPerson::Touch AutoPerson::NextForFood(FoodForm& form) {
    if (form.sfsoptValue || form.paroptValue) {
        return At(form.sfsoptValue ? "sfsopt" : "paropt", false);
    }
    const bool suggests = form.Mode != "TENTACLE" && form.SuggestedMenu > 0;
    if (suggests && last_ != "suggestb") {
        return At("suggestb", false);
    }
    return At(form.SuggestedMenu > 0 || form.AllZero() ? "eatb" : "closeb", true);
}

// Genes are bought one by one while they are cheap; in the other mode the dearest is given up first.
AutoPerson::Touch AutoPerson::NextForGenes(GeneForm& form) {
    const bool adapting = game.DialogMode == "ENVIRONMENT";
    if (last_.rfind("gcheck", 0) != 0) {
        gene_ = adapting ? GeneCount + 1 : 0;
    }
    const bool enough = adapting ? form.UVdiff <= 0 : game.BP[form.Clan] < 5;
    for (gene_ += adapting ? -1 : 1; !enough && gene_ >= 1 && gene_ <= GeneCount; gene_ += adapting ? -1 : 1) {
        if (form.gcheck[gene_].Enabled && form.gcheck[gene_].Ticked == adapting) {
            return At(Concat("gcheck", gene_), false);
        }
    }
    return At("doneb", true);
}

AutoPerson::Touch AutoPerson::NextForVictim(VictimForm& form) {
    for (std::size_t i = 0; i < form.Figures.size() && !form.donebEnabled; ++i) {
        if (form.Figures[i].Markable && !form.Figures[i].Marked) {
            return At(Concat("figure", static_cast<int>(i)), false);
        }
    }
    return At(form.donebEnabled ? "doneb" : "closeb", true);
}

AutoPerson::Touch AutoPerson::Next(Question& question) {
    switch (question.Kind) {
        case QuestionKind::YesNo:
            // Moves are declined twice out of three times, everything else is welcome.
            return At(game.Turn > 0 && game.DialogMode.empty() && ++turns_ % 3 != 0 ? "nob" : "yesb", true);
        case QuestionKind::Square: {
            const auto& offered = static_cast<SquareQuestion&>(question).Offered;
            return AtSquare(offered[static_cast<std::size_t>(++turns_) % offered.size()]);
        }
        case QuestionKind::Number: {
            const auto& form = static_cast<AmNumfrm&>(question);
            return At(Concat("amopt", HighestEnabled(form.amopt, question.Clan == 0 ? 4 : 2)), true);
        }
        case QuestionKind::Amoeba: {
            const int amoeba = HighestEnabled(static_cast<AmChoicefrm&>(question).amopt, 7);
            return At(amoeba > 0 ? Concat("amopt", amoeba) : "amoptb", true);
        }
        case QuestionKind::Food: return NextForFood(static_cast<FoodForm&>(question));
        case QuestionKind::Victim: return NextForVictim(static_cast<VictimForm&>(question));
        case QuestionKind::Genes: return NextForGenes(static_cast<GeneForm&>(question));
        case QuestionKind::Box: break;
    }
    return At("okb", true);
}

void AutoPerson::Answer(Question& question) {
    last_.clear();
    bool more = true;
    while (more) {
        const Touch touch = Next(question);
        const std::string why =
            touch.Control != nullptr ? hand_->Press(*touch.Control, touch.Point) : "there is nothing to press";
        if (!why.empty() && OnFault) {
            OnFault(why);
        }
        more = why.empty() && !touch.Last;
    }
}

}  // namespace plasmos
