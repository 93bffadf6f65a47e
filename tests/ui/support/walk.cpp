// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/ui/support/walk.h"

#include <QAbstractButton>
#include <QDir>
#include <QLabel>
#include <QLineEdit>
#include <QScreen>
#include <QWindow>
#include <algorithm>

#include "questions/ask.h"
#include "questions/choice_forms.h"
#include "questions/victim_form.h"
#include "rules/division.h"
#include "rules/environment.h"
#include "rules/feeding.h"
#include "rules/move_amoeba.h"
#include "rules/new_genes.h"
#include "ui/app/auto_person.h"
#include "ui/board/puddle_view.h"
#include "ui/dialogs/question_panel.h"
#include "ui/window/uboard.h"

namespace plasmos::testing {

namespace {

const char* const LongLine =
    "Player 3: your amoeba with the long name Bartholomew is to be carried from square 7 into square 12, where it "
    "would find nothing to eat. Would you like to pay 1 BP and let it try to move elsewhere instead?";

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

}  // namespace

const std::vector<AskedRow>& EveryQuestion() {
    static const std::vector<AskedRow> rows = {
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
    return rows;
}

bool IsControl(const QWidget* widget) {
    return widget->isVisible() && (qobject_cast<const QAbstractButton*>(widget) != nullptr ||
                                   qobject_cast<const QLineEdit*>(widget) != nullptr);
}

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

Walk::Walk(QSet<QString>& pressed) : PositionScene(6), pressed_(pressed) {
    Crowd();
}

void Walk::StepAbout(const AskedRow& row) {
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

void Walk::Ask(const AskedRow& row) {
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

void Walk::PressAll(Question& question) {
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

QWidget* Walk::PartOf(const Question& question) {
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

void Walk::SeeThatItRests() {
    /// Counts the times that the strip beside the board is asked to arrange itself.
    class Counter : public QObject {
    public:
        bool eventFilter(QObject*, QEvent* event) override {
            Times += event->type() == QEvent::LayoutRequest ? 1 : 0;
            return false;
        }
        int Times = 0;
    } counter;
    QWidget* strip = Find(QStringLiteral("yesb"))->parentWidget()->parentWidget();
    strip->installEventFilter(&counter);
    constexpr int rounds = 30;
    for (int round = 0; round < rounds; ++round) {
        QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
    }
    if (counter.Times > rounds / 2) {
        Fail("the strip beside the board arranges itself without end");
    }
}

void Walk::SeeTheBoard(const Question& question) {
    SeeThatItRests();
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
    const auto* label = qobject_cast<QLabel*>(line);
    if (question.Kind == QuestionKind::YesNo) {
        const QRect needed =
            label->fontMetrics().boundingRect(QRect(0, 0, line->width(), 10000), Qt::TextWordWrap, label->text());
        if (needed.height() > line->height()) {
            Fail(Concat("the question's text needs ", needed.height(), " of ", line->height(), " pixels"));
        }
    }
    const bool dialog = question.Kind != QuestionKind::YesNo && question.Kind != QuestionKind::Square;
    if (!dialog && !Sees(QStringLiteral("orderlab5"))) {
        Fail("the clans' scores are hidden");
    }
}

void Walk::TakePicture(std::string_view name) {
    const QString folder = qEnvironmentVariable("PLASMOS_PICTURES");
    if (!folder.isEmpty()) {
        const QRect screen = Board().screen()->geometry();
        Board().grab().save(QDir(folder).filePath(
            QStringLiteral("%1-%2x%3.png").arg(ToQt(name)).arg(screen.width()).arg(screen.height())));
    }
}

}  // namespace plasmos::testing
