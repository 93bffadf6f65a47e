// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/board/score_track.h"

#include <QPainter>
#include <algorithm>
#include <array>
#include <cmath>

#include "model/game_state.h"
#include "ui/board/puddle_view.h"
#include "ui/look/palette.h"

namespace plasmos {

namespace {

constexpr int Spaces = 60;

/// Spaces along the top; as many along the bottom, the rest along the two sides.
int SpacesAcross(const GameState& state) {
    const int half = Spaces / 2;
    const int across =
        static_cast<int>(std::lround(static_cast<double>(half) * state.NumCols / (state.NumCols + state.NumRows)));
    return std::clamp(across, 4, half - 4);
}

int SpaceOf(int score) {
    return score < 1 ? 1 : (score - 1) % Spaces + 1;
}

}  // namespace

ScoreTrack::ScoreTrack(QWidget* parent, const GameState& state)
    : QWidget(parent), state_(&state), puddle_(new PuddleView(this, state)), clock_(*this) {
    setObjectName(QStringLiteral("ScoreTrack"));
    setAccessibleName(QStringLiteral("Score track"));
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

void ScoreTrack::ShowState(const GameState& state) {
    state_ = &state;
    clock_.Stop();
    puddle_->ShowState(state);
    BoardChanged();
}

void ScoreTrack::BoardChanged() {
    Arrange();
    puddle_->update();
    update();
}

void ScoreTrack::resizeEvent(QResizeEvent*) {
    Arrange();
}

void ScoreTrack::Arrange() {
    lane_ = std::clamp(std::min(width(), height()) / 30.0, 17.0, 34.0);
    const double margin = 2 * (lane_ + 9);
    const double square =
        std::floor(std::min((width() - margin) / state_->NumCols, (height() - margin) / state_->NumRows));
    const QSizeF puddle(std::max(square, 8.0) * state_->NumCols, std::max(square, 8.0) * state_->NumRows);
    const QPoint corner(static_cast<int>((width() - puddle.width()) / 2),
                        static_cast<int>((height() - puddle.height()) / 2));
    puddle_->setGeometry(QRect(corner, puddle.toSize()));
    const double rim = lane_ + 8;
    frame_ = QRectF(puddle_->geometry()).adjusted(-rim, -rim, rim, rim);
}

QRectF ScoreTrack::SpaceRect(int space) const {
    const int across = SpacesAcross(*state_);
    const int down = Spaces / 2 - across;
    const QRectF inner = frame_.adjusted(lane_ + 3, lane_ + 3, -lane_ - 3, -lane_ - 3);
    const double width = inner.width() / across;
    const double height = inner.height() / down;
    int place = std::clamp(space, 1, Spaces) - 1;
    QRectF rect;
    if (place < across) {
        rect = QRectF(inner.left() + width * place, frame_.top() + 2, width, lane_);
    } else if ((place -= across) < down) {
        rect = QRectF(frame_.right() - lane_ - 2, inner.top() + height * place, lane_, height);
    } else if ((place -= down) < across) {
        rect = QRectF(inner.right() - width * (place + 1), frame_.bottom() - lane_ - 2, width, lane_);
    } else {
        place -= across;
        rect = QRectF(frame_.left() + 2, inner.bottom() - height * (place + 1), lane_, height);
    }
    return rect.adjusted(1, 1, -1, -1);
}

void ScoreTrack::DrawSpaces(QPainter& painter) const {
    for (int space = 1; space <= Spaces; ++space) {
        const QRectF rect = SpaceRect(space);
        const bool goal = space == VictoryScore;
        painter.setPen(QPen(goal ? Shade(Tone::GoalEdge) : Shade(Tone::TrackLine), 1));
        painter.setBrush(goal ? Shade(Tone::Goal) : space % 2 == 1 ? Shade(Tone::TrackOdd) : Shade(Tone::Track));
        painter.drawRoundedRect(rect, 5, 5);
        const double room = std::min(rect.width(), rect.height());
        const bool named = goal || space % 5 == 0 || space == 1;
        painter.setFont(DrawnFont(std::clamp(room * (named ? 0.44 : 0.5), 8.0, 14.0), goal));
        painter.setPen(goal ? Shade(Tone::GoalInk) : Shade(Tone::TrackInk));
        painter.drawText(rect, Qt::AlignCenter, named ? QString::number(space) : QStringLiteral("·"));
    }
}

void ScoreTrack::Walk(int clan, int fromScore, int milliseconds) {
    walks_[static_cast<std::size_t>(clan)] = {fromScore, clock_.Begin(milliseconds)};
    update();
}

double ScoreTrack::SeenScore(int clan) const {
    const WalkOfMarker& walk = walks_[static_cast<std::size_t>(clan)];
    const int score = state_->Players[clan].Score;
    const double share = clock_.Share(walk.Time);
    return share < 1 ? walk.From + (score - walk.From) * share : score;
}

QPointF ScoreTrack::MarkerPlace(double score) const {
    const int before = std::max(static_cast<int>(std::floor(score)), 1);
    const QPointF from = SpaceRect(SpaceOf(before)).center();
    const QPointF to = SpaceRect(SpaceOf(before + 1)).center();
    return from + (to - from) * std::max(score - before, 0.0);
}

void ScoreTrack::DrawLap(QPainter& painter, int score, QPointF centre, double radius) const {
    const QRectF tag(centre.x() + radius * 0.25, centre.y() - radius * 1.3, radius * 1.9, radius * 0.95);
    painter.setBrush(Shade(Tone::Ink));
    painter.setPen(Qt::NoPen);
    painter.drawRoundedRect(tag, 3, 3);
    painter.setPen(Shade(Tone::Card));
    painter.setFont(DrawnFont(radius * 0.72, true));
    painter.drawText(tag, Qt::AlignCenter, QStringLiteral("+%1").arg((score - 1) / Spaces * Spaces));
}

void ScoreTrack::DrawMarkers(QPainter& painter) const {
    std::array<int, Spaces + 1> standing{};
    for (int clan = 1; clan <= state_->NumPlayers; ++clan) {
        const int score = state_->Players[clan].Score;
        if (score < 1) {
            continue;
        }
        const int space = SpaceOf(score);
        const QRectF rect = SpaceRect(space);
        const double radius = std::clamp(std::min(rect.width(), rect.height()) * 0.46, 6.0, 14.0);
        const double aside = radius * 0.8 * standing[static_cast<std::size_t>(space)]++;
        const QPointF centre = MarkerPlace(SeenScore(clan)) + QPointF(aside, aside * 0.3);
        painter.setPen(Qt::NoPen);
        painter.setBrush(Shade(Tone::Shadow));
        painter.drawEllipse(centre + QPointF(0, 1.8), radius + 0.6, radius + 0.6);
        DrawClanBadge(painter, clan, centre, radius);
        if (score > Spaces) {
            DrawLap(painter, score, centre, radius);
        }
    }
}

std::vector<int> ScoreTrack::PartsOf(int part) const {
    std::vector<int> clans;
    for (int clan = 1; part == 0 && clan <= state_->NumPlayers; ++clan) {
        clans.push_back(clan);
    }
    return clans;
}

HeardPart ScoreTrack::Hear(int part) const {
    if (part > state_->NumPlayers) {
        return {};
    }
    const int score = state_->Players[part].Score;
    const QString words = QStringLiteral("%1: score %2").arg(ToQt(state_->Players[part].Name.View())).arg(score);
    return {words, QAccessible::Indicator, SpaceRect(SpaceOf(score)).toRect()};
}

int ScoreTrack::PartAt(QPoint point) const {
    const std::vector<int> clans = PartsOf(0);
    const auto found =
        std::find_if(clans.begin(), clans.end(), [&](int clan) { return Hear(clan).Place.contains(point); });
    return found != clans.end() ? *found : 0;
}

void ScoreTrack::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(Shade(Tone::TrackEdge), 1));
    painter.setBrush(Shade(Tone::Track));
    painter.drawRoundedRect(frame_, 14, 14);
    DrawSpaces(painter);
    DrawMarkers(painter);
}

}  // namespace plasmos
