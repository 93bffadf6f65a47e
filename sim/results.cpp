// SPDX-License-Identifier: GPL-3.0-or-later
#include "sim/results.h"

#include <cstdio>
#include <nlohmann/json.hpp>

#include "model/dice.h"

namespace plasmos {

namespace {

std::string CsvRecord(const GameResult& result) {
    std::string text = Concat(ReplayText(result.Replay), ",", result.Clans, ",", result.Turns, ",", result.Winner);
    for (int clan = 1; clan <= MaxClans; ++clan) {
        const auto& entry = result.ByClan[clan];
        text += clan <= result.Clans ? Concat(",", entry.Personality, ",", entry.Score, ",", entry.Amoebas, ",",
                                              entry.Genes, ",", entry.BP)
                                     : std::string(",,,,,");
    }
    return text + "\n";
}

std::string JsonRecord(const GameResult& result) {
    nlohmann::ordered_json record;
    record["clans"] = result.Clans;
    record["turns"] = result.Turns;
    record["winner"] = result.Winner;
    for (int clan = 1; clan <= result.Clans; ++clan) {
        const auto& entry = result.ByClan[clan];
        record["players"].push_back({{"personality", entry.Personality},
                                     {"place", entry.StartPlace},
                                     {"score", entry.Score},
                                     {"amoebas", entry.Amoebas},
                                     {"genes", entry.Genes},
                                     {"bp", entry.BP}});
    }
    record["settings"] = result.Settings;
    // The number is written as everywhere else: minus zero has its sign.
    return Concat(R"({"replay":)", ReplayText(result.Replay), ",", record.dump().substr(1), "\n");
}

std::string CsvHeading() {
    std::string text = "replay,clans,turns,winner";
    for (int clan = 1; clan <= MaxClans; ++clan) {
        for (const char* column : {"personality", "score", "amoebas", "genes", "bp"}) {
            text += Concat(",", column, clan);
        }
    }
    return text + "\n";
}

std::string Row(const std::string& name, std::int64_t seats, std::int64_t wins, double score, double amoebas,
                double genes) {
    char row[160];
    std::snprintf(row, sizeof row, "%-12s %10lld %10lld %7.2f%% %8.2f %8.2f %8.2f\n", name.c_str(),
                  static_cast<long long>(seats), static_cast<long long>(wins),
                  100.0 * static_cast<double>(wins) / static_cast<double>(seats), score, amoebas, genes);
    return row;
}

}  // namespace

void ResultWriter::Count(const GameResult& result) {
    ++games_;
    for (int clan = 1; clan <= result.Clans; ++clan) {
        const auto& entry = result.ByClan[clan];
        for (Tally* tally :
             {&byPersonality_[std::string(entry.Personality)], &byPlace_[Concat("place ", entry.StartPlace)]}) {
            ++tally->Seats;
            tally->Wins += result.Winner == clan ? 1 : 0;
            tally->Score += entry.Score;
            tally->Amoebas += entry.Amoebas;
            tally->Genes += entry.Genes;
        }
    }
}

std::string ResultWriter::Begin() const {
    return format_ == ResultFormat::Csv ? CsvHeading() : std::string();
}

std::string ResultWriter::Add(const GameResult& result) {
    switch (format_) {
        case ResultFormat::Csv: return CsvRecord(result);
        case ResultFormat::Json: return JsonRecord(result);
        default: Count(result); return {};
    }
}

std::string ResultWriter::End() const {
    if (format_ != ResultFormat::Table) {
        return {};
    }
    std::string text = Concat("games: ", games_, "\n");
    for (const auto* tallies : {&byPersonality_, &byPlace_}) {
        text += tallies == &byPersonality_
                    ? "\npersonality       seats       wins    share    score  amoebas    genes\n"
                    : "\nstarting order    seats       wins    share    score  amoebas    genes\n";
        for (const auto& [name, tally] : *tallies) {
            const auto seats = static_cast<double>(tally.Seats);
            text += Row(name, tally.Seats, tally.Wins, static_cast<double>(tally.Score) / seats,
                        static_cast<double>(tally.Amoebas) / seats, static_cast<double>(tally.Genes) / seats);
        }
    }
    return text;
}

}  // namespace plasmos
