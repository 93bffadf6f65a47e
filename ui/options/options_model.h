// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <string>
#include <vector>

#include "model/board_size.h"

namespace plasmos {

class GameFiles;
class SettingsStore;

/// What the options dialog holds and keeps within the bounds, without any window: the board's size,
/// the block markers on the small picture, and the players' names.
class OptionsModel {
public:
    /// Width and height of a square of the small picture in its units.
    static constexpr int Unit = 600;

    struct Marker {
        int Left = 0;
        int Top = 0;
    };

    /// Takes the saved board and names; what is missing has its default.
    explicit OptionsModel(const SettingsStore& settings);

    int Rows() const { return rows_; }
    int Cols() const { return cols_; }
    int Blocks() const { return static_cast<int>(markers_.size()); }
    const std::vector<Marker>& Markers() const { return markers_; }
    /// Position of the picked marker in Markers(); -1: none.
    int Picked() const { return picked_; }

    /// The values the controls may take while the others stay as they are.
    int LeastRows() const;
    int MostRows() const;
    int LeastCols() const;
    int MostCols() const;
    int MostBlocks() const;
    /// Why a control stops where it is, one line for each that does; may be empty.
    std::string Bounds() const;

    /// Changes the size step by step; stops at the bounds. A lowered side takes markers beyond it to
    /// the last row or column; those that meet there become one.
    void SetRows(int rows);
    void SetCols(int cols);
    /// Raising puts markers on free squares, lowering takes the last ones.
    void SetBlocks(int blocks);

    /// A click at a point of the picture. Left: a marker comes to the square, or goes from it. Right:
    /// the marker there is picked, or the picked one moves there and becomes one with a marker it meets.
    void LeftClick(int x, int y);
    void RightClick(int x, int y);

    /// Square number of a marker.
    int SquareOf(const Marker& marker) const;
    /// Number 1.. of the marker on the square of a point; 0: none.
    int MarkerAt(int x, int y) const;
    /// What the diagnostic label says about a click: button 1 left, 2 right.
    std::string Diagnosis(int x, int y, int button) const;

    std::array<std::string, 7> Names;  ///< by clan; index 0 unused

    /// The text of the options file.
    std::string FileText() const;
    /// Saves the board and then the names; an options file that cannot be written does not keep the rest
    /// from being saved. The answer is what went wrong, or empty.
    std::string Save(SettingsStore& settings, GameFiles& files) const;

private:
    bool OnPicture(int x, int y) const;
    void MergeMarkers();
    std::string SaveBoard(SettingsStore& settings, GameFiles& files) const;
    std::string SaveNames(SettingsStore& settings) const;

    int rows_ = DefaultSide;
    int cols_ = DefaultSide;
    int picked_ = -1;
    std::vector<Marker> markers_;
};

}  // namespace plasmos
