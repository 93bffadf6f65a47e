// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDialog>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSpinBox>
#include <QTabWidget>
#include <QVBoxLayout>
#include <array>
#include <string>

#include "ui/options/options_model.h"
#include "ui/options/zy_picture.h"

namespace plasmos {

/// `frmOptions`: the board's size and blocks, and the players' names.
class OptionsDialog : public QDialog {
    Q_OBJECT

public:
    OptionsDialog(QWidget* parent, SettingsStore& settings, GameFiles& files);

    /// Something was to be saved, whether it could or not.
    bool SaveTried = false;

    void cmdOK_Click();
    void cmdApply_Click();
    void cmdCancel_Click();

protected:
    void showEvent(QShowEvent* event) override;

private:
    QWidget* MakeBoardPage();
    QWidget* MakeBoardPicture(QWidget* page);
    QWidget* MakeNamesPage();
    void MakeButtons(QVBoxLayout* outer);
    QSpinBox* MakeUpDown(QWidget* page, const char* name, void (OptionsModel::*set)(int));
    void NextTab();
    void TakeTyped();
    bool Save();
    /// All that would be saved now.
    std::string Unsaved() const;
    /// Tells beside the buttons that something is not saved yet, or that all has just been saved.
    void ShowSaved(bool justNow);
    /// Takes everything from the model.
    void Follow();

    SettingsStore& settings_;
    GameFiles& files_;
    OptionsModel model_;
    bool following_ = false;
    QTabWidget* tbsOptions_;
    QFormLayout* fields_ = nullptr;
    QSpinBox* rowUD_ = nullptr;
    QSpinBox* colsUD_ = nullptr;
    QSpinBox* blockUD_ = nullptr;
    ZyPicture* optZyPict_ = nullptr;
    QLabel* bounds_ = nullptr;
    QLabel* diagnosis_ = nullptr;
    QLabel* fault_ = nullptr;
    QLabel* told_ = nullptr;
    QPushButton* apply_ = nullptr;
    std::string saved_;  ///< what was saved last
    std::array<QLineEdit*, 7> pname_{};
};

}  // namespace plasmos
