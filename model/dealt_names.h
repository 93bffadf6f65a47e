// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <vector>

namespace plasmos {

/// The names of a game as they were dealt. With them the game can be played again, whatever has become of the names
/// file and the settings since.
struct DealtNames {
    struct OfClan {
        std::string Name;                 ///< of the clan
        int Choice = 0;                   ///< among how many names its first piece was named
        std::vector<std::string> Pieces;  ///< by slot, from 1

        friend bool operator==(const OfClan&, const OfClan&) = default;
    };

    /// Of a clan, 1..Clans.size().
    const OfClan& Of(int clan) const { return Clans.at(static_cast<std::size_t>(clan - 1)); }

    /// Another number of clans is another deal.
    bool AreFor(int clans) const { return static_cast<int>(Clans.size()) == clans; }

    std::vector<OfClan> Clans;

    friend bool operator==(const DealtNames&, const DealtNames&) = default;
};

}  // namespace plasmos
