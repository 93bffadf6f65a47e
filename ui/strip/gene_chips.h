// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>
#include <vector>

namespace plasmos {

struct GameState;

/// The visible list of a clan's genes in the order of purchase. Names are shortened to their codes
/// where they would not fit; where even these do not, the last one says how many more there are, and
/// its tool tip names them all.
class GeneChips : public QWidget {
public:
    GeneChips(QWidget* parent, const GameState& state, int clan);

    /// Shows the clan's genes in another state, which is to live as long as it is shown.
    void ShowState(const GameState& state);
    /// Takes the clan's genes from the state.
    void Reread();
    const std::vector<int>& Genes() const { return genes_; }

protected:
    void paintEvent(QPaintEvent* event) override;
    bool event(QEvent* event) override;

private:
    struct Chip {
        int Gene;  ///< 0: the count of those that do not fit
        QRectF Rect;
        QString Text;
        int Form;
    };

    bool Arrange(int form, std::vector<Chip>& chips) const;
    void CutToFit(std::vector<Chip>& chips) const;
    std::vector<Chip> Chips() const;
    QString Names() const;

    const GameState* state_;
    int clan_;
    std::vector<int> genes_;
};

}  // namespace plasmos
