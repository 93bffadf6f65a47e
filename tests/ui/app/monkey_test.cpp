// SPDX-License-Identifier: GPL-3.0-or-later
//
// Somebody plays about with everything in sight. The game stands it, and can be finished afterwards.

#include <QAbstractButton>
#include <QAction>
#include <QFont>
#include <QLineEdit>
#include <QMenuBar>
#include <QPalette>
#include <QScreen>
#include <QTimer>
#include <QWindow>

#include "model/consistency.h"
#include "model/pcg32.h"
#include "tests/support/game_fixture.h"
#include "tests/support/test_scale.h"
#include "tests/ui/support/enrich.h"
#include "tests/ui/support/scene.h"
#include "ui/app/auto_person.h"
#include "ui/board/puddle_view.h"
#include "ui/window/uboard.h"

namespace plasmos::testing {

/// Does one random thing at a time; the same seed does the same things.
class Monkey {
public:
    Monkey(Scene& scene, int seed) : scene_(scene) { generator_.Seed(static_cast<std::uint64_t>(seed), 99); }

    void Act() {
        switch (Below(13)) {
            case 0:
            case 1: ClickAnything(); break;
            case 2: PressAKey(); break;
            case 3: ChooseAnItem(); break;
            case 4: TypeSomething(); break;
            case 5: ClickTheBoard(); break;
            case 6: Resize(); break;
            case 7: ChangeTheFocus(); break;
            case 8: ClickAButton(); break;
            case 9: ChangeTheLooks(); break;
            default: AnswerTop();
        }
    }
    void AnswerTop() {
        if (scene_.Sees(QStringLiteral("nowb"))) {
            scene_.Click(QStringLiteral("nowb"));
        }
        if (Question* top = scene_.Board().TopQuestion(); top != nullptr && !top->Answered()) {
            scene_.Player().Answer(*top);
        }
    }

private:
    int Below(int n) { return static_cast<int>(generator_.Next() % static_cast<unsigned>(n)); }

    template <class Widget>
    Widget* AnyVisible() {
        QList<Widget*> seen;
        for (Widget* widget : scene_.Board().template findChildren<Widget*>()) {
            if (widget->isVisible() && !widget->isWindow()) {
                seen << widget;
            }
        }
        return seen.isEmpty() ? nullptr : seen[Below(static_cast<int>(seen.size()))];
    }
    void ClickAnything() {
        const QWidget* table = scene_.Board().centralWidget();
        const QPoint point(Below(table->width()), Below(table->height()));
        const Qt::MouseButton buttons[] = {Qt::LeftButton, Qt::LeftButton, Qt::MiddleButton};
        QTest::mouseClick(scene_.Board().windowHandle(), buttons[Below(3)], Qt::NoModifier,
                          table->mapTo(&scene_.Board(), point));
    }
    void ClickAButton() {
        // A dialog that waits behind an earlier board is not scrolled.
        if (auto* button = AnyVisible<QAbstractButton>();
            button != nullptr && (button->isEnabled() || !scene_.Sees(QStringLiteral("nowb")))) {
            Below(4) == 0 ? scene_.DoubleClick(button) : scene_.Press(button);
        }
    }
    void PressAKey() {
        constexpr Qt::Key keys[] = {Qt::Key_Return,   Qt::Key_Space,  Qt::Key_Escape, Qt::Key_Tab,   Qt::Key_Left,
                                    Qt::Key_Right,    Qt::Key_Up,     Qt::Key_Down,   Qt::Key_Y,     Qt::Key_N,
                                    Qt::Key_F1,       Qt::Key_Delete, Qt::Key_9,      Qt::Key_Minus, Qt::Key_PageUp,
                                    Qt::Key_PageDown, Qt::Key_Home,   Qt::Key_End};
        QTest::keyClick(scene_.Board().windowHandle(), keys[Below(static_cast<int>(std::size(keys)))]);
    }
    void ChooseAnItem() {
        const char* items[] = {"autoeat_men",  "autoten_men", "sqno_men",   "lines_men", "fast_men",
                               "easymen",      "normmen",     "victorymen", "pref_men",  "watchmen",
                               "twoplayermen", "backmen",     "againmen",   "backmen",   "earliermen",
                               "latermen",     "firstmen",    "nowmen",     "whymen"};
        QAction* item = scene_.Item(QString::fromLatin1(items[Below(static_cast<int>(std::size(items)))]));
        if (item->isEnabled()) {
            scene_.Menu(item->objectName());
        }
    }
    void TypeSomething() {
        const char* texts[] = {"0", "1", "2", "9", "-1", "abc", "", "99999999999999999999", "1e9", " 3 ", "\xc3\xa9"};
        if (auto* field = AnyVisible<QLineEdit>(); field != nullptr && field->isEnabled()) {
            field->setFocus();
            field->selectAll();
            field->insert(QString::fromUtf8(texts[Below(static_cast<int>(std::size(texts)))]));
        }
    }
    void ClickTheBoard() {
        const QPoint point(Below(scene_.Puddle().width()), Below(scene_.Puddle().height()));
        Below(3) == 0 ? scene_.DoubleClick(&scene_.Puddle(), point)
                      : scene_.Press(&scene_.Puddle(), Below(4) == 0 ? Qt::RightButton : Qt::LeftButton, point);
    }
    void Resize() {
        UBoard& board = scene_.Board();
        const QSize space = board.screen()->availableGeometry().size() - QSize(8, 8);
        board.resize(QSize(700 + Below(900), 400 + Below(700)).boundedTo(space));
    }
    void ChangeTheFocus() {
        QEvent event(Below(2) == 0 ? QEvent::WindowDeactivate : QEvent::WindowActivate);
        QCoreApplication::sendEvent(&scene_.Board(), &event);
        if (auto* widget = AnyVisible<QWidget>(); widget != nullptr) {
            widget->setFocus();
        }
    }

