// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/window/table_top.h"

#include <QEvent>
#include <algorithm>

#include "ui/board/score_track.h"
#include "ui/look/dress.h"
#include "ui/strip/side_strip.h"
#include "ui/window/guide_bar.h"
#include "ui/window/look_bar.h"

namespace plasmos {

namespace {

constexpr int Margin = 10;

}  // namespace

TableTop::TableTop(QWidget* parent, const GameState& state)
    : QWidget(parent),
      Track(new ScoreTrack(this, state)),
      Strip(new SideStrip(this, state)),
      Guide(new GuideBar(this)),
      Look(new LookBar(this)) {
    setTabOrder(Track, Look);
}

void TableTop::ShowGuide(bool on) {
    Guide->setVisible(on);
    Arrange();
}

void TableTop::resizeEvent(QResizeEvent*) {
    Arrange();
}

void TableTop::changeEvent(QEvent* event) {
    if (event->type() == QEvent::StyleChange) {
        Arrange();
    }
    QWidget::changeEvent(event);
}

// Half of the window is the puddle's, however large the letters are.
void TableTop::Arrange() {
    const int side = std::min(std::clamp(width() * 36 / 100, Px(380), Px(490)), std::max(width() / 2, 380));
    QRect inner = rect().adjusted(Margin, Margin, -Margin, -Margin);
    if (Guide->isVisibleTo(this)) {
        const int guide = GuideBar::Height();
        Guide->setGeometry(inner.left(), inner.bottom() + 1 - guide, inner.width(), guide);
        inner.setBottom(inner.bottom() - guide - Margin);
    }
    Strip->setGeometry(inner.right() - side + 1, inner.top(), side, inner.height());
    const int wide = inner.width() - side - Margin;
    const int look = Guide->isVisibleTo(this) ? 0 : Look->Height();
    Look->setVisible(look > 0);
    Look->setGeometry(inner.left(), inner.bottom() + 1 - look, wide, look);
    Track->setGeometry(inner.left(), inner.top(), wide, inner.height() - (look > 0 ? look + 4 : 0));
}

}  // namespace plasmos
