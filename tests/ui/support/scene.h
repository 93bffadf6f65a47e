// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QTemporaryDir>
#include <QTest>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "files/game_files.h"
#include "model/dice.h"
#include "model/game_state.h"
#include "model/step.h"
#include "questions/visit.h"
#include "tests/ui/support/window_tests.h"
#include "ui/app/hand.h"
#include "ui/app/qt_settings.h"
#include "ui/look/palette.h"

class QAction;
class QLineEdit;

namespace plasmos {
class PuddleView;
class AutoPerson;
class UBoard;
}  // namespace plasmos

namespace plasmos::testing {

/// Where the folders of tests are made: in memory, where there is a file system in memory.
QString FolderTemplate();

/// A setting that is there before the window opens.
struct SavedValue {
    const char* Section;
    const char* Key;
    std::string Value;
};

/// The window of a test, with a data folder and settings of its own, and a person before it who
/// answers step by step. At every question that opens the window is compared with the question.
class Scene {
public:
    explicit Scene(const std::vector<SavedValue>& saved = {});
    ~Scene();
    Scene(const Scene&) = delete;
    Scene& operator=(const Scene&) = delete;

    UBoard& Board() { return *board_; }
    PuddleView& Puddle();
    QtSettings& Settings() { return *settings_; }
    DataFolder& Files() { return *files_; }
    QString Folder() const { return folder_.path(); }
    /// Text of a file of the data folder, empty where it is missing.
    QString FileText(std::string_view name) const;
    /// Closes the window and opens another one with the same settings.
    void Reopen();

    // ---- the person ----
    /// The next question is of this kind, and this is what the person does about it.
    Scene& Then(QuestionKind kind, std::function<void()> act);
    /// What the person does next, once the rules have taken over what came before.
    void Soon(std::function<void()> act);
    /// The next question has this text and is answered by a button.
    Scene& ThenYes(std::string text);
    Scene& ThenNo(std::string text);
    /// The next question offers these squares; one of them is clicked.
    Scene& ThenSquare(std::vector<int> offered, int square);
    /// The next message box has this text; its OK is clicked.
    Scene& ThenBox(std::string text);
    /// Somebody who sees a whole game through; what cannot be pressed is a failure of the test.
    AutoPerson& Player() { return *player_; }
    /// Answers whatever the steps do not.
    void AnswerBy(std::function<void(Question&)> policy) {
        policy_ = std::make_shared<std::function<void(Question&)>>(std::move(policy));
    }
    /// Called at every question, before it is answered.
    std::function<void(Question&)> Watch;

    /// Runs a rule, or anything else that asks, to its end. A step that fails, a question nobody
    /// expects, and steps nobody asked for are failures of the test.
    void Run(const std::function<void()>& rule, const char* file, int line);
    /// Runs a rule on the position the test has set up, as a part of a game.
    void RunPhase(const std::function<void()>& rule, const char* file, int line);
    /// What ended the rule early was the end of the program.
    bool WasEnded() const { return ended_; }
    /// Longest time a rule may take, in milliseconds.
    int Patience = 30000;
    /// Questions asked so far, by kind.
    int Asked(QuestionKind kind) const { return asked_[static_cast<std::size_t>(kind)]; }
    int Asked() const;
    /// Rolls instead of the dice until the next call.
    void Roll(std::vector<int> rolls);
    bool AllRolled() const { return !tape_ || tape_->AtEnd(); }

    // ---- looking and touching, by the controls' names ----
    /// The control of a name: an enabled one that is in sight before one in sight before any.
    QWidget* Find(const QString& name);
    bool Sees(const QString& name);
    bool Enabled(const QString& name);
    /// The text a control shows.
    QString Text(const QString& name);
    bool Ticked(const QString& name);
    void Click(const QString& name, Qt::MouseButton button = Qt::LeftButton);
    /// Presses the place of a control in its window, its middle where no point of it is given. What lies
    /// over it there, or keeps it out of reach, is a failure of the test.
    void Press(QWidget* control, Qt::MouseButton button = Qt::LeftButton, QPoint point = {-1, -1});
    /// Presses the button down and keeps it, or lets it go, at the place of a control.
    void Hold(QWidget* control, Qt::MouseButton button);
    void Release(QWidget* control, Qt::MouseButton button);
    /// What the window system sends for a double click: press, release, double click, release.
    void DoubleClick(QWidget* widget, QPoint point = {-1, -1}, Qt::MouseButton button = Qt::LeftButton);
    /// A key pressed while a control has the keyboard; one that cannot have it is a failure of the test.
    void Key(const QString& name, Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    /// Replaces the text of a field, letter by letter.
    void Type(const QString& name, const QString& text);
    /// Replaces the text of a field at one stroke, as from the clipboard.
    void Paste(const QString& name, const QString& text);
    void ClickSquare(int square, Qt::MouseButton button = Qt::LeftButton);
    /// Chooses an item of the menus: its menu is pulled down and the item pressed, greyed or not.
    void Menu(const QString& name);
    /// Leaves the game by its menu, and is sure of it.
    void LeaveGame();
    QAction* Item(const QString& name);
    /// Lines of the game log, without signs and headings' layout.
    QStringList Log();
    bool HasLogLine(const QString& line) { return Log().contains(line); }

    void Fail(const std::string& what);

private:
    struct Step {
        QuestionKind Kind;
        std::optional<std::string> Text;
        std::function<void()> Act;
    };

    void Open();
    /// Gives a window the keyboard.
    static bool Activate(QWidget& window);
    /// Longest time that takes, in milliseconds.
    static constexpr int KeyboardPatience = 3000;
    QLineEdit* FieldToFill(const QString& name);
    void Answer(Question& question);

    bool InReach(QWidget* control, QPoint& point);

    WindowHand hand_;
    QTemporaryDir folder_;
    std::unique_ptr<DataFolder> files_;
    std::unique_ptr<QtSettings> settings_;
    std::unique_ptr<UBoard> board_;
    std::unique_ptr<AutoPerson> player_;
    std::unique_ptr<DiceTape> tape_;
    std::vector<Step> steps_;
    std::size_t next_ = 0;
    std::shared_ptr<std::function<void(Question&)>> policy_;  ///< shared with the call of it that replaces it
    std::string fault_;
    int asked_[QuestionKindCount] = {};
    bool ended_ = false;
};

/// Compares what the window shows with its topmost question and the state; the first difference.
std::string WhatIsWrong(Scene& scene, Question& question);

}  // namespace plasmos::testing

/// A test of what the rules do in a state that no game reaches: skipped where the state is looked
/// through after every step.
#define NEEDS_A_STATE_NO_GAME_REACHES(why) \
    if (EveryStepIsChecked)                \
    QSKIP(why)

/// Runs something that asks; a failure ends the test function.
#define PLAY(scene, ...)                                       \
    do {                                                       \
        (scene).Run([&] { __VA_ARGS__; }, __FILE__, __LINE__); \
        if (QTest::currentTestFailed()) {                      \
            return;                                            \
        }                                                      \
    } while (false)

/// The same for a rule on a position.
#define PHASE(scene, ...)                                           \
    do {                                                            \
        (scene).RunPhase([&] { __VA_ARGS__; }, __FILE__, __LINE__); \
        if (QTest::currentTestFailed()) {                           \
            return;                                                 \
        }                                                           \
    } while (false)
