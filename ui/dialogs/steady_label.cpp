// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/dialogs/steady_label.h"

#include <algorithm>
#include <utility>

#include "ui/look/dress.h"

namespace plasmos {

SteadyLabel::SteadyLabel(QWidget* parent, const char* name, int pixels, QStringList texts)
    : WrapLabel(parent), texts_(std::move(texts)) {
    setObjectName(QString::fromLatin1(name));
    WearLetters(*this, pixels);
    setAlignment(Qt::AlignTop);
    WearTone(*this, Tone::Ink);
}

int SteadyLabel::heightForWidth(int width) const {
    if (width != width_ || font() != font_) {
        WrapLabel other(nullptr);
        other.setFont(font());
        height_ = 0;
        for (const QString& text : texts_) {
            other.setText(text);
            height_ = std::max(height_, other.heightForWidth(width));
        }
        width_ = width;
        font_ = font();
    }
    return height_;
}

QSize SteadyLabel::sizeHint() const {
    const QSize usual = WrapLabel::sizeHint();
    return {usual.width(), heightForWidth(usual.width())};
}

}  // namespace plasmos
