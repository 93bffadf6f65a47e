// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <string>

#include "files/runtime_error.h"
#include "flow/play_game.h"
#include "model/game_state.h"
#include "model/services.h"
#include "record/input_list.h"
#include "sim/robot.h"

namespace plasmos::testing {

/// A robot that turns every switch there is, at any time, and sometimes leaves.
class RestlessRobot : public Robot, public PassingObserver {
public:
    RestlessRobot(std::uint64_t seed, Observer* next) : Robot(seed, seed), PassingObserver(next) {
        generator_.Seed(seed, 55);
    }

    bool WantsText() const override { return PassingObserver::WantsText(); }
    void Wait() override {
        TurnSomething(8);
        if (!services.Switches.Leaves()) {
            Robot::Wait();
        }
    }
    void OnBegin(Step step, int clan, int amoeba) override {
        PassingObserver::OnBegin(step, clan, amoeba);
        TurnSomething(30);
    }
    void OnRoll(int n, int face) override {
        PassingObserver::OnRoll(n, face);
        TurnSomething(100);
    }

private:
    void TurnSomething(unsigned oneIn) {
        if (generator_.Next() % oneIn != 0) {
            return;
        }
        const auto drawn = generator_.Next() % 500;
        const auto kind = drawn == 0 ? Switch::Kind::Leave : static_cast<Switch::Kind>(drawn % 5);
        const bool automatic = kind == Switch::Kind::Eating || kind == Switch::Kind::Tentacle;
        const int clan = automatic ? 1 + static_cast<int>(generator_.Next() % 6) : 0;
        const bool on = kind == Switch::Kind::Leave || generator_.Next() % 2 == 0;
        services.Switches.Add({kind, clan, on});
    }

    Pcg32 generator_;
};

/// Plays a game to its end, or until the person leaves it.
inline void PlayOrLeave() {
    try {
        PlayOneGame();
    } catch (const GameLeft&) {
    }
    services.Switches.Clear();
}

/// The inputs as a file would hold them.
inline InputList ThroughText(const InputList& inputs) {
    InputList read;
    for (const Input& input : inputs) {
        EXPECT_EQ(Input::Parse(input.Text(), read.emplace_back()), "");
        read.back().Refused = input.Refused;
    }
    return read;
}

/// The place where two journals part, or an empty text.
inline std::string FirstDifference(const std::string& again, const std::string& first) {
    const auto [one, other] = std::mismatch(again.begin(), again.end(), first.begin(), first.end());
    if (one == again.end() && other == first.end()) {
        return {};
    }
    const auto begin = std::max(one - again.begin(), std::ptrdiff_t{300}) - 300;
    const auto place = static_cast<std::size_t>(begin);
    return "again: " + again.substr(place, 500) + "\n\nfirst: " + first.substr(place, 500);
}

/// Board, marks, clans and replay number of a numbered game, all kinds of them in turn.
inline void SetUpRestlessGame(int number) {
    const int sides[][2] = {{5, 5}, {3, 4}, {6, 6}, {4, 9}};
    SetBoard(sides[number % 4][0], sides[number % 4][1]);
    game.Menu = {number % 3 != 0, number % 5 == 0, number % 2 == 0};
    game.RequestedClans = number % 7 == 0 ? 0 : 3 + number % 4;
    game.HasRequestedReplay = true;
    game.RequestedReplay = static_cast<float>(number) + 0.5F;
    game.AutoPlay = false;
    game.FastMode = number % 3 == 1;
}

}  // namespace plasmos::testing
