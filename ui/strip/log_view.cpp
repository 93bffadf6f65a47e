// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/strip/log_view.h"

#include <QEvent>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QScrollBar>
#include <QTextBlock>
#include <QTextBlockFormat>
#include <QTextCursor>
#include <QToolTip>
#include <vector>

#include "ui/look/dress.h"
#include "ui/look/page_keys.h"
#include "ui/look/palette.h"
#include "ui/look/plain_tip.h"

namespace plasmos {

namespace {

/// What a part of a line is, kept with its letters.
constexpr int ClanOfSign = QTextFormat::UserProperty + 1;
constexpr int MannerOfText = QTextFormat::UserProperty + 2;

}  // namespace

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

void LogView::Clear() {
    clear();
    heading_.clear();
    waiting_.clear();
    empty_ = following_ = true;
    marked_ = 0;
    setExtraSelections({});
    started_ = false;
}

void LogView::Start(const QString& header) {
    Clear();
    started_ = true;
    for (const QString& line : header.split(QLatin1Char('\n'), Qt::SkipEmptyParts)) {
        const QString text = line.trimmed();
        if (!text.isEmpty()) {
            Append(QString(), 0, text, Manner::Heading);
        }
    }
}

void LogView::Heading(const QString& heading) {
    heading_ = heading;
}

void LogView::WriteHeading() {
    if (!heading_.isEmpty()) {
        Append(QString(), 0, heading_, Manner::Heading);
        heading_.clear();
    }
}

void LogView::Line(const QString& line, int clan) {
    WriteHeading();
    QString sign = SignCharacter(clan);
    for (const QString& part : line.split(QLatin1Char('\n'))) {
        Append(sign, clan, part, Manner::Told);
        sign.clear();
    }
}

void LogView::QuietLine(const QString& line, int clan) {
    WriteHeading();
    Append(SignCharacter(clan), clan, line, Manner::Quiet);
}

QColor LogView::ColourOf(Manner manner) {
    return Shade(manner == Manner::Heading ? Tone::Accent : manner == Manner::Quiet ? Tone::Faint : Tone::Ink);
}

// ---- looking back ----

void LogView::MarkMoment(int moment) {
    marked_ = moment;
    Mark();
}

void LogView::Mark() {
    QTextBlock last;
    for (QTextBlock block = document()->begin(); marked_ > 0 && block.isValid(); block = block.next()) {
        if (block.userState() > 0 && block.userState() <= marked_) {
            last = block;
        }
    }
    QList<QTextEdit::ExtraSelection> marks;
    if (last.isValid()) {
        QTextEdit::ExtraSelection mark;
        mark.cursor = QTextCursor(last);
        mark.format.setBackground(Shade(Tone::Highlight));
        mark.format.setProperty(QTextFormat::FullWidthSelection, true);
        marks.append(mark);
        following_ = false;
        const QRect place = cursorRect(mark.cursor);
        if (!viewport()->rect().contains(place)) {
            verticalScrollBar()->setValue(verticalScrollBar()->value() + place.top() - viewport()->height() / 2);
        }
    }
    setExtraSelections(marks);
    if (marks.isEmpty() && marked_ == 0) {
        verticalScrollBar()->setValue(verticalScrollBar()->maximum());
    }
}

void LogView::LookAtLine(const QTextCursor& cursor) {
    if (const int moment = cursor.block().userState(); OnMoment && moment > 0) {
        OnMoment(moment);
    }
}

bool LogView::viewportEvent(QEvent* event) {
    if (event->type() == QEvent::ToolTip) {
        const auto* help = static_cast<QHelpEvent*>(event);
        const int moment = cursorForPosition(help->pos()).block().userState();
        QToolTip::showText(help->globalPos(), WhyOf && moment > 0 ? PlainTip(WhyOf(moment)) : QString(), viewport());
        return true;
    }
    return QTextEdit::viewportEvent(event);
}

void LogView::mousePressEvent(QMouseEvent* event) {
    pressed_ = event->pos();
    QTextEdit::mousePressEvent(event);
}

// Who drags over lines selects them.
void LogView::mouseReleaseEvent(QMouseEvent* event) {
    QTextEdit::mouseReleaseEvent(event);
    constexpr int atRest = 4;
    if (event->button() == Qt::LeftButton && !textCursor().hasSelection() &&
        (event->pos() - pressed_).manhattanLength() <= atRest) {
        LookAtLine(cursorForPosition(event->pos()));
    }
}

void LogView::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        LookAtLine(textCursor());
        return;
    }
    QTextEdit::keyPressEvent(event);
}

