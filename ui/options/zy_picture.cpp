// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/options/zy_picture.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <algorithm>

#include "ui/look/palette.h"
#include "ui/options/options_model.h"

namespace plasmos {

ZyPicture::ZyPicture(QWidget* parent, OptionsModel& model) : QWidget(parent), model_(model) {
    setObjectName(QStringLiteral("optZyPict"));
    setToolTip(
        QStringLiteral("Left button or Space: place or remove a stone.\n"
                       "Right button or Shift and Space: pick a stone, then its new square.\n"
                       "The arrow keys go from square to square."));
    setFocusPolicy(Qt::StrongFocus);
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
        painter.setBrush(Shade(Tone::PlanStone));
        const bool picked = index++ == model_.Picked();
        painter.setPen(QPen(Shade(picked ? Tone::PlanPicked : Tone::PlanEdge), picked ? 3 : 1.5));
        painter.drawRoundedRect(stone, 9, 9);
    }
    if (hasFocus()) {
        painter.setBrush(Qt::NoBrush);
        painter.setPen(QPen(Shade(Tone::Ink), 1.5, Qt::DashLine));
        painter.drawRect(column_ * SquarePixels + 2, row_ * SquarePixels + 2, SquarePixels - 4, SquarePixels - 4);
    }
}

void ZyPicture::mouseReleaseEvent(QMouseEvent* event) {
    const bool right = event->button() == Qt::RightButton;
    if (!rect().contains(event->position().toPoint()) || (!right && event->button() != Qt::LeftButton) || !OnClick) {
        return;
    }
    const double units = static_cast<double>(OptionsModel::Unit) / SquarePixels;
    column_ = static_cast<int>(event->position().x()) / SquarePixels;
    row_ = static_cast<int>(event->position().y()) / SquarePixels;
    OnClick(static_cast<int>(event->position().x() * units), static_cast<int>(event->position().y() * units),
            right ? 2 : 1);
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
