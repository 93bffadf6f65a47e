// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <string_view>
#include <type_traits>

#include "files/text.h"
#include "model/board_size.h"
#include "model/gene_rows.h"
#include "model/pcg32.h"
#include "model/table.h"

namespace plasmos {

inline constexpr int MinClans = 3;
inline constexpr int MaxClans = 6;
inline constexpr int MaxPieces = 7;
inline constexpr int MaxSquares = MaxBoardSquares;
inline constexpr int LastTurn = 10;
inline constexpr int LastCard = 10;
/// Characters of a clan's name.
inline constexpr int LongestClanName = 20;
/// Bytes of a piece's name.
inline constexpr int LongestPieceName = 60;
/// Spots for pieces inside one square; spot 0 is "not drawn".
inline constexpr int MaxSpots = 30;
/// The score at which a game with the victory limit ends.
inline constexpr int VictoryScore = 42;
/// Width and height of a square in board units (twips), whatever its size on the screen.
inline constexpr int SquareUnits = 1200;
/// The direction "where it wants": no step on the board, the amoeba may choose.
inline constexpr int WhereItWants = -666;
/// Bytes of the longest text in the message line: lines with the longest names, one below the other.
inline constexpr int MessageBytes = 1500;
/// A draw that has found nothing after so many tries takes the lowest legal square instead.
inline constexpr int MaxDraws = 10000;

/// One clan.
struct Clan {
    int Score = 0;                  ///< space of the score marker; no two clans share one after scoring
    int MutationLevel = 0;          ///< sum of the mutation points of the genes the clan holds
    std::int32_t Colour = 0;        ///< 0x00BBGGRR
    std::int32_t Personality = 0;   ///< bit (gene - 1): a favourite gene of a computer clan
    FixedText<12> PersonalityName;  ///< "Eater", "Mover", "Divider", "Eccentric" or "Miser"; a person has none
    bool IsComputer = false;
    FixedText<4 * LongestClanName> Name;
};

/// One amoeba piece.
struct Piece {
    int Square = 0;                    ///< 1..NumSquares; 0: not on the board
    int Damage = 0;                    ///< rises by 1 when it starves or loses a fight in armour
    int Slot = 0;                      ///< its spot inside the square, 1..30; 0: not drawn
    FixedText<LongestPieceName> Name;  ///< dealt from the names file; longer names are cut
};

/// One environment card.
struct EnvironmentCard {
    int UV = 0;
    int DriftDirection = 0;  ///< a square offset, or WhereItWants

    friend constexpr bool operator==(const EnvironmentCard&, const EnvironmentCard&) = default;
};

/// What a gene costs and does to the mutation level, and how many copies are left to buy.
struct GeneRecord {
    int Supply = 0;
    int Cost = 0;            ///< BP
    int MutationPoints = 0;  ///< may be negative
};

/// The check marks of the menus that the rules read.
struct MenuMarks {
    bool normmen = true;        ///< difficulty "Normal"
    bool victorymen = false;    ///< play to 42 points
    bool twoplayermen = false;  ///< clan 2 is a person's too
};

/// What a new game leaves as it is: the board and the switches.
struct GameSetup {
    int NumRows = DefaultSide;
    int NumCols = DefaultSide;
    int NumSquares = DefaultSide * DefaultSide;
    Table<bool, 0, MaxSquares> Blocked;
    /// Square next to a square by direction number 1 right, 2 down, 3 left, 4 up; the square itself
    /// where an edge or a block stops the step. Follows from the four fields above.
    Table<Table<std::int8_t, 0, 4>, 0, MaxSquares> NextTo;

    bool AutoPlay = false;   ///< a game of computer clans only
    bool FastMode = false;   ///< computer clans report to the log alone, and nothing pauses
    int RequestedClans = 0;  ///< 3..6: that many clans, nobody is asked; 0: asked or rolled
    bool HasRequestedReplay = false;
    float RequestedReplay = 0;  ///< the replay number, when the one above is set
    MenuMarks Menu;
};

/// What a new game starts afresh. Tables are dimensioned from 0 and leave index 0 unused.
struct GameTables {
    int NumPlayers = 0;  ///< clans in play, 3..6
    int MaxAmoeba = 0;   ///< pieces per clan: 7 with 3 or 4 clans, 6 with 5 or 6
    int Turn = 0;        ///< 0 while the game is set up, 1..10, 11 after a full game
    int CurPlayer = 0;   ///< the acting clan
    int CurAmoeba = 0;   ///< the acting piece
    int Drift = 0;       ///< square offset: 1, NumCols, -1, -NumCols, 0, or WhereItWants
    int UVLevel = 0;
    float ReplayNo = 0;  ///< the seed of this game's dice
    bool GameOver = false;
    /// "Movement", "Environment", "New genes", "Division", "Aggression" or "Scoring"; "" before the first.
    FixedText<12> Phase;

