// SPDX-License-Identifier: GPL-3.0-or-later
#include "questions/food_form.h"

#include <algorithm>

#include "files/strings.h"
#include "questions/ask.h"

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

}  // namespace plasmos
