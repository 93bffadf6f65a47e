// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/dialogs/food_panel.h"

#include <QFocusEvent>
#include <QPainter>
#include <QPixmap>
#include <QRegularExpressionValidator>

#include "model/game_state.h"
#include "ui/dialogs/choice_panels.h"
#include "ui/dialogs/meal_chips.h"
#include "ui/look/colour_names.h"
#include "ui/look/cube.h"
#include "ui/look/dress.h"
#include "ui/look/palette.h"

namespace plasmos {

namespace {

constexpr int FirstLent = 0;
constexpr int SecondLent = 7;

bool IsLent(int field) {
    return field == FirstLent || field == SecondLent;
}

QPixmap CubePicture(int clan, double ratio) {
    QPixmap picture(QSize(20, 20) * ratio);
    picture.setDevicePixelRatio(ratio);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    DrawCube(painter, clan, QRectF(1, 1, 18, 18));
    return picture;
}

QString TitleOf(const FoodForm& form) {
    return (form.Mode == "TENTACLE" ? QStringLiteral("Carry food out of square %1")
                                    : QStringLiteral("Eat in square %1"))
        .arg(form.Square);
}

}  // namespace

FoodPanel::FoodPanel(QWidget* parent, const GameState& state, FoodForm& form)
    : QuestionPanel(parent, state, form, TitleOf(form)),
      form_(form),
      suggest_(MakeButton(QStringLiteral("suggestb"), QString(), false)),
      hosts_(MakeText(this, "hostlab", 12)),
      legal_(MakeText(this, "legallab", 12)),
      oneClick_(MakeText(this, "oneclicklab", 11)),
      meals_(new MealChips(this)),
      verdict_(MakeLabel(this, QStringLiteral("verdictlab"), 12, true, Tone::Ink)),
      paropt_(new QRadioButton(QStringLiteral("Parasitism"), this)),
      sfsopt_(new QRadioButton(QStringLiteral("Struggle for survival"), this)),
      eatb_(MakeButton(QStringLiteral("eatb"), QString(), true)),
      victimb_(MakeButton(QStringLiteral("victimb"), QStringLiteral("Victim..."), false)) {
    for (int field = 1; field <= MaxClans; ++field) {
        MakeRow(field);
    }
    MakeRow(FirstLent);
    MakeRow(SecondLent);
    MakeMeals();
    MakeAlternatives();
    Body()->addWidget(Hint());
    MakeButtons();
    FoodPanel::Reread();
    made_ = true;
}

// The pictures are of the colours that they were made in.
void FoodPanel::Redress() {
    QuestionPanel::Redress();
    if (made_) {
        Reread();
    }
}

void FoodPanel::MakeMeals() {
    Body()->addWidget(legal_);
    oneClick_->setText(QStringLiteral("One click enters a meal:"));
    WearTone(*oneClick_, Tone::Faint);
    Body()->addWidget(oneClick_);
    Body()->addWidget(suggest_);
    connect(suggest_, &QPushButton::clicked, this, [this] {
        eatb_->setFocus();
        Handle([this] { form_.suggest_Click(); });
    });
    meals_->Make(form_);
    Body()->addWidget(meals_);
    meals_->OnMeal = [this](const PossibleMeal& meal) {
        eatb_->setFocus();
        Handle([this, meal] { form_.meal_Click(meal); });
    };
}

void FoodPanel::MakeButtons() {
    verdict_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    Foot()->addWidget(verdict_);
    auto* buttons = new QHBoxLayout;
    buttons->addWidget(eatb_, 1);
    buttons->addWidget(victimb_, 1);
    Foot()->addLayout(buttons);
    connect(eatb_, &QPushButton::clicked, this, [this] { Handle([this] { form_.eatb_Click(); }); });
    connect(victimb_, &QPushButton::clicked, this, [this] { Handle([this] { form_.victimb_Click(); }); });
    std::vector<QWidget*> controls;
    for (int field = 1; field <= MaxClans; ++field) {
        controls.push_back(rows_[static_cast<std::size_t>(field)].Entry);
    }
    controls.insert(controls.end(), {suggest_, paropt_, sfsopt_, eatb_, victimb_});
    const auto meals = meals_->Buttons();
    controls.insert(controls.end(), meals.begin(), meals.end());
    OrderTabs(controls);
}

void FoodPanel::MakeAlternatives() {
    auto* line = new QHBoxLayout;
    paropt_->setObjectName(QStringLiteral("paropt"));
    sfsopt_->setObjectName(QStringLiteral("sfsopt"));
    for (QRadioButton* option : {paropt_, sfsopt_}) {
        option->setAutoExclusive(false);
        RefuseRepeats(option);
        line->addWidget(option);
    }
    line->addStretch(1);
    line->addWidget(hosts_);
    Body()->addLayout(line);
    // Who plays by ear toggles, and clicks nothing.
    connect(paropt_, &QRadioButton::toggled, this, [this] {
        if (!rereading_) {
            Handle([this] { form_.paropt_Click(); });
        }
    });
    connect(sfsopt_, &QRadioButton::toggled, this, [this] {
        if (!rereading_) {
            Handle([this] { form_.sfsopt_Click(); });
        }
    });
}

void FoodPanel::MakeRow(int field) {
    Row& row = rows_[static_cast<std::size_t>(field)];
    row.Line = new QWidget(this);
    auto* line = new QHBoxLayout(row.Line);
    line->setContentsMargins(0, 0, 0, 0);
    line->setSpacing(6);
    row.Cube = new QLabel(row.Line);
    row.Name = MakeLabel(row.Line, QStringLiteral("fdname%1").arg(field), 13, false, Tone::Ink);
    row.Name->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    row.Count = MakeLabel(row.Line, QStringLiteral("fdlab%1").arg(field), 14, true, Tone::Ink);
    row.Count->setToolTip(QStringLiteral("Pieces of this colour in the square"));
    row.Entry = new QLineEdit(row.Line);
    row.Entry->setObjectName(QStringLiteral("fdtxt%1").arg(field));
    row.Entry->setFixedWidth(46);
    row.Entry->setAlignment(Qt::AlignCenter);
    row.Entry->installEventFilter(this);
    static const QRegularExpression digits(QStringLiteral("[0-9]*"));
    row.Entry->setValidator(new QRegularExpressionValidator(digits, row.Entry));
    row.Less = MakeStep(row.Line, QStringLiteral("less%1").arg(field), false);
    row.More = MakeStep(row.Line, QStringLiteral("more%1").arg(field), true);
    for (QWidget* part :
         std::initializer_list<QWidget*>{row.Cube, row.Name, row.Count, row.Less, row.Entry, row.More}) {
        line->addWidget(part, part == row.Name ? 1 : 0);
    }
    Body()->addWidget(row.Line);
    connect(row.Entry, &QLineEdit::textChanged, this, [this, field](const QString& text) {
        if (!rereading_) {
            Handle([this, field, &text] { form_.fdtxt_Change(field, text.toStdString()); });
        }
    });
    connect(row.Less, &QPushButton::clicked, this, [this, field] { Step(field, -1); });
    connect(row.More, &QPushButton::clicked, this, [this, field] { Step(field, 1); });
}

void FoodPanel::Step(int field, int by) {
    const int amount = std::max(form_.Amount(field) + by, 0);
    Handle([this, field, amount] { form_.fdtxt_Change(field, std::to_string(amount)); });
}

bool FoodPanel::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::FocusOut) {
        for (int field = 0; field <= 7; ++field) {
            if (rows_[static_cast<std::size_t>(field)].Entry == watched) {
                Handle([this, field] { form_.fdtxt_LostFocus(field); });
            }
        }
    }
    if (event->type() == QEvent::KeyPress) {
        const auto* key = static_cast<QKeyEvent*>(event);
        const bool enter = key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter;
        if (enter && qobject_cast<QLineEdit*>(watched) != nullptr) {
            if (key->isAutoRepeat()) {
                return true;
            }
            const bool take = form_.AllZero() && form_.SuggestedMenu > 0 && suggest_->isVisibleTo(this);
            Handle([this, take] { take ? form_.suggest_Click() : form_.eatb_Click(); });
            return true;
        }
    }
    return QuestionPanel::eventFilter(watched, event);
}

