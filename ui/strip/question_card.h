// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPushButton>

#include "ui/look/card.h"

namespace plasmos {

struct GameState;

/// The message line in the colours of the clan it speaks to, with the current clan's name and the
/// buttons Yes and No, which answer only while they are asked for.
class QuestionCard : public Card {
public:
    QuestionCard(QWidget* parent, const GameState& state);

    QLabel* playerlab;
    FitLabel* msglab;
    QLabel* autoeatlab;
    QLabel* autotenlab;
    QPushButton* yesb;
    QPushButton* nob;

    /// Replaces the message; the colours are those of the clan, 0: no clan's.
    void ShowMessage(const QString& text, int clan);
    /// The current clan; 0: none.
    void ShowClan(int clan);
    /// Lets Yes and No answer, or no longer.
    void AskYesNo(bool on);
    /// A hint in place of the buttons, such as where to click.
    void ShowHint(const QString& hint);

    /// What the answers to the question cost and bring, in a quiet line below it; where there is no room for it, as
    /// the card's tool tip.
    void ShowAbout(const QString& about);

    int HeightFor(int width, bool tight) const;
    /// Height that the quiet line wants; 0 without one.
    int AboutHeight(int width) const;
    /// Height at which the whole question is read, in the smallest letters, above its buttons.
    int LeastHeight(int width) const;

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void Redress() override;

private:
    void Recolour();
    void Arrange();
    void ArrangeTexts(const QRect& room);

    const GameState& state_;
    QLabel* hint_;
    FitLabel* about_;
    int messageClan_ = 0;
    int playerClan_ = 0;
    bool asking_ = false;
};

}  // namespace plasmos
