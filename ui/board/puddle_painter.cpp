// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/board/puddle_painter.h"

#include <QPainter>
#include <QPainterPath>
#include <QRadialGradient>
#include <algorithm>
#include <cmath>

#include "model/game_state.h"
#include "ui/look/cube.h"
#include "ui/look/palette.h"
#include "ui/look/piece_layout.h"

namespace plasmos {

namespace {

constexpr double Gap = 14;
constexpr double Corner = 90;

QRectF SquareRect(const GameState& state, int square) {
    return QRectF(SquareCorner(state, square), QSizeF(SquareUnits, SquareUnits)).adjusted(Gap, Gap, -Gap, -Gap);
}

/// How food is stacked: where a square is small on the screen, one bigger cube stands for its colour.
struct Stacks {
    double Cube = 122;
    double Letters = 90;
    int High = 3;
};

Stacks StacksAt(double scale) {
    constexpr double SmallSquare = 112;
    return scale * SquareUnits < SmallSquare ? Stacks{146, 172, 1} : Stacks{};
}

Stacks StacksOf(const QPainter& painter) {
    return StacksAt(painter.worldTransform().m11());
}

/// Cubes of a stack; where there are more than it can show, the uppermost makes room for their count.
int ShownCubes(const Stacks& stacks, int pieces) {
    return pieces <= stacks.High ? pieces : std::max(stacks.High - 1, 1);
}

/// Left foot of a colour's stack.
QPointF StackFoot(const GameState& state, const Stacks& stacks, int square, int clan) {
    constexpr double Left = 62;
    const double most = stacks.High > 1 ? 150 : 185;
    const double room = (SquareUnits - 2 * Left - stacks.Cube) / std::max(state.NumPlayers - 1, 1);
    return SquareCorner(state, square) + QPointF(Left + std::min(most, room) * (clan - 1), SquareUnits - 52);
}

}  // namespace

void DrawWater(QPainter& painter, const QRectF& puddle) {
    QRadialGradient water(puddle.left() + puddle.width() * 0.45, puddle.top() + puddle.height() * 0.38,
                          std::max(puddle.width(), puddle.height()) * 0.8);
    water.setColorAt(0, Shade(Tone::WaterLight));
    water.setColorAt(0.55, Shade(Tone::WaterMiddle));
    water.setColorAt(1, Shade(Tone::WaterDeep));
    painter.setPen(Qt::NoPen);
    painter.setBrush(water);
    painter.drawRoundedRect(puddle, 130, 130);
    painter.setBrush(Qt::NoBrush);
    painter.save();
    QPainterPath edge;
    edge.addRoundedRect(puddle, 130, 130);
    painter.setClipPath(edge);
    const int waves = static_cast<int>(std::ceil((puddle.height() - 380) / 670));
    for (int wave = 0; wave < waves; ++wave) {
        const double y = puddle.top() + 380 + 670 * wave;
        const double x = puddle.left() + 240 + (wave * 977) % 1400;
        QPainterPath ripple(QPointF(x, y));
        for (int i = 0; i < 3; ++i) {
            const double from = x + 1000 * i;
            const double bend = i % 2 == 0 ? -120 : 120;
            ripple.quadTo(from + 500, y + bend, from + 1000, y);
        }
        painter.setPen(QPen(Shade(Tone::Ripple), 26, Qt::SolidLine, Qt::RoundCap));
        painter.drawPath(ripple);
    }
    painter.restore();
    painter.setPen(QPen(Shade(Tone::WaterEdge), 22));
    painter.drawRoundedRect(puddle.adjusted(11, 11, -11, -11), 122, 122);
}

void DrawGlass(const GameState& state, QPainter& painter, int square) {
    QLinearGradient glass(SquareRect(state, square).topLeft(), SquareRect(state, square).bottomRight());
    glass.setColorAt(0, Shade(Tone::Glass));
    glass.setColorAt(1, Shade(Tone::GlassFar));
    painter.setBrush(glass);
    painter.setPen(QPen(Shade(Tone::GlassEdge), 10));
    painter.drawRoundedRect(SquareRect(state, square), Corner, Corner);
}

void DrawStone(const GameState& state, QPainter& painter, int square) {
    const QPointF corner = SquareCorner(state, square);
    QPainterPath stone(corner + QPointF(170, 260));
    stone.cubicTo(corner + QPointF(330, 40), corner + QPointF(820, 60), corner + QPointF(1010, 190));
    stone.cubicTo(corner + QPointF(1180, 420), corner + QPointF(1170, 820), corner + QPointF(1020, 960));
    stone.cubicTo(corner + QPointF(800, 1130), corner + QPointF(420, 1120), corner + QPointF(220, 1000));
    stone.cubicTo(corner + QPointF(40, 820), corner + QPointF(60, 440), corner + QPointF(170, 260));
    painter.setPen(Qt::NoPen);
    painter.setBrush(Shade(Tone::StoneShadow));
    painter.drawPath(stone.translated(14, 34));
    painter.drawPath(stone.translated(8, 18));
    QLinearGradient grey(corner, corner + QPointF(760, 1200));
    grey.setColorAt(0, Shade(Tone::Stone));
    grey.setColorAt(1, Shade(Tone::StoneDark));
    painter.setBrush(grey);
    painter.setPen(QPen(Shade(Tone::StoneEdge), 14));
    painter.drawPath(stone);
    QPainterPath shine(corner + QPointF(270, 340));
    shine.quadTo(corner + QPointF(430, 190), corner + QPointF(680, 220));
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(Shade(Tone::StoneShine), 34, Qt::SolidLine, Qt::RoundCap));
    painter.drawPath(shine);
}

