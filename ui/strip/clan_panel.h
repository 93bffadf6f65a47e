// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLabel>
#include <QWidget>
#include <array>

#include "ui/look/heard.h"
#include "ui/look/theme.h"

namespace plasmos {

class GeneChips;
class RisingWords;
struct GameState;

/// One card per clan in the order of play, from the state it is given. By ear every card is a part: part 1, 2, ... is
/// the card of clan 1, 2, ...
class ClanPanel : public QWidget, public HeardPicture {
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
    /// A clan that adapts has made up the difference, though it has not said so yet; 0: none has.
    void ShowSafe(int clan);
    void ShowAll();

    /// Words rise from a clan's BP or from its genes.
    void RiseFromBP(int clan, const QString& words, Tone tone, int milliseconds);
    void RiseFromGenes(int clan, const QString& words, Tone tone, int milliseconds);
    /// Something moves just now.
    bool Runs() const;

    // ---- by ear ----
    std::vector<int> PartsOf(int part) const override;
    HeardPart Hear(int part) const override;
    int PartAt(QPoint point) const override;

    /// Height of the cards as they are meant, of the lowest cards, and of a line for each clan, which tells
    /// the figures and leaves the genes away.
    int FullHeight() const;
    int LeastHeight() const;
    int ShortHeight() const;

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    struct Columns {
        double Score, BP, Amoebas, Mutation, Width;
    };

    bool MustAdapt(int clan) const;
    bool Shown() const;
    double CardHeight() const;
    Columns ColumnsOf() const;
    QRectF CardRect(int place) const;
    bool Roomy() const { return CardHeight() >= 70; }
    bool InLines() const;
    void Arrange();
    int PlaceOf(int clan) const;
    void DrawCard(QPainter& painter, int place) const;
    void DrawHeads(QPainter& painter, double heads) const;
    void DrawFigures(QPainter& painter, int clan, double top) const;
    void DrawLine(QPainter& painter, int place) const;

    const GameState* state_;
    int current_ = 0;
    int safe_ = 0;  ///< the clan whose open dialog makes up its difference
    RisingWords* rising_;
};

}  // namespace plasmos
