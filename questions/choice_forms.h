// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>

#include "model/game_state.h"
#include "questions/question.h"

namespace plasmos {

/// One option button of a choice dialog.
struct ChoiceOption {
    bool Visible = false;
    bool Enabled = false;
    std::string Caption;
};

/// The number dialog: one option button for each number 0 to 7. `Reply` takes the number chosen, and is back at 0
/// when the question is over.
class AmNumfrm : public Question {
public:
    /// The no-answer value is what `Reply` holds while nobody has chosen; closing the window gives
    /// `closeReply`.
    AmNumfrm(int clan, std::string caption, std::string text, int noAnswer, int closeReply);
    ~AmNumfrm() override;

    std::vector<Answer> Allowed() const override;
    bool Answered() const override { return chosen_.has_value(); }
    /// The number chosen; only once there is one.
    int Chosen() const { return chosen_.value(); }

    /// What closing the window answers; below 0: nothing that is accepted.
    int CloseReply() const { return closeReply_; }

    /// Cell division: option k is visible up to the clan's amoeba limit and enabled up to its BP
    /// divided by the price, plus 1 for the amoeba that may be free. Runs once, before the dialog shows.
    void Activate(int price);
    /// Choices above a number are disabled for good.
    void LimitTo(int most);

    /// Option k is clicked; nothing happens where it is disabled or hidden.
    void amopt_Click(int k) { Put(Numbered(Answer::Kind::Number, k)); }
    /// The window is closed.
    void Form_Close() { Put(Plain(Answer::Kind::Close)); }

    Table<ChoiceOption, 0, 7> amopt;
    std::string Caption;

protected:
    void Store(const Answer& answer) override;

private:
    int closeReply_;
    std::optional<int> chosen_;
};

/// The dialog that asks which of a clan's pieces is meant. `Reply` takes the slot; 0 is "None".
class AmChoicefrm : public Question {
public:
    AmChoicefrm(int clan, std::string caption, std::string text);
    ~AmChoicefrm() override;

    std::vector<Answer> Allowed() const override;
    bool Answered() const override { return chosen_.has_value(); }
    /// The slot chosen, 0 for none; only once there is an answer.
    int Chosen() const { return chosen_.value(); }

    /// Lets a piece of the asked clan be chosen.
    void Offer(int amoeba);

    /// Option `amoeba` is clicked; nothing happens where it is disabled.
    void amopt_Click(int amoeba) { Put(Numbered(Answer::Kind::Amoeba, amoeba)); }
    /// "None": the pick is withdrawn.
    void amoptb_Click() { Put(Plain(Answer::Kind::Nobody)); }
    /// Closing the window withdraws the pick too.
    void Form_Close() { Put(Plain(Answer::Kind::Close)); }

    Table<ChoiceOption, 0, 7> amopt;
    std::string Caption;
    static constexpr std::string_view amoptb = "None";

protected:
    void Store(const Answer& answer) override;

private:
    std::optional<int> chosen_;
};

/// Opens the dialog and waits; the answer is the slot chosen, 0 for none.
int AskAmoeba(AmChoicefrm& form);

}  // namespace plasmos
