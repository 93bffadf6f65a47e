// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>
#include <vector>

namespace plasmos {

/// The visible list of a clan's genes in the order of purchase. Names are shortened to their codes
/// where they would not fit; where even these do not, the last one says how many more there are, and
/// its tool tip names them all.
class GeneChips : public QWidget {
public:
    GeneChips(QWidget* parent, int clan);

    /// Takes the clan's genes from the state: what is new goes to the end.
    void Follow();
    /// Begins a new game.
    void Forget();
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

    int clan_;
    std::vector<int> genes_;
};

}  // namespace plasmos
