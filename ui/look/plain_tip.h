// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace plasmos {

/// A text that the desktop's tool tips show to the letter, whatever it looks like.
QString PlainTip(const QString& text);

}  // namespace plasmos
