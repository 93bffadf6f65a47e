// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "model/game_state.h"
#include "questions/question.h"

namespace plasmos {

/// The gene dialog. In the mode "ENVIRONMENT" a clan gives up genes and pays BP until its mutation
/// level fits the UV level; in the mode "NEWGENES" it buys genes box by box.
class GeneForm : public Question {
public:
    GeneForm(int clan, std::string text);

    bool Answered() const override { return game.DoneFlag != 0 || RefusalPending; }

    /// One of the twenty check boxes; index = gene number.
    struct CheckBox {
        std::string Caption;  ///< the gene's name
        std::string ToolTip;  ///< cost and mutation points
        bool Ticked = false;
        bool Enabled = false;
    };

    /// Sets the dialog up for a clan that must adapt or may buy; the mode is set.
    void PrepareEnvironment();
    void PrepareNewGenes();

    /// The person clicks a box: its tick changes, then the mode's rule acts.
    void gcheck_Click(int gene);
    /// The text of the field for BP changes.
    void EnvBP_Change(std::string text);
    void resetb_Click();
    /// "done"; closing the window is the same.
    void doneb_Click();
    void Form_Close() { doneb_Click(); }

    /// Shows why "done" was refused, and starts the choices afresh.
    void RefuseDone();

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
    bool RefusalPending = false;  ///< "done" was pressed with a UV cost above 0

private:
    void UVdiff_Change();
    void SetUVdiff(int value);
    void SetBoxesToHeld();
    void AdaptClick(int gene);
    void BuyClick(int gene);
    void FinishAdapting();
    int TypedBP() const;

    FixedText<100> heldOnEntry_;  ///< "~", the number and "~" for every gene held when the dialog opened
};

}  // namespace plasmos
