// SPDX-License-Identifier: GPL-3.0-or-later
#include "flow/names.h"

#include <algorithm>
#include <iterator>
#include <string>
#include <vector>

#include "files/encoding.h"
#include "files/game_files.h"
#include "files/strings.h"
#include "model/dealt_names.h"
#include "model/dice.h"
#include "model/services.h"

namespace plasmos {

namespace {

constexpr int MostLines = 10000;

struct DefaultName {
    int Clan;
    std::string_view Name;
};

constexpr DefaultName DefaultNames[] = {
    {1, "Oddr"},      {1, "Offa"},      {1, "Olaf"},     {1, "Olga"},    {1, "Olwen"},     {1, "Ormr"},
    {1, "Ortlieb"},   {1, "Ortolf"},    {1, "Oscar"},    {1, "Oswald"},  {1, "Oswyn"},     {1, "Otberta"},
    {1, "Öndóttr"},   {1, "Otto"},      {2, "Baterich"}, {2, "Beatrix"}, {2, "Berchte"},   {2, "Berchtold"},
    {2, "Bergþórr"},  {2, "Bernhard"},  {2, "Bjórn"},    {2, "Bruno"},   {2, "Brünhilde"}, {3, "Gerdrut"},
    {3, "Gamli"},     {3, "Glúmr"},     {3, "Gollum"},   {3, "Gotfrid"}, {3, "Gregor"},    {3, "Grendel"},
    {3, "Gríma"},     {3, "Grünhilde"}, {3, "Gunnarr"},  {3, "Gunther"}, {3, "Gütel"},     {3, "Guy"},
    {4, "Ragnheiðr"}, {4, "Ragnhildr"}, {4, "Ramwold"},  {4, "Rauf"},    {4, "Rauðolfr"},  {4, "Rauðr"},
    {4, "Reinhardt"}, {4, "Reinolt"},   {4, "Roderick"}, {4, "Rönguðr"}, {4, "Roxanna"},   {4, "Rudolf"},
    {4, "Ruprecht"},  {4, "Rüdger"},    {5, "Harald"},   {5, "Helgi"},   {5, "Hrafn"},     {5, "Hrolf"},
    {5, "Skeggi"},    {5, "Snorri"},    {5, "Úlfr"},     {5, "Þorgils"}, {5, "Þorsteinn"}, {5, "Þóra"},
    {5, "Þórir"},     {6, "Yedythe"},   {6, "Yekene"},   {6, "Yorick"},  {6, "Yrmegard"},  {6, "Ysak"},
    {6, "Yttyt"},     {6, "Yvanka"},    {6, "Yngvarr"},  {6, "Yngvor"},
};

[[noreturn]] void RaiseTooFewNames(int clan, int names) {
    const auto where = services.Files != nullptr ? services.Files->PathOf(NamesFile) : std::string(NamesFile);
    throw RuntimeError(5, Concat("Invalid procedure call: ", where, " has ", names, " names for clan ", clan,
                                 " and must have ", game.MaxAmoeba));
}

/// Names a clan's pieces by die; a name that is taken leaves the list, whose order stays.
void NameClan(int clan, std::string_view* names, int count) {
    const int all = count;
    game.NameChoice[clan] = count;
    for (int amoeba = 1; amoeba <= game.MaxAmoeba; ++amoeba) {
        if (count == 0) {
            game.CurPlayer = clan;
            RaiseTooFewNames(clan, all);
        }
        std::string_view* drawn = names + (RollDie(count) - 1);
        game.Amoeba[amoeba][clan].Name = *drawn;
        std::copy(drawn + 1, names + count, drawn);
        --count;
    }
}

void NameFromDefaults() {
    std::string_view names[std::size(DefaultNames)];
    for (int clan = 1; clan <= game.NumPlayers; ++clan) {
        int count = 0;
        for (const DefaultName& entry : DefaultNames) {
            if (entry.Clan == clan) {
                names[count++] = entry.Name;
            }
        }
        NameClan(clan, names, count);
    }
}

void NameFromFile() {
    if (!services.Files->Exists(NamesFile)) {
        WriteDefaultNames();
    }
    std::vector<std::string> namesOf[MaxClans + 1];
    for (const auto& line : services.Files->ReadLines(NamesFile, MostLines)) {
        const NameLine entry = ParseNameLine(line);
        if (const auto name = OneLine(entry.Name); !Trim(name).empty()) {
            namesOf[entry.Clan].emplace_back(Trim(name));
        }
    }
    for (int clan = 1; clan <= game.NumPlayers; ++clan) {
        std::vector<std::string_view> names(namesOf[clan].begin(), namesOf[clan].end());
        NameClan(clan, names.data(), static_cast<int>(names.size()));
    }
}

/// The same rolls, and the names that were dealt.
void NameAsDealt() {
    for (int clan = 1; clan <= game.NumPlayers; ++clan) {
        const DealtNames::OfClan& dealt = services.Dealt->Of(clan);
        game.NameChoice[clan] = dealt.Choice;
        for (int amoeba = 1; amoeba <= game.MaxAmoeba; ++amoeba) {
            RollDie(dealt.Choice - amoeba + 1);
            game.Amoeba[amoeba][clan].Name = dealt.Pieces.at(static_cast<std::size_t>(amoeba - 1));
        }
    }
}

}  // namespace

NameLine ParseNameLine(std::string_view line) {
    line = Trim(line);
    if (line.size() < 3 || line[0] < '1' || line[0] > '6' || line.substr(1, 2) != " -") {
        return {};
    }
    const auto name = Trim(line.substr(3));
    return name.empty() ? NameLine{} : NameLine{line[0] - '0', name};
}

void WriteDefaultNames() {
    std::string text;
    for (const DefaultName& entry : DefaultNames) {
        text += Concat(entry.Clan, " - ", entry.Name, "\n");
    }
    services.Files->Rewrite(NamesFile, text);
}

void LoadAmoebaNames() {
    if (services.Dealt != nullptr && services.Dealt->AreFor(game.NumPlayers)) {
        NameAsDealt();
    } else if (services.Files != nullptr) {
        NameFromFile();
    } else {
        NameFromDefaults();
    }
}

}  // namespace plasmos
