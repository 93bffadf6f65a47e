// SPDX-License-Identifier: GPL-3.0-or-later
#include "model/genes.h"
#include "model/presentation.h"
#include "model/reasons.h"
#include "questions/ask.h"
#include "questions/choice_forms.h"
#include "questions/food_form.h"
#include "rules/hints.h"
#include "rules/menus.h"
#include "rules/move_amoeba.h"

namespace plasmos {

namespace {

/// Pieces of food that a tentacle carries.
constexpr int CarryingLimit = 2;

bool FeedsThere(int clan, int destination, int colour, int second) {
    auto& food = game.Food[destination];
    const auto before = food;
    ++food[colour];
    food[second] += second != 0 ? 1 : 0;
    const bool feeds = CanEat(destination, clan);
    food = before;
    return feeds;
}

void TellPair(int first, int second, int destination) {
    if (first == second) {
        Because("Its tentacle takes 2 pieces of ", TheClan{first}, "'s food along, with which it can eat in ",
                destination, ".");
    } else {
        Because("Its tentacle takes a piece of ", TheClan{first}, "'s and one of ", TheClan{second},
                "'s food along, with which it can eat in ", destination, ".");
    }
}

/// The fewest foreign pieces that make a meal possible where there is none: single ones before pairs.
TentacleLoad WorkOutLoad(int clan, int from, int destination) {
    TentacleLoad load;
    if (CanEat(destination, clan)) {
        return load;
    }
    for (int colour = 1; colour <= game.NumPlayers; ++colour) {
        if (colour != clan && game.Food[from][colour] >= 1 && FeedsThere(clan, destination, colour, 0)) {
            Because("Its tentacle takes a piece of ", TheClan{colour}, "'s food along, with which it can eat in ",
                    destination, ".");
            load.Take(colour, 1);
            return load;
        }
    }
    for (int first = 1; first <= game.NumPlayers; ++first) {
        for (int second = first; second <= game.NumPlayers; ++second) {
            const int needed = first == second ? 2 : 1;
            const bool there = game.Food[from][first] >= needed && game.Food[from][second] >= needed;
            if (first != clan && second != clan && there && FeedsThere(clan, destination, first, second)) {
                TellPair(first, second, destination);
                load.Take(first, 1);
                load.Take(second, 1);
                return load;
            }
        }
    }
    return load;
}

/// What eatb would come to: the weight is looked at first, then the square.
EntryVerdict JudgeLoad(const FoodForm& form) {
    using Kind = EntryVerdict::Kind;
    int sum = 0;
    bool tooMuch = false;
    for (int colour = 1; colour <= game.NumPlayers; ++colour) {
        sum += form.Amount(colour);
        tooMuch = tooMuch || form.Amount(colour) > game.Food[form.Square][colour];
    }
    return {sum > CarryingLimit ? Kind::TooHeavy : tooMuch ? Kind::TooMuch : Kind::Legal, 0};
}

/// Why an entry cannot be carried, or an empty text.
std::string CarryingFault(const FoodForm& form) {
    const EntryVerdict verdict = JudgeLoad(form);
    if (verdict.What == EntryVerdict::Kind::TooHeavy) {
        return Concat("You may not carry more than ", CarryingLimit, " food.");
    }
    return verdict.Passes() ? "" : "You may not carry out more food than there is in the square!";
}

void AskFood(int clan, int from, int to, TentacleLoad& load) {
    FoodForm form(clan, "TENTACLE", from);
    form.Text = Concat("What will your amoeba carry out of square ", from, "? (At most ", CarryingLimit, " food.)");
    form.CarryingLimit = CarryingLimit;
    form.Hint = TentacleHint(clan, to);
    form.Judge = JudgeLoad;
    form.UpdateButtons();
    ShowQuestionText(form.Text, clan);
    OpenQuestion open(form);
    for (;;) {
        open.Wait();
        if (form.Pressed == FoodForm::Button::Closed) {
            NoteAnswer(form, Plain(Answer::Kind::CarryNothing), true);
            break;
        }
        form.Resume();
        if (const auto fault = CarryingFault(form); !fault.empty()) {
            NoteAnswer(form, WithAmounts(Answer::Kind::Carry, form.Entry()), false);
            ShowBox(clan, fault);
            form.Text = "Please try again.";
            ShowQuestionText(form.Text, clan);
            Board().Refresh(form);
            continue;
        }
        NoteAnswer(form, WithAmounts(Answer::Kind::Carry, form.Entry()), true);
        for (int colour = 1; colour <= game.NumPlayers; ++colour) {
            load.Take(colour, form.Amount(colour));
        }
        break;
    }
}

int PickDragged(AmChoicefrm& form) {
    ShowQuestionText(form.Text, form.Clan);
    game.Reply = -1;
    return AskAmoeba(form);
}

void AskDragged(int clan, int amoeba, int to, TentacleLoad& load) {
    const int from = game.Amoeba[amoeba][clan].Square;
    AmChoicefrm form(clan, "Tentacle", "Which amoeba shall be dragged along?");
    int count = 0;
    int only = 0;
    for (int other = 1; other <= game.MaxAmoeba; ++other) {
        if (other != amoeba && game.Amoeba[other][clan].Square == from) {
            form.Offer(other);
            only = other;
            ++count;
        }
    }
    if (count == 0 || game.BP[clan] < 1) {
        return;
    }
    const auto text =
        Concat("Would ", game.Amoeba[amoeba][clan].Name, " like to pay 1BP to drag another amoeba of its clan along?");
    form.Hint = DragHint(clan, to);
    if (AskYesNo(clan, text, 0, form.Hint)) {
        load.DraggedAmoeba = count == 1 ? only : PickDragged(form);
    }
}

bool AnyFoodIn(int square) {
    for (int colour = 1; colour <= game.NumPlayers; ++colour) {
        if (game.Food[square][colour] > 0) {
            return true;
        }
    }
    return false;
}

}  // namespace

TentacleLoad ChooseTentacleLoad(int clan, int amoeba, int destination) {
    const int from = game.Amoeba[amoeba][clan].Square;
    if (!HasGene(clan, "ten")) {
        return {};
    }
    if (game.Players[clan].IsComputer || game.AutoFlags[clan][2]) {
        return WorkOutLoad(clan, from, destination);
    }
    TentacleLoad load;
    if (AnyFoodIn(from)) {
        AskFood(clan, from, destination, load);
    }
    AskDragged(clan, amoeba, destination, load);
    ClearMessage();
    return load;
}

}  // namespace plasmos
