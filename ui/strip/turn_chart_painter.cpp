// SPDX-License-Identifier: GPL-3.0-or-later
//
// Where everything of a chart stands, and how it is drawn.

#include <QPainter>
#include <QPainterPath>
#include <algorithm>
#include <array>
#include <cmath>

#include "model/game_state.h"
#include "ui/look/dress.h"
#include "ui/look/palette.h"
#include "ui/strip/turn_chart.h"

namespace plasmos {

namespace {

constexpr double Above = 10;
constexpr double Below = 19;
constexpr double Left = 31;
constexpr double Right = 30;
constexpr double SignRadius = 7.5;
constexpr double SignsApart = 16.5;
constexpr double MarkRadius = 3.6;
/// Equal values of neighbouring clans are so far aside of each other.
constexpr double Aside = 2.2;
constexpr double Higher = 1.1;

QVector<qreal> DashesOf(int clan) {
    static const std::array<QVector<qreal>, MaxClans + 1> dashes = {
        QVector<qreal>{}, {}, {6, 2.5}, {2, 2}, {8, 2, 2, 2}, {3.5, 2.5}, {8, 2, 2, 2, 2, 2}};
    return dashes[clan >= 1 && clan <= MaxClans ? static_cast<std::size_t>(clan) : 0];
}

int StepFor(int range) {
    constexpr int most = 4;
    for (int power = 1;; power *= 10) {
        for (const int step : {1, 2, 5}) {
            if (range <= step * power * most) {
                return step * power;
            }
        }
    }
}

}  // namespace

int TurnChart::LeastHeight(int clans) {
    constexpr double least = 112;
    return Px(std::max(least, Above + Below + clans * SignsApart));
}

void TurnChart::MeasureValues() {
    least_ = 0;
    int most = 1;
    const auto measure = [&](const std::vector<int>& values) {
        for (const int value : values) {
            least_ = std::min(least_, value);
            most = std::max(most, value);
        }
    };
    measure(chart_.Level);
    for (const ChartLine& line : chart_.Lines) {
        measure(line.Values);
    }
    step_ = StepFor(most - least_);
    least_ = least_ < 0 ? -((step_ - 1 - least_) / step_ * step_) : 0;
    most_ = most;
}

QRectF TurnChart::Plot() const {
    return {Left, Above, UsualWidth(*this) - Left - Right, UsualHeight(*this) - Above - Below};
}

double TurnChart::Across(int index) const {
    const QRectF plot = Plot();
    const double column = plot.width() / std::max(Count(), 1);
    return plot.left() + column * (index + 0.5);
}

double TurnChart::Up(double value) const {
    const QRectF plot = Plot();
    return plot.bottom() - plot.height() * (value - least_) / (most_ - least_);
}

QPointF TurnChart::PointOf(const ChartLine& line, int index) const {
    const double middle = (static_cast<double>(chart_.Lines.size()) + 1) / 2;
    const double away = line.Clan - middle;
    return {Across(index) + away * Aside, Up(line.Values[static_cast<std::size_t>(index)]) + away * Higher};
}

QRectF TurnChart::ColumnOf(int index) const {
    const double column = Plot().width() / std::max(Count(), 1);
    return {Across(index) - column / 2, 0, column, UsualHeight(*this)};
}

QPoint TurnChart::PlaceOf(int index) const {
    return InPixels(ColumnOf(index)).center();
}

// The UV level comes last.
std::vector<double> TurnChart::EndHeights() const {
    std::vector<double> ends;
    if (Count() > 0) {
        for (const ChartLine& line : chart_.Lines) {
            ends.push_back(PointOf(line, Count() - 1).y());
        }
        if (!chart_.Level.empty()) {
            ends.push_back(Up(chart_.Level.back()));
        }
    }
    return MovedApart(ends, SignsApart, SignRadius + 3, UsualHeight(*this) - SignRadius - 3);
}

std::vector<QRect> TurnChart::EndPlaces() const {
    std::vector<QRect> places;
    for (const double height : EndHeights()) {
        const QPointF centre(UsualWidth(*this) - SignRadius - 4, height);
        places.push_back(InPixels({centre.x() - SignRadius, centre.y() - SignRadius, 2 * SignRadius, 2 * SignRadius}));
    }
    return places;
}

// What is looked at has a bright column, the chosen turn a line.
void TurnChart::DrawGround(QPainter& painter) const {
    const QRectF plot = Plot();
    const auto column = [&](int index) {
        return ColumnOf(index).adjusted(0, plot.top(), 0, plot.bottom() - UsualHeight(*this));
    };
    painter.setPen(Qt::NoPen);
    painter.setBrush(Shade(Tone::Highlight));
    for (const int index : {hover_, hasFocus() ? cursor_ : -1}) {
        if (index >= 0) {
            painter.drawRect(column(index));
        }
    }
    if (hasFocus() && cursor_ >= 0) {
        painter.setPen(QPen(Shade(Tone::Focus), 1.6));
        painter.setBrush(Qt::NoBrush);
        painter.drawRoundedRect(column(cursor_).adjusted(0.8, -2, -0.8, Below - 1), 3, 3);
    }
    if (chosen_ >= 0) {
        painter.setPen(QPen(Shade(Tone::Accent), 2.4));
        painter.drawLine(QPointF(Across(chosen_), 1), QPointF(Across(chosen_), plot.bottom() + 2));
    }
}

void TurnChart::DrawAxis(QPainter& painter) const {
    const QRectF plot = Plot();
    painter.setFont(DrawnFont(10));
    QColor grid = Shade(Tone::Faint);
    for (int value = least_; value <= most_; value += step_) {
        grid.setAlphaF(value == 0 ? 1.0F : 0.3F);
        painter.setPen(QPen(grid, 1));
        painter.drawLine(QPointF(plot.left(), Up(value)), QPointF(plot.right(), Up(value)));
        painter.setPen(Shade(Tone::Faint));
        painter.drawText(QRectF(0, Up(value) - 8, Left - 6, 16), Qt::AlignRight | Qt::AlignVCenter,
                         QString::number(value));
    }
    painter.drawText(QRectF(5, plot.bottom() + 3, Left, 15), Qt::AlignLeft | Qt::AlignVCenter, QStringLiteral("turn"));
    for (int index = 0; index < Count(); ++index) {
        const QRectF tag(Across(index) - 9, plot.bottom() + 3, 18, 15);
        if (index == chosen_) {
            painter.setPen(Qt::NoPen);
            painter.setBrush(Shade(Tone::Accent));
            painter.drawRoundedRect(tag, 5, 5);
        }
        painter.setPen(Shade(index == chosen_ ? Tone::OnAccent : Tone::Faint));
        painter.drawText(tag, Qt::AlignCenter, QString::number(chart_.Turns[static_cast<std::size_t>(index)]));
    }
}

// What lies above the level is in the light.
void TurnChart::DrawLevel(QPainter& painter) const {
    if (chart_.Level.empty()) {
        return;
    }
    const QRectF plot = Plot();
    QPainterPath steps(QPointF(plot.left(), Up(chart_.Level.front())));
    for (int index = 0; index < Count(); ++index) {
        const QRectF column = ColumnOf(index);
        const double level = Up(chart_.Level[static_cast<std::size_t>(index)]);
        steps.lineTo(column.left(), level);
        steps.lineTo(column.right(), level);
    }
    QPainterPath light = steps;
    light.lineTo(plot.topRight());
    light.lineTo(plot.topLeft());
    light.closeSubpath();
    QColor colour = Shade(Tone::LevelMiddle);
    colour.setAlphaF(0.28F);
    painter.fillPath(light, colour);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(Shade(Tone::Ink), 2.6, Qt::SolidLine, Qt::FlatCap, Qt::MiterJoin));
    painter.drawPath(steps);
}

