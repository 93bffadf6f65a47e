// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/strip/turn_chart.h"

#include <QHelpEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QToolTip>
#include <algorithm>
#include <cstddef>
#include <numeric>
#include <utility>

#include "ui/look/dress.h"
#include "ui/look/page_keys.h"
#include "ui/look/plain_tip.h"

namespace plasmos {

namespace {

/// Neighbours that stand as close as they may; where the first of the whole line would stand for their sake.
struct Heap {
    double First = 0;
    int Count = 0;

    Heap With(const Heap& other) const {
        const int count = Count + other.Count;
        return {(First * Count + other.First * other.Count) / count, count};
    }
};

}  // namespace

std::vector<double> MovedApart(const std::vector<double>& wanted, double apart, double low, double high) {
    std::vector<std::size_t> order(wanted.size());
    std::iota(order.begin(), order.end(), std::size_t{0});
    std::stable_sort(order.begin(), order.end(),
                     [&](std::size_t one, std::size_t other) { return wanted[one] < wanted[other]; });
    std::vector<Heap> heaps;
    for (std::size_t i = 0; i < order.size(); ++i) {
        heaps.push_back({wanted[order[i]] - apart * static_cast<double>(i), 1});
        while (heaps.size() > 1 && heaps.back().First < heaps[heaps.size() - 2].First) {
            const Heap last = heaps.back();
            heaps.pop_back();
            heaps.back() = heaps.back().With(last);
        }
    }
    std::vector<double> places = wanted;
    const double most = std::max(low, high - apart * (static_cast<double>(wanted.size()) - 1));
    std::size_t next = 0;
    for (const Heap& heap : heaps) {
        for (int i = 0; i < heap.Count; ++i, ++next) {
            places[order[next]] = std::clamp(heap.First, low, most) + apart * static_cast<double>(next);
        }
    }
    return places;
}

TurnChart::TurnChart(QWidget* parent) : QWidget(parent) {
    setObjectName(QStringLiteral("turnchart"));
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Expanding);
}

void TurnChart::Show(Chart chart) {
    chart_ = std::move(chart);
    for (int* place : {&hover_, &cursor_, &chosen_}) {
        *place = std::min(*place, Count() - 1);
    }
    MeasureValues();
    update();
}

void TurnChart::Forget() {
    chosen_ = -1;
    cursor_ = -1;
    update();
}

int TurnChart::Looked() const {
    if (hover_ >= 0) {
        return hover_;
    }
    if (hasFocus() && cursor_ >= 0) {
        return cursor_;
    }
    return chosen_ >= 0 ? chosen_ : Count() - 1;
}

QString TurnChart::Words() const {
    const int looked = Looked();
    return looked >= 0 && looked < chart_.Words.size() ? chart_.Words[looked] : QString();
}

void TurnChart::Look(int& place, int index) {
    if (place != index) {
        place = index;
        update();
        if (OnLook) {
            OnLook();
        }
    }
}

void TurnChart::MoveTo(int index) {
    if (Count() > 0) {
        Look(cursor_, std::clamp(index, 0, Count() - 1));
        TellFocus(*this);
    }
}

void TurnChart::Choose(int index) {
    if (index < 0 || index >= Count()) {
        return;
    }
    cursor_ = index;
    Look(chosen_, index);
    if (OnChosen) {
        OnChosen(chart_.Turns[static_cast<std::size_t>(index)]);
    }
}

std::vector<int> TurnChart::PartsOf(int part) const {
    std::vector<int> parts;
    for (int index = 0; part == 0 && index < Count(); ++index) {
        parts.push_back(index + 1);
    }
    return parts;
}

HeardPart TurnChart::Hear(int part) const {
    if (part < 1 || part > Count()) {
        return {};
    }
    return {chart_.Words[part - 1], QAccessible::ListItem, InPixels(ColumnOf(part - 1)), true, true};
}

int TurnChart::PartAt(QPoint point) const {
    for (const int part : PartsOf(0)) {
        if (InPixels(ColumnOf(part - 1)).contains(point)) {
            return part;
        }
    }
    return 0;
}

bool TurnChart::event(QEvent* event) {
    if (KeepsPageKeys(event, [] { return true; })) {
        return true;
    }
    if (event->type() != QEvent::ToolTip) {
        return QWidget::event(event);
    }
    const auto* help = static_cast<QHelpEvent*>(event);
    const int part = PartAt(help->pos());
    QToolTip::showText(help->globalPos(), part > 0 ? PlainTip(chart_.Words[part - 1]) : QString(), this);
    return true;
}

void TurnChart::mousePressEvent(QMouseEvent* event) {
    pressed_ = event->button() == Qt::LeftButton;
    event->accept();
}

// The second press of a double click presses nothing.
void TurnChart::mouseDoubleClickEvent(QMouseEvent* event) {
    event->accept();
}

void TurnChart::mouseReleaseEvent(QMouseEvent* event) {
    if (std::exchange(pressed_, false)) {
        Choose(PartAt(event->position().toPoint()) - 1);
    }
}

void TurnChart::mouseMoveEvent(QMouseEvent* event) {
    Look(hover_, PartAt(event->position().toPoint()) - 1);
}

void TurnChart::leaveEvent(QEvent*) {
    Look(hover_, -1);
}

void TurnChart::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
        case Qt::Key_Left: MoveTo(cursor_ - 1); return;
        case Qt::Key_Right: MoveTo(cursor_ + 1); return;
        case Qt::Key_Home: MoveTo(0); return;
        case Qt::Key_End: MoveTo(Count() - 1); return;
        case Qt::Key_Return:
        case Qt::Key_Enter:
        case Qt::Key_Space:
            if (!event->isAutoRepeat()) {
                Choose(cursor_);
            }
            return;
        default: QWidget::keyPressEvent(event);
    }
}

// The keyboard comes to the turn that is chosen, or to the last.
void TurnChart::focusInEvent(QFocusEvent* event) {
    QWidget::focusInEvent(event);
    const bool byKeys = event->reason() == Qt::TabFocusReason || event->reason() == Qt::BacktabFocusReason;
    if (cursor_ < 0 && byKeys) {
        cursor_ = chosen_ >= 0 ? chosen_ : Count() - 1;
    }
    update();
    TellFocus(*this);
    if (OnLook) {
        OnLook();
    }
}

void TurnChart::focusOutEvent(QFocusEvent* event) {
    QWidget::focusOutEvent(event);
    update();
    if (OnLook) {
        OnLook();
    }
}

}  // namespace plasmos
