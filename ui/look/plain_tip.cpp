// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/look/plain_tip.h"

#include <QTextDocument>

namespace plasmos {

QString PlainTip(const QString& text) {
    if (!Qt::mightBeRichText(text)) {
        return text;
    }
    QString letters = text.toHtmlEscaped();
    return QStringLiteral("<qt>%1</qt>").arg(letters.replace(QLatin1Char('\n'), QLatin1String("<br>")));
}

}  // namespace plasmos
