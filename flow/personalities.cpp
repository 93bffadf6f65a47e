// SPDX-License-Identifier: GPL-3.0-or-later
#include "flow/personalities.h"

#include <string_view>

#include "model/dice.h"

namespace plasmos {

namespace {

constexpr int DeckSize = 6;
constexpr std::int32_t EaterMask = 0x0004A006;
/// Keeps the bits below 16, from 64 to 2 to the 19th power; the Divider loses its high bits.
constexpr std::int32_t MaskWithoutEater = 0x000FFFCF;

struct PersonalityCard {
    std::int32_t Mask;
    std::string_view Name;
};

constexpr PersonalityCard Cards[DeckSize + 1] = {
    {0, ""},
    {EaterMask, "Eater"},
    {0x0002012A, "Mover"},
    {-32606, "Divider"},  // a 16-bit value widened with its sign: all the high bits are favourites too
    {EaterMask, "Eater"},
    {0x00000650, "Eccentric"},
    {0x00005002, "Miser"},
};

}  // namespace

void DealPersonalities() {
    Table<std::string_view, 0, DeckSize> names;
    for (int card = 1; card <= DeckSize; ++card) {
        game.PersonalityTable[card] = Cards[card].Mask;
        names[card] = Cards[card].Name;
    }
    int left = game.NumPlayers == 3 ? DeckSize - 1 : DeckSize;
    bool eaterDealt = false;
    for (int clan = 1; clan <= game.NumPlayers; ++clan) {
        Clan& player = game.Players[clan];
        if (!player.IsComputer) {
            continue;
        }
        const int drawn = RollDie(left);
        player.Personality = game.PersonalityTable[drawn];
        player.PersonalityName = names[drawn];
        eaterDealt = eaterDealt || player.Personality == EaterMask;
        game.PersonalityTable[drawn] = game.PersonalityTable[left];
        names[drawn] = names[left];
        --left;
        if (game.Menu.normmen) {
            player.Personality |= RayBit;
        }
    }
    for (int clan = 1; clan <= game.NumPlayers && !eaterDealt; ++clan) {
        if (game.Players[clan].IsComputer) {
            game.Players[clan].Personality &= MaskWithoutEater;
        }
    }
}

}  // namespace plasmos
