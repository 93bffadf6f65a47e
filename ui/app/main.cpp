// SPDX-License-Identifier: GPL-3.0-or-later
#include <QApplication>
#include <QFile>
#include <QSessionManager>
#include <cstdio>

#include "files/game_files.h"
#include "files/platform.h"
#include "files/process.h"
#include "flow/start.h"
#include "model/game_state.h"
#include "model/services.h"
#include "ui/app/end_signals.h"
#include "ui/app/qt_settings.h"
#include "ui/app/scale_factors.h"
#include "ui/look/notice.h"
#include "ui/look/palette.h"
#include "ui/window/uboard.h"

int main(int argc, char** argv) {
    using namespace plasmos;
    PrepareProcess();
    if (argc > 2 || (argc == 2 && argv[1][0] == '-')) {
        std::fputs("plasmos takes one argument at most, the record of a game: plasmos GAME.plasmos\n", stderr);
        return 2;
    }
    const QString record = argc == 2 ? QFile::decodeName(argv[1]) : QString();
    CheckScaleFactors();
    QApplication application(argc, argv);
    PrepareApplication();
    DataFolder files(DataFolderPath());
    QtSettings settings;
    services.Files = &files;
    // cppcheck-suppress danglingLifetime  // nothing of the services is used after main
    services.Settings = &settings;
    settings.RemoveAbandonedDrafts();
    std::string fault = PrepareDataFolder();
    if (const auto refused = settings.Fault(); !refused.empty()) {
        fault += (fault.empty() ? "" : "\n\n") + refused;
    }
    UBoard board;
    QObject::connect(
        &application, &QGuiApplication::commitDataRequest, &board, [&board](QSessionManager&) { board.CloseAtOnce(); },
        Qt::DirectConnection);
    const EndSignals endSignals([&board] { board.CloseAtOnce(); });
    board.show();
    if (!fault.empty()) {
        ShowNotice(board, ToQt(fault));
    }
    if (!record.isEmpty()) {
        board.OpenGame(record);
    }
    return QApplication::exec();
}
