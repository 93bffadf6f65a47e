// SPDX-License-Identifier: GPL-3.0-or-later
//
// Why the computer clans did what they did, as a player reads it.

#include <QTextBlock>
#include <QTextEdit>
#include <QToolTip>

#include "tests/ui/support/stand.h"
#include "ui/look/plain_tip.h"
#include "ui/strip/log_view.h"

namespace plasmos::testing {

class WhyTest : public QObject {
    Q_OBJECT

private slots:
    void whyIsTold();
    void linesTellWhy();

private:
    /// The pointer comes to rest there, as the window system tells it.
    static void Hover(Scene& scene, LogView& log, QPoint place) {
        const QPoint there = log.viewport()->mapTo(&scene.Board(), place);
        QTest::mouseMove(scene.Board().windowHandle(), there - QPoint(3, 0));
        QTest::mouseMove(scene.Board().windowHandle(), there);
    }
    /// Whether a line is about a piece of the person.
    static bool IsOwn(const QString& line) {
        bool own = false;
        for (int amoeba = 1; amoeba <= game.MaxAmoeba; ++amoeba) {
            own = own || line.contains(ToQt(game.Amoeba[amoeba][3].Name.View()));
        }
        return own;
    }
};

void WhyTest::whyIsTold() {
    Scene scene;
    PlayTo(scene, 6, [&](Question&) {
        QVERIFY(scene.Sees(QStringLiteral("whyb")));
        scene.Click(QStringLiteral("whyb"));
        auto* text = scene.Board().findChild<QTextEdit*>(QStringLiteral("reasons"));
        QVERIFY(text != nullptr && text->isVisible());
        const auto& latest = scene.Board().History().Records().Recorder()->Reasons().back();
        QVERIFY(text->toPlainText().startsWith(QStringLiteral("Turn %1: ").arg(latest.Turn)));
        for (const auto& [moment, sentence] : latest.Sentences) {
            QVERIFY2(text->toPlainText().contains(ToQt(sentence)), sentence.c_str());
        }
        const QString then = text->toPlainText();
        scene.AnswerBy([&, text, then](Question&) {
            if (scene.Board().History().Records().CanTakeBack()) {
                scene.Menu(QStringLiteral("backmen"));
                return;
            }
            QVERIFY2(text->isVisible() && text->toPlainText() != then, "what was taken back has no reasons any more");
            scene.LeaveGame();
        });
        scene.Menu(QStringLiteral("backmen"));
    });
    PLAY(scene, scene.Click(QStringLiteral("gob")));
}

void WhyTest::linesTellWhy() {
    Scene scene;
    PlayTo(scene, 24, [&](Question& question) {
        const auto& recorder = *scene.Board().History().Records().Recorder();
        auto* log = static_cast<LogView*>(scene.Find(QStringLiteral("txtLog")));
        if (log->visibleRegion().isEmpty()) {
            scene.Player().Answer(question);  // a dialog has its place
            return;
        }
        int told = 0;
        int lines = 0;
        for (QTextBlock block = log->document()->begin(); block.isValid(); block = block.next()) {
            const QString why = log->WhyOf(block.userState());
            const QString text = block.text();
            if (!IsOwn(text) &&
                (text.contains(QStringLiteral(" moves ")) || text.contains(QStringLiteral(" remains ")))) {
                ++lines;
                told += why.isEmpty() ? 0 : 1;
            }
        }
        QVERIFY2(lines > 5 && told == lines, "every move of a computer clan has its reason");
        QCOMPARE(recorder.WhyAt(1), std::string());
        QTextBlock line = log->document()->lastBlock();
        while (line.isValid() && log->WhyOf(line.userState()).isEmpty()) {
            line = line.previous();
        }
        QVERIFY(line.isValid());
        log->setTextCursor(QTextCursor(line));
        log->ensureCursorVisible();
        Hover(scene, *log, log->cursorRect(QTextCursor(line)).center());
        QTRY_COMPARE(QToolTip::text(), PlainTip(log->WhyOf(line.userState())));
        scene.LeaveGame();
    });
    PLAY(scene, scene.Click(QStringLiteral("gob")));
}

WINDOW_TESTS(why_test, WhyTest)

}  // namespace plasmos::testing

#include "why_test.moc"
