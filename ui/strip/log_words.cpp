// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/strip/log_words.h"

#include <cstddef>
#include <string_view>

#include "files/text.h"
#include "model/game_state.h"
#include "model/genes.h"
#include "model/happening.h"
#include "model/turn_points.h"
#include "rules/environment.h"
#include "ui/look/colour_names.h"

namespace plasmos {

namespace {

using Kind = Happening::Kind;

std::string Actor(const GameState& state, const Happening& happening) {
    return PieceWords(state, happening.Clan, happening.Amoeba);
}

std::string Other(const GameState& state, const Happening& happening) {
    return PieceWords(state, happening.OtherClan, happening.OtherAmoeba);
}

std::string_view ClanName(const GameState& state, const Happening& happening) {
    return state.Players[happening.Clan].Name.View();
}

bool IsComputer(const GameState& state, int clan) {
    return state.Players[clan].IsComputer;
}

/// Message boxes that nobody is to dismiss go to the log.
bool BoxesAreLogged(const GameState& state) {
    return state.AutoPlay || state.FastMode;
}

std::string Nothing(const GameState&, const Happening&) {
    return {};
}

// A computer clan tells where it goes before it goes.
std::string MoveWords(const GameState& state, const Happening& move) {
    return IsComputer(state, move.Clan) ? std::string()
                                        : Concat(Actor(state, move), " moves from ", move.From, " to ", move.Square);
}

// The die's faces 1 to 4 are ways, 5 stays, 6 chooses.
std::string ThrowWords(const GameState& state, const Happening& toss) {
    constexpr std::string_view ways[] = {"right", "down", "left", "up"};
    const std::string thrown = Concat(Actor(state, toss), " throws ", toss.Number, ": ");
    if (toss.Square == 0) {
        return thrown + "it goes where it wants";
    }
    const std::string_view way = toss.Number <= 4 ? ways[toss.Number - 1] : std::string_view();
    return toss.Square == toss.From ? Concat(thrown, way, way.empty() ? "stays in " : ", stays in ", toss.From)
                                    : Concat(thrown, way, " to ", toss.Square);
}

// A computer clan tells that it stays.
std::string StayWords(const GameState& state, const Happening& stay) {
    return IsComputer(state, stay.Clan) ? std::string() : Concat(Actor(state, stay), " stays in ", stay.Square);
}

std::string LoadWords(const GameState& state, const Happening& load) {
    return Concat(Actor(state, load), " carries ", load.Number, " ", ColourName(load.OtherClan), " food from ",
                  load.From, " to ", load.Square);
}

std::string BirthWords(const GameState& state, const Happening& birth) {
    return Concat(Actor(state, birth), " is born in ", birth.Square);
}

// Who is eaten or torn to pieces has left its food already, and that has been told.
std::string DeathWords(const GameState& state, const Happening& death) {
    return death.Number == 0 ? std::string() : Concat(Actor(state, death), " dies of its damage in ", death.Square);
}

std::string WoundWords(const GameState& state, const Happening& wound) {
    return Concat(Actor(state, wound), " is wounded in its armour, damage ", wound.Number);
}

// A person whose piece is attacked is told.
std::string AttackWords(const GameState& state, const Happening& attack) {
    return IsComputer(state, attack.OtherClan)
               ? Concat(Actor(state, attack), " attacks ", Other(state, attack), " in ", attack.Square, " to eat it")
               : std::string();
}

std::string NoEscapeWords(const GameState& state, const Happening& escape) {
    return IsComputer(state, escape.Clan) ? Concat(Actor(state, escape), " fails to escape") : std::string();
}

std::string DefenceWords(const GameState& state, const Happening& defence) {
    return BoxesAreLogged(state) ? std::string() : Concat(Actor(state, defence), " beats off ", Other(state, defence));
}

std::string PurchaseWords(const GameState& state, const Happening& purchase) {
    return IsComputer(state, purchase.Clan) ? std::string()
                                            : Concat(ClanName(state, purchase), " buys ", GeneName(purchase.Number));
}

// What a computer clan gives up under the light is announced in a box.
std::string LossWords(const GameState& state, const Happening& loss) {
    const bool announced = IsComputer(state, loss.Clan) && state.Phase == "Environment" && BoxesAreLogged(state);
    return announced ? std::string() : Concat(ClanName(state, loss), " loses ", GeneName(loss.Number));
}

std::string IncomeWords(const GameState& state, const Happening& income) {
    return Concat(ClanName(state, income), " gains ", income.Number, " BP");
}

std::string Counted(int count, std::string_view what) {
    return Concat(count, " ", what, count == 1 ? "" : "s");
}

/// "(2 for 4 amoebas, 1 for 3 genes, 1 taken space jumped)"
std::string PointsWords(const GameState& state, const Happening& score) {
    const TurnPoints points = TurnPointsOf(state, score.Clan);
    const int jumped = score.Number - score.From - points.ForAmoebas - points.ForGenes;
    return Concat(" (", points.ForAmoebas, " for ", Counted(state.AmoebaCount[score.Clan], "amoeba"), ", ",
                  points.ForGenes, " for ", Counted(CountScoredGenes(state, score.Clan), "gene"),
                  HasGene(state, score.Clan, "ray") ? " besides Ray Protection" : "",
                  jumped > 0 ? Concat(", ", Counted(jumped, "taken space"), " jumped") : std::string(), ")");
}

std::string ScoreWords(const GameState& state, const Happening& score) {
    return Concat(ClanName(state, score),
                  score.From == score.Number ? Concat(" scores nothing and stays on ", score.From)
                                             : Concat(" scores: from ", score.From, " to ", score.Number),
                  PointsWords(state, score));
}

std::string CardWords(const GameState& state, const Happening& card) {
    return Concat("A new card: UV level ", card.Number, ", drift ", DirectionText(state, card.Second));
}

struct WordsRow {
    Kind What;
    std::string (*Words)(const GameState&, const Happening&);
};

constexpr WordsRow Rows[] = {
    {Kind::Moves, MoveWords},
    {Kind::Rides, Nothing},
    {Kind::IsDragged, Nothing},
    {Kind::Escapes, Nothing},
    {Kind::CarriesFood, LoadWords},
    {Kind::ChangesSpot, Nothing},
    {Kind::Throws, ThrowWords},
    {Kind::Stays, StayWords},
    {Kind::Eats, Nothing},
    {Kind::Parasitizes, Nothing},
    {Kind::Starves, Nothing},
    {Kind::IsBorn, BirthWords},
    {Kind::Dies, DeathWords},
    {Kind::IsEaten, Nothing},
    {Kind::IsTorn, Nothing},
    {Kind::IsWounded, WoundWords},
    {Kind::Attacks, Nothing},
    {Kind::AttacksToEat, AttackWords},
    {Kind::FailsToEscape, NoEscapeWords},
    {Kind::Defends, DefenceWords},
    {Kind::FailsToDefend, Nothing},
    {Kind::BuysGene, PurchaseWords},
    {Kind::LosesGene, LossWords},
    {Kind::PaysBP, Nothing},
    {Kind::GainsBP, IncomeWords},
    {Kind::ScoreMoves, ScoreWords},
    {Kind::CardIsTurned, CardWords},
    {Kind::OrderIsMade, Nothing},
};

constexpr bool InOrder() {
    std::size_t place = 0;
    for (const WordsRow& row : Rows) {
        if (static_cast<std::size_t>(row.What) != place++) {
            return false;
        }
    }
    return place == static_cast<std::size_t>(Kind::OrderIsMade) + 1;
}
static_assert(InOrder(), "a row for every kind, in their order");

}  // namespace

std::string QuietWords(const GameState& state, const Happening& happening) {
    return Rows[static_cast<std::size_t>(happening.What)].Words(state, happening);
}

std::string PieceWords(const GameState& state, int clan, int amoeba) {
    return Concat(state.Amoeba[amoeba][clan].Name, " (", amoeba, ") of ", state.Players[clan].Name);
}

}  // namespace plasmos
