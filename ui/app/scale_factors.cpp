// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/app/scale_factors.h"

#include <QByteArray>
#include <QList>
#include <algorithm>
#include <cstdio>

namespace plasmos {

namespace {

constexpr double LeastScale = 0.25;
constexpr double MostScale = 8;
constexpr double UsualDpi = 96;

/// What one variable may hold: a number, or a list of numbers with or without the screens' names.
struct Variable {
    const char* Name;
    bool List;
    double Unit;  ///< its value at the scale of 1
};

constexpr Variable Variables[] = {
    {"QT_SCALE_FACTOR", false, 1}, {"QT_SCREEN_SCALE_FACTORS", true, 1}, {"QT_FONT_DPI", false, UsualDpi}};

// A comparison with what is no number is false.
bool IsScale(const QByteArray& text, double unit) {
    bool number = false;
    const double scale = text.trimmed().toDouble(&number) / unit;
    return number && scale >= LeastScale && scale <= MostScale;
}

bool IsUsable(const Variable& variable, const QByteArray& value) {
    if (!variable.List) {
        return IsScale(value, variable.Unit);
    }
    const QList<QByteArray> entries = value.split(';');
    return std::all_of(entries.begin(), entries.end(), [&variable](const QByteArray& entry) {
        return entry.trimmed().isEmpty() || IsScale(entry.mid(entry.lastIndexOf('=') + 1), variable.Unit);
    });
}

}  // namespace

void CheckScaleFactors() {
    for (const Variable& variable : Variables) {
        const QByteArray value = qgetenv(variable.Name);
        if (!value.isEmpty() && !IsUsable(variable, value)) {
            qunsetenv(variable.Name);
            std::fprintf(stderr, "plasmos: %s is \"%.60s\", %g to %g is allowed; the screen is not scaled\n",
                         variable.Name, value.constData(), LeastScale * variable.Unit, MostScale * variable.Unit);
        }
    }
}

}  // namespace plasmos
