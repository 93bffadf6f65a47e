// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/look/scroll_body.h"

#include <QEvent>
#include <QLayout>
#include <QResizeEvent>
#include <QScrollBar>
#include <algorithm>

namespace plasmos {

namespace {

constexpr int FewLines = 110;
constexpr int LeastOfAll = 40;

}  // namespace

ScrollBody::ScrollBody(QWidget* parent) : QScrollArea(parent) {
    setFrameShape(QFrame::NoFrame);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setWidgetResizable(true);
    verticalScrollBar()->setContextMenuPolicy(Qt::NoContextMenu);  // its menu would wait in a loop of its own
    setFocusPolicy(Qt::NoFocus);
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Expanding);
    viewport()->setAutoFillBackground(false);
    setWidget(new QWidget(this));
    widget()->setAutoFillBackground(false);
}

int ScrollBody::HeightAt(int width) const {
    const QLayout* layout = widget()->layout();
    if (layout == nullptr) {
        return 0;
    }
    const int wrapped = layout->hasHeightForWidth() ? layout->totalHeightForWidth(width) : 0;
    return std::max(wrapped, layout->totalMinimumSize().height());
}

int ScrollBody::LeastHeightAt(int width) const {
    return std::min(HeightAt(width), FewLines);
}

QSize ScrollBody::sizeHint() const {
    const int wide = widget()->layout() != nullptr ? widget()->layout()->totalSizeHint().width() : 0;
    return {wide, HeightAt(std::max(width(), 1))};
}

QSize ScrollBody::minimumSizeHint() const {
    return {40, std::min(HeightAt(std::max(width(), 1)), LeastOfAll)};
}

void ScrollBody::ShowBarIfNeeded() {
    const bool needed = HeightAt(width()) > height();
    setVerticalScrollBarPolicy(needed ? Qt::ScrollBarAlwaysOn : Qt::ScrollBarAlwaysOff);
}

bool ScrollBody::event(QEvent* event) {
    if (event->type() == QEvent::Resize) {
        ShowBarIfNeeded();
        const auto* resize = static_cast<QResizeEvent*>(event);
        if (resize->oldSize().width() != resize->size().width()) {
            updateGeometry();
        }
    }
    return QScrollArea::event(event);
}

bool ScrollBody::eventFilter(QObject* watched, QEvent* event) {
    const bool done = QScrollArea::eventFilter(watched, event);
    if (watched == widget() && event->type() == QEvent::LayoutRequest) {
        ShowBarIfNeeded();
        updateGeometry();
    }
    return done;
}

}  // namespace plasmos
