// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/window/guide_bar.h"

#include <algorithm>

#include "ui/look/dress.h"
#include "ui/look/heard.h"

namespace plasmos {

namespace {

constexpr int Pad = 14;
constexpr int HeadHeight = 22;

}  // namespace

GuideBar::GuideBar(QWidget* parent)
    : Card(parent),
      endguideb(new QPushButton(QStringLiteral("End the &Tour"), this)),
      title_(MakeLabel(this, QStringLiteral("guidetitle"), 12, true, Tone::Faint)),
      note_(new FitLabel(this, 14, 10)),
      recommended_(MakeLabel(this, QStringLiteral("guideadvice"), 13, true, Tone::Guide)) {
    setObjectName(QStringLiteral("guidebar"));
    endguideb->setObjectName(QStringLiteral("endguideb"));
    endguideb->setToolTip(QStringLiteral("Leaves this game; the tour stays in the menu Help"));
    note_->setObjectName(QStringLiteral("guidenote"));
    SetEdge(-1);
    hide();
}

int GuideBar::Height() {
    return Px(HeadHeight + 76);
}

void GuideBar::Show(int number, int lessons, const QString& note, const QString& recommended) {
    title_->setText(number > 0 ? QStringLiteral("Show me how: %1 of %2").arg(number).arg(lessons)
                               : QStringLiteral("Show me how"));
    recommended_->setText(recommended);
    if (note != note_->text()) {
        note_->SetText(note);
        setAccessibleName(note + QLatin1Char(' ') + recommended);
        TellAlert(*this);
    }
    Arrange();
}

void GuideBar::resizeEvent(QResizeEvent*) {
    Arrange();
}

void GuideBar::Arrange() {
    const int pad = Px(Pad);
    const int button = std::max(endguideb->sizeHint().width(), Px(110));
    const int inner = width() - 3 * pad - button;
    const int title = title_->sizeHint().width() + Px(18);
    title_->setGeometry(pad, Px(7), title, Px(HeadHeight));
    recommended_->setGeometry(pad + title, Px(7), inner - title, Px(HeadHeight));
    const int top = Px(7 + HeadHeight);
    note_->setGeometry(pad, top, inner, height() - top - Px(6));
    endguideb->setGeometry(width() - pad - button, (height() - Px(34)) / 2, button, Px(34));
}

}  // namespace plasmos
