// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>
#include <functional>
#include <memory>
#include <vector>

#include "questions/question.h"
#include "ui/look/card.h"
#include "ui/look/heard.h"

namespace plasmos {

class ArrowKeys;
class ScrollBody;
struct GameState;

/// A dialog of the rules, shown in the strip beside the board. It shows what its question holds, hands
/// the person's input to the question's handlers, and reads the question again.
///
/// Its body scrolls where room is short; the foot with what answers stays in sight.
class QuestionPanel : public Card, public HeardPlace {
public:
    QuestionPanel(QWidget* parent, const GameState& state, const Question& question, const QString& title);

    /// Takes everything from the question.
    virtual void Reread() = 0;
    /// The person closes the dialog: its cross, or Escape.
    virtual void CloseAsked() = 0;
    /// The control that the keyboard goes to when the dialog opens.
    virtual QWidget* FirstControl() = 0;

    /// The question is over: nothing reaches it any more.
    void Retire() { retired_ = true; }

    /// What somebody who listens is told when the question comes up.
    QString Spoken() const;

    /// Called after a handler of the question has run.
    std::function<void()> OnHandled;

    /// Height the panel wants at a width.
    int HeightFor(int width) const;
    /// The same with or without the message line, which a panel shows itself where the question card
    /// has to make room for it.
    int HeightWith(bool message, int width) const;
    void ShowMessage(bool on);
    /// The least height at which the panel is of use, with its message line.
    int LeastHeight(int width) const;
    /// From now on the arrow keys stay in the panel, and what has the focus is in sight. Call it when every
    /// control is there.
    void TakeControls();

protected:
    void paintEvent(QPaintEvent* event) override;
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

    /// Runs a handler of the question, shows what came of it and lets the rule look.
    void Handle(const std::function<void()>& handler);
    /// What scrolls where room is short.
    QVBoxLayout* Body() { return body_; }
    /// What stays in sight: the controls that answer.
    QVBoxLayout* Foot() { return foot_; }
    /// A button that ignores double clicks and repeated keys.
    QPushButton* MakeButton(const QString& name, const QString& caption, bool main);
    /// The tab key goes through the controls in this order.
    static void OrderTabs(const std::vector<QWidget*>& controls);
    /// A listener is told the title, or the question itself where the title does not ask.
    void SetTitle(const QString& title, bool asks = true);
    /// A quiet line with what the answers cost and bring, for the body, below the question's own words; hidden where
    /// the question has none.
    QWidget* Hint() { return hint_; }
    /// Says what closing the dialog would do now: "buys what is ticked and closes".
    void SayClosing(const QString& effect);
    /// A button that steps a number down or up, by the mouse alone; `name` is its own, `listeners` hear the words.
    QPushButton* MakeStep(QWidget* parent, const QString& name, bool up);
    int Clan() const { return clan_; }
    const GameState& State() const { return state_; }

private:
    QHBoxLayout* MakeHead();

    const GameState& state_;
    const Question& question_;
    int clan_;
    bool retired_ = false;
    QLabel* title_;
    QPushButton* close_;
    QLabel* message_;
    QLabel* hint_;
    QLabel* closing_;
    ScrollBody* scroll_;
    QVBoxLayout* body_;
    QVBoxLayout* foot_;
    ArrowKeys* arrows_;
};

/// Keeps double clicks and repeated keys from an answering control.
void RefuseRepeats(QWidget* control);

/// The panel for a question of a state, or none for those that the message line asks.
std::unique_ptr<QuestionPanel> MakePanel(QWidget* parent, const GameState& state, Question& question);

}  // namespace plasmos
