// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDialog>
#include <QDir>
#include <QListWidget>
#include <QPushButton>
#include <QScrollBar>
#include <QTextBlock>

#include "tests/ui/support/scene.h"
#include "ui/window/handbook_page.h"
#include "ui/window/uboard.h"

namespace plasmos::testing {

/// The open handbook of a scene.
struct Book {
    explicit Book(Scene& scene)
        : Window(scene.Board().findChild<QDialog*>(QStringLiteral("handbook"))),
          Page(Window->findChild<HandbookPage*>()),
          List(Window->findChild<QListWidget*>(QStringLiteral("bookpages"))),
          Back(Window->findChild<QPushButton*>(QStringLiteral("bookbackb"))) {}

    QDialog* Window;
    HandbookPage* Page;
    QListWidget* List;
    QPushButton* Back;

    /// With PLASMOS_PICTURES=folder what was read can be looked at, page by page from top to bottom.
    void KeepPictures(const QString& name) const {
        if (!qEnvironmentVariableIsSet("PLASMOS_PICTURES")) {
            return;
        }
        QScrollBar& bar = *Page->verticalScrollBar();
        for (int sheet = 1, top = 0; top <= bar.maximum() || sheet == 1; ++sheet, top += bar.pageStep()) {
            bar.setValue(top);
            Window->grab().save(QDir(qEnvironmentVariable("PLASMOS_PICTURES"))
                                    .filePath(QStringLiteral("%1-%2.png").arg(name).arg(sheet)));
        }
        bar.setValue(0);
    }
};

/// The place of the first link whose words are these, brought into sight; none: null.
inline QRect PlaceOfLink(QTextBrowser& page, const QString& words) {
    for (QTextBlock block = page.document()->begin(); block.isValid(); block = block.next()) {
        for (auto part = block.begin(); !part.atEnd(); ++part) {
            const QTextFragment fragment = part.fragment();
            if (fragment.charFormat().anchorHref().isEmpty() || fragment.text() != words) {
                continue;
            }
            QTextCursor cursor(page.document());
            cursor.setPosition(fragment.position() + 1);
            page.setTextCursor(cursor);
            page.ensureCursorVisible();
            const QRect left = page.cursorRect(cursor);
            cursor.setPosition(fragment.position() + 2);
            return left.united(page.cursorRect(cursor));
        }
    }
    return {};
}

inline void PressLink(Scene& scene, QTextBrowser& page, const QString& words) {
    const QRect place = PlaceOfLink(page, words);
    QVERIFY2(!place.isNull(), qPrintable(words));
    scene.Press(page.viewport(), Qt::LeftButton, place.center());
}

/// How far below the page's upper edge a heading stands; far away where there is none.
inline int HeightOfHeading(const QTextBrowser& page, const QString& words) {
    for (QTextBlock block = page.document()->begin(); block.isValid(); block = block.next()) {
        if (block.blockFormat().headingLevel() > 0 && block.text() == words) {
            return page.cursorRect(QTextCursor(block)).top();
        }
    }
    return 1 << 20;
}

}  // namespace plasmos::testing
