// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStringList>

#include "ui/look/card.h"

namespace plasmos {

/// A wrapped text that changes while all around it stays where it is: it has the height of the longest of the texts
/// that it may show.
class SteadyLabel : public WrapLabel {
public:
    SteadyLabel(QWidget* parent, const char* name, int pixels, QStringList texts);

    int heightForWidth(int width) const override;
    QSize sizeHint() const override;

private:
    QStringList texts_;
    mutable int width_ = -1;  ///< for which, with the letters, the height is known
    mutable QFont font_;
    mutable int height_ = 0;
};

}  // namespace plasmos
