// SPDX-License-Identifier: GPL-3.0-or-later
#include "record/play_record.h"

#include <exception>

#include "files/runtime_error.h"
#include "flow/play_game.h"

namespace plasmos {

namespace {

/// The state is kept before the rules tidy up behind their question. Nobody reads the message line.
class RecordPlayer : public InputPlayer {
public:
    RecordPlayer(const InputList& inputs, Observer* listener, PlayedRecord& played)
        : InputPlayer(inputs, listener), played_(&played) {}

    bool WantsText() const override { return false; }
    bool Asked() const { return asked_; }

protected:
    void Exhausted(Question& question) override {
        played_->State = game;
        asked_ = true;
        InputPlayer::Exhausted(question);
    }

private:
    PlayedRecord* played_;
    bool asked_ = false;
};

/// A game that was recorded was told in words, and what is asked may hang on that.
class ToldInWords : public PassingObserver {
public:
    using PassingObserver::PassingObserver;

    bool WantsText() const override { return true; }
};

/// Puts back what a game that is played again needs beside the state.
class OwnServices {
public:
    explicit OwnServices(const RecordHead& head) : before_(services) {
        services = {};
        services.Files = before_.Files;
        BeginAs(head);
    }
    ~OwnServices() { services = before_; }
    OwnServices(const OwnServices&) = delete;
    OwnServices& operator=(const OwnServices&) = delete;

private:
    Services before_;
};

/// The rules broke down at what was put in last, which is not sound then.
void NoteBroken(const InputPlayer& player, const std::string& fault, PlayedRecord& played) {
    played.Broken = true;
    played.HeadFits = player.Given() > 0;
    played.Sound = player.Given() > 0 ? player.Given() - 1 : 0;
    played.Fault = Concat("the game cannot go on behind this line: ", fault);
    played.State = game;
}

void PlayInputs(RecordPlayer& player, PlayedRecord& played) {
    try {
        PlayOneGame();
        played.Over = true;
        if (!player.AtEnd()) {
            played.Fault = "the game is over before this line";
        }
    } catch (const GameLeft&) {
    }
    played.Sound = player.Given();
    if (!player.Asked()) {
        played.State = game;
    }
}

void Play(const GameRecord& record, Observer* listener, PlayedRecord& played) {
    RecordPlayer player(record.Inputs, listener, played);
    ToldInWords told(&player);
    services.Listener = &told;
    try {
        PlayInputs(player, played);
    } catch (const InputFault& fault) {
        played.Sound = fault.Input;
        played.Fault = fault.Text;
        played.State = game;
    } catch (const ProgramEnd&) {
        NoteBroken(player, "a run-time error ended it", played);
    } catch (const std::exception& error) {
        NoteBroken(player, error.what(), played);
    }
}

bool ClansFit(const RecordHead& head) {
    return game.NumPlayers == 0 || game.NumPlayers == head.Clans;
}

/// The moment that is looked for is there.
struct Reached {};

/// The current game, and whom it talks to, stay aside while this lives.
class GameAside {
public:
    GameAside() : game_(game), services_(services) { services = {}; }
    ~GameAside() {
        game = game_;
        services = services_;
    }
    GameAside(const GameAside&) = delete;
    GameAside& operator=(const GameAside&) = delete;

private:
    GameState game_;
    Services services_;
};

}  // namespace

PlayedRecord PlayRecord(const GameRecord& record, Observer* listener) {
    PlayedRecord played;
    const OwnServices own(record.Head);
    Play(record, listener, played);
    if (!ClansFit(record.Head)) {
        played.HeadFits = false;
        played.Fault = Concat("the head tells of ", record.Head.Clans, " clans, and ", game.NumPlayers, " play");
    }
    return played;
}

PlayedRecord PlayRecordApart(const GameRecord& record) {
    const GameAside aside;
    return PlayRecord(record);
}

GameState StateAt(const GameRecord& record, int moment) {
    const GameAside aside;
    GameState state;
    GameRecorder recorder;
    recorder.OnMoment = [&](int reached) {
        if (reached == moment) {
            state = game;
            throw Reached{};
        }
    };
    try {
        state = PlayRecord(record, &recorder).State;
    } catch (const Reached&) {
    }
    return state;
}

RecordFault FaultOf(const ReadRecord& read, const PlayedRecord& played) {
    if (played.Fault.empty()) {
        return read.Fault;
    }
    const bool atInput = played.HeadFits && played.Sound < read.Lines.size();
    return {atInput ? read.Lines[played.Sound] : 0, played.Fault};
}

}  // namespace plasmos
