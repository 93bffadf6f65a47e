// SPDX-License-Identifier: GPL-3.0-or-later
//
// Settings as they may be found: missing, garbage, contradictory, not to be saved.

#include <QFile>
#include <QMessageBox>

#include "files/settings_store.h"
#include "flow/start.h"
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

class SettingsTest : public QObject {
    Q_OBJECT

private slots:
    void boards_data();
    void boards();
    void names_data();
    void names();
    void cannotBeSaved();
    void theStoreIsInTheWay();
    void theOptionsFileCannotBeWritten();
    void theFastModeCannotBeSaved();
    void aDarkDesktop();
};

void SettingsTest::boards_data() {
    QTest::addColumn<QString>("rows");
    QTest::addColumn<QString>("cols");
    QTest::addColumn<QString>("blocks");
    QTest::addColumn<QString>("shown");
    QTest::addColumn<QString>("covered");
    QTest::newRow("missing") << ""
                             << ""
                             << ""
                             << "5x5 0"
                             << "";
    QTest::newRow("the least") << "3"
                               << "4"
                               << ""
                               << "3x4 0"
                               << "";
    QTest::newRow("the most") << "9"
                              << "4"
                              << "1:36:"
                              << "9x4 2"
                              << "1 36";
    QTest::newRow("letters") << "abc"
                             << "6"
                             << ""
                             << "5x6 0"
                             << "";
    QTest::newRow("a fraction") << "4.5"
                                << "6"
                                << ""
                                << "5x6 0"
                                << "";
    QTest::newRow("too few rows") << "2"
                                  << "6"
                                  << ""
                                  << "5x6 0"
                                  << "";
    QTest::newRow("too many columns") << "4"
                                      << "10"
                                      << ""
                                      << "4x5 0"
                                      << "";
    QTest::newRow("negative") << "-4"
                              << "4"
                              << ""
                              << "5x4 0"
                              << "";
    QTest::newRow("forty digits") << "4444444444444444444444444444444444444444"
                                  << "4"
                                  << ""
                                  << "5x4 0"
                                  << "";
    QTest::newRow("too many squares") << "7"
                                      << "7"
                                      << ""
                                      << "5x5 0"
                                      << "";
    QTest::newRow("too few squares") << "3"
                                     << "3"
                                     << ""
                                     << "5x5 0"
                                     << "";
    QTest::newRow("squares off the board") << "4"
                                           << "4"
                                           << "17:0:-3:5:"
                                           << "4x4 1"
                                           << "5";
    QTest::newRow("a square twice") << "5"
                                    << "5"
                                    << "7:7:8:7:"
                                    << "5x5 2"
                                    << "7 8";
    QTest::newRow("words among the squares") << "5"
                                             << "5"
                                             << "7:x:8.5::9"
                                             << "5x5 2"
                                             << "7 9";
    QTest::newRow("more than eight") << "5"
                                     << "5"
                                     << "1:2:3:4:5:6:7:8:9:10:"
                                     << "5x5 8"
                                     << "1 2 3 4 5 6 7 8";
    QTest::newRow("twelve squares stay free") << "4"
                                              << "4"
                                              << "1:2:3:4:5:6:7:8:"
                                              << "4x4 4"
                                              << "1 2 3 4";
    QTest::newRow("no square may be covered") << "3"
                                              << "4"
                                              << "1:2:"
                                              << "3x4 0"
                                              << "";
}

void SettingsTest::boards() {
    QFETCH(QString, rows);
    QFETCH(QString, cols);
    QFETCH(QString, blocks);
    QFETCH(QString, shown);
    QFETCH(QString, covered);
    std::vector<SavedValue> saved;
    for (const auto& [key, value] : {std::pair{"rows", rows}, std::pair{"cols", cols}, std::pair{"blocks", blocks}}) {
        if (!value.isEmpty()) {
            saved.push_back({"board", key, value.toStdString()});
        }
    }
    saved.push_back({"board", "blockno", "5"});
    Preferences window(saved);
    QCOMPARE(window.Values(), shown);
    QStringList squares;
    for (int square = 1; square <= game.NumSquares; ++square) {
        if (game.Blocked[square]) {
            squares << QString::number(square);
        }
    }
    QCOMPARE(squares.join(QLatin1Char(' ')), covered);
    QCOMPARE(QStringLiteral("%1x%2 %3").arg(game.NumRows).arg(game.NumCols).arg(squares.size()), shown);
    window.Press("cmdOK");
    QCOMPARE(window.Saved("board", "blockno"), std::to_string(squares.size()));
}

