// SPDX-License-Identifier: GPL-3.0-or-later
//
// Every control of every question, dialog, card and menu stands where a hand can reach it, whole and
// uncovered, and answers to the press. It runs on screens of many sizes.

#include <QAbstractButton>
#include <QDir>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QPointer>
#include <QScreen>
#include <QSet>
#include <QTabBar>
#include <QTabWidget>
#include <QWindow>

#include "rules/ask.h"
#include "rules/choice_forms.h"
#include "rules/division.h"
#include "rules/environment.h"
#include "rules/feeding.h"
#include "rules/move_amoeba.h"
#include "rules/new_genes.h"
#include "rules/victim_form.h"
#include "tests/ui/support/position.h"
#include "tests/ui/support/preferences.h"
#include "ui/auto_person.h"
#include "ui/puddle_view.h"
#include "ui/question_panel.h"

namespace plasmos::testing {

namespace {

const char* const LongLine =
    "Player 3: your amoeba with the long name Bartholomew is to be carried from square 7 into square 12, where it "
    "would find nothing to eat. Would you like to pay 1 BP and let it try to move elsewhere instead?";
constexpr int LeastSquare = 24;

/// Six clans of which the third has money, genes, food before it and much company.
void Crowd() {
    game.BP[3] = 30;
    game.MaxAmoeba = 7;
    Feed(7, {1, 2, 1, 3, 1, 2});
    for (int clan = 1; clan <= game.NumPlayers; ++clan) {
        game.BP[clan] += 5;
        for (int amoeba = clan == 3 ? 2 : 1; amoeba <= 4; ++amoeba) {
            game.Amoeba[amoeba][clan].Name = "Barth";
            Put(clan, amoeba, 7);
        }
    }
}

void AskForAnAmoeba() {
    AmChoicefrm form(3, "Which amoeba?", "Which of your amoebas is to be dragged along into square 12?");
    for (int amoeba = 1; amoeba <= 7; ++amoeba) {
        form.Offer(amoeba);
    }
    AskAmoeba(form);
}

void AskForVictims() {
    VictimForm form(3, "HOLD", "Choose the Hitch-hiker(s):", 7);
    for (int clan = 1; clan <= game.NumPlayers; ++clan) {
        for (int amoeba = 1; amoeba <= 4; ++amoeba) {
            form.Allow(clan, amoeba);
        }
    }
    AskVictims(form);
}

void AskForASquare() {
    std::vector<int> all;
    for (int square = 1; square <= game.NumSquares; ++square) {
        all.push_back(square);
    }
    AskSquare(3, "Click on the square into which you want to move.", all);
}

void Adapt() {
    Give(3, {"def", "esc", "sub"});
    game.EnvDeck[1] = {8, 1};
    EnvironmentPhase();
}

void FeedAsParasite() {
    Give(3, {"par", "sfs"});
    Feed(7, {0, 0, 5, 0, 0, 0});
    FeedAmoeba(7, 3);
}

void MoveWithTentacle() {
    Give(3, "ten");
    MoveAmoeba(3, 1, 8);
}

struct Row {
    const char* Name;
    QuestionKind Kind;
    void (*Ask)();
};

const Row Rows[] = {
    {"yes or no", QuestionKind::YesNo, [] { AskYesNo(3, LongLine, 7); }},
    {"a square", QuestionKind::Square, AskForASquare},
    {"a number", QuestionKind::Number, DivisionPhase},
    {"an amoeba", QuestionKind::Amoeba, AskForAnAmoeba},
    {"a meal", QuestionKind::Food, [] { FeedAmoeba(7, 3); }},
    {"a meal without food", QuestionKind::Food, FeedAsParasite},
    {"what the tentacle carries", QuestionKind::Food, MoveWithTentacle},
    {"victims", QuestionKind::Victim, AskForVictims},
    {"genes to buy", QuestionKind::Genes, NewGenesPhase},
    {"genes to give up", QuestionKind::Genes, Adapt},
    {"a message", QuestionKind::Box, [] { ShowBox(3, Concat(LongLine, "\n", LongLine, "\n", LongLine)); }},
};

bool IsControl(const QWidget* widget) {
    return widget->isVisible() && (qobject_cast<const QAbstractButton*>(widget) != nullptr ||
                                   qobject_cast<const QLineEdit*>(widget) != nullptr);
}

/// What a person can read off a part of the window.
QString Reading(const QWidget* part) {
    QString all;
    for (const auto* widget : part->findChildren<QWidget*>()) {
        if (!widget->isVisible()) {
            continue;
        }
        const auto* button = qobject_cast<const QAbstractButton*>(widget);
        const auto* label = qobject_cast<const QLabel*>(widget);
        const auto* field = qobject_cast<const QLineEdit*>(widget);
        all += button != nullptr  ? button->text() + (button->isChecked() ? QLatin1Char('+') : QLatin1Char('-'))
               : label != nullptr ? label->text()
               : field != nullptr ? field->text() + (field->hasFocus() ? QLatin1Char('|') : QLatin1Char(' '))
                                  : QString();
        all += widget->isEnabled() ? QLatin1Char(';') : QLatin1Char(',');
    }
    return all;
}

/// Why a control cannot be pressed at its middle and at its corners; empty: it can.
std::string WhyNotWhole(QWidget* control) {
    const QRect inner = control->rect().adjusted(2, 2, -2, -2);
    for (const QPoint point :
         {inner.center(), inner.topLeft(), inner.topRight(), inner.bottomLeft(), inner.bottomRight()}) {
        WindowHand().Reveal(*control, point);
        if (const std::string why = WhyOutOfReach(*control, point); !why.empty()) {
            return why;
        }
    }
    return {};
}

}  // namespace

/// A window in which one question is asked again and again until each of its controls has been pressed.
class Walk : public PositionScene {
public:
    explicit Walk(QSet<QString>& pressed) : PositionScene(6), pressed_(pressed) { Crowd(); }

