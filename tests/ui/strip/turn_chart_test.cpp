// SPDX-License-Identifier: GPL-3.0-or-later
//
// The charts of a game that is over: what they show and tell, and how a turn is chosen.

#include <QHelpEvent>
#include <QToolTip>

#include "tests/ui/support/after_game.h"

namespace plasmos::testing {

class TurnChartTest : public QObject {
    Q_OBJECT

private slots:
    void aTurnInWords_data();
    void aTurnInWords();
    void linesHaveTheFigures();
    void everyChartInWords();
    void aPressChoosesATurn();
    void keysChooseATurn();
    void thePointerIsToldOf();
    void placesAreMovedApart_data();
    void placesAreMovedApart();
};

void TurnChartTest::aTurnInWords_data() {
    QTest::addColumn<int>("kind");
    QTest::addColumn<int>("turn");
    QTest::addColumn<QString>("words");
    const auto row = [](ChartKind kind, int turn, const char* words) {
        QTest::newRow(words) << static_cast<int>(kind) << turn << QString::fromLatin1(words);
    };
    row(ChartKind::Score, 0, "Before the first turn: Ann 3, Bo 1");
    row(ChartKind::Score, 4, "Turn 4: Ann 3, Bo 1");
    row(ChartKind::Amoebas, 4, "Turn 4: Ann 2, Bo 7");
    row(ChartKind::Food, 4, "Turn 4: 8 pieces of food on the board, 8 blue, 0 purple");
    row(ChartKind::Food, 0, "Before the first turn: 1 piece of food on the board, 1 blue, 0 purple");
    row(ChartKind::Mutation, 4, "Turn 4: UV 5, Ann 6 (above), Bo 5");
}

void TurnChartTest::aTurnInWords() {
    QFETCH(int, kind);
    QFETCH(int, turn);
    TurnFigures figures;
    figures.Turn = turn;
    figures.UV = 5;
    figures.Food = turn == 0 ? 1 : 8;
    figures.Clans[1] = {.Score = 3, .Amoebas = 2, .Food = figures.Food, .MutationLevel = 6};
    figures.Clans[2] = {.Score = 1, .Amoebas = 7, .MutationLevel = 5};
    const Chart chart =
        MakeChart(static_cast<ChartKind>(kind), {figures}, {QStringLiteral("Ann"), QStringLiteral("Bo")});
    QTEST(chart.Words.join(QLatin1Char('\n')), "words");
}

void TurnChartTest::linesHaveTheFigures() {
    AfterGame scene(5);
    const QStringList names(5, QStringLiteral("somebody"));
    constexpr int ClanFigures::*figures[] = {&ClanFigures::Score, &ClanFigures::Amoebas, &ClanFigures::Food,
                                             &ClanFigures::MutationLevel};
    for (int kind = 0; kind < ChartCount; ++kind) {
        const Chart chart = MakeChart(static_cast<ChartKind>(kind), scene.Kept(), names);
        QCOMPARE(static_cast<int>(chart.Lines.size()), 5);
        for (std::size_t turn = 0; turn < scene.Kept().size(); ++turn) {
            QCOMPARE(chart.Turns[turn], scene.Kept()[turn].Turn);
            for (const ChartLine& line : chart.Lines) {
                QCOMPARE(line.Values[turn], scene.Kept()[turn].Clans[line.Clan].*figures[kind]);
            }
            if (kind == static_cast<int>(ChartKind::Mutation)) {
                QCOMPARE(chart.Level[turn], scene.Kept()[turn].UV);
            }
        }
    }
}

void TurnChartTest::everyChartInWords() {
    AfterGame scene(4);
    const TurnFigures& last = scene.Kept().back();
    QCOMPARE(scene.Words(), ScoreWords(last));
    const QString food = QStringLiteral("Turn 10: %1 pieces of food on the board, %2 blue, %3 purple, ")
                             .arg(last.Food)
                             .arg(last.Clans[1].Food)
                             .arg(last.Clans[2].Food);
    const QString beginnings[] = {
        QStringLiteral("Turn 10: Player 1 %1, ").arg(last.Clans[1].Score),
        QStringLiteral("Turn 10: Player 1 %1, ").arg(last.Clans[1].Amoebas), food,
        QStringLiteral("Turn 10: UV %1, Player 1 %2").arg(last.UV).arg(last.Clans[1].MutationLevel)};
    for (int kind = 0; kind < ChartCount; ++kind) {
        scene.Click(Named(Kinds[kind]));
        QVERIFY2(scene.Words().startsWith(beginnings[kind]), qPrintable(scene.Words()));
        for (int other = 0; other < ChartCount; ++other) {
            QCOMPARE(scene.Ticked(Named(Kinds[other])), other == kind);
        }
        TakePicture(scene, Named(Kinds[kind]) + QStringLiteral(".png"));
    }
}

void TurnChartTest::aPressChoosesATurn() {
    AfterGame scene(3);
    for (const int turn : {4, 0, 10}) {
        scene.Press(&scene.Picture(), Qt::LeftButton, scene.Picture().PlaceOf(turn));
        QVERIFY(scene.Picture().HasChosen());
        QCOMPARE(scene.Turns.last(), turn);
        QCOMPARE(scene.Words(), ScoreWords(scene.Kept()[static_cast<std::size_t>(turn)]));
        const QImage picture = scene.Picture().grab().toImage();
        for (const int other : {4, 0, 10}) {
            const bool line = picture.pixelColor(scene.Picture().PlaceOf(other).x(), 6) == Shade(Tone::Accent);
            QVERIFY2(line == (other == turn), "a line stands at the chosen turn");
        }
    }
    scene.Press(&scene.Picture(), Qt::RightButton, scene.Picture().PlaceOf(5));
    QCOMPARE(scene.Turns.size(), 3);
    scene.Click(Named("chart_food"));
    QVERIFY2(scene.Picture().HasChosen(), "another chart keeps the turn");
}

void TurnChartTest::keysChooseATurn() {
    AfterGame scene(3);
    scene.Picture().setFocus(Qt::TabFocusReason);
    scene.Key(Named("turnchart"), Qt::Key_Left);
    scene.Key(Named("turnchart"), Qt::Key_Left);
    QCOMPARE(scene.Words(), ScoreWords(scene.Kept()[8]));
    QVERIFY(scene.Turns.isEmpty());
    scene.Key(Named("turnchart"), Qt::Key_Return);
    scene.Key(Named("turnchart"), Qt::Key_Home);
    scene.Key(Named("turnchart"), Qt::Key_Left);
    scene.Key(Named("turnchart"), Qt::Key_Space);
    scene.Key(Named("turnchart"), Qt::Key_End);
    scene.Key(Named("turnchart"), Qt::Key_Right);
    scene.Key(Named("turnchart"), Qt::Key_Enter);
    QCOMPARE(scene.Turns, QList<int>({8, 0, 10}));
}

void TurnChartTest::thePointerIsToldOf() {
    AfterGame scene(3);
    const QPoint at = scene.Picture().PlaceOf(3);
    QTest::mouseMove(scene.Board().windowHandle(), scene.Picture().mapTo(&scene.Board(), at));
    QCOMPARE(scene.Words(), ScoreWords(scene.Kept()[3]));
    QHelpEvent help(QEvent::ToolTip, at, scene.Picture().mapToGlobal(at));
    QCoreApplication::sendEvent(&scene.Picture(), &help);
    QCOMPARE(QToolTip::text(), ScoreWords(scene.Kept()[3]));
    QToolTip::hideText();
    QTest::mouseMove(scene.Board().windowHandle(), QPoint(100, 300));
    QTRY_COMPARE(scene.Words(), ScoreWords(scene.Kept()[10]));
}

void TurnChartTest::placesAreMovedApart_data() {
    using Places = std::vector<double>;
    QTest::addColumn<Places>("wanted");
    QTest::addColumn<Places>("moved");
    QTest::newRow("none") << Places{} << Places{};
    QTest::newRow("apart already") << Places{50, 10, 30} << Places{50, 10, 30};
    QTest::newRow("equal ones keep their order") << Places{50, 50, 50} << Places{40, 50, 60};
    QTest::newRow("half of the way each") << Places{54, 50} << Places{57, 47};
    QTest::newRow("no further than the ends") << Places{2, 0, 98, 99} << Places{10, 0, 90, 100};
    QTest::newRow("a heap pushes its neighbour") << Places{50, 50, 59} << Places{43, 53, 63};
}

void TurnChartTest::placesAreMovedApart() {
    using Places = std::vector<double>;
    QFETCH(Places, wanted);
    QFETCH(Places, moved);
    QCOMPARE(MovedApart(wanted, 10, 0, 100), moved);
}

WINDOW_TESTS(turn_chart_test, TurnChartTest)

}  // namespace plasmos::testing

#include "turn_chart_test.moc"
