// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <vector>

#include "model/pcg32.h"
#include "model/presentation.h"

namespace plasmos {

class AmChoicefrm;
class AmNumfrm;
class FoodForm;
class GeneForm;
class Question;
class SquareQuestion;
class VictimForm;

/// A robot in a person's seat: it answers every question from a generator of its own, with legal
/// answers mostly, and now and then with one that must be refused. It reads nothing but the questions.
class Robot : public Presentation {
public:
    /// `seed` is the robot's, `gameNumber` tells one game of a run from another.
    Robot(std::uint64_t seed, std::uint64_t gameNumber);

    bool WantsText() const override { return false; }
    void Open(Question& question) override;
    void Close(Question& question) override;
    void Wait() override;

private:
    int Below(int n);
    bool Chance(int oneIn) { return Below(oneIn) == 0; }
    int OneOf(const std::vector<int>& choices) {
        return choices[static_cast<std::size_t>(Below(static_cast<int>(choices.size())))];
    }

    void AnswerTop();
    void AnswerSquare(SquareQuestion& question);
    void AnswerNumber(AmNumfrm& form);
    void AnswerAmoeba(AmChoicefrm& form);
    void AnswerFood(FoodForm& form);
    void TypeAmount(FoodForm& form);
    void TryFood(FoodForm& form);
    void FinishFood(FoodForm& form);
    void CarryFood(FoodForm& form);
    void AnswerVictim(VictimForm& form);
    void AnswerGenes(GeneForm& form);
    void Adapt(GeneForm& form);
    void Buy(GeneForm& form);

    Pcg32 generator_;
    std::vector<Question*> open_;
    std::vector<int> attempts_;  ///< how often each open question has been answered
    int clicks_ = -1;            ///< boxes that are still to be clicked in a shop; -1: it has just opened
};

}  // namespace plasmos
