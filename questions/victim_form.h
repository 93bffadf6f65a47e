// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string_view>
#include <vector>

#include "model/game_state.h"
#include "questions/question.h"

namespace plasmos {

/// One figure in the victim dialog: a piece in the square.
struct VictimFigure {
    int Clan = 0;
    int Amoeba = 0;
    bool Markable = false;  ///< pieces that may not be picked are drawn all the same
    bool Marked = false;    ///< its border is drawn thicker

    /// Clan number and amoeba number, "3,1".
    std::string Tag() const;
};

/// The victim dialog: the pieces of a square, of which one is marked, or any number in the mode
/// "HOLD". `ReplyY` becomes 1 when the person is done; a closed window is the pick of nothing.
class VictimForm : public Question {
public:
    /// `mode` is "AGGRESS", "SFS", "PARASITE" or "HOLD". Every piece in the square gets a figure,
    /// none of them may be marked yet.
    VictimForm(int clan, std::string_view mode, std::string caption, int square);
    ~VictimForm() override;

    std::vector<Answer> Allowed() const override;
    bool Answered() const override { return over_; }
    std::string_view ModeName() const override { return Mode; }

    /// Lets a piece be marked.
    void Allow(int clan, int amoeba);
    /// Whether any piece may be marked.
    bool HasChoice() const;

    /// The figures that were marked when the person was done; empty: nothing.
    std::vector<VictimFigure> Picked() const;

    // ---- handlers ----
    /// A figure (0-based) is clicked: it is marked, or unmarked when it was in the mode "HOLD".
    void figure_Click(int index) { Put(Numbered(Answer::Kind::Mark, index)); }
    void doneb_Click() { Put(Plain(Answer::Kind::Done)); }
    void Form_Close() { Put(Plain(Answer::Kind::Close)); }
    /// The window loses the focus: in the mode "HOLD" the markings are looked at again.
    void Form_Deactivate() { Put(Plain(Answer::Kind::LookAway)); }

    const std::string_view Mode;
    const int Square;
    std::vector<VictimFigure> Figures;
    std::string vfamlab;  ///< the question, then the marked figure
    bool donebEnabled = false;

protected:
    void Store(const Answer& answer) override;

private:
    void Mark(const Answer& answer);
    void MarkAll(const Answer& answer);
    void LookAway();
    void DescribeMarked();
    void Finish(bool closed);

    bool over_ = false;
    bool closed_ = false;
};

/// Opens the dialog in its mode and waits; the figures picked.
std::vector<VictimFigure> AskVictims(VictimForm& form);

}  // namespace plasmos
