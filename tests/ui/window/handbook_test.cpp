// SPDX-License-Identifier: GPL-3.0-or-later
//
// The handbook beside the game: it opens by key and by menu, shows every page in every scheme, and its links lead on.

#include "ui/window/handbook.h"

#include <QAccessible>
#include <QAction>
#include <QTextBlock>

#include "tests/ui/support/book.h"
#include "tests/ui/support/stand.h"
#include "ui/look/dress.h"

namespace plasmos::testing {

namespace {

/// Pictures without anything in them, and letters that can hardly be read.
QStringList FaultsOf(const HandbookPage& page) {
    QStringList faults;
    for (QTextBlock block = page.document()->begin(); block.isValid(); block = block.next()) {
        for (auto part = block.begin(); !part.atEnd(); ++part) {
            const QTextCharFormat format = part.fragment().charFormat();
            if (format.isImageFormat() && format.toImageFormat().width() < 80) {
                faults.append(format.toImageFormat().name());
            }
            const QColor ink = format.hasProperty(QTextFormat::ForegroundBrush) ? format.foreground().color()
                                                                                : page.palette().color(QPalette::Text);
            if (ContrastOf(ink, page.palette().color(QPalette::Base)) < 4.5) {
                faults.append(part.fragment().text());
            }
        }
    }
    return faults;
}

}  // namespace

class HandbookTest : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() { font_ = QApplication::font(); }
    void cleanup() {
        WantScheme(std::nullopt);
        QApplication::setFont(font_);
    }
    void opensByKeyAndByMenu();
    void everyPageIsShown_data();
    void everyPageIsShown();
    void followsTheColoursWhileItIsOpen();
    void followsTheLettersWhileItIsOpen();
    void isReadInASmallWindow();
    void everyKeyOfTheMenusIsTold();
    void aPageThatIsChosenAgainBeginsAnew();
    void linksLeadOnAndBack();
    void linksAreFollowedByKeys();
    void nothingElseIsOpened();
    void theGameGoesOn();

private:
    QFont font_;
};

void HandbookTest::opensByKeyAndByMenu() {
    Scene scene;
    QTest::keyClick(scene.Board().windowHandle(), Qt::Key_F1);
    const Book book(scene);
    QVERIFY(book.Window->isVisible() && !book.Window->isModal());
    QCOMPARE(book.Page->File(), QStringLiteral("README.md"));
    QVERIFY(!book.Back->isEnabled());
    scene.Press(book.List->viewport(), Qt::LeftButton, book.List->visualItemRect(book.List->item(4)).center());
    const QString file = book.Page->File();
    QTest::keyClick(book.Window->windowHandle(), Qt::Key_Escape);
    QVERIFY(!book.Window->isVisible());
    scene.Menu(QStringLiteral("bookmen"));
    QVERIFY(book.Window->isVisible());
    QCOMPARE(scene.Board().findChildren<QDialog*>(QStringLiteral("handbook")).size(), 1);
    QCOMPARE(book.Page->File(), file);
}

void HandbookTest::everyPageIsShown_data() {
    QTest::addColumn<QString>("scheme");
    for (const char* name : {"light", "dark", "contrast"}) {
        QTest::newRow(name) << QString::fromLatin1(name);
    }
}

void HandbookTest::everyPageIsShown() {
    QFETCH(QString, scheme);
    Scene scene;
    scene.Menu(QStringLiteral("colour_") + scheme);
    scene.Menu(QStringLiteral("bookmen"));
    const Book book(scene);
    const auto pages = HandbookPages();
    QCOMPARE(book.List->count(), static_cast<int>(pages.size()));
    for (int row = book.List->count() - 1; row >= 0; --row) {
        scene.Press(book.List->viewport(), Qt::LeftButton, book.List->visualItemRect(book.List->item(row)).center());
        QCOMPARE(book.Page->File(), pages[row].File);
        QCOMPARE(book.Page->document()->begin().blockFormat().headingLevel(), 1);
        QVERIFY(book.Page->document()->characterCount() > 300);
        QCOMPARE(FaultsOf(*book.Page), QStringList());
        QVERIFY2(book.Page->horizontalScrollBar()->maximum() == 0, "nothing is wider than the page");
        book.KeepPictures(scheme + QLatin1Char('-') + pages[row].File.chopped(3));
    }
}

void HandbookTest::followsTheColoursWhileItIsOpen() {
    Scene scene;
    scene.Menu(QStringLiteral("colour_light"));
    scene.Menu(QStringLiteral("bookmen"));
    const Book book(scene);
    book.Page->Open(QStringLiteral("genes.md"));
    scene.Menu(QStringLiteral("colour_dark"));
    QCOMPARE(FaultsOf(*book.Page), QStringList());
    QCOMPARE(book.Page->document()->begin().begin().fragment().charFormat().foreground().color(), Shade(Tone::Ink));
    QCOMPARE(book.Page->File(), QStringLiteral("genes.md"));
}

void HandbookTest::followsTheLettersWhileItIsOpen() {
    Scene scene;
    scene.Menu(QStringLiteral("bookmen"));
    const Book book(scene);
    const double usual = book.Page->fontMetrics().height() / Letters();
    QFont large = QApplication::font();
    large.setPointSize(20);
    QApplication::setFont(large);
    const double wanted = usual * Letters();  // as large as the window can hold
    QVERIFY(std::abs(book.Page->fontMetrics().height() - wanted) < 3);
    QVERIFY(std::abs(QFontMetrics(book.Page->document()->defaultFont()).height() - wanted) < 3);
    book.KeepPictures(QStringLiteral("large"));
}

