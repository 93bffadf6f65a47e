// SPDX-License-Identifier: GPL-3.0-or-later
#include "record/game_record.h"

#include <algorithm>

#include "model/board_size.h"
#include "model/dice.h"
#include "model/game_state.h"
#include "record/record_words.h"

namespace plasmos {

namespace {

int PersonsOf(const GameSetup& setup) {
    if (setup.AutoPlay) {
        return 0;
    }
    return setup.Menu.twoplayermen ? 2 : 1;
}

RecordHead::ClansAre HowClansAreFound(const GameSetup& setup) {
    if (setup.RequestedClans != 0) {
        return RecordHead::ClansAre::Given;
    }
    return setup.AutoPlay ? RecordHead::ClansAre::Rolled : RecordHead::ClansAre::Asked;
}

std::vector<int> BlocksOf(const GameSetup& setup) {
    std::vector<int> blocks;
    for (int square = 1; square <= setup.NumSquares; ++square) {
        if (setup.Blocked[square]) {
            blocks.push_back(square);
        }
    }
    return blocks;
}

std::string NamesText(int clan, const DealtNames::OfClan& dealt) {
    std::string text = Concat("names ", clan, " of ", dealt.Choice, " ", Quoted(dealt.Name), ":");
    for (const std::string& name : dealt.Pieces) {
        text += " " + Quoted(name);
    }
    return text + "\n";
}

const char* OnOff(bool on) {
    return on ? "on" : "off";
}

}  // namespace

std::string RecordFault::Told() const {
    return Line > 0 ? Concat("line ", Line, ": ", Text) : Text;
}

RecordHead HeadOfBeginning() {
    RecordHead head;
    head.Rows = game.NumRows;
    head.Cols = game.NumCols;
    head.Blocks = BlocksOf(game);
    head.Persons = PersonsOf(game);
    head.Normal = game.Menu.normmen;
    head.Victory = game.Menu.victorymen;
    head.Fast = game.FastMode;
    head.How = HowClansAreFound(game);
    return head;
}

bool NoteDealt(RecordHead& head) {
    if (game.NumPlayers == 0 || game.Amoeba[game.MaxAmoeba][game.NumPlayers].Name.Empty()) {
        return false;
    }
    head.ReplayNo = game.ReplayNo;
    head.Clans = game.NumPlayers;
    head.Names.Clans.clear();
    for (int clan = 1; clan <= game.NumPlayers; ++clan) {
        DealtNames::OfClan dealt{game.Players[clan].Name.String(), game.NameChoice[clan], {}};
        for (int amoeba = 1; amoeba <= game.MaxAmoeba; ++amoeba) {
            dealt.Pieces.push_back(game.Amoeba[amoeba][clan].Name.String());
        }
        head.Names.Clans.push_back(std::move(dealt));
    }
    return true;
}

void BeginAs(const RecordHead& head) {
    SetBoard(head.Rows, head.Cols, BlocksText(head.Blocks));
    game.Menu = {head.Normal, head.Victory, head.Persons == 2};
    game.FastMode = head.Fast;
    game.AutoPlay = head.Persons == 0;
    game.RequestedClans = head.How == RecordHead::ClansAre::Given ? head.Clans : 0;
    game.HasRequestedReplay = true;
    game.RequestedReplay = head.ReplayNo;
    services.Dealt = &head.Names;
}

std::string HeadText(const RecordHead& head) {
    std::string text = Concat(
        FirstLine, "\nrules ", head.Rules, "\nreplay ", ReplayText(head.ReplayNo), "\nrows ", head.Rows, "\ncolumns ",
        head.Cols, "\nblocks ", head.Blocks.empty() ? "none" : BlocksText(head.Blocks), "\npersons ", head.Persons,
        "\ndifficulty ", head.Normal ? "normal" : "easy", "\nvictory ", OnOff(head.Victory), "\nfast ",
        OnOff(head.Fast), "\nclans ", head.Clans, " ", HowWords[static_cast<std::size_t>(head.How)], "\n");
    for (int clan = 1; clan <= head.Clans; ++clan) {
        text += NamesText(clan, head.Names.Of(clan));
    }
    return text + "inputs\n";
}

std::string InputText(const Input& input) {
    return input.Text() + (input.Refused ? "\nrefused\n" : "\n");
}

std::string RecordText(const GameRecord& record) {
    std::string text = HeadText(record.Head);
    for (const Input& input : record.Inputs) {
        text += InputText(input);
    }
    return text;
}

}  // namespace plasmos
