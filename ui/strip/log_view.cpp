// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/strip/log_view.h"

#include <QScrollBar>
#include <QTextBlockFormat>
#include <QTextCursor>

#include "ui/look/dress.h"
#include "ui/look/palette.h"

namespace plasmos {

LogView::LogView(QWidget* parent) : QTextEdit(parent) {
    setObjectName(QStringLiteral("txtLog"));
    setReadOnly(true);
    setUndoRedoEnabled(false);
    setAccessibleName(QStringLiteral("Game log"));
    WearLetters(*this, 12);
    setPlaceholderText(QStringLiteral("The game log"));
    document()->setDocumentMargin(8);
    QScrollBar* bar = verticalScrollBar();
    bar->setContextMenuPolicy(Qt::NoContextMenu);  // its menu would wait in a loop of its own
    connect(bar, &QScrollBar::valueChanged, this, [this, bar](int value) { following_ = value >= bar->maximum() - 4; });
    connect(bar, &QScrollBar::rangeChanged, this, [this, bar](int, int most) {
        if (following_) {
            bar->setValue(most);
        }
    });
    WearSheet(*this,
              QStringLiteral("QTextEdit{background:@Field;color:@Ink;border:1px solid @CardEdge;border-radius:9px}"));
}

void LogView::Start(const QString& header) {
    clear();
    heading_.clear();
    empty_ = following_ = true;
    for (const QString& line : header.split(QLatin1Char('\n'), Qt::SkipEmptyParts)) {
        const QString text = line.trimmed();
        if (!text.isEmpty()) {
            Append(QString(), 0, text, true);
        }
    }
}

void LogView::Heading(const QString& heading) {
    heading_ = heading;
}

void LogView::Line(const QString& line, int clan) {
    if (!heading_.isEmpty()) {
        Append(QString(), 0, heading_, true);
        heading_.clear();
    }
    QString sign = SignCharacter(clan);
    for (const QString& part : line.split(QLatin1Char('\n'))) {
        Append(sign, clan, part, false);
        sign.clear();
    }
}

void LogView::Append(const QString& sign, int clan, const QString& text, bool heading) {
    QTextCursor cursor(document());
    cursor.movePosition(QTextCursor::End);
    QTextBlockFormat block;
    block.setTopMargin(heading && !empty_ ? 6 : 0);
    empty_ ? cursor.setBlockFormat(block) : cursor.insertBlock(block);
    empty_ = false;
    QTextCharFormat letters;
    if (!sign.isEmpty()) {
        letters.setForeground(ShadesOf(clan).Edge);
        cursor.insertText(sign + QLatin1Char(' '), letters);
    }
    letters.setForeground(Shade(heading ? Tone::Accent : Tone::Ink));
    letters.setFontWeight(heading ? QFont::Bold : QFont::Normal);
    cursor.insertText(text, letters);
}

}  // namespace plasmos
