// SPDX-License-Identifier: GPL-3.0-or-later
//
// What the options dialog saves, and when: the options file, the board of the next game, the names.

#include <QFile>

#include "tests/support/game_fixture.h"
#include "tests/ui/support/preferences.h"

namespace plasmos::testing {

class OptionsSavingTest : public QObject {
    Q_OBJECT

private slots:
    void theOptionsFile();
    void okRebuildsTheBoard();
    void applyKeepsTheDialogOpen();
    void cancelTouchesNothing_data();
    void cancelTouchesNothing();
    void names();
    void defaultNamesAreNotWritten();
    void noGameWhileItIsOpen();
};

void OptionsSavingTest::theOptionsFile() {
    Preferences window;
    QVERIFY(!window.Files().Exists(OptionsFile));
    window.Step("colsUD", 1);
    window.ClickPicture(8);
    window.ClickPicture(3);
    window.Press("cmdApply");
    QCOMPARE(window.FileText(OptionsFile),
             QStringLiteral("rows: 5\r\ncols: 6\r\nblocks: 2\r\n1: 600: 600\r\n2: 1200: 0\r\n"));
    QCOMPARE(window.Saved("board", "rows"), std::string("5"));
    QCOMPARE(window.Saved("board", "cols"), std::string("6"));
    QCOMPARE(window.Saved("board", "blockno"), std::string("2"));
    QCOMPARE(window.Saved("board", "blocks"), std::string("8:3:"));
    window.Step("blockUD", -2);
    window.Press("cmdApply");
    QCOMPARE(window.FileText(OptionsFile), QStringLiteral("rows: 5\r\ncols: 6\r\nblocks: 0\r\n"));
}

void OptionsSavingTest::okRebuildsTheBoard() {
    Preferences window;
    window.Step("rowUD", -1);
    window.Step("colsUD", 3);
    window.ClickPicture(9);
    window.Press("cmdOK");
    QVERIFY(!window.IsOpen());
    QCOMPARE(game.NumRows, 4);
    QCOMPARE(game.NumCols, 8);
    QCOMPARE(game.NumSquares, 32);
    QVERIFY(game.Blocked[9] && !game.Blocked[8]);
    game.RequestedClans = 6;
    PLAY(window, window.Click(QStringLiteral("watchb")));
    QCOMPARE(game.NumSquares, 32);
    window.Reopen();
    QCOMPARE(game.NumRows * 10 + game.NumCols, 48);
    window.OpenDialog();
    QCOMPARE(window.Values(), QStringLiteral("4x8 1"));
}

void OptionsSavingTest::applyKeepsTheDialogOpen() {
    Preferences window;
    window.Step("rowUD", 1);
    window.Press("cmdApply");
    QVERIFY(window.IsOpen());
    QCOMPARE(window.Saved("board", "rows"), std::string("6"));
    window.Step("rowUD", 1);
    window.Press("cmdCancel");
    QVERIFY(!window.IsOpen());
    QCOMPARE(window.Saved("board", "rows"), std::string("6"));
    QCOMPARE(game.NumRows, 6);
}

void OptionsSavingTest::cancelTouchesNothing_data() {
    QTest::addColumn<int>("way");
    QTest::newRow("Cancel") << 0;
    QTest::newRow("Escape") << 1;
    QTest::newRow("the window is closed") << 2;
}

void OptionsSavingTest::cancelTouchesNothing() {
    QFETCH(int, way);
    Preferences window({{"board", "rows", "4"}, {"players", "name1", "Ann"}});
    const auto ini = [&window] {
        QFile file(window.Folder() + QStringLiteral("/settings.ini"));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    };
    const QByteArray before = ini();
    window.Step("rowUD", 2);
    window.Step("blockUD", 2);
    window.ClickPicture(4);
    window.TypeName(1, QStringLiteral("Bob"));
    if (way == 0) {
        window.Press("cmdCancel");
    } else if (way == 1) {
        QTest::keyClick(window.Dialog(), Qt::Key_Escape);
    } else {
        window.Dialog()->close();
    }
    QCoreApplication::processEvents();
    QVERIFY(!window.IsOpen());
    QCOMPARE(ini(), before);
    QVERIFY(!window.Files().Exists(OptionsFile));
    QCOMPARE(game.NumRows, 4);
    QVERIFY(window.Item(QStringLiteral("pref_men"))->isEnabled() && window.Enabled(QStringLiteral("gob")));
}

void OptionsSavingTest::names() {
    Preferences window;
    window.TypeName(1, QStringLiteral("Öndóttr & Söhne"));
    window.TypeName(4, QStringLiteral("abcdefghijklmnopqrstuvwxyz"));
    window.TypeName(5, QStringLiteral("   "));
    window.TypeName(6, QString());
    window.Press("cmdOK");
    QCOMPARE(ToQt(window.Saved("players", "name1")), QStringLiteral("Öndóttr & Söhne"));
    QCOMPARE(window.Saved("players", "name4"), std::string("abcdefghijklmnopqrst"));
    game.RequestedClans = 6;
    PLAY(window, window.Click(QStringLiteral("watchb")));
    QCOMPARE(ToQt(game.Players[1].Name.View()), QStringLiteral("Öndóttr & Söhne"));
    QCOMPARE(game.Players[5].Name.String(), std::string("Player 5"));
    QCOMPARE(game.Players[6].Name.String(), std::string("Player 6"));
}

void OptionsSavingTest::defaultNamesAreNotWritten() {
    Preferences window({{"players", "name3", "Ann"}});
    window.TypeName(3, QStringLiteral("Player 3"));
    window.TypeName(2, QStringLiteral("Player 3"));
    window.Press("cmdOK");
    QCOMPARE(window.Saved("players", "name3"), std::string("Ann"));
    QCOMPARE(window.Saved("players", "name2"), std::string("Player 3"));
    for (const char* key : {"name1", "name4", "name5", "name6"}) {
        QCOMPARE(window.Saved("players", key), std::string("none"));
    }
}

void OptionsSavingTest::noGameWhileItIsOpen() {
    Preferences window;
    QVERIFY(!window.Enabled(QStringLiteral("gob")) && !window.Enabled(QStringLiteral("watchb")));
    window.Board().gob_Click();
    window.Board().watch_Click();
    QVERIFY(!window.Board().Playing());
    window.Menu(QStringLiteral("pref_men"));
    QCOMPARE(window.Board().findChildren<OptionsDialog*>(QStringLiteral("frmOptions")).size(), 1);
    window.Board().close();
    QVERIFY(!window.Board().isVisible());
}

WINDOW_TESTS(options_saving_test, OptionsSavingTest)

}  // namespace plasmos::testing

#include "options_saving_test.moc"