    /// Presses arrow keys at the question, and answers it when none of them has led out of it.
    void StepAbout(const Row& row) {
        AnswerBy([this, &row](Question& question) {
            if (question.Kind == QuestionKind::YesNo && row.Kind != question.Kind) {
                Click(QStringLiteral("yesb"));
                return;
            }
            const QWidget* part = PartOf(question);
            QSet<QWidget*> visited;
            for (int i = 0; i < 400 && question.Kind == row.Kind; ++i) {
                constexpr Qt::Key arrows[] = {Qt::Key_Down, Qt::Key_Right, Qt::Key_Down, Qt::Key_Up, Qt::Key_Left};
                QTest::keyClick(Board().windowHandle(), arrows[(i + i / 7 + i / 53) % 5]);
                visited.insert(QApplication::focusWidget());
                if (!part->isAncestorOf(QApplication::focusWidget())) {
                    Fail(Concat("an arrow key leads out of \"", question.Text, "\""));
                    return;
                }
            }
            visited_ = std::max(visited_, visited.size());
            Player().Answer(question);
        });
        RunPhase(row.Ask, __FILE__, __LINE__);
    }
    qsizetype Visited() const { return visited_; }

    void Ask(const Row& row) {
        AnswerBy([this, &row](Question& question) {
            if (question.Kind == row.Kind) {
                PressAll(question);
            } else if (question.Kind == QuestionKind::YesNo) {
                Click(QStringLiteral("yesb"));
            } else {
                Player().Answer(question);
            }
        });
        RunPhase(row.Ask, __FILE__, __LINE__);
        TakePicture(row.Name);
    }

private:
    /// Presses what has not been pressed, until something answers; when all has been, ends the question.
    void PressAll(Question& question) {
        QWidget* part = PartOf(question);
        Settle();
        SeeTheBoard(question);
        for (QWidget* control : part->findChildren<QWidget*>()) {
            if (!IsControl(control)) {
                continue;
            }
            if (const std::string why = WhyNotWhole(control); !why.empty()) {
                Fail(Concat("\"", question.Text, "\": ", why));
                return;
            }
            if (!control->isEnabled() || pressed_.contains(control->objectName())) {
                continue;
            }
            pressed_.insert(control->objectName());
            const QString before = Reading(part);
            Press(control);
            Settle();
            if (question.Answered()) {
                return;
            }
            if (Reading(part) == before && !(qobject_cast<QLineEdit*>(control) != nullptr && control->hasFocus())) {
                Fail(control->objectName().toStdString() + " does not answer to a press");
                return;
            }
        }
        Player().Answer(question);
    }
    /// What a press has changed finds its place before a hand gets to the next control.
    static void Settle() { QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest); }
    QWidget* PartOf(const Question& question) {
        if (question.Kind == QuestionKind::YesNo || question.Kind == QuestionKind::Square) {
            return Find(QStringLiteral("yesb"))->parentWidget();
        }
        for (QuestionPanel* panel : Board().findChildren<QuestionPanel*>()) {
            if (panel->isEnabled()) {
                return panel;
            }
        }
        return nullptr;
    }
    /// The board is there with squares that can be hit, and the question stands whole beside it.
    void SeeTheBoard(const Question& question) {
        TakePicture(QuestionKindName(question.Kind));
        if (const std::string why = WhyNotWhole(&Puddle()); !why.empty()) {
            Fail(why);
        }
        if (Puddle().width() < LeastSquare * game.NumCols) {
            Fail(Concat("the squares are ", Puddle().width() / game.NumCols, " pixels wide"));
        }
        QWidget* line =
            Sees(QStringLiteral("msglab")) ? Find(QStringLiteral("msglab")) : Find(QStringLiteral("messagelab"));
        if (const std::string why = WhyNotWhole(line); !why.empty()) {
            Fail(Concat("the message line: ", why));
        }
    }
    /// With PLASMOS_PICTURES=folder what was walked over can be looked at.
    void TakePicture(std::string_view name) {
        const QString folder = qEnvironmentVariable("PLASMOS_PICTURES");
        if (!folder.isEmpty()) {
            const QRect screen = Board().screen()->geometry();
            Board().grab().save(QDir(folder).filePath(
                QStringLiteral("%1-%2x%3.png").arg(ToQt(name)).arg(screen.width()).arg(screen.height())));
        }
    }

