// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace plasmos {

class Question;

/// A moment of a game that a picture can be taken at.
struct ShotMoment {
    const char* Name;
    bool (*Is)(const Question&);
};

/// The moment of a name: turn, meal, genes, adapt, birth, attack, victim, or end, which no question is; another name:
/// nullptr.
const ShotMoment* ShotMomentNamed(const QString& name);

}  // namespace plasmos
