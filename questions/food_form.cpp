// SPDX-License-Identifier: GPL-3.0-or-later
#include "questions/food_form.h"

#include <algorithm>

#include "files/strings.h"
#include "questions/ask.h"
#include "questions/takings.h"

namespace plasmos {

namespace {

constexpr int LargestAmount = 999999;

bool IsPlainNumber(std::string_view text) {
    return !text.empty() && text.find_first_not_of("0123456789") == std::string_view::npos;
}

}  // namespace

FoodForm::FoodForm(int clan, std::string_view mode, int square)
    : Question(QuestionKind::Food, clan, {}), Mode(mode), Square(square) {
    for (int colour = 1; colour <= game.NumPlayers; ++colour) {
        Field& field = fdtxt[colour];
        field.Visible = true;
        field.Enabled = colour != clan || mode == "TENTACLE";
        field.InSquare = game.Food[square][colour];
    }
    if (Mode == "TENTACLE") {
        eatbCaption = "Carry";
    }
}

int FoodForm::Amount(int field) const {
    const auto text = Trim(fdtxt[field].Text);
    if (!IsPlainNumber(text)) {
        return 0;
    }
    int amount = 0;
    for (const char digit : text) {
        amount = std::min(amount * 10 + (digit - '0'), LargestAmount);
    }
    return amount;
}

bool FoodForm::AllZero() const {
    for (int colour = 1; colour <= game.NumPlayers; ++colour) {
        if (Amount(colour) != 0) {
            return false;
        }
    }
    return !fdtxt[0].Visible && !fdtxt[7].Visible;
}

std::vector<int> FoodForm::Entry() const {
    std::vector<int> entry;
    for (int colour = 1; colour <= game.NumPlayers; ++colour) {
        entry.push_back(Amount(colour));
    }
    return entry;
}

std::vector<int> FoodForm::Suggestion() const {
    std::vector<int> amounts;
    for (int colour = 1; SuggestedMenu > 0 && colour <= game.NumPlayers; ++colour) {
        amounts.push_back(SuggestedAmounts[colour]);
    }
    return amounts;
}

std::vector<PossibleMeal> FoodForm::PossibleMeals() const {
    std::vector<PossibleMeal> meals;
    for (const int menu : LegalMenus) {
        Takings takings(*this);
        takings.TakeMenu(menu);
        if (const auto best = takings.FromTheFullest(); !best.empty()) {
            meals.push_back({menu, best});
        }
    }
    return meals;
}

void FoodForm::meal_Click(const PossibleMeal& meal) {
    for (int colour = 1; colour <= game.NumPlayers; ++colour) {
        const int amount = meal.Amounts[static_cast<std::size_t>(colour - 1)];
        if (fdtxt[colour].Enabled && Amount(colour) != amount) {
            fdtxt_Change(colour, Concat(amount));
        }
    }
}

void FoodForm::UpdateButtons() {
    victimbEnabled = (paroptEnabled && paroptValue) || (sfsoptEnabled && sfsoptValue);
    eatbEnabled = !sfsoptValue;
    if (Mode != "TENTACLE") {
        eatbCaption = AllZero() && SuggestedMenu == 0 ? "Starve" : "Eat";
    }
}

std::vector<Answer> FoodForm::Allowed() const {
    std::vector<Answer> allowed;
    const bool carrying = Mode == "TENTACLE";
    const auto offer = [&](bool enabled, Answer::Kind kind) {
        if (enabled) {
            allowed.push_back(Plain(kind));
        }
    };
    for (const auto& amounts : LegalAmounts()) {
        if (eatbEnabled) {
            allowed.push_back(WithAmounts(carrying ? Answer::Kind::Carry : Answer::Kind::Eat, amounts));
        }
    }
    offer(carrying, Answer::Kind::CarryNothing);
    offer(!carrying && SuggestedMenu == 0 && eatbEnabled && !fdtxt[0].Visible, Answer::Kind::Starve);
    offer(!carrying && SuggestedMenu > 0, Answer::Kind::Suggestion);
    offer(paroptEnabled, Answer::Kind::Parasitism);
    offer(sfsoptEnabled, Answer::Kind::Struggle);
    offer(victimbEnabled, Answer::Kind::Victim);
    return allowed;
}

std::vector<std::vector<int>> FoodForm::LegalAmounts() const {
    Takings takings(*this);
    if (Mode == "TENTACLE") {
        takings.TakeUpTo(CarryingLimit);
    }
    for (const int menu : LegalMenus) {
        takings.TakeMenu(menu);
    }
    return takings.Found;
}

void FoodForm::Store(const Answer& answer) {
    switch (answer.What) {
        case Answer::Kind::Field: TypeInto(answer); break;
        case Answer::Kind::LeaveField: Leave(answer.Number); break;
        case Answer::Kind::Suggestion: TakeSuggestion(); break;
        case Answer::Kind::Parasitism: ChooseParasitism(); break;
        case Answer::Kind::Struggle: ChooseStruggle(); break;
        case Answer::Kind::Eat: PressEat(answer); break;
        case Answer::Kind::Carry:
        case Answer::Kind::CarryNothing: Carry(answer); break;
        case Answer::Kind::Starve: Starve(answer); break;
        case Answer::Kind::Victim: PressVictim(answer); break;
        case Answer::Kind::Close: Pressed = Button::Closed; break;
        default: NoteAnswer(*this, answer, false);
    }
}

void FoodForm::TypeInto(const Answer& answer) {
    const int field = answer.Number;
    if (field < 1 || field > game.NumPlayers || !fdtxt[field].Enabled) {
        NoteAnswer(*this, answer, false);
        return;
    }
    fdtxt[field].Text = answer.Typed;
    if (Recount) {
        Recount(*this);
    }
    UpdateButtons();
}

void FoodForm::Leave(int field) {
    if (field >= 1 && field <= game.NumPlayers && !IsPlainNumber(Trim(fdtxt[field].Text))) {
        fdtxt[field].Text = "0";
        UpdateButtons();
    }
}

void FoodForm::SendHostsAway() {
    Hosts = {};
    fdtxt[0].Visible = fdtxt[7].Visible = false;
}

void FoodForm::ChooseParasitism() {
    if (!paroptEnabled) {
        return;
    }
    paroptValue = !paroptValue;
    if (paroptValue) {
        sfsoptValue = false;
    } else {
        SendHostsAway();
    }
    UpdateButtons();
}

void FoodForm::ChooseStruggle() {
    if (!sfsoptEnabled) {
        return;
    }
    sfsoptValue = !sfsoptValue;
    if (sfsoptValue && paroptValue) {
        paroptValue = false;
        SendHostsAway();
    }
    UpdateButtons();
}

/// What is no number counts as nothing, and shows so once the field is left for another dialog.
void FoodForm::LeaveAll() {
    for (int field = 1; field <= game.NumPlayers; ++field) {
        Leave(field);
    }
}

void FoodForm::Starve(const Answer& answer) {
    if (Mode == "TENTACLE" || fdtxt[0].Visible) {
        NoteAnswer(*this, answer, false);
    } else {
        PressEat(WithAmounts(Answer::Kind::Eat, std::vector<int>(MaxClans, 0)));
    }
}

void FoodForm::Carry(const Answer& answer) {
    if (Mode != "TENTACLE") {
        NoteAnswer(*this, answer, false);
    } else if (answer.What == Answer::Kind::Carry) {
        PressEat(answer);
    } else {
        Pressed = Button::Closed;
    }
}

void FoodForm::PressVictim(const Answer& answer) {
    if (!victimbEnabled) {
        NoteAnswer(*this, answer, false);
        return;
    }
    LeaveAll();
    Pressed = Button::Victim;
}

void FoodForm::PressEat(const Answer& answer) {
    if (!eatbEnabled) {
        NoteAnswer(*this, WithAmounts(Answer::Kind::Eat, {}), false);
        return;
    }
    for (int colour = 1; colour <= std::min(game.NumPlayers, static_cast<int>(answer.Amounts.size())); ++colour) {
        if (fdtxt[colour].Enabled) {
            fdtxt[colour].Text = Concat(answer.Amounts[static_cast<std::size_t>(colour - 1)]);
        }
    }
    LeaveAll();
    UpdateButtons();
    Pressed = Button::Eat;
}

void FoodForm::TakeSuggestion() {
    if (SuggestedMenu == 0) {
        return;
    }
    for (int colour = 1; colour <= game.NumPlayers; ++colour) {
        fdtxt[colour].Text = Concat(SuggestedAmounts[colour]);
    }
    paroptValue = false;
    SendHostsAway();
    UpdateButtons();
}

}  // namespace plasmos
