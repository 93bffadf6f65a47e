// SPDX-License-Identifier: GPL-3.0-or-later
// Saved settings and the options dialog behind its controls: whatever is saved, whatever is clicked,
// the board stays inside its bounds and loads back equal.
#include "files/encoding.h"
#include "files/game_files.h"
#include "files/settings_store.h"
#include "flow/new_game.h"
#include "flow/start.h"
#include "model/board_size.h"
#include "model/game_state.h"
#include "model/services.h"
#include "tests/fuzz/fuzz.h"
#include "ui/options/options_model.h"

namespace plasmos::fuzz {
namespace {

class NoFiles : public GameFiles {
public:
    std::string PathOf(std::string_view name) const override { return std::string(name); }
    void MakeFolder() override {}
    bool Exists(std::string_view) const override { return false; }
    void Append(std::string_view, std::string_view) override {}
    void Rewrite(std::string_view, std::string_view) override {}
    std::vector<std::string> ReadLines(std::string_view, int) const override { return {}; }
};

void Act(OptionsModel& model, Bytes& bytes) {
    const int x = bytes.Next() * 40 - 1000;
    const int y = bytes.Next() * 40 - 1000;
    switch (bytes.Below(6)) {
        case 0: model.SetRows(bytes.Next() - 100); break;
        case 1: model.SetCols(bytes.Next() - 100); break;
        case 2: model.SetBlocks(bytes.Next() - 100); break;
        case 3: model.LeftClick(x, y); break;
        case 4: model.RightClick(x, y); break;
        default: model.Names[static_cast<std::size_t>(1 + bytes.Below(6))] = bytes.Text(60); break;
    }
}

void LoadAndPlay(MemorySettings& settings) {
    services.Settings = &settings;
    Require(BoardFault(ReadBoardSettings(settings)).empty(), "the saved board is inside the bounds");
    LoadBoard();
    game.AutoPlay = true;
    game.RequestedClans = 6;
    game.HasRequestedReplay = true;
    NewGame();
    for (int clan = 1; clan <= 6; ++clan) {
        Require(!game.Players[clan].Name.Empty() && IsValidUtf8(game.Players[clan].Name), "every clan has a name");
    }
    services.Settings = nullptr;
}

}  // namespace
}  // namespace plasmos::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace plasmos;
    using namespace plasmos::fuzz;
    Bytes bytes(data, size);
    MemorySettings settings;
    for (const char* key : {"rows", "cols", "blockno", "blocks"}) {
        settings.Save("board", key, bytes.Text(40));
    }
    for (int clan = 1; clan <= 6; ++clan) {
        settings.Save("players", Concat("name", clan), bytes.Text(60));
    }
    LoadAndPlay(settings);
    OptionsModel model(settings);
    NoFiles files;
    for (int act = 0; act < 200 && !bytes.AtEnd(); ++act) {
        Act(model, bytes);
        model.Save(settings, files);
        const BoardSize saved = ReadBoardSettings(settings);
        Require(BoardFault(saved).empty(), "what the dialog saves is inside the bounds");
    }
    LoadAndPlay(settings);
    return 0;
}
