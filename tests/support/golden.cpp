// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/support/golden.h"

#include <cinttypes>
#include <cstdio>
#include <nlohmann/json.hpp>
#include <sstream>

#include "model/signature.h"
#include "sim/simulate.h"

namespace plasmos::testing {

namespace {

std::string Digest(const std::string& text) {
    std::uint64_t hash = 0;
    for (const char c : text) {
        hash = FoldHash(hash, static_cast<unsigned char>(c));
    }
    char digits[17];
    std::snprintf(digits, sizeof digits, "%016" PRIx64, hash);
    return digits;
}

/// What happens between the begin and the end of a step.
struct StepStory {
    std::string Heading;
    std::string Rolls;
    int Lines = 0;
    int Questions = 0;
    std::string Words;

    std::string Line(const std::string& state) const {
        return Concat(Heading, " | rolls", Rolls, " | lines ", Lines, " questions ", Questions, " | ", Digest(Words),
                      " ", Digest(state));
    }
};

std::string HeadingOf(const nlohmann::json& begin) {
    std::string heading = Concat("turn ", begin.at("turn").get<int>(), " ", begin.at("step").get<std::string>());
    for (const char* key : {"clan", "amoeba"}) {
        if (begin.contains(key)) {
            heading += Concat(" ", begin.at(key).get<int>());
        }
    }
    return heading;
}

}  // namespace

std::vector<GoldenGame> GoldenGames() {
    const auto game = [](std::string name, float replay, int clans, int persons, int rows, int cols,
                         std::string blocks) {
        SimOptions options;
        options.Games = 1;
        options.FirstReplay = replay;
        options.Clans = clans;
        options.Persons = persons;
        options.Rows = rows;
        options.Cols = cols;
        options.Blocks = std::move(blocks);
        options.Journal = "wanted";
        return GoldenGame{std::move(name), options};
    };
    std::vector<GoldenGame> games{game("three_clans", 11, 3, 0, 5, 5, ""),
                                  game("four_clans_with_blocks", 12, 4, 0, 4, 5, "7:12:"),
                                  game("five_clans_on_36_squares", 13.5F, 5, 0, 6, 6, "8:15:22:"),
                                  game("six_clans_on_12_squares", 14, 6, 0, 3, 4, ""),
                                  game("one_person", 15, 4, 1, 5, 5, ""),
                                  game("two_persons_easy_victory", 16, 5, 2, 4, 9, "1:36:")};
    games.back().Options.Normal = false;
    games.back().Options.Victory = true;
    return games;
}

std::vector<std::string> TellSteps(const GoldenGame& golden) {
    PrepareThread(golden.Options, nullptr);
    std::istringstream journal(SimulateGame(golden.Options, 0).Journal);
    std::vector<std::string> steps;
    StepStory story;
    for (std::string line; std::getline(journal, line);) {
        const auto record = nlohmann::json::parse(line);
        const auto kind = record.at("t").get<std::string>();
        if (kind == "begin") {
            story = {HeadingOf(record), {}, 0, 0, {}};
        } else if (kind == "roll") {
            story.Rolls += Concat(" ", record.at("n").get<int>(), ":", record.at("r").get<int>());
        } else if (kind == "end") {
            steps.push_back(story.Line(record.at("state").dump()));
        } else if (kind == "game" || kind == "over") {
            steps.push_back(line);
        } else {
            story.Lines += kind == "say" ? 1 : 0;
            story.Questions += kind == "ask" ? 1 : 0;
            story.Words += line;
        }
    }
    return steps;
}

std::string GoldenFile(const std::string& name) {
    return Concat(PLASMOS_SOURCES, "/tests/golden/", name, ".txt");
}

}  // namespace plasmos::testing
