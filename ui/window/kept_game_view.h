// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPixmap>
#include <QString>
#include <optional>
#include <string>

#include "record/kept_games.h"

namespace plasmos {

struct GameState;

/// What is shown of a kept game: "Turn 4 of 10, Movement: 5 clans", and how its board stands.
struct KeptGameView {
    std::string Path;
    QString Line;
    QPixmap Board;
};

/// One line about a kept game for a menu, with its date.
QString KeptGameLine(const KeptGame& kept);

/// The latest kept game of a folder that can be gone on with; its board as wide as `side` pixels of the window's.
std::optional<KeptGameView> LatestKeptGame(const std::string& folder, int side, double ratio);

}  // namespace plasmos
