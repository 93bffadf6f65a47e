// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/window/handbook.h"

#include <QDialog>
#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QListWidget>
#include <QPushButton>
#include <QRegularExpression>
#include <QScreen>
#include <algorithm>

#include "ui/look/dress.h"
#include "ui/look/palette.h"
#include "ui/window/handbook_finder.h"
#include "ui/window/handbook_page.h"

namespace plasmos {

namespace {

constexpr auto Contents = "README.md";

QListWidget* MakeList(QWidget* parent, HandbookPage& page) {
    auto* list = new QListWidget(parent);
    list->setObjectName(QStringLiteral("bookpages"));
    list->setAccessibleName(QStringLiteral("Pages of the handbook"));
    list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    list->setWordWrap(true);
    WearLetters(*list, 13);
    WearSheet(*list, QStringLiteral("QListWidget::item { padding: @5px }"));
    for (const HandbookEntry& entry : HandbookPages()) {
        auto* item = new QListWidgetItem(entry.Title, list);
        item->setData(Qt::UserRole, entry.File);
    }
    QObject::connect(list, &QListWidget::currentItemChanged, &page, [&page](QListWidgetItem* item) {
        if (item != nullptr) {
            page.Open(item->data(Qt::UserRole).toString());
        }
    });
    QObject::connect(list, &QListWidget::itemClicked, &page, &HandbookPage::ShowTop);
    return list;
}

/// The list follows the links of the pages.
void MarkPage(QListWidget& list, const QString& file) {
    const QSignalBlocker silent(list);
    for (int row = 0; row < list.count(); ++row) {
        if (list.item(row)->data(Qt::UserRole).toString() == file) {
            list.setCurrentRow(row);
        }
    }
}

QWidget* MakeFoot(QDialog& dialog, HandbookPage& page) {
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close, &dialog);
    buttons->button(QDialogButtonBox::Close)->setIcon(QIcon());  // the style's is dark on dark
    auto* back = buttons->addButton(QStringLiteral("&Back"), QDialogButtonBox::ActionRole);
    back->setObjectName(QStringLiteral("bookbackb"));
    back->setToolTip(QStringLiteral("The page that was read before"));
    back->setAutoDefault(false);
    back->setEnabled(false);
    buttons->button(QDialogButtonBox::Close)->setAutoDefault(false);
    QObject::connect(back, &QPushButton::clicked, &page, &QTextBrowser::backward);
    QObject::connect(&page, &QTextBrowser::backwardAvailable, back, &QWidget::setEnabled);
    QObject::connect(buttons, &QDialogButtonBox::rejected, &dialog, &QDialog::reject);
    return buttons;
}

QDialog* MakeWindow(QWidget& window) {
    auto* dialog = new QDialog(&window);
    dialog->setObjectName(QStringLiteral("handbook"));
    dialog->setWindowTitle(QStringLiteral("Plasmos - Handbook"));
    dialog->setSizeGripEnabled(true);
    auto* outer = new QVBoxLayout(dialog);
    auto* sides = new QHBoxLayout;
    auto* page = new HandbookPage(dialog);
    auto* list = MakeList(dialog, *page);
    sides->addWidget(list, 2);
    sides->addWidget(page, 7);
    outer->addLayout(sides, 1);
    auto* foot = new QHBoxLayout;
    foot->addWidget(new HandbookFinder(dialog, *page), 1);
    foot->addWidget(MakeFoot(*dialog, *page));
    outer->addLayout(foot);
    QObject::connect(page, &QTextBrowser::sourceChanged, list,
                     [list](const QUrl& url) { MarkPage(*list, url.fileName()); });
    Dress(*dialog);
    dialog->resize((QSize(960, 720) * Letters()).boundedTo(window.screen()->availableSize() - UsualFrame));
    page->Open(QString::fromLatin1(Contents));
    page->clearHistory();
    return dialog;
}

}  // namespace

QList<HandbookEntry> HandbookPages() {
    QList<HandbookEntry> pages = {{QStringLiteral("Contents"), QString::fromLatin1(Contents)}};
    const QString text = HandbookPage::TextOf(QString::fromLatin1(Contents));
    static const QRegularExpression line(QStringLiteral(R"(^\d+\. \[([^\]]+)\]\(([a-z-]+\.md)\))"),
                                         QRegularExpression::MultilineOption);
    for (auto found = line.globalMatch(text); found.hasNext();) {
        const auto entry = found.next();
        pages.append({entry.captured(1), entry.captured(2)});
    }
    return pages;
}

void ShowHandbook(QWidget& window) {
    auto* dialog = window.findChild<QDialog*>(QStringLiteral("handbook"));
    if (dialog == nullptr) {
        dialog = MakeWindow(window);
    }
    dialog->show();
    dialog->raise();
    dialog->activateWindow();
    dialog->findChild<HandbookPage*>()->setFocus();
}

}  // namespace plasmos