void SettingsTest::names_data() {
    QTest::addColumn<QString>("saved");
    QTest::addColumn<QString>("shown");
    QTest::newRow("a name") << "Ann"
                            << "Ann";
    QTest::newRow("blanks") << "   "
                            << "Player 3";
    QTest::newRow("too long") << "abcdefghijklmnopqrstuvwxyz"
                              << "abcdefghijklmnopqrst";
    QTest::newRow("beyond ASCII") << QString::fromUtf8("Žluťoučký kůň úpěl ď")
                                  << QString::fromUtf8("Žluťoučký kůň úpěl ď");
    QTest::newRow("control characters") << QStringLiteral("A\tB\nC") << "ABC";
    QTest::newRow("commas and quotes") << "a, \"b\"; c=d"
                                       << "a, \"b\"; c=d";
}

void SettingsTest::names() {
    QFETCH(QString, saved);
    QFETCH(QString, shown);
    Preferences window({{"players", "name3", saved.toStdString()}});
    QCOMPARE(window.Text(QStringLiteral("pname3")), shown);
    window.Press("cmdOK");
    window.Reopen();
    game.RequestedClans = 3;
    PLAY(window, window.Click(QStringLiteral("watchb")));
    QCOMPARE(ToQt(game.Players[3].Name.View()), shown);
}

void SettingsTest::cannotBeSaved() {
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

void SettingsTest::theStoreIsInTheWay() {
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

void SettingsTest::theOptionsFileCannotBeWritten() {
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

void SettingsTest::theFastModeCannotBeSaved() {
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

// Light or dark, letters stand out against what is behind them.
void SettingsTest::aDarkDesktop() {
    const QPalette before = QApplication::palette();
    QPalette dark(QColor(40, 40, 40));
    dark.setColor(QPalette::WindowText, Qt::white);
    dark.setColor(QPalette::Text, Qt::white);
    QApplication::setPalette(dark);
    const auto legible = [](const QWidget* widget) {
        const QPalette& palette = widget->palette();
        const int letters = qGray(palette.color(QPalette::WindowText).rgb());
        return qGray(palette.color(QPalette::Window).rgb()) - letters > 100;
    };
    {
        Preferences window;
        ReadOnlySettings settings;
        QVERIFY(legible(&window.Board()));
        QVERIFY(legible(window.Dialog()));
        for (const char* name : {"boundslab", "diaglab"}) {
            const auto* label = window.Dialog()->findChild<QLabel*>(QString::fromLatin1(name));
            QVERIFY2(qGray(label->palette().color(QPalette::WindowText).rgb()) < 150, name);
        }
        const QImage page = window.Dialog()->grab().toImage();
        QVERIFY(qGray(page.pixel(8, page.height() - 8)) > 200);
        window.Press("cmdCancel");
        services.Settings = &settings;
        window.Menu(QStringLiteral("fast_men"));
        auto* box = window.Board().findChild<QMessageBox*>();
        QVERIFY(box != nullptr);
        QVERIFY(legible(box));
        QVERIFY(qGray(box->grab().toImage().pixel(4, 4)) > 200);
        box->close();
        services.Settings = &window.Settings();
    }
    QApplication::setPalette(before);
}

}  // namespace plasmos::testing

int main(int argc, char** argv) {
    return plasmos::testing::RunWindowTests<plasmos::testing::SettingsTest>(argc, argv);
}

#include "settings_test.moc"
