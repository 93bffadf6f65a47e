// SPDX-License-Identifier: GPL-3.0-or-later
//
// Settings that cannot be saved, and that it can be read when that is told.

#include <QFile>
#include <QMessageBox>

#include "files/settings_store.h"
#include "model/services.h"
#include "tests/ui/support/preferences.h"

namespace plasmos::testing {

namespace {

/// Settings that can be read but not written.
class ReadOnlySettings : public MemorySettings {
public:
    bool Save(std::string_view, std::string_view, std::string_view) override { return false; }
    std::string Where() const override { return "/read/only"; }
};

}  // namespace

class SettingsUnsavedTest : public QObject {
    Q_OBJECT

private slots:
    void cannotBeSaved();
    void theStoreIsInTheWay();
    void theOptionsFileCannotBeWritten();
    void theFastModeCannotBeSaved();
    void aDarkDesktop();
};

void SettingsUnsavedTest::cannotBeSaved() {
    Scene scene;
    ReadOnlySettings settings;
    settings.Values[{"board", "rows"}] = "4";
    services.Settings = &settings;
    scene.Reopen();
    scene.Menu(QStringLiteral("pref_men"));
    auto* dialog = scene.Board().findChild<OptionsDialog*>(QStringLiteral("frmOptions"));
    QTest::keyClick(dialog->findChild<QSpinBox*>(QStringLiteral("rowUD")), Qt::Key_Up);
    for (const char* button : {"cmdApply", "cmdOK"}) {
        scene.Press(dialog->findChild<QPushButton*>(QString::fromLatin1(button)));
        QVERIFY(dialog->isVisible());
        const auto* fault = dialog->findChild<QLabel*>(QStringLiteral("faultlab"));
        QVERIFY(fault->isVisible());
        QCOMPARE(fault->text(), QStringLiteral("The settings could not be saved in /read/only"));
    }
    QCOMPARE(dialog->findChild<QSpinBox*>(QStringLiteral("rowUD"))->value(), 5);
    QVERIFY(!scene.Files().Exists(OptionsFile));
    dialog->close();
    services.Settings = nullptr;
}

void SettingsUnsavedTest::theStoreIsInTheWay() {
    Preferences window({{"board", "rows", "4"}});
    const QString ini = window.Folder() + QStringLiteral("/settings.ini");
    QVERIFY(QFile::rename(ini, ini + QStringLiteral(".old")));
    QVERIFY(QDir().mkpath(ini + QStringLiteral("/folder")));
    window.Step("rowUD", 1);
    window.Press("cmdOK");
    QVERIFY(window.IsOpen());
    QVERIFY(window.Label("faultlab").contains(ini));
    QVERIFY(QDir(ini).removeRecursively());
    QVERIFY(QFile::rename(ini + QStringLiteral(".old"), ini));
    window.Press("cmdCancel");
    QCOMPARE(game.NumRows, 4);
    window.OpenDialog();
    QCOMPARE(window.Values(), QStringLiteral("4x5 0"));
}

void SettingsUnsavedTest::theOptionsFileCannotBeWritten() {
    Preferences window;
    QVERIFY(QDir().mkpath(ToQt(window.Files().PathOf(OptionsFile)) + QStringLiteral("/folder")));
    window.Step("rowUD", 1);
    window.TypeName(2, QStringLiteral("Ann"));
    window.Press("cmdOK");
    QVERIFY(window.IsOpen());
    QVERIFY(window.Label("faultlab").contains(QStringLiteral("Opts.txt")));
    QCOMPARE(window.Saved("players", "name2"), "Ann");
    QCOMPARE(window.Saved("board", "blockno"), "0");
    QCOMPARE(window.Values(), QStringLiteral("6x5 0"));
    QVERIFY(QDir(ToQt(window.Files().PathOf(OptionsFile))).removeRecursively());
    window.Press("cmdOK");
    QVERIFY(!window.IsOpen());
    QCOMPARE(window.FileText(OptionsFile), QStringLiteral("rows: 6\r\ncols: 5\r\nblocks: 0\r\n"));
}

void SettingsUnsavedTest::theFastModeCannotBeSaved() {
    Scene scene;
    ReadOnlySettings settings;
    services.Settings = &settings;
    scene.Menu(QStringLiteral("fast_men"));
    QCoreApplication::processEvents();
    QVERIFY2(game.FastMode, "it counts all the same, for this time");
    auto* box = scene.Board().findChild<QMessageBox*>();
    QVERIFY(box != nullptr && box->isVisible());
    QVERIFY(box->text().contains(QStringLiteral("/read/only")));
    box->close();
    services.Settings = nullptr;
}

// On a dark desktop the window is dark, and letters stand out against what is behind them.
void SettingsUnsavedTest::aDarkDesktop() {
    const QPalette before = QApplication::palette();
    QPalette dark(QColor(40, 40, 40));
    dark.setColor(QPalette::WindowText, Qt::white);
    dark.setColor(QPalette::Text, Qt::white);
    QApplication::setPalette(dark);
    const auto legible = [](const QWidget* widget) {
        const QPalette& palette = widget->palette();
        return ContrastOf(palette.color(QPalette::Window), palette.color(QPalette::WindowText)) >= 4.5 &&
               qGray(palette.color(QPalette::Window).rgb()) < 100;
    };
    {
        Preferences window;
        ReadOnlySettings settings;
        QVERIFY(legible(&window.Board()));
        QVERIFY(legible(window.Dialog()));
        for (const char* name : {"boundslab", "diaglab"}) {
            const auto* label = window.Dialog()->findChild<QLabel*>(QString::fromLatin1(name));
            QVERIFY2(qGray(label->palette().color(QPalette::WindowText).rgb()) > 150, name);
        }
        const QImage page = window.Dialog()->grab().toImage();
        QVERIFY(qGray(page.pixel(8, page.height() - 8)) < 60);
        window.Press("cmdCancel");
        services.Settings = &settings;
        window.Menu(QStringLiteral("fast_men"));
        auto* box = window.Board().findChild<QMessageBox*>();
        QVERIFY(box != nullptr);
        QVERIFY(legible(box));
        QVERIFY(qGray(box->grab().toImage().pixel(4, 4)) < 60);
        box->close();
        services.Settings = &window.Settings();
    }
    QApplication::setPalette(before);
}

WINDOW_TESTS(settings_unsaved_test, SettingsUnsavedTest)

}  // namespace plasmos::testing

#include "settings_unsaved_test.moc"
