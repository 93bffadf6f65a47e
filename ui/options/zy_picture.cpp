// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/options/zy_picture.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <algorithm>
#include <utility>

#include "ui/look/palette.h"
#include "ui/options/options_model.h"

namespace plasmos {

namespace {

/// Column and row of a point, from 0.
QPoint SquareUnder(QPoint place) {
    return {place.x() / ZyPicture::SquarePixels, place.y() / ZyPicture::SquarePixels};
}

}  // namespace

ZyPicture::ZyPicture(QWidget* parent, OptionsModel& model) : QWidget(parent), model_(model) {
    setObjectName(QStringLiteral("optZyPict"));
    setToolTip(
        QStringLiteral("Left button or Space: place or remove a stone; dragged with it a stone moves.\n"
                       "Right button or Shift and Space: pick a stone, then its new square.\n"
                       "The arrow keys go from square to square."));
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
    setAccessibleName(QStringLiteral("The board and its blocks"));
    setAccessibleDescription(toolTip());
    Follow();
}

void ZyPicture::Follow() {
    setFixedSize(model_.Cols() * SquarePixels, model_.Rows() * SquarePixels);
    column_ = std::clamp(column_, 0, model_.Cols() - 1);
    row_ = std::clamp(row_, 0, model_.Rows() - 1);
    update();
}

void ZyPicture::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillRect(rect(), Shade(Tone::PlanWater));
    painter.setPen(QPen(Shade(Tone::PlanLine), 1));
    for (int col = 0; col <= model_.Cols(); ++col) {
        painter.drawLine(col * SquarePixels, 0, col * SquarePixels, height());
    }
    for (int row = 0; row <= model_.Rows(); ++row) {
        painter.drawLine(0, row * SquarePixels, width(), row * SquarePixels);
    }
    const double scale = static_cast<double>(SquarePixels) / OptionsModel::Unit;
    int index = 0;
    for (const OptionsModel::Marker& marker : model_.Markers()) {
        const QRectF stone(marker.Left * scale + 4, marker.Top * scale + 4, SquarePixels - 8, SquarePixels - 8);
        DrawStone(painter, stone, index++ == model_.Picked());
    }
    if (held_.x() >= 0 && SquareUnder(carried_) != SquareUnder(held_) && rect().contains(carried_)) {
        const QPoint corner = SquareUnder(carried_) * SquarePixels;
        painter.setOpacity(0.6);
        DrawStone(painter, QRectF(corner.x() + 4, corner.y() + 4, SquarePixels - 8, SquarePixels - 8), true);
        painter.setOpacity(1);
    }
    if (hasFocus()) {
        painter.setBrush(Qt::NoBrush);
        painter.setPen(QPen(Shade(Tone::Ink), 1.5, Qt::DashLine));
        painter.drawRect(column_ * SquarePixels + 2, row_ * SquarePixels + 2, SquarePixels - 4, SquarePixels - 4);
    }
}

// It lies on the board with a shadow, and has something to take it by.
void ZyPicture::DrawStone(QPainter& painter, const QRectF& stone, bool picked) const {
    QColor shadow = Shade(Tone::PlanEdge);
    shadow.setAlphaF(0.35F);
    painter.setPen(Qt::NoPen);
    painter.setBrush(shadow);
    painter.drawRoundedRect(stone.translated(2, 2.5), 9, 9);
    painter.setBrush(Shade(Tone::PlanStone));
    painter.setPen(QPen(Shade(picked ? Tone::PlanPicked : Tone::PlanEdge), picked ? 3 : 1.5));
    painter.drawRoundedRect(stone, 9, 9);
    painter.setPen(Qt::NoPen);
    painter.setBrush(Shade(Tone::PlanEdge));
    for (const double right : {-3.5, 3.5}) {
        for (const double below : {-6.0, 0.0, 6.0}) {
            painter.drawEllipse(stone.center() + QPointF(right, below), 1.6, 1.6);
        }
    }
}

bool ZyPicture::IsBlock(QPoint place) const {
    const QPoint corner = SquareUnder(place) * OptionsModel::Unit;
    return rect().contains(place) && model_.MarkerAt(corner.x(), corner.y()) > 0;
}

void ZyPicture::ShowHand(QPoint place) {
    setCursor(held_.x() >= 0 ? Qt::ClosedHandCursor : IsBlock(place) ? Qt::OpenHandCursor : Qt::ArrowCursor);
    update();
}

void ZyPicture::Click(QPoint place, int button) {
    column_ = SquareUnder(place).x();
    row_ = SquareUnder(place).y();
    constexpr double units = static_cast<double>(OptionsModel::Unit) / SquarePixels;
    OnClick(static_cast<int>(place.x() * units), static_cast<int>(place.y() * units), button);
}

void ZyPicture::mousePressEvent(QMouseEvent* event) {
    const QPoint place = event->position().toPoint();
    const bool takes = event->button() == Qt::LeftButton && IsBlock(place) && model_.Picked() < 0;
    held_ = takes ? place : QPoint(-1, -1);
    carried_ = place;
    ShowHand(place);
}

void ZyPicture::mouseMoveEvent(QMouseEvent* event) {
    carried_ = event->position().toPoint();
    ShowHand(carried_);
}

// A block that is dragged moves as one that is picked and put down elsewhere.
void ZyPicture::mouseReleaseEvent(QMouseEvent* event) {
    const QPoint taken = std::exchange(held_, QPoint(-1, -1));
    const QPoint place = event->position().toPoint();
    const bool right = event->button() == Qt::RightButton;
    if (rect().contains(place) && (right || event->button() == Qt::LeftButton) && OnClick) {
        const bool dragged = taken.x() >= 0 && SquareUnder(taken) != SquareUnder(place);
        if (dragged) {
            Click(taken, 2);
        }
        Click(place, right || dragged ? 2 : 1);
    }
    ShowHand(place);
}

void ZyPicture::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
        case Qt::Key_Left: --column_; break;
        case Qt::Key_Right: ++column_; break;
        case Qt::Key_Up: --row_; break;
        case Qt::Key_Down: ++row_; break;
        case Qt::Key_Space:
            if (OnClick && !event->isAutoRepeat()) {
                const bool right = (event->modifiers() & Qt::ShiftModifier) != 0;
                OnClick(column_ * OptionsModel::Unit, row_ * OptionsModel::Unit, right ? 2 : 1);
            }
            break;
        default: QWidget::keyPressEvent(event); return;
    }
    Follow();
}

}  // namespace plasmos
