// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace plasmos {

class Question;

/// A moment of a game that a picture can be taken at.
struct ShotMoment {
    const char* Name;
    bool (*Is)(const Question&);
    const char* Item = nullptr;  ///< of the menus, to be chosen then; none: nullptr
    int Times = 1;
    bool Ends = false;  ///< the game ends with that, and the picture is taken afterwards
};

/// The moment of a name: start, turn, meal, genes, adapt, birth, attack, victim, look, why, resume, or end, which no
/// question is; another name: nullptr.
const ShotMoment* ShotMomentNamed(const QString& name);

}  // namespace plasmos
