// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/dialogs/gene_panel.h"

#include <QEvent>
#include <QGridLayout>
#include <QPainter>
#include <QStyleOption>

#include "model/game_state.h"
#include "model/gene_texts.h"
#include "ui/dialogs/choice_panels.h"
#include "ui/dialogs/gene_explanation.h"
#include "ui/look/dress.h"
#include "ui/look/palette.h"
#include "ui/look/plain_tip.h"

namespace plasmos {

namespace {

/// A check box that is clicked anywhere on it, with an edge that is seen in dark colours, too.
class WideCheckBox : public QCheckBox {
public:
    using QCheckBox::QCheckBox;

protected:
    bool hitButton(const QPoint& point) const override { return rect().contains(point); }

    void paintEvent(QPaintEvent* event) override {
        QCheckBox::paintEvent(event);
        QStyleOptionButton option;
        initStyleOption(&option);
        const QRect box = style()->subElementRect(QStyle::SE_CheckBoxIndicator, &option, this);
        QPainter painter(this);
        painter.setPen(Shade(isEnabled() ? Tone::FieldEdge : Tone::Disabled));
        painter.drawRoundedRect(QRectF(box).adjusted(0.5, 0.5, -0.5, -0.5), 2, 2);
    }
};

QString TitleOf(const GeneForm& form) {
    return form.Adapts ? QStringLiteral("Adapt to the UV level") : QStringLiteral("Buy new genes");
}

}  // namespace

GenePanel::GenePanel(QWidget* parent, const GameState& state, GeneForm& form)
    : QuestionPanel(parent, state, form, TitleOf(form)),
      form_(form),
      text_(MakeText(this, "genelab", 12)),
      explanation_(new GeneExplanation(this, state, form)),
      payLabel_(MakeText(this, "payLab", 13)),
      lessBP_(MakeStep(this, QStringLiteral("lessbp"), false)),
      EnvBP_(new QLineEdit(this)),
      moreBP_(MakeStep(this, QStringLiteral("morebp"), true)),
      ofLab_(MakeText(this, "ofLab", 13)),
      UVdiffLab_(MakeText(this, "UVdiffLab", 13)),
      UVdiff_(MakeLabel(this, QStringLiteral("UVdiff"), 18, true, Tone::Ink)),
      missing_(MakeText(this, "missinglab", 12)),
      bpCaption_(MakeText(this, "bpCaption", 13)),
      BPlabel_(MakeLabel(this, QStringLiteral("BPlabel"), 18, true, Tone::Ink)),
      adaptb_(MakeButton(QStringLiteral("adaptb"), QStringLiteral("Suggest"), false)),
      resetb_(MakeButton(QStringLiteral("resetb"), QStringLiteral("Reset"), false)),
      doneb_(MakeButton(QStringLiteral("doneb"), QStringLiteral("Done"), true)) {
    Body()->addWidget(text_);
    Body()->addWidget(Hint());
    MakeBoxes();
    Foot()->addWidget(explanation_);
    MakePrice();
    MakeButtons();
    Connect();
    GenePanel::Reread();
    made_ = true;
}

// The letters that are struck through are this dialog's own.
void GenePanel::Redress() {
    QuestionPanel::Redress();
    if (made_) {
        Reread();
    }
}

void GenePanel::Connect() {
    connect(EnvBP_, &QLineEdit::textChanged, this, [this](const QString& text) {
        if (!rereading_) {
            Handle([this, &text] { form_.EnvBP_Change(text.toStdString()); });
        }
    });
    connect(EnvBP_, &QLineEdit::returnPressed, this, [this] { doneb_->setFocus(); });
    connect(lessBP_, &QPushButton::clicked, this, [this] { StepBP(-1); });
    connect(moreBP_, &QPushButton::clicked, this, [this] { StepBP(1); });
    connect(adaptb_, &QPushButton::clicked, this, [this] {
        doneb_->setFocus();
        Handle([this] { form_.adaptb_Click(); });
    });
    connect(resetb_, &QPushButton::clicked, this, [this] { Handle([this] { form_.resetb_Click(); }); });
    connect(doneb_, &QPushButton::clicked, this, [this] { Handle([this] { form_.doneb_Click(); }); });
    std::vector<QWidget*> controls;
    for (int gene = 1; gene <= GeneCount; ++gene) {
        controls.push_back(At(gene).Box);
    }
    controls.insert(controls.end(), {EnvBP_, adaptb_, resetb_, doneb_});
    OrderTabs(controls);
}

void GenePanel::MakeBox(int gene) {
    Line& line = At(gene);
    line.Box = new WideCheckBox(this);
    line.Box->setObjectName(QStringLiteral("gcheck%1").arg(gene));
    RefuseRepeats(line.Box);
    line.Cost = MakeLabel(this, QStringLiteral("gcost%1").arg(gene), 10, false, Tone::Faint);
    line.Cost->setContentsMargins(24, 0, 0, 3);
    line.Gives = MakeLabel(this, QStringLiteral("ggives%1").arg(gene), 10, true, Tone::Accent);
    line.Gives->setContentsMargins(0, 0, 0, 3);
    for (QWidget* part : std::initializer_list<QWidget*>{line.Box, line.Cost}) {
        part->installEventFilter(this);
    }
    connect(line.Box, &QCheckBox::toggled, this, [this, gene] {
        if (!rereading_) {
            Handle([this, gene] { form_.gcheck_Click(gene); });
        }
    });
}

// Who adapts has only its own genes before it.
void GenePanel::MakeBoxes() {
    auto* grid = new QGridLayout;
    grid->setHorizontalSpacing(8);
    grid->setVerticalSpacing(0);
    std::vector<int> shown;
    for (int gene = 1; gene <= GeneCount; ++gene) {
        MakeBox(gene);
        if (!form_.Adapts || form_.gcheck[gene].Enabled) {
            shown.push_back(gene);
        }
    }
    const int rows = (static_cast<int>(shown.size()) + 1) / 2;
    for (int place = 0; place < static_cast<int>(shown.size()); ++place) {
        const Line& line = At(shown[static_cast<std::size_t>(place)]);
        auto* below = new QHBoxLayout;
        below->addWidget(line.Cost);
        below->addWidget(line.Gives, 1);
        grid->addWidget(line.Box, place % rows * 2, place / rows);
        grid->addLayout(below, place % rows * 2 + 1, place / rows);
    }
    grid->setColumnStretch(0, 1);
    grid->setColumnStretch(1, 1);
    Body()->addLayout(grid);
}

void GenePanel::MakePrice() {
    EnvBP_->setObjectName(QStringLiteral("EnvBP"));
    EnvBP_->setFixedWidth(48);
    EnvBP_->setAlignment(Qt::AlignCenter);
    payLabel_->setText(QStringLiteral("Pay BP"));
    UVdiffLab_->setText(QStringLiteral("UV cost"));
    bpCaption_->setText(QStringLiteral("BP"));
    lessBP_->setAccessibleName(QStringLiteral("Pay one BP less"));
    moreBP_->setAccessibleName(QStringLiteral("Pay one BP more"));
    for (QLabel* label : {payLabel_, ofLab_, UVdiffLab_, bpCaption_}) {
        label->setWordWrap(false);
    }
    auto* price = new QHBoxLayout;
    price->setSpacing(6);
    for (QWidget* item : std::initializer_list<QWidget*>{payLabel_, lessBP_, EnvBP_, moreBP_, ofLab_}) {
        price->addWidget(item);
    }
    price->addStretch(1);
    price->addWidget(UVdiffLab_);
    price->addWidget(UVdiff_);
    Foot()->addLayout(price);
}

void GenePanel::MakeButtons() {
    Foot()->addWidget(missing_);
    auto* foot = new QHBoxLayout;
    foot->setSpacing(6);
    foot->addWidget(bpCaption_);
    foot->addWidget(BPlabel_);
    foot->addWidget(adaptb_);
    foot->addStretch(1);
    foot->addWidget(resetb_);
    foot->addWidget(doneb_);
    adaptb_->setToolTip(
        QStringLiteral("Takes the cheapest way: BP, and genes for what they cost to buy. Ray Protection is kept."));
    Foot()->addLayout(foot);
}

void GenePanel::StepBP(int by) {
    const int bp = std::clamp(form_.PaidBP() + by, 0, State().BP[Clan()]);
    Handle([this, bp] { form_.EnvBP_Change(std::to_string(bp)); });
}

bool GenePanel::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Enter || event->type() == QEvent::FocusIn) {
        for (int gene = 1; gene <= GeneCount; ++gene) {
            if (At(gene).Box == watched || At(gene).Cost == watched) {
                explanation_->Explain(gene);
            }
        }
    }
    return QuestionPanel::eventFilter(watched, event);
}

