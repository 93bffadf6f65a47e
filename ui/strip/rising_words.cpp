// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/strip/rising_words.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QTimer>
#include <algorithm>
#include <cmath>

#include "ui/look/palette.h"

namespace plasmos {

namespace {

constexpr double Rising = 7;

}  // namespace

RisingWords::RisingWords(QWidget* parent) : QWidget(parent), clock_(*this) {
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setFocusPolicy(Qt::NoFocus);
    hide();
}

void RisingWords::Rise(const QString& words, QPointF from, Tone tone, int milliseconds) {
    if (milliseconds <= 0 || !parentWidget()->isVisible()) {
        return;
    }
    setGeometry(parentWidget()->rect());
    raise();
    show();
    const double line = QFontMetricsF(LookFont(12, true)).height() + 4;
    std::erase_if(words_, [this](const Words& one) { return clock_.IsOver(one.Time); });
    for (const Words& one : words_) {
        from.ry() += one.From == from ? line : 0;
    }
    words_.push_back({words, from, tone, clock_.Begin(milliseconds)});
}

void RisingWords::Stop() {
    words_.clear();
    clock_.Stop();
    hide();
}

void RisingWords::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QFont font = LookFont(12, true);
    const QFontMetricsF metrics(font);
    painter.setFont(font);
    for (const Words& one : words_) {
        const double share = clock_.Share(one.Time);
        const double wide = metrics.horizontalAdvance(one.Text) + 12;
        QRectF tag(one.From.x(), one.From.y() - Rising * share, wide, metrics.height() + 3);
        tag.moveLeft(std::clamp(tag.left(), 0.0, std::max(0.0, width() - wide)));
        tag.moveTop(std::clamp(tag.top(), 0.0, std::max(0.0, height() - tag.height())));
        painter.setOpacity(1 - 0.6 * share * share);
        painter.setPen(QPen(Shade(one.Ink), 1));
        painter.setBrush(Shade(Tone::Tip));
        painter.drawRoundedRect(tag, 7, 7);
        painter.setPen(Shade(one.Ink));
        painter.drawText(tag, Qt::AlignCenter, one.Text);
    }
    if (!clock_.Runs()) {
        words_.clear();
        QTimer::singleShot(0, this, [this] { setVisible(clock_.Runs()); });
    }
}

}  // namespace plasmos
