// SPDX-License-Identifier: GPL-3.0-or-later
#include <QHelpEvent>
#include <QMouseEvent>
#include <QToolTip>
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

void PuddleView::SetCursor(int square) {
    cursor_ = square;
    update();
    TellFocus(*this);
}

void PuddleView::MoveCursor(int columns, int rows) {
    if (cursor_ == 0) {
        SetCursor(!offered_.empty() ? offered_.front() : 1);
        return;
    }
    const int column = std::clamp((cursor_ - 1) % state_->NumCols + columns, 0, state_->NumCols - 1);
    const int row = std::clamp((cursor_ - 1) / state_->NumCols + rows, 0, state_->NumRows - 1);
    SetCursor(row * state_->NumCols + column + 1);
}

int PuddleView::NextOffered(bool next) const {
    int found = 0;
    for (const int square : offered_) {
        const bool beyond = cursor_ == 0 || (next ? square > cursor_ : square < cursor_);
        if (beyond && (found == 0 || (next ? square < found : square > found))) {
            found = square;
        }
    }
    return found;
}

bool PuddleView::focusNextPrevChild(bool next) {
    const int square = hasFocus() ? NextOffered(next) : 0;
    if (square == 0) {
        return QWidget::focusNextPrevChild(next);
    }
    SetCursor(square);
    return true;
}

// Who comes by Tab finds the first offered square, who comes back the last. Where nothing is offered the keyboard comes
// here too when a button goes away that had it.
void PuddleView::focusInEvent(QFocusEvent* event) {
    QWidget::focusInEvent(event);
    const bool forward = event->reason() == Qt::TabFocusReason;
    if (forward || event->reason() == Qt::BacktabFocusReason) {
        const int kept = cursor_;
        cursor_ = 0;
        const int offered = NextOffered(forward);
        cursor_ = offered > 0 ? offered : kept;
    }
    update();
    TellFocus(*this);
}

void PuddleView::AnswerAt(int square) {
    if (square >= 1 && square <= state_->NumSquares && OnSquarePoint) {
        const QPoint middle = SquareMiddle(*state_, square).toPoint();
        OnSquarePoint(middle.x(), middle.y());
    }
}

bool PuddleView::event(QEvent* event) {
    if (event->type() != QEvent::ToolTip) {
        return QWidget::event(event);
    }
    const auto* help = static_cast<QHelpEvent*>(event);
    QToolTip::showText(help->globalPos(), TipAt(help->pos()), this);
    return true;
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
            if (!event->isAutoRepeat()) {
                AnswerAt(cursor_);
            }
            return;
        default: QWidget::keyPressEvent(event);
    }
}

void PuddleView::focusOutEvent(QFocusEvent* event) {
    update();
    QWidget::focusOutEvent(event);
}

}  // namespace plasmos
