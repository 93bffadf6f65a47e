// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/board/ttip.h"

#include <QApplication>
#include <QCursor>
#include <QEvent>
#include <QToolTip>

#include "files/text.h"
#include "model/game_state.h"
#include "ui/board/puddle_view.h"
#include "ui/look/dress.h"
#include "ui/look/palette.h"
#include "ui/look/piece_layout.h"

namespace plasmos {

namespace {

constexpr int WaitingMilliseconds = 1500;
constexpr int ShowingMilliseconds = 5;
constexpr double Band = 40;
constexpr QPoint Beside(20, -2);

}  // namespace

std::string TipTextAt(const GameState& state, int x, int y) {
    for (int clan = 1; clan <= state.NumPlayers; ++clan) {
        for (int amoeba = 1; amoeba <= state.MaxAmoeba; ++amoeba) {
            const Piece& piece = state.Amoeba[amoeba][clan];
            if (piece.Square == 0) {
                continue;
            }
            const QRectF marker = MarkerOf(state, clan, amoeba);
            const bool across = marker.left() < x && x <= marker.right();
            const bool down = marker.top() + Band < y && y <= marker.bottom() + Band;
            if (!marker.isEmpty() && across && down) {
                return Concat(amoeba, "- ", piece.Name.View(), " (", piece.Damage, ")");
            }
        }
    }
    return {};
}

ToolTips::ToolTips(PuddleView* puddle)
    : QObject(puddle),
      puddle_(puddle),
      TTwin_(new QLabel(puddle->window(), Qt::ToolTip | Qt::FramelessWindowHint | Qt::WindowTransparentForInput)),
      ttTimer_(new QTimer(this)) {
    TTwin_->setObjectName(QStringLiteral("TTwin"));
    TTwin_->setAttribute(Qt::WA_ShowWithoutActivating);
    TTwin_->setTextFormat(Qt::PlainText);
    WearLetters(*TTwin_, 13, true);
    TTwin_->setMargin(5);
    WearSheet(*TTwin_, QStringLiteral("background:@Tip;color:@Ink;border:1px solid @FieldEdge"));
    TTwin_->installEventFilter(this);
    puddle_->installEventFilter(this);
    ttTimer_->setObjectName(QStringLiteral("ttTimer"));
    connect(ttTimer_, &QTimer::timeout, this, [this] { ttTimer_Timer(); });
    ttTimer_->start(WaitingMilliseconds);
}

ToolTips::~ToolTips() = default;

// What is told is measured in the letters of the day; a press has the pointer's amoeba seen.
bool ToolTips::eventFilter(QObject* watched, QEvent* event) {
    if (watched == TTwin_ && event->type() == QEvent::StyleChange) {
        TTwin_->resize(TTwin_->sizeHint());
    } else if (watched == puddle_ && event->type() == QEvent::MouseButtonPress) {
        Hush();
    }
    return QObject::eventFilter(watched, event);
}

void ToolTips::Hush() {
    hushed_ = TextUnderPointer();
    ShowTip({});
    QToolTip::hideText();
}

std::string ToolTips::TextUnderPointer() const {
    const QPoint cursor = QCursor::pos();
    const QWidget* under = QApplication::widgetAt(cursor);
    const bool over = puddle_->isVisible() && (under == puddle_ || under == TTwin_);
    const QPoint units = puddle_->UnitsAt(puddle_->mapFromGlobal(QPointF(cursor)));
    return over ? TipTextAt(puddle_->State(), units.x(), units.y()) : std::string();
}

void ToolTips::ttTimer_Timer() {
    const std::string text = TextUnderPointer();
    if (text != hushed_) {
        hushed_.clear();
    }
    ShowTip(hushed_.empty() ? text : std::string());
}

void ToolTips::Stop() {
    ttTimer_->stop();
    TTwin_->hide();
}

void ToolTips::ShowTip(const std::string& text) {
    if (text.empty()) {
        if (ttTimer_->interval() != WaitingMilliseconds) {
            ttTimer_->start(WaitingMilliseconds);
        }
        TTwin_->hide();
        return;
    }
    if (TTwin_->text() != ToQt(text)) {
        TTwin_->setText(ToQt(text));
        TTwin_->resize(TTwin_->sizeHint());
    }
    const QPoint place = QCursor::pos() + Beside;
    if (TTwin_->pos() != place) {
        TTwin_->move(place);
    }
    if (!TTwin_->isVisible()) {
        TTwin_->show();
    }
    if (ttTimer_->interval() != ShowingMilliseconds) {
        ttTimer_->start(ShowingMilliseconds);
    }
}

}  // namespace plasmos
