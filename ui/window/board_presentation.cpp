// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/window/board_presentation.h"

#include <QMainWindow>

#include "files/text.h"
#include "model/game_state.h"
#include "model/genes.h"
#include "ui/board/puddle_view.h"
#include "ui/board/score_track.h"
#include "ui/look/palette.h"
#include "ui/strip/clan_panel.h"
#include "ui/strip/environment_view.h"
#include "ui/strip/log_view.h"
#include "ui/strip/question_card.h"
#include "ui/strip/side_strip.h"
#include "ui/strip/start_card.h"
#include "ui/window/board_menus.h"
#include "ui/window/question_desk.h"

namespace plasmos {

namespace {

constexpr int GlideMilliseconds = 280;

}  // namespace

BoardPresentation::BoardPresentation(const BoardParts& parts)
    : window_(&parts.Window), track_(&parts.Track), strip_(&parts.Strip), menus_(&parts.Menus), desk_(&parts.Desk) {}

void BoardPresentation::ShowMessage(std::string_view text, int clan) {
    strip_->Question->ShowMessage(ToQt(text), clan);
    strip_->Arrange();
}

void BoardPresentation::StartLog(std::string_view header) {
    strip_->Log->Start(ToQt(header));
}

void BoardPresentation::Log(std::string_view line, int clan) {
    strip_->Log->Line(ToQt(line), clan);
}

void BoardPresentation::ShowPhase(std::string_view phase) {
    strip_->Log->Heading(QStringLiteral("Turn %1 · %2").arg(game.Turn).arg(ToQt(phase)));
    strip_->Environment->ShowPhase();
}

void BoardPresentation::ShowCaption(std::string_view caption) {
    window_->setWindowTitle(ToQt(caption));
}

void BoardPresentation::ShowTurn() {
    strip_->Environment->ShowTurn();
}

void BoardPresentation::ShowBP(int clan) {
    strip_->Clans->ShowBP(clan);
}

void BoardPresentation::ShowUV() {
    strip_->Environment->ShowUV();
    strip_->Clans->update();
}

void BoardPresentation::ShowDrift() {
    strip_->Environment->ShowDrift();
}

void BoardPresentation::ShowOrder() {
    strip_->Clans->ShowOrder();
    strip_->Environment->update();
    strip_->Arrange();
    track_->update();
}

void BoardPresentation::ShowCurrentClan(int clan) {
    strip_->Question->ShowClan(clan);
    strip_->Clans->ShowCurrentClan(clan);
    ShowAutoFlags(clan);
}

void BoardPresentation::ShowGenes(int clan) {
    strip_->Clans->ShowGenes(clan);
    strip_->Environment->update();
}

// A new game shows the flags of every clan, which are all off; later those of the clan that acts. While
// a computer clan acts the marks of the menu stay those of the last person.
void BoardPresentation::ShowAutoFlags(int clan) {
    if (game.Turn > 0 && clan != game.CurPlayer) {
        return;
    }
    const bool person = clan >= 1 && clan <= MaxClans && !game.Players[clan].IsComputer;
    const bool eating = person && game.AutoFlags[clan][1];
    const bool tentacle = person && game.AutoFlags[clan][2];
    strip_->Question->autoeatlab->setVisible(eating);
    strip_->Question->autotenlab->setVisible(tentacle);
    if (!person && game.Turn > 0) {
        return;
    }
    menus_->ShowAutoFlags(eating, tentacle, person && HasGene(clan, "ten"));
}

void BoardPresentation::DisableAutoEating() {
    menus_->DisableAutoEating();
}

std::string BoardPresentation::TakeReplayText() {
    strip_->Start->txtReplay->hide();
    return strip_->Start->txtReplay->text().toStdString();
}

void BoardPresentation::DrawBoard() {
    track_->Puddle()->Settle();
    track_->update();
    strip_->Clans->update();
}

void BoardPresentation::DrawSquare(int) {
    track_->Puddle()->update();
    strip_->Clans->update();
}

void BoardPresentation::DrawPiece(int, int) {
    track_->Puddle()->update();
    strip_->Clans->update();
}

void BoardPresentation::OutlinePiece(int clan, int amoeba, bool on) {
    track_->Puddle()->OutlinePiece(clan, amoeba, on);
}

void BoardPresentation::AnimateMove(int clan, int amoeba, int from, int) {
    track_->Puddle()->Glide(clan, amoeba, from, desk_->Milliseconds(GlideMilliseconds));
}

void BoardPresentation::AnimateDeath(int clan, int amoeba, int square) {
    track_->Puddle()->FadeAway(clan, amoeba, square, desk_->Milliseconds(GlideMilliseconds));
    strip_->Clans->update();
}

void BoardPresentation::Pause(int units) {
    desk_->Pause(units);
}

void BoardPresentation::Open(Question& question) {
    desk_->Open(question);
}

void BoardPresentation::Refresh(Question& question) {
    desk_->Refresh(question);
}

void BoardPresentation::Close(Question& question) {
    desk_->Close(question);
}

void BoardPresentation::Wait() {
    desk_->Wait();
}

}  // namespace plasmos
