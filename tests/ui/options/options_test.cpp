// SPDX-License-Identifier: GPL-3.0-or-later
//
// The options dialog: size of the board, blocked squares, names; what it saves and where.

#include <QFile>
#include "tests/support/game_fixture.h"
#include "tests/ui/support/preferences.h"

namespace plasmos::testing {

class OptionsTest : public QObject {
    Q_OBJECT

private slots:
    void opens();
    void bounds_data();
    void bounds();
    void typedValuesStopAtTheBounds();
    void placesAndRemovesMarkers();
    void movesAMarker();
    void aMarkerMovedOntoAnotherBecomesOneWithIt();
    void theDiagnosticLabel();
    void aLoweredSideTakesMarkersAlong();
    void markersThatMeetBecomeOne();
    void theBlockControl();
};

void OptionsTest::opens() {
    Preferences window({{"board", "rows", "4"},
                        {"board", "cols", "6"},
                        {"board", "blocks", "3:10:"},
                        {"board", "blockno", "7"},
                        {"players", "name2", "Ann"}});
    QVERIFY(window.IsOpen());
    QCOMPARE(window.Dialog()->windowTitle(), QStringLiteral("Plasmos - Preferences"));
    QCOMPARE(window.Values(), QStringLiteral("4x6 2"));
    QCOMPARE(window.Border(3), "black");
    QCOMPARE(window.Border(10), "black");
    QCOMPARE(window.Border(4), "none");
    for (int clan = 1; clan <= 6; ++clan) {
        QCOMPARE(window.Text(QStringLiteral("pname%1").arg(clan)),
                 clan == 2 ? QStringLiteral("Ann") : QStringLiteral("Player %1").arg(clan));
    }
    const QPoint middle = window.Dialog()->frameGeometry().center();
    const QPoint screen = window.Dialog()->screen()->availableGeometry().center();
    QVERIFY((middle - screen).manhattanLength() < 60);
}

void OptionsTest::bounds_data() {
    QTest::addColumn<QString>("values");
    QTest::addColumn<QString>("blocks");
    QTest::addColumn<QString>("rows");
    QTest::addColumn<QString>("cols");
    QTest::addColumn<int>("most");
    QTest::addColumn<QString>("why");
    const char* side = "A side has 3 to 9 squares.";
    const char* large = "A board has at most 36 squares.";
    const char* free = "12 squares must stay free.";
    QTest::newRow("5x5") << "5x5"
                         << ""
                         << "3..7"
                         << "3..7" << 8 << "";
    QTest::newRow("3x4") << "3x4"
                         << ""
                         << "3..9"
                         << "4..9" << 0 << QStringLiteral("%1\n%2").arg(side, free);
    QTest::newRow("6x6") << "6x6"
                         << ""
                         << "3..6"
                         << "3..6" << 8 << large;
    QTest::newRow("9x4") << "9x4"
                         << ""
                         << "3..9"
                         << "3..4" << 8 << QStringLiteral("%1\n%2").arg(side, large);
    QTest::newRow("3x9") << "3x9"
                         << ""
                         << "3..4"
                         << "4..9" << 8 << side;
    QTest::newRow("4x4, full of blocks") << "4x4"
                                         << "1:2:3:4:"
                                         << "4..9"
                                         << "4..9" << 4 << free;
    QTest::newRow("5x5, eight blocks") << "5x5"
                                       << "1:2:3:4:5:6:7:8:"
                                       << "4..7"
                                       << "4..7" << 8 << "There are at most 8 blocks.";
}

void OptionsTest::bounds() {
    QFETCH(QString, values);
    QFETCH(QString, blocks);
    QFETCH(QString, rows);
    QFETCH(QString, cols);
    QFETCH(int, most);
    QFETCH(QString, why);
    Preferences window({{"board", "rows", values.section('x', 0, 0).toStdString()},
                        {"board", "cols", values.section('x', 1).toStdString()},
                        {"board", "blocks", blocks.toStdString()}});
    const auto range = [](QSpinBox* box) { return QStringLiteral("%1..%2").arg(box->minimum()).arg(box->maximum()); };
    QCOMPARE(range(window.Side("rowUD")), rows);
    QCOMPARE(range(window.Side("colsUD")), cols);
    QCOMPARE(range(window.Side("blockUD")), QStringLiteral("0..%1").arg(most));
    QCOMPARE(window.Label("boundslab"), why);
    window.Step("rowUD", 12);
    QCOMPARE(window.Side("rowUD")->value(), rows.section(QStringLiteral(".."), 1).toInt());
    QVERIFY2(!window.Label("boundslab").isEmpty(), "a control that stops says why");
}

void OptionsTest::typedValuesStopAtTheBounds() {
    Preferences window;
    for (const char* text : {"999999", "0", "-5", "abc", "8", ""}) {
        for (const char* name : {"rowUD", "colsUD", "blockUD"}) {
            QSpinBox* box = window.Side(name);
            box->setFocus();
            box->selectAll();
            QTest::keyClicks(box, QString::fromLatin1(text));
            QTest::keyClick(box, Qt::Key_Tab);
            const int rows = window.Side("rowUD")->value();
            const int cols = window.Side("colsUD")->value();
            const int blocks = window.Side("blockUD")->value();
            QVERIFY(rows >= 3 && rows <= 9 && cols >= 3 && cols <= 9 && rows * cols <= 36);
            QVERIFY(blocks >= 0 && blocks <= 8 && rows * cols - blocks >= 12);
        }
    }
}

void OptionsTest::placesAndRemovesMarkers() {
    Preferences window;
    window.ClickPicture(7);
    window.ClickPicture(25);
    QCOMPARE(window.Values(), QStringLiteral("5x5 2"));
    QCOMPARE(window.Border(7), "black");
    window.ClickPicture(7);
    QCOMPARE(window.Values(), QStringLiteral("5x5 1"));
    QCOMPARE(window.Border(7), "none");
    for (int square = 1; square <= 12; ++square) {
        window.ClickPicture(square);
    }
    QCOMPARE(window.Values(), QStringLiteral("5x5 8"));
    window.Press("cmdOK");
    QCOMPARE(window.Saved("board", "blocks"), std::string("25:1:2:3:4:5:6:7:"));
}

void OptionsTest::movesAMarker() {
    Preferences window({{"board", "blocks", "7:8:"}});
    window.ClickPicture(3, Qt::RightButton);
    QCOMPARE(window.Border(7), "black");
    window.ClickPicture(7, Qt::RightButton);
    QCOMPARE(window.Border(7), "yellow");
    QCOMPARE(window.Border(8), "black");
    window.ClickPicture(13, Qt::RightButton);
    QCOMPARE(window.Border(13), "black");
    QCOMPARE(window.Border(7), "none");
    window.ClickPicture(13, Qt::RightButton);
    window.ClickPicture(13, Qt::RightButton);
    QCOMPARE(window.Border(13), "black");
    window.Scene::Press(window.Picture(), Qt::RightButton, window.PlaceOf(13) + QPoint(19, 19));
    QCOMPARE(window.Border(13), "yellow");
    window.Press("cmdOK");
    QCOMPARE(window.Saved("board", "blocks"), std::string("13:8:"));
}

void OptionsTest::aMarkerMovedOntoAnotherBecomesOneWithIt() {
    Preferences window({{"board", "blocks", "7:8:13:"}});
    window.ClickPicture(8, Qt::RightButton);
    window.ClickPicture(13, Qt::RightButton);
    QCOMPARE(window.Values(), QStringLiteral("5x5 2"));
    QCOMPARE(window.Border(8), "none");
    QCOMPARE(window.Border(13), "black");
    window.ClickPicture(8, Qt::RightButton);
    QCOMPARE(window.Border(13), "black");
    window.Press("cmdOK");
    QCOMPARE(window.Saved("board", "blocks"), std::string("7:13:"));
    QCOMPARE(window.Saved("board", "blockno"), std::string("2"));
}

void OptionsTest::theDiagnosticLabel() {
    Preferences window({{"board", "blocks", "7:14:"}});
    window.ClickPicture(14, Qt::RightButton);
    QCOMPARE(window.Label("diaglab"), QStringLiteral("Square: 14\nButton: 2\nsqTop: 1200\nsqLeft: 1800\nBlock: 2"));
    window.ClickPicture(14, Qt::RightButton);
    window.ClickPicture(1);
    QCOMPARE(window.Label("diaglab"), QStringLiteral("Square: 1\nButton: 1\nsqTop: 0\nsqLeft: 0\nBlock: 3"));
}

void OptionsTest::aLoweredSideTakesMarkersAlong() {
    Preferences window({{"board", "blocks", "22:5:"}});
    window.Step("rowUD", -1);
    QCOMPARE(window.Picture()->height(), 160);
    QCOMPARE(window.Border(17), "black");
    window.Step("colsUD", -1);
    QCOMPARE(window.Picture()->width(), 160);
    window.Press("cmdOK");
    QCOMPARE(window.Saved("board", "blocks"), std::string("14:4:"));
    QCOMPARE(window.FileText(OptionsFile),
             QStringLiteral("rows: 4\r\ncols: 4\r\nblocks: 2\r\n1: 600: 1800\r\n2: 1800: 0\r\n"));
}

void OptionsTest::markersThatMeetBecomeOne() {
    Preferences window({{"board", "blocks", "22:17:5:"}});
    window.ClickPicture(17, Qt::RightButton);
    window.Step("rowUD", -1);
    QCOMPARE(window.Values(), QStringLiteral("4x5 2"));
    QCOMPARE(window.Border(17), "black");
    window.Press("cmdOK");
    QCOMPARE(window.Saved("board", "blocks"), std::string("17:5:"));
    QCOMPARE(window.Saved("board", "blockno"), std::string("2"));
}

void OptionsTest::theBlockControl() {
    Preferences window({{"board", "blocks", "25:"}});
    window.Step("blockUD", 3);
    QCOMPARE(window.Values(), QStringLiteral("5x5 4"));
    window.Step("blockUD", -2);
    window.Press("cmdApply");
    const std::string left = window.Saved("board", "blocks");
    QVERIFY2(left.rfind("25:", 0) == 0 && left != "25:", left.c_str());
    window.Step("blockUD", -9);
    window.Press("cmdApply");
    QCOMPARE(window.Saved("board", "blocks"), std::string());
    QCOMPARE(window.Saved("board", "blockno"), std::string("0"));
}

WINDOW_TESTS(options_test, OptionsTest)

}  // namespace plasmos::testing

#include "options_test.moc"
