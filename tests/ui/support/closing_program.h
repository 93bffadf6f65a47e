// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QApplication>
#include <QTimer>
#include <cstdlib>
#include <cstring>

#include "files/game_files.h"
#include "model/services.h"
#include "tests/support/game_fixture.h"
#include "tests/ui/support/closing_board.h"
#include "ui/app/auto_person.h"
#include "ui/app/end_signals.h"
#include "ui/app/qt_settings.h"
#include "ui/look/palette.h"

namespace plasmos::testing {

/// The name of the program below.
inline constexpr const char* ClosingWindow = "closing_window";

/// A program that plays game after game until it is told to end, or does so itself in the first one:
///   --play | --watch | --end WAY AT | --fault
inline int PlayOn(int argc, char** argv) {
    QApplication application(argc, argv);
    PrepareApplication();
    DataFolder files(qEnvironmentVariable("PLASMOS_DATA").toStdString());
    QtSettings settings;
    services.Files = &files;
    services.Settings = &settings;
    const bool fault = std::strcmp(argv[1], "--fault") == 0;
    const bool watch = fault || std::strcmp(argv[1], "--watch") == 0;
    ClosingBoard board;
    DiceTape noMoreRolls({});
    if (fault) {
        game.HasRequestedReplay = true;
        game.RequestedReplay = 5;
        game.RequestedClans = 4;
        board.At = 60;
        board.OnAt = [&noMoreRolls] { services.Tape = &noMoreRolls; };
    } else if (argc == 4) {
        board.How = Ways[std::atoi(argv[2])];
        board.At = std::atoi(argv[3]);
    }
    AutoPerson person(board);
    board.SetSpeed(fault || argc == 4 ? 0 : watch ? 1 : 0.05);
    board.OnQuestion = [&](Question& question) {
        if (board.At == 0 || board.Count < board.At) {
            person.Answer(question);
        }
    };
    const EndSignals endSignals([&board] { board.CloseAtOnce(); });
    board.show();
    QTimer again;
    QObject::connect(&again, &QTimer::timeout, &board,
                     [&board, watch] { watch ? board.watch_Click() : board.gob_Click(); });
    again.start(0);
    return QApplication::exec();
}

}  // namespace plasmos::testing
