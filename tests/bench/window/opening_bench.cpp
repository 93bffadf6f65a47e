// SPDX-License-Identifier: GPL-3.0-or-later
// How long a window takes to open a game at turn 10: from the choice of the file to the open question, with the board,
// the clans, the log and everything else in their places.
#include <benchmark/benchmark.h>

#include <QAction>
#include <QApplication>
#include <QElapsedTimer>
#include <QTemporaryDir>

#include "files/game_files.h"
#include "model/services.h"
#include "record/play_record.h"
#include "record/record_file.h"
#include "tests/bench/robots_game.h"
#include "ui/look/palette.h"
#include "ui/window/uboard.h"

namespace {

using namespace plasmos;

/// A game of one robot person among computer clans, up to the first question of turn 10.
GameRecord GameAtTurnTen(int clans) {
    GameRecorder recorder;
    PlayRobotsGame(clans, recorder);
    GameRecord record = recorder.Record();
    for (const auto& place : recorder.Places()) {
        if (place.Moment > recorder.EndOfTurn(9)) {
            record.Inputs.resize(place.Inputs);
            break;
        }
    }
    ResetTables();
    game.RequestedClans = 0;
    game.HasRequestedReplay = false;
    return record;
}

void OpenInTheWindow(benchmark::State& state) {
    const QTemporaryDir folder;
    const std::string path = folder.filePath(QStringLiteral("game.plasmos")).toStdString();
    const GameRecord record = GameAtTurnTen(static_cast<int>(state.range(0)));
    WriteRecordFile(path, RecordText(record));
    DataFolder files(folder.path().toStdString());
    services.Files = &files;
    {
        UBoard window;
        window.resize(1320, 860);
        window.show();
        QElapsedTimer timer;
        double seconds = 0;
        window.OnQuestion = [&](Question&) {
            QApplication::processEvents();  // it is painted
            seconds = static_cast<double>(timer.nsecsElapsed()) / 1e9;
            window.findChild<QAction*>(QStringLiteral("leavemen"))->trigger();
        };
        for (auto _ : state) {
            seconds = 0;
            timer.start();
            window.OpenGame(ToQt(path));
            while (seconds == 0 || window.Playing()) {
                QApplication::processEvents(QEventLoop::WaitForMoreEvents);
            }
            state.SetIterationTime(seconds);
        }
    }
    services = {};
    state.counters["inputs"] = static_cast<double>(record.Inputs.size());
}
BENCHMARK(OpenInTheWindow)->Arg(3)->Arg(6)->UseManualTime()->Iterations(20)->Unit(benchmark::kMillisecond);

}  // namespace

int main(int argc, char** argv) {
    benchmark::Initialize(&argc, argv);
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    const QApplication application(argc, argv);
    plasmos::PrepareApplication();
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
