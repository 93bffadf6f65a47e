// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QColor>
#include <QLabel>
#include <QWidget>

#include "ui/look/theme.h"

class QTextLayout;

namespace plasmos {

/// A rounded card of the strip beside the board.
class Card : public QWidget {
public:
    explicit Card(QWidget* parent) : QWidget(parent) {}

    /// The edge is a clan's, of no clan (0), or that of what asks for nobody (-1).
    void SetEdge(int clan);

protected:
    void paintEvent(QPaintEvent* event) override;
    void changeEvent(QEvent* event) override;
    /// Colours or letters have changed.
    virtual void Redress() {}

private:
    int clan_ = 0;
};

/// A label that fills a rounded rectangle with its palette's window colour.
class PillLabel : public QLabel {
public:
    using QLabel::QLabel;

protected:
    void paintEvent(QPaintEvent* event) override;
};

/// A label with wrapped text that takes a smaller letter when the text does not fit.
class FitLabel : public QLabel {
public:
    FitLabel(QWidget* parent, int largest, int smallest);

    void SetText(const QString& text);
    /// Height the text takes with the largest letter at a width.
    int HeightAt(int width) const;
    /// The same with the smallest letter.
    int LeastHeightAt(int width) const;

protected:
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    int HeightWith(int pixels, int width) const;
    void Fit();

    int largest_;
    int smallest_;
};

/// The same on a rounded ground of its palette's window colour.
class SpeechLabel : public FitLabel {
public:
    SpeechLabel(QWidget* parent, int largest, int smallest);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    static constexpr int Around = 4;
};

/// A text that breaks at blanks, and within a word that is longer than a line, such as a path.
class WrapLabel : public QLabel {
public:
    explicit WrapLabel(QWidget* parent);

    int heightForWidth(int width) const override;
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    /// Breaks the text into lines and gives their height.
    double LayOut(QTextLayout& layout, double width) const;
};

/// A plain label of a size, weight and colour.
QLabel* MakeLabel(QWidget* parent, const QString& name, int pixels, bool bold, Tone tone);
void SetLabelColour(QLabel* label, const QColor& colour);

}  // namespace plasmos
