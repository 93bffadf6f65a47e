// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "model/game_state.h"
#include "model/services.h"
#include "questions/question.h"
#include "record/input_list.h"

namespace plasmos {

/// One question of the guided game: what is put in, step by step, and why.
struct Lesson {
    QuestionKind Asked;
    std::string_view Steps;  ///< answers as Answer::Text() writes them, parted by ";"
    std::string_view Told;   ///< what the rules tell came back, likewise
    std::string_view Note;
};

/// The questions of the guided game in their order: two turns of a small clan among two others.
std::span<const Lesson> Lessons();

/// What is said to the person about an open question.
struct Advice {
    std::string Note;
    std::optional<Answer> Recommended;  ///< the next thing to put in; none where the person decides alone
    int Number = 0;                     ///< of the lesson, from 1; 0: none
};

/// A first game with somebody who explains: three clans on five by five squares, dealt from a replay number that is
/// always the same, so that the lessons are about what lies on the board. The rules are the game's own and know nothing
/// of it. Any meal will do. Whoever answers otherwise than it is recommended, or plays on when the lessons are over, is
/// told what every question is about and decides alone.
///
/// While it lives the current game has the guided game's setup, no files, and this as its listener; afterwards setup,
/// files and listener are as before, and the board is empty unless the game came to its end on it.
class GuidedGame : public PassingObserver {
public:
    GuidedGame();
    ~GuidedGame() override;
    GuidedGame(const GuidedGame&) = delete;
    GuidedGame& operator=(const GuidedGame&) = delete;

    /// What to say about the question that is open.
    Advice AdviceFor(const Question& question) const;
    /// Whether everything so far was answered as recommended.
    bool OnPath() const { return onPath_; }
    bool LessonsAreOver() const { return lesson_ == Lessons().size(); }

    void OnInput(const Question& question, const Answer& answer) override;
    void OnAnswer(const Question& question, const Answer& answer, bool accepted) override;

private:
    GameSetup setupBefore_;
    GameFiles* filesBefore_;
    Observer* listenerBefore_;
    bool onPath_ = true;
    std::size_t lesson_ = 0;
    std::size_t step_ = 0;  ///< of the lesson's steps, those that were put in
    std::size_t told_ = 0;  ///< of what the lesson's answer tells, what was told
};

}  // namespace plasmos
