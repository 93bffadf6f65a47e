// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

class QLabel;

namespace plasmos {

class GeneForm;
struct GameState;

/// "1 point", "4 points".
QString PointsText(int points);

/// What a listener is told of a gene's box: "Movement 1, 3 BP, 2 mutation points, not held, can be bought".
QString SpokenGene(const GameState& state, const GeneForm& form, int gene);

/// One gene of the gene dialog in words: its price, what it does, and how it stands with it. It is as high for every
/// gene.
class GeneExplanation : public QWidget {
public:
    GeneExplanation(QWidget* parent, const GameState& state, const GeneForm& form);

    /// Explains this gene from now on.
    void Explain(int gene);
    /// The same gene, as it stands now.
    void Reread() { Explain(gene_); }

private:
    const GameState& state_;
    const GeneForm& form_;
    int gene_ = 1;
    QLabel* name_;
    QLabel* text_;
    QLabel* standing_;
};

}  // namespace plasmos