// Who reads in the log pages through it.
bool LogView::event(QEvent* event) {
    return KeepsPageKeys(event, [this] { return verticalScrollBar()->maximum() > 0; }) || QTextEdit::event(event);
}

void LogView::changeEvent(QEvent* event) {
    if (event->type() == QEvent::StyleChange && scheme_ != CurrentScheme()) {
        scheme_ = CurrentScheme();
        Recolour();
    }
    QTextEdit::changeEvent(event);
}

// What stands in the log is read in other colours from now on.
void LogView::Recolour() {
    std::vector<QTextFragment> parts;
    for (QTextBlock block = document()->begin(); block.isValid(); block = block.next()) {
        for (auto part = block.begin(); !part.atEnd(); ++part) {
            parts.push_back(part.fragment());
        }
    }
    QTextCursor cursor(document());
    cursor.beginEditBlock();
    for (const QTextFragment& part : parts) {
        const QTextCharFormat letters = part.charFormat();
        const int clan = letters.intProperty(ClanOfSign);
        QTextCharFormat colour;
        colour.setForeground(clan > 0 ? ShadesOf(clan).Edge
                                      : ColourOf(static_cast<Manner>(letters.intProperty(MannerOfText))));
        cursor.setPosition(part.position());
        cursor.setPosition(part.position() + part.length(), QTextCursor::KeepAnchor);
        cursor.mergeCharFormat(colour);
    }
    cursor.endEditBlock();
}

void LogView::Hold(bool on) {
    held_ = on;
    if (waiting_.empty()) {
        return;
    }
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);  // the lines are laid out once, as wide as they will be
    QTextCursor whole(document());
    whole.beginEditBlock();
    for (const Entry& entry : waiting_) {
        Write(entry);
    }
    whole.endEditBlock();
    waiting_.clear();
    setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
}

void LogView::Append(const QString& sign, int clan, const QString& text, Manner manner) {
    const Entry entry{sign, clan, text, manner, MomentOfNow ? MomentOfNow() : 0};
    if (held_) {
        waiting_.push_back(entry);
    } else {
        Write(entry);
    }
}

void LogView::Write(const Entry& entry) {
    const bool heading = entry.How == Manner::Heading;
    QTextCursor cursor(document());
    cursor.movePosition(QTextCursor::End);
    QTextBlockFormat block;
    block.setTopMargin(heading && !empty_ ? 6 : 0);
    empty_ ? cursor.setBlockFormat(block) : cursor.insertBlock(block);
    empty_ = false;
    cursor.block().setUserState(entry.Moment);
    QTextCharFormat letters;
    if (!entry.Sign.isEmpty()) {
        letters.setForeground(ShadesOf(entry.Clan).Edge);
        letters.setProperty(ClanOfSign, entry.Clan);
        cursor.insertText(entry.Sign + QLatin1Char(' '), letters);
    }
    letters.setForeground(ColourOf(entry.How));
    letters.setProperty(ClanOfSign, 0);
    letters.setProperty(MannerOfText, static_cast<int>(entry.How));
    letters.setFontWeight(heading ? QFont::Bold : QFont::Normal);
    cursor.insertText(entry.Text, letters);
}

}  // namespace plasmos
