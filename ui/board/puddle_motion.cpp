// SPDX-License-Identifier: GPL-3.0-or-later
#include <QPainter>
#include <algorithm>

#include "model/game_state.h"
#include "ui/board/puddle_view.h"
#include "ui/look/blob_shape.h"
#include "ui/look/piece_layout.h"

namespace plasmos {

void PuddleView::Glide(int clan, int amoeba, int fromSquare, int milliseconds) {
    const QRectF to = MarkerOf(*state_, clan, amoeba);
    if (to.isEmpty() || fromSquare < 1 || milliseconds <= 0 || !isVisible()) {
        update();
        return;
    }
    const QPointF shift =
        SquareCorner(*state_, fromSquare) - SquareCorner(*state_, state_->Amoeba[amoeba][clan].Square);
    motions_.push_back(
        {clan, amoeba, state_->Amoeba[amoeba][clan].Damage, false, to.translated(shift), milliseconds, {}});
    motions_.back().Clock.start();
    motionTimer_.start();
    update();
}

void PuddleView::FadeAway(int clan, int amoeba, int square, int milliseconds) {
    if (square < 1 || milliseconds <= 0 || !isVisible()) {
        update();
        return;
    }
    constexpr double Radius = 200;
    const QPointF centre = SquareCorner(*state_, square) + SpotCentre(amoeba * 3, square, Radius);
    const QRectF from(centre - QPointF(Radius, Radius), QSizeF(2 * Radius, 2 * Radius));
    motions_.push_back({clan, amoeba, state_->Amoeba[amoeba][clan].Damage, true, from, milliseconds, {}});
    motions_.back().Clock.start();
    motionTimer_.start();
    update();
}

void PuddleView::Settle() {
    motions_.clear();
    motionTimer_.stop();
    update();
}

void PuddleView::Tick() {
    std::erase_if(motions_, [](const Motion& motion) { return motion.Clock.elapsed() >= motion.Milliseconds; });
    if (motions_.empty()) {
        motionTimer_.stop();
    }
    update();
}

bool PuddleView::Moves(int clan, int amoeba) const {
    return std::any_of(motions_.begin(), motions_.end(), [clan, amoeba](const Motion& motion) {
        return !motion.Dying && motion.Clan == clan && motion.Amoeba == amoeba;
    });
}

void PuddleView::DrawMotions(QPainter& painter) const {
    for (const Motion& motion : motions_) {
        const double share = std::min(1.0, static_cast<double>(motion.Clock.elapsed()) / motion.Milliseconds);
        const double eased = share * share * (3 - 2 * share);
        BlobLook blob{motion.Clan, motion.Amoeba, motion.Damage, false, false, 1};
        if (motion.Dying) {
            blob.Opacity = 1 - eased;
            DrawBlob(painter, blob, motion.From.center(), motion.From.width() / 2 * (1 - 0.6 * eased));
            continue;
        }
        const QRectF to = MarkerOf(*state_, motion.Clan, motion.Amoeba);
        if (!to.isEmpty()) {
            blob.Outlined = motion.Clan == outlinedClan_ && motion.Amoeba == outlinedAmoeba_;
            const QPointF centre = motion.From.center() + (to.center() - motion.From.center()) * eased;
            DrawBlob(painter, blob, centre, to.width() / 2);
        }
    }
}

}  // namespace plasmos
