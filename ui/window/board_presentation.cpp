// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/window/board_presentation.h"

#include <QMainWindow>

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
#include "ui/strip/log_words.h"
#include "ui/strip/question_card.h"
#include "ui/strip/side_strip.h"
#include "ui/strip/start_card.h"
#include "ui/window/board_menus.h"
#include "ui/window/question_desk.h"

namespace plasmos {

BoardPresentation::BoardPresentation(const BoardParts& parts)
    : window_(&parts.Window),
      track_(&parts.Track),
      strip_(&parts.Strip),
      menus_(&parts.Menus),
      desk_(&parts.Desk),
      motions_(parts.Track, parts.Strip, parts.Desk) {}

// The log has its line before a motion is looked at.
void BoardPresentation::ShowHappening(const Happening& happening) {
    ShowResult(happening);
    LogHappening(happening);
    motions_.Show(happening);
}

// The log begins with the header, when the game is set up.
void BoardPresentation::LogHappening(const Happening& happening) {
    if (const std::string words = QuietWords(game, happening); strip_->Log->Started() && !words.empty()) {
        strip_->Log->QuietLine(ToQt(words), happening.Clan);
    }
}

void BoardPresentation::ShowResult(const Happening& happening) {
    using Kind = Happening::Kind;
    switch (happening.What) {
        case Kind::IsBorn: DrawPuddle(), ShowCurrentClan(happening.Clan); break;
        case Kind::Moves:
        case Kind::Rides:
        case Kind::IsDragged:
        case Kind::Escapes:
        case Kind::Dies:
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
        // Their marks on the board, or their lines in the log, are all there is to see.
        case Kind::Throws:
        case Kind::Stays:
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

void BoardPresentation::DrawPuddle() {
    track_->Puddle()->update();
    strip_->Clans->update();
}

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
    LogPhase(phase);
    strip_->Environment->ShowPhase();
    strip_->Clans->update();
    motions_.EndAttack();
}

void BoardPresentation::HoldLog(bool on) {
    strip_->Log->Hold(on);
}

void BoardPresentation::LogPhase(std::string_view phase) {
    strip_->Log->Heading(QStringLiteral("Turn %1 · %2").arg(game.Turn).arg(ToQt(phase)));
}

void BoardPresentation::ShowEverything(std::string_view message, int clan) {
    ShowTurn();
    strip_->Environment->ShowPhase();
    ShowCard();
    for (int each = 1; each <= game.NumPlayers; ++each) {
        ShowClan(each);
    }
    menus_->ShowMarks();
    menus_->EnableAutoEating();
    ShowCurrentClan(game.CurPlayer);
    if (IsOver()) {
        menus_->DisableAutoEating();
    }
    ShowOrder();
    DrawBoard();
    ShowMessage(message, clan);
}

void BoardPresentation::ShowCaption(std::string_view caption) {
    window_->setWindowTitle(ToQt(caption));
}

void BoardPresentation::ShowTurn() {
    strip_->Environment->ShowTurn();
}

void BoardPresentation::ShowClan(int clan) {
    ShowBP(clan);
    ShowGenes(clan);
}

void BoardPresentation::ShowBP(int clan) {
    strip_->Clans->ShowBP(clan);
}

void BoardPresentation::ShowCard() {
    strip_->Environment->ShowDrift();
    strip_->Environment->ShowUV();
    strip_->Clans->update();
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
    const bool eating = person && WantsAutomatic(clan, Switch::Kind::Eating);
    const bool tentacle = person && WantsAutomatic(clan, Switch::Kind::Tentacle);
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

void BoardPresentation::OutlinePiece(int clan, int amoeba, bool on) {
    track_->Puddle()->OutlinePiece(clan, amoeba, on);
    motions_.EndAttack();
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