    QSet<QString>& pressed_;
    qsizetype visited_ = 0;
};

class ControlsTest : public QObject {
    Q_OBJECT

private slots:
    void theWindowFitsItsScreen();
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

void ControlsTest::questions_data() {
    QTest::addColumn<int>("row");
    for (int i = 0; i < static_cast<int>(std::size(Rows)); ++i) {
        QTest::newRow(Rows[i].Name) << i;
    }
}

void ControlsTest::questions() {
    QFETCH(int, row);
    QSet<QString> pressed;
    qsizetype before = -1;
    while (pressed.size() != before && !QTest::currentTestFailed()) {
        before = pressed.size();
        Walk(pressed).Ask(Rows[row]);
    }
    QVERIFY(Rows[row].Kind == QuestionKind::Square || !pressed.isEmpty());
}

void ControlsTest::arrowKeysStayInADialog() {
    QFETCH(int, row);
    const Row& asked = Rows[row];
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
    QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("12"));
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
        for (const char* name : {"gob", "watchb", "txtReplay", "titlelab"}) {
            QCOMPARE(WhyNotWhole(scene.Find(QString::fromLatin1(name))), std::string());
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
                QVERIFY2(item->isChecked() != before, qPrintable(item->objectName()));
            } else if (item->objectName() == QStringLiteral("watchmen")) {
                game.RequestedClans = 3;
                PLAY(scene, scene.Menu(QStringLiteral("watchmen")));
                QCOMPARE(game.Turn, LastTurn + 1);
            } else {
                bool chosen = false;
                connect(item, &QAction::triggered, &scene.Board(), [&chosen] { chosen = true; });
                scene.Menu(item->objectName());
                QVERIFY2(chosen, qPrintable(item->objectName()));
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

}  // namespace plasmos::testing

int main(int argc, char** argv) {
    return plasmos::testing::RunWindowTests<plasmos::testing::ControlsTest>(argc, argv);
}

#include "controls_test.moc"
