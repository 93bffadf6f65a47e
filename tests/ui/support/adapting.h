// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>
#include <string>

#include "tests/ui/support/position.h"

namespace plasmos::testing {

inline const std::string Changed =
    "The environment has changed.\nYou must pay the difference in BP between your amoebas' mutation-point value and "
    "the environmental UV-level, and/or discard genes until the difference is reduced to 0 or below.";
inline const std::string Refused =
    "You must make up the difference between the current environmental UV-level and the sum mutation-point value of "
    "your amoebas' genes by discarding genes and/or spending BP until the difference (\"UV cost\") is 0";
inline const std::string Offer = "Clan Player 3, you have %1 BP.\nWould you like to buy new Genes?";

inline QString Box(const char* code) {
    return QStringLiteral("gcheck%1").arg(GeneNumber(code));
}

inline std::string OfferWith(int bp) {
    return QString::fromStdString(Offer).arg(bp).toStdString();
}

inline bool IsBlue(Scene& scene) {
    return scene.Find(QStringLiteral("UVdiff"))->palette().color(QPalette::WindowText) == QColor(0, 0, 255);
}

/// A clan with "def", "esc" and "sub", 12 points, under a UV level of 8.
class AdaptScene : public PositionScene {
public:
    explicit AdaptScene(int bp, int clans = 4) : PositionScene(clans) {
        Give(3, {"def", "esc", "sub"});
        game.BP[3] = bp;
        game.EnvDeck[1] = {8, 1};
    }
    QString Cost() { return Text(QStringLiteral("UVdiff")); }
    void ThenGenes(std::function<void()> act) { Then(QuestionKind::Genes, std::move(act)); }
};

}  // namespace plasmos::testing
