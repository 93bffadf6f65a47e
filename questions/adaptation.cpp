// SPDX-License-Identifier: GPL-3.0-or-later
#include "questions/adaptation.h"

#include <algorithm>
#include <optional>
#include <utility>

#include "model/genes.h"

namespace plasmos {

namespace {

/// Genes that are given up for some points, and what they are worth.
struct Loss {
    int Worth = 0;
    std::vector<int> Genes;

    bool IsLessThan(const Loss& other) const {
        return std::pair(Worth, Genes.size()) < std::pair(other.Worth, other.Genes.size());
    }
};

/// The least loss for each number of points; the last stands for that many and more.
std::vector<std::optional<Loss>> LeastLosses(const GameState& state, int clan, int most) {
    std::vector<std::optional<Loss>> losses(static_cast<std::size_t>(most + 1));
    losses[0] = Loss{};
    for (int gene = 1; gene <= GeneCount; ++gene) {
        const GeneRecord& record = state.Catalogue[gene];
        for (int points = most - 1; points >= 0 && state.Genes[gene][clan] && gene != GeneId("ray"); --points) {
            const auto& before = losses[static_cast<std::size_t>(points)];
            auto& after = losses[static_cast<std::size_t>(std::min(points + record.MutationPoints, most))];
            if (!before) {
                continue;
            }
            Loss loss = *before;
            loss.Worth += record.Cost;
            loss.Genes.push_back(gene);
            if (!after || loss.IsLessThan(*after)) {
                after = loss;
            }
        }
    }
    return losses;
}

}  // namespace

Adaptation CheapestAdaptation(const GameState& state, int clan) {
    const int difference = std::max(state.Players[clan].MutationLevel - state.UVLevel, 0);
    const auto losses = LeastLosses(state, clan, difference);
    Adaptation best;
    std::optional<Loss> least;
    for (int points = 0; points <= difference; ++points) {
        const auto& loss = losses[static_cast<std::size_t>(points)];
        const int paid = difference - points;
        if (!loss || paid > state.BP[clan]) {
            continue;
        }
        const Loss total{loss->Worth + paid, loss->Genes};
        if (!least || total.IsLessThan(*least)) {
            least = total;
            best = {loss->Genes, paid};
        }
    }
    return best;
}

}  // namespace plasmos
