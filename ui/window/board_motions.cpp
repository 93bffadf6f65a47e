// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/window/board_motions.h"

#include "model/game_state.h"
#include "model/genes.h"
#include "model/happening.h"
#include "ui/board/puddle_view.h"
#include "ui/board/score_track.h"
#include "ui/look/palette.h"
#include "ui/look/piece_layout.h"
#include "ui/strip/clan_panel.h"
#include "ui/strip/environment_view.h"
#include "ui/strip/side_strip.h"
#include "ui/window/question_desk.h"

namespace plasmos {

namespace {

using Kind = Happening::Kind;

constexpr int MotionMilliseconds = 290;
/// How long an attack, and what becomes of it, is looked at: in units of pause.
constexpr int LookUnits = 4;
constexpr double RingRadius = 260;

PieceId ActorOf(const Happening& happening) {
    return {happening.Clan, happening.Amoeba};
}

PieceId OtherOf(const Happening& happening) {
    return {happening.OtherClan, happening.OtherAmoeba};
}

/// Where words rise from a piece.
QPointF AbovePiece(const QRectF& place) {
    return place.center() - QPointF(0, place.height() * 0.7);
}

QString GeneWord(int gene) {
    return ToQt(GeneName(gene));
}

/// What ends the marks of an attack that is over: whatever is not a part of it.
bool BelongsToAttack(Kind what) {
    return what == Kind::Dies || what == Kind::PaysBP || what == Kind::ChangesSpot;
}

}  // namespace

BoardMotions::BoardMotions(ScoreTrack& track, SideStrip& strip, QuestionDesk& desk)
    : track_(&track), puddle_(track.Puddle()), strip_(&strip), desk_(&desk) {}

int BoardMotions::Time() const {
    return desk_->Milliseconds(MotionMilliseconds);
}

// Of an earlier state that is shown nothing moves.
void BoardMotions::Show(const Happening& happening) {
    if (&puddle_->State() != &game) {
        EndAttack();
        return;
    }
    if (attackIsOver_ && !BelongsToAttack(happening.What)) {
        EndAttack();
    }
    ShowOne(happening);
}

void BoardMotions::ShowOne(const Happening& happening) {
    switch (happening.What) {
        case Kind::Moves:
        case Kind::Rides:
        case Kind::IsDragged: Move(happening); break;
        case Kind::Escapes: Move(happening), AttackEnds(happening, "escapes", true); break;
        case Kind::CarriesFood: Load(happening); break;
        case Kind::ChangesSpot: Shift(happening); break;
        case Kind::Eats: Meal(happening); break;
        case Kind::Starves: Hurt(happening); break;
        case Kind::IsBorn: Birth(happening); break;
        case Kind::Dies: Death(happening); break;
        case Kind::IsEaten: AttackEnds(happening, "eaten", false); break;
        case Kind::IsTorn: AttackEnds(happening, "torn to pieces", false); break;
        case Kind::IsWounded: AttackEnds(happening, "wounded", false); break;
        case Kind::Attacks:
        case Kind::AttacksToEat: Attack(happening); break;
        case Kind::FailsToEscape: AttackGoesOn("no escape"); break;
        case Kind::Defends: AttackEnds(happening, "beaten off", true); break;
        case Kind::FailsToDefend: AttackGoesOn("no defence"); break;
        case Kind::BuysGene:
        case Kind::LosesGene:
        case Kind::PaysBP:
        case Kind::GainsBP: ShowCard(happening); break;
        case Kind::ScoreMoves: track_->Walk(happening.Clan, happening.From, Time()); break;
        case Kind::CardIsTurned: strip_->Environment->TurnCard(Time()); break;
        case Kind::Throws:              // where it leads is seen
        case Kind::Stays:               // nothing moves
        case Kind::Parasitizes:         // its meal follows
        case Kind::OrderIsMade: break;  // the cards stand in it
    }
}

void BoardMotions::ShowCard(const Happening& happening) {
    const int clan = happening.Clan;
    ClanPanel& clans = *strip_->Clans;
    if (happening.What == Kind::BuysGene) {
        clans.RiseFromGenes(clan, u'+' + GeneWord(happening.Number), Tone::Accent, Time());
    } else if (happening.What == Kind::LosesGene) {
        clans.RiseFromGenes(clan, u'−' + GeneWord(happening.Number), Tone::Alarm, Time());
    } else if (happening.What == Kind::GainsBP) {
        clans.RiseFromBP(clan, QStringLiteral("+%1").arg(happening.Number), Tone::Accent, Time());
    } else {
        PayFor(happening);
    }
}

void BoardMotions::Load(const Happening& load) {
    puddle_->Motions().Carry(load.OtherClan, load.Number, puddle_->FoodPlace(load.From, load.OtherClan),
                             puddle_->FoodPlace(load.Square, load.OtherClan), Time());
}

void BoardMotions::Shift(const Happening& shift) {
    puddle_->Motions().Glide(ActorOf(shift), puddle_->LastSeen(ActorOf(shift), shift.Square), Time());
}

void BoardMotions::Birth(const Happening& birth) {
    const QPointF place = puddle_->PlaceOf(ActorOf(birth), birth.Square).center();
    puddle_->Motions().Grow(ActorOf(birth), Time());
    puddle_->Motions().Ring(place, RingRadius, Tone::Accent, Time());
}

void BoardMotions::Move(const Happening& move) {
    const QRectF from = puddle_->LastSeen(ActorOf(move), move.From);
    puddle_->Motions().Glide(ActorOf(move), from, Time());
    if (move.What == Kind::Rides || move.What == Kind::IsDragged) {
        puddle_->Motions().Rise(move.What == Kind::Rides ? QStringLiteral("holds on") : QStringLiteral("dragged"),
                                AbovePiece(puddle_->PlaceOf(ActorOf(move), move.Square)), Tone::Accent, Time());
    }
}

// What is eaten goes from its heaps to the piece, what the piece leaves goes the other way.
void BoardMotions::Meal(const Happening& meal) {
    const QPointF eater = puddle_->PlaceOf(ActorOf(meal), meal.Square).center();
    for (int menu = meal.Number, colours = meal.Second; menu > 0; menu /= 10, colours /= 10) {
        if (const int colour = colours % 10; colour > 0) {
            puddle_->Motions().Carry(colour, menu % 10, puddle_->FoodPlace(meal.Square, colour), eater, Time());
        }
    }
    constexpr int LeftBehind = 2;
    puddle_->Motions().Carry(meal.Clan, LeftBehind, eater, puddle_->FoodPlace(meal.Square, meal.Clan), Time());
}

void BoardMotions::Death(const Happening& death) {
    const QRectF seen = puddle_->LastSeen(ActorOf(death), death.Square);
    puddle_->Motions().Fade(ActorOf(death), seen, Time());
    if (death.Number > 0) {
        puddle_->Motions().Ring(seen.center(), seen.width() * 0.6, Tone::Alarm, Time());
    }
}

void BoardMotions::Hurt(const Happening& hurt) {
    const QRectF place = puddle_->PlaceOf(ActorOf(hurt), hurt.Square);
    puddle_->Motions().Ring(place.center(), place.width() * 0.6, Tone::Alarm, Time());
    puddle_->Motions().Rise(QStringLiteral("damage %1").arg(hurt.Number), AbovePiece(place), Tone::Alarm, Time());
}

void BoardMotions::Attack(const Happening& attack) {
    const PieceId attacker = ActorOf(attack);
    const PieceId victim = OtherOf(attack);
    puddle_->Motions().Link(attacker, puddle_->PlaceOf(attacker, attack.Square), victim,
                            puddle_->PlaceOf(victim, attack.Square), Time());
    attackIsOver_ = false;
    LookAtIt();
}

void BoardMotions::AttackEnds(const Happening& outcome, const char* word, bool safe) {
    if (!puddle_->Motions().IsLinked()) {
        return;
    }
    puddle_->Motions().EndLink(QString::fromLatin1(word), safe);
    attackIsOver_ = true;
    if (outcome.What == Kind::IsWounded) {
        Hurt(outcome);
    }
    LookAtIt();
}

void BoardMotions::AttackGoesOn(const char* word) {
    puddle_->Motions().EndLink(QString::fromLatin1(word), false);
    LookAtIt();
}

void BoardMotions::EndAttack() {
    attackIsOver_ = false;
    puddle_->Motions().Unlink();
    puddle_->update();
}

void BoardMotions::LookAtIt() {
    puddle_->update();
    desk_->Pause(LookUnits);
}

void BoardMotions::PayFor(const Happening& payment) {
    strip_->Clans->RiseFromBP(payment.Clan, QStringLiteral("−%1").arg(payment.Number), Tone::Alarm, Time());
    const PieceId acting = puddle_->Outlined();
    const QRectF marker = MarkerOf(puddle_->State(), acting.Clan, acting.Amoeba);
    if (acting.Clan == payment.Clan && !marker.isEmpty()) {
        puddle_->Motions().Rise(QStringLiteral("−%1 BP").arg(payment.Number), AbovePiece(marker), Tone::Alarm, Time());
    }
}

}  // namespace plasmos