    int Reply = 0;   ///< 6 yes, 7 no, a click's x, or a number chosen
    int ReplyY = 0;  ///< a click's y; not 0 when a victim has been picked
    bool WantSquare = false;
    FixedText<12> DialogMode;  ///< "ENVIRONMENT", "NEWGENES", "HOLD", "TENTACLE", "PARASITE", "SFS", "AGGRESS" or ""
    int DoneFlag = 0;
    int MessageUnits = 0;  ///< pause units that the message line's text has a claim to
    int PauseOwed = 0;     ///< what is left of them
    int DiscardedPoints = 0;
    bool ParasiteHunt = false;  ///< no rule ever sets it

    Table<Clan, 0, MaxClans> Players;
    Table<int, 0, MaxClans> PlayOrder;   ///< clan at each place; place 1 moves first
    Table<int, 0, MaxClans> StartOrder;  ///< the order of play in which the game began, for statistics
    Table<int, 0, MaxClans> BP;
    Table<int, 0, MaxClans> AmoebaCount;
    Table<Table<bool, 0, MaxClans>, 0, GeneCount> Genes;  ///< [gene][clan]
    Table<GeneRecord, 0, GeneCount> Catalogue;            ///< [gene]
    Table<Table<int, 0, MaxClans>, 0, MaxSquares> Food;   ///< [square][clan's colour]
    Table<Table<Table<int, 0, LastTurn>, 0, MaxClans>, 0, MaxSquares> FoodHistory;
    Table<Table<Piece, 0, MaxClans>, 0, MaxPieces> Amoeba;  ///< [piece][clan]
    /// [gene][clan]: which of the game's purchases the gene was, from 1; 0: never bought.
    Table<Table<int, 0, MaxClans>, 0, GeneCount> BoughtAs;
    int Purchases = 0;                   ///< genes bought in this game
    Table<int, 0, MaxClans> NameChoice;  ///< among how many names the clan's first piece was named
    /// Pieces per square and clan; column 0 counts every clan's. Kept by PutPiece and LiftPiece.
    Table<Table<std::int8_t, 0, MaxClans>, 0, MaxSquares> Occupancy;
    Table<std::uint32_t, 0, MaxSquares> SpotsTaken;  ///< bit n: spot n of the square is taken
    Table<int, 0, 7> ScoreByAmoebaCount;
    Table<int, 0, 7> ScoreByGenes;
    Table<Table<bool, 0, 2>, 0, MaxClans> AutoFlags;  ///< [clan][1 eating, 2 tentacle]
    Table<std::int32_t, 0, GeneCount> PersonalityTable;
    Table<EnvironmentCard, 0, LastCard> EnvDeck;
    int TurnedCard = 0;  ///< the card of EnvDeck that was turned last; 0 lies open from the beginning

    Table<int, 0, 7> MenuAmounts;  ///< amounts of the food counted last; the first 0 ends the list
    Table<int, 0, 7> MenuColours;  ///< the colour each amount belongs to; 0: a lent piece
    FixedText<120> LegalMenus;     ///< the legal menus looked up last, as they are shown

    Pcg32 Generator;
    std::uint64_t Signature = 0;  ///< hash over the game's rolls, moves, meals, purchases, attacks, scores
    std::int64_t Decisions = 0;   ///< Move, Feed, Adapt, BuyGenes, Divide and Attack steps begun
};

/// What stands in the message line of whoever reads it. A new game empties it.
struct GameMessage {
    FixedText<MessageBytes> Message;  ///< lines parted by "\n"; a game that nobody reads has none
};

/// The one game. Every rule reads and writes it by name. A copy is the game as it stood: nothing in it is a
/// pointer.
struct GameState : GameSetup, GameTables, GameMessage {};

static_assert(std::is_trivially_copyable_v<GameState>);

/// The current game of this thread. The window has one; the simulator plays one on each core.
extern constinit thread_local GameState game;

/// Gives every table its value before a new game; the setup stays.
void ResetTables();

/// The board's size (3..9 rows and columns, at most 36 squares) and its blocked squares, each of
/// them 1..rows x columns. Raises error 5 where the bounds are left.
void SetBoard(int rows, int cols, std::string_view blocks = {});

// What is asked of a state can be asked of any; without one it is the current game's.

/// Whether a game has been played to its end.
inline bool IsOver(const GameState& state) {
    return state.NumPlayers > 0 && (state.Turn > LastTurn || state.GameOver);
}
inline bool IsOver() {
    return IsOver(game);
}

/// Whether a square is one of the board's and not covered by a block.
inline bool IsValidSquare(const GameState& state, int square) {
    return square >= 1 && square <= state.NumSquares && !state.Blocked[square];
}
inline bool IsValidSquare(int square) {
    return IsValidSquare(game, square);
}

/// The clan at a place of the order of play, 1..NumPlayers.
inline int ClanAtPlace(const GameState& state, int place) {
    return state.PlayOrder[place];
}
inline int ClanAtPlace(int place) {
    return ClanAtPlace(game, place);
}

/// Puts a piece on a square and a spot (0: not drawn) and counts it there.
void PutPiece(int clan, int amoeba, int square, int slot);

/// Takes a piece off its square; its name and damage stay.
void LiftPiece(int clan, int amoeba);

}  // namespace plasmos
