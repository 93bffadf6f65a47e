// SPDX-License-Identifier: GPL-3.0-or-later
// One game of computer clans with trace files where the window would keep them, for looking afterwards
// at what lies on the disk.
#include <cstdio>

#include "files/game_files.h"
#include "files/platform.h"
#include "flow/play_game.h"
#include "flow/start.h"
#include "model/game_state.h"
#include "model/services.h"

int main() {
    using namespace plasmos;
    DataFolder files(DataFolderPath());
    services.Files = &files;
    if (const auto fault = PrepareDataFolder(); !fault.empty()) {
        std::fprintf(stderr, "%s\n", fault.c_str());
        return 1;
    }
    LoadBoard();
    game.RequestedClans = 4;
    game.FastMode = true;
    PlayUnattended();
    std::printf("%s\n", files.PathOf({}).c_str());
    return game.Turn == LastTurn + 1 ? 0 : 1;
}
