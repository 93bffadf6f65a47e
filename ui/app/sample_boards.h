// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace plasmos {

/// Paints the small boards and the cards that show one thing each, for the handbook: a file for each in a folder, named
/// after it. False: one could not be written.
bool PaintSampleBoards(const QString& folder);

}  // namespace plasmos
