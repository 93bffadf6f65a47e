// SPDX-License-Identifier: GPL-3.0-or-later
#include "flow/personalities.h"

#include <algorithm>
#include <iterator>

#include "model/dice.h"
#include "model/genes.h"

namespace plasmos {

namespace {

struct Personality {
    FixedText<12> Name;
    std::int32_t Favourites = 0;
};

/// A set of genes read as a 16-bit number and widened with its sign. With gene 16, whose bit is the sign,
/// every bit above is set too: all genes from number 17 up, and the bits that stand for no gene.
consteval std::int32_t WidenedWithSign(std::int32_t genes) {
    return static_cast<std::int16_t>(genes);
}

constexpr Personality Eater = {"Eater", GenesOf({"mv1", "spo", "sfs", "div", "agg"})};

/// The deck. The last card stays out with three clans; two of the Miser's favourites do not exist there.
constexpr Personality Cards[] = {
    Eater,
    {"Mover", GenesOf({"mv1", "spe", "esc", "str", "mv2"})},
    {"Divider", WidenedWithSign(GenesOf({"mv1", "esc", "ray", "div"}))},  // and "per", "mv2", "agg", "arm"
    Eater,
    {"Eccentric", GenesOf({"def", "sub", "ten", "hol"})},
    {"Miser", GenesOf({"mv1", "fru", "par"})},
};

constexpr int DeckSize = static_cast<int>(std::size(Cards));
/// What stays of the favourites where no Eater was dealt; bits that stand for no gene go too.
constexpr std::int32_t WithoutEater = AllGenes & ~GenesOf({"def", "esc"});

/// The cards that are not dealt yet.
class Deck {
public:
    explicit Deck(int size) : left_(size) {
        for (int card = 1; card <= DeckSize; ++card) {
            game.PersonalityTable[card] = Cards[card - 1].Favourites;
            names_[card] = Cards[card - 1].Name;
        }
    }

    /// The last card takes the place of the drawn one.
    Personality Draw() {
        const int drawn = RollDie(left_);
        const Personality card{names_[drawn], game.PersonalityTable[drawn]};
        game.PersonalityTable[drawn] = game.PersonalityTable[left_];
        names_[drawn] = names_[left_];
        --left_;
        return card;
    }

private:
    int left_;
    Table<FixedText<12>, 0, DeckSize> names_;
};

}  // namespace

void DealPersonalities() {
    Deck deck(game.NumPlayers == 3 ? DeckSize - 1 : DeckSize);
    bool eaterDealt = false;
    for (int clan = 1; clan <= game.NumPlayers; ++clan) {
        Clan& player = game.Players[clan];
        if (player.IsComputer) {
            const Personality card = deck.Draw();
            eaterDealt = eaterDealt || card.Name == Eater.Name;
            player.PersonalityName = card.Name;
            player.Personality = card.Favourites | (game.Menu.normmen ? GenesOf({"ray"}) : 0);
        }
    }
    for (int clan = 1; clan <= game.NumPlayers && !eaterDealt; ++clan) {
        if (game.Players[clan].IsComputer) {
            game.Players[clan].Personality &= WithoutEater;
        }
    }
}

bool IsPersonality(std::string_view name) {
    return std::any_of(std::begin(Cards), std::end(Cards),
                       [name](const Personality& card) { return card.Name == name; });
}

}  // namespace plasmos
