// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringList>
#include <vector>

#include "record/turn_figures.h"

namespace plasmos {

/// What a game can be looked at by, turn after turn.
enum class ChartKind { Score, Amoebas, Food, Mutation };
inline constexpr int ChartCount = 4;

/// The line of one clan.
struct ChartLine {
    int Clan = 0;
    std::vector<int> Values;  ///< at every turn of the chart
};

/// A game turn after turn: a line for every clan, a level that they are held against, and every turn in words.
struct Chart {
    std::vector<int> Turns;
    std::vector<ChartLine> Lines;
    std::vector<int> Level;  ///< the UV level at every turn; empty: there is none
    QStringList Words;       ///< "Turn 4: Otto 12, Ida 9"
};

/// The caption of a chart: "Score".
QString ChartName(ChartKind kind);
/// What a chart shows, for who hears it: "The score of every clan, turn after turn".
QString ChartTitle(ChartKind kind);
/// A chart of a game whose clan 1, 2, ... has the first, second, ... name.
Chart MakeChart(ChartKind kind, const std::vector<TurnFigures>& figures, const QStringList& names);

}  // namespace plasmos
