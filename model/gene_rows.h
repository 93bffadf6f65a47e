// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <iterator>
#include <string_view>

namespace plasmos {

/// All there is to say of a gene in numbers and names.
struct GeneRow {
    std::string_view Code;  ///< three lower-case letters
    std::string_view Name;  ///< as it is shown
    int Cost;               ///< BP
    int PointsFew;          ///< mutation points with 3 or 4 clans
    int PointsMany;         ///< mutation points with 5 or 6 clans
    /// Copies to buy, by the number of clans.
    int Supply3, Supply4, Supply56;
    /// Code of the lower gene of an upgrade: who buys the upgrade must hold it and loses it, and beside the
    /// upgrade it cannot be bought.
    std::string_view Upgrades{};
    std::string_view OrElse{};  ///< the same for who does not hold the first
};

/// The genes in the order of their numbers, which count from 1.
inline constexpr GeneRow GeneRows[] = {
    {"int", "Intelligence", 2, 3, 3, 1, 2, 3},
    {"mv1", "Movement 1", 3, 2, 2, 2, 2, 3},
    {"spo", "Spores", 3, 3, 3, 1, 1, 2},
    {"spe", "Speed", 4, 3, 3, 1, 2, 2},
    {"def", "Defence", 4, 4, 4, 1, 1, 2},
    {"esc", "Escape", 4, 4, 4, 1, 2, 2},
    {"sub", "Substitution", 4, 4, 4, 1, 1, 2},
    {"ray", "Ray Protection", 5, -2, -2, 1, 2, 2},
    {"str", "Streamlining", 5, 4, 5, 1, 1, 2},
    {"ten", "Tentacle", 5, 4, 4, 1, 2, 2},
    {"hol", "Holding", 5, 4, 4, 1, 1, 1},
    {"lif", "Life Expectancy", 5, 5, 5, 1, 2, 2},
    {"fru", "Frugality", 6, 5, 5, 0, 1, 2},
    {"sfs", "Struggle for Survival", 6, 4, 5, 2, 2, 3},
    {"par", "Parasitism", 6, 5, 5, 0, 1, 2},
    {"div", "Division Rate", 6, 5, 5, 1, 2, 2},
    {"per", "Persistence", 4, 4, 4, 1, 1, 1, "spe"},
    {"mv2", "Movement 2", 5, 5, 5, 1, 2, 2, "mv1"},
    {"agg", "Aggression", 5, 5, 5, 1, 1, 1, "sfs"},
    {"arm", "Armor", 6, 6, 6, 1, 1, 1, "def", "esc"},
};

inline constexpr int GeneCount = static_cast<int>(std::size(GeneRows));

}  // namespace plasmos
