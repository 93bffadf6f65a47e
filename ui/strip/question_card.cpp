// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/strip/question_card.h"

#include <QPainter>
#include <algorithm>

#include "model/game_state.h"
#include "ui/look/arrow_keys.h"
#include "ui/look/dress.h"
#include "ui/look/heard.h"
#include "ui/look/palette.h"
#include "ui/look/plain_tip.h"

namespace plasmos {

namespace {

constexpr int Pad = 14;
constexpr int HeadHeight = 24;
constexpr int ButtonHeight = 32;

void SetLabelColours(const GameState& state, QLabel* label, int clan) {
    QPalette palette = label->palette();
    palette.setColor(QPalette::Window, LabelBackground(state, clan));
    palette.setColor(QPalette::WindowText, LabelText(state, clan));
    label->setPalette(palette);
}

QLabel* MakePill(QWidget* parent, const char* name, const char* text) {
    auto* label = MakeLabel(parent, QString::fromLatin1(name), 10, true, Tone::Ink);
    label->setText(QString::fromLatin1(text));
    label->setAlignment(Qt::AlignCenter);
    WearSheet(*label, QStringLiteral("background:@Badge;color:@Accent;border-radius:8px;padding:1px 6px"));
    label->hide();
    return label;
}

}  // namespace

QuestionCard::QuestionCard(QWidget* parent, const GameState& state)
    : Card(parent),
      HeardPlace(QAccessible::Grouping),
      playerlab(new PillLabel(this)),
      msglab(new SpeechLabel(this, 15, 10)),
      autoeatlab(MakePill(this, "autoeatlab", "auto-eating")),
      autotenlab(MakePill(this, "autotenlab", "auto-tentacle")),
      yesb(new QPushButton(QStringLiteral("&Yes"), this)),
      nob(new QPushButton(QStringLiteral("&No"), this)),
      whyb(new QPushButton(QStringLiteral("Why?"), this)),
      state_(state),
      hint_(MakeLabel(this, QStringLiteral("hintlab"), 12, true, Tone::Ink)),
      speaker_(MakeLabel(this, QStringLiteral("speakerlab"), 13, true, Tone::Ink)),
      about_(new FitLabel(this, 11, 9)) {
    about_->setObjectName(QStringLiteral("questionHint"));
    about_->setAttribute(Qt::WA_TransparentForMouseEvents);
    WearTone(*about_, Tone::Faint);
    about_->hide();
    playerlab->setObjectName(QStringLiteral("playerlab"));
    playerlab->setTextFormat(Qt::PlainText);
    WearLetters(*playerlab, 13, true);
    msglab->setObjectName(QStringLiteral("msglab"));
    yesb->setObjectName(QStringLiteral("yesb"));
    nob->setObjectName(QStringLiteral("nob"));
    yesb->setProperty("main", true);
    MakeWhy();
    hint_->setAttribute(Qt::WA_TransparentForMouseEvents);
    autoeatlab->setToolTip(QString::fromLatin1(AutoEatingTip));
    autotenlab->setToolTip(QStringLiteral("This clan uses its tentacles without asking"));
    (new ArrowKeys(this))->Take();
    AskYesNo(false);
    ShowClan(0);
    ShowAsked(false);
    Recolour();
}

void QuestionCard::ShowMessage(const QString& text, int clan) {
    messageClan_ = clan;
    SetAnswered(false);
    msglab->SetText(text);
    Recolour();
    Arrange();
    if (!text.isEmpty()) {
        TellAlert(*msglab);
    }
}

void QuestionCard::ShowAsked(bool asked) {
    if (asked) {
        askedText_ = msglab->text();
    } else {
        setAccessibleName(QStringLiteral("The message line"));
    }
    SetAnswered(!asked && (answered_ || (asked_ && msglab->text() == askedText_)));
    asked_ = asked;
}

// The words keep their colours; what is said below them tells that they are answered.
void QuestionCard::SetAnswered(bool answered) {
    if (answered) {
        ShowHint(QStringLiteral("Answered."));
    } else if (answered_) {
        ShowHint(QString());
    }
    answered_ = answered;
}

void QuestionCard::ShowClan(int clan) {
    playerClan_ = clan;
    playerlab->setText(clan > 0 ? ToQt(state_.Players[clan].Name.View()) : QString());
    playerlab->setVisible(clan > 0);
    Recolour();
    Arrange();
}

void QuestionCard::AskYesNo(bool on) {
    asking_ = on;
    yesb->setEnabled(on);
    nob->setEnabled(on);
    yesb->setVisible(on);
    nob->setVisible(on);
    if (on) {
        hint_->clear();
        yesb->setFocus();
    }
    Arrange();
}

// The board or the dialog keeps the keyboard when it is pressed.
void QuestionCard::MakeWhy() {
    whyb->setObjectName(QStringLiteral("whyb"));
    whyb->setToolTip(QStringLiteral("Why the other clans did what they did last (F4)"));
    whyb->setFocusPolicy(Qt::TabFocus);
    whyb->setAutoDefault(true);
    WearSheet(*whyb, QStringLiteral("padding:0 @6px;min-height:@18px;font-size:@11px"));
    whyb->hide();
}

void QuestionCard::OfferWhy(bool on) {
    whyb->setVisible(on);
    Arrange();
}

int QuestionCard::WhyWidth() const {
    return whyb->isVisibleTo(this) ? Px(74) : 0;
}

void QuestionCard::ShowHint(const QString& hint) {
    hint_->setText(hint);
}

void QuestionCard::WarnHint(const QString& hint) {
    ShowHint(hint);
    TellAlert(*hint_);
}

void QuestionCard::ShowAbout(const QString& about) {
    about_->SetText(about);
    setAccessibleDescription(about);
    Arrange();
}

int QuestionCard::AboutHeight(int width) const {
    return about_->text().isEmpty() ? 0 : about_->HeightAt(width - 2 * Px(Pad)) + 2;
}

void QuestionCard::Recolour() {
    SetLabelColours(state_, msglab, messageClan_);
    SetLabelColours(state_, playerlab, playerClan_);
    SetEdge(messageClan_);
    update();
}

int QuestionCard::HeightFor(int width, bool tight) const {
    const int text = std::clamp(msglab->HeightAt(width - 2 * Px(Pad)), Px(20), Px(tight ? 72 : 92));
    return tight ? Px(HeadHeight + 16) + text : std::max(Px(HeadHeight + ButtonHeight + 26) + text, Px(148));
}

int QuestionCard::LeastHeight(int width) const {
    return msglab->LeastHeightAt(width - 2 * Px(Pad)) + Px(8 + HeadHeight + ButtonHeight + 12);
}

void QuestionCard::resizeEvent(QResizeEvent*) {
    Arrange();
}

void QuestionCard::Redress() {
    Recolour();
    Arrange();
}

// The name of whom the message is about stands at its sign; who acts meanwhile stands behind it.
void QuestionCard::ArrangeHead() {
    const int pad = Px(Pad);
    const int head = pad + Px(26);
    const int room = std::max(Px(60), width() - head - Px(190) - WhyWidth());
    const int name = std::min(playerlab->sizeHint().width() + Px(14), room);
    speaker_->setVisible(IsOfTwo());
    if (!IsOfTwo()) {
        playerlab->setGeometry(head, Px(9), name, Px(20));
        return;
    }
    speaker_->setText(ToQt(state_.Players[messageClan_].Name.View()));
    const int speaker = std::min(speaker_->sizeHint().width() + Px(6), room);
    speaker_->setGeometry(head, Px(9), speaker, Px(20));
    const int after = head + speaker + Px(6);
    const bool pills = autoeatlab->isVisibleTo(this) || autotenlab->isVisibleTo(this);
    const int left = width() - pad - WhyWidth() - (pills ? Px(190) : 0) - after;
    playerlab->setGeometry(after, Px(9), std::clamp(left, Px(20), std::max(name, Px(20))), Px(20));
}

void QuestionCard::Arrange() {
    ArrangeHead();
    const int pad = Px(Pad);
    const int right = width() - pad - WhyWidth();
    whyb->setGeometry(right + Px(6), Px(8), Px(46), Px(22));
    autoeatlab->setGeometry(right - Px(84), Px(10), Px(84), Px(18));
    autotenlab->setGeometry(right - Px(84 + 98), Px(10), Px(94), Px(18));
    const bool room = height() > Px(115);  // more than a dialog leaves it
    const int foot = Px(room ? ButtonHeight + 12 : 6);
    const int inner = width() - 2 * pad;
    ArrangeTexts(QRect(pad, Px(8 + HeadHeight), inner, height() - Px(8 + HeadHeight) - foot));
    const int top = height() - Px(ButtonHeight + 8);
    yesb->setGeometry(pad, top, Px(104), Px(ButtonHeight));
    nob->setGeometry(pad + Px(116), top, Px(104), Px(ButtonHeight));
    hint_->setGeometry(pad, top, inner, Px(ButtonHeight));
    hint_->setVisible(room && !asking_);
}

// The question comes first; what stands beside it takes what is left.
void QuestionCard::ArrangeTexts(const QRect& room) {
    const int wide = room.width();
    const int about = std::min(AboutHeight(width()), room.height() - msglab->LeastHeightAt(wide));
    const bool shown = !about_->text().isEmpty() && about >= about_->LeastHeightAt(wide);
    const int message = std::min(shown ? room.height() - about : room.height(), msglab->HeightAt(wide));
    msglab->setGeometry(room.x(), room.y(), wide, message);
    about_->setVisible(shown);
    about_->setGeometry(room.x(), room.y() + message + 2, wide, std::max(about, 0));
    setToolTip(shown ? QString() : PlainTip(about_->text()));
}

void QuestionCard::paintEvent(QPaintEvent* event) {
    Card::paintEvent(event);
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const int sign = messageClan_ > 0 ? messageClan_ : playerClan_;
    if (sign > 0) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(ShadesOf(sign).Body);
        painter.drawRoundedRect(QRectF(1.5, 1.5, width() - 3, 5), 2.5, 2.5);
        DrawClanBadge(painter, sign, QPointF(Px(Pad + 11), Px(19)), Px(10));
    }
}

}  // namespace plasmos
