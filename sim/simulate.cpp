// SPDX-License-Identifier: GPL-3.0-or-later
#include "sim/simulate.h"

#include <algorithm>
#include <bit>
#include <optional>

#include "flow/play_game.h"
#include "model/consistency.h"
#include "model/genes.h"
#include "model/services.h"
#include "model/step.h"
#include "model/trace.h"
#include "record/play_record.h"
#include "record/record_file.h"
#include "sim/journal.h"
#include "sim/robot.h"

namespace plasmos {

namespace {

/// A state that does not hold together was found after a step.
struct Finding {
    std::string Text;
};

/// Looks through the state after every step, and passes everything on to the journal if there is one.
class CheckingJournal final : public Journal {
public:
    CheckingJournal(bool check, bool write, bool why) : check_(check), write_(write), why_(why) {}

    bool WantsText() const override { return write_; }
    bool WantsReasons() const override { return why_; }
    void OnRoll(int n, int face) override {
        if (write_) {
            Journal::OnRoll(n, face);
        }
    }
    void OnBegin(Step step, int clan, int amoeba) override {
        if (write_) {
            Journal::OnBegin(step, clan, amoeba);
        }
    }
    void OnEnd(Step step, int clan, int amoeba) override {
        if (write_) {
            Journal::OnEnd(step, clan, amoeba);
        }
        if (check_) {
            if (const auto fault = CheckConsistency(step == Step::Score); !fault.empty()) {
                throw Finding{Concat("turn ", game.Turn, ", step ", StepName(step), " of clan ", clan, ", amoeba ",
                                     amoeba, ": ", fault)};
            }
        }
    }

private:
    bool check_;
    bool write_;
    bool why_;
};

void ReadClans(GameResult& result) {
    for (int place = 1; place <= game.NumPlayers; ++place) {
        result.ByClan[game.StartOrder[place]].StartPlace = place;
    }
    for (int clan = 1; clan <= game.NumPlayers; ++clan) {
        auto& entry = result.ByClan[clan];
        const Clan& player = game.Players[clan];
        entry.Personality = player.IsComputer ? player.PersonalityName.View() : "person";
        entry.Score = player.Score;
        entry.Amoebas = game.AmoebaCount[clan];
        entry.Genes = CountGenes(clan);
        entry.BP = game.BP[clan];
    }
}

void ReadResult(GameResult& result) {
    result.Clans = game.NumPlayers;
    result.Turns = std::min(game.Turn, LastTurn);
    result.Winner = game.PlayOrder[1];
    result.Decisions = game.Decisions;
    result.Signature = game.Signature;
    ReadClans(result);
}

void NoteSettings(const SimOptions& options, GameResult& result) {
    if (options.Format == ResultFormat::Json) {
        result.Settings = SettingsText(options);
    }
}

/// The errors of a game are collected instead of ending the program.
void PlayCaught(const SimOptions& options, GameResult& result) {
    try {
        if (options.Persons > 0) {
            game.AutoPlay = false;
            PlayOneGame();
        } else {
            game.AutoPlay = true;
            PlayOneGame();
        }
        ReadResult(result);
    } catch (const Finding& finding) {
        result.Fault = finding.Text;
    } catch (const ProgramEnd&) {
        result.Fault = "a run-time error ended the game; its record is above";
    } catch (const std::exception&) {
        AppendErrorRecord(CurrentError(), game.CurPlayer, game.CurAmoeba);
        result.Fault = "a run-time error ended the game; its record is above";
    }
}

}  // namespace

void PrepareThread(const SimOptions& options, GameFiles* files) {
    SetBoard(options.Rows, options.Cols, options.Blocks);
    game.Menu = {options.Normal, options.Victory, options.Persons == 2};
    game.RequestedClans = options.Clans;
    game.FastMode = true;
    game.HasRequestedReplay = true;
    services.Files = files;
}

GameResult SimulateGame(const SimOptions& options, std::int64_t index) {
    GameResult result;
    result.Replay = ReplayOf(options, index);
    game.RequestedReplay = result.Replay;

    const bool writes = !options.Journal.empty();
    CheckingJournal journal(options.Check, writes, options.Why);
    std::optional<Robot> robot;
    if (options.Persons > 0) {
        robot.emplace(options.Robot, std::bit_cast<std::uint32_t>(result.Replay));
        services.Window = &*robot;
    }
    services.Listener = options.Check || writes ? &journal : nullptr;
    GameRecorder recorder(services.Listener);
    if (!options.Records.empty()) {
        services.Listener = &recorder;
    }
    PlayCaught(options, result);
    services.Listener = nullptr;
    services.Window = nullptr;
    NoteSettings(options, result);
    result.Journal = journal.Text();
    if (!options.Records.empty()) {
        result.Record = RecordText(recorder.Record());
    }
    return result;
}

GameResult SimulateRecord(const SimOptions& options, GameFiles* files) {
    const ReadRecord read = ReadRecordFile(options.Record);
    const auto refuse = [&](const RecordFault& fault) {
        throw UsageError(Concat("--record: ", fault.Line > 0 ? options.Record + ", " : std::string(), fault.Told()));
    };
    if (!read.Fault.Text.empty()) {
        refuse(read.Fault);
    }
    GameResult result;
    result.Replay = read.Record.Head.ReplayNo;
    services.Files = files;
    CheckingJournal journal(options.Check, !options.Journal.empty(), options.Why);
    try {
        const PlayedRecord played = PlayRecord(read.Record, &journal);
        if (played.Broken) {
            result.Fault = FaultOf(read, played).Told();
        } else if (!played.Fault.empty()) {
            refuse(FaultOf(read, played));
        } else {
            ReadResult(result);
        }
    } catch (const Finding& finding) {
        result.Fault = finding.Text;
    }
    NoteSettings(options, result);
    result.Journal = journal.Text();
    return result;
}

}  // namespace plasmos
