// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDir>

#include "record/turn_figures.h"
#include "tests/ui/support/scene.h"
#include "ui/strip/summary_panel.h"
#include "ui/strip/summary_table.h"
#include "ui/strip/turn_chart.h"
#include "ui/window/history_desk.h"
#include "ui/window/record_desk.h"
#include "ui/window/uboard.h"

namespace plasmos::testing {

/// The buttons that choose a chart.
inline constexpr const char* Kinds[] = {"chart_score", "chart_amoebas", "chart_food", "chart_mutation"};

inline QString Named(const char* name) {
    return QString::fromLatin1(name);
}

/// A window after a game that somebody has watched.
class AfterGame : public Scene {
public:
    explicit AfterGame(int clans, QSize size = QSize(1320, 860)) {
        Board().resize(size);
        Summary().OnTurn = [this](int turn) { Turns << turn; };
        Summary().OnPlayAgain = [this](int turn) { Again << turn; };
        Summary().OnSave = [this] { ++Saved; };
        game.RequestedClans = clans;
        game.HasRequestedReplay = true;
        game.RequestedReplay = 4711;
        Click(Named("watchb"));
    }

    SummaryPanel& Summary() { return *Board().findChild<SummaryPanel*>(Named("summary")); }
    TurnChart& Picture() { return *Summary().findChild<TurnChart*>(Named("turnchart")); }
    SummaryTable& Places() { return *Summary().findChild<SummaryTable*>(Named("summarytab")); }
    const std::vector<TurnFigures>& Kept() { return Board().History().Records().Recorder()->Figures(); }
    QString Words() { return Text(Named("chartlab")).replace(QChar::Nbsp, QLatin1Char(' ')); }

    QList<int> Turns;
    QList<int> Again;
    int Saved = 0;
};

/// The figures in words, worked out anew.
inline QString ScoreWords(const TurnFigures& figures) {
    QStringList clans;
    for (int clan = 1; clan <= game.NumPlayers; ++clan) {
        clans << QStringLiteral("Player %1 %2").arg(clan).arg(figures.Clans[clan].Score);
    }
    const QString when =
        figures.Turn == 0 ? QStringLiteral("Before the first turn: ") : QStringLiteral("Turn %1: ").arg(figures.Turn);
    return when + clans.join(QStringLiteral(", "));
}

/// With PLASMOS_PICTURES=folder what was tested can be looked at.
inline void TakePicture(Scene& scene, const QString& name) {
    if (qEnvironmentVariableIsSet("PLASMOS_PICTURES")) {
        scene.Board().grab().save(QDir(qEnvironmentVariable("PLASMOS_PICTURES")).filePath(name));
    }
}

}  // namespace plasmos::testing
