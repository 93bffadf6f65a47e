// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPointF>

namespace plasmos {

class PuddleView;
class QuestionDesk;
class ScoreTrack;
class SideStrip;
struct Happening;

/// What is seen of a happening for a moment: every kind has its short motion or its mark, put together from a few that
/// board, track and cards know. In fast mode nothing moves. An attack is linked on the board from its beginning until
/// its outcome has been played; there the game waits for a moment, so that the outcome is seen before anything is
/// asked.
class BoardMotions {
public:
    BoardMotions(ScoreTrack& track, SideStrip& strip, QuestionDesk& desk);

    void Show(const Happening& happening);
    /// Something else begins: the marks of an attack that is over go.
    void EndAttack();

private:
    int Time() const;
    void ShowOne(const Happening& happening);
    void ShowCard(const Happening& happening);
    void Load(const Happening& load);
    void Shift(const Happening& shift);
    void Birth(const Happening& birth);
    void Move(const Happening& move);
    void Meal(const Happening& meal);
    void Death(const Happening& death);
    void Hurt(const Happening& hurt);
    void Attack(const Happening& attack);
    void AttackEnds(const Happening& outcome, const char* word, bool safe);
    void AttackGoesOn(const char* word);
    void PayFor(const Happening& payment);
    void LookAtIt();

    ScoreTrack* track_;
    PuddleView* puddle_;
    SideStrip* strip_;
    QuestionDesk* desk_;
    bool attackIsOver_ = false;
};

}  // namespace plasmos
