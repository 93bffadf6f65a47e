// SPDX-License-Identifier: GPL-3.0-or-later
//
// Every control of every question, dialog, card and menu stands where a hand can reach it, whole and
// uncovered, and answers to the press. It runs on screens of many sizes.

#include <QAbstractButton>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QPointer>
#include <QScreen>
#include <QTabBar>
#include <QTabWidget>
#include <QWindow>
#include <algorithm>

#include "files/runtime_error.h"
#include "tests/ui/support/preferences.h"
#include "tests/ui/support/walk.h"
#include "ui/board/puddle_view.h"

namespace plasmos::testing {

class ControlsTest : public QObject {
    Q_OBJECT

private slots:
    void theWindowFitsItsScreen();
    void everyKindOfQuestionIsAsked();
    void questions_data();
    void questions();
    void arrowKeysStayInADialog_data() { questions_data(); }
    void arrowKeysStayInADialog();
    void theStart();
    void afterAGame();
    void menus();
    void preferences();
    void aMessageBox();
    void coveredControlsAreFound();
};

void ControlsTest::theWindowFitsItsScreen() {
    const Scene scene({{"board", "width", "5000"}, {"board", "height", "4000"}});
    const UBoard& board = const_cast<Scene&>(scene).Board();
    QTest::qWait(50);
    const QRect space = board.screen()->availableGeometry();
    const QByteArray sizes = QByteArray::number(board.frameGeometry().width()) + " x " +
                             QByteArray::number(board.frameGeometry().height()) + " on " +
                             QByteArray::number(space.width()) + " x " + QByteArray::number(space.height());
    QVERIFY2(space.contains(board.frameGeometry()), sizes.constData());
}

void ControlsTest::everyKindOfQuestionIsAsked() {
    for (int number = 0; number < QuestionKindCount; ++number) {
        const auto kind = static_cast<QuestionKind>(number);
        const auto& rows = EveryQuestion();
        const bool asked = std::any_of(rows.begin(), rows.end(), [&](const AskedRow& row) { return row.Kind == kind; });
        QVERIFY2(asked, QuestionKindName(kind).data());
    }
}

void ControlsTest::questions_data() {
    QTest::addColumn<int>("row");
    for (int i = 0; i < static_cast<int>(EveryQuestion().size()); ++i) {
        QTest::newRow(EveryQuestion()[static_cast<std::size_t>(i)].Name) << i;
    }
}

void ControlsTest::questions() {
    QFETCH(int, row);
    const AskedRow& asked = EveryQuestion()[static_cast<std::size_t>(row)];
    QSet<QString> pressed;
    qsizetype before = -1;
    while (pressed.size() != before && !QTest::currentTestFailed()) {
        before = pressed.size();
        Walk(pressed).Ask(asked);
    }
    QVERIFY(asked.Kind == QuestionKind::Square || !pressed.isEmpty());
}

void ControlsTest::arrowKeysStayInADialog() {
    QFETCH(int, row);
    const AskedRow& asked = EveryQuestion()[static_cast<std::size_t>(row)];
    if (asked.Kind == QuestionKind::Square) {
        return;  // there they choose the square
    }
    QSet<QString> pressed;
    Walk walk(pressed);
    walk.StepAbout(asked);
    QVERIFY2(asked.Kind == QuestionKind::Box || walk.Visited() > 1, "the arrow keys lead nowhere");
}

void ControlsTest::theStart() {
    Scene scene;
    for (const char* name : {"gob", "watchb", "txtReplay"}) {
        QCOMPARE(WhyNotWhole(scene.Find(QString::fromLatin1(name))), std::string());
    }
    scene.Press(scene.Find(QStringLiteral("txtReplay")));
    for (const char digit : {'1', '2'}) {
        QTest::keyClick(scene.Board().windowHandle(), digit);
    }
    QCOMPARE(scene.Text(QStringLiteral("txtReplay")), QStringLiteral("12"));
    game.RequestedClans = 3;
    PLAY(scene, scene.Click(QStringLiteral("watchb")));
    QCOMPARE(game.ReplayNo, 12.0F);
}

void ControlsTest::afterAGame() {
    for (const int clans : {3, 6}) {
        Scene scene;
        game.RequestedClans = clans;
        PLAY(scene, scene.Click(QStringLiteral("watchb")));
        for (const char* name : {"gob", "watchb", "txtReplay", "titlelab", "newgameb"}) {
            QCOMPARE(WhyNotWhole(scene.Find(QString::fromLatin1(name))), std::string());
        }
        for (const char* name : {"chart_amoebas", "chart_food", "chart_mutation", "chart_score", "turnchart"}) {
            PLAY(scene, scene.Click(QString::fromLatin1(name)));
        }
        QVERIFY2(scene.Puddle().width() >= LeastSquare * game.NumCols, "the board is too small");
    }
}

void ControlsTest::menus() {
    Scene scene;
    QMenuBar* bar = scene.Board().menuBar();
    int items = 0;
    for (QMenu* menu : bar->findChildren<QMenu*>()) {
        for (const QAction* item : menu->actions()) {
            if (item->isSeparator() || item->menu() != nullptr || !item->isEnabled() ||
                item->objectName() == QStringLiteral("men_quit")) {
                continue;
            }
            ++items;
            const bool before = item->isChecked();
            if (item->isCheckable()) {
                scene.Menu(item->objectName());
                const bool oneOfMany = item->actionGroup() != nullptr;
                QVERIFY2(item->isChecked() == (oneOfMany || !before), qPrintable(item->objectName()));
            } else if (item->objectName() == QStringLiteral("watchmen")) {
                game.RequestedClans = 3;
                PLAY(scene, scene.Menu(QStringLiteral("watchmen")));
                QCOMPARE(game.Turn, LastTurn + 1);
            } else if (item->objectName() == QStringLiteral("guidemen")) {
                scene.AnswerBy([&](Question&) { scene.Click(QStringLiteral("endguideb")); });
                PLAY(scene, scene.Menu(QStringLiteral("guidemen")));
            } else {
                bool chosen = false;
                connect(item, &QAction::triggered, &scene.Board(), [&chosen] { chosen = true; });
                scene.Menu(item->objectName());
                QVERIFY2(chosen, qPrintable(item->objectName()));
                for (auto* files : scene.Board().findChildren<QFileDialog*>()) {
                    files->reject();
                }
                if (scene.Sees(QStringLiteral("leavebox"))) {
                    scene.Click(QStringLiteral("stayb"));
                }
            }
        }
        if (auto* dialog = scene.Board().findChild<QDialog*>(QStringLiteral("frmOptions")); dialog != nullptr) {
            dialog->reject();
        }
    }
    QVERIFY(items >= 8);
}

void ControlsTest::preferences() {
    Preferences window;
    auto* tabs = window.Dialog()->findChild<QTabWidget*>();
    QVERIFY(window.Board().screen()->availableGeometry().contains(window.Dialog()->frameGeometry()));
    int controls = 0;
    for (int page = 0; page < tabs->count(); ++page) {
        window.Scene::Press(tabs->tabBar(), Qt::LeftButton, tabs->tabBar()->tabRect(page).center());
        QCOMPARE(tabs->currentIndex(), page);
        for (QWidget* control : window.Dialog()->findChildren<QWidget*>()) {
            const bool answers = IsControl(control) || control == window.Picture();
            if (answers && control->isVisible() && !control->objectName().startsWith(QStringLiteral("Scroll")) &&
                control->objectName() != QStringLiteral("qt_spinbox_lineedit")) {
                QCOMPARE(WhyNotWhole(control), std::string());
                ++controls;
            }
        }
    }
    QVERIFY(controls >= 10);
    window.Press("cmdCancel");
    QVERIFY(!window.IsOpen());
}

void ControlsTest::aMessageBox() {
    Scene scene;
    PLAY(scene, scene.Board().Play([] { throw RuntimeError(61, "Disk full: /a/long/way/to/the/folder/of/the/game"); }));
    const QPointer<QMessageBox> box = scene.Board().findChild<QMessageBox*>();
    QVERIFY(box != nullptr && box->isVisible());
    QVERIFY(scene.Board().screen()->availableGeometry().contains(box->frameGeometry()));
    QAbstractButton* ok = box->button(QMessageBox::Ok);
    QCOMPARE(WhyNotWhole(ok), std::string());
    scene.Press(ok);
    QVERIFY(box == nullptr || !box->isVisible());
}

// What the whole test stands on: a control under another one is told from one in reach.
void ControlsTest::coveredControlsAreFound() {
    QWidget window;
    window.resize(300, 200);
    auto* below = new QLineEdit(&window);
    below->setObjectName(QStringLiteral("below"));
    below->setGeometry(20, 20, 100, 30);
    window.show();
    QCOMPARE(WhyOutOfReach(*below, below->rect().center()), std::string());
    auto* cover = new QLabel(&window);
    cover->setObjectName(QStringLiteral("cover"));
    cover->setGeometry(0, 0, 150, 100);
    cover->show();
    QCOMPARE(WhyOutOfReach(*below, below->rect().center()),
             std::string("below is covered: a press there reaches cover"));
    cover->setAttribute(Qt::WA_TransparentForMouseEvents);
    QCOMPARE(WhyOutOfReach(*below, below->rect().center()), std::string());
    below->move(280, 20);
    QVERIFY(!WhyOutOfReach(*below, below->rect().center()).empty());
    below->hide();
    QCOMPARE(WhyOutOfReach(*below, below->rect().center()), std::string("below is hidden"));
}

WINDOW_TESTS(controls_test, ControlsTest)

}  // namespace plasmos::testing

#include "controls_test.moc"
