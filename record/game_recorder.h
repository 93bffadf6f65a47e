// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "record/game_record.h"
#include "record/turn_figures.h"

namespace plasmos {

/// Writes a whole game down as it is played, and where one can go back to in it.
///
/// What the game tells its listener, steps beginning and ending and happenings, is counted: so many things told are a
/// moment, and every moment of a game that is played again from its record is as it was.
class GameRecorder : public InputRecorder {
public:
    explicit GameRecorder(Observer* next = nullptr) : InputRecorder(next) {}

    /// A question has opened to a person: so many inputs had been given.
    struct Place {
        std::size_t Inputs = 0;
        int Clan = 0;  ///< the asked clan; 0: whoever sits at the screen
        int Moment = 0;
    };
    /// A phase has begun.
    struct Chapter {
        int Turn = 0;
        FixedText<12> Phase;  ///< empty while the game is set up
        int Moment = 0;
    };

    /// What is asked may hang on whether words are wanted; whoever plays the record wants them.
    bool WantsText() const override { return true; }
    bool WantsReasons() const override { return true; }
    /// Why a computer clan did something: what was told in one step.
    struct Why {
        int Begin = 0;  ///< the moment at which the step began
        int Turn = 0;
        int Clan = 0;
        int Amoeba = 0;
        Step What = Step::NewGame;
        std::vector<std::pair<int, std::string>> Sentences;  ///< with the moment of each
    };
    const std::vector<Why>& Reasons() const { return reasons_; }
    /// The sentences of the step that a moment belongs to, as far as they were told by then; empty: there are none.
    std::string WhyAt(int moment) const;

    /// The game so far. Without clans and names, which are dealt first, it cannot be played again yet.
    GameRecord Record() const { return {head_, Inputs}; }
    bool CanBePlayed() const { return dealt_; }
    int Moment() const { return moment_; }
    const std::vector<Place>& Places() const { return places_; }
    /// How the game stood at the end of every turn.
    const std::vector<TurnFigures>& Figures() const { return figures_.Kept(); }
    /// The moment at which a turn was over; turn 0: the setup. 0: it is not over yet.
    int EndOfTurn(int turn) const;
    /// How many inputs had been given before a moment.
    std::size_t InputsBefore(int moment) const;
    const std::vector<Chapter>& Chapters() const { return chapters_; }

    /// Hears the text of the record as it grows, whole lines, the head first. Leaving is not part of it: whoever comes
    /// back goes on.
    std::function<void(std::string_view lines)> OnText;
    /// Hears that another moment is there.
    std::function<void(int moment)> OnMoment;

    void OnBegin(Step step, int clan, int amoeba) override;
    void OnEnd(Step step, int clan, int amoeba) override;
    void OnHappening(const Happening& happening) override;
    void OnAsk(const Question& question) override;
    void OnInput(const Question& question, const Answer& answer) override;
    void OnSwitch(const Switch& turned, TakenAt place) override;
    void OnLost(const LostLine& lost) override;
    void OnAnswer(const Question& question, const Answer& answer, bool accepted) override;
    void OnReason(std::string_view sentence) override;

private:
    void CountMoment();
    void LookWhetherDealt();
    void Note(std::size_t before);
    void Tell(std::string_view lines) const;

    RecordHead head_;
    bool dealt_ = false;
    int moment_ = 0;
    std::vector<int> momentOf_;  ///< of every input
    std::vector<Place> places_;
    std::vector<Chapter> chapters_;
    FigureKeeper figures_;
    Why step_;  ///< that is being played
    std::vector<Why> reasons_;
    std::vector<int> ends_;  ///< of steps
    std::vector<int> endOfTurn_;
};

/// Takes away that the person left, at the end of a game's inputs.
void DropLeaving(InputList& inputs);

}  // namespace plasmos
