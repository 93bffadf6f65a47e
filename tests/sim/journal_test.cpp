// SPDX-License-Identifier: GPL-3.0-or-later
#include <gmock/gmock.h>

#include <nlohmann/json.hpp>
#include <set>
#include <sstream>

#include "flow/play_game.h"
#include "model/dice.h"
#include "model/services.h"
#include "sim/journal.h"
#include "sim/simulate.h"
#include "tests/support/game_fixture.h"

namespace plasmos::testing {
namespace {

using nlohmann::json;

std::vector<json> Records(const std::string& journal) {
    std::vector<json> records;
    std::istringstream lines(journal);
    for (std::string line; std::getline(lines, line);) {
        records.push_back(json::parse(line));
    }
    return records;
}

std::string JournalOf(float replay, int persons = 0, int clans = 0) {
    SimOptions options;
    options.FirstReplay = replay;
    options.Persons = persons;
    options.Clans = clans;
    options.Journal = "wanted";
    PrepareThread(options, nullptr);
    return SimulateGame(options, 0).Journal;
}

class JournalTest : public GameTest {};

TEST_F(JournalTest, BeginsWithTheGameAndEndsWithItsOutcome) {
    const auto records = Records(JournalOf(4711));
    EXPECT_EQ(records.front()["t"], "game");
    EXPECT_EQ(records.front()["replay"], 4711);
    EXPECT_EQ(records.front()["rows"], 5);
    EXPECT_EQ(records.front()["blocks"], json::array());
    EXPECT_EQ(records.front()["difficulty"], "Normal");
    EXPECT_EQ(records.front()["victory"], false);
    EXPECT_EQ(records.front()["persons"], json::array());
    EXPECT_EQ(records[1]["t"], "begin");
    EXPECT_EQ(records[1]["step"], "NewGame");
    EXPECT_EQ(records.back()["t"], "over");
    EXPECT_EQ(records.back()["turns"], 10);
    EXPECT_EQ(records.back()["winner"], records.back()["order"][0]);
    EXPECT_EQ(records.back()["order"].size(), records.front()["clans"].get<std::size_t>());
}

/// The journal without the lines of one kind, and how many those were.
std::string Without(std::string_view kind, const std::string& journal, int& left) {
    std::string rest;
    std::istringstream lines(journal);
    for (std::string line; std::getline(lines, line);) {
        if (line.rfind(Concat(R"({"t":")", kind, "\""), 0) == 0) {
            ++left;
        } else {
            rest += line + "\n";
        }
    }
    return rest;
}

TEST_F(JournalTest, ReasonsAreLinesOfTheirOwnAndTheRestIsAsItWas) {
    for (const int persons : {0, 1, 2}) {
        SimOptions options;
        options.FirstReplay = 12;
        options.Persons = persons;
        options.Journal = "wanted";
        options.Why = true;
        PrepareThread(options, nullptr);
        const auto told = SimulateGame(options, 0);
        int reasons = 0;
        EXPECT_EQ(Without("why", told.Journal, reasons), JournalOf(12, persons));
        EXPECT_GT(reasons, 100);
        std::string open;
        for (const auto& record : Records(told.Journal)) {
            if (record["t"] == "begin" || record["t"] == "end") {
                open = record["t"] == "begin" ? record["step"].get<std::string>() : "";
            }
            EXPECT_TRUE(record["t"] != "why" || !open.empty()) << record;
        }
    }
}

TEST_F(JournalTest, EveryStepBeginsAndEndsInItsOrder) {
    const std::vector<std::string> order{"NewGame", "Move",   "Environment", "Adapt", "BuyGenes",
                                         "Divide",  "Deaths", "Attack",      "Score"};
    std::string open;
    int turn = 0;
    std::size_t place = 0;
    for (const auto& record : Records(JournalOf(5))) {
        if (record["t"] == "begin") {
            EXPECT_EQ(open, "");
            open = record["step"];
            if (record["turn"] > turn) {
                EXPECT_EQ(record["turn"], turn + 1);
                turn = record["turn"];
                place = 1;
            }
            const auto step = open == "Feed" ? std::string("Move") : open;
            const auto found = std::find(order.begin(), order.end(), step) - order.begin();
            EXPECT_GE(static_cast<std::size_t>(found), place) << "turn " << turn << " " << open;
            place = static_cast<std::size_t>(found);
        } else if (record["t"] == "end") {
            EXPECT_EQ(record["step"], open);
            EXPECT_TRUE(record.contains("state"));
            open.clear();
        }
    }
    EXPECT_EQ(turn, 10);
}

TEST_F(JournalTest, TheStateIsCompleteAtEveryEnd) {
    const auto records = Records(JournalOf(6, 0, 4));
    for (const auto& record : records) {
        if (record["t"] != "end") {
            continue;
        }
        const auto& state = record["state"];
        EXPECT_EQ(state["deck"].size(), 11U);
        EXPECT_EQ(state["order"].size(), 4U);
        EXPECT_EQ(state["supply"].size(), std::size(GeneRows));
        EXPECT_EQ(state["food"].size(), 25U);
        EXPECT_EQ(state["food"][0].size(), 4U);
        ASSERT_EQ(state["clans"].size(), 4U);
        EXPECT_EQ(state["clans"][3]["amoebas"].size(), 7U);
    }
    const auto& state = records[std::size_t(
        std::find_if(records.begin(), records.end(), [](const json& r) { return r["t"] == "end"; }) - records.begin())]
                               ["state"];
    EXPECT_EQ(state["turn"], 0);
    EXPECT_EQ(state["uv"], state["deck"][0][0]);
    EXPECT_EQ(state["drift"], state["deck"][0][1]);
    std::set<std::string> keys;
    for (const auto& [key, value] : state["clans"][0].items()) {
        keys.insert(key);
    }
    EXPECT_THAT(keys, ::testing::ElementsAre("amoebas", "bp", "computer", "genes", "mutation", "name", "personality",
                                             "personalityName", "score"));
}

TEST_F(JournalTest, ItsRollsPlayTheSameGameAgain) {
    for (const float replay : {1.0F, 2.5F, 77.0F}) {
        const std::string first = JournalOf(replay);
        std::vector<int> rolls;
        for (const auto& record : Records(first)) {
            if (record["t"] == "roll") {
                rolls.push_back(record["r"]);
            }
        }
        DiceTape tape(rolls);
        services.Tape = &tape;
        EXPECT_EQ(JournalOf(replay), first);
        EXPECT_TRUE(tape.AtEnd());
        services.Tape = nullptr;
    }
}

TEST_F(JournalTest, TheSameGameGivesTheSameBytesTwice) {
    EXPECT_EQ(JournalOf(9), JournalOf(9));
    EXPECT_EQ(JournalOf(9, 2, 5), JournalOf(9, 2, 5));
    EXPECT_NE(JournalOf(9), JournalOf(10));
}

TEST_F(JournalTest, PersonsAreAskedAndSomeOfTheirAnswersAreRefused) {
    std::set<std::string> kinds;
    int refused = 0;
    int boxes = 0;
    for (int replay = 1; replay <= 40; ++replay) {
        for (const auto& record : Records(JournalOf(static_cast<float>(replay), 2))) {
            if (record["t"] == "ask") {
                kinds.insert(record["kind"].get<std::string>());
            }
            refused += record["t"] == "answer" && record.contains("accepted") && !record["accepted"] ? 1 : 0;
            boxes += record["t"] == "box" ? 1 : 0;
        }
    }
    EXPECT_THAT(kinds, ::testing::IsSupersetOf({"yesno", "square", "number", "food", "genes", "victim"}));
    EXPECT_GT(refused, 20);
    EXPECT_GT(boxes, 20);
}

TEST_F(JournalTest, NobodyIsAskedInAGameOfComputerClans) {
    for (const auto& record : Records(JournalOf(3))) {
        EXPECT_NE(record["t"], "ask");
        EXPECT_NE(record["t"], "box");
    }
}

TEST_F(JournalTest, TextsAreEscaped) {
    std::string text;
    AppendJsonText(text, "a \"b\"\\\n\x01 Þóra");
    EXPECT_EQ(json::parse(text), "a \"b\"\\\n\x01 Þóra");
}

}  // namespace
}  // namespace plasmos::testing
