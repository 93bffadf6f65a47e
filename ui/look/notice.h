// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

class QWidget;

namespace plasmos {

/// A box that tells the person of something that went wrong, and waits for nobody.
void ShowNotice(QWidget& window, const QString& text);

}  // namespace plasmos
