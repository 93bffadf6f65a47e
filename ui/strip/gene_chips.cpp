// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/strip/gene_chips.h"

#include <QFontMetricsF>
#include <QHelpEvent>
#include <QPainter>
#include <QToolTip>
#include <algorithm>

#include "model/gene_texts.h"
#include "ui/look/dress.h"
#include "ui/look/palette.h"
#include "ui/look/plain_tip.h"

namespace plasmos {

namespace {

constexpr double UsualChipHeight = 17;
constexpr int FullNames = 0;
constexpr int Codes = 1;
constexpr int TinyCodes = 2;

double ChipHeight() {
    return UsualChipHeight * Letters();
}

QString ChipText(int gene, int form) {
    return form == FullNames ? ToQt(GeneName(gene)) : ToQt(GeneCodes[gene]);
}

/// A gene's name and what it does, in lines that a tool tip holds.
QString TipOf(int gene) {
    constexpr int longest = 60;
    QString tip = ToQt(GeneName(gene)) + QLatin1Char(':');
    int line = 0;
    for (const QString& word : ToQt(GeneText(gene)).split(QLatin1Char(' '))) {
        const bool breaks = line == 0 || line + word.size() > longest;
        tip += (breaks ? QLatin1Char('\n') : QLatin1Char(' ')) + word;
        line = (breaks ? 0 : line + 1) + static_cast<int>(word.size());
    }
    return tip;
}

QFont ChipFont(int form) {
    return LookFont(form == TinyCodes ? 9 : 10.5);
}

}  // namespace

GeneChips::GeneChips(QWidget* parent, const GameState& state, int clan) : QWidget(parent), state_(&state), clan_(clan) {
    setObjectName(QStringLiteral("genelist%1").arg(clan - 1));
}

void GeneChips::ShowState(const GameState& state) {
    state_ = &state;
    Reread();
}

void GeneChips::Reread() {
    genes_.clear();
    for (int gene = 1; gene <= GeneCount; ++gene) {
        if (state_->Genes[gene][clan_]) {
            genes_.push_back(gene);
        }
    }
    const auto& bought = state_->BoughtAs;
    std::stable_sort(genes_.begin(), genes_.end(),
                     [&](int one, int other) { return bought[one][clan_] < bought[other][clan_]; });
    setToolTip(ToQt(MutationTip(*state_, clan_)));
    setAccessibleDescription(Names());
    update();
}

QString GeneChips::Names() const {
    QStringList names;
    for (const int gene : genes_) {
        names << ToQt(GeneName(gene));
    }
    return names.join(QStringLiteral(", "));
}

// False: the chips of this form do not fit.
bool GeneChips::Arrange(int form, std::vector<Chip>& chips) const {
    chips.clear();
    const QFontMetricsF metrics(ChipFont(form));
    const double padding = (form == TinyCodes ? 3.5 : 7) * Letters();
    const double gap = form == TinyCodes ? 2 : 4;
    double x = 0;
    double y = 0;
    for (const int gene : genes_) {
        const QString text = ChipText(gene, form);
        const double wide = metrics.horizontalAdvance(text) + 2 * padding;
        if (x > 0 && x + wide > width()) {
            x = 0;
            y += ChipHeight() + 2;
        }
        chips.push_back({gene, QRectF(x, y, wide, ChipHeight()), text, form});
        x += wide + gap;
    }
    return y + ChipHeight() <= height() + 1;
}

std::vector<GeneChips::Chip> GeneChips::Chips() const {
    std::vector<Chip> chips;
    for (const int form : {FullNames, Codes, TinyCodes}) {
        if (Arrange(form, chips)) {
            return chips;
        }
    }
    CutToFit(chips);
    return chips;
}

// The last one in sight tells how many more there are.
void GeneChips::CutToFit(std::vector<Chip>& chips) const {
    const auto hidden = [this](const Chip& chip) { return chip.Rect.bottom() > height() + 1; };
    const auto cut = std::find_if(chips.begin(), chips.end(), hidden);
    if (cut == chips.begin() || cut == chips.end()) {
        return;
    }
    const auto more = chips.end() - cut + 1;
    chips.erase(cut, chips.end());
    chips.back().Gene = 0;
    chips.back().Text = QStringLiteral("+%1").arg(more);
}

void GeneChips::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    for (const Chip& chip : Chips()) {
        painter.setPen(QPen(Shade(Tone::ChipEdge), 1));
        painter.setBrush(Shade(Tone::Chip));
        painter.drawRoundedRect(chip.Rect.adjusted(0.5, 0.5, -0.5, -0.5), 8, 8);
        painter.setFont(ChipFont(chip.Form));
        painter.setPen(Shade(Tone::ChipInk));
        painter.drawText(chip.Rect, Qt::AlignCenter, chip.Text);
    }
}

bool GeneChips::event(QEvent* event) {
    if (event->type() == QEvent::ToolTip) {
        const auto* help = static_cast<QHelpEvent*>(event);
        QString tip = toolTip();
        for (const Chip& chip : Chips()) {
            if (chip.Rect.contains(QPointF(help->pos()))) {
                tip += QLatin1Char('\n') + (chip.Gene > 0 ? TipOf(chip.Gene) : Names());
            }
        }
        QToolTip::showText(help->globalPos(), PlainTip(tip), this);
        return true;
    }
    return QWidget::event(event);
}

}  // namespace plasmos
