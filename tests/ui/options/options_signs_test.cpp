// SPDX-License-Identifier: GPL-3.0-or-later
//
// What the preferences tell by signs: whether all is saved, and that blocks can be taken by the hand.

#include <QAccessible>

#include "tests/ui/support/preferences.h"
#include "ui/look/palette.h"

namespace plasmos::testing {

class OptionsSignsTest : public QObject {
    Q_OBJECT

private slots:
    void whatIsSavedIsTold();
    void whatCannotBeSavedIsNot();
    void theHandOverABlock();
    void aBlockIsDragged();
    void theHintIsSeen();
};

namespace {

/// The mouse over the preferences, by what its window is sent.
struct Mouse {
    Preferences& Window;

    QPoint At(int square) const { return Window.Picture()->mapTo(Window.Dialog(), Window.PlaceOf(square)); }
    QWindow* Where() const { return Window.Dialog()->windowHandle(); }
    void Press(int square) { QTest::mousePress(Where(), Qt::LeftButton, {}, At(square)); }
    void Move(int square) { QTest::mouseMove(Where(), At(square)); }
    void Release(int square) { QTest::mouseRelease(Where(), Qt::LeftButton, {}, At(square)); }
    Qt::CursorShape Shape() const { return Window.Picture()->cursor().shape(); }
};

}  // namespace

void OptionsSignsTest::whatIsSavedIsTold() {
    Preferences window;
    const auto* apply = window.Dialog()->findChild<QPushButton*>(QStringLiteral("cmdApply"));
    const auto told = [&] {
        return apply->accessibleDescription() == window.Label("savedlab") ? window.Label("savedlab")
                                                                          : QStringLiteral("the button says another");
    };
    QCOMPARE(told(), QString());
    window.Step("rowUD", 1);
    QCOMPARE(told(), QStringLiteral("Not saved yet."));
    window.Step("rowUD", -1);
    QCOMPARE(told(), QString());
    window.ClickPicture(8);
    QCOMPARE(told(), QStringLiteral("Not saved yet."));
    window.Press("cmdApply");
    QCOMPARE(told(), QStringLiteral("Saved."));
    QCOMPARE(window.Saved("board", "blocks"), std::string("8:"));
    window.TypeName(2, QStringLiteral("Bea"));
    QCOMPARE(told(), QStringLiteral("Not saved yet."));
    window.Press("cmdApply");
    QCOMPARE(told(), QStringLiteral("Saved."));
    window.Press("cmdApply");
    QCOMPARE(told(), QStringLiteral("Saved."));
}

void OptionsSignsTest::whatCannotBeSavedIsNot() {
    Preferences window;
    const QString file = ToQt(window.Files().PathOf(OptionsFile));
    QVERIFY(QDir().mkpath(file));
    window.Step("rowUD", 1);
    window.Press("cmdApply");
    QVERIFY(!window.Label("faultlab").isEmpty());
    QCOMPARE(window.Label("savedlab"), QStringLiteral("Not saved yet."));
    QVERIFY(QDir().rmdir(file));
    window.Press("cmdApply");
    QCOMPARE(window.Label("savedlab"), QStringLiteral("Saved."));
}

void OptionsSignsTest::theHandOverABlock() {
    Preferences window;
    window.ClickPicture(8);
    Mouse mouse{window};
    mouse.Move(9);
    QCOMPARE(mouse.Shape(), Qt::ArrowCursor);
    mouse.Move(8);
    QCOMPARE(mouse.Shape(), Qt::OpenHandCursor);
    mouse.Press(8);
    QCOMPARE(mouse.Shape(), Qt::ClosedHandCursor);
    mouse.Release(8);
    QCOMPARE(mouse.Shape(), Qt::ArrowCursor);
    QCOMPARE(window.Values(), QStringLiteral("5x5 0"));
}

void OptionsSignsTest::aBlockIsDragged() {
    Preferences window;
    window.ClickPicture(8);
    window.ClickPicture(3);
    Mouse mouse{window};
    mouse.Press(8);
    mouse.Move(13);
    QCOMPARE(mouse.Shape(), Qt::ClosedHandCursor);
    mouse.Release(13);
    QCOMPARE(mouse.Shape(), Qt::OpenHandCursor);
    QCOMPARE(window.Border(13), "black");
    QCOMPARE(window.Border(8), "none");
    window.Press("cmdApply");
    QCOMPARE(window.Saved("board", "blocks"), std::string("13:3:"));
}

void OptionsSignsTest::theHintIsSeen() {
    Preferences window;
    window.Dialog()->resize(window.Dialog()->minimumSizeHint());
    QCoreApplication::processEvents();
    auto* hint = window.Dialog()->findChild<QLabel*>(QStringLiteral("blockhint"));
    QVERIFY(hint->text().contains(QStringLiteral("Drag a block")));
    QVERIFY(hint->isVisible());
    QCOMPARE(hint->visibleRegion().boundingRect(), hint->rect());
    QVERIFY(hint->height() >= hint->heightForWidth(hint->width()));
}

WINDOW_TESTS(options_signs_test, OptionsSignsTest)

}  // namespace plasmos::testing

#include "options_signs_test.moc"
