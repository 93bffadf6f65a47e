// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>
#include <functional>
#include <vector>

#include "ui/look/heard.h"
#include "ui/strip/chart_words.h"

namespace plasmos {

/// A chart of a game over its turns. Every clan's line has dashes and marks of its own and ends at the clan's sign; the
/// UV level goes in steps. The turn under the pointer or the keyboard's cursor is told in words, and a press on it, or
/// Enter, chooses it. By ear every turn is a part: part 1, 2, ... is the first, the second, ...
class TurnChart : public QWidget, public HeardPicture {
public:
    explicit TurnChart(QWidget* parent);

    /// Called when a turn has been chosen.
    std::function<void(int turn)> OnChosen;
    /// Called when another turn is looked at, and what Words() gives is another.
    std::function<void()> OnLook;

    /// Shows a chart; the turn that was chosen stays where the chart has it.
    void Show(Chart chart);
    /// No turn is chosen any more.
    void Forget();
    bool HasChosen() const { return chosen_ >= 0; }
    /// The turn that is looked at in words: under the pointer, at the cursor, chosen, or the last.
    QString Words() const;
    /// The least height at which the signs at the ends of so many clans' lines are apart.
    static int LeastHeight(int clans);

    /// Where the chart has a turn of its list, in pixels.
    QPoint PlaceOf(int index) const;
    /// The places of the signs at the ends of the lines, and of the word at the end of the UV level, in pixels.
    std::vector<QRect> EndPlaces() const;

    // ---- by ear ----
    std::vector<int> PartsOf(int part) const override;
    HeardPart Hear(int part) const override;
    int PartAt(QPoint point) const override;
    int FocusedPart() const override { return cursor_ + 1; }
    void PressPart(int part) override { Choose(part - 1); }

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    int Count() const { return static_cast<int>(chart_.Turns.size()); }
    int Looked() const;
    void Look(int& place, int index);
    void MoveTo(int index);
    void Choose(int index);

    QRectF Plot() const;
    double Across(int index) const;
    double Up(double value) const;
    QPointF PointOf(const ChartLine& line, int index) const;
    QRectF ColumnOf(int index) const;
    std::vector<double> EndHeights() const;
    void MeasureValues();

    void DrawGround(QPainter& painter) const;
    void DrawAxis(QPainter& painter) const;
    void DrawLevel(QPainter& painter) const;
    void DrawLine(QPainter& painter, const ChartLine& line) const;
    void DrawEnds(QPainter& painter) const;

    Chart chart_;
    int least_ = 0;  ///< values at the foot and at the head of the chart, and between its numbers
    int most_ = 1;
    int step_ = 1;
    int hover_ = -1;   ///< places in the list of turns; -1: none
    int cursor_ = -1;  ///< the keyboard's
    int chosen_ = -1;
    bool pressed_ = false;
};

/// Moves places on a line apart, on the whole as little as may be, until there is so much between neighbours; they stay
/// between `low` and `high` where there is room for all. Equal ones keep their order.
std::vector<double> MovedApart(const std::vector<double>& wanted, double apart, double low, double high);

}  // namespace plasmos