void GenePanel::RereadBox(int gene) {
    const GeneForm::CheckBox& source = form_.gcheck[gene];
    Line& line = At(gene);
    const bool given = form_.IsGivenUp(gene);
    QFont font = LookFont(12);
    font.setStrikeOut(given);
    line.Box->setFont(font);
    line.Box->setText(ToQt(source.Caption));
    line.Box->setToolTip(PlainTip(ToQt(source.ToolTip)));
    line.Box->setAccessibleName(SpokenGene(State(), form_, gene));
    line.Box->setAccessibleDescription(ToQt(GeneText(gene)));
    line.Box->setChecked(source.Ticked);
    line.Box->setEnabled(source.Enabled);
    line.Cost->setText(ToQt(GenePrice(State(), gene)));
    line.Gives->setText(given ? QStringLiteral("gives %1").arg(PointsText(GeneForm::PointsOf(gene))) : QString());
    const bool shown = !form_.Adapts || source.Enabled;
    line.Box->setVisible(shown);
    line.Cost->setVisible(shown);
    line.Gives->setVisible(shown && form_.Adapts);
}

QString GenePanel::MissingText() const {
    if (const int uncounted = form_.UncountedBP(); uncounted > 0 && form_.UVdiff > 0) {
        return QStringLiteral("The UV cost leaves out %1 BP typed before the last gene: type them again.")
            .arg(uncounted);
    }
    if (form_.UVdiff <= 0) {
        return QStringLiteral("Nothing is missing.");
    }
    return QStringLiteral("%1 still missing: give up genes%2")
        .arg(PointsText(form_.UVdiff), form_.EnvBPVisible ? QStringLiteral(" or pay BP") : QString());
}

