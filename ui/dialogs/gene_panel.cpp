// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/dialogs/gene_panel.h"

#include <QGridLayout>

#include "model/game_state.h"
#include "ui/dialogs/choice_panels.h"
#include "ui/look/dress.h"
#include "ui/look/palette.h"
#include "ui/look/plain_tip.h"

namespace plasmos {

namespace {

/// A check box that is clicked anywhere on it.
class WideCheckBox : public QCheckBox {
public:
    using QCheckBox::QCheckBox;

protected:
    bool hitButton(const QPoint& point) const override { return rect().contains(point); }
};

QString TitleOf(const GeneForm& form) {
    return form.Adapts ? QStringLiteral("Adapt to the UV level") : QStringLiteral("Buy new genes");
}

}  // namespace

GenePanel::GenePanel(QWidget* parent, const GameState& state, GeneForm& form)
    : QuestionPanel(parent, state, form, TitleOf(form)),
      form_(form),
      text_(MakeText(this, "genelab", 12)),
      payLabel_(MakeText(this, "payLab", 13)),
      EnvBP_(new QLineEdit(this)),
      ofLab_(MakeText(this, "ofLab", 13)),
      UVdiffLab_(MakeText(this, "UVdiffLab", 13)),
      UVdiff_(MakeLabel(this, QStringLiteral("UVdiff"), 18, true, Tone::Ink)),
      bpCaption_(MakeText(this, "bpCaption", 13)),
      BPlabel_(MakeLabel(this, QStringLiteral("BPlabel"), 18, true, Tone::Ink)),
      resetb_(MakeButton(QStringLiteral("resetb"), QStringLiteral("Reset"), false)),
      doneb_(MakeButton(QStringLiteral("doneb"), QStringLiteral("Done"), true)) {
    Body()->addWidget(text_);
    MakeBoxes();
    MakeFoot();
    connect(EnvBP_, &QLineEdit::textChanged, this, [this](const QString& text) {
        if (!rereading_) {
            Handle([this, &text] { form_.EnvBP_Change(text.toStdString()); });
        }
    });
    connect(EnvBP_, &QLineEdit::returnPressed, this, [this] { doneb_->setFocus(); });
    connect(resetb_, &QPushButton::clicked, this, [this] { Handle([this] { form_.resetb_Click(); }); });
    connect(doneb_, &QPushButton::clicked, this, [this] { Handle([this] { form_.doneb_Click(); }); });
    std::vector<QWidget*> controls(boxes_.begin() + 1, boxes_.end());
    controls.insert(controls.end(), {EnvBP_, resetb_, doneb_});
    OrderTabs(controls);
    GenePanel::Reread();
}

void GenePanel::MakeBoxes() {
    auto* grid = new QGridLayout;
    grid->setHorizontalSpacing(8);
    grid->setVerticalSpacing(0);
    constexpr int Rows = (GeneCount + 1) / 2;
    for (int gene = 1; gene <= GeneCount; ++gene) {
        auto* box = new WideCheckBox(this);
        box->setObjectName(QStringLiteral("gcheck%1").arg(gene));
        WearLetters(*box, 12);
        RefuseRepeats(box);
        QLabel* cost = MakeLabel(this, QStringLiteral("gcost%1").arg(gene), 10, false, Tone::Faint);
        cost->setContentsMargins(24, 0, 0, 3);
        const int column = (gene - 1) / Rows;
        const int row = (gene - 1) % Rows * 2;
        grid->addWidget(box, row, column);
        grid->addWidget(cost, row + 1, column);
        boxes_[static_cast<std::size_t>(gene)] = box;
        costs_[static_cast<std::size_t>(gene)] = cost;
        connect(box, &QCheckBox::clicked, this, [this, gene] { Handle([this, gene] { form_.gcheck_Click(gene); }); });
    }
    grid->setColumnStretch(0, 1);
    grid->setColumnStretch(1, 1);
    Body()->addLayout(grid);
}

void GenePanel::MakeFoot() {
    EnvBP_->setObjectName(QStringLiteral("EnvBP"));
    EnvBP_->setFixedWidth(48);
    EnvBP_->setAlignment(Qt::AlignCenter);
    payLabel_->setText(QStringLiteral("Pay BP"));
    UVdiffLab_->setText(QStringLiteral("UV cost"));
    bpCaption_->setText(QStringLiteral("BP"));
    for (QLabel* label : {payLabel_, ofLab_, UVdiffLab_, bpCaption_}) {
        label->setWordWrap(false);
    }
    auto* price = new QHBoxLayout;
    price->setSpacing(6);
    for (QWidget* item : std::initializer_list<QWidget*>{payLabel_, EnvBP_, ofLab_}) {
        price->addWidget(item);
    }
    price->addStretch(1);
    price->addWidget(UVdiffLab_);
    price->addWidget(UVdiff_);
    Foot()->addLayout(price);
    auto* foot = new QHBoxLayout;
    foot->setSpacing(6);
    foot->addWidget(bpCaption_);
    foot->addWidget(BPlabel_);
    foot->addStretch(1);
    foot->addWidget(resetb_);
    foot->addWidget(doneb_);
    Foot()->addLayout(foot);
}

void GenePanel::Reread() {
    rereading_ = true;
    text_->setText(ToQt(form_.Text));
    text_->setVisible(State().Message != form_.Text);  // the message says it already
    for (int gene = 1; gene <= GeneCount; ++gene) {
        const GeneForm::CheckBox& source = form_.gcheck[gene];
        QCheckBox* box = boxes_[static_cast<std::size_t>(gene)];
        box->setText(ToQt(source.Caption));
        box->setToolTip(PlainTip(ToQt(source.ToolTip)));
        box->setChecked(source.Ticked);
        box->setEnabled(source.Enabled);
        costs_[static_cast<std::size_t>(gene)]->setText(ToQt(source.ToolTip));
    }
    payLabel_->setVisible(form_.EnvBPVisible);
    EnvBP_->setVisible(form_.EnvBPVisible);
    if (EnvBP_->text() != ToQt(form_.EnvBP)) {
        EnvBP_->setText(ToQt(form_.EnvBP));
    }
    ofLab_->setVisible(form_.ofLabVisible);
    ofLab_->setText(ToQt(form_.ofLab));
    UVdiffLab_->setVisible(form_.UVdiffVisible);
    UVdiff_->setVisible(form_.UVdiffVisible);
    UVdiff_->setText(QString::number(form_.UVdiff));
    SetLabelColour(UVdiff_, FromBgr(form_.UVdiffColour));
    bpCaption_->setVisible(form_.BPlabelVisible);
    BPlabel_->setVisible(form_.BPlabelVisible);
    BPlabel_->setText(ToQt(form_.BPlabel));
    resetb_->setVisible(form_.resetbVisible);
    rereading_ = false;
}

void GenePanel::CloseAsked() {
    Handle([this] { form_.Form_Close(); });
}

QWidget* GenePanel::FirstControl() {
    for (int gene = 1; gene <= GeneCount; ++gene) {
        if (boxes_[static_cast<std::size_t>(gene)]->isEnabled()) {
            return boxes_[static_cast<std::size_t>(gene)];
        }
    }
    return doneb_;
}

}  // namespace plasmos
