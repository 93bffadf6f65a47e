// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <map>
#include <string>

#include "sim/simulate.h"

namespace plasmos {

/// Turns game results into the text of an output format, as they come and at the end.
class ResultWriter {
public:
    explicit ResultWriter(ResultFormat format) : format_(format) {}

    /// What stands before the first game.
    std::string Begin() const;
    /// What one game adds at once; an empty text for the table, which waits for the end.
    std::string Add(const GameResult& result);
    /// What stands after the last game.
    std::string End() const;

private:
    struct Tally {
        std::int64_t Seats = 0;
        std::int64_t Wins = 0;
        std::int64_t Score = 0;
        std::int64_t Amoebas = 0;
        std::int64_t Genes = 0;
    };

    void Count(const GameResult& result);

    ResultFormat format_;
    std::int64_t games_ = 0;
    std::map<std::string, Tally> byPersonality_;
    std::map<std::string, Tally> byPlace_;
};

}  // namespace plasmos
