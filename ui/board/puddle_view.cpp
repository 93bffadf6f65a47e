// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/board/puddle_view.h"

#include <QPainter>
#include <algorithm>
#include <cmath>

#include "model/game_state.h"
#include "ui/board/puddle_painter.h"
#include "ui/look/blob_shape.h"
#include "ui/look/palette.h"
#include "ui/look/piece_layout.h"

namespace plasmos {

namespace {

constexpr int FrameMilliseconds = 16;

QRectF PuddleRect() {
    return {0, 0, static_cast<double>(game.NumCols) * SquareUnits, static_cast<double>(game.NumRows) * SquareUnits};
}

BlobLook LookOf(int clan, int amoeba) {
    return {clan, amoeba, game.Amoeba[amoeba][clan].Damage, false, false, 1};
}

}  // namespace

PuddleView::PuddleView(QWidget* parent) : QWidget(parent) {
    setObjectName(QStringLiteral("Picture1"));
    setMouseTracking(true);
    setFocusPolicy(Qt::StrongFocus);
    setAccessibleName(QStringLiteral("The Puddle"));
    motionTimer_.setInterval(FrameMilliseconds);
    connect(&motionTimer_, &QTimer::timeout, this, [this] { Tick(); });
}

void PuddleView::ShowGridlines(bool on) {
    gridlines_ = on;
    update();
}

void PuddleView::ShowNumbers(bool on) {
    numbers_ = on;
    update();
}

void PuddleView::SetOffered(const std::vector<int>& squares) {
    offered_ = squares;
    cursor_ = 0;
    pressed_ = false;
    setCursor(squares.empty() ? Qt::ArrowCursor : Qt::PointingHandCursor);
    update();
}

void PuddleView::SetSpokenOf(int square) {
    spokenOf_ = square;
    update();
}

void PuddleView::OutlinePiece(int clan, int amoeba, bool on) {
    outlinedClan_ = on ? clan : 0;
    outlinedAmoeba_ = on ? amoeba : 0;
    update();
}

void PuddleView::Glide(int clan, int amoeba, int fromSquare, int milliseconds) {
    const QRectF to = MarkerOf(clan, amoeba);
    if (to.isEmpty() || fromSquare < 1 || milliseconds <= 0 || !isVisible()) {
        update();
        return;
    }
    const QPointF shift = SquareCorner(fromSquare) - SquareCorner(game.Amoeba[amoeba][clan].Square);
    motions_.push_back({clan, amoeba, game.Amoeba[amoeba][clan].Damage, false, to.translated(shift), milliseconds, {}});
    motions_.back().Clock.start();
    motionTimer_.start();
    update();
}

void PuddleView::FadeAway(int clan, int amoeba, int square, int milliseconds) {
    if (square < 1 || milliseconds <= 0 || !isVisible()) {
        update();
        return;
    }
    constexpr double Radius = 200;
    const QPointF centre = SquareCorner(square) + SpotCentre(amoeba * 3, square, Radius);
    const QRectF from(centre - QPointF(Radius, Radius), QSizeF(2 * Radius, 2 * Radius));
    motions_.push_back({clan, amoeba, game.Amoeba[amoeba][clan].Damage, true, from, milliseconds, {}});
    motions_.back().Clock.start();
    motionTimer_.start();
    update();
}

void PuddleView::Settle() {
    motions_.clear();
    motionTimer_.stop();
    update();
}

void PuddleView::Tick() {
    std::erase_if(motions_, [](const Motion& motion) { return motion.Clock.elapsed() >= motion.Milliseconds; });
    if (motions_.empty()) {
        motionTimer_.stop();
    }
    update();
}

double PuddleView::Scale() const {
    return static_cast<double>(width()) / (game.NumCols * SquareUnits);
}

QPoint PuddleView::UnitsAt(QPointF point) const {
    const double across = static_cast<double>(game.NumCols) * SquareUnits / std::max(width(), 1);
    const double down = static_cast<double>(game.NumRows) * SquareUnits / std::max(height(), 1);
    return {static_cast<int>(std::floor(point.x() * across)), static_cast<int>(std::floor(point.y() * down))};
}

QPointF PuddleView::PointAt(QPointF units) const {
    return {units.x() * width() / (game.NumCols * SquareUnits), units.y() * height() / (game.NumRows * SquareUnits)};
}

bool PuddleView::Offers(int square) const {
    return std::find(offered_.begin(), offered_.end(), square) != offered_.end();
}

bool PuddleView::Moves(int clan, int amoeba) const {
    return std::any_of(motions_.begin(), motions_.end(), [clan, amoeba](const Motion& motion) {
        return !motion.Dying && motion.Clan == clan && motion.Amoeba == amoeba;
    });
}

void PuddleView::DrawBackground() {
    QString key = QStringLiteral("%1x%2x%3 %4x%5 %6:")
                      .arg(width())
                      .arg(height())
                      .arg(devicePixelRatioF())
                      .arg(game.NumRows)
                      .arg(game.NumCols)
                      .arg(gridlines_ ? 1 : 0);
    for (int square = 1; square <= game.NumSquares; ++square) {
        key += QLatin1Char(game.Blocked[square] ? '1' : '0');
    }
    if (key == backgroundKey_) {
        return;
    }
    backgroundKey_ = key;
    background_ = QPixmap(size() * devicePixelRatioF());
    background_.setDevicePixelRatio(devicePixelRatioF());
    background_.fill(Qt::transparent);
    QPainter painter(&background_);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(Scale(), Scale());
    DrawWater(painter, PuddleRect());
    for (int square = 1; square <= game.NumSquares; ++square) {
        if (game.Blocked[square]) {
            DrawStone(painter, square);
        } else if (gridlines_) {
            DrawGlass(painter, square);
        }
    }
}

void PuddleView::DrawSquares(QPainter& painter) const {
    for (int square = 1; square <= game.NumSquares; ++square) {
        const bool offered = Offers(square);
        if (offered) {
            DrawOffer(painter, square, square == hover_ || square == cursor_);
        } else if (square == cursor_ || (square == hover_ && !game.Blocked[square])) {
            DrawHover(painter, square);
        }
        if (square == spokenOf_) {
            DrawSpokenOf(painter, square);
        }
        if (numbers_) {
            DrawSquareNumber(painter, square);
        }
        if (!game.Blocked[square]) {
            DrawFood(painter, square);
        }
    }
}

// Before the first game one amoeba of every clan waits in the water.
void PuddleView::DrawWaiting(QPainter& painter) const {
    std::vector<int> free;
    for (int square = 1; square <= game.NumSquares; ++square) {
        if (!game.Blocked[square]) {
            free.push_back(square);
        }
    }
    for (int clan = 1; clan <= MaxClans; ++clan) {
        const auto place = (static_cast<std::size_t>(clan) * 2 - 1) * free.size() / (std::size_t{2} * MaxClans);
        const QPointF corner = SquareCorner(free[place]);
        const double aside = clan % 2 == 0 ? 480 : 720;
        DrawBlob(painter, {clan, clan, 0, false, false, 1}, corner + QPointF(aside, 600), 330);
    }
}

void PuddleView::DrawPieces(QPainter& painter) const {
    if (game.NumPlayers == 0) {
        DrawWaiting(painter);
    }
    for (int clan = 1; clan <= game.NumPlayers; ++clan) {
        for (int amoeba = 1; amoeba <= game.MaxAmoeba; ++amoeba) {
            const QRectF marker = MarkerOf(clan, amoeba);
            const bool outlined = clan == outlinedClan_ && amoeba == outlinedAmoeba_;
            if (!marker.isEmpty() && !outlined && !Moves(clan, amoeba)) {
                DrawBlob(painter, LookOf(clan, amoeba), marker.center(), marker.width() / 2);
            }
        }
    }
    if (outlinedClan_ > 0 && !Moves(outlinedClan_, outlinedAmoeba_)) {
        const QRectF marker = MarkerOf(outlinedClan_, outlinedAmoeba_);
        if (!marker.isEmpty()) {
            BlobLook blob = LookOf(outlinedClan_, outlinedAmoeba_);
            blob.Outlined = true;
            DrawBlob(painter, blob, marker.center(), marker.width() / 2);
        }
    }
    DrawMotions(painter);
}

void PuddleView::DrawMotions(QPainter& painter) const {
    for (const Motion& motion : motions_) {
        const double share = std::min(1.0, static_cast<double>(motion.Clock.elapsed()) / motion.Milliseconds);
        const double eased = share * share * (3 - 2 * share);
        BlobLook blob{motion.Clan, motion.Amoeba, motion.Damage, false, false, 1};
        if (motion.Dying) {
            blob.Opacity = 1 - eased;
            DrawBlob(painter, blob, motion.From.center(), motion.From.width() / 2 * (1 - 0.6 * eased));
            continue;
        }
        const QRectF to = MarkerOf(motion.Clan, motion.Amoeba);
        if (!to.isEmpty()) {
            blob.Outlined = motion.Clan == outlinedClan_ && motion.Amoeba == outlinedAmoeba_;
            const QPointF centre = motion.From.center() + (to.center() - motion.From.center()) * eased;
            DrawBlob(painter, blob, centre, to.width() / 2);
        }
    }
}

void PuddleView::paintEvent(QPaintEvent*) {
    DrawBackground();
    QPainter painter(this);
    painter.drawPixmap(0, 0, background_);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(Scale(), Scale());
    DrawSquares(painter);
    DrawPieces(painter);
    for (int square = 1; square <= game.NumSquares; ++square) {
        DrawFoodCounts(painter, square);
    }
}

}  // namespace plasmos
