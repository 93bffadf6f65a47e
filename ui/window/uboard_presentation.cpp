// SPDX-License-Identifier: GPL-3.0-or-later
#include <QAction>

#include "files/text.h"
#include "model/game_state.h"
#include "model/genes.h"
#include "model/happening.h"
#include "ui/board/puddle_view.h"
#include "ui/board/score_track.h"
#include "ui/look/palette.h"
#include "ui/strip/clan_panel.h"
#include "ui/strip/environment_view.h"
#include "ui/strip/log_view.h"
#include "ui/strip/question_card.h"
#include "ui/strip/side_strip.h"
#include "ui/strip/start_card.h"
#include "ui/window/uboard.h"

namespace plasmos {

namespace {

constexpr int GlideMilliseconds = 280;

}  // namespace

void UBoard::ShowHappening(const Happening& happening) {
    using Kind = Happening::Kind;
    switch (happening.What) {
        case Kind::Moves:
        case Kind::Rides:
        case Kind::IsDragged:
        case Kind::Escapes: Glide(happening); break;
        case Kind::Dies: FadeAway(happening); break;
        case Kind::IsBorn: DrawPuddle(), ShowCurrentClan(happening.Clan); break;
        case Kind::CarriesFood:
        case Kind::ChangesSpot:
        case Kind::Eats:
        case Kind::Starves:
        case Kind::IsWounded: DrawPuddle(); break;
        case Kind::BuysGene:
        case Kind::LosesGene: ShowGenes(happening.Clan); break;
        case Kind::PaysBP:
        case Kind::GainsBP: ShowBP(happening.Clan); break;
        case Kind::ScoreMoves:
        case Kind::OrderIsMade: ShowOrder(); break;
        case Kind::CardIsTurned: ShowCard(); break;
        // The message line tells of these.
        case Kind::Parasitizes:
        case Kind::IsEaten:
        case Kind::IsTorn:
        case Kind::Attacks:
        case Kind::AttacksToEat:
        case Kind::FailsToEscape:
        case Kind::Defends:
        case Kind::FailsToDefend: break;
    }
}

void UBoard::Glide(const Happening& move) {
    track_->Puddle()->Glide(move.Clan, move.Amoeba, move.From, Milliseconds(GlideMilliseconds));
    DrawPuddle();
}

void UBoard::FadeAway(const Happening& death) {
    track_->Puddle()->FadeAway(death.Clan, death.Amoeba, death.Square, Milliseconds(GlideMilliseconds));
    DrawPuddle();
}

void UBoard::DrawPuddle() {
    track_->Puddle()->update();
    strip_->Clans->update();
}

void UBoard::ShowMessage(std::string_view text, int clan) {
    strip_->Question->ShowMessage(ToQt(text), clan);
    strip_->Arrange();
}

void UBoard::StartLog(std::string_view header) {
    strip_->Log->Start(ToQt(header));
}

void UBoard::Log(std::string_view line, int clan) {
    strip_->Log->Line(ToQt(line), clan);
}

void UBoard::ShowPhase(std::string_view phase) {
    strip_->Log->Heading(QStringLiteral("Turn %1 · %2").arg(game.Turn).arg(ToQt(phase)));
    strip_->Environment->ShowPhase();
}

void UBoard::ShowCaption(std::string_view caption) {
    setWindowTitle(ToQt(caption));
}

void UBoard::ShowTurn() {
    strip_->Environment->ShowTurn();
}

void UBoard::ShowClan(int clan) {
    ShowBP(clan);
    ShowGenes(clan);
}

void UBoard::ShowBP(int clan) {
    strip_->Clans->ShowBP(clan);
}

void UBoard::ShowCard() {
    strip_->Environment->ShowDrift();
    strip_->Environment->ShowUV();
    strip_->Clans->update();
}

void UBoard::ShowOrder() {
    strip_->Clans->ShowOrder();
    strip_->Environment->update();
    strip_->Arrange();
    track_->update();
}

void UBoard::ShowCurrentClan(int clan) {
    strip_->Question->ShowClan(clan);
    strip_->Clans->ShowCurrentClan(clan);
    ShowAutoFlags(clan);
}

void UBoard::ShowGenes(int clan) {
    strip_->Clans->ShowGenes(clan);
    strip_->Environment->update();
}

// A new game shows the flags of every clan, which are all off; later those of the clan that acts. While
// a computer clan acts the marks of the menu stay those of the last person.
void UBoard::ShowAutoFlags(int clan) {
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
    if (game.Turn == 0) {
        autoeat_men_->setEnabled(true);
    }
    autoeat_men_->setChecked(eating);
    autoten_men_->setChecked(tentacle);
    autoten_men_->setEnabled(person && HasGene(clan, "ten"));
}

void UBoard::DisableAutoEating() {
    autoeat_men_->setEnabled(false);
    autoten_men_->setEnabled(false);
}

std::string UBoard::TakeReplayText() {
    strip_->Start->txtReplay->hide();
    return strip_->Start->txtReplay->text().toStdString();
}

void UBoard::DrawBoard() {
    track_->Puddle()->Settle();
    track_->update();
    strip_->Clans->update();
}

void UBoard::OutlinePiece(int clan, int amoeba, bool on) {
    track_->Puddle()->OutlinePiece(clan, amoeba, on);
}

}  // namespace plasmos
