// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/look/card.h"

#include <QFontMetrics>
#include <QPainter>
#include <QTextLayout>
#include <cmath>

#include "ui/look/dress.h"
#include "ui/look/palette.h"

namespace plasmos {

void PillLabel::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(Shade(Tone::Shadow), 1));
    painter.setBrush(palette().color(QPalette::Window));
    painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), height() / 2.6, height() / 2.6);
    painter.setPen(palette().color(QPalette::WindowText));
    painter.setFont(font());
    constexpr int margin = 5;
    painter.drawText(rect(), Qt::AlignCenter, fontMetrics().elidedText(text(), Qt::ElideRight, width() - 2 * margin));
}

void Card::SetEdge(int clan) {
    clan_ = clan;
    update();
}

void Card::changeEvent(QEvent* event) {
    if (event->type() == QEvent::StyleChange) {
        Redress();
        update();
    }
    QWidget::changeEvent(event);
}

void Card::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(clan_ > 0 ? ShadesOf(clan_).Edge : Shade(clan_ == 0 ? Tone::CardEdge : Tone::Accent), 1.2));
    painter.setBrush(Shade(Tone::Card));
    painter.drawRoundedRect(QRectF(rect()).adjusted(1, 1, -1, -1), 10, 10);
}

FitLabel::FitLabel(QWidget* parent, int largest, int smallest)
    : QLabel(parent), largest_(largest), smallest_(smallest) {
    setWordWrap(true);
    setTextFormat(Qt::PlainText);
    setAlignment(Qt::AlignLeft | Qt::AlignTop);
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Ignored);
    setFont(LookFont(largest));
}

void FitLabel::changeEvent(QEvent* event) {
    if (event->type() == QEvent::StyleChange) {
        Fit();
    }
    QLabel::changeEvent(event);
}

void FitLabel::SetText(const QString& text) {
    setText(text);
    Fit();
}

int FitLabel::HeightAt(int width) const {
    return HeightWith(largest_, width);
}

int FitLabel::LeastHeightAt(int width) const {
    return HeightWith(smallest_, width);
}

int FitLabel::HeightWith(int pixels, int width) const {
    const QFontMetrics metrics(LookFont(pixels, font().bold()));
    const int inner = std::max(width - 2 * margin(), 10);
    return metrics.boundingRect(QRect(0, 0, inner, 10000), Qt::TextWordWrap, text()).height() + 2 * margin() + 2;
}

void FitLabel::resizeEvent(QResizeEvent* event) {
    QLabel::resizeEvent(event);
    Fit();
}

void FitLabel::Fit() {
    for (int pixels = largest_; pixels >= smallest_; --pixels) {
        const QFont candidate = LookFont(pixels, font().bold());
        const QSize inner = size() - QSize(2 * margin(), 2 * margin());
        const QRect room(0, 0, std::max(inner.width(), 10), 10000);
        const QRect needed = QFontMetrics(candidate).boundingRect(room, Qt::TextWordWrap, text());
        if (pixels == smallest_ || (needed.height() <= inner.height() && needed.width() <= inner.width())) {
            setFont(candidate);
            return;
        }
    }
}

SpeechLabel::SpeechLabel(QWidget* parent, int largest, int smallest) : FitLabel(parent, largest, smallest) {
    setMargin(Around);
}

void SpeechLabel::paintEvent(QPaintEvent* event) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(palette().color(QPalette::Window));
    painter.drawRoundedRect(rect(), 8, 8);
    painter.end();
    FitLabel::paintEvent(event);
}

WrapLabel::WrapLabel(QWidget* parent) : QLabel(parent) {
    setTextFormat(Qt::PlainText);
    setWordWrap(true);
}

double WrapLabel::LayOut(QTextLayout& layout, double width) const {
    QString lines = text();
    layout.setText(lines.replace(QLatin1Char('\n'), QChar::LineSeparator));
    layout.setFont(font());
    QTextOption option;
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    layout.setTextOption(option);
    double y = 0;
    layout.beginLayout();
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        line.setLineWidth(std::max(width, 20.0));
        line.setPosition(QPointF(0, y));
        y += line.height();
    }
    layout.endLayout();
    return y;
}

int WrapLabel::heightForWidth(int width) const {
    QTextLayout layout;
    return wordWrap() ? static_cast<int>(std::ceil(LayOut(layout, width))) : QLabel::heightForWidth(width);
}

QSize WrapLabel::sizeHint() const {
    constexpr int usual = 300;
    return wordWrap() ? QSize(usual, heightForWidth(usual)) : QLabel::sizeHint();
}

QSize WrapLabel::minimumSizeHint() const {
    return wordWrap() ? QSize(40, QFontMetrics(font()).height()) : QLabel::minimumSizeHint();
}

void WrapLabel::paintEvent(QPaintEvent* event) {
    if (!wordWrap()) {
        QLabel::paintEvent(event);
        return;
    }
    QTextLayout layout;
    LayOut(layout, width());
    QPainter painter(this);
    painter.setPen(palette().color(isEnabled() ? QPalette::Active : QPalette::Disabled, QPalette::WindowText));
    layout.draw(&painter, QPointF(0, 0));
}

QLabel* MakeLabel(QWidget* parent, const QString& name, int pixels, bool bold, Tone tone) {
    auto* label = new QLabel(parent);
    label->setObjectName(name);
    label->setTextFormat(Qt::PlainText);
    WearLetters(*label, pixels, bold);
    WearTone(*label, tone);
    return label;
}

void SetLabelColour(QLabel* label, const QColor& colour) {
    QPalette palette = label->palette();
    palette.setColor(QPalette::WindowText, colour);
    palette.setColor(QPalette::Text, colour);
    label->setPalette(palette);
}

}  // namespace plasmos
