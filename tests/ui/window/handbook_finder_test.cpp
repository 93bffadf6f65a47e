// SPDX-License-Identifier: GPL-3.0-or-later
//
// Words are looked for in the handbook, on the page that is shown and on the later ones.

#include "ui/window/handbook_finder.h"

#include <QLabel>

#include "tests/ui/support/book.h"

namespace plasmos::testing {

namespace {

void Type(const Book& book, const QString& words) {
    for (const QChar letter : words) {
        QTest::keyClick(book.Window->windowHandle(), letter.toLatin1());
    }
}

}  // namespace

class HandbookFinderTest : public QObject {
    Q_OBJECT

private slots:
    void wordsAreFound_data();
    void wordsAreFound();
    void wordsAreFoundOneAfterTheOther();
};

void HandbookFinderTest::wordsAreFound_data() {
    QTest::addColumn<QString>("words");
    QTest::addColumn<QString>("page");
    QTest::newRow("on the page that is shown") << QStringLiteral("page by page") << QStringLiteral("README.md");
    QTest::newRow("on a later page") << QStringLiteral("zynames.txt") << QStringLiteral("questions.md");
    QTest::newRow("in other letters") << QStringLiteral("ZYNAMES.TXT") << QStringLiteral("questions.md");
    QTest::newRow("where a link is among them")
        << QStringLiteral("unless a tentacle carries") << QStringLiteral("questions.md");
    QTest::newRow("with blanks around them")
        << QStringLiteral("  plasmos-sim --help ") << QStringLiteral("simulator.md");
    QTest::newRow("nowhere") << QStringLiteral("jellyfish") << QString();
}

void HandbookFinderTest::wordsAreFound() {
    QFETCH(QString, words);
    QFETCH(QString, page);
    Scene scene;
    scene.Menu(QStringLiteral("bookmen"));
    const Book book(scene);
    scene.Key(QStringLiteral("bookpage"), Qt::Key_F, Qt::ControlModifier);
    Type(book, words);
    scene.Key(QStringLiteral("bookwords"), Qt::Key_Return);
    auto* verdict = book.Window->findChild<QLabel*>(QStringLiteral("bookverdict"));
    QCOMPARE(verdict->text().isEmpty(), !page.isEmpty());
    QCOMPARE(book.Page->File(), page.isEmpty() ? QStringLiteral("README.md") : page);
    QCOMPARE(book.Page->textCursor().selectedText().toLower(),
             page.isEmpty() ? QString() : words.simplified().toLower());
    book.KeepPictures(QStringLiteral("found"));
}

void HandbookFinderTest::wordsAreFoundOneAfterTheOther() {
    Scene scene;
    scene.Menu(QStringLiteral("bookmen"));
    const Book book(scene);
    scene.Press(book.Window->findChild<QWidget*>(QStringLiteral("bookwords")));
    Type(book, QStringLiteral("parasitism"));
    QStringList places;
    for (int press = 0; press < 60; ++press) {
        scene.Click(QStringLiteral("bookfindb"));
        const QString place = QStringLiteral("%1 %2").arg(book.Page->File()).arg(book.Page->textCursor().position());
        if (!places.isEmpty() && place == places.first()) {
            break;  // it came round
        }
        QVERIFY(!places.contains(place));
        places.append(place);
    }
    QVERIFY2(places.size() >= 5 && places.size() < 60, qPrintable(places.join(QLatin1Char(10))));
    QVERIFY2(
        !places.filter(QStringLiteral("genes.md")).isEmpty() && !places.filter(QStringLiteral("meals.md")).isEmpty(),
        qPrintable(places.join(QLatin1Char('\n'))));
}

WINDOW_TESTS(handbook_finder_test, HandbookFinderTest)

}  // namespace plasmos::testing

#include "handbook_finder_test.moc"