void TurnChart::DrawLine(QPainter& painter, const ChartLine& line) const {
    const ClanShades& shades = ShadesOf(line.Clan);
    QPainterPath path(PointOf(line, 0));
    for (int index = 1; index < Count(); ++index) {
        path.lineTo(PointOf(line, index));
    }
    QPen pen(shades.Edge, 1.8, Qt::SolidLine, Qt::FlatCap, Qt::RoundJoin);
    if (const QVector<qreal> dashes = DashesOf(line.Clan); !dashes.isEmpty()) {
        pen.setDashPattern(dashes);
    }
    painter.setPen(pen);
    painter.setBrush(Qt::NoBrush);
    painter.drawPath(path);
    painter.setPen(QPen(shades.Edge, 0.9));
    painter.setBrush(shades.Body);
    for (int index = 0; index < Count(); ++index) {
        painter.drawPath(SignPath(line.Clan, PointOf(line, index), MarkRadius));
    }
}

void TurnChart::DrawEnds(QPainter& painter) const {
    const std::vector<double> ends = EndHeights();
    const double centre = UsualWidth(*this) - SignRadius - 4;
    for (std::size_t i = 0; i < ends.size(); ++i) {
        const bool level = i == chart_.Lines.size();
        const QPointF from = level ? QPointF(Plot().right(), Up(chart_.Level.back()))
                                   : PointOf(chart_.Lines[i], Count() - 1) + QPointF(MarkRadius, 0);
        const QColor colour = level ? Shade(Tone::Ink) : ShadesOf(chart_.Lines[i].Clan).Edge;
        painter.setPen(QPen(colour, 1));
        painter.drawLine(from, QPointF(centre - SignRadius - 1, ends[i]));
        if (level) {
            painter.setFont(DrawnFont(11, true));
            painter.setPen(Shade(Tone::Ink));
            painter.drawText(QRectF(centre - SignRadius - 1, ends[i] - 8, 2 * SignRadius + 4, 16), Qt::AlignCenter,
                             QStringLiteral("UV"));
        } else {
            DrawClanBadge(painter, chart_.Lines[i].Clan, QPointF(centre, ends[i]), SignRadius);
        }
    }
}

void TurnChart::paintEvent(QPaintEvent*) {
    if (Count() == 0) {
        return;
    }
    QPainter painter(this);
    PaintUsual(painter);
    painter.setRenderHint(QPainter::Antialiasing);
    DrawGround(painter);
    DrawAxis(painter);
    DrawLevel(painter);
    for (const ChartLine& line : chart_.Lines) {
        DrawLine(painter, line);
    }
    DrawEnds(painter);
    if (hasFocus()) {
        painter.setPen(QPen(Shade(Tone::Focus), 2));
        painter.setBrush(Qt::NoBrush);
        painter.drawRoundedRect(QRectF(1, 1, UsualWidth(*this) - 2, UsualHeight(*this) - 2), 6, 6);
    }
}

}  // namespace plasmos
