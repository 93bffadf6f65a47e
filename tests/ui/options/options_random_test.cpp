// SPDX-License-Identifier: GPL-3.0-or-later
//
// Whatever is done in the options dialog, what it saves stays inside the bounds and is read back.

#include <memory>

#include "flow/start.h"
#include "model/pcg32.h"
#include "tests/support/test_scale.h"
#include "tests/ui/support/preferences.h"

namespace plasmos::testing {

class OptionsRandomTest : public QObject {
    Q_OBJECT

private:
    static void Act(Preferences& window, Pcg32& generator);

private slots:
    void anythingStaysInsideTheBounds();
};

void OptionsRandomTest::Act(Preferences& window, Pcg32& generator) {
    const auto below = [&generator](int n) { return static_cast<int>(generator.Next() % static_cast<unsigned>(n)); };
    const char* names[] = {"rowUD", "colsUD", "blockUD"};
    const int squares = window.Side("rowUD")->value() * window.Side("colsUD")->value();
    switch (below(6)) {
        case 0:
        case 1: window.Step(names[below(3)], below(9) - 4); break;
        case 2: QTest::keyClick(window.Side(names[below(3)]), below(2) == 0 ? Qt::Key_PageUp : Qt::Key_PageDown); break;
        case 3: window.ClickPicture(1 + below(squares)); break;
        case 4: window.ClickPicture(1 + below(squares), Qt::RightButton); break;
        default: QTest::keyClick(window.Dialog(), Qt::Key_Tab, Qt::ControlModifier);
    }
}

void OptionsRandomTest::anythingStaysInsideTheBounds() {
    std::unique_ptr<Preferences> window;
    for (int seed = 1; seed <= Scaled(200); ++seed) {
        if (seed % 10 == 1) {
            window.reset();
            window = std::make_unique<Preferences>();
            window->Board().setUpdatesEnabled(false);
        }
        Pcg32 generator;
        generator.Seed(static_cast<std::uint64_t>(seed), 7);
        for (int action = 0; action < 25; ++action) {
            Act(*window, generator);
        }
        window->Press("cmdApply");
        const auto tag = "seed " + std::to_string(seed) + ", " + window->Values().toStdString();
        const BoardSize loaded = ReadBoardSettings(QtSettings(window->Folder() + QStringLiteral("/settings.ini")));
        const int blocks = static_cast<int>(loaded.Blocks.size());
        QVERIFY2(loaded.Rows >= 3 && loaded.Rows <= 9 && loaded.Cols >= 3 && loaded.Cols <= 9, tag.c_str());
        QVERIFY2(loaded.Rows * loaded.Cols <= 36 && blocks <= 8, tag.c_str());
        QVERIFY2(loaded.Rows * loaded.Cols - blocks >= 12, tag.c_str());
        QVERIFY2(QStringLiteral("%1x%2 %3").arg(loaded.Rows).arg(loaded.Cols).arg(blocks) == window->Values(),
                 tag.c_str());
        QCOMPARE(window->Saved("board", "blockno"), std::to_string(blocks));
        if (seed % 10 == 0) {
            window->Press("cmdOK");
            QVERIFY2(!window->IsOpen() && game.NumSquares == loaded.Rows * loaded.Cols, tag.c_str());
        }
    }
}

WINDOW_TESTS(options_random_test, OptionsRandomTest)

}  // namespace plasmos::testing

#include "options_random_test.moc"
