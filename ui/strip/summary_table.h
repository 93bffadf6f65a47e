// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QWidget>
#include <vector>

#include "record/turn_figures.h"
#include "ui/look/heard.h"

namespace plasmos {

/// One clan of a game that is over.
struct SummaryRow {
    int Clan = 0;
    QString Name;
    QString Kind;  ///< "you", or the personality of a computer clan
    ClanFigures Figures;
};

/// Who came where: a line for every clan, the winner's first. By ear every line is a part: part 1 is the winner's.
class SummaryTable : public QWidget, public HeardPicture {
public:
    explicit SummaryTable(QWidget* parent);

    void Show(std::vector<SummaryRow> rows);
    const std::vector<SummaryRow>& Rows() const { return rows_; }

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return {40, sizeHint().height()}; }

    // ---- by ear ----
    std::vector<int> PartsOf(int part) const override;
    HeardPart Hear(int part) const override;
    int PartAt(QPoint point) const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QRectF LineOf(int place) const;
    double FiguresLeft() const;
    void DrawHeads(QPainter& painter) const;
    void DrawRow(QPainter& painter, int place) const;
    void DrawName(QPainter& painter, const SummaryRow& row, const QRectF& room) const;

    std::vector<SummaryRow> rows_;
};

}  // namespace plasmos
