// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <gtest/gtest.h>

#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

#include "model/dice.h"
#include "model/game_state.h"
#include "model/genes.h"
#include "model/services.h"

namespace plasmos::testing {

/// A position to start a test from: a board of 5 x 5 without blocks and food, no piece on it, every
/// clan a computer's with 0 BP and no gene. Clans play in the order of their numbers and have the
/// scores N, N - 1, ..., 1; they are called "Player 1" and so on, their pieces "A1".."A7", "B1"...
void NewPosition(int clans, int rows = 5, int cols = 5, std::string_view blocks = {});

/// Makes a clan a person's.
void Person(int clan);

/// Puts a piece on a square; slot 0: the lowest free spot of the square. It counts as an amoeba of
/// its clan from then on.
void Put(int clan, int amoeba, int square, int slot = 0);

/// Gives genes by code, without BP and whatever the families say.
void Give(int clan, std::initializer_list<std::string_view> codes);
inline void Give(int clan, std::string_view code) {
    Give(clan, {code});
}

/// The food on a square, one number for each clan's colour 1, 2, ...
void Feed(int square, std::initializer_list<int> food);

/// The food on a square as it stands, one number for each clan in play.
std::vector<int> FoodOn(int square);

/// Codes of the genes a clan holds, in gene order, with blanks between.
std::string HeldGenes(int clan);

/// Rolls written down in advance; they replace the dice as long as the tape lives. Rolls left over at
/// its end fail the test.
class Script {
public:
    explicit Script(std::vector<int> rolls) : tape_(std::move(rolls)), before_(services.Tape) {
        services.Tape = &tape_;
    }
    ~Script() {
        services.Tape = before_;
        if (!mayBeLeft_ && !tape_.AtEnd()) {
            ADD_FAILURE() << "not every roll of the script was rolled";
        }
    }
    Script(const Script&) = delete;
    Script& operator=(const Script&) = delete;

    bool AtEnd() const { return tape_.AtEnd(); }
    /// Rolls left over are no failure.
    void MayBeLeft() { mayBeLeft_ = true; }

private:
    DiceTape tape_;
    DiceTape* before_;
    bool mayBeLeft_ = false;
};

/// Leaves nothing of a test's game behind: window, listener, files, settings, tape and switches.
void ForgetGame();

/// A test of the rules. Each one begins and ends without a game.
class GameTest : public ::testing::Test {
protected:
    GameTest() { ForgetGame(); }
    ~GameTest() override { ForgetGame(); }
};

/// A table of named rows; `Row` has a field `Name` of letters, digits and underscores.
template <class Row>
class GameRows : public GameTest, public ::testing::WithParamInterface<Row> {};

/// Names a row after its field `Name`.
struct RowName {
    template <class Row>
    std::string operator()(const ::testing::TestParamInfo<Row>& info) const {
        return std::string(info.param.Name);
    }
};

}  // namespace plasmos::testing
