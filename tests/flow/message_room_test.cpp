// SPDX-License-Identifier: GPL-3.0-or-later
// The message line of the state has room for whatever is told, with the longest names there can be.
#include <gtest/gtest.h>

#include <algorithm>

#include "files/settings_store.h"
#include "flow/play_game.h"
#include "model/services.h"
#include "sim/robot.h"
#include "tests/support/game_fixture.h"
#include "tests/support/memory_files.h"
#include "tests/support/test_scale.h"

namespace plasmos::testing {
namespace {

constexpr int Games = 60;

/// Compares what is shown with what the state holds.
class Comparer : public Robot {
public:
    using Robot::Robot;

    bool WantsText() const override { return true; }
    void ShowMessage(std::string_view text, int) override {
        EXPECT_EQ(game.Message, text);
        Longest = std::max(Longest, text.size());
    }

    std::size_t Longest = 0;
};

std::string Repeated(std::string_view character, int times) {
    std::string text;
    for (int i = 0; i < times; ++i) {
        text += character;
    }
    return text;
}

class MessageRoom : public GameTest {
protected:
    MessageRoom() {
        for (int clan = 1; clan <= MaxClans; ++clan) {
            settings.Save("players", Concat("name", clan), Repeated("\xF0\x9F\xA6\xA0", 20));
            for (int name = 1; name <= MaxPieces; ++name) {
                files.Files[std::string(NamesFile)] += Concat(clan, " - ", Repeated("\xE2\x99\xA5", 20), name, "\n");
            }
        }
        services.Settings = &settings;
    }

    MemoryFiles files;
    MemorySettings settings;
};

TEST_F(MessageRoom, IsEnoughForWholeGames) {
    std::size_t longest = 0;
    for (int replay = 1; replay <= Scaled(Games); ++replay) {
        Comparer person(9, static_cast<std::uint64_t>(replay));
        services.Window = &person;
        SetBoard(3, 4);
        game.HasRequestedReplay = true;
        game.RequestedReplay = static_cast<float>(replay);
        game.RequestedClans = 3 + replay % 4;
        game.Menu.twoplayermen = true;
        PlayGame();
        services.Window = nullptr;
        longest = std::max(longest, person.Longest);
    }
    RecordProperty("longest", static_cast<int>(longest));
    EXPECT_GT(longest, 300U) << "the names were short";
    EXPECT_LT(longest, MessageBytes * 2U / 3) << "longer lines may be told one day";
}

TEST_F(MessageRoom, NobodyReadsWhatNobodyWants) {
    game.HasRequestedReplay = true;
    game.RequestedReplay = 5;
    Robot person(9, 1);
    services.Window = &person;
    PlayGame();
    services.Window = nullptr;
    EXPECT_EQ(game.Message, "");
}

}  // namespace
}  // namespace plasmos::testing
