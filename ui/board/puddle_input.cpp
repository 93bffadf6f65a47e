// SPDX-License-Identifier: GPL-3.0-or-later
#include <QMouseEvent>
#include <algorithm>

#include "model/game_state.h"
#include "questions/ask.h"
#include "ui/board/puddle_view.h"
#include "ui/look/piece_layout.h"

namespace plasmos {

void PuddleView::mousePressEvent(QMouseEvent* event) {
    pressed_ = true;
    event->accept();
}

// The second press of a double click presses nothing.
void PuddleView::mouseDoubleClickEvent(QMouseEvent* event) {
    event->accept();
}

void PuddleView::mouseReleaseEvent(QMouseEvent* event) {
    const bool pressed = pressed_;
    pressed_ = false;
    if (pressed && rect().contains(event->position().toPoint()) && OnSquarePoint) {
        const QPoint units = UnitsAt(event->position());
        OnSquarePoint(units.x(), units.y());
    }
}

void PuddleView::mouseMoveEvent(QMouseEvent* event) {
    const QPoint units = UnitsAt(event->position());
    SetHover(SquareAt(*state_, units.x(), units.y()));
}

void PuddleView::leaveEvent(QEvent*) {
    SetHover(0);
}

void PuddleView::SetHover(int square) {
    if (square != hover_) {
        hover_ = square;
        update();
    }
}

void PuddleView::MoveCursor(int columns, int rows) {
    const int start = !offered_.empty() ? offered_.front() : 1;
    if (cursor_ == 0) {
        cursor_ = start;
    } else {
        const int column = std::clamp((cursor_ - 1) % state_->NumCols + columns, 0, state_->NumCols - 1);
        const int row = std::clamp((cursor_ - 1) / state_->NumCols + rows, 0, state_->NumRows - 1);
        cursor_ = row * state_->NumCols + column + 1;
    }
    update();
}

void PuddleView::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
        case Qt::Key_Left: MoveCursor(-1, 0); return;
        case Qt::Key_Right: MoveCursor(1, 0); return;
        case Qt::Key_Up: MoveCursor(0, -1); return;
        case Qt::Key_Down: MoveCursor(0, 1); return;
        case Qt::Key_Return:
        case Qt::Key_Enter:
        case Qt::Key_Space:
            if (cursor_ > 0 && !event->isAutoRepeat() && OnSquarePoint) {
                const QPoint middle = SquareMiddle(*state_, cursor_).toPoint();
                OnSquarePoint(middle.x(), middle.y());
            }
            return;
        default: QWidget::keyPressEvent(event);
    }
}

void PuddleView::focusOutEvent(QFocusEvent* event) {
    cursor_ = 0;
    update();
    QWidget::focusOutEvent(event);
}

}  // namespace plasmos
