// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

// The rules of it: docs/rules.md#new-genes

namespace plasmos {

/// Each clan may buy genes with its BP: a person in the gene dialog, box by box, a computer clan by
/// its personality.
void NewGenesPhase();

/// Whether a person's clan is asked: genes 1 to 10 are walked in number order; one that costs more
/// than the clan's BP ends the walk without an offer, one that is affordable, in supply and not held
/// ends it with an offer, and so does the end of the walk. Genes 11 to 20 are never looked at.
bool OffersGenes(int clan);

}  // namespace plasmos