void DrawSquareNumber(const GameState& state, QPainter& painter, int square) {
    painter.setFont(DrawnFont(100, true));
    painter.setPen(Shade(Tone::SquareInk));
    const QRectF corner(SquareCorner(state, square) + QPointF(62, 46), QSizeF(300, 130));
    painter.drawText(corner, Qt::AlignLeft | Qt::AlignTop, QString::number(square));
}

void DrawFood(const GameState& state, QPainter& painter, int square) {
    const Stacks stacks = StacksOf(painter);
    for (int clan = 1; clan <= state.NumPlayers; ++clan) {
        const QPointF foot = StackFoot(state, stacks, square, clan);
        const int shown = ShownCubes(stacks, state.Food[square][clan]);
        if (shown == 0) {
            painter.setPen(QPen(Shade(Tone::NoFood), 12, Qt::SolidLine, Qt::RoundCap));
            painter.drawLine(foot + QPointF(24, -8), foot + QPointF(stacks.Cube - 24, -8));
        }
        for (int i = 0; i < shown; ++i) {
            const double top = foot.y() - stacks.Cube - (stacks.Cube + 6) * i;
            DrawCube(painter, clan, QRectF(foot.x(), top, stacks.Cube, stacks.Cube));
        }
    }
}

QRectF FoodRect(const GameState& state, int square, int clan, double scale) {
    const Stacks stacks = StacksAt(scale);
    const QPointF foot = StackFoot(state, stacks, square, clan);
    const int shown = std::clamp(state.Food[square][clan], 1, stacks.High);
    const double high = (stacks.Cube + 6) * shown;
    return {foot.x(), foot.y() - high, stacks.Cube, high};
}

void DrawFoodCounts(const GameState& state, QPainter& painter, int square) {
    const Stacks stacks = StacksOf(painter);
    for (int clan = 1; clan <= state.NumPlayers && !state.Blocked[square]; ++clan) {
        const int count = state.Food[square][clan];
        if (count <= stacks.High) {
            continue;
        }
        // Over the one cube of a small square the figure alone leaves room for larger letters.
        const QString text = (stacks.High > 1 ? QStringLiteral("×%1") : QStringLiteral("%1")).arg(count);
        constexpr double share = 0.75;  // of its height that a figure is wide
        const double room = stacks.Cube + 28;
        const double letters = std::min(stacks.Letters, room / (share * static_cast<double>(text.size())));
        const double wide = letters * share * static_cast<double>(text.size());
        const QPointF foot = StackFoot(state, stacks, square, clan);
        const double high = (stacks.Cube + 6) * ShownCubes(stacks, count);
        const QRectF tag(foot.x() + stacks.Cube / 2 - wide / 2, foot.y() - high - letters - 8, wide, letters + 2);
        painter.setPen(Qt::NoPen);
        painter.setBrush(Shade(Tone::CountGround));
        painter.drawRoundedRect(tag, letters * 0.4, letters * 0.4);
        painter.setFont(DrawnFont(letters, true));
        painter.setPen(Shade(Tone::CountInk));
        painter.drawText(tag, Qt::AlignCenter | Qt::TextDontClip, text);
    }
}

void DrawOffer(const GameState& state, QPainter& painter, int square, bool bright) {
    const QRectF rect = SquareRect(state, square);
    painter.setBrush(Shade(bright ? Tone::OfferBright : Tone::Offer));
    const double widths[] = {92, 66, 44};
    for (const double width : widths) {
        painter.setPen(QPen(Shade(bright ? Tone::OfferGlowBright : Tone::OfferGlow), width));
        painter.drawRoundedRect(rect, Corner, Corner);
        painter.setBrush(Qt::NoBrush);
    }
    painter.setPen(QPen(Shade(Tone::OfferLine), bright ? 58 : 48));
    painter.drawRoundedRect(rect, Corner, Corner);
    painter.setPen(QPen(Shade(Tone::OfferEdge), bright ? 38 : 28));
    painter.drawRoundedRect(rect, Corner, Corner);
}

void DrawSpokenOf(const GameState& state, QPainter& painter, int square) {
    const QRectF rect = SquareRect(state, square);
    painter.setBrush(Shade(Tone::SpokenOf));
    painter.setPen(QPen(Shade(Tone::SpokenOfEdge), 34));
    painter.drawRoundedRect(rect, Corner, Corner);
    painter.setBrush(Qt::NoBrush);
    QPen dashes(Shade(Tone::Accent), 20);
    dashes.setCapStyle(Qt::FlatCap);
    dashes.setDashPattern({4, 3});
    painter.setPen(dashes);
    painter.drawRoundedRect(rect, Corner, Corner);
}

void DrawHover(const GameState& state, QPainter& painter, int square) {
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(Shade(Tone::Hover), 16));
    painter.drawRoundedRect(SquareRect(state, square), Corner, Corner);
}

}  // namespace plasmos