void FoodPanel::RereadRow(int field) {
    Row& row = rows_[static_cast<std::size_t>(field)];
    const FoodForm::Field& source = form_.fdtxt[field];
    row.Line->setVisible(source.Visible);
    row.Cube->setPixmap(CubePicture(IsLent(field) ? 0 : field, devicePixelRatioF()));
    row.Entry->setVisible(source.Visible);
    row.Entry->setEnabled(source.Enabled);
    row.Less->setEnabled(source.Enabled && form_.Amount(field) > 0);
    row.More->setEnabled(source.Enabled && form_.Amount(field) < source.InSquare);
    if (IsLent(field)) {
        const int host = form_.Hosts[field == FirstLent ? 1 : 2];
        row.Name->setText(host >= 1 ? QStringLiteral("lent by %1").arg(ToQt(State().Players[host].Name.View()))
                                    : QStringLiteral("lent piece"));
        row.Count->clear();
    } else {
        row.Name->setText(field <= State().NumPlayers ? ToQt(State().Players[field].Name.View()) : QString());
        row.Count->setText(QString::number(source.InSquare));
    }
    if (row.Entry->text() != ToQt(source.Text)) {
        row.Entry->setText(ToQt(source.Text));
    }
    NameRow(field);
}

void FoodPanel::NameRow(int field) {
    const Row& row = rows_[static_cast<std::size_t>(field)];
    const QString piece =
        IsLent(field) ? row.Name->text() : QStringLiteral("%1: %2").arg(ToQt(ColourName(field)), row.Name->text());
    row.Less->setAccessibleName(QStringLiteral("one less %1").arg(piece));
    row.More->setAccessibleName(QStringLiteral("one more %1").arg(piece));
    row.Entry->setAccessibleName(
        IsLent(field) ? piece : QStringLiteral("%1, %2 in the square").arg(piece).arg(form_.fdtxt[field].InSquare));
}

