// SPDX-License-Identifier: GPL-3.0-or-later
#include "rules/food_form.h"

#include <algorithm>

#include "model/strings.h"
#include "rules/ask.h"
#include "rules/menus.h"

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
    if (Mode != "TENTACLE") {
        LegalEat(0);
        LegalMenuLabel = Concat("Legal menu(s): ", game.LegalMenus);
    } else {
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

std::string FoodForm::Entry() const {
    std::string entry;
    for (int colour = 1; colour <= game.NumPlayers; ++colour) {
        entry += Concat(colour == 1 ? "" : ",", Amount(colour));
    }
    return entry;
}

void FoodForm::UpdateButtons() {
    victimbEnabled = (paroptEnabled && paroptValue) || (sfsoptEnabled && sfsoptValue);
    eatbEnabled = !sfsoptValue;
    if (Mode != "TENTACLE") {
        eatbCaption = AllZero() && SuggestedMenu == 0 ? "Starve" : "Eat";
    }
}

void FoodForm::fdtxt_Change(int field, std::string text) {
    if (field < 1 || field > game.NumPlayers || !fdtxt[field].Enabled) {
        NoteAnswer(*this, Concat("field ", field, " = ", text), false);
        return;
    }
    fdtxt[field].Text = std::move(text);
    if (Mode != "TENTACLE") {
        LegalEat(MakeEatStr(*this));
        LegalMenuLabel = Concat("Legal menu(s): ", game.LegalMenus);
    }
    UpdateButtons();
}

void FoodForm::fdtxt_LostFocus(int field) {
    if (field >= 1 && field <= game.NumPlayers && !IsPlainNumber(Trim(fdtxt[field].Text))) {
        fdtxt[field].Text = "0";
        UpdateButtons();
    }
}

void FoodForm::SendHostsAway() {
    Hosts = {};
    fdtxt[0].Visible = fdtxt[7].Visible = false;
}

void FoodForm::paropt_Click() {
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

void FoodForm::sfsopt_Click() {
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

void FoodForm::eatb_Click() {
    if (!eatbEnabled) {
        NoteAnswer(*this, "eat", false);
        return;
    }
    Pressed = Button::Eat;
}

void FoodForm::victimb_Click() {
    if (!victimbEnabled) {
        NoteAnswer(*this, "victim", false);
        return;
    }
    Pressed = Button::Victim;
}

void FoodForm::suggest_Click() {
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

void FoodForm::Form_Close() {
    Pressed = Button::Closed;
}

int MakeEatStr(const FoodForm& form) {
    game.MenuAmounts = {};
    game.MenuColours = {};
    int place = 0;
    const auto add = [&](int amount, int colour) {
        ++place;
        game.MenuAmounts[place] = amount;
        game.MenuColours[place] = colour;
    };
    for (int colour = 1; colour <= game.NumPlayers; ++colour) {
        const int amount = form.Amount(colour);
        if (colour != form.Clan && amount >= 1) {
            add(std::min(amount, 10), colour);
        }
    }
    if (form.fdtxt[0].Visible) {
        add(1, 0);
    }
    if (form.fdtxt[7].Visible) {
        add(1, 0);
    }
    return SortMenuDigits(game.MenuAmounts, game.MenuColours);
}

}  // namespace plasmos
