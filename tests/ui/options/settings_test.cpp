// SPDX-License-Identifier: GPL-3.0-or-later
//
// Settings as they may be found: missing, garbage, contradictory.

#include "files/settings_store.h"
#include "tests/ui/support/preferences.h"

namespace plasmos::testing {

class SettingsTest : public QObject {
    Q_OBJECT

private slots:
    void boards_data();
    void boards();
    void names_data();
    void names();
};

void SettingsTest::boards_data() {
    QTest::addColumn<QString>("rows");
    QTest::addColumn<QString>("cols");
    QTest::addColumn<QString>("blocks");
    QTest::addColumn<QString>("shown");
    QTest::addColumn<QString>("covered");
    QTest::newRow("missing") << ""
                             << ""
                             << ""
                             << "5x5 0"
                             << "";
    QTest::newRow("the least") << "3"
                               << "4"
                               << ""
                               << "3x4 0"
                               << "";
    QTest::newRow("the most") << "9"
                              << "4"
                              << "1:36:"
                              << "9x4 2"
                              << "1 36";
    QTest::newRow("letters") << "abc"
                             << "6"
                             << ""
                             << "5x6 0"
                             << "";
    QTest::newRow("a fraction") << "4.5"
                                << "6"
                                << ""
                                << "5x6 0"
                                << "";
    QTest::newRow("too few rows") << "2"
                                  << "6"
                                  << ""
                                  << "5x6 0"
                                  << "";
    QTest::newRow("too many columns") << "4"
                                      << "10"
                                      << ""
                                      << "4x5 0"
                                      << "";
    QTest::newRow("negative") << "-4"
                              << "4"
                              << ""
                              << "5x4 0"
                              << "";
    QTest::newRow("forty digits") << "4444444444444444444444444444444444444444"
                                  << "4"
                                  << ""
                                  << "5x4 0"
                                  << "";
    QTest::newRow("too many squares") << "7"
                                      << "7"
                                      << ""
                                      << "5x5 0"
                                      << "";
    QTest::newRow("too few squares") << "3"
                                     << "3"
                                     << ""
                                     << "5x5 0"
                                     << "";
    QTest::newRow("squares off the board") << "4"
                                           << "4"
                                           << "17:0:-3:5:"
                                           << "4x4 1"
                                           << "5";
    QTest::newRow("a square twice") << "5"
                                    << "5"
                                    << "7:7:8:7:"
                                    << "5x5 2"
                                    << "7 8";
    QTest::newRow("words among the squares") << "5"
                                             << "5"
                                             << "7:x:8.5::9"
                                             << "5x5 2"
                                             << "7 9";
    QTest::newRow("more than eight") << "5"
                                     << "5"
                                     << "1:2:3:4:5:6:7:8:9:10:"
                                     << "5x5 8"
                                     << "1 2 3 4 5 6 7 8";
    QTest::newRow("twelve squares stay free") << "4"
                                              << "4"
                                              << "1:2:3:4:5:6:7:8:"
                                              << "4x4 4"
                                              << "1 2 3 4";
    QTest::newRow("no square may be covered") << "3"
                                              << "4"
                                              << "1:2:"
                                              << "3x4 0"
                                              << "";
}

void SettingsTest::boards() {
    QFETCH(QString, rows);
    QFETCH(QString, cols);
    QFETCH(QString, blocks);
    QFETCH(QString, shown);
    QFETCH(QString, covered);
    std::vector<SavedValue> saved;
    for (const auto& [key, value] : {std::pair{"rows", rows}, std::pair{"cols", cols}, std::pair{"blocks", blocks}}) {
        if (!value.isEmpty()) {
            saved.push_back({"board", key, value.toStdString()});
        }
    }
    saved.push_back({"board", "blockno", "5"});
    Preferences window(saved);
    QCOMPARE(window.Values(), shown);
    QStringList squares;
    for (int square = 1; square <= game.NumSquares; ++square) {
        if (game.Blocked[square]) {
            squares << QString::number(square);
        }
    }
    QCOMPARE(squares.join(QLatin1Char(' ')), covered);
    QCOMPARE(QStringLiteral("%1x%2 %3").arg(game.NumRows).arg(game.NumCols).arg(squares.size()), shown);
    window.Press("cmdOK");
    QCOMPARE(window.Saved("board", "blockno"), std::to_string(squares.size()));
}

void SettingsTest::names_data() {
    QTest::addColumn<QString>("saved");
    QTest::addColumn<QString>("shown");
    QTest::newRow("a name") << "Ann"
                            << "Ann";
    QTest::newRow("blanks") << "   "
                            << "Player 3";
    QTest::newRow("too long") << "abcdefghijklmnopqrstuvwxyz"
                              << "abcdefghijklmnopqrst";
    QTest::newRow("beyond ASCII") << QString::fromUtf8("Žluťoučký kůň úpěl ď")
                                  << QString::fromUtf8("Žluťoučký kůň úpěl ď");
    QTest::newRow("control characters") << QStringLiteral("A\tB\nC") << "ABC";
    QTest::newRow("commas and quotes") << "a, \"b\"; c=d"
                                       << "a, \"b\"; c=d";
}

void SettingsTest::names() {
    QFETCH(QString, saved);
    QFETCH(QString, shown);
    Preferences window({{"players", "name3", saved.toStdString()}});
    QCOMPARE(window.Text(QStringLiteral("pname3")), shown);
    window.Press("cmdOK");
    window.Reopen();
    game.RequestedClans = 3;
    PLAY(window, window.Click(QStringLiteral("watchb")));
    QCOMPARE(ToQt(game.Players[3].Name.View()), shown);
}

WINDOW_TESTS(settings_test, SettingsTest)

}  // namespace plasmos::testing

#include "settings_test.moc"
