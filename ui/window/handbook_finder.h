// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

class QLabel;
class QLineEdit;

namespace plasmos {

class HandbookPage;

/// A field for words to look for in the handbook. Enter or its button goes on to the next place where they stand, on
/// this page or a later one, and round to where it began; small and capital letters are the same. Where they stand
/// nowhere it says so.
class HandbookFinder : public QWidget {
public:
    HandbookFinder(QWidget* parent, HandbookPage& page);

    /// The keyboard goes to the field.
    void Begin();

private:
    void GoOn();
    bool FindOn(const QString& words);

    HandbookPage& page_;
    QLineEdit* words_;
    QLabel* verdict_;
};

}  // namespace plasmos
