// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/window/lent_labels.h"

#include <QMouseEvent>

#include "model/dice.h"
#include "model/game_state.h"
#include "ui/look/palette.h"
#include "ui/strip/environment_view.h"

namespace plasmos {

namespace {

constexpr int BorrowedMilliseconds = 3000;
const QString DriftBorrowed = QStringLiteral("DRIFTLAB");
const QString UVBorrowed = QStringLiteral("UVLAB");

/// Mean UV level of the cards still to come; without any the current one.
double MeanUV(const GameState& state) {
    int sum = 0;
    int cards = 0;
    for (int card = state.TurnedCard + 1; state.NumPlayers > 0 && card <= LastCard; ++card) {
        sum += state.EnvDeck[card].UV;
        ++cards;
    }
    return cards > 0 ? static_cast<double>(sum) / cards : state.UVLevel;
}

}  // namespace

LentLabels::LentLabels(QObject* parent, EnvironmentView& environment)
    : QObject(parent),
      environment_(&environment),
      driftlab_(environment.driftlab),
      UVlab_(environment.UVlab),
      zyTimer_(new QTimer(this)) {
    driftlab_->installEventFilter(this);
    UVlab_->installEventFilter(this);
    zyTimer_->setObjectName(QStringLiteral("zyTimer"));
    zyTimer_->setSingleShot(true);
    connect(zyTimer_, &QTimer::timeout, this, [this] { GiveBack(); });
}

void LentLabels::driftlab_MouseDown() {
    bool number = false;
    environment_->driftlab->text().toDouble(&number);
    if (number) {
        GiveBack();
        return;
    }
    Borrow(DriftBorrowed);
    environment_->driftlab->SetText(ToQt(ReplayText(environment_->State().ReplayNo)));
}

void LentLabels::UVlab_MouseUp() {
    Borrow(UVBorrowed);
    environment_->UVlab->SetText(QStringLiteral("%1").arg(MeanUV(environment_->State()), 4, 'f', 1, QLatin1Char('0')));
}

void LentLabels::Borrow(const QString& label) {
    GiveBack();
    borrowed_ = label;
    zyTimer_->start(BorrowedMilliseconds);
}

void LentLabels::GiveBack() {
    zyTimer_->stop();
    if (borrowed_ == DriftBorrowed) {
        environment_->ShowDrift();
    } else if (borrowed_ == UVBorrowed) {
        environment_->ShowUV();
    }
    borrowed_.clear();
}

bool LentLabels::eventFilter(QObject* watched, QEvent* event) {
    const bool press = event->type() == QEvent::MouseButtonPress || event->type() == QEvent::MouseButtonDblClick;
    const bool drift = watched == driftlab_ && press;
    const bool uv = watched == UVlab_ && event->type() == QEvent::MouseButtonRelease;
    if ((drift || uv) && static_cast<QMouseEvent*>(event)->button() == Qt::RightButton) {
        drift ? driftlab_MouseDown() : UVlab_MouseUp();
        return true;
    }
    return QObject::eventFilter(watched, event);
}

}  // namespace plasmos
