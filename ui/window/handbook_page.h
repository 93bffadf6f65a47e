// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QTextBrowser>

class QTextFragment;

namespace plasmos {

/// Shows a page of the handbook, in the colours and letters of the window. Links lead to other pages and to headings,
/// and nowhere else; a heading is called by its words, in small letters with "-" for blanks.
class HandbookPage : public QTextBrowser {
public:
    explicit HandbookPage(QWidget* parent);

    /// Where the program has the pages, with a "/" behind.
    static QString Folder();
    /// A page as it is written; empty: there is none.
    static QString TextOf(const QString& file);
    /// Shows a page, "genes.md".
    void Open(const QString& file);
    /// The beginning of the page that is shown.
    void ShowTop();
    /// The page that is shown.
    QString File() const;

protected:
    bool event(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void Follow(const QUrl& link);
    void Arrange(const QString& heading);
    void WearPage();
    void FitPictures();
    void FitPicture(const QTextFragment& fragment, int room);
};

}  // namespace plasmos
