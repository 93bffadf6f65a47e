// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QCheckBox>
#include <QLineEdit>
#include <array>

#include "questions/gene_form.h"
#include "ui/dialogs/question_panel.h"

namespace plasmos {

class GeneExplanation;

/// Genes given up and BP paid for the UV level, or genes bought. The gene under the pointer, or where the keyboard is,
/// is explained in a place of its own. Who adapts sees the clan's own genes only.
class GenePanel : public QuestionPanel {
public:
    GenePanel(QWidget* parent, const GameState& state, GeneForm& form);
    void Reread() override;
    void CloseAsked() override;
    QWidget* FirstControl() override;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void Redress() override;

private:
    /// A gene's check box, with its price and what it gives below.
    struct Line {
        QCheckBox* Box = nullptr;
        QLabel* Cost = nullptr;
        QLabel* Gives = nullptr;
    };

    void MakeBoxes();
    void MakeBox(int gene);
    void MakePrice();
    void MakeButtons();
    void Connect();
    void RereadBox(int gene);
    void RereadPayment();
    void StepBP(int by);
    QString MissingText() const;
    QString ClosingText() const;
    Line& At(int gene) { return lines_[static_cast<std::size_t>(gene)]; }

    GeneForm& form_;
    bool made_ = false;
    bool rereading_ = false;
    std::array<Line, GeneCount + 1> lines_{};
    QLabel* text_;
    GeneExplanation* explanation_;
    QLabel* payLabel_;
    QPushButton* lessBP_;
    QLineEdit* EnvBP_;
    QPushButton* moreBP_;
    QLabel* ofLab_;
    QLabel* UVdiffLab_;
    QLabel* UVdiff_;
    QLabel* missing_;
    QLabel* bpCaption_;
    QLabel* BPlabel_;
    QPushButton* adaptb_;
    QPushButton* resetb_;
    QPushButton* doneb_;
};

}  // namespace plasmos
