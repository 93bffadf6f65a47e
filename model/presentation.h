// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>
#include <utility>

#include "model/game_state.h"
#include "model/services.h"

namespace plasmos {

class Question;
struct Happening;

/// What the rules need of whoever shows the game: the window, the simulator's robot, a test's script.
/// Everything but the questions may be left out. The shown values are read from the current game.
///
/// Clans count from 1, squares from 1, row by row; pauses are in units of 75 ms.
class Presentation {
public:
    Presentation() = default;
    virtual ~Presentation() = default;
    Presentation(const Presentation&) = delete;
    Presentation& operator=(const Presentation&) = delete;

    /// Whether narration is to be put into words for this presentation.
    virtual bool WantsText() const { return true; }

    /// Whether a question is to say what its answers cost and bring.
    virtual bool WantsHints() const { return false; }

    // ---- the message line and the log ----
    /// Replaces the text of the message line, which the state holds. The colours are those of the clan; 0: no clan's.
    virtual void ShowMessage(std::string_view /*text*/, int /*clan*/) {}
    /// Empties the log and begins it with the game's header line.
    virtual void StartLog(std::string_view /*header*/) {}
    /// One line of narration for the log, about a clan; 0: about none alone.
    virtual void Log(std::string_view /*line*/, int /*clan*/) {}
    /// A phase of the turn begins ("Movement", "Environment", ...); Turn and Phase are set.
    virtual void ShowPhase(std::string_view /*phase*/) {}

    // ---- what happens ----
    /// Something has happened, and the state has it: pieces, labels, order of play and scores follow.
    virtual void ShowHappening(const Happening& /*happening*/) {}

    // ---- labels ----
    virtual void ShowCaption(std::string_view /*caption*/) {}
    virtual void ShowTurn() {}
    /// BP and genes of a clan, when a game begins.
    virtual void ShowClan(int /*clan*/) {}
    /// The clan that acts now. Where it is a person's, what it has made automatic is shown with it.
    virtual void ShowCurrentClan(int /*clan*/) {}
    /// Automatic eating and tentacle use of the acting clan have changed: check marks, labels and what
    /// is enabled follow; 0: a new game begins, nothing is automatic.
    virtual void ShowAutoFlags(int /*clan*/) {}
    /// The game is over: nothing automatic can be switched on until the next.
    virtual void DisableAutoEating() {}

    // ---- the text box for the replay number ----
    /// Hides the box and gives what was typed into it.
    virtual std::string TakeReplayText() { return {}; }

    // ---- the puddle ----
    virtual void DrawBoard() {}
    /// The acting piece is outlined, or no longer.
    virtual void OutlinePiece(int /*clan*/, int /*amoeba*/, bool /*on*/) {}

    // ---- time ----
    /// Lets the person follow: 75 ms a unit at the usual pace, longer or shorter as the person likes it, as long as it
    /// is held, and nothing in fast mode.
    virtual void Pause(int /*units*/) {}

    // ---- questions ----
    /// Shows a question; from now on its handlers may be called.
    virtual void Open(Question& question) = 0;
    /// The rule has changed what the open question shows.
    virtual void Refresh(Question& /*question*/) {}
    /// The question is over; its object is about to go.
    virtual void Close(Question& question) = 0;
    /// Returns when something has happened, after 100 ms at the latest. Throws ProgramEnd when the
    /// person has closed the window, GameLeft when nobody answers any more.
    virtual void Wait() = 0;
};

/// A board that shows nothing and of which nothing can be asked.
Presentation& SilentBoard();

/// The current presentation; without one it is the silent board.
inline Presentation& Board() {
    return services.Window != nullptr ? *services.Window : SilentBoard();
}

/// Lets the current presentation show something, if there is one: Show(&Presentation::ShowClan, clan).
template <class... Parameters, class... Arguments>
void Show(void (Presentation::*what)(Parameters...), Arguments&&... arguments) {
    if (services.Window != nullptr) {
        (services.Window->*what)(std::forward<Arguments>(arguments)...);
    }
}

/// A phase of the turn begins.
inline void BeginPhase(std::string_view phase) {
    game.Phase = phase;
    Show(&Presentation::ShowPhase, phase);
}

}  // namespace plasmos
