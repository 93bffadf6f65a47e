// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/app/shot_wish.h"

#include "model/dice.h"
#include "model/game_state.h"
#include "ui/look/dress.h"

namespace plasmos {

namespace {

bool ReadSize(const QString& text, QSize& size) {
    const QStringList sides = text.split(QLatin1Char('x'));
    bool width = false;
    bool height = false;
    if (sides.size() == 2) {
        size = QSize(sides[0].toInt(&width), sides[1].toInt(&height));
    }
    return width && height && size.width() >= 300 && size.height() >= 200 && size.width() <= 8000 &&
           size.height() <= 8000;
}

/// Takes the value of an option into a wish; what is wrong with it, or nullptr.
const char* TakeOption(const QString& option, const QString& value, Wish& wish) {
    if (option == QLatin1String("--replay")) {
        return ParseReplayNumber(value.toStdString(), wish.Replay) ? nullptr : "the replay number is no number";
    }
    if (option == QLatin1String("--size")) {
        return ReadSize(value, wish.Size) ? nullptr : "the size is no size";
    }
    if (option == QLatin1String("--colours")) {
        wish.Colours = SchemeNamed(value);
        return wish.Colours ? nullptr : "the colours are light, dark or contrast";
    }
    if (option == QLatin1String("--points")) {
        wish.Points = value.toInt();
        return wish.Points >= 6 && wish.Points <= 30 ? nullptr : "letters have 6 to 30 points";
    }
    if (option == QLatin1String("--clans")) {
        wish.Clans = value.toInt();
        return wish.Clans >= MinClans && wish.Clans <= MaxClans ? nullptr : "there are 3 to 6 clans";
    }
    if (option == QLatin1String("--at")) {
        wish.At = ShotMomentNamed(value);
        return wish.At != nullptr ? nullptr : "there is no such moment";
    }
    wish.Folder = value;
    wish.Boards = option == QLatin1String("--boards");
    wish.Film = option == QLatin1String("--film");
    return wish.Boards || wish.Film || option == QLatin1String("--demo") ? nullptr : "unknown argument";
}

}  // namespace

std::optional<Wish> ReadWish(const QStringList& arguments, const char*& why) {
    Wish wish;
    why = nullptr;
    for (qsizetype i = 0; i < arguments.size() && why == nullptr; ++i) {
        const QString& argument = arguments[i];
        if (argument.startsWith(QLatin1String("--"))) {
            why = i + 1 < arguments.size() ? TakeOption(argument, arguments[i + 1], wish) : "a value is missing";
            ++i;
        } else if (!wish.File.isEmpty()) {
            why = "unknown argument";
        } else {
            wish.File = argument;
        }
    }
    if (why == nullptr && wish.File.isEmpty() == wish.Folder.isEmpty()) {
        why = "one file or one folder is wanted";
    }
    return why == nullptr ? std::optional(wish) : std::nullopt;
}

}  // namespace plasmos
