// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/window/history_desk.h"

#include <QMainWindow>
#include <utility>

#include "model/game_state.h"
#include "ui/dialogs/question_panel.h"
#include "ui/look/palette.h"
#include "ui/strip/log_view.h"
#include "ui/strip/question_card.h"
#include "ui/strip/side_strip.h"
#include "ui/strip/start_card.h"
#include "ui/strip/summary_panel.h"
#include "ui/window/kept_game_view.h"
#include "ui/window/look_desk.h"
#include "ui/window/question_desk.h"
#include "ui/window/record_desk.h"
#include "ui/window/record_menus.h"
#include "ui/window/table_top.h"
#include "ui/window/why_window.h"

namespace plasmos {

HistoryDesk::HistoryDesk(QMainWindow& window, TableTop& table, QuestionDesk& desk, const Deeds& deeds)
    : window_(&window), table_(&table) {
    QuestionDesk* const asks = &desk;
    const auto newGame = deeds.NewGame;
    records_ = std::make_unique<RecordDesk>(window, RecordDesk::Deeds{[this, play = deeds.Play](const auto& whole) {
                                                                          look_->Return();
                                                                          play(whole);
                                                                      },
                                                                      [this, asks] {
                                                                          look_->Return();
                                                                          asks->LeaveGame();
                                                                      },
                                                                      deeds.BeginAfresh,
                                                                      [this, enable = deeds.Enable] {
                                                                          enable();
                                                                          Follow();
                                                                      },
                                                                      deeds.Count, deeds.Tell});
    look_ = std::make_unique<LookDesk>(table, *records_,
                                       LookDesk::Deeds{deeds.ShowState, [asks, hold = deeds.HoldMenus](bool on) {
                                                           asks->Freeze(on);
                                                           hold(on);
                                                       }});
    menus_ = std::make_unique<RecordMenus>(window, *records_, *look_);
    StartCard* start = table.Strip->Start;
    connect(start->resumeb, &QPushButton::clicked, this, [this] { records_->Open(waiting_); });
    RefuseRepeats(start->resumeb);
    start->resumeb->setAutoDefault(true);
    QPushButton* why = table.Strip->Question->whyb;
    connect(why, &QPushButton::clicked, this, [this] { ShowReasons(*window_, *records_->Recorder()); });
    RefuseRepeats(why);
    table.Strip->Log->WhyOf = [this](int moment) {
        return records_->HasGame() ? ToQt(records_->Recorder()->WhyAt(moment)) : QString();
    };
    ConnectSummary(newGame);
}

HistoryDesk::~HistoryDesk() = default;

void HistoryDesk::ConnectSummary(const std::function<void()>& newGame) {
    SummaryPanel* summary = table_->Strip->Summary;
    summary->OnNewGame = newGame;
    summary->OnSave = [this] { menus_->AskWhereToSave(); };
    summary->OnTurn = [this](int turn) { look_->LookAtTurn(turn); };
    summary->OnPlayAgain = [this](int turn) {
        const int moment = turn == 0 ? 1 : records_->Recorder()->EndOfTurn(turn - 1);
        look_->Return();
        records_->GoOnFrom(moment);
    };
}

void HistoryDesk::ShowBy(BoardPresentation& presentation) {
    records_->ShowBy(presentation);
}

void HistoryDesk::PlayNew(const std::function<void()>& play) {
    look_->Return();
    records_->PlayNew(play);
}

void HistoryDesk::Open(const QString& path) {
    menus_->Open(path);
}

void HistoryDesk::Enable(bool guided) {
    menus_->Enable(guided);
}

void HistoryDesk::Follow() {
    menus_->ShowPossible();
    look_->Follow();
    RenewReasons(*window_, records_->Recorder());
    table_->Strip->Question->OfferWhy(records_->HasGame() && !records_->Recorder()->Reasons().empty());
}

void HistoryDesk::ShowNow() {
    look_->Return();
}

void HistoryDesk::Forget() {
    look_->Return();
    records_->Forget();
    Follow();
}

void HistoryDesk::GameIsOver() {
    look_->Return();
    look_->Follow();
    const bool over = IsOver() && records_->HasGame();
    table_->Strip->ShowSummary(over ? records_->Recorder()->Figures() : std::vector<TurnFigures>());
    OfferResume();
}

void HistoryDesk::OfferResume() {
    StartCard* start = table_->Strip->Start;
    const auto left = LatestKeptGame(records_->GamesFolder(), StartCard::PictureSide(), window_->devicePixelRatioF());
    waiting_ = left ? left->Path : std::string();
    start->OfferResume(left ? left->Line : QString(), left ? left->Board : QPixmap());
    table_->Strip->Arrange();
}

bool HistoryDesk::IsKept() const {
    return records_->IsKept();
}

bool HistoryDesk::CountsNow() {
    return records_->CountsNow();
}

}  // namespace plasmos
