// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/window/look_bar.h"

#include <QHelpEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QToolTip>
#include <algorithm>
#include <cmath>

#include "model/game_state.h"
#include "ui/look/card.h"
#include "ui/look/dress.h"
#include "ui/look/palette.h"

namespace plasmos {

namespace {

constexpr int BarHeight = 26;
constexpr int RowHeight = 40;
constexpr int PhasesOfTurn = 6;
/// Places in the row: the setup, then every phase of every turn.
constexpr int Places = 1 + PhasesOfTurn * LastTurn;
constexpr std::string_view Phases[] = {"Movement", "Environment", "New genes", "Division", "Aggression", "Scoring"};

int PlaceIn(const GameRecorder::Chapter& chapter) {
    const auto* phase = std::find(std::begin(Phases), std::end(Phases), chapter.Phase.View());
    if (chapter.Turn == 0 || phase == std::end(Phases)) {
        return 0;
    }
    return 1 + (chapter.Turn - 1) * PhasesOfTurn + static_cast<int>(phase - std::begin(Phases));
}

}  // namespace

TurnSlider::TurnSlider(QWidget* parent) : QAbstractSlider(parent) {
    setObjectName(QStringLiteral("turnbar"));
    setOrientation(Qt::Horizontal);
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
    setPageStep(1);
    setAccessibleName(QStringLiteral("Turns and phases"));
    ShowChapters({});
}

void TurnSlider::ShowChapters(const std::vector<GameRecorder::Chapter>& chapters) {
    chapters_ = chapters;
    setRange(0, static_cast<int>(chapters_.size()));
    update();
}

QString TurnSlider::NameOf(int chapter) const {
    if (chapter < 0 || chapter >= static_cast<int>(chapters_.size())) {
        return QStringLiteral("Now");
    }
    const auto& what = chapters_[static_cast<std::size_t>(chapter)];
    if (what.Turn == 0) {
        return QStringLiteral("Before the first turn");
    }
    return QStringLiteral("Turn %1, %2").arg(std::min(what.Turn, LastTurn)).arg(ToQt(what.Phase.View()));
}

double TurnSlider::PlaceOf(int chapter) const {
    const int last = static_cast<int>(chapters_.size());
    const int place = chapter < last ? PlaceIn(chapters_[static_cast<std::size_t>(chapter)])
                                     : (last == 0 ? 0 : PlaceIn(chapters_.back()) + 1);
    return (place + 0.5) * width() / (Places + 1);
}

int TurnSlider::ChapterAt(double x) const {
    int nearest = maximum();
    for (int chapter = 0; chapter < maximum(); ++chapter) {
        if (std::abs(PlaceOf(chapter) - x) < std::abs(PlaceOf(nearest) - x)) {
            nearest = chapter;
        }
    }
    return nearest;
}

void TurnSlider::DrawTurns(QPainter& painter) const {
    const double pitch = static_cast<double>(width()) / (Places + 1);
    painter.setFont(LookFont(10));
    for (int turn = 1; turn <= LastTurn; ++turn) {
        const QRectF cell(pitch * (1 + (turn - 1) * PhasesOfTurn), 2, pitch * PhasesOfTurn - 2, height() - 12.0);
        const bool played = !chapters_.empty() && chapters_.back().Turn >= turn;
        painter.setPen(Shade(Tone::CardEdge));
        painter.setBrush(Shade(played ? Tone::Card : Tone::FieldDisabled));
        painter.drawRoundedRect(cell, 3, 3);
        painter.setPen(Shade(played ? Tone::Ink : Tone::Faint));
        painter.drawText(cell, Qt::AlignCenter, QString::number(turn));
    }
}

void TurnSlider::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    DrawTurns(painter);
    const double line = height() - 6.0;
    painter.setPen(Qt::NoPen);
    painter.setBrush(Shade(Tone::Faint));
    for (int chapter = 0; chapter < maximum(); ++chapter) {
        painter.drawEllipse(QPointF(PlaceOf(chapter), line), 1.5, 1.5);
    }
    if (maximum() > 0) {
        painter.setBrush(Shade(Tone::Accent));
        painter.drawEllipse(QPointF(PlaceOf(value()), line), 4.5, 4.5);
    }
    if (hasFocus()) {
        painter.setPen(QPen(Shade(Tone::Focus), 2));
        painter.setBrush(Qt::NoBrush);
        painter.drawRoundedRect(QRectF(rect()).adjusted(1, 1, -1, -1), 4, 4);
    }
}

void TurnSlider::mousePressEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton && maximum() > 0) {
        setValue(ChapterAt(event->position().x()));
    }
}

void TurnSlider::mouseMoveEvent(QMouseEvent* event) {
    if ((event->buttons() & Qt::LeftButton) != 0 && maximum() > 0) {
        setValue(ChapterAt(event->position().x()));
    }
}

bool TurnSlider::event(QEvent* event) {
    if (event->type() == QEvent::ToolTip) {
        const auto* help = static_cast<QHelpEvent*>(event);
        QToolTip::showText(help->globalPos(), maximum() > 0 ? NameOf(ChapterAt(help->pos().x())) : QString(), this);
        return true;
    }
    return QAbstractSlider::event(event);
}

void TurnSlider::sliderChange(SliderChange change) {
    if (change == SliderValueChange) {
        setAccessibleDescription(NameOf(value()));
    }
    QAbstractSlider::sliderChange(change);
    update();
}

LookBar::LookBar(QWidget* parent)
    : QWidget(parent),
      Slider(new TurnSlider(this)),
      goonb(new QPushButton(QStringLiteral("Go on from here"), this)),
      nowb(new QPushButton(QStringLiteral("Back to now"), this)),
      past_(MakeLabel(this, QStringLiteral("pastlab"), 13, true, Tone::Ink)) {
    goonb->setObjectName(QStringLiteral("goonb"));
    goonb->setToolTip(
        QStringLiteral("Takes back all that came after this. Again (Ctrl+Shift+Z) brings it back until something else "
                       "is answered, and "
                       "the game as it is now stays among the recent games."));
    nowb->setObjectName(QStringLiteral("nowb"));
    nowb->setProperty("main", true);
    nowb->setShortcut(Qt::Key_Escape);
    for (QPushButton* button : {goonb, nowb}) {
        button->setAutoDefault(true);
    }
    ShowPast({});
}

void LookBar::ShowPast(const QString& what) {
    past_->setText(what);
    for (QWidget* part : std::initializer_list<QWidget*>{past_, goonb, nowb}) {
        part->setVisible(!what.isEmpty());
    }
    Arrange();
}

int LookBar::Height() const {
    return Px(past_->text().isEmpty() ? BarHeight : BarHeight + RowHeight);
}

void LookBar::resizeEvent(QResizeEvent*) {
    Arrange();
}

void LookBar::changeEvent(QEvent* event) {
    if (event->type() == QEvent::StyleChange) {
        Arrange();
    }
    QWidget::changeEvent(event);
}

void LookBar::Arrange() {
    Slider->setGeometry(0, height() - Px(BarHeight), width(), Px(BarHeight));  // it stays under the pointer
    const int top = 4;
    const int high = Px(RowHeight) - 6;
    int right = width();
    for (QPushButton* button : {nowb, goonb}) {
        const int wide = button->sizeHint().width();
        right -= wide;
        button->setGeometry(right, top, wide, high);
        right -= 8;
    }
    past_->setGeometry(4, top, std::max(right - 4, 0), high);
}

}  // namespace plasmos
