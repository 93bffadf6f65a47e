// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/look/plain_tip.h"

#include <QStringList>
#include <QTextDocument>
#include <algorithm>

namespace plasmos {

namespace {

constexpr qsizetype Widest = 80;  // letters of a line; longer ones are broken, which a tip of letters alone is not

}  // namespace

QString PlainTip(const QString& text) {
    const QStringList lines = text.split(QLatin1Char('\n'));
    const bool fits =
        std::all_of(lines.begin(), lines.end(), [](const QString& line) { return line.size() <= Widest; });
    if (fits && !Qt::mightBeRichText(text)) {
        return text;
    }
    QString letters = text.toHtmlEscaped();
    return QStringLiteral("<qt>%1</qt>").arg(letters.replace(QLatin1Char('\n'), QLatin1String("<br>")));
}

}  // namespace plasmos
