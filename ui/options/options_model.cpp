// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/options/options_model.h"

#include <algorithm>
#include <utility>

#include "files/game_files.h"
#include "files/runtime_error.h"
#include "files/settings_store.h"
#include "files/text.h"
#include "flow/clan_names.h"
#include "flow/start.h"

namespace plasmos {

namespace {

int CeilDivide(int number, int by) {
    return (number + by - 1) / by;
}

std::string CannotSave(const SettingsStore& settings) {
    return Concat("The settings could not be saved in ", settings.Where());
}

}  // namespace

OptionsModel::OptionsModel(const SettingsStore& settings) {
    const BoardSize board = ReadBoardSettings(settings);
    rows_ = board.Rows;
    cols_ = board.Cols;
    for (const int square : board.Blocks) {
        markers_.push_back({(square - 1) % cols_ * Unit, (square - 1) / cols_ * Unit});
    }
    for (int clan = 1; clan <= 6; ++clan) {
        Names[static_cast<std::size_t>(clan)] = SavedClanName(settings, clan);
    }
}

int OptionsModel::LeastRows() const {
    return std::max(MinSide, CeilDivide(MinFreeSquares + Blocks(), cols_));
}

int OptionsModel::MostRows() const {
    return std::min(MaxSide, MaxBoardSquares / cols_);
}

int OptionsModel::LeastCols() const {
    return std::max(MinSide, CeilDivide(MinFreeSquares + Blocks(), rows_));
}

int OptionsModel::MostCols() const {
    return std::min(MaxSide, MaxBoardSquares / rows_);
}

int OptionsModel::MostBlocks() const {
    return std::min(MaxBlocks, rows_ * cols_ - MinFreeSquares);
}

std::string OptionsModel::Bounds() const {
    std::string text;
    const auto say = [&text](std::string_view line) { text += Concat(text.empty() ? "" : "\n", line); };
    if (rows_ == MaxSide || cols_ == MaxSide || rows_ == MinSide || cols_ == MinSide) {
        say(Concat("A side has ", MinSide, " to ", MaxSide, " squares."));
    }
    if ((rows_ == MostRows() && rows_ < MaxSide) || (cols_ == MostCols() && cols_ < MaxSide)) {
        say(Concat("A board has at most ", MaxBoardSquares, " squares."));
    }
    const bool full = Blocks() == MostBlocks() && Blocks() < MaxBlocks;
    if (full || (rows_ == LeastRows() && rows_ > MinSide) || (cols_ == LeastCols() && cols_ > MinSide)) {
        say(Concat(MinFreeSquares, " squares must stay free."));
    }
    if (Blocks() == MaxBlocks) {
        say(Concat("There are at most ", MaxBlocks, " blocks."));
    }
    return text;
}

// A square is blocked once, however many markers have come to it.
void OptionsModel::MergeMarkers() {
    std::vector<Marker> kept;
    for (std::size_t i = 0; i < markers_.size(); ++i) {
        const bool first = MarkerAt(markers_[i].Left, markers_[i].Top) == static_cast<int>(i) + 1;
        if (first) {
            kept.push_back(markers_[i]);
        }
    }
    if (kept.size() != markers_.size()) {
        picked_ = -1;
        markers_ = std::move(kept);
    }
}

void OptionsModel::SetRows(int rows) {
    while (rows_ < rows && rows_ < MostRows()) {
        ++rows_;
    }
    while (rows_ > rows && rows_ > LeastRows()) {
        --rows_;
        for (Marker& marker : markers_) {
            marker.Top = std::min(marker.Top, (rows_ - 1) * Unit);
        }
        MergeMarkers();
    }
}

void OptionsModel::SetCols(int cols) {
    while (cols_ < cols && cols_ < MostCols()) {
        ++cols_;
    }
    while (cols_ > cols && cols_ > LeastCols()) {
        --cols_;
        for (Marker& marker : markers_) {
            marker.Left = std::min(marker.Left, (cols_ - 1) * Unit);
        }
        MergeMarkers();
    }
}

void OptionsModel::SetBlocks(int blocks) {
    picked_ = -1;
    while (Blocks() > std::max(blocks, 0)) {
        markers_.pop_back();
    }
    for (int square = rows_ * cols_; square >= 1 && Blocks() < std::min(blocks, MostBlocks()); --square) {
        const int left = (square - 1) % cols_ * Unit;
        const int top = (square - 1) / cols_ * Unit;
        if (MarkerAt(left, top) == 0) {
            markers_.push_back({left, top});
        }
    }
}

bool OptionsModel::OnPicture(int x, int y) const {
    return x >= 0 && y >= 0 && x < cols_ * Unit && y < rows_ * Unit;
}

int OptionsModel::SquareOf(const Marker& marker) const {
    return marker.Top / Unit * cols_ + marker.Left / Unit + 1;
}

int OptionsModel::MarkerAt(int x, int y) const {
    for (int i = 0; i < Blocks(); ++i) {
        const Marker& marker = markers_[static_cast<std::size_t>(i)];
        if (marker.Left == x / Unit * Unit && marker.Top == y / Unit * Unit) {
            return i + 1;
        }
    }
    return 0;
}

void OptionsModel::LeftClick(int x, int y) {
    if (!OnPicture(x, y)) {
        return;
    }
    const int there = MarkerAt(x, y);
    if (there > 0) {
        markers_.erase(markers_.begin() + there - 1);
        picked_ = -1;
    } else if (Blocks() < MostBlocks()) {
        markers_.push_back({x / Unit * Unit, y / Unit * Unit});
    }
}

// A picked marker becomes one with the marker that the square has already.
void OptionsModel::RightClick(int x, int y) {
    if (!OnPicture(x, y)) {
        return;
    }
    if (picked_ < 0) {
        picked_ = MarkerAt(x, y) - 1;
        return;
    }
    markers_[static_cast<std::size_t>(picked_)] = {x / Unit * Unit, y / Unit * Unit};
    picked_ = -1;
    MergeMarkers();
}

std::string OptionsModel::Diagnosis(int x, int y, int button) const {
    const Marker clicked{x / Unit * Unit, y / Unit * Unit};
    return Concat("Square: ", SquareOf(clicked), "\nButton: ", button, "\nsqTop: ", clicked.Top,
                  "\nsqLeft: ", clicked.Left, "\nBlock: ", MarkerAt(x, y));
}

std::string OptionsModel::FileText() const {
    std::string text = Concat("rows: ", rows_, "\ncols: ", cols_, "\nblocks: ", Blocks(), "\n");
    int number = 0;
    for (const Marker& marker : markers_) {
        text += Concat(++number, ": ", marker.Left, ": ", marker.Top, "\n");
    }
    return text;
}

std::string OptionsModel::SaveBoard(SettingsStore& settings, GameFiles& files) const {
    std::vector<int> squares;
    for (const Marker& marker : markers_) {
        squares.push_back(SquareOf(marker));
    }
    if (!settings.Save("board", "rows", Concat(rows_)) || !settings.Save("board", "cols", Concat(cols_)) ||
        !settings.Save("board", "blocks", BlocksText(squares))) {
        return CannotSave(settings);
    }
    std::string fault;
    try {
        files.MakeFolder();
        files.Rewrite(OptionsFile, FileText());
    } catch (const RuntimeError& error) {
        fault = error.what();
    }
    return settings.Save("board", "blockno", Concat(Blocks())) ? fault : CannotSave(settings);
}

std::string OptionsModel::SaveNames(SettingsStore& settings) const {
    for (int clan = 1; clan <= 6; ++clan) {
        if (!SaveClanName(settings, clan, Names[static_cast<std::size_t>(clan)])) {
            return CannotSave(settings);
        }
    }
    return {};
}

std::string OptionsModel::Save(SettingsStore& settings, GameFiles& files) const {
    const std::string board = SaveBoard(settings, files);
    const std::string names = SaveNames(settings);
    return board.empty() ? names : board;
}

}  // namespace plasmos
