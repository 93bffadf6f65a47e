// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QSize>
#include <QString>
#include <QStringList>
#include <optional>

#include "ui/app/shot_moments.h"
#include "ui/look/theme.h"

namespace plasmos {

/// What pictures are wanted.
struct Wish {
    QString File;
    QString Folder;
    bool Film = false;    ///< the folder is for the pictures of a turn that goes by
    bool Boards = false;  ///< the folder is for the sample boards, not for a demonstration
    float Replay = 4711;
    QSize Size{1320, 860};
    std::optional<Scheme> Colours;
    int Points = 0;  ///< of the desktop's letters; 0: as they are
    int Clans = 0;   ///< 0: as the person chooses
    const ShotMoment* At = ShotMomentNamed(QStringLiteral("turn"));
};

/// What is wanted; nothing where the arguments make no sense, with the reason in `why`.
std::optional<Wish> ReadWish(const QStringList& arguments, const char*& why);

}  // namespace plasmos
