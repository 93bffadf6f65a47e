// SPDX-License-Identifier: GPL-3.0-or-later
#include "record/going_back.h"

#include <gtest/gtest.h>

#include "model/consistency.h"
#include "record/play_record.h"
#include "tests/record/restless_robot.h"
#include "tests/support/game_fixture.h"
#include "tests/support/test_scale.h"

namespace plasmos::testing {
namespace {

/// Goes on as a robot does, once the inputs are over.
class PlayOn : public InputPlayer {
public:
    PlayOn(const InputList& inputs, Observer* next, Presentation& robot) : InputPlayer(inputs, next), robot_(&robot) {}

    void Open(Question& question) override { open_.push_back(&question); }
    void Close(Question& question) override {
        open_.erase(std::remove(open_.begin(), open_.end(), &question), open_.end());
    }

protected:
    void Exhausted(Question&) override {
        services.Window = robot_;
        for (Question* question : open_) {
            robot_->Open(*question);
        }
    }

private:
    Presentation* robot_;
    std::vector<Question*> open_;
};

/// Robots that stop to answer after a while.
class ShortRobot : public Robot {
public:
    ShortRobot(std::uint64_t seed, int answers) : Robot(seed, 7), answers_(answers) {}

    void Wait() override {
        if (answers_-- == 0) {
            throw GameLeft{};
        }
        Robot::Wait();
    }

private:
    int answers_;
};

class GoingBack : public GameTest {
protected:
    /// Plays a game again from inputs, and on by a robot for so many waits; its state is looked through.
    std::unique_ptr<GameRecorder> Play(int number, const InputList& inputs, std::uint64_t seed, int waits) {
        services = {};
        SetUpRestlessGame(number);
        game.FastMode = true;
        auto recorder = std::make_unique<GameRecorder>();
        ShortRobot robot(seed, waits);
        services.Listener = recorder.get();
        {
            PlayOn player(inputs, recorder.get(), robot);
            PlayOrLeave();
        }
        services = {};
        EXPECT_EQ(CheckConsistency(false), "");
        DropLeaving(recorder->Inputs);
        return recorder;
    }
};

TEST_F(GoingBack, AThousandTimesBackAndForthInManyGames) {
    Pcg32 chance;
    chance.Seed(11, 3);
    int taken = 0;
    int again = 0;
    for (int number = 1; taken + again < Scaled(10000); ++number) {
        SCOPED_TRACE(number);
        auto played = Play(number, {}, static_cast<std::uint64_t>(number), 30 + number % 50);
        TakenBack back;
        for (int turn = 0; turn < 40; ++turn) {
            const auto drawn = chance.Next() % 5;
            const auto on = back.PlaceToGoOnTo(played->Inputs);
            const auto place = PlaceToTakeBackTo(*played, 0);
            if (drawn < 3 && place) {
                ASSERT_LT(*place, played->Inputs.size());
                back.Keep(*played);
                const InputList inputs(played->Inputs.begin(),
                                       played->Inputs.begin() + static_cast<std::ptrdiff_t>(*place));
                played = Play(number, inputs, 0, 0);
                ASSERT_EQ(played->Inputs, inputs);
                ASSERT_TRUE(back.PlaceToGoOnTo(inputs).has_value());
                ++taken;
            } else if (drawn == 3 && on) {
                ASSERT_GT(*on, played->Inputs.size());
                const InputList inputs = back.InputsTo(*on);
                played = Play(number, inputs, 0, 0);
                ASSERT_EQ(played->Inputs, inputs);
                ++again;
            } else if (drawn == 4) {
                played = Play(number, played->Inputs, chance.Next(), 3);
            }
        }
    }
    EXPECT_GT(taken, Scaled(10000) / 3);
    EXPECT_GT(again, Scaled(10000) / 20);
}

/// Whether a clan was asked when so many inputs had been given, and what came then was an answer it meant.
bool AnsweredThere(const GameRecorder& played, int clan, std::size_t inputs) {
    const auto& places = played.Places();
    const bool asked = std::any_of(places.begin(), places.end(), [&](const GameRecorder::Place& place) {
        return place.Inputs == inputs && (place.Clan == clan || place.Clan == 0);
    });
    const Input& next = played.Inputs.at(inputs);
    return asked && next.IsAnswer() && next.Given.What != Answer::Kind::LeaveField &&
           next.Given.What != Answer::Kind::LookAway;
}

TEST_F(GoingBack, TwoPersonsHaveTheirOwnLastAnswers) {
    int apart = 0;
    for (int number = 2; number <= 40; number += 2) {  // clans 2 and 3 are persons'
        SCOPED_TRACE(number);
        const auto played = Play(number, {}, 5, 40 + number);
        std::size_t places[2] = {};
        for (const int clan : {2, 3}) {
            const auto place = PlaceToTakeBackTo(*played, clan);
            ASSERT_TRUE(place.has_value());
            for (std::size_t later = *place + 1; later < played->Inputs.size(); ++later) {
                ASSERT_FALSE(AnsweredThere(*played, clan, later)) << clan << ": " << played->Inputs[later].Text();
            }
            places[clan - 2] = *place;
        }
        apart += places[0] != places[1] ? 1 : 0;
    }
    EXPECT_GT(apart, 10) << "each has its own";
}

TEST_F(GoingBack, NothingIsTakenBackBeforeTheFirstAnswer) {
    auto played = Play(4, {}, 5, 0);
    EXPECT_FALSE(PlaceToTakeBackTo(*played, 0).has_value());
    EXPECT_FALSE(TakenBack().PlaceToGoOnTo({}).has_value());
}

}  // namespace
}  // namespace plasmos::testing
