// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/strip/chart_words.h"

#include "ui/look/colour_names.h"
#include "ui/look/palette.h"

namespace plasmos {

namespace {

int ValueOf(ChartKind kind, const ClanFigures& clan) {
    switch (kind) {
        case ChartKind::Score: return clan.Score;
        case ChartKind::Amoebas: return clan.Amoebas;
        case ChartKind::Food: return clan.Food;
        case ChartKind::Mutation: return clan.MutationLevel;
    }
    return 0;
}

QString When(int turn) {
    return turn == 0 ? QStringLiteral("Before the first turn: ") : QStringLiteral("Turn %1: ").arg(turn);
}

/// What is told of all clans together.
QString WholeOf(ChartKind kind, const TurnFigures& figures) {
    switch (kind) {
        case ChartKind::Food:
            return QStringLiteral("%1 %2 of food on the board, ")
                .arg(figures.Food)
                .arg(figures.Food == 1 ? QStringLiteral("piece") : QStringLiteral("pieces"));
        case ChartKind::Mutation: return QStringLiteral("UV %1, ").arg(figures.UV);
        case ChartKind::Score:
        case ChartKind::Amoebas: break;
    }
    return {};
}

QString OneOf(ChartKind kind, const TurnFigures& figures, int clan, const QString& name) {
    const int value = ValueOf(kind, figures.Clans[clan]);
    if (kind == ChartKind::Food) {
        return QStringLiteral("%1 %2").arg(value).arg(ToQt(ColourName(clan)));
    }
    const bool above = kind == ChartKind::Mutation && value > figures.UV;
    return QStringLiteral("%1 %2%3").arg(name).arg(value).arg(above ? QStringLiteral(" (above)") : QString());
}

QString WordsOf(ChartKind kind, const TurnFigures& figures, const QStringList& names) {
    QStringList clans;
    for (int clan = 1; clan <= names.size(); ++clan) {
        clans << OneOf(kind, figures, clan, names[clan - 1]);
    }
    return When(figures.Turn) + WholeOf(kind, figures) + clans.join(QStringLiteral(", "));
}

}  // namespace

QString ChartName(ChartKind kind) {
    switch (kind) {
        case ChartKind::Score: return QStringLiteral("Score");
        case ChartKind::Amoebas: return QStringLiteral("Amoebas");
        case ChartKind::Food: return QStringLiteral("Food");
        case ChartKind::Mutation: return QStringLiteral("Mutation");
    }
    return {};
}

QString ChartTitle(ChartKind kind) {
    switch (kind) {
        case ChartKind::Score: return QStringLiteral("The score of every clan, turn after turn");
        case ChartKind::Amoebas: return QStringLiteral("The amoebas of every clan, turn after turn");
        case ChartKind::Food: return QStringLiteral("The food of every colour on the board, turn after turn");
        case ChartKind::Mutation:
            return QStringLiteral("The mutation level of every clan and the UV level, turn after turn");
    }
    return {};
}

Chart MakeChart(ChartKind kind, const std::vector<TurnFigures>& figures, const QStringList& names) {
    Chart chart;
    for (int clan = 1; clan <= names.size(); ++clan) {
        chart.Lines.push_back({clan, {}});
    }
    for (const TurnFigures& one : figures) {
        chart.Turns.push_back(one.Turn);
        for (ChartLine& line : chart.Lines) {
            line.Values.push_back(ValueOf(kind, one.Clans[line.Clan]));
        }
        if (kind == ChartKind::Mutation) {
            chart.Level.push_back(one.UV);
        }
        chart.Words << WordsOf(kind, one, names);
    }
    return chart;
}

}  // namespace plasmos
