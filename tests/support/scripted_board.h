// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <deque>
#include <functional>
#include <initializer_list>
#include <stdexcept>
#include <string>
#include <vector>

#include "model/presentation.h"
#include "questions/question.h"

namespace plasmos::testing {

/// The script does not fit the game: a question nobody expected, or an answer of the wrong kind.
struct ScriptError : std::logic_error {
    using std::logic_error::logic_error;
};

/// A line of the script: a name for messages, and the answers that are put to the question that is open then. Where
/// the rule has to look at one of them first, the rest follow when it waits again. Or something else that is done.
struct Line {
    std::string Name;
    std::vector<Answer> Answers;
    std::function<void(Question&)> Act;
};

/// Puts an answer to a question that has a control for it; another question is a fault of the script.
void PutFitting(const Answer& answer, Question& question);

// ---- answers in the message line ----
Line Yes();
Line No();
Line Square(int square);
/// A click at a point in board units.
Line ClickAt(int x, int y);
/// The OK of a message box.
Line Ok();

// ---- answers in dialogs ----
Line Number(int number);
/// A piece of the asked clan by its slot.
Line Amoeba(int amoeba);
/// "None": the pick of an amoeba is withdrawn.
Line Nobody();
/// Amounts for the colours 1, 2, ... and eatb ("Eat", "Starve" or "Carry").
Line Eat(std::vector<int> amounts);
/// Takes the suggestion and presses eatb.
Line EatSuggested();
/// Chooses the parasite's or the fighter's way and presses victimb.
Line Parasitize();
Line Struggle();
/// Marks pieces and presses "done". Without any: the pick of nothing.
Line Pick(std::vector<Answer::Piece> pieces);
/// Clicks boxes of the gene dialog by code ("mv1"), types BP when they are not "", presses "done".
Line Genes(const std::vector<std::string>& codes, const std::string& bp = "");
/// Closes the dialog's window, or the message box.
Line CloseIt();

// ---- lines of any kind ----
/// The person closes the game's window in the middle of the question.
Line EndTheProgram();
Line Do(std::string name, std::function<void(Question&)> act);

/// A question as it was asked.
struct Asked {
    QuestionKind Kind;
    int Clan;
    std::string Text;
    /// What could be answered: squares, numbers, slots, gene numbers, or figures as 10 x clan + slot.
    std::vector<int> Offered;
    std::string Mode;  ///< the dialog's mode; "" where it has none
    int About = 0;     ///< the square that a yes/no question speaks of; 0: none
    std::string Hint;  ///< what stands beside the question
};

/// A board whose person answers from a script, and after its end from a policy. It remembers what was
/// asked and said. A question that neither answers raises ScriptError and fails the running test; so
/// do answers of the script that nobody asked for.
class ScriptedBoard : public Presentation {
public:
    /// Becomes the current game's window as long as it lives.
    ScriptedBoard();
    ~ScriptedBoard() override;

    /// Adds answers at the end of the script.
    ScriptedBoard& Then(Line line);
    ScriptedBoard& Then(std::initializer_list<Line> lines);
    /// Answers what the script does not.
    void AnswerBy(std::function<void(Question&)> policy) { policy_ = std::move(policy); }
    /// Message boxes are dismissed without a line in the script. True at first.
    void DismissBoxes(bool dismiss) { dismissBoxes_ = dismiss; }
    /// Takes back what would fail the test at the end: the failure met, and answers left over.
    std::string ForgiveFailure();
    bool ScriptIsUsedUp() const { return script_.empty(); }

    std::vector<Asked> Questions;       ///< without message boxes
    std::vector<std::string> Boxes;     ///< texts of message boxes
    std::vector<std::string> LogLines;  ///< since the log was begun
    std::vector<std::string> Messages;  ///< every text the message line has shown
    std::vector<std::string> Phases;
    std::vector<std::string> Captions;
    std::vector<int> Pauses;  ///< units
    std::function<void()> OnPause;
    std::string ReplayBox;  ///< what the person typed as the replay number

    /// Whether questions come with their hints.
    bool Hints = true;

    bool WasAsked(QuestionKind kind) const;
    bool HasLogLine(const std::string& line) const;

    bool WantsHints() const override { return Hints; }
    void ShowMessage(std::string_view text, int clan) override;
    void StartLog(std::string_view header) override;
    void Log(std::string_view line, int) override { LogLines.emplace_back(line); }
    void ShowPhase(std::string_view phase) override { Phases.emplace_back(phase); }
    void ShowCaption(std::string_view caption) override { Captions.emplace_back(caption); }
    std::string TakeReplayText() override { return ReplayBox; }
    void Pause(int units) override;
    void Open(Question& question) override;
    void Close(Question& question) override;
    void Wait() override;

private:
    [[noreturn]] void Fail(const std::string& text);

    void Follow(Line& line, Question& question);

    std::deque<Line> script_;
    std::function<void(Question&)> policy_;
    std::vector<Question*> open_;
    std::string failure_;
    bool dismissBoxes_ = true;
    int unanswered_ = 0;  ///< answers given in a row that ended no question
};

}  // namespace plasmos::testing
