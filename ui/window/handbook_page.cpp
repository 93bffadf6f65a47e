// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/window/handbook_page.h"

#include <QEvent>
#include <QFile>
#include <QImageReader>
#include <QRegularExpression>
#include <QScrollBar>
#include <QTextBlock>
#include <QTextTable>
#include <algorithm>

#include "ui/look/dress.h"
#include "ui/look/palette.h"

namespace plasmos {

namespace {

constexpr double Pixels = 14;
constexpr double Margin = 14;

/// "How a turn goes?" is called "how-a-turn-goes".
QString NameOfHeading(const QString& words) {
    static const QRegularExpression odd(QStringLiteral("[^\\w\\- ]"), QRegularExpression::UseUnicodePropertiesOption);
    return words.toLower().remove(odd).replace(QLatin1Char(' '), QLatin1Char('-'));
}

void WearHeading(const QTextBlock& block, int level) {
    QTextCursor cursor(block);
    cursor.movePosition(QTextCursor::EndOfBlock, QTextCursor::KeepAnchor);
    QTextCharFormat letters;
    letters.setForeground(Shade(level == 1 ? Tone::Ink : Tone::Accent));
    letters.setFontWeight(QFont::Bold);
    letters.setAnchor(true);
    letters.setAnchorNames({NameOfHeading(block.text())});
    cursor.mergeCharFormat(letters);
    QTextBlockFormat format = block.blockFormat();
    format.setTopMargin(Px(level == 1 ? 4 : 20));
    format.setBottomMargin(Px(6));
    cursor.setBlockFormat(format);
}

void WearLinks(const QTextBlock& block) {
    for (auto part = block.begin(); !part.atEnd(); ++part) {
        const QTextFragment fragment = part.fragment();
        if (fragment.charFormat().isAnchor() && !fragment.charFormat().anchorHref().isEmpty()) {
            QTextCursor cursor(block);
            cursor.setPosition(fragment.position());
            cursor.setPosition(fragment.position() + fragment.length(), QTextCursor::KeepAnchor);
            QTextCharFormat letters;
            letters.setForeground(Shade(Tone::Accent));
            letters.setFontUnderline(true);
            cursor.mergeCharFormat(letters);
        }
    }
}

bool HasPicture(const QTextBlock& block) {
    return block.text().contains(QChar::ObjectReplacementCharacter);
}

void WearBlock(const QTextBlock& block) {
    if (const int level = block.blockFormat().headingLevel(); level > 0) {
        WearHeading(block, level);
        return;
    }
    WearLinks(block);
    QTextCursor cursor(block);
    QTextBlockFormat format = block.blockFormat();
    const bool inTable = cursor.currentTable() != nullptr;
    format.setLineHeight(HasPicture(block) ? 100 : 118, QTextBlockFormat::ProportionalHeight);
    format.setTopMargin(0);
    format.setBottomMargin(inTable ? 0 : Px(block.textList() != nullptr ? 4 : 9));
    cursor.setBlockFormat(format);
}

void WearTable(QTextTable& table) {
    QTextTableFormat format = table.format();
    format.setBorderCollapse(true);
    format.setBorder(1);
    format.setBorderStyle(QTextFrameFormat::BorderStyle_Solid);
    format.setBorderBrush(Shade(Tone::CardEdge));
    format.setCellPadding(Px(5));
    format.setCellSpacing(0);
    format.setTopMargin(Px(4));
    format.setBottomMargin(Px(12));
    table.setFormat(format);
    for (int column = 0; column < table.columns(); ++column) {
        QTextTableCell cell = table.cellAt(0, column);
        QTextCharFormat head = cell.format();
        head.setBackground(Shade(Tone::Chip));
        head.setFontWeight(QFont::Bold);
        cell.setFormat(head);
    }
}

}  // namespace

HandbookPage::HandbookPage(QWidget* parent) : QTextBrowser(parent) {
    setObjectName(QStringLiteral("bookpage"));
    setAccessibleName(QStringLiteral("The handbook"));
    setOpenLinks(false);
    setWordWrapMode(QTextOption::WordWrap);
    setTextInteractionFlags(Qt::TextBrowserInteraction | Qt::TextSelectableByKeyboard);
    WearLetters(*this, Pixels);
    connect(this, &QTextBrowser::anchorClicked, this, [this](const QUrl& link) { Follow(link); });
    connect(this, &QTextBrowser::sourceChanged, this, [this](const QUrl& url) { Arrange(url.fragment()); });
}

QString HandbookPage::Folder() {
    return QStringLiteral(":/handbook/");
}

QString HandbookPage::TextOf(const QString& file) {
    QFile page(Folder() + file);
    return page.open(QIODevice::ReadOnly) ? QString::fromUtf8(page.readAll()) : QString();
}

void HandbookPage::Open(const QString& file) {
    setSource(QUrl(QStringLiteral("qrc") + Folder() + file));
}

void HandbookPage::ShowTop() {
    moveCursor(QTextCursor::Start);
    verticalScrollBar()->setValue(0);
}

QString HandbookPage::File() const {
    return source().fileName();
}

void HandbookPage::Follow(const QUrl& link) {
    if (link.scheme() == QLatin1String("qrc") && link.path().endsWith(QLatin1String(".md"))) {
        setSource(link);
    }
}

// A page that was loaded wears nothing yet, and its headings have no names.
void HandbookPage::Arrange(const QString& heading) {
    WearPage();
    if (!heading.isEmpty()) {
        scrollToAnchor(heading);
    }
}

void HandbookPage::WearPage() {
    QTextCursor whole(document());
    whole.beginEditBlock();
    for (QTextBlock block = document()->begin(); block.isValid(); block = block.next()) {
        WearBlock(block);
    }
    for (QTextFrame* frame : document()->rootFrame()->childFrames()) {
        if (auto* table = qobject_cast<QTextTable*>(frame)) {
            WearTable(*table);
        }
    }
    whole.endEditBlock();
    document()->setDocumentMargin(Px(Margin));
    FitPictures();
}

// A picture is as wide as it is, and no wider than the page.
void HandbookPage::FitPictures() {
    const int room = std::max(80, viewport()->width() - 2 * Px(Margin) - 2);
    for (QTextBlock block = document()->begin(); block.isValid(); block = block.next()) {
        for (auto part = block.begin(); !part.atEnd(); ++part) {
            if (part.fragment().charFormat().isImageFormat()) {
                FitPicture(part.fragment(), room);
            }
        }
    }
}

void HandbookPage::FitPicture(const QTextFragment& fragment, int room) {
    QTextImageFormat picture = fragment.charFormat().toImageFormat();
    QImageReader file(Folder() + picture.name());
    const QSize natural = file.size();
    const int width = std::min(natural.width(), room);
    if (width == qRound(picture.width())) {
        return;
    }
    QImage image = file.read();
    if (width < natural.width()) {
        image = image.convertToFormat(QImage::Format_RGB32)
                    .scaledToWidth(qRound(width * devicePixelRatioF()), Qt::SmoothTransformation);
        image.setDevicePixelRatio(devicePixelRatioF());
    }
    const QUrl place = document()->baseUrl().resolved(QUrl(picture.name()));
    document()->addResource(QTextDocument::ImageResource, place, image);
    picture.setWidth(width);
    picture.setHeight(static_cast<double>(natural.height()) * width / std::max(natural.width(), 1));
    QTextCursor cursor(document());
    cursor.setPosition(fragment.position());
    cursor.setPosition(fragment.position() + fragment.length(), QTextCursor::KeepAnchor);
    cursor.setCharFormat(picture);
}

bool HandbookPage::event(QEvent* event) {
    const bool taken = QTextBrowser::event(event);
    if (event->type() == QEvent::StyleChange && !document()->isEmpty()) {
        WearPage();
    }
    return taken;
}

void HandbookPage::resizeEvent(QResizeEvent* event) {
    QTextBrowser::resizeEvent(event);
    FitPictures();
}

}  // namespace plasmos
