// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/strip/environment_view.h"

#include <QHelpEvent>
#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>
#include <QToolTip>
#include <algorithm>
#include <cmath>

#include "model/dice.h"
#include "model/game_state.h"
#include "rules/environment.h"
#include "ui/look/dress.h"
#include "ui/look/palette.h"
#include "ui/look/plain_tip.h"

namespace plasmos {

namespace {

constexpr int Pad = 14;

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
      HeardPlace(QAccessible::Grouping),
      turnlab(MakeLabel(this, QStringLiteral("turnlab"), 19, true, Tone::Ink)),
      driftlab(MakeFitLabel(this, QStringLiteral("driftlab"), 14)),
      UVlab(MakeFitLabel(this, QStringLiteral("UVlab"), 20)),
      state_(&state),
      clock_(*this) {
    setAccessibleName(QStringLiteral("Turn, drift and UV level"));
    Clear();
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
    const bool begun = state_->Turn > 0;
    turnlab->setText(begun ? ToQt(Concat("Turn ", std::min(state_->Turn, LastTurn))) : QString());
    turnlab->setAccessibleName(QStringLiteral("%1 of %2").arg(turnlab->text()).arg(LastTurn));
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
    turnlab->setAccessibleName(QStringLiteral("No turn yet"));
    driftlab->setAccessibleName(QStringLiteral("No drift yet"));
    UVlab->setAccessibleName(QStringLiteral("No UV level yet"));
    shownUV_ = beforeUV_ = 0;
    clock_.Stop();
}

void EnvironmentView::ShowDrift() {
    driftlab->SetText(ToQt(DirectionText(*state_, state_->Drift)));
    driftlab->setAccessibleName(QStringLiteral("Drift ") + driftlab->text());
    update();
}

void EnvironmentView::ShowUV() {
    UVlab->SetText(QString::number(state_->UVLevel));
    UVlab->setAccessibleName(QStringLiteral("UV level ") + UVlab->text());
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
    if (driftlab->text().isEmpty()) {
        return;
    }
    // A card that is turned shows its edge first, then its face.
    const QPointF centre(DriftLeft() + 17, 51);
    painter.save();
    painter.translate(centre);
    painter.scale(std::max(clock_.Share(turning_), 0.02), 1);
    DrawDriftArrow(painter, state_->Drift, {0, 0}, 14);
    painter.restore();
}

void EnvironmentView::paintEvent(QPaintEvent* event) {
    Card::paintEvent(event);
    QPainter painter(this);
    PaintUsual(painter);
    if (const double share = clock_.Share(turning_); share < 1) {
        QColor glow = Shade(Tone::Focus);
        glow.setAlphaF(static_cast<float>(1 - share));
        painter.setPen(QPen(glow, 4));
        painter.drawRoundedRect(QRectF(0, 0, UsualWidth(*this), UsualHeight(*this)).adjusted(3, 3, -3, -3), 9, 9);
    }
    DrawTurns(painter);
    DrawArrow(painter);
    DrawLevels(painter);
}

}  // namespace plasmos
