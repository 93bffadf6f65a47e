// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/options/options_dialog.h"

#include <QFormLayout>
#include <QGuiApplication>
#include <QScreen>
#include <QShortcut>
#include <utility>

#include "files/game_files.h"
#include "files/runtime_error.h"
#include "files/settings_store.h"
#include "model/game_state.h"
#include "ui/look/card.h"
#include "ui/look/dress.h"
#include "ui/look/heard.h"
#include "ui/look/palette.h"
#include "ui/look/scroll_body.h"

namespace plasmos {

namespace {

QLabel* MakeHint(QWidget* page) {
    auto* hint = new WrapLabel(page);
    hint->setObjectName(QStringLiteral("blockhint"));
    WearLetters(*hint, 12);
    WearTone(*hint, Tone::Faint);
    hint->setText(QStringLiteral("Drag a block to move it. Click a square to place a block or remove it."));
    return hint;
}

}  // namespace

OptionsDialog::OptionsDialog(QWidget* parent, SettingsStore& settings, GameFiles& files)
    : QDialog(parent), settings_(settings), files_(files), model_(settings), tbsOptions_(new QTabWidget(this)) {
    setObjectName(QStringLiteral("frmOptions"));
    setWindowTitle(QStringLiteral("Plasmos - Preferences"));
    Dress(*this);
    tbsOptions_->setObjectName(QStringLiteral("tbsOptions"));
    auto* outer = new QVBoxLayout(this);
    outer->addWidget(tbsOptions_);
    tbsOptions_->addTab(MakeBoardPage(), QStringLiteral("&Board"));
    tbsOptions_->addTab(MakeNamesPage(), QStringLiteral("&Names"));
    fault_ = MakeLabel(this, QStringLiteral("faultlab"), 12, true, Tone::Alarm);
    fault_->setWordWrap(true);
    fault_->hide();
    outer->addWidget(fault_);
    MakeButtons(outer);
    saved_ = Unsaved();
    auto* next = new QShortcut(QKeySequence(QStringLiteral("Ctrl+Tab")), this);
    connect(next, &QShortcut::activated, this, [this] { NextTab(); });
    try {
        files_.MakeFolder();
    } catch (const RuntimeError& error) {
        fault_->setText(QString::fromUtf8(error.what()));
        fault_->show();
    }
    Follow();
}

QSpinBox* OptionsDialog::MakeUpDown(QWidget* page, const char* name, void (OptionsModel::*set)(int)) {
    auto* control = new QSpinBox(page);
    control->setObjectName(QString::fromLatin1(name));
    control->setKeyboardTracking(false);
    control->setMinimumHeight(28);
    connect(control, &QSpinBox::valueChanged, this, [this, set](int value) {
        if (!following_) {
            (model_.*set)(value);
            Follow();
        }
    });
    return control;
}

QWidget* OptionsDialog::MakeBoardPage() {
    auto* whole = new QWidget(this);
    auto* under = new QVBoxLayout(whole);
    under->addWidget(MakeHint(whole));
    auto* scroll = new ScrollBody(this);
    scroll->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Preferred);
    under->addWidget(scroll, 1);
    QWidget* page = scroll->Content();
    auto* line = new QHBoxLayout(page);
    auto* left = new QVBoxLayout;
    auto* form = fields_ = new QFormLayout;
    rowUD_ = MakeUpDown(page, "rowUD", &OptionsModel::SetRows);
    colsUD_ = MakeUpDown(page, "colsUD", &OptionsModel::SetCols);
    blockUD_ = MakeUpDown(page, "blockUD", &OptionsModel::SetBlocks);
    form->addRow(QStringLiteral("&Rows"), rowUD_);
    form->addRow(QStringLiteral("&Columns"), colsUD_);
    form->addRow(QStringLiteral("B&locks"), blockUD_);
    left->addLayout(form);
    bounds_ = MakeLabel(page, QStringLiteral("boundslab"), 12, false, Tone::Faint);
    bounds_->setWordWrap(true);
    bounds_->setMinimumSize(190, 68);
    bounds_->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    left->addWidget(bounds_);
    diagnosis_ = MakeLabel(page, QStringLiteral("diaglab"), 11, false, Tone::Faint);
    diagnosis_->setMinimumHeight(80);
    left->addWidget(diagnosis_);
    left->addStretch(1);
    line->addLayout(left);
    line->addWidget(MakeBoardPicture(page));
    return whole;
}

QWidget* OptionsDialog::MakeBoardPicture(QWidget* page) {
    auto* frame = new QWidget(page);
    frame->setFixedSize(MaxSide * ZyPicture::SquarePixels + 8, MaxSide * ZyPicture::SquarePixels + 8);
    optZyPict_ = new ZyPicture(frame, model_);
    optZyPict_->move(4, 4);
    optZyPict_->OnClick = [this](int x, int y, int button) {
        TakeTyped();
        button == 2 ? model_.RightClick(x, y) : model_.LeftClick(x, y);
        diagnosis_->setText(ToQt(model_.Diagnosis(x, y, button)));
        Follow();
    };
    return frame;
}

