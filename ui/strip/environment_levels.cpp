// SPDX-License-Identifier: GPL-3.0-or-later
//
// The bar of UV levels with the clans' marks, and what is seen when a card is turned.

#include <QHelpEvent>
#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>
#include <QToolTip>
#include <algorithm>
#include <cmath>

#include "model/game_state.h"
#include "ui/look/dress.h"
#include "ui/look/palette.h"
#include "ui/look/plain_tip.h"
#include "ui/strip/environment_view.h"

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

}  // namespace

std::vector<QPointF> LevelMarks(const GameState& state, const QRectF& bar) {
    std::vector<QPointF> marks;
    for (int clan = 1; clan <= state.NumPlayers; ++clan) {
        const double level = OnBar(bar, state.Players[clan].MutationLevel);
        marks.push_back(FreePlace(marks, QPointF(level, bar.bottom() + 2 + MarkRadius), bar.center().x()));
    }
    return marks;
}

void EnvironmentView::TurnCard(int milliseconds) {
    beforeUV_ = shownUV_ > 0 ? shownUV_ : state_->UVLevel;
    shownUV_ = state_->UVLevel;
    turning_ = clock_.Begin(milliseconds);
    update();
}

QRectF EnvironmentView::Bar() const {
    return {UvLeft() + 38, 36, UsualWidth(*this) - UvLeft() - 38 - Pad, 11};
}

void EnvironmentView::DrawPointer(QPainter& painter, const QRectF& bar) const {
    const double share = clock_.Share(turning_);
    const double level = share < 1 ? beforeUV_ + (state_->UVLevel - beforeUV_) * share : state_->UVLevel;
    const double uv = OnBar(bar, level);
    QPainterPath pointer(QPointF(uv, bar.top() - 1));
    pointer.lineTo(uv - 6, bar.top() - 10);
    pointer.lineTo(uv + 6, bar.top() - 10);
    pointer.closeSubpath();
    painter.setBrush(Shade(Tone::Ink));
    painter.drawPath(pointer);
    painter.drawRect(QRectF(uv - 0.8, bar.top(), 1.6, bar.height()));
}

void EnvironmentView::DrawLevels(QPainter& painter) const {
    const QRectF bar = Bar();
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
    DrawPointer(painter, bar);
    const std::vector<QPointF> marks = LevelMarks(*state_, bar);
    for (int clan = 1; clan <= state_->NumPlayers; ++clan) {
        DrawClanBadge(painter, clan, marks[static_cast<std::size_t>(clan - 1)], MarkRadius);
    }
}

QString EnvironmentView::TipAt(QPointF point) const {
    const std::vector<QPointF> marks = LevelMarks(*state_, Bar());
    for (int clan = 1; clan <= state_->NumPlayers; ++clan) {
        const QPointF apart = marks[static_cast<std::size_t>(clan - 1)] - point;
        if (std::hypot(apart.x(), apart.y()) <= MarkRadius + 1) {
            return QStringLiteral("%1: mutation level %2")
                .arg(ToQt(state_->Players[clan].Name.View()))
                .arg(state_->Players[clan].MutationLevel);
        }
    }
    return {};
}

bool EnvironmentView::event(QEvent* event) {
    if (event->type() != QEvent::ToolTip) {
        return Card::event(event);
    }
    const auto* help = static_cast<QHelpEvent*>(event);
    QToolTip::showText(help->globalPos(), PlainTip(TipAt(QPointF(help->pos()) / Letters())), this);
    return true;
}

}  // namespace plasmos
