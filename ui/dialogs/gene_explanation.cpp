// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/dialogs/gene_explanation.h"

#include <QVBoxLayout>

#include "model/gene_texts.h"
#include "questions/gene_form.h"
#include "ui/dialogs/steady_label.h"
#include "ui/look/dress.h"
#include "ui/look/palette.h"

namespace plasmos {

namespace {

QStringList AllGeneTexts() {
    QStringList texts;
    for (int gene = 1; gene <= GeneCount; ++gene) {
        texts << ToQt(GeneText(gene));
    }
    return texts;
}

/// The mutation level now, and with the gene.
QString LevelsText(const GameState& state, int clan, int gene) {
    const int level = state.Players[clan].MutationLevel;
    return state.Genes[gene][clan] ? QStringLiteral("Mutation level %1, UV level %2").arg(level).arg(state.UVLevel)
                                   : QStringLiteral("Mutation level %1, with it %2; UV level %3")
                                         .arg(level)
                                         .arg(LevelWith(state, clan, gene))
                                         .arg(state.UVLevel);
}

/// How it stands with a gene, or why its box is grey.
QString StateText(const GameState& state, const GeneForm& form, int gene) {
    const GeneForm::CheckBox& box = form.gcheck[gene];
    const int clan = form.Clan;
    if (form.Adapts) {
        const QString points = PointsText(GeneForm::PointsOf(gene));
        return !box.Enabled ? QStringLiteral("you do not hold it")
               : box.Ticked ? QStringLiteral("giving it up takes %1 off the UV cost").arg(points)
                            : QStringLiteral("given up, which takes %1 off the UV cost").arg(points);
    }
    if (box.Ticked && box.Enabled) {
        return QStringLiteral("bought just now, goes back for %1 BP").arg(state.Catalogue[gene].Cost);
    }
    const QString why = ToQt(GeneBarText(state, clan, gene));
    return why.isEmpty() ? QStringLiteral("can be bought") : why;
}

QString Sentence(QString text) {
    text[0] = text[0].toUpper();
    return text + QLatin1Char('.');
}

QString NameText(const GameState& state, int gene) {
    const GeneRecord& record = state.Catalogue[gene];
    return QStringLiteral("%1: %2 BP, %3; copies left: %4")
        .arg(ToQt(GeneName(gene)))
        .arg(record.Cost)
        .arg(PointsText(record.MutationPoints))
        .arg(record.Supply);
}

}  // namespace

QString PointsText(int points) {
    return points == 1 || points == -1 ? QStringLiteral("%1 point").arg(points)
                                       : QStringLiteral("%1 points").arg(points);
}

QString SpokenGene(const GameState& state, const GeneForm& form, int gene) {
    const GeneRecord& record = state.Catalogue[gene];
    return QStringLiteral("%1, %2 BP, %3 mutation points, %4, %5")
        .arg(ToQt(GeneName(gene)))
        .arg(record.Cost)
        .arg(record.MutationPoints)
        .arg(state.Genes[gene][form.Clan] ? QStringLiteral("held") : QStringLiteral("not held"),
             StateText(state, form, gene));
}

GeneExplanation::GeneExplanation(QWidget* parent, const GameState& state, const GeneForm& form)
    : QWidget(parent),
      state_(state),
      form_(form),
      name_(MakeLabel(this, QStringLiteral("geneName"), 12, true, Tone::Ink)),
      text_(new SteadyLabel(this, "geneText", 11, AllGeneTexts())),
      standing_(new SteadyLabel(this, "geneState", 11, {QStringLiteral("One line\nand another")})) {
    auto* lines = new QVBoxLayout(this);
    lines->setContentsMargins(0, 0, 0, 0);
    lines->setSpacing(1);
    name_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    WearTone(*standing_, Tone::Accent);
    for (QLabel* label : {name_, text_, standing_}) {
        lines->addWidget(label);
    }
    setSizePolicy([] {
        QSizePolicy policy(QSizePolicy::Preferred, QSizePolicy::Fixed);
        policy.setHeightForWidth(true);
        return policy;
    }());
}

void GeneExplanation::Explain(int gene) {
    gene_ = gene;
    name_->setText(NameText(state_, gene));
    text_->setText(ToQt(GeneText(gene)));
    standing_->setText(LevelsText(state_, form_.Clan, gene) + QStringLiteral(".\n") +
                       Sentence(StateText(state_, form_, gene)));
}

}  // namespace plasmos
