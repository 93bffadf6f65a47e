// SPDX-License-Identifier: GPL-3.0-or-later
//
// The window follows the desktop's colours and letters.

#include <QLabel>
#include <QMenuBar>
#include <QPushButton>
#include <QTextBlock>
#include <QTextEdit>

#include "model/narration.h"
#include "model/presentation.h"
#include "rules/feeding.h"
#include "tests/ui/support/meal.h"
#include "ui/look/dress.h"
#include "ui/window/uboard.h"

namespace plasmos::testing {

namespace {

QPalette Desktop(QColor ground, QColor letters) {
    QPalette palette;
    for (const auto role : {QPalette::Window, QPalette::Base, QPalette::Button}) {
        palette.setColor(role, ground);
    }
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        palette.setColor(role, letters);
    }
    return palette;
}

}  // namespace

class DressTest : public QObject {
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void desktops_data();
    void desktops();
    void followsTheDesktopWhileItRuns();
    void whatThePersonWantsGoesFirst();
    void savedColoursAreWornFromTheStart_data();
    void savedColoursAreWornFromTheStart();
    void whatStandsInTheLogIsReadInOtherColours();
    void scoresKeepTheirClansColours();
    void picturesOfAnOpenDialogFollow();
    void aButtonHasOneFocusFrame();
    void lettersFollowTheDesktop();
    void aLargeWindowHasLargerLetters();

private:
    QPalette palette_;
    QFont font_;
};

void DressTest::init() {
    palette_ = QApplication::palette();
    font_ = QApplication::font();
}

void DressTest::cleanup() {
    WantScheme(std::nullopt);
    QApplication::setPalette(palette_);
    QApplication::setFont(font_);
}

void DressTest::desktops_data() {
    QTest::addColumn<QColor>("ground");
    QTest::addColumn<QColor>("letters");
    QTest::addColumn<QString>("scheme");
    QTest::newRow("light grey") << QColor(239, 239, 239) << QColor(0, 0, 0) << QStringLiteral("light");
    QTest::newRow("dark grey") << QColor(50, 50, 50) << QColor(255, 255, 255) << QStringLiteral("dark");
    QTest::newRow("white on black") << QColor(0, 0, 0) << QColor(255, 255, 255) << QStringLiteral("contrast");
    QTest::newRow("black on white") << QColor(255, 255, 255) << QColor(0, 0, 0) << QStringLiteral("contrast");
}

void DressTest::desktops() {
    QFETCH(QColor, ground);
    QFETCH(QColor, letters);
    QFETCH(QString, scheme);
    QCOMPARE(SchemeName(SchemeOf(Desktop(ground, letters))), scheme);
}

void DressTest::followsTheDesktopWhileItRuns() {
    Scene scene;
    const auto ground = [&] { return scene.Board().grab().toImage().pixelColor(4, scene.Board().height() - 4); };
    QCOMPARE(ground(), ShadeIn(Scheme::Light, Tone::Window));
    QApplication::setPalette(Desktop(QColor(50, 50, 50), Qt::white));
    QCOMPARE(CurrentScheme(), Scheme::Dark);
    QCOMPARE(ground(), ShadeIn(Scheme::Dark, Tone::Window));
    const auto* title = scene.Board().findChild<QLabel*>(QStringLiteral("titlelab"));
    QCOMPARE(title->palette().color(QPalette::WindowText), ShadeIn(Scheme::Dark, Tone::Ink));
    QApplication::setPalette(Desktop(QColor(240, 240, 240), QColor(0, 0, 0)));
    QCOMPARE(ground(), ShadeIn(Scheme::Light, Tone::Window));
}

void DressTest::whatThePersonWantsGoesFirst() {
    Scene scene;
    WantScheme(Scheme::Contrast);
    QCOMPARE(CurrentScheme(), Scheme::Contrast);
    QApplication::setPalette(Desktop(QColor(50, 50, 50), Qt::white));
    QCOMPARE(CurrentScheme(), Scheme::Contrast);
    WantScheme(std::nullopt);
    QCOMPARE(CurrentScheme(), Scheme::Dark);
}

void DressTest::savedColoursAreWornFromTheStart_data() {
    QTest::addColumn<QString>("scheme");
    QTest::newRow("dark") << QStringLiteral("dark");
    QTest::newRow("high contrast") << QStringLiteral("contrast");
}

// The window is coloured twice before it is shown: as the desktop, then as the person wants it.
void DressTest::savedColoursAreWornFromTheStart() {
    QFETCH(QString, scheme);
    QImage chosen;
    {
        Scene scene;
        scene.Menu(QStringLiteral("colour_") + scheme);
        chosen = scene.Board().grab().toImage();
    }
    WantScheme(std::nullopt);
    Scene scene({{"look", "colours", scheme.toStdString()}});
    QCOMPARE(scene.Board().grab().toImage(), chosen);
}

