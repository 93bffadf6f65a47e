// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace plasmos {

/// The feeding turn of a computer clan's amoeba, or of a person's that eats by itself: it eats what
/// SuggestMenu offers, else attacks another clan's amoeba in the square, feeds as a parasite, or starves.
void ComputerFeedAmoeba(int clan, int amoeba, int square);

}  // namespace plasmos
