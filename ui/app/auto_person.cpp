// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/app/auto_person.h"

#include <QAbstractButton>

#include "files/text.h"
#include "model/game_state.h"
#include "questions/visit.h"
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
    const bool adapting = form.Adapts;
    hasShopped_ = !adapting;
    if (last_.rfind("gcheck", 0) != 0) {
        gene_ = adapting ? GeneCount + 1 : 0;
    }
    const bool enough = adapting ? form.UVdiff <= 0 : game.BP[form.Clan] < 5;
    for (gene_ += adapting ? -1 : 1; !enough && gene_ >= 1 && gene_ <= GeneCount; gene_ += adapting ? -1 : 1) {
        if (form.gcheck[gene_].Enabled && form.gcheck[gene_].Ticked == adapting) {
            return At(Concat("gcheck", gene_), !adapting);
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
    return Visit(
        question,
        Overloaded{
            // Two offers out of three are declined, until the clan has been to the shop.
            [&](YesNoQuestion& form) {
                return At(form.Clan > 0 && game.Turn > 0 && !hasShopped_ && ++turns_ % 3 != 0 ? "nob" : "yesb", true);
            },
            [&](SquareQuestion& form) {
                return AtSquare(form.Offered[static_cast<std::size_t>(++turns_) % form.Offered.size()]);
            },
            [&](AmNumfrm& form) {
                return At(Concat("amopt", HighestEnabled(form.amopt, form.Clan == 0 ? 4 : 2)), true);
            },
            [&](AmChoicefrm& form) {
                const int amoeba = HighestEnabled(form.amopt, 7);
                return At(amoeba > 0 ? Concat("amopt", amoeba) : "amoptb", true);
            },
            [&](FoodForm& form) { return NextForFood(form); }, [&](VictimForm& form) { return NextForVictim(form); },
            [&](GeneForm& form) { return NextForGenes(form); }, [&](BoxQuestion&) { return At("okb", true); }});
}

void AutoPerson::Answer(Question& question) {
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
