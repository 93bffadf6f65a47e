// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace plasmos {

/// What a person changes while the rules run, beside answering, as a value. It is stored where it happens and
/// taken over at one place, `TakeSwitches()`, between two steps of the game or while a question waits, so that the
/// same switches at the same places give the same game.
struct Switch {
    enum class Kind : std::uint8_t {
        Normal,    ///< the difficulty: "Normal", else "Easy"
        Victory,   ///< the game ends at 42 points
        FastMode,  ///< computer clans report to the log alone, and nothing pauses
        Eating,    ///< the clan's amoebas eat by themselves
        Tentacle,  ///< the clan's tentacles carry by themselves
        Leave      ///< the person leaves the game
    };

    Kind What = Kind::Leave;
    int Clan = 0;    ///< of the automatic ones; 0 for the others
    bool On = true;  ///< leaving is always on

    /// The switch as one line: "set normal off", "set eating 3 on", "leave game".
    std::string Text() const;
    /// Reads what Text() writes. What comes back is what is wrong with the line and what is expected, or an
    /// empty text.
    static std::string Parse(std::string_view line, Switch& read);

    friend bool operator==(const Switch&, const Switch&) = default;
};

/// The switches that wait to be taken over; of those that turn the same the latest alone. There is room for all.
class SwitchQueue {
public:
    bool Empty() const { return count_ == 0; }
    void Add(const Switch& turned);
    /// The oldest; there must be one.
    Switch Next();
    void Clear() { count_ = 0; }
    /// Whether the person wants to leave.
    bool Leaves() const { return Find(Switch::Kind::Leave, 0) != nullptr; }
    /// The switch of a kind, and of a clan for the automatic ones, 0 for the others; none: nullptr.
    const Switch* Find(Switch::Kind kind, int clan) const;

private:
    static constexpr int Most = 32;

    Switch waiting_[Most];
    int count_ = 0;
};

/// Where switches are taken over.
enum class TakenAt { Step, Question };

/// Whether fast mode is on as the person has it, whether or not the rules have taken that over.
bool WantsFastMode();
/// The same for what a clan's amoebas do by themselves.
bool WantsAutomatic(int clan, Switch::Kind kind);

/// No game is played: what still waits counts from now on, and nobody leaves.
void SettleSwitches();

/// Takes over what has been switched since the last time. Throws GameLeft when the person leaves.
void TakeSwitches(TakenAt place);

}  // namespace plasmos
