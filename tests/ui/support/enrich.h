// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "model/bio_points.h"
#include "tests/support/game_fixture.h"

namespace plasmos::testing {

/// Gives a clan BP and those of some genes of which a copy is left, so that every kind of question comes up.
inline void Enrich(int clan, std::initializer_list<std::string_view> genes, int bp) {
    for (const auto code : genes) {
        const int gene = GeneNumber(code);
        if (!game.Genes[gene][clan] && game.Catalogue[gene].Supply >= 1) {
            Give(clan, code);
        }
    }
    GainBP(clan, bp);
}

}  // namespace plasmos::testing
