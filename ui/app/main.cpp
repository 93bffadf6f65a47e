// SPDX-License-Identifier: GPL-3.0-or-later
#include <QApplication>
#include <QFile>
#include <QSessionManager>
#include <cstdio>
#include <string>
#include <string_view>

#include "files/game_files.h"
#include "files/platform.h"
#include "files/process.h"
#include "files/text.h"
#include "files/version.h"
#include "flow/start.h"
#include "model/game_state.h"
#include "model/services.h"
#include "ui/app/end_signals.h"
#include "ui/app/qt_settings.h"
#include "ui/app/scale_factors.h"
#include "ui/look/notice.h"
#include "ui/look/palette.h"
#include "ui/window/uboard.h"

namespace {

/// For whoever starts it in a terminal.
int PrintAbout(bool version) {
    const auto text = version ? plasmos::Concat("plasmos ", plasmos::ProgramVersion, "\n")
                              : std::string(
                                    "Plasmos, a game about clans of amoebas.\n"
                                    "Usage: plasmos [GAME.plasmos]\n\n"
                                    "  GAME.plasmos  the record of a game, which is gone on with\n"
                                    "  -h, --help    print this text and exit\n"
                                    "  --version     print the version and exit\n");
    const bool printed = std::fputs(text.c_str(), stdout) >= 0 && std::fflush(stdout) == 0;
    return printed ? 0 : 2;
}

/// What is no game to be opened is answered without a window; the exit code, or -1 where a window is wanted.
int AnswerAtOnce(int argc, char** argv) {
    const std::string_view argument = argc > 1 ? argv[1] : "";
    if (argc == 2 && (argument == "--help" || argument == "-h" || argument == "--version")) {
        return PrintAbout(argument == "--version");
    }
    if (argc > 2 || argument.substr(0, 1) == "-") {
        std::fputs(
            "plasmos takes the record of a game, --help or --version, and one of them at most: "
            "plasmos GAME.plasmos\n",
            stderr);
        return 2;
    }
    return -1;
}

}  // namespace

int main(int argc, char** argv) {
    using namespace plasmos;
    PrepareProcess();
    if (const int code = AnswerAtOnce(argc, argv); code >= 0) {
        return code;
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
