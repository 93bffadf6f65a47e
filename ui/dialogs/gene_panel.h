// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QCheckBox>
#include <QLineEdit>
#include <array>

#include "questions/gene_form.h"
#include "ui/dialogs/question_panel.h"

namespace plasmos {

/// Genes given up and BP paid for the UV level, or genes bought.
class GenePanel : public QuestionPanel {
public:
    GenePanel(QWidget* parent, const GameState& state, GeneForm& form);
    void Reread() override;
    void CloseAsked() override;
    QWidget* FirstControl() override;

private:
    void MakeBoxes();
    void MakeFoot();

    GeneForm& form_;
    bool rereading_ = false;
    std::array<QCheckBox*, GeneCount + 1> boxes_{};
    std::array<QLabel*, GeneCount + 1> costs_{};
    QLabel* text_;
    QLabel* payLabel_;
    QLineEdit* EnvBP_;
    QLabel* ofLab_;
    QLabel* UVdiffLab_;
    QLabel* UVdiff_;
    QLabel* bpCaption_;
    QLabel* BPlabel_;
    QPushButton* resetb_;
    QPushButton* doneb_;
};

}  // namespace plasmos
