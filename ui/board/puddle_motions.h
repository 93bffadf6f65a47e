// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPointF>
#include <QRectF>
#include <QString>
#include <functional>
#include <vector>

#include "ui/look/blob_shape.h"
#include "ui/look/motion_clock.h"
#include "ui/look/theme.h"

class QPainter;

namespace plasmos {

struct GameState;

/// A piece of a clan.
struct PieceId {
    int Clan = 0;
    int Amoeba = 0;

    friend bool operator==(const PieceId&, const PieceId&) = default;
};

/// What moves on the board for a moment, in board units over the pieces: a few motions out of which everything that
/// happens is put together. Where time is 0, or the board is not in sight, there is no motion, only what has become
/// of it. The link between an attacker and its victim is a mark: it stands until it is taken away.
class PuddleMotions {
public:
    explicit PuddleMotions(QWidget& puddle) : clock_(puddle) {}

    /// A piece glides from where it was to where it is now.
    void Glide(PieceId piece, const QRectF& from, int milliseconds);
    /// A piece that has come onto the board grows.
    void Grow(PieceId piece, int milliseconds);
    /// A piece that is no longer there fades away.
    void Fade(PieceId piece, const QRectF& from, int milliseconds);
    /// Cubes of a colour glide from one place to another, and are gone.
    void Carry(int colour, int pieces, QPointF from, QPointF to, int milliseconds);
    /// A few words rise from a place and fade.
    void Rise(const QString& words, QPointF from, Tone tone, int milliseconds);
    /// A ring closes around a place.
    void Ring(QPointF around, double radius, Tone tone, int milliseconds);

    /// Rings around attacker and victim, and an arrow from one to the other.
    void Link(PieceId attacker, const QRectF& from, PieceId victim, const QRectF& to, int milliseconds);
    /// What has become of the attack, in a word at the arrow; a victim that is `safe` is no longer pointed at.
    void EndLink(const QString& outcome, bool safe);
    void Unlink() { linked_ = false; }
    bool IsLinked() const { return linked_; }
    QString LinkOutcome() const { return linked_ ? link_.Outcome : QString(); }

    /// Nothing moves or is marked any more.
    void Stop();
    /// Something moves just now.
    bool Runs() const { return clock_.Runs(); }
    /// Whether a piece is drawn by a motion instead of lying where it is.
    bool Carries(PieceId piece) const;
    void Draw(QPainter& painter, const GameState& state, PieceId outlined);

private:
    enum class Kind { Glide, Grow, Fade, Carry, Rise, Ring };
    struct Motion {
        Kind What;
        MotionClock::Span Time{};
        PieceId Piece{};
        int Number = 0;  ///< so many cubes
        QRectF From{};
        QPointF To{};
        QString Words{};
        Tone Colour = Tone::Ink;
    };
    struct LinkMark {
        PieceId Attacker, Victim;
        QRectF From, To;  ///< where they were last seen
        MotionClock::Span Time{};
        QString Outcome;
        bool Safe = false;
    };

    void Begin(Motion motion, int milliseconds);
    void DrawOne(QPainter& painter, const GameState& state, const Motion& motion, PieceId outlined) const;
    void DrawPiece(QPainter& painter, const GameState& state, const Motion& motion, PieceId outlined) const;
    void DrawLink(QPainter& painter, const GameState& state);

    MotionClock clock_;
    std::vector<Motion> motions_;
    LinkMark link_;
    bool linked_ = false;
};

}  // namespace plasmos
