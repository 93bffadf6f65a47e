// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/board/puddle_view.h"

#include <QPainter>
#include <algorithm>
#include <cmath>

#include "model/game_state.h"
#include "ui/board/motion_painter.h"
#include "ui/board/puddle_painter.h"
#include "ui/look/blob_shape.h"
#include "ui/look/palette.h"
#include "ui/look/piece_layout.h"

namespace plasmos {

namespace {

QRectF PuddleRect(const GameState& state) {
    return {0, 0, static_cast<double>(state.NumCols) * SquareUnits, static_cast<double>(state.NumRows) * SquareUnits};
}

BlobLook LookOf(const GameState& state, int clan, int amoeba) {
    return {clan, amoeba, state.Amoeba[amoeba][clan].Damage, false, false, 1};
}

}  // namespace

PuddleView::PuddleView(QWidget* parent, const GameState& state)
    : QWidget(parent), state_(&state), motions_(*this), seen_() {
    setObjectName(QStringLiteral("Picture1"));
    setMouseTracking(true);
    setFocusPolicy(Qt::StrongFocus);
    setAccessibleName(QStringLiteral("The Puddle"));
    SetAsked(QString());
}

void PuddleView::ShowState(const GameState& state) {
    state_ = &state;
    cursor_ = cursor_ > state.NumSquares ? 0 : cursor_;
    seen_ = {};
    Settle();
}

void PuddleView::ShowGridlines(bool on) {
    gridlines_ = on;
    update();
}

void PuddleView::ShowNumbers(bool on) {
    numbers_ = on;
    update();
}

void PuddleView::SetAsked(const QString& question) {
    const QString keys = QStringLiteral("Arrow keys go from square to square; Enter answers.");
    setAccessibleDescription(question.isEmpty() ? keys : question + QLatin1Char('\n') + keys);
}

void PuddleView::SetOffered(const std::vector<int>& squares) {
    offered_ = squares;
    pressed_ = false;
    setCursor(squares.empty() ? Qt::ArrowCursor : Qt::PointingHandCursor);
    update();
}

void PuddleView::SetSpokenOf(int square) {
    spokenOf_ = square;
    update();
}

void PuddleView::OutlinePiece(int clan, int amoeba, bool on) {
    outlined_ = on ? PieceId{clan, amoeba} : PieceId{};
    if (clan == 0) {
        motions_.Unlink();
    }
    update();
}

double PuddleView::Scale() const {
    return static_cast<double>(width()) / (state_->NumCols * SquareUnits);
}

QPoint PuddleView::UnitsAt(QPointF point) const {
    const double across = static_cast<double>(state_->NumCols) * SquareUnits / std::max(width(), 1);
    const double down = static_cast<double>(state_->NumRows) * SquareUnits / std::max(height(), 1);
    return {static_cast<int>(std::floor(point.x() * across)), static_cast<int>(std::floor(point.y() * down))};
}

QPointF PuddleView::PointAt(QPointF units) const {
    return {units.x() * width() / (state_->NumCols * SquareUnits),
            units.y() * height() / (state_->NumRows * SquareUnits)};
}

bool PuddleView::Offers(int square) const {
    return std::find(offered_.begin(), offered_.end(), square) != offered_.end();
}

void PuddleView::DrawBackground() {
    QString key = QStringLiteral("%1x%2x%3 %4x%5 %6%7:")
                      .arg(width())
                      .arg(height())
                      .arg(devicePixelRatioF())
                      .arg(state_->NumRows)
                      .arg(state_->NumCols)
                      .arg(gridlines_ ? 1 : 0)
                      .arg(static_cast<int>(CurrentScheme()));
    for (int square = 1; square <= state_->NumSquares; ++square) {
        key += QLatin1Char(state_->Blocked[square] ? '1' : '0');
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
    DrawWater(painter, PuddleRect(*state_));
    for (int square = 1; square <= state_->NumSquares; ++square) {
        if (state_->Blocked[square]) {
            DrawStone(*state_, painter, square);
        } else if (gridlines_) {
            DrawGlass(*state_, painter, square);
        }
    }
}

void PuddleView::DrawSquares(QPainter& painter) const {
    for (int square = 1; square <= state_->NumSquares; ++square) {
        const bool offered = Offers(square);
        if (offered) {
            DrawOffer(*state_, painter, square, square == hover_ || (square == cursor_ && hasFocus()));
        } else if (square == hover_ && !state_->Blocked[square]) {
            DrawHover(*state_, painter, square);
        }
        if (square == spokenOf_) {
            DrawSpokenOf(*state_, painter, square);
        }
        if (numbers_) {
            DrawSquareNumber(*state_, painter, square);
        }
        if (square == cursor_) {
            DrawCursor(painter);
        }
        if (!state_->Blocked[square]) {
            DrawFood(*state_, painter, square);
        }
    }
}

// Before the first game one amoeba of every clan waits in the water.
void PuddleView::DrawWaiting(QPainter& painter) const {
    std::vector<int> free;
    for (int square = 1; square <= state_->NumSquares; ++square) {
        if (!state_->Blocked[square]) {
            free.push_back(square);
        }
    }
    for (int clan = 1; clan <= MaxClans; ++clan) {
        const auto place = (static_cast<std::size_t>(clan) * 2 - 1) * free.size() / (std::size_t{2} * MaxClans);
        const QPointF corner = SquareCorner(*state_, free[place]);
        const double aside = clan % 2 == 0 ? 480 : 720;
        DrawBlob(painter, {clan, clan, 0, false, false, 1}, corner + QPointF(aside, 600), 330);
    }
}

void PuddleView::DrawPiece(QPainter& painter, PieceId piece, bool outlined) {
    const QRectF marker = MarkerOf(*state_, piece.Clan, piece.Amoeba);
    if (marker.isEmpty()) {
        return;
    }
    seen_[static_cast<std::size_t>(piece.Clan)][static_cast<std::size_t>(piece.Amoeba)] = marker;
    if (!motions_.Carries(piece)) {
        BlobLook blob = LookOf(*state_, piece.Clan, piece.Amoeba);
        blob.Outlined = outlined;
        DrawBlob(painter, blob, marker.center(), marker.width() / 2);
    }
}

// The outlined piece lies above the others.
void PuddleView::DrawPieces(QPainter& painter) {
    if (state_->NumPlayers == 0) {
        DrawWaiting(painter);
    }
    for (int clan = 1; clan <= state_->NumPlayers; ++clan) {
        for (int amoeba = 1; amoeba <= state_->MaxAmoeba; ++amoeba) {
            if (outlined_ != PieceId{clan, amoeba}) {
                DrawPiece(painter, {clan, amoeba}, false);
            }
        }
    }
    if (outlined_.Clan > 0) {
        DrawPiece(painter, outlined_, true);
    }
}

// Inside the edge of an offered square and below food and pieces: all of them are seen.
void PuddleView::DrawCursor(QPainter& painter) const {
    if (hasFocus()) {
        constexpr double Inset = 80;
        constexpr double Corner = 60;
        const QRectF square(SquareCorner(*state_, cursor_), QSizeF(SquareUnits, SquareUnits));
        DrawDoubleFrame(painter, square.adjusted(Inset, Inset, -Inset, -Inset), Corner);
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
    for (int square = 1; square <= state_->NumSquares; ++square) {
        DrawFoodCounts(*state_, painter, square);
    }
    motions_.Draw(painter, *state_, outlined_);
}

}  // namespace plasmos
