// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/window/handbook_finder.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QShortcut>
#include <QTextDocument>
#include <algorithm>

#include "ui/look/dress.h"
#include "ui/window/handbook.h"
#include "ui/window/handbook_page.h"

namespace plasmos {

namespace {

/// All pages in the order in which they follow one, which comes last itself.
QStringList PagesAfter(const QString& file) {
    QStringList pages;
    for (const HandbookEntry& entry : HandbookPages()) {
        pages.append(entry.File);
    }
    std::rotate(pages.begin(), pages.begin() + pages.indexOf(file) + 1, pages.end());
    return pages;
}

bool StandIn(const QString& file, const QString& words) {
    QTextDocument page;
    page.setMarkdown(HandbookPage::TextOf(file));
    return !page.find(words).isNull();
}

}  // namespace

HandbookFinder::HandbookFinder(QWidget* parent, HandbookPage& page)
    : QWidget(parent), page_(page), words_(new QLineEdit(this)), verdict_(new QLabel(this)) {
    words_->setObjectName(QStringLiteral("bookwords"));
    words_->setAccessibleName(QStringLiteral("Words to find in the handbook"));
    words_->setPlaceholderText(QStringLiteral("Words to find"));
    words_->setClearButtonEnabled(true);
    verdict_->setObjectName(QStringLiteral("bookverdict"));
    auto* find = new QPushButton(QStringLiteral("&Find"), this);
    find->setObjectName(QStringLiteral("bookfindb"));
    find->setToolTip(QStringLiteral("The next place where the words stand (Enter)"));
    find->setAutoDefault(false);
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(words_, 1);
    row->addWidget(find);
    row->addWidget(verdict_);
    for (QWidget* part :
         {static_cast<QWidget*>(words_), static_cast<QWidget*>(find), static_cast<QWidget*>(verdict_)}) {
        WearLetters(*part, 13);
    }
    connect(words_, &QLineEdit::returnPressed, this, &HandbookFinder::GoOn);
    connect(words_, &QLineEdit::textEdited, verdict_, &QLabel::clear);
    connect(find, &QPushButton::clicked, this, &HandbookFinder::GoOn);
    connect(new QShortcut(QKeySequence::Find, parent), &QShortcut::activated, this, &HandbookFinder::Begin);
}

void HandbookFinder::Begin() {
    words_->setFocus(Qt::ShortcutFocusReason);
    words_->selectAll();
}

void HandbookFinder::GoOn() {
    const QString words = words_->text().simplified();
    if (words.isEmpty()) {
        Begin();
        return;
    }
    verdict_->setText(FindOn(words) ? QString() : QStringLiteral("Not in the handbook"));
    words_->setAccessibleDescription(verdict_->text());
}

bool HandbookFinder::FindOn(const QString& words) {
    if (page_.find(words)) {
        return true;
    }
    const QStringList pages = PagesAfter(page_.File());
    const auto found =
        std::find_if(pages.begin(), pages.end(), [&](const QString& file) { return StandIn(file, words); });
    if (found == pages.end()) {
        return false;
    }
    page_.Open(*found);
    page_.ShowTop();
    return page_.find(words);
}

}  // namespace plasmos
