// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLabel>
#include <QWidget>
#include <array>

namespace plasmos {

class GeneChips;
struct GameState;

/// One card per clan in the order of play, from the state it is given.
class ClanPanel : public QWidget {
public:
    ClanPanel(QWidget* parent, const GameState& state);

    std::array<QLabel*, 6> bplab;         ///< by clan - 1
    std::array<QLabel*, 6> orderlab;      ///< by place - 1
    std::array<GeneChips*, 6> GeneLists;  ///< by clan - 1

    /// Shows another state, which is to live as long as it is shown; the clan that acts stays as it was told.
    void ShowState(const GameState& state);
    void ShowBP(int clan);
    void ShowOrder();
    void ShowGenes(int clan);
    void ShowCurrentClan(int clan);
    /// Takes everything from the state.
    void ShowAll();

    /// Height of the cards as they are meant, of the lowest cards, and of a line for each clan, which tells
    /// the figures and leaves the genes away.
    int FullHeight() const;
    int LeastHeight() const;
    int ShortHeight() const;

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    struct Columns {
        double Score, BP, Amoebas, Mutation, Width;
    };

    bool Shown() const;
    double CardHeight() const;
    Columns ColumnsOf() const;
    QRectF CardRect(int place) const;
    bool Roomy() const { return CardHeight() >= 70; }
    bool InLines() const;
    void Arrange();
    void DrawCard(QPainter& painter, int place) const;
    void DrawFigures(QPainter& painter, int clan, double heads, double top) const;
    void DrawLine(QPainter& painter, int place) const;

    const GameState* state_;
    int current_ = 0;
};

}  // namespace plasmos
