// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/dialogs/choice_panels.h"

#include <QFontMetrics>
#include <QGridLayout>
#include <QIcon>
#include <QPainter>
#include <algorithm>

#include "model/game_state.h"
#include "ui/look/blob_shape.h"
#include "ui/look/dress.h"
#include "ui/look/palette.h"
#include "ui/look/plain_tip.h"

namespace plasmos {

namespace {

QPushButton* FirstEnabled(const std::array<QPushButton*, 8>& options) {
    for (QPushButton* option : options) {
        if (option->isEnabled() && option->isVisibleTo(option->parentWidget())) {
            return option;
        }
    }
    return options.front();
}

QString TitleOf(const std::string& caption, const char* fallback) {
    return caption.empty() ? QString::fromLatin1(fallback) : ToQt(caption);
}

/// The piece as it looks on the board.
QIcon BlobIcon(int clan, int amoeba, double ratio) {
    constexpr int side = 24;
    QPixmap picture(QSize(side, side) * ratio);
    picture.setDevicePixelRatio(ratio);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    BlobLook look;
    look.Clan = clan;
    look.Amoeba = amoeba;
    DrawBlob(painter, look, QPointF(side / 2.0, side / 2.0), side / 2.0 - 2);
    return {picture};
}

/// A name on half a dialog's width; an "&" in it is a letter like any other.
QString ButtonText(const QPushButton& button, const std::string& name) {
    constexpr int widest = 96;
    return QFontMetrics(button.font())
        .elidedText(ToQt(name), Qt::ElideRight, widest)
        .replace(QLatin1Char('&'), QStringLiteral("&&"));
}

}  // namespace

QLabel* MakeText(QWidget* parent, const char* name, int pixels) {
    auto* label = new WrapLabel(parent);
    label->setObjectName(QString::fromLatin1(name));
    WearLetters(*label, pixels);
    WearTone(*label, Tone::Ink);
    return label;
}

NumberPanel::NumberPanel(QWidget* parent, const GameState& state, AmNumfrm& form)
    : QuestionPanel(parent, state, form, TitleOf(form.Caption, "How many?")),
      form_(form),
      question_(MakeText(this, "amlab", 14)) {
    Body()->addWidget(question_);
    Body()->addWidget(Hint());
    auto* grid = new QGridLayout;
    grid->setSpacing(6);
    for (int k = 0; k <= 7; ++k) {
        QPushButton* option = MakeButton(QStringLiteral("amopt%1").arg(k), QString::number(k), false);
        option->setMinimumWidth(30);
        option->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
        WearSheet(*option, QStringLiteral("padding:6px 2px;font-size:@16px"));
        connect(option, &QPushButton::clicked, this, [this, k] { Handle([this, k] { form_.amopt_Click(k); }); });
        options_[static_cast<std::size_t>(k)] = option;
        grid->addWidget(option, 0, k);
    }
    Foot()->addLayout(grid);
    NumberPanel::Reread();
}

void NumberPanel::Reread() {
    SetTitle(TitleOf(form_.Caption, "How many?"), false);
    question_->setText(ToQt(form_.Text));
    for (int k = 0; k <= 7; ++k) {
        QPushButton* option = options_[static_cast<std::size_t>(k)];
        const ChoiceOption& choice = form_.amopt[k];
        option->setVisible(choice.Visible);
        option->setEnabled(choice.Enabled);
        option->setText(choice.Caption.empty() ? QString::number(k) : ToQt(choice.Caption));
        option->setAccessibleName(choice.Enabled ? QString::number(k) : QStringLiteral("%1, cannot be chosen").arg(k));
    }
    SayClosing(form_.CloseReply() < 0 ? QStringLiteral("chooses nothing; you are asked again")
                                      : QStringLiteral("chooses %1").arg(form_.CloseReply()));
}

void NumberPanel::CloseAsked() {
    Handle([this] { form_.Form_Close(); });
}

QWidget* NumberPanel::FirstControl() {
    return FirstEnabled(options_);
}

AmoebaPanel::AmoebaPanel(QWidget* parent, const GameState& state, AmChoicefrm& form)
    : QuestionPanel(parent, state, form, TitleOf(form.Caption, "Which amoeba?")),
      form_(form),
      question_(MakeText(this, "amlab", 14)),
      none_(MakeButton(QStringLiteral("amoptb"), ToQt(AmChoicefrm::amoptb), false)) {
    Body()->addWidget(question_);
    Body()->addWidget(Hint());
    auto* grid = new QGridLayout;
    grid->setSpacing(6);
    for (int k = 0; k <= 7; ++k) {
        QPushButton* option = MakeButton(QStringLiteral("amopt%1").arg(k), QString(), false);
        option->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
        option->setIconSize(QSize(24, 24));
        connect(option, &QPushButton::clicked, this, [this, k] { Handle([this, k] { form_.amopt_Click(k); }); });
        options_[static_cast<std::size_t>(k)] = option;
        grid->addWidget(option, std::max(k - 1, 0) / 2, (k + 1) % 2);
    }
    grid->addWidget(none_, 4, 0, 1, 2);
    connect(none_, &QPushButton::clicked, this, [this] { Handle([this] { form_.amoptb_Click(); }); });
    Foot()->addLayout(grid);
    std::vector<QWidget*> controls(options_.begin() + 1, options_.end());
    controls.push_back(none_);
    OrderTabs(controls);
    AmoebaPanel::Reread();
    made_ = true;
}

// The pictures are of the colours that they were made in.
void AmoebaPanel::Redress() {
    QuestionPanel::Redress();
    if (made_) {
        Reread();
    }
}

void AmoebaPanel::Reread() {
    SetTitle(TitleOf(form_.Caption, "Which amoeba?"), false);
    question_->setText(ToQt(form_.Text));
    for (int k = 0; k <= 7; ++k) {
        QPushButton* option = options_[static_cast<std::size_t>(k)];
        const ChoiceOption& choice = form_.amopt[k];
        option->setVisible(choice.Visible && k > 0);
        option->setEnabled(choice.Enabled);
        option->setText(ButtonText(*option, choice.Caption));
        option->setToolTip(PlainTip(ToQt(choice.Caption)));
        option->setIcon(k > 0 && Clan() > 0 ? BlobIcon(Clan(), k, devicePixelRatioF()) : QIcon());
        option->setAccessibleName(
            choice.Enabled ? QStringLiteral("amoeba %1, %2").arg(k).arg(ToQt(choice.Caption))
                           : QStringLiteral("amoeba %1, %2, cannot be chosen").arg(k).arg(ToQt(choice.Caption)));
    }
    SayClosing(QStringLiteral("chooses none"));
}

void AmoebaPanel::CloseAsked() {
    Handle([this] { form_.Form_Close(); });
}

QWidget* AmoebaPanel::FirstControl() {
    return FirstEnabled(options_);
}

BoxPanel::BoxPanel(QWidget* parent, const GameState& state, BoxQuestion& box)
    : QuestionPanel(parent, state, box, QStringLiteral("Plasmos")),
      box_(box),
      text_(MakeText(this, "boxlab", 14)),
      ok_(MakeButton(QStringLiteral("okb"), QStringLiteral("OK"), true)) {
    Body()->addWidget(text_);
    Foot()->addWidget(ok_, 0, Qt::AlignRight);
    connect(ok_, &QPushButton::clicked, this, [this] { Handle([this] { box_.ok_Click(); }); });
    BoxPanel::Reread();
}

void BoxPanel::Reread() {
    SetTitle(QStringLiteral("Plasmos"), false);
    text_->setText(ToQt(box_.Text));
    SayClosing(QStringLiteral("like OK"));
}

void BoxPanel::CloseAsked() {
    Handle([this] { box_.ok_Click(); });
}

}  // namespace plasmos