QString GenePanel::ClosingText() const {
    if (!form_.Adapts) {
        return QStringLiteral("like Done; what is ticked is bought");
    }
    return form_.UVdiff > 0 ? QStringLiteral("like Done, which is refused until the UV cost is 0")
                            : QStringLiteral("like Done; gives up and pays what is shown");
}

void GenePanel::RereadPayment() {
    payLabel_->setVisible(form_.EnvBPVisible);
    EnvBP_->setVisible(form_.EnvBPVisible);
    EnvBP_->setAccessibleName(QStringLiteral("BP to pay, %1").arg(ToQt(form_.ofLab)));
    lessBP_->setVisible(form_.EnvBPVisible);
    lessBP_->setEnabled(form_.PaidBP() > 0);
    moreBP_->setVisible(form_.EnvBPVisible);
    moreBP_->setEnabled(form_.PaidBP() < State().BP[Clan()]);
    if (EnvBP_->text() != ToQt(form_.EnvBP)) {
        EnvBP_->setText(ToQt(form_.EnvBP));
    }
    ofLab_->setVisible(form_.ofLabVisible);
    ofLab_->setText(ToQt(form_.ofLab));
    UVdiffLab_->setVisible(form_.UVdiffVisible);
    UVdiff_->setVisible(form_.UVdiffVisible);
    UVdiff_->setText(QString::number(form_.UVdiff));
    SetLabelColour(UVdiff_, FromBgr(form_.UVdiffColour));
    missing_->setVisible(form_.Adapts);
    missing_->setText(MissingText());
    adaptb_->setVisible(form_.Adapts);
    adaptb_->setEnabled(!form_.ShowsSuggestion());
}

void GenePanel::Reread() {
    rereading_ = true;
    text_->setText(ToQt(form_.Text));
    text_->setVisible(State().Message != form_.Text);  // the message says it already
    for (int gene = 1; gene <= GeneCount; ++gene) {
        RereadBox(gene);
    }
    RereadPayment();
    bpCaption_->setVisible(form_.BPlabelVisible);
    BPlabel_->setVisible(form_.BPlabelVisible);
    BPlabel_->setText(ToQt(form_.BPlabel));
    resetb_->setVisible(form_.resetbVisible);
    SayClosing(ClosingText());
    explanation_->Reread();
    rereading_ = false;
}

void GenePanel::CloseAsked() {
    Handle([this] { form_.Form_Close(); });
}

QWidget* GenePanel::FirstControl() {
    for (int gene = 1; gene <= GeneCount; ++gene) {
        if (At(gene).Box->isEnabled()) {
            return At(gene).Box;
        }
    }
    return doneb_;
}

}  // namespace plasmos
