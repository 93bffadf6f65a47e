// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/strip/question_card.h"

#include <QPainter>
#include <algorithm>

#include "model/game_state.h"
#include "ui/look/arrow_keys.h"
#include "ui/look/heard.h"
#include "ui/look/palette.h"

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
    label->setStyleSheet(Styled(QStringLiteral("background:@Badge;color:@Accent;border-radius:8px;padding:1px 6px")));
    label->hide();
    return label;
}

}  // namespace

QuestionCard::QuestionCard(QWidget* parent, const GameState& state)
    : Card(parent),
      playerlab(new PillLabel(this)),
      msglab(new FitLabel(this, 15, 10)),
      autoeatlab(MakePill(this, "autoeatlab", "auto-eating")),
      autotenlab(MakePill(this, "autotenlab", "auto-tentacle")),
      yesb(new QPushButton(QStringLiteral("&Yes"), this)),
      nob(new QPushButton(QStringLiteral("&No"), this)),
      state_(state),
      hint_(MakeLabel(this, QStringLiteral("hintlab"), 12, true, Tone::Ink)),
      speaker_(MakeLabel(this, QStringLiteral("speakerlab"), 13, true, Tone::Ink)) {
    playerlab->setObjectName(QStringLiteral("playerlab"));
    playerlab->setTextFormat(Qt::PlainText);
    playerlab->setFont(LookFont(13, true));
    msglab->setObjectName(QStringLiteral("msglab"));
    yesb->setObjectName(QStringLiteral("yesb"));
    nob->setObjectName(QStringLiteral("nob"));
    yesb->setProperty("main", true);
    hint_->setAttribute(Qt::WA_TransparentForMouseEvents);
    autoeatlab->setToolTip(QStringLiteral("This clan eats without asking"));
    autotenlab->setToolTip(QStringLiteral("This clan uses its tentacles without asking"));
    (new ArrowKeys(this))->Take();
    AskYesNo(false);
    ShowClan(0);
    Recolour();
}

void QuestionCard::ShowMessage(const QString& text, int clan) {
    messageClan_ = clan;
    answered_ = false;
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
    }
    answered_ = !asked && (answered_ || (asked_ && msglab->text() == askedText_));
    asked_ = asked;
    Recolour();
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

void QuestionCard::ShowHint(const QString& hint) {
    hint_->setText(hint);
}

void QuestionCard::Recolour() {
    SetLabelColours(state_, msglab, messageClan_);
    SetLabelColours(state_, playerlab, playerClan_);
    if (answered_) {
        QColor faint = LabelText(state_, messageClan_);
        constexpr float Standing = 0.5F;
        faint.setAlphaF(Standing);
        SetLabelColour(msglab, faint);
    }
    SetLabelColour(hint_, LabelText(state_, messageClan_));
    SetLabelColour(speaker_, LabelText(state_, messageClan_));
    const bool coloured = messageClan_ != 0;
    SetColours(LabelBackground(state_, messageClan_), coloured ? ShadesOf(messageClan_).Dark : Shade(Tone::CardEdge));
}

int QuestionCard::HeightFor(int width, bool tight) const {
    const int text = std::clamp(msglab->HeightAt(width - 2 * Pad), 20, tight ? 66 : 84);
    return tight ? HeadHeight + text + 16 : std::max(HeadHeight + text + ButtonHeight + 26, 148);
}

int QuestionCard::LeastHeight(int width) const {
    return msglab->LeastHeightAt(width - 2 * Pad) + HeadHeight + ButtonHeight + 28;
}

void QuestionCard::resizeEvent(QResizeEvent*) {
    Arrange();
}

// The name of whom the message is about stands at its sign; who acts meanwhile stands behind it.
void QuestionCard::ArrangeHead() {
    const int head = Pad + 26;
    const int room = std::max(60, width() - head - 190);
    const int name = std::min(playerlab->sizeHint().width() + 14, room);
    speaker_->setVisible(IsOfTwo());
    if (!IsOfTwo()) {
        playerlab->setGeometry(head, 8, name, 20);
        return;
    }
    speaker_->setText(ToQt(state_.Players[messageClan_].Name.View()));
    const int speaker = std::min(speaker_->sizeHint().width() + 6, room);
    speaker_->setGeometry(head, 8, speaker, 20);
    const int after = head + speaker + 6;
    const bool pills = autoeatlab->isVisibleTo(this) || autotenlab->isVisibleTo(this);
    playerlab->setGeometry(after, 8, std::clamp(width() - Pad - (pills ? 190 : 0) - after, 20, name), 20);
}

void QuestionCard::Arrange() {
    ArrangeHead();
    autoeatlab->setGeometry(width() - Pad - 84, 9, 84, 18);
    autotenlab->setGeometry(width() - Pad - 84 - 98, 9, 94, 18);
    const bool room = height() > 110;
    const int foot = room ? ButtonHeight + 18 : 8;
    msglab->setGeometry(Pad, 8 + HeadHeight, width() - 2 * Pad, height() - 10 - HeadHeight - foot);
    const int top = height() - ButtonHeight - 12;
    yesb->setGeometry(Pad, top, 104, ButtonHeight);
    nob->setGeometry(Pad + 116, top, 104, ButtonHeight);
    hint_->setGeometry(Pad, top, width() - 2 * Pad, ButtonHeight);
    hint_->setVisible(room && !asking_);
}

void QuestionCard::paintEvent(QPaintEvent* event) {
    Card::paintEvent(event);
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const int sign = messageClan_ > 0 ? messageClan_ : playerClan_;
    if (sign > 0) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(Shade(Tone::Badge));
        painter.drawEllipse(QPointF(Pad + 11, 18), 11.5, 11.5);
        DrawClanBadge(painter, sign, QPointF(Pad + 11, 18), 9.5);
    }
}

}  // namespace plasmos
