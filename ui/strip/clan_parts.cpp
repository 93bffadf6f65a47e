// SPDX-License-Identifier: GPL-3.0-or-later
//
// What is heard of the clans' cards, and what moves over them.

#include "files/text.h"
#include "model/game_state.h"
#include "model/genes.h"
#include "ui/look/dress.h"
#include "ui/look/palette.h"
#include "ui/strip/clan_panel.h"
#include "ui/strip/gene_chips.h"
#include "ui/strip/rising_words.h"

namespace plasmos {

namespace {

std::string GeneWords(const std::vector<int>& genes) {
    std::string words;
    for (const int gene : genes) {
        words += Concat(words.empty() ? "" : ", ", GeneName(gene));
    }
    return words.empty() ? "none" : words;
}

std::string CardWords(const GameState& state, int clan, const std::vector<int>& genes) {
    const Clan& one = state.Players[clan];
    const std::string_view kind = one.IsComputer ? one.PersonalityName.View() : std::string_view("you");
    return Concat(one.Name, ", ", kind, ", score ", one.Score, ", ", state.BP[clan], " BP, ", state.AmoebaCount[clan],
                  " of ", state.MaxAmoeba, " amoebas, mutation level ", one.MutationLevel, " of UV ", state.UVLevel,
                  ", genes: ", GeneWords(genes));
}

}  // namespace

int ClanPanel::PlaceOf(int clan) const {
    for (int place = 1; Shown() && place <= state_->NumPlayers; ++place) {
        if (ClanAtPlace(*state_, place) == clan) {
            return place;
        }
    }
    return 0;
}

std::vector<int> ClanPanel::PartsOf(int part) const {
    std::vector<int> clans;
    for (int place = 1; part == 0 && Shown() && place <= state_->NumPlayers; ++place) {
        clans.push_back(ClanAtPlace(*state_, place));
    }
    return clans;
}

HeardPart ClanPanel::Hear(int part) const {
    const int place = PlaceOf(part);
    if (place == 0) {
        return {};
    }
    const std::vector<int>& genes = GeneLists[static_cast<std::size_t>(part - 1)]->Genes();
    return {ToQt(CardWords(*state_, part, genes)), QAccessible::StaticText, InPixels(CardRect(place))};
}

int ClanPanel::PartAt(QPoint point) const {
    for (const int clan : PartsOf(0)) {
        if (Hear(clan).Place.contains(point)) {
            return clan;
        }
    }
    return 0;
}

void ClanPanel::RiseFromBP(int clan, const QString& words, Tone tone, int milliseconds) {
    if (PlaceOf(clan) > 0) {
        const QRect label = bplab[static_cast<std::size_t>(clan - 1)]->geometry();
        rising_->Rise(words, QPointF(label.left() + Px(20), label.top() + 2), tone, milliseconds);
    }
}

void ClanPanel::RiseFromGenes(int clan, const QString& words, Tone tone, int milliseconds) {
    if (const int place = PlaceOf(clan); place > 0) {
        const QRect card = InPixels(CardRect(place));
        rising_->Rise(words, QPointF(Px(44), card.bottom() - Px(21)), tone, milliseconds);
    }
}

bool ClanPanel::Runs() const {
    return rising_->Runs();
}

}  // namespace plasmos
