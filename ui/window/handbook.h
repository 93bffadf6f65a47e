// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QList>
#include <QString>

class QWidget;

namespace plasmos {

/// A page of the handbook.
struct HandbookEntry {
    QString Title;
    QString File;  ///< "genes.md"
};

/// The pages in the order in which they are read, the contents first. They are those of docs/handbook, which the
/// program has with it; the contents link to each of the others.
QList<HandbookEntry> HandbookPages();

/// Opens the handbook in a window that stays beside the game, where it was left.
void ShowHandbook(QWidget& window);

}  // namespace plasmos
