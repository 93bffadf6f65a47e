// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/strip/environment_view.h"

#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>
#include <algorithm>
#include <cmath>

#include "model/dice.h"
#include "model/game_state.h"
#include "rules/environment.h"
#include "ui/look/dress.h"
#include "ui/look/palette.h"

namespace plasmos {

namespace {

constexpr int Pad = 14;
constexpr double LowestLevel = 0;
constexpr double HighestLevel = 20;

constexpr double MarkRadius = 5.2;

double OnBar(const QRectF& bar, double level) {
    return bar.left() + bar.width() * (std::clamp(level, LowestLevel, HighestLevel) - LowestLevel) / HighestLevel;
}

/// The first place near a point where a mark covers no other: three below each other, then aside, first
/// towards the middle.
QPointF FreePlace(const std::vector<QPointF>& taken, QPointF point, double middle) {
    constexpr double step = 10;
    const double inward = point.x() > middle ? -step : step;
    for (const double aside : {0.0, inward, -inward, 2 * inward}) {
        for (const double below : {0.0, step, 2 * step}) {
            const QPointF place = point + QPointF(aside, below);
            const bool covered = std::any_of(taken.begin(), taken.end(), [place](QPointF other) {
                return std::hypot(place.x() - other.x(), place.y() - other.y()) < step - 0.5;
            });
            if (!covered) {
                return place;
            }
        }
    }
    return point;
}

FitLabel* MakeFitLabel(QWidget* parent, const QString& name, int pixels) {
    auto* label = new FitLabel(parent, pixels, 8);
    label->setObjectName(name);
    WearLetters(*label, pixels, true);
    label->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    WearTone(*label, Tone::Ink);
    return label;
}

void DrawOneArrow(QPainter& painter, QPointF centre, double radius, double degrees) {
    painter.save();
    painter.translate(centre);
    painter.rotate(degrees);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(Shade(Tone::Accent), radius * 0.3, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawLine(QPointF(-radius, 0), QPointF(radius * 0.9, 0));
    QPainterPath head(QPointF(radius * 0.15, -radius * 0.68));
    head.lineTo(radius, 0);
    head.lineTo(radius * 0.15, radius * 0.68);
    painter.drawPath(head);
    painter.restore();
}

}  // namespace

std::vector<QPointF> LevelMarks(const GameState& state, const QRectF& bar) {
    std::vector<QPointF> marks;
    for (int clan = 1; clan <= state.NumPlayers; ++clan) {
        const double level = OnBar(bar, state.Players[clan].MutationLevel);
        marks.push_back(FreePlace(marks, QPointF(level, bar.bottom() + 2 + MarkRadius), bar.center().x()));
    }
    return marks;
}

void DrawDriftArrow(QPainter& painter, int drift, QPointF centre, double radius) {
    if (drift == 0) {
        painter.setBrush(Shade(Tone::Accent));
        painter.setPen(Qt::NoPen);
        painter.drawEllipse(centre, radius * 0.42, radius * 0.42);
        painter.setBrush(Qt::NoBrush);
        painter.setPen(QPen(Shade(Tone::Accent), radius * 0.18));
        painter.drawEllipse(centre, radius * 0.85, radius * 0.85);
    } else if (drift == WhereItWants) {
        for (const double degrees : {0.0, 90.0, 180.0, 270.0}) {
            const double turn = degrees * 3.14159265 / 180;
            const QPointF out(std::cos(turn), std::sin(turn));
            DrawOneArrow(painter, centre + out * radius * 0.55, radius * 0.42, degrees);
        }
    } else {
        const double degrees = drift == 1 ? 0 : drift == -1 ? 180 : drift > 0 ? 90 : 270;
        DrawOneArrow(painter, centre, radius, degrees);
    }
}

EnvironmentView::EnvironmentView(QWidget* parent, const GameState& state)
    : Card(parent),
      turnlab(MakeLabel(this, QStringLiteral("turnlab"), 19, true, Tone::Ink)),
      driftlab(MakeFitLabel(this, QStringLiteral("driftlab"), 14)),
      UVlab(MakeFitLabel(this, QStringLiteral("UVlab"), 20)),
      state_(&state) {
    driftlab->setToolTip(QStringLiteral("The current carries every amoeba this way"));
    UVlab->setToolTip(QStringLiteral("Ultraviolet light: clans with more mutation must adapt"));
    driftlab->setContextMenuPolicy(Qt::PreventContextMenu);
    UVlab->setContextMenuPolicy(Qt::PreventContextMenu);
}

void EnvironmentView::ShowState(const GameState& state) {
    state_ = &state;
    Clear();
    if (state.Turn > 0) {
        ShowTurn();
        ShowPhase();
    }
    if (state.UVLevel > 0) {
        ShowDrift();
        ShowUV();
    }
}

void EnvironmentView::ShowTurn() {
    turnlab->setText(ToQt(Concat("Turn ", std::min(state_->Turn, LastTurn))));
    update();
}

void EnvironmentView::ShowPhase() {
    phaseTold_ = true;
    update();
}

void EnvironmentView::Clear() {
    turnlab->clear();
    phaseTold_ = false;
    driftlab->clear();
    UVlab->clear();
    update();
}

void EnvironmentView::ShowDrift() {
    driftlab->SetText(ToQt(DirectionText(*state_, state_->Drift)));
    update();
}

void EnvironmentView::ShowUV() {
    UVlab->SetText(QString::number(state_->UVLevel));
    update();
}

double EnvironmentView::DriftLeft() const {
    return UsualWidth(*this) * 0.41;
}

double EnvironmentView::UvLeft() const {
    return UsualWidth(*this) * 0.69;
}

QSize EnvironmentView::sizeHint() const {
    return {Px(440), Px(88)};
}

void EnvironmentView::Redress() {
    const double left = Pad + 2;
    turnlab->setGeometry(InPixels({left, 8, DriftLeft() - left - 4, 28}));
    const double drift = DriftLeft() + 42;
    driftlab->setGeometry(InPixels({drift, 28, UvLeft() - drift - 4, 46}));
    UVlab->setGeometry(InPixels({UvLeft(), 26, 36, 30}));
}

void EnvironmentView::DrawTurns(QPainter& painter) const {
    const double step = std::min(16.5, (DriftLeft() - Pad - 14) / LastTurn);
    for (int turn = 1; turn <= LastTurn; ++turn) {
        const QPointF centre(Pad + 8 + step * (turn - 1), 48);
        painter.setPen(QPen(Shade(Tone::Accent), 1.4));
        painter.setBrush(Shade(turn <= state_->Turn ? Tone::Accent : Tone::Card));
        painter.drawEllipse(centre, step * 0.36, step * 0.36);
    }
    if (state_->NumPlayers > 0) {
        painter.setFont(DrawnFont(11));
        painter.setPen(Shade(Tone::Faint));
        QStringList words;
        if (phaseTold_ && !state_->Phase.Empty()) {
            words << ToQt(state_->Phase);
        }
        words << QStringLiteral("replay %1").arg(ToQt(ReplayText(state_->ReplayNo)));
        painter.drawText(QPointF(Pad + 3, 76), words.join(QStringLiteral(" · ")));
    }
}

void EnvironmentView::DrawArrow(QPainter& painter) const {
    painter.setFont(DrawnFont(11));
    painter.setPen(Shade(Tone::Faint));
    painter.drawText(QPointF(DriftLeft(), 22), QStringLiteral("drift"));
    painter.drawText(QPointF(UvLeft(), 22), QStringLiteral("UV"));
    if (!driftlab->text().isEmpty()) {
        DrawDriftArrow(painter, state_->Drift, QPointF(DriftLeft() + 17, 51), 14);
    }
}

void EnvironmentView::DrawLevels(QPainter& painter) const {
    const QRectF bar(UvLeft() + 38, 36, UsualWidth(*this) - UvLeft() - 38 - Pad, 11);
    QLinearGradient levels(bar.topLeft(), bar.topRight());
    levels.setColorAt(0, Shade(Tone::LevelLow));
    levels.setColorAt(0.5, Shade(Tone::LevelMiddle));
    levels.setColorAt(1, Shade(Tone::LevelHigh));
    painter.setPen(Qt::NoPen);
    painter.setBrush(levels);
    painter.drawRoundedRect(bar, 5, 5);
    if (state_->NumPlayers == 0) {
        return;
    }
    const double uv = OnBar(bar, state_->UVLevel);
    QPainterPath pointer(QPointF(uv, bar.top() - 1));
    pointer.lineTo(uv - 6, bar.top() - 10);
    pointer.lineTo(uv + 6, bar.top() - 10);
    pointer.closeSubpath();
    painter.setBrush(Shade(Tone::Ink));
    painter.drawPath(pointer);
    painter.drawRect(QRectF(uv - 0.8, bar.top(), 1.6, bar.height()));
    const std::vector<QPointF> marks = LevelMarks(*state_, bar);
    for (int clan = 1; clan <= state_->NumPlayers; ++clan) {
        DrawClanBadge(painter, clan, marks[static_cast<std::size_t>(clan - 1)], MarkRadius);
    }
}

void EnvironmentView::paintEvent(QPaintEvent* event) {
    Card::paintEvent(event);
    QPainter painter(this);
    PaintUsual(painter);
    DrawTurns(painter);
    DrawArrow(painter);
    DrawLevels(painter);
}

}  // namespace plasmos
