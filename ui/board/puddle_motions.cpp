// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/board/puddle_motions.h"

#include <QPainter>
#include <algorithm>
#include <cmath>

#include "model/game_state.h"
#include "ui/board/motion_painter.h"
#include "ui/look/piece_layout.h"

namespace plasmos {

namespace {

/// Where a piece lies, or was last seen.
void Follow(const GameState& state, PieceId piece, QRectF& place) {
    if (const QRectF marker = MarkerOf(state, piece.Clan, piece.Amoeba); !marker.isEmpty()) {
        place = marker;
    }
}

QRectF Around(QPointF centre, double radius) {
    return {centre - QPointF(radius, radius), QSizeF(2 * radius, 2 * radius)};
}

}  // namespace

void PuddleMotions::Begin(Motion motion, int milliseconds) {
    std::erase_if(motions_, [this](const Motion& one) { return clock_.IsOver(one.Time); });
    motion.Time = clock_.Begin(milliseconds);
    if (motion.Time.Milliseconds > 0) {
        motions_.push_back(std::move(motion));
    }
}

void PuddleMotions::Glide(PieceId piece, const QRectF& from, int milliseconds) {
    std::erase_if(motions_, [piece](const Motion& one) { return one.What == Kind::Glide && one.Piece == piece; });
    Begin({.What = Kind::Glide, .Piece = piece, .From = from}, milliseconds);
}

void PuddleMotions::Grow(PieceId piece, int milliseconds) {
    Begin({.What = Kind::Grow, .Piece = piece}, milliseconds);
}

void PuddleMotions::Fade(PieceId piece, const QRectF& from, int milliseconds) {
    Begin({.What = Kind::Fade, .Piece = piece, .From = from}, milliseconds);
}

void PuddleMotions::Carry(int colour, int pieces, QPointF from, QPointF to, int milliseconds) {
    Begin({.What = Kind::Carry, .Piece = {colour, 0}, .Number = pieces, .From = Around(from, 1), .To = to},
          milliseconds);
}

void PuddleMotions::Rise(const QString& words, QPointF from, Tone tone, int milliseconds) {
    const auto sameTime = std::count_if(motions_.begin(), motions_.end(), [this, from](const Motion& one) {
        return one.What == Kind::Rise && !clock_.IsOver(one.Time) && one.From.center() == from;
    });
    // Several words at one place stand below each other.
    constexpr double Line = 150;
    Begin({.What = Kind::Rise,
           .From = Around(from, 1),
           .To = from + QPointF(0, Line * static_cast<double>(sameTime)),
           .Words = words,
           .Colour = tone},
          milliseconds);
}

void PuddleMotions::Ring(QPointF around, double radius, Tone tone, int milliseconds) {
    Begin({.What = Kind::Ring, .From = Around(around, radius), .Colour = tone}, milliseconds);
}

void PuddleMotions::Link(PieceId attacker, const QRectF& from, PieceId victim, const QRectF& to, int milliseconds) {
    link_ = {attacker, victim, from, to, clock_.Begin(milliseconds), {}, false};
    linked_ = true;
}

void PuddleMotions::EndLink(const QString& outcome, bool safe) {
    link_.Outcome = outcome;
    link_.Safe = safe;
}

void PuddleMotions::Stop() {
    motions_.clear();
    linked_ = false;
    clock_.Stop();
}

bool PuddleMotions::Carries(PieceId piece) const {
    return std::any_of(motions_.begin(), motions_.end(), [this, piece](const Motion& motion) {
        const bool moves = motion.What == Kind::Glide || motion.What == Kind::Grow;
        return moves && motion.Piece == piece && !clock_.IsOver(motion.Time);
    });
}

void PuddleMotions::Draw(QPainter& painter, const GameState& state, PieceId outlined) {
    std::erase_if(motions_, [this](const Motion& one) { return clock_.IsOver(one.Time); });
    for (const Motion& motion : motions_) {
        DrawOne(painter, state, motion, outlined);
    }
    if (linked_) {
        DrawLink(painter, state);
    }
}

void PuddleMotions::DrawOne(QPainter& painter, const GameState& state, const Motion& motion, PieceId outlined) const {
    const double share = clock_.Share(motion.Time);
    const QPointF from = motion.From.center();
    switch (motion.What) {
        case Kind::Glide:
        case Kind::Grow:
        case Kind::Fade: DrawPiece(painter, state, motion, outlined); break;
        case Kind::Carry:
            DrawCarried(painter, motion.Piece.Clan, motion.Number, from + (motion.To - from) * share);
            break;
        case Kind::Rise: DrawRising(painter, motion.Words, Shade(motion.Colour), motion.To, share); break;
        case Kind::Ring:
            DrawRing(painter, from, motion.From.width() / 2 * (1.6 - 0.5 * share), Shade(motion.Colour),
                     1 - 0.6 * share);
            break;
    }
}

void PuddleMotions::DrawPiece(QPainter& painter, const GameState& state, const Motion& motion, PieceId outlined) const {
    const double share = clock_.Share(motion.Time);
    BlobLook blob{motion.Piece.Clan, motion.Piece.Amoeba, 0, false, false, 1};
    if (motion.What == Kind::Fade) {
        blob.Opacity = 1 - share;
        DrawBlob(painter, blob, motion.From.center(), motion.From.width() / 2 * (1 - 0.6 * share));
        return;
    }
    const QRectF to = MarkerOf(state, motion.Piece.Clan, motion.Piece.Amoeba);
    if (to.isEmpty()) {
        return;
    }
    blob.Damage = state.Amoeba[motion.Piece.Amoeba][motion.Piece.Clan].Damage;
    blob.Outlined = motion.Piece == outlined;
    if (motion.What == Kind::Grow) {
        DrawBlob(painter, blob, to.center(), to.width() / 2 * (0.25 + 0.75 * share));
        return;
    }
    const QPointF centre = motion.From.center() + (to.center() - motion.From.center()) * share;
    DrawBlob(painter, blob, centre, to.width() / 2);
}

void PuddleMotions::DrawLink(QPainter& painter, const GameState& state) {
    Follow(state, link_.Attacker, link_.From);
    Follow(state, link_.Victim, link_.To);
    DrawAttack(painter, link_.From, link_.To, clock_.Share(link_.Time), link_.Outcome, link_.Safe);
}

}  // namespace plasmos