QWidget* OptionsDialog::MakeNamesPage() {
    auto* page = new QWidget(this);
    auto* form = new QFormLayout(page);
    for (int clan = 1; clan <= 6; ++clan) {
        const auto index = static_cast<std::size_t>(clan);
        auto* name = new QLineEdit(ToQt(model_.Names[index]), page);
        name->setObjectName(QStringLiteral("pname%1").arg(clan));
        name->setMaxLength(LongestClanName);
        connect(name, &QLineEdit::textChanged, this, [this, index](const QString& text) {
            model_.Names[index] = text.toStdString();
            ShowSaved(false);
        });
        pname_[index] = name;
        form->addRow(QStringLiteral("%1 Clan %2").arg(SignCharacter(clan)).arg(clan), name);
    }
    return page;
}

void OptionsDialog::MakeButtons(QVBoxLayout* outer) {
    auto* line = new QHBoxLayout;
    told_ = MakeLabel(this, QStringLiteral("savedlab"), 12, false, Tone::Faint);
    line->addWidget(told_, 1);
    const auto add = [this, line](const char* name, const char* caption, void (OptionsDialog::*click)()) {
        auto* button = new QPushButton(QString::fromLatin1(caption), this);
        button->setObjectName(QString::fromLatin1(name));
        connect(button, &QPushButton::clicked, this, click);
        line->addWidget(button);
        return button;
    };
    QPushButton* ok = add("cmdOK", "OK", &OptionsDialog::cmdOK_Click);
    ok->setProperty("main", true);
    ok->setDefault(true);
    add("cmdCancel", "Cancel", &OptionsDialog::cmdCancel_Click);
    apply_ = add("cmdApply", "&Apply", &OptionsDialog::cmdApply_Click);
    outer->addLayout(line);
}

void OptionsDialog::Follow() {
    following_ = true;
    rowUD_->setRange(model_.LeastRows(), model_.MostRows());
    rowUD_->setValue(model_.Rows());
    colsUD_->setRange(model_.LeastCols(), model_.MostCols());
    colsUD_->setValue(model_.Cols());
    blockUD_->setRange(0, model_.MostBlocks());
    blockUD_->setValue(model_.Blocks());
    for (const auto& [control, caption] : {std::pair{rowUD_, "&Rows"}, {colsUD_, "&Columns"}, {blockUD_, "B&locks"}}) {
        static_cast<QLabel*>(fields_->labelForField(control))
            ->setText(QStringLiteral("%1, %2 to %3")
                          .arg(QLatin1String(caption))
                          .arg(control->minimum())
                          .arg(control->maximum()));
    }
    bounds_->setText(ToQt(model_.Bounds()));
    optZyPict_->Follow();
    following_ = false;
    ShowSaved(false);
}

std::string OptionsDialog::Unsaved() const {
    std::string all = model_.FileText();
    for (const std::string& name : model_.Names) {
        all += name + '\n';
    }
    return all;
}

// Who listens is at the button that was pressed, and hears it there.
void OptionsDialog::ShowSaved(bool justNow) {
    const QString text = Unsaved() != saved_ ? QStringLiteral("Not saved yet.")
                         : justNow           ? QStringLiteral("Saved.")
                                             : QString();
    if (told_->text() == text) {
        return;
    }
    told_->setText(text);
    apply_->setAccessibleDescription(text);
    if (!text.isEmpty()) {
        TellAlert(*told_);
    }
}

void OptionsDialog::NextTab() {
    tbsOptions_->setCurrentIndex((tbsOptions_->currentIndex() + 1) % tbsOptions_->count());
}

// What is typed counts, also before it is left.
void OptionsDialog::TakeTyped() {
    for (QSpinBox* control : {rowUD_, colsUD_, blockUD_}) {
        control->interpretText();
    }
}

bool OptionsDialog::Save() {
    TakeTyped();
    SaveTried = true;
    const std::string fault = model_.Save(settings_, files_);
    fault_->setText(ToQt(fault));
    fault_->setVisible(!fault.empty());
    if (fault.empty()) {
        saved_ = Unsaved();
    }
    ShowSaved(fault.empty());
    return fault.empty();
}

void OptionsDialog::cmdApply_Click() {
    Save();
}

void OptionsDialog::cmdOK_Click() {
    if (Save()) {
        accept();
    }
}

void OptionsDialog::cmdCancel_Click() {
    reject();
}

void OptionsDialog::showEvent(QShowEvent* event) {
    QDialog::showEvent(event);
    if (const QScreen* where = screen()) {
        const QRect space = where->availableGeometry();
        resize(size().boundedTo(space.size() - UsualFrame));
        move(space.center() - QPoint(width() / 2, height() / 2));
    }
}

}  // namespace plasmos