void FoodPanel::RereadMeals() {
    const bool suggests = form_.Mode != "TENTACLE" && form_.SuggestedMenu > 0;
    suggest_->setVisible(suggests);
    suggest_->setText(QStringLiteral("Suggested menu: %1").arg(form_.SuggestedMenu));
    if (suggests) {
        const QPixmap pieces = MealChips::Pieces(form_.Suggestion(), devicePixelRatioF());
        suggest_->setIcon(pieces);
        suggest_->setIconSize(pieces.deviceIndependentSize().toSize());
        suggest_->setToolTip(MealChips::InWords({form_.SuggestedMenu, form_.Suggestion()}));
    }
    meals_->Reread(form_);
    oneClick_->setVisible(suggests || meals_->isVisibleTo(this));
}

void FoodPanel::Reread() {
    rereading_ = true;
    for (int field = 0; field <= 7; ++field) {
        RereadRow(field);
    }
    const bool carrying = form_.Mode == "TENTACLE";
    RereadMeals();
    legal_->setText(ToQt(form_.LegalMenuLabel));
    legal_->setVisible(!form_.LegalMenuLabel.empty());
    paropt_->setVisible(!carrying);
    paropt_->setEnabled(form_.paroptEnabled);
    paropt_->setChecked(form_.paroptValue);
    sfsopt_->setVisible(!carrying && form_.sfsoptVisible);
    sfsopt_->setEnabled(form_.sfsoptEnabled);
    sfsopt_->setChecked(form_.sfsoptValue);
    hosts_->setVisible(!carrying && form_.paroptEnabled);
    hosts_->setText(QStringLiteral("hosts: %1").arg(ToQt(form_.HostCount)));
    eatb_->setText(ToQt(form_.eatbCaption));
    eatb_->setEnabled(form_.eatbEnabled);
    victimb_->setVisible(!carrying);
    victimb_->setEnabled(form_.victimbEnabled);
    ShowVerdict();
    SayClosing(ClosingText());
    rereading_ = false;
}

void FoodPanel::CloseAsked() {
    Handle([this] { form_.Form_Close(); });
}

QWidget* FoodPanel::FirstControl() {
    for (int field = 1; field <= MaxClans; ++field) {
        Row& row = rows_[static_cast<std::size_t>(field)];
        if (form_.fdtxt[field].Visible && form_.fdtxt[field].Enabled) {
            row.Entry->selectAll();
            return row.Entry;
        }
    }
    return eatb_;
}

}  // namespace plasmos
