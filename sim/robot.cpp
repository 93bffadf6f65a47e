// SPDX-License-Identifier: GPL-3.0-or-later
#include "sim/robot.h"

#include <algorithm>

#include "questions/visit.h"

namespace plasmos {

namespace {

constexpr std::uint64_t RobotStream = 77;
/// After so many tries the robot gives an answer that must be accepted.
constexpr int Patience = 6;

template <class Test>
std::vector<int> NumbersWhere(int first, int last, Test&& test) {
    std::vector<int> numbers;
    for (int number = first; number <= last; ++number) {
        if (test(number)) {
            numbers.push_back(number);
        }
    }
    return numbers;
}

}  // namespace

Robot::Robot(std::uint64_t seed, std::uint64_t gameNumber) {
    generator_.Seed(seed * 0x9E3779B97F4A7C15ULL + gameNumber, RobotStream);
}

int Robot::Below(int n) {
    const std::uint64_t number = generator_.Next();
    return static_cast<int>((number * static_cast<std::uint64_t>(n)) >> 32U);
}

void Robot::Open(Question& question) {
    open_.push_back(&question);
    attempts_.push_back(0);
    clicks_ = -1;
}

void Robot::Close(Question& /*question*/) {
    open_.pop_back();
    attempts_.pop_back();
}

void Robot::Wait() {
    ++attempts_.back();
    AnswerTop();
}

void Robot::AnswerTop() {
    Visit(*open_.back(),
          Overloaded{[this](YesNoQuestion& question) { question.Put(Chance(3) ? NoAnswer() : YesAnswer()); },
                     [this](SquareQuestion& question) { AnswerSquare(question); },
                     [this](AmNumfrm& form) { AnswerNumber(form); }, [this](AmChoicefrm& form) { AnswerAmoeba(form); },
                     [this](FoodForm& form) { AnswerFood(form); }, [this](VictimForm& form) { AnswerVictim(form); },
                     [this](GeneForm& form) { AnswerGenes(form); }, [](BoxQuestion& box) { box.ok_Click(); }});
}

void Robot::AnswerSquare(SquareQuestion& question) {
    const auto click = [&](int square) { question.Put(Numbered(Answer::Kind::Square, square)); };
    switch (Below(12)) {
        case 0: question.Put(YesAnswer()); break;
        case 1: click(Below(game.NumSquares) + 1); break;
        case 2: click(0); break;
        default: click(OneOf(question.Offered));
    }
}

void Robot::AnswerNumber(AmNumfrm& form) {
    const auto offered = NumbersWhere(0, 7, [&](int k) { return form.amopt[k].Visible && form.amopt[k].Enabled; });
    if (Chance(10)) {
        form.amopt_Click(Below(10) - 1);
    } else if (Chance(20)) {
        form.Form_Close();
    } else {
        form.amopt_Click(OneOf(offered));
    }
}

void Robot::AnswerAmoeba(AmChoicefrm& form) {
    const auto offered = NumbersWhere(1, 7, [&](int k) { return form.amopt[k].Visible && form.amopt[k].Enabled; });
    if (Chance(10)) {
        form.amopt_Click(Below(9));
    } else if (Chance(10)) {
        form.amoptb_Click();
    } else {
        form.amopt_Click(OneOf(offered));
    }
}

void Robot::CarryFood(FoodForm& form) {
    const bool careful = attempts_.back() > Patience;
    for (int colour = 1; colour <= game.NumPlayers; ++colour) {
        form.fdtxt_Change(colour, careful ? "0" : Concat(Chance(4) ? Below(3) : 0));
    }
    if (Chance(15)) {
        form.Form_Close();
    } else {
        form.eatb_Click();
    }
}

void Robot::FinishFood(FoodForm& form) {
    for (int colour = 1; colour <= game.NumPlayers; ++colour) {
        form.fdtxt_Change(colour, "0");
    }
    if (form.sfsoptValue) {
        form.sfsopt_Click();
    }
    if (form.paroptValue) {
        form.paropt_Click();
    }
    form.suggest_Click();
    form.eatb_Click();
}

/// The amount is drawn before the field, in a statement of its own: the order of a call's arguments is
/// the compiler's.
void Robot::TypeAmount(FoodForm& form) {
    const std::string amount = Concat(Below(12));
    form.fdtxt_Change(Below(8), amount);
}

void Robot::TryFood(FoodForm& form) {
    switch (Below(8)) {
        case 0:
            for (int colour = 1; colour <= game.NumPlayers; ++colour) {
                form.fdtxt_Change(colour, Chance(6) ? "many" : Concat(Below(4)));
                form.fdtxt_LostFocus(colour);
            }
            form.eatb_Click();
            break;
        case 1:
            TypeAmount(form);
            form.eatb_Click();
            break;
        case 2: form.Form_Close(); break;
        case 3:
        case 4:
            form.paroptEnabled ? form.paropt_Click() : form.sfsopt_Click();
            form.victimb_Click();
            break;
        case 5: form.eatb_Click(); break;
        default: FinishFood(form); break;
    }
}

void Robot::AnswerFood(FoodForm& form) {
    if (form.Mode == "TENTACLE") {
        CarryFood(form);
    } else if (attempts_.back() > Patience) {
        FinishFood(form);
    } else {
        TryFood(form);
    }
}

void Robot::AnswerVictim(VictimForm& form) {
    if (Chance(10)) {
        form.Form_Close();
        return;
    }
    const auto figures = static_cast<int>(form.Figures.size());
    const auto markable =
        NumbersWhere(0, figures - 1, [&](int i) { return form.Figures[static_cast<std::size_t>(i)].Markable; });
    if (Chance(6)) {
        form.figure_Click(Below(figures + 2) - 1);
    }
    if (!markable.empty()) {
        form.figure_Click(OneOf(markable));
        form.Form_Deactivate();
    }
    if (!form.donebEnabled && attempts_.back() > Patience) {
        form.Form_Close();
    }
    form.doneb_Click();
}

void Robot::Adapt(GeneForm& form) {
    const bool careful = attempts_.back() > Patience;
    for (int gene = 1; gene <= GeneCount; ++gene) {
        if (form.gcheck[gene].Enabled && form.gcheck[gene].Ticked && (careful || (form.UVdiff > 0 && Chance(2)))) {
            form.gcheck_Click(gene);
        }
    }
    if (!careful && form.UVdiff > 0 && Chance(2)) {
        form.EnvBP_Change(Chance(6) ? "12345678901" : Concat(form.UVdiff));
    }
    if (Chance(12)) {
        form.resetb_Click();
    }
}

/// Box by box: the rule carries out each before the next is looked for.
void Robot::Buy(GeneForm& form) {
    for (clicks_ = clicks_ < 0 ? Below(4) : clicks_; clicks_ > 0 && !form.Answered(); --clicks_) {
        const auto offered = NumbersWhere(1, GeneCount, [&](int gene) { return form.gcheck[gene].Enabled; });
        if (Chance(8)) {
            form.gcheck_Click(Below(GeneCount + 2));
        } else if (!offered.empty()) {
            form.gcheck_Click(OneOf(offered));
        }
    }
}

void Robot::AnswerGenes(GeneForm& form) {
    if (form.Adapts) {
        Adapt(form);
    } else {
        Buy(form);
    }
    form.doneb_Click();
}

}  // namespace plasmos