void DressTest::whatStandsInTheLogIsReadInOtherColours() {
    PositionScene scene;
    PHASE(scene, Say("C1 eats 111 in 7"));
    const auto* log = scene.Board().findChild<QTextEdit*>(QStringLiteral("txtLog"));
    for (const Scheme scheme : {Scheme::Dark, Scheme::Light, Scheme::Contrast}) {
        WantScheme(scheme);
        int parts = 0;
        for (QTextBlock block = log->document()->begin(); block.isValid(); block = block.next()) {
            for (auto part = block.begin(); !part.atEnd(); ++part) {
                ++parts;
                const QColor letters = part.fragment().charFormat().foreground().color();
                QVERIFY2(ContrastOf(letters, Shade(Tone::Field)) >= 4.5, qPrintable(part.fragment().text()));
            }
        }
        QVERIFY(parts >= 2);
    }
}

void DressTest::scoresKeepTheirClansColours() {
    PositionScene scene;
    PHASE(scene, Board().ShowClan(1));
    for (const Scheme scheme : {Scheme::Dark, Scheme::Light}) {
        WantScheme(scheme);
        const QWidget* pill = scene.Find(QStringLiteral("orderlab0"));
        QCOMPARE(pill->palette().color(QPalette::Window), LabelBackground(game, ClanAtPlace(1)));
    }
}

// Cubes and amoebas of a dialog that is open have the outlines of the new colours.
void DressTest::picturesOfAnOpenDialogFollow() {
    MealScene scene;
    Give(3, "fru");
    const auto pictures = [&scene] {
        QList<QImage> images;
        const auto* cubes = scene.Find(QStringLiteral("fdname1"))->parentWidget();
        for (const QLabel* label : cubes->findChildren<QLabel*>()) {
            images << label->pixmap().toImage();
        }
        for (const char* name : {"suggestb", "meal11"}) {
            const auto* button = qobject_cast<QPushButton*>(scene.Find(QString::fromLatin1(name)));
            images << button->icon().pixmap(button->iconSize()).toImage();
        }
        images.removeIf([](const QImage& image) { return image.isNull(); });
        return images;
    };
    scene.ThenFood([&] {
        const QList<QImage> light = pictures();
        QCOMPARE(light.size(), 3);
        WantScheme(Scheme::Dark);
        const QList<QImage> dark = pictures();
        for (int i = 0; i < 3; ++i) {
            QVERIFY2(light[i] != dark[i], Concat("picture ", i).c_str());
        }
        scene.Click(QStringLiteral("suggestb"));
        scene.Eat();
    });
    PHASE(scene, FeedAmoeba(7, 3));
}

// Who comes by Tab sees the frame, and nothing but the button's own ground within it.
void DressTest::aButtonHasOneFocusFrame() {
    Scene scene;
    QWidget* go = scene.Find(QStringLiteral("gob"));
    go->setFocus();
    QTest::keyClick(scene.Board().windowHandle(), Qt::Key_Tab);
    QTest::keyClick(scene.Board().windowHandle(), Qt::Key_Tab, Qt::ShiftModifier);
    QVERIFY(go->hasFocus());
    const QImage picture = go->grab().toImage();
    QCOMPARE(picture.pixelColor(1, go->height() / 2), Shade(Tone::Focus));
    constexpr int WithinTheFrame = 5;
    const QColor ground = picture.pixelColor(WithinTheFrame, go->height() / 2);
    for (int x = WithinTheFrame; x < 14; ++x) {
        QCOMPARE(picture.pixelColor(x, go->height() / 2), ground);
    }
    for (int y = WithinTheFrame; y < 10; ++y) {
        QCOMPARE(picture.pixelColor(go->width() / 2, y), ground);
    }
}

void DressTest::lettersFollowTheDesktop() {
    Scene scene;
    scene.Board().resize(1320, 860);
    const QWidget* button = scene.Find(QStringLiteral("gob"));
    const int usual = button->fontMetrics().height();
    const int menu = scene.Board().menuBar()->fontMetrics().height();
    QFont large = QApplication::font();
    large.setPointSize(20);
    QApplication::setFont(large);
    QVERIFY(button->fontMetrics().height() > usual * 3 / 2);
    QVERIFY(scene.Board().menuBar()->fontMetrics().height() > menu * 3 / 2);
    QVERIFY(button->height() > button->fontMetrics().height());
    QApplication::setFont(font_);
    QCOMPARE(button->fontMetrics().height(), usual);
}

void DressTest::aLargeWindowHasLargerLetters() {
    Scene scene;
    scene.Board().resize(1320, 860);
    QCOMPARE(Letters(), 1.0);
    scene.Board().setMinimumSize(0, 0);
    scene.Board().resize(2560, 1440);
    QVERIFY(Letters() > 1.4);
    scene.Board().resize(940, 640);
    QCOMPARE(Letters(), 1.0);
}

WINDOW_TESTS(dress_test, DressTest)

}  // namespace plasmos::testing

#include "dress_test.moc"
