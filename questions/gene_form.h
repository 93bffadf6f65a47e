// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "model/game_state.h"
#include "questions/adaptation.h"
#include "questions/question.h"

namespace plasmos {

/// The gene dialog. In the mode "ENVIRONMENT" a clan gives up genes and pays BP until its mutation
/// level fits the UV level; in the mode "NEWGENES" it buys genes box by box.
///
/// While a clan adapts, ticks and BP belong to the dialog until it is done. A box that is clicked in the other mode
/// is a purchase, or takes one back, and waits for the rule. `DoneFlag` is 1 from "done" to the end of the question.
class GeneForm : public Question {
public:
    GeneForm(int clan, std::string text);
    ~GeneForm() override;

    std::vector<Answer> Allowed() const override;
    bool Answered() const override { return Pressed != Button::None; }
    std::string_view ModeName() const override { return Adapts ? "ENVIRONMENT" : "NEWGENES"; }

    /// What waits for the rule: a box of the mode "NEWGENES", "done" while the UV cost is above 0, or "done".
    enum class Button { None, Box, Refused, Done };

    /// One of the check boxes; index = gene number.
    struct CheckBox {
        std::string Caption;  ///< the gene's name
        std::string ToolTip;  ///< cost and mutation points
        bool Ticked = false;
        bool Enabled = false;
    };

    /// Sets the dialog up for a clan that must adapt or may buy; the mode is set.
    void PrepareEnvironment();
    void PrepareNewGenes();

    // ---- handlers ----
    /// The person clicks a box.
    void gcheck_Click(int gene);
    /// The text of the field for BP changes.
    void EnvBP_Change(std::string text) { Put(TypedInto(Answer::Kind::Pay, 0, std::move(text))); }
    /// The suggestion is taken: the boxes of its genes are clicked and its BP typed, where they differ from it.
    void adaptb_Click();
    void resetb_Click() { Put(Plain(Answer::Kind::Reset)); }
    /// "done"; closing the window is the same.
    void doneb_Click() { Put(Plain(Answer::Kind::Done)); }
    void Form_Close() { Put(Plain(Answer::Kind::Close)); }

    /// What was pressed is done with; the dialog goes on.
    void Resume() { Pressed = Button::None; }
    /// The choices begin afresh.
    void Reset();
    /// The boxes and BP as they stand after a purchase.
    void ShowHeld();
    /// What is paid when the clan is done adapting: what stands in the field, at most its BP, at least 0.
    int PaidBP() const;
    /// BP in the field that the UV cost leaves out, as a box was clicked after they had been typed.
    int UncountedBP() const;
    /// What giving up a gene takes off the UV cost.
    static int PointsOf(int gene);
    /// A gene was held when the dialog opened and is given up.
    bool IsGivenUp(int gene) const { return Adapts && gcheck[gene].Enabled && !gcheck[gene].Ticked; }
    /// The cheapest way to adapt; the choices may have come to it already.
    const Adaptation& Suggestion() const { return suggestion_; }
    bool ShowsSuggestion() const;

    bool Adapts = false;  ///< the mode is "ENVIRONMENT"
    Button Pressed = Button::None;
    int PressedBox = 0;  ///< the gene whose box was clicked

    Table<CheckBox, 0, GeneCount> gcheck;
    std::string EnvBP = "0";
    bool EnvBPVisible = false;
    std::string ofLab;  ///< "of 7"
    bool ofLabVisible = false;
    int UVdiff = 0;                 ///< the difference that remains, "UV cost"
    std::int32_t UVdiffColour = 0;  ///< 0x00BBGGRR: blue at 0 and below, red above
    bool UVdiffVisible = false;
    std::string BPlabel;
    bool BPlabelVisible = true;
    bool resetbVisible = false;

protected:
    void Store(const Answer& answer) override;

private:
    void UVdiff_Change();
    void SetUVdiff(int value);
    void SetBoxesToHeld();
    void Click(const Answer& answer);
    void GiveUp(int gene);
    /// The points that the unticked genes take off; `DiscardedPoints` follows.
    void SetDiscarded(int points);
    void Pay(const Answer& answer);
    void Finish();

    int discarded_ = 0;
    Adaptation suggestion_;
    FixedText<100> heldOnEntry_;  ///< "~", the number and "~" for every gene held when the dialog opened
};

}  // namespace plasmos
