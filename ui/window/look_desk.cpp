// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/window/look_desk.h"

#include <QScopedValueRollback>
#include <algorithm>

#include "record/play_record.h"
#include "ui/board/puddle_view.h"
#include "ui/board/score_track.h"
#include "ui/dialogs/question_panel.h"
#include "ui/strip/log_view.h"
#include "ui/strip/side_strip.h"
#include "ui/window/look_bar.h"
#include "ui/window/record_desk.h"
#include "ui/window/table_top.h"

namespace plasmos {

LookDesk::LookDesk(TableTop& table, RecordDesk& records, Deeds deeds)
    : table_(&table), bar_(table.Look), records_(&records), deeds_(std::move(deeds)) {
    connect(bar_->Slider, &QAbstractSlider::valueChanged, this, [this](int chapter) {
        if (!moving_) {
            ShowChapter(chapter);
        }
    });
    connect(bar_->nowb, &QPushButton::clicked, this, [this] { Return(); });
    connect(bar_->goonb, &QPushButton::clicked, this, [this] { GoOn(); });
    RefuseRepeats(bar_->nowb);
    RefuseRepeats(bar_->goonb);
    table_->Strip->Log->OnMoment = [this](int moment) { LookAt(moment); };
    table_->Strip->Log->MomentOfNow = [this] { return records_->HasGame() ? records_->Recorder()->Moment() : 0; };
}

void LookDesk::Follow() {
    if (!LooksBack()) {
        bar_->Slider->ShowChapters(records_->HasGame() ? records_->Recorder()->Chapters()
                                                       : std::vector<GameRecorder::Chapter>());
        SetSlider(bar_->Slider->maximum());
    }
}

void LookDesk::SetSlider(int chapter) {
    const QScopedValueRollback moving(moving_, true);
    bar_->Slider->setValue(chapter);
}

void LookDesk::Move(int chapters) {
    Follow();
    bar_->Slider->setValue(std::clamp(bar_->Slider->value() + chapters, 0, bar_->Slider->maximum()));
}

void LookDesk::ShowChapter(int chapter) {
    if (chapter >= bar_->Slider->maximum()) {
        Return();
    } else {
        Show(records_->Recorder()->Chapters()[static_cast<std::size_t>(chapter)].Moment, bar_->Slider->NameOf(chapter));
    }
}

void LookDesk::LookAt(int moment) {
    if (!records_->HasGame() || moment <= 0) {
        return;
    }
    Follow();
    const auto& chapters = records_->Recorder()->Chapters();
    const auto next = std::upper_bound(chapters.begin(), chapters.end(), moment,
                                       [](int at, const auto& chapter) { return at < chapter.Moment; });
    const int chapter = std::max(0, static_cast<int>(next - chapters.begin()) - 1);
    SetSlider(chapter);
    Show(moment, bar_->Slider->NameOf(chapter));
}

void LookDesk::LookAtTurn(int turn) {
    if (records_->HasGame()) {
        LookAt(records_->Recorder()->EndOfTurn(turn));
    }
}

void LookDesk::Show(int moment, const QString& what) {
    auto then = std::make_unique<GameState>(StateAt(records_->Recorder()->Record(), moment));
    deeds_.Freeze(true);
    if (!LooksBack()) {
        outlined_ = table_->Track->Puddle()->Outlined();
        table_->Track->Puddle()->OutlinePiece(outlined_.Clan, outlined_.Amoeba, false);
    }
    deeds_.ShowState(*then);
    then_ = std::move(then);
    moment_ = moment;
    bar_->ShowPast(what);
    table_->Strip->Log->MarkMoment(moment);
    table_->ArrangeAgain();
}

void LookDesk::Return() {
    if (!LooksBack()) {
        return;
    }
    deeds_.ShowState(game);
    table_->Track->Puddle()->OutlinePiece(outlined_.Clan, outlined_.Amoeba, outlined_.Clan > 0);
    then_.reset();
    bar_->ShowPast({});
    table_->Strip->Log->MarkMoment(0);
    deeds_.Freeze(false);
    Follow();
    table_->ArrangeAgain();
}

void LookDesk::GoOn() {
    const int moment = moment_;
    Return();
    records_->GoOnFrom(moment);
}

}  // namespace plasmos