    /// The desktop's font and colours change, as with another scale of the screen.
    void ChangeTheLooks() {
        QFont font = QApplication::font();
        font.setPointSizeF(6 + Below(14));
        QApplication::setFont(font);
        QApplication::setPalette(Below(2) == 0 ? QPalette(Qt::black) : QPalette(Qt::lightGray));
    }

    Scene& scene_;
    Pcg32 generator_;
};

class MonkeyTest : public QObject {
    Q_OBJECT

private slots:
    void init();
    void playsAbout_data();
    void playsAbout();
    void thenAnotherGame();
};

void MonkeyTest::init() {
    static const QFont font = QApplication::font();
    static const QPalette palette = QApplication::palette();
    QApplication::setFont(font);
    QApplication::setPalette(palette);
}

void MonkeyTest::playsAbout_data() {
    QTest::addColumn<int>("seed");
    const int usual = qEnvironmentVariableIsSet("QT_SCALE_FACTOR") ? 2 : 6;
    for (int seed = 1; seed <= (Scaled(usual) > usual ? 200 : Scaled(usual)); ++seed) {
        QTest::addRow("seed %d", seed) << seed;
    }
}

void MonkeyTest::playsAbout() {
    QFETCH(int, seed);
    Scene scene({{"board", "rows", std::to_string(4 + seed % 3)}, {"board", "cols", std::to_string(3 + seed % 4)}});
    game.HasRequestedReplay = true;
    game.RequestedReplay = static_cast<float>(seed);
    game.RequestedClans = 3 + seed % 4;
    game.Menu.twoplayermen = seed % 3 == 0;
    scene.Board().setUpdatesEnabled(seed % 4 == 1);
    Monkey monkey(scene, seed);
    int acts = 400;
    bool enriched = false;
    QTimer ticks;
    connect(&ticks, &QTimer::timeout, this, [&] {
        if (!scene.Board().Playing()) {
            return;
        }
        if (game.Turn == 1 && !enriched && seed % 2 == 0) {
            enriched = true;
            Enrich(3, {"hol", "ten", "par", "sfs"}, 30);
        }
        if (const auto fault = CheckConsistency(); game.Turn >= 1 && game.Turn <= LastTurn && !fault.empty()) {
            scene.Fail(Concat("seed ", seed, ", ", acts, " acts before calm: ", fault));
        }
        --acts > 0 ? monkey.Act() : monkey.AnswerTop();
    });
    scene.Board().OnQuestion = nullptr;
    ticks.start(0);
    PLAY(scene, scene.Board().gob_Click());
    QVERIFY2(!scene.WasEnded(), QTest::currentDataTag());
    QVERIFY(game.Turn == LastTurn + 1 || game.GameOver);
    QCOMPARE(CheckConsistency(true), std::string());
    QCOMPARE(scene.FileText(ErrorFile), QString());
    QVERIFY(scene.Sees(QStringLiteral("gob")) && scene.Enabled(QStringLiteral("gob")));
}

// Everything can be clicked between two games too, and the next game is as good as the first.
void MonkeyTest::thenAnotherGame() {
    Scene scene;
    game.RequestedClans = 5;
    PLAY(scene, scene.Click(QStringLiteral("watchb")));
    scene.Board().OnQuestion = nullptr;
    for (QWidget* widget : scene.Board().findChildren<QWidget*>()) {
        if (widget->isVisible() && qobject_cast<QAbstractButton*>(widget) == nullptr &&
            qobject_cast<QMenuBar*>(widget) == nullptr) {
            scene.Press(widget);
            scene.Press(widget, Qt::RightButton);
            while (QWidget* open = QApplication::activePopupWidget()) {  // a field's own menu
                QTest::keyClick(open, Qt::Key_Escape);
            }
            QTest::keyClick(widget, Qt::Key_Escape);
        }
    }
    QVERIFY(!scene.Board().Playing());
    PLAY(scene, scene.Click(QStringLiteral("watchb")));
    QCOMPARE(game.Turn, LastTurn + 1);
}

WINDOW_TESTS(monkey_test, MonkeyTest)

}  // namespace plasmos::testing

#include "monkey_test.moc"
