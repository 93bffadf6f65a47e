// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPushButton>

#include "ui/look/card.h"
#include "ui/look/heard.h"

namespace plasmos {

/// What automatic eating does without asking.
inline constexpr char AutoEatingTip[] =
    "This clan eats without asking: the suggested menu. Where there is none, it attacks another clan's amoeba\n"
    "for 1 BP with Struggle for Survival or Aggression, then feeds as a parasite, and else starves.";

struct GameState;

/// The message line in the colours of the clan it speaks to and under its sign, with the current clan's name and the
/// buttons Yes and No, which answer only while they are asked for. Where another clan acts than the message is about,
/// both are named, each in its own colours.
class QuestionCard : public Card, public HeardPlace {
public:
    QuestionCard(QWidget* parent, const GameState& state);

    QLabel* playerlab;
    FitLabel* msglab;
    QLabel* autoeatlab;
    QLabel* autotenlab;
    QPushButton* yesb;
    QPushButton* nob;
    QPushButton* whyb;  ///< tells why the computer clans did what they did last

    /// Replaces the message; the colours are those of the clan, 0: no clan's.
    void ShowMessage(const QString& text, int clan);
    /// The current clan; 0: none.
    void ShowClan(int clan);
    /// Lets Yes and No answer, or no longer.
    void AskYesNo(bool on);
    /// Something is asked just now, or nothing any more: a question that has been answered stands back.
    void ShowAsked(bool asked);
    /// There is something to tell, or not.
    void OfferWhy(bool on);
    /// A hint in place of the buttons, such as where to click.
    void ShowHint(const QString& hint);
    /// The same, told aloud: something was pressed in vain.
    void WarnHint(const QString& hint);

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
    void MakeWhy();
    int WhyWidth() const;
    void Recolour();
    void SetAnswered(bool answered);
    void Arrange();
    void ArrangeHead();
    /// Message and current clan are of two clans.
    bool IsOfTwo() const { return messageClan_ > 0 && playerClan_ > 0 && messageClan_ != playerClan_; }
    void ArrangeTexts(const QRect& room);

    const GameState& state_;
    QLabel* hint_;
    QLabel* speaker_;  ///< whom the message is about, where another clan acts
    FitLabel* about_;
    int messageClan_ = 0;
    int playerClan_ = 0;
    bool asking_ = false;
    bool asked_ = false;
    bool answered_ = false;
    QString askedText_;
};

}  // namespace plasmos
