// SPDX-License-Identifier: GPL-3.0-or-later
//
// Records that do not fit: the person is told the line, and opens what is sound.

#include <QDir>
#include <QFile>
#include <QMessageBox>
#include <QRegularExpression>

#include "tests/ui/support/stand.h"

namespace plasmos::testing {

class OddRecordsTest : public QObject {
    Q_OBJECT

private slots:
    void recordsThatDoNotFit_data();
    void recordsThatDoNotFit();

private:
    static QString KeptGameOf(Scene& scene) {
        const QDir games(ToQt(scene.Files().GamesFolder()));
        return games.filePath(games.entryList({QStringLiteral("*.plasmos")}, QDir::Files).first());
    }
};

void OddRecordsTest::recordsThatDoNotFit_data() {
    QTest::addColumn<QString>("old");
    QTest::addColumn<QString>("change");
    QTest::addColumn<QString>("told");
    QTest::addColumn<bool>("opens");
    QTest::newRow("cut off") << QStringLiteral("\nend") << QStringLiteral("\nsqu") << QStringLiteral("is cut off")
                             << true;
    QTest::newRow("other rules") << QStringLiteral("rules 1") << QStringLiteral("rules 9")
                                 << QStringLiteral("line 2: the game was played by version 9") << false;
    QTest::newRow("no record") << QStringLiteral("Plasmos game record 1") << QStringLiteral("Dear diary")
                               << QStringLiteral(
                                      "line 1: this is no game that was saved: it begins with \"Dear diary\"")
                               << false;
    QTest::newRow("an answer too many") << QStringLiteral("\nend") << QStringLiteral("\nnobody\nsquare 1\n")
                                        << QStringLiteral("is refused here") << true;
    QTest::newRow("a large board") << QStringLiteral("rows 5") << QStringLiteral("rows 9")
                                   << QStringLiteral("at most 36") << false;
}

void OddRecordsTest::recordsThatDoNotFit() {
    QFETCH(QString, old);
    QFETCH(QString, change);
    QFETCH(QString, told);
    QFETCH(bool, opens);
    Scene scene;
    Deal(5);
    scene.Then(QuestionKind::Square, [&] { scene.ClickSquare(1); });
    scene.Then(QuestionKind::Square, [&] { scene.LeaveGame(); });
    PLAY(scene, scene.Click(QStringLiteral("gob")));
    QFile kept(KeptGameOf(scene));
    QVERIFY(kept.open(QIODevice::ReadOnly));
    QString text = QString::fromUtf8(kept.readAll()) + QStringLiteral("end");
    QVERIFY(text.contains(old));
    text.replace(old, change);
    text.remove(QRegularExpression(QStringLiteral("end$")));
    const QString path = scene.Folder() + QStringLiteral("/odd.plasmos");
    QFile odd(path);
    QVERIFY(odd.open(QIODevice::WriteOnly));
    odd.write(text.toUtf8());
    odd.close();
    bool opened = false;
    scene.AnswerBy([&](Question&) {
        opened = true;
        scene.LeaveGame();
    });
    const auto open = [&] {
        scene.Board().OpenGame(path);
        const auto* box = scene.Board().findChild<QMessageBox*>();
        QVERIFY(box != nullptr && box->text().contains(told));
        QCOMPARE(box->text().contains(QStringLiteral("as far as it is sound")), opens);
        QTRY_VERIFY(opened == opens && !scene.Board().Playing());
    };
    PLAY(scene, open());
    QVERIFY(odd.open(QIODevice::ReadOnly));
    QCOMPARE(QString::fromUtf8(odd.readAll()), text);
}

WINDOW_TESTS(odd_records_test, OddRecordsTest)

}  // namespace plasmos::testing

#include "odd_records_test.moc"
