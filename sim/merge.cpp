// SPDX-License-Identifier: GPL-3.0-or-later
#include "sim/merge.h"

#include <algorithm>
#include <nlohmann/json.hpp>
#include <string>
#include <vector>

#include "flow/personalities.h"
#include "model/dice.h"
#include "sim/line_source.h"
#include "sim/results.h"

namespace plasmos {

namespace {

using Json = nlohmann::json;

constexpr int MostScore = 1000;
constexpr int MostBP = 100000;

/// The games of one file; they come in replay order.
class ResultFile {
public:
    explicit ResultFile(const std::string& path) : lines_(path) { Advance(); }

    bool AtEnd() const { return atEnd_; }
    const GameResult& Game() const { return game_; }
    /// Where its next game stands.
    std::string Place() const { return Concat(lines_.Path(), ", line ", lines_.Number()); }

    void Advance() {
        const GameResult before = game_;
        const bool first = lines_.Number() == 0;
        std::string line;
        atEnd_ = !lines_.Next(line);
        if (atEnd_) {
            return;
        }
        Read(line);
        if (!first && !(game_.Replay > before.Replay)) {
            Fail(Concat("game ", ReplayText(game_.Replay), " stands behind game ", ReplayText(before.Replay),
                        "; a run has them in order, each once"));
        }
        if (!first && game_.Settings != before.Settings) {
            Fail("the settings are others than in the line above");
        }
    }

    [[noreturn]] void Fail(const std::string& what) const {
        throw UsageError(Concat("--merge: ", Place(), ": ", what));
    }

private:
    int Number(const Json& record, const char* key, int least, int most) const {
        const auto found = record.find(key);
        if (found == record.end() || !found->is_number_integer() || found->get<std::int64_t>() < least ||
            found->get<std::int64_t>() > most) {
            Fail(Concat("\"", key, "\" with a number from ", least, " to ", most, " is wanted"));
        }
        return found->get<int>();
    }

    std::string Word(const Json& record, const char* key) const {
        const auto found = record.find(key);
        if (found == record.end() || !found->is_string()) {
            Fail(Concat("\"", key, "\" with a text is wanted"));
        }
        return found->get<std::string>();
    }

    void ReadClan(const Json& record, GameResult::ClanResult& clan) const {
        const auto personality = Word(record, "personality");
        if (personality != "person" && !IsPersonality(personality)) {
            Fail(Concat(R"("personality" is one of a clan's, or "person", and not ")", personality, "\""));
        }
        clan.Personality = personality;
        clan.StartPlace = Number(record, "place", 1, MaxClans);
        clan.Score = Number(record, "score", 0, MostScore);
        clan.Amoebas = Number(record, "amoebas", 0, MaxPieces);
        clan.Genes = Number(record, "genes", 0, GeneCount);
        clan.BP = Number(record, "bp", 0, MostBP);
    }

    void ReadClans(const Json& record) {
        game_.Clans = Number(record, "clans", MinClans, MaxClans);
        game_.Turns = Number(record, "turns", 1, LastTurn);
        game_.Winner = Number(record, "winner", 1, game_.Clans);
        const auto players = record.find("players");
        if (players == record.end() || !players->is_array() || static_cast<int>(players->size()) != game_.Clans) {
            Fail(Concat("\"players\" with ", game_.Clans, " clans is wanted"));
        }
        for (int clan = 1; clan <= game_.Clans; ++clan) {
            ReadClan((*players)[static_cast<std::size_t>(clan - 1)], game_.ByClan[clan]);
        }
    }

    /// Read as it is written: minus zero has its sign.
    void ReadReplay(std::string_view line) {
        constexpr std::string_view before = R"({"replay":)";
        const auto end = line.find(',');
        const bool there = line.substr(0, before.size()) == before && end != std::string_view::npos;
        if (!there || !ParseReplayNumber(line.substr(before.size(), end - before.size()), game_.Replay)) {
            Fail("\"replay\" with a replay number is wanted first");
        }
    }

    void Read(const std::string& line) {
        const Json record = Json::parse(line, nullptr, false);
        if (!record.is_object()) {
            Fail("this is no result of plasmos-sim --format json");
        }
        game_ = {};
        ReadReplay(line);
        game_.Settings = Word(record, "settings");
        ReadClans(record);
    }

    LineSource lines_;
    GameResult game_;
    bool atEnd_ = false;
};

void RequireSame(const ResultFile& first, const ResultFile& other) {
    if (first.Game().Settings != other.Game().Settings) {
        other.Fail(Concat("played with \"", other.Game().Settings, "\", and ", first.Place(), " with \"",
                          first.Game().Settings, "\"; only runs with the same settings are added up"));
    }
}

/// The files by their next games, the first of them last.
bool ComesLater(const ResultFile* one, const ResultFile* other) {
    return one->Game().Replay > other->Game().Replay;
}

}  // namespace

void MergeResults(const SimOptions& options, const std::function<bool(const GameResult&)>& take) {
    std::vector<ResultFile> files;
    files.reserve(options.Merge.size());
    std::vector<ResultFile*> next;
    for (const std::string& path : options.Merge) {
        files.emplace_back(path);
        if (!files.back().AtEnd()) {
            next.push_back(&files.back());
            RequireSame(*next.front(), *next.back());
        }
    }
    std::make_heap(next.begin(), next.end(), ComesLater);
    GameResult before;
    std::string placeBefore;
    while (!next.empty()) {
        std::pop_heap(next.begin(), next.end(), ComesLater);
        ResultFile& file = *next.back();
        if (!placeBefore.empty() && file.Game().Replay == before.Replay) {
            file.Fail(Concat("game ", ReplayText(before.Replay), " is in ", placeBefore, ", too"));
        }
        before = file.Game();
        placeBefore = file.Place();
        if (!take(before)) {
            return;
        }
        file.Advance();
        if (file.AtEnd()) {
            next.pop_back();
        } else {
            std::push_heap(next.begin(), next.end(), ComesLater);
        }
    }
}

}  // namespace plasmos
