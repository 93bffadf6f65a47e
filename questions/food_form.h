// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "model/game_state.h"
#include "questions/question.h"

namespace plasmos {

/// The food dialog: what an amoeba eats, or carries along in the mode "TENTACLE".
/// One entry field per clan colour 1..NumPlayers; the fields 0 and 7 stand for pieces lent by hosts.
class FoodForm : public Question {
public:
    /// `mode` is "" for feeding or "TENTACLE".
    FoodForm(int clan, std::string_view mode, int square);

    bool Answered() const override { return Pressed != Button::None; }

    enum class Button { None, Eat, Victim, Closed };

    struct Field {
        std::string Text = "0";
        bool Visible = false;
        bool Enabled = false;
        int InSquare = 0;  ///< pieces of the colour in the square, as its label shows
    };

    /// The entry field of a colour changes.
    void fdtxt_Change(int field, std::string text);
    /// An entry field is left: a text that is no number becomes "0".
    void fdtxt_LostFocus(int field);
    /// The alternatives; choosing one again switches it off.
    void paropt_Click();
    void sfsopt_Click();
    void eatb_Click();
    void victimb_Click();
    /// The suggestion is clicked: the fields show the colours it would take.
    void suggest_Click();
    void Form_Close();

    /// What was pressed is done with; the dialog goes on.
    void Resume() { Pressed = Button::None; }
    /// The whole value of a field; 0 where the text is no plain decimal number.
    int Amount(int field) const;
    /// What the fields hold, as one line: "0,2,1" for the colours 1 to NumPlayers.
    std::string Entry() const;
    bool AllZero() const;
    /// Withdraws the lent pieces.
    void SendHostsAway();
    /// Works out eatb and victimb from the fields and alternatives.
    void UpdateButtons();

    const std::string_view Mode;
    const int Square;
    int SuggestedMenu = 0;                     ///< 0: the amoeba cannot eat
    Table<int, 0, MaxClans> SuggestedAmounts;  ///< what the suggestion takes of each colour

    Table<Field, 0, 7> fdtxt;
    bool paroptEnabled = false;
    bool paroptValue = false;
    bool sfsoptVisible = false;
    bool sfsoptEnabled = false;
    bool sfsoptValue = false;
    std::string eatbCaption = "Eat";
    bool eatbEnabled = true;
    bool victimbEnabled = false;
    std::string HostCount = "0";  ///< hosts in the square that could lend a piece, at most 2
    std::string LegalMenuLabel;   ///< "Legal menu(s): ..."; empty in the mode "TENTACLE"
    Table<int, 0, 2> Hosts;       ///< [1], [2]: the clans that lend the pieces of the fields 0 and 7

    Button Pressed = Button::None;
};

}  // namespace plasmos
