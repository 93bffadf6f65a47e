// SPDX-License-Identifier: GPL-3.0-or-later
// The names file: whatever its bytes are, the pieces are named, or one error says what is missing.
#include "files/encoding.h"
#include "files/game_files.h"
#include "files/line_collector.h"
#include "flow/names.h"
#include "model/game_state.h"
#include "model/services.h"
#include "tests/fuzz/fuzz.h"

namespace plasmos::fuzz {
namespace {

class OneFile : public GameFiles {
public:
    explicit OneFile(std::string_view bytes) : bytes_(bytes) {}
    std::string PathOf(std::string_view name) const override { return std::string(name); }
    void MakeFolder() override {}
    bool Exists(std::string_view) const override { return true; }
    void Append(std::string_view, std::string_view) override {}
    void Rewrite(std::string_view, std::string_view) override {
        Require(false, "an existing names file is not rewritten");
    }
    std::vector<std::string> ReadLines(std::string_view, int most) const override {
        LineCollector lines(most);
        lines.Take(bytes_.substr(0, bytes_.size() / 2));
        lines.Take(bytes_.substr(bytes_.size() / 2));
        return lines.Lines();
    }

private:
    std::string_view bytes_;
};

void NamePieces(Bytes& bytes) {
    ResetTables();
    game.NumPlayers = 3 + bytes.Below(4);
    game.MaxAmoeba = game.NumPlayers >= 5 ? 6 : 7;
    OneFile files(bytes.Rest());
    services.Files = &files;
    try {
        LoadAmoebaNames();
        for (int clan = 1; clan <= game.NumPlayers; ++clan) {
            for (int amoeba = 1; amoeba <= game.MaxAmoeba; ++amoeba) {
                Require(!game.Amoeba[amoeba][clan].Name.Empty(), "every piece has a name");
                Require(IsValidUtf8(game.Amoeba[amoeba][clan].Name), "names are UTF-8");
            }
        }
    } catch (const RuntimeError& error) {
        Require(error.Number == 5, "too few names are error 5");
    }
    services.Files = nullptr;
}

}  // namespace
}  // namespace plasmos::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    plasmos::fuzz::Bytes bytes(data, size);
    plasmos::fuzz::NamePieces(bytes);
    return 0;
}