void HandbookTest::isReadInASmallWindow() {
    Scene scene;
    scene.Menu(QStringLiteral("bookmen"));
    const Book book(scene);
    book.Window->resize(560, 400);
    for (const HandbookEntry& entry : HandbookPages()) {
        book.Page->Open(entry.File);
        const int wider = book.Page->horizontalScrollBar()->maximum();
        QVERIFY2(wider < book.Page->viewport()->width() / 2, qPrintable(entry.File));
        QCOMPARE(FaultsOf(*book.Page), QStringList());
        book.KeepPictures(QStringLiteral("small-") + entry.File.chopped(3));
    }
}

void HandbookTest::aPageThatIsChosenAgainBeginsAnew() {
    Scene scene;
    scene.Menu(QStringLiteral("bookmen"));
    const Book book(scene);
    const auto choose = [&](int row) {
        scene.Press(book.List->viewport(), Qt::LeftButton, book.List->visualItemRect(book.List->item(row)).center());
    };
    choose(4);
    QScrollBar* bar = book.Page->verticalScrollBar();
    bar->setValue(bar->maximum());
    QVERIFY(bar->value() > 0);
    choose(4);
    QCOMPARE(bar->value(), 0);
}

void HandbookTest::everyKeyOfTheMenusIsTold() {
    Scene scene;
    scene.Menu(QStringLiteral("bookmen"));
    const Book book(scene);
    book.Page->Open(QStringLiteral("window.md"));
    const QString told = book.Page->toPlainText().replace(QStringLiteral("Ctrl+1 to Ctrl+4"),
                                                          QStringLiteral("Ctrl+1 Ctrl+2 Ctrl+3 Ctrl+4"));
    int keys = 0;
    for (const QAction* item : scene.Board().findChildren<QAction*>()) {
        QString key = item->shortcut().toString(QKeySequence::PortableText);
        key.replace(QStringLiteral("Pg"), QStringLiteral("Page "));
        QVERIFY2(told.contains(key), qPrintable(item->objectName()));
        keys += key.isEmpty() ? 0 : 1;
    }
    QVERIFY(keys > 15);
}

void HandbookTest::linksLeadOnAndBack() {
    Scene scene;
    scene.Menu(QStringLiteral("bookmen"));
    const Book book(scene);
    PressLink(scene, *book.Page, QStringLiteral("The genes"));
    QCOMPARE(book.Page->File(), QStringLiteral("genes.md"));
    QCOMPARE(book.List->currentItem()->text(), QStringLiteral("The genes"));
    PressLink(scene, *book.Page, QStringLiteral("Tentacle"));
    const int height = HeightOfHeading(*book.Page, QStringLiteral("Tentacle"));
    QVERIFY2(height >= 0 && height < 60, "the heading stands at the top");
    scene.Press(book.Back);
    scene.Press(book.Back);
    QCOMPARE(book.Page->File(), QStringLiteral("README.md"));
    QVERIFY(!book.Back->isEnabled());
    PressLink(scene, *book.Page, QStringLiteral("A first turn"));
    PressLink(scene, *book.Page, QStringLiteral("Movement 1"));
    QCOMPARE(book.Page->File(), QStringLiteral("genes.md"));
    const int other = HeightOfHeading(*book.Page, QStringLiteral("Movement 1"));
    QVERIFY2(other >= 0 && other < 60, "a heading of another page, too");
}

void HandbookTest::linksAreFollowedByKeys() {
    Scene scene;
    scene.Menu(QStringLiteral("bookmen"));
    const Book book(scene);
    scene.Key(QStringLiteral("bookpage"), Qt::Key_Tab);
    scene.Key(QStringLiteral("bookpage"), Qt::Key_Return);
    QCOMPARE(book.Page->File(), QStringLiteral("first-turn.md"));
    scene.Key(QStringLiteral("bookpage"), Qt::Key_Left, Qt::AltModifier);
    QCOMPARE(book.Page->File(), QStringLiteral("README.md"));
    scene.Key(QStringLiteral("bookpages"), Qt::Key_Down);
    QCOMPARE(book.Page->File(), QStringLiteral("first-turn.md"));
    QVERIFY(
        QAccessible::queryAccessibleInterface(book.Page)->text(QAccessible::Name).contains(QStringLiteral("handbook")));
}

void HandbookTest::nothingElseIsOpened() {
    Scene scene;
    scene.Menu(QStringLiteral("bookmen"));
    const Book book(scene);
    for (const char* link : {"https://example.org/", "file:///etc/passwd", "qrc:/nothing.png"}) {
        book.Page->setMarkdown(QStringLiteral("[elsewhere](%1)").arg(QString::fromLatin1(link)));
        PressLink(scene, *book.Page, QStringLiteral("elsewhere"));
        QCOMPARE(book.Page->toPlainText().trimmed(), QStringLiteral("elsewhere"));
        QCOMPARE(book.Page->File(), QStringLiteral("README.md"));
    }
}

void HandbookTest::theGameGoesOn() {
    Scene scene;
    int answered = 0;
    Deal(5);
    scene.AnswerBy([&](Question& question) {
        if (question.Kind == QuestionKind::YesNo && ++answered == 1) {
            QTest::keyClick(scene.Board().windowHandle(), Qt::Key_F1);
            QVERIFY(Book(scene).Window->isVisible());
        }
        if (answered == 4) {
            scene.LeaveGame();
        } else {
            scene.Player().Answer(question);
        }
    });
    PLAY(scene, scene.Click(QStringLiteral("gob")));
    QCOMPARE(answered, 4);
    QVERIFY(Book(scene).Window->isVisible());
}

WINDOW_TESTS(handbook_test, HandbookTest)

}  // namespace plasmos::testing

#include "handbook_test.moc"
