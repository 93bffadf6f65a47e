// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <functional>
#include <memory>
#include <vector>

#include "questions/question.h"
#include "ui/window/event_wait.h"

class QWidget;

namespace plasmos {

class QuestionPanel;
class ScoreTrack;
class SideStrip;
class SquareQuestion;

/// What the rules ask in a window, and their waiting for it. Questions lie on each other; only the topmost is
/// answered: by the buttons Yes and No and their keys, by a square of the puddle, or in a panel of the strip.
class QuestionDesk : public QObject {
public:
    QuestionDesk(QWidget& window, ScoreTrack& track, SideStrip& strip);
    ~QuestionDesk() override;

    /// Called, from the event loop, when a question has opened or is the topmost again and may be answered.
    std::function<void(Question&)> OnQuestion;
    /// Called whenever another question is on top, or none (nullptr), or the topmost shows something else.
    std::function<void(const Question*)> OnTop;
    /// The question that may be answered now; none: nullptr.
    Question* TopQuestion() const;

    // ---- what the rules do ----
    void Open(Question& question);
    void Refresh(Question& question);
    void Close(Question& question);
    /// Returns when something has happened, after 100 ms at the latest. Throws ProgramEnd when the program is to
    /// end.
    void Wait();
    /// Lets the time go by, in units of 75 ms, unless the person wants to leave; throws as Wait does.
    void Pause(int units);
    /// How long an animation takes that is meant to take so many milliseconds; in fast mode no time.
    int Milliseconds(int full) const;

    // ---- what the window does ----
    /// There may be something for the rules to take over.
    void Wake() { wait_.Wake(); }
    /// The rules are told to leave the game: no wait and no pause lasts until they have.
    void LeaveGame();
    /// Every wait of the rules ends with ProgramEnd, from now on.
    void EndProgram() { wait_.End(); }
    bool Ended() const { return wait_.Ended(); }
    /// Pauses and animations: 1 as they are meant, 0 none.
    void SetSpeed(double factor) { speed_ = factor; }
    /// The same as the person likes it: hundredths of the usual time.
    void SetPace(int hundredths) { pace_ = hundredths; }
    /// Nothing glides or fades, as on a desktop without motion.
    void SetMotion(bool on) { motion_ = on; }
    /// What goes on by itself stops at the next pause, until it is let go or taken a step further. Questions wait for
    /// their answers as ever.
    void Hold(bool on);
    /// Nothing goes on and nothing is answered, as long as an earlier board is shown.
    void Freeze(bool on);
    void Step();

private:
    struct Asked {
        Question* What;
        std::unique_ptr<QuestionPanel> Panel;  ///< none for what the message line asks
    };

    /// The topmost question takes the keyboard; one that has just opened brings its first control into sight.
    void ActivateTop(Qt::FocusReason reason);
    /// The same without a word to anybody: it was on top before.
    void ShowTop(Qt::FocusReason reason);
    /// Whether anything is asked, for the message line.
    void ShowAsked();
    /// Who listens is told of the topmost question.
    void Speak();
    void AnnounceTop();
    void TellTop();
    void Answer(void (*handler)());
    void AnswerSquare(int x, int y);
    void WarnOfSquare(const SquareQuestion& question, int square);
    void ShowSafety();
    void ThrowIfOver();
    int Duration(int full) const;
    void WaitWhileHeld();

    ScoreTrack* track_;
    SideStrip* strip_;
    EventWait wait_;
    std::vector<Asked> asked_;
    unsigned announced_ = 0;
    double speed_ = 1;
    int pace_ = 100;
    bool motion_ = true;
    bool held_ = false;
    bool step_ = false;
    bool frozen_ = false;
};

}  // namespace plasmos
