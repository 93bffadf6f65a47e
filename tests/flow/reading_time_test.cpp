// SPDX-License-Identifier: GPL-3.0-or-later
// Whole games whose every line can be read.
#include <gmock/gmock.h>

#include <algorithm>

#include "flow/play_game.h"
#include "model/services.h"
#include "tests/support/game_fixture.h"
#include "tests/support/line_reader.h"
#include "tests/support/test_scale.h"

namespace plasmos::testing {
namespace {

using ::testing::IsEmpty;

/// Games with a number of persons, and what must have been told in them at least once.
struct ReadingRow {
    std::string_view Name;
    int Persons;
    std::vector<std::string_view> Told;
};

void PrintTo(const ReadingRow& row, std::ostream* out) {
    *out << row.Name;
}

class ReadingTime : public GameRows<ReadingRow> {
protected:
    static constexpr int Games = 20;

    static void PlayOne(LineReader& reader, int replay) {
        services.Window = &reader;
        game.HasRequestedReplay = true;
        game.RequestedReplay = static_cast<float>(replay);
        game.RequestedClans = 3 + replay % 4;
        game.Menu.twoplayermen = GetParam().Persons == 2;
        if (GetParam().Persons == 0) {
            PlayUnattended();
        } else {
            PlayGame();
        }
        reader.Finish();
        services.Window = nullptr;
    }

    void Count(const LineReader& reader) {
        lines_ += reader.Lines;
        personsLines_ += reader.PersonsLines;
        for (std::size_t i = 0; i < told_.size(); ++i) {
            told_[i] += std::count_if(reader.Gone.begin(), reader.Gone.end(), [i](const std::string& line) {
                return line.find(GetParam().Told[i]) != std::string::npos;
            });
        }
    }

    int lines_ = 0;
    int personsLines_ = 0;
    std::vector<long> told_ = std::vector<long>(GetParam().Told.size());
};

TEST_P(ReadingTime, IsLeftForEveryLine) {
    for (int replay = 1; replay <= Scaled(Games); ++replay) {
        LineReader reader(1, static_cast<std::uint64_t>(replay));
        PlayOne(reader, replay);
        EXPECT_THAT(reader.Unseen, IsEmpty()) << "replay number " << replay;
        Count(reader);
    }
    RecordProperty("lines", lines_);
    EXPECT_GT(lines_, 100 * Scaled(Games));
    EXPECT_EQ(personsLines_ > 0, GetParam().Persons > 0);
    for (std::size_t i = 0; i < told_.size() && Scaled(Games) >= Games; ++i) {
        EXPECT_GT(told_[i], 0) << "a line with \"" << GetParam().Told[i] << '"';
    }
}

const ReadingRow ReadingRows[] = {
    {"of_watched_games", 0, {" moves ", " eats ", " just bought: ", " parasitizing off of clan ", " starves in "}},
    {"of_one_persons_games", 1, {" moves ", " eats ", " just bought: ", " will drift into ", "Would "}},
    {"of_two_persons_games", 2, {" moves ", " eats ", " just bought: ", " picking a fight with "}},
};

INSTANTIATE_TEST_SUITE_P(Games, ReadingTime, ::testing::ValuesIn(ReadingRows), RowName());

}  // namespace
}  // namespace plasmos::testing
