// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/strip/start_card.h"

#include <QPainter>
#include <algorithm>

#include "model/game_state.h"
#include "ui/look/blob_shape.h"
#include "ui/look/dress.h"
#include "ui/look/palette.h"

namespace plasmos {

namespace {

constexpr int Pad = 18;
constexpr int Foot = 62;
constexpr int BelowTitle = 46;
constexpr int BelowBlobs = 92;
constexpr int WelcomeHeight = 214;
constexpr int ResumeRow = 74;  ///< a game that waits, with its picture
constexpr int PictureUnits = 60;
constexpr int RowHeight = 58;  ///< of the buttons, where they take two rows
const char* const Welcome =
    "Your amoebas share this puddle with hungry neighbours. Drift or swim, eat what the others leave, keep your "
    "mutation below the UV level, buy genes, divide and conquer. Ten turns; the highest score wins.";

}  // namespace

StartCard::StartCard(QWidget* parent, const GameState& state)
    : Card(parent),
      HeardPlace(QAccessible::Grouping),
      gob(new QPushButton(QStringLiteral("Go"), this)),
      guideb(new QPushButton(QStringLiteral("Show me how"), this)),
      watchb(new QPushButton(QStringLiteral("Watch a Game"), this)),
      resumeb(new QPushButton(QStringLiteral("Resume"), this)),
      txtReplay(new QLineEdit(this)),
      state_(state),
      title_(MakeLabel(this, QStringLiteral("titlelab"), 21, true, Tone::Ink)),
      text_(new FitLabel(this, 13, 10)),
      replayLabel_(MakeLabel(this, QStringLiteral("replaylab"), 12, false, Tone::Faint)),
      resumeLine_(MakeLabel(this, QStringLiteral("resumelab"), 13, false, Tone::Ink)) {
    resumeb->setObjectName(QStringLiteral("resumeb"));
    resumeb->setToolTip(QStringLiteral("Goes on with the game that was left"));
    resumeb->hide();
    resumeLine_->hide();
    gob->setObjectName(QStringLiteral("gob"));
    gob->setProperty("main", true);
    gob->setDefault(true);
    guideb->setObjectName(QStringLiteral("guideb"));
    guideb->setToolTip(QStringLiteral("A short first game with somebody who explains"));
    guideb->hide();
    watchb->setObjectName(QStringLiteral("watchb"));
    watchb->setToolTip(QStringLiteral("Six clans at most, all of them the computer's"));
    txtReplay->setObjectName(QStringLiteral("txtReplay"));
    txtReplay->setPlaceholderText(QStringLiteral("by the clock"));
    txtReplay->setToolTip(QStringLiteral("The same replay number deals the same game"));
    replayLabel_->setText(QStringLiteral("Replay number"));
    txtReplay->setAccessibleName(replayLabel_->text());
    ShowWelcome();
}

void StartCard::ShowWelcome() {
    Show(QStringLiteral("Welcome to the Puddle"), QString::fromLatin1(Welcome), 0);
}

void StartCard::OfferGuide(bool on) {
    offersGuide_ = on;
    guideb->setVisible(on && winner_ == 0);
    StartCard::Redress();
}

int StartCard::PictureSide() {
    return Px(PictureUnits);
}

void StartCard::OfferResume(const QString& line, const QPixmap& board) {
    resumeBoard_ = board;
    resumeLine_->setText(line);
    resumeb->setVisible(!line.isEmpty());
    resumeb->setAccessibleDescription(line);
    resumeLine_->setVisible(!line.isEmpty());
    StartCard::Redress();
    update();
}

double StartCard::ResumeHeight() const {
    return resumeb->isVisibleTo(this) ? ResumeRow : 0;
}

void StartCard::ShowResult(const QString& line, const QString& story, const QString& places, int clan) {
    story_ = story;
    places_ = places;
    Show(line, story, clan);
}

void StartCard::Show(const QString& title, const QString& text, int clan) {
    winner_ = clan;
    title_->setText(title);
    text_->SetText(text);
    setAccessibleName(title);
    setAccessibleDescription(text);
    OfferGuide(offersGuide_);
    update();
}

int StartCard::ResultHeight(int width, const QString& text) const {
    return Px(BelowTitle + 10 + Foot) + Px(static_cast<int>(ResumeHeight())) +
           text_->HeightOf(text, width - 2 * Px(Pad));
}

int StartCard::HeightFor(int width, int room) const {
    if (winner_ == 0) {
        return Px(WelcomeHeight + static_cast<int>(ResumeHeight())) + (guideb->isVisibleTo(this) ? Px(RowHeight) : 0);
    }
    const int whole = ResultHeight(width, places_ + story_);
    return whole <= room ? whole : std::min(ResultHeight(width, story_), room);
}

void StartCard::Redress() {
    const double wide = UsualWidth(*this);
    const double high = UsualHeight(*this);
    const double inner = wide - 2 * Pad;
    if (winner_ > 0) {
        text_->SetText(height() >= ResultHeight(width(), places_ + story_) ? places_ + story_ : story_);
    }
    const int below = winner_ > 0 ? BelowTitle : BelowBlobs;
    title_->setGeometry(InPixels({Pad, 12, inner, 30}));
    const double rows = (guideb->isVisibleTo(this) ? RowHeight : 0) + ResumeHeight();
    text_->setGeometry(InPixels({Pad, static_cast<double>(below), inner, high - below - Foot - rows}));
    ArrangeButtons(wide, high - 50, rows - ResumeHeight());
    ArrangeResume(wide, high - 50 - rows - 8);
}

// The guided game has Go beside it, and the rest a row of its own.
void StartCard::ArrangeButtons(double wide, double top, double rows) {
    const double go = wide < Roomy ? 66 : 84;
    const double watch = std::max(watchb->sizeHint().width() / Letters(), wide < Roomy ? 116.0 : 136.0);
    gob->setGeometry(InPixels({Pad, top - rows, go, 36}));
    guideb->setGeometry(InPixels({Pad + go + 8, top - rows, watch, 36}));
    const double before = rows > 0 ? Pad : Pad + go + 8;
    watchb->setGeometry(InPixels({before, top, watch, 36}));
    const double left = before + watch + 10;
    replayLabel_->setGeometry(InPixels({left, top - 16, wide - Pad - left, 16}));
    txtReplay->setGeometry(InPixels({left, top + 3, wide - Pad - left, 30}));
}

// What was left stands above what is begun.
void StartCard::ArrangeResume(double wide, double top) {
    const double left = Pad + PictureUnits + 12;
    resumeLine_->setGeometry(InPixels({left, top, wide - Pad - left, 20}));
    resumeb->setGeometry(InPixels({left, top + 24, std::max(resumeb->sizeHint().width() / Letters(), 100.0), 34}));
}

void StartCard::paintEvent(QPaintEvent* event) {
    Card::paintEvent(event);
    QPainter painter(this);
    PaintUsual(painter);
    const double wide = UsualWidth(*this);
    if (resumeb->isVisibleTo(this)) {
        const QSizeF size = resumeBoard_.deviceIndependentSize() / Letters();
        const QPointF top(Pad, resumeLine_->y() / Letters());
        painter.drawPixmap(QRectF(top, size), resumeBoard_, resumeBoard_.rect());
    }
    if (winner_ > 0) {
        DrawBlob(painter, {winner_, winner_, 0, true, false, 1}, QPointF(wide - Pad - 16, 28), 15);
        return;
    }
    const double pitch = std::min(52.0, (wide - 2.0 * Pad) / MaxClans);
    for (int clan = 1; clan <= MaxClans; ++clan) {
        const QPointF centre(Pad + pitch * (clan - 0.5), 66);
        DrawBlob(painter, {clan, clan, 0, false, false, 1}, centre, 21);
    }
}

}  // namespace plasmos
