// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/strip/question_card.h"

#include <QPainter>
#include <algorithm>

#include "model/game_state.h"
#include "ui/look/arrow_keys.h"
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
      about_(new FitLabel(this, 11, 9)) {
    about_->setObjectName(QStringLiteral("questionHint"));
    about_->setAttribute(Qt::WA_TransparentForMouseEvents);
    about_->hide();
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
    msglab->SetText(text);
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

void QuestionCard::ShowAbout(const QString& about) {
    about_->SetText(about);
    setAccessibleDescription(about);
    Arrange();
}

int QuestionCard::AboutHeight(int width) const {
    return about_->text().isEmpty() ? 0 : about_->HeightAt(width - 2 * Pad);
}

void QuestionCard::Recolour() {
    SetLabelColours(state_, msglab, messageClan_);
    SetLabelColours(state_, playerlab, playerClan_);
    SetLabelColour(hint_, LabelText(state_, messageClan_));
    SetLabelColour(about_, LabelText(state_, messageClan_));
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

void QuestionCard::Arrange() {
    const int head = Pad + 26;
    const int name = std::min(playerlab->sizeHint().width() + 14, std::max(60, width() - head - 190));
    playerlab->setGeometry(head, 8, name, 20);
    autoeatlab->setGeometry(width() - Pad - 84, 9, 84, 18);
    autotenlab->setGeometry(width() - Pad - 84 - 98, 9, 94, 18);
    const bool room = height() > 110;
    const int foot = room ? ButtonHeight + 18 : 8;
    ArrangeTexts(foot);
    const int top = height() - ButtonHeight - 12;
    yesb->setGeometry(Pad, top, 104, ButtonHeight);
    nob->setGeometry(Pad + 116, top, 104, ButtonHeight);
    hint_->setGeometry(Pad, top, width() - 2 * Pad, ButtonHeight);
    hint_->setVisible(room && !asking_);
}

// The question comes first; what stands beside it takes what is left.
void QuestionCard::ArrangeTexts(int foot) {
    const int wide = width() - 2 * Pad;
    const int top = 8 + HeadHeight;
    const int room = height() - 10 - HeadHeight - foot;
    const int about = std::min(AboutHeight(width()), room - msglab->LeastHeightAt(wide));
    const bool shown = !about_->text().isEmpty() && about >= about_->LeastHeightAt(wide);
    about_->setVisible(shown);
    about_->setGeometry(Pad, top + room - about, wide, std::max(about, 0));
    msglab->setGeometry(Pad, top, wide, shown ? room - about : room);
    setToolTip(shown ? QString() : PlainTip(about_->text()));
}

void QuestionCard::paintEvent(QPaintEvent* event) {
    Card::paintEvent(event);
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const int sign = playerClan_ > 0 ? playerClan_ : messageClan_;
    if (sign > 0) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(Shade(Tone::Badge));
        painter.drawEllipse(QPointF(Pad + 11, 18), 11.5, 11.5);
        DrawClanBadge(painter, sign, QPointF(Pad + 11, 18), 9.5);
    }
}

}  // namespace plasmos
