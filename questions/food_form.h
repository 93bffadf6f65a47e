// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>

#include "model/game_state.h"
#include "questions/question.h"

namespace plasmos {

/// What pressing eatb would come to as the fields stand.
struct EntryVerdict {
    enum class Kind {
        Legal,     ///< it is eaten, or carried
        Starves,   ///< nothing is eaten, and the amoeba cannot eat
        TooMuch,   ///< more of a colour than the square holds
        NotLegal,  ///< the clan may not eat such a menu
        TooHeavy   ///< more than a tentacle carries
    };

    Kind What = Kind::Legal;
    int Menu = 0;  ///< what is typed, as a menu; 0 where it is carried

    /// Whether eatb would be taken.
    bool Passes() const { return What == Kind::Legal || What == Kind::Starves; }
};

/// A legal menu, and pieces of the colours 1 to NumPlayers that make it up beside what is lent.
struct PossibleMeal {
    int Menu = 0;
    std::vector<int> Amounts;
};

/// The food dialog: what an amoeba eats, or carries along in the mode "TENTACLE".
/// One entry field per clan colour 1..NumPlayers; the fields 0 and 7 stand for pieces lent by hosts.
///
/// What is typed and chosen belongs to the dialog. The rule looks when a button is pressed.
class FoodForm : public Question {
public:
    /// `mode` is "" for feeding or "TENTACLE".
    FoodForm(int clan, std::string_view mode, int square);

    std::vector<Answer> Allowed() const override;
    bool Answered() const override { return Pressed != Button::None; }
    std::string_view ModeName() const override { return Mode; }

    enum class Button { None, Eat, Victim, Closed };

    struct Field {
        std::string Text = "0";
        bool Visible = false;
        bool Enabled = false;
        int InSquare = 0;  ///< pieces of the colour in the square, as its label shows
    };

    // ---- handlers ----
    /// The entry field of a colour changes.
    void fdtxt_Change(int field, std::string text) { Put(TypedInto(Answer::Kind::Field, field, std::move(text))); }
    /// An entry field is left: a text that is no number becomes "0".
    void fdtxt_LostFocus(int field) { Put(Numbered(Answer::Kind::LeaveField, field)); }
    /// The alternatives; choosing one again switches it off.
    void paropt_Click() { Put(Plain(Answer::Kind::Parasitism)); }
    void sfsopt_Click() { Put(Plain(Answer::Kind::Struggle)); }
    void eatb_Click() { Put(WithAmounts(Answer::Kind::Eat, {})); }
    void victimb_Click() { Put(Plain(Answer::Kind::Victim)); }
    /// The suggestion is clicked: the fields show the colours it would take.
    void suggest_Click() { Put(Plain(Answer::Kind::Suggestion)); }
    /// A possible meal is clicked: the entry fields change to its amounts.
    void meal_Click(const PossibleMeal& meal);
    void Form_Close() { Put(Plain(Answer::Kind::Close)); }

    /// What was pressed is done with; the dialog goes on.
    void Resume() { Pressed = Button::None; }
    /// The whole value of a field; 0 where the text is no plain decimal number.
    int Amount(int field) const;
    /// The menus of which the square holds enough now, each with the colours of which most lies there.
    std::vector<PossibleMeal> PossibleMeals() const;
    /// What the fields of the colours 1 to NumPlayers hold.
    std::vector<int> Entry() const;
    /// What the suggestion takes of the colours 1 to NumPlayers; nothing where there is none.
    std::vector<int> Suggestion() const;
    bool AllZero() const;
    /// Withdraws the lent pieces.
    void SendHostsAway();
    /// Works out eatb and victimb from the fields and alternatives.
    void UpdateButtons();

    const std::string_view Mode;
    const int Square;
    int SuggestedMenu = 0;                     ///< 0: the amoeba cannot eat
    Table<int, 0, MaxClans> SuggestedAmounts;  ///< what the suggestion takes of each colour
    /// The rule's count of what is typed, made again with every change of a field: the typed menu in the work lists.
    std::function<void(const FoodForm&)> Recount;
    /// The rule's check of what is typed, the one that eatb has to pass; it changes nothing.
    std::function<EntryVerdict(const FoodForm&)> Judge;
    std::vector<int> LegalMenus;  ///< the menus that the clan may eat
    int CarryingLimit = 0;        ///< pieces that may be carried in the mode "TENTACLE"

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

protected:
    void Store(const Answer& answer) override;

private:
    void TypeInto(const Answer& answer);
    void Leave(int field);
    void LeaveAll();
    void Starve(const Answer& answer);
    void Carry(const Answer& answer);
    void PressVictim(const Answer& answer);
    void TakeSuggestion();
    void ChooseParasitism();
    void ChooseStruggle();
    /// What may be eaten beside the lent pieces, or carried, as amounts of the colours 1 to NumPlayers.
    std::vector<std::vector<int>> LegalAmounts() const;
    /// Eat or carry: the amounts, if there are any, into their fields, and the button.
    void PressEat(const Answer& answer);
};

}  // namespace plasmos
