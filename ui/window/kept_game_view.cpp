// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/window/kept_game_view.h"

#include <QFileInfo>
#include <QLocale>
#include <algorithm>
#include <memory>

#include "model/dice.h"
#include "record/play_record.h"
#include "record/record_file.h"
#include "ui/board/puddle_view.h"
#include "ui/look/palette.h"

namespace plasmos {

namespace {

/// The game as it stands; none where it cannot be played on.
std::unique_ptr<GameState> StateOf(const std::string& path) {
    ReadRecord read = ReadRecordFile(path);
    if (!read.HasHead) {
        return nullptr;
    }
    DropLeaving(read.Record.Inputs);
    const PlayedRecord played = PlayRecordApart(read.Record);
    return played.HeadFits ? std::make_unique<GameState>(played.State) : nullptr;
}

QString LineOf(const GameState& state) {
    const QString clans = QStringLiteral("%1 clans").arg(state.NumPlayers);
    if (state.Turn == 0) {
        return QStringLiteral("Before the first turn, %1").arg(clans);
    }
    return QStringLiteral("Turn %1 of %2, %3").arg(std::min(state.Turn, LastTurn)).arg(LastTurn).arg(clans);
}

QPixmap BoardOf(const GameState& state, int side, double ratio) {
    PuddleView board(nullptr, state);
    const double longer = std::max(state.NumRows, state.NumCols);
    board.resize(static_cast<int>(side * state.NumCols / longer), static_cast<int>(side * state.NumRows / longer));
    QPixmap picture(board.size() * ratio);
    picture.setDevicePixelRatio(ratio);
    picture.fill(Qt::transparent);
    board.render(&picture, {}, {}, QWidget::DrawChildren);
    return picture;
}

}  // namespace

QString KeptGameLine(const KeptGame& kept) {
    const QString when = QLocale().toString(QFileInfo(ToQt(kept.Path)).lastModified(), QLocale::ShortFormat);
    const auto state = StateOf(kept.Path);
    return state ? QStringLiteral("%1, replay %2 (%3)").arg(LineOf(*state), ToQt(ReplayText(state->ReplayNo)), when)
                 : QStringLiteral("A game that cannot be opened (%1)").arg(when);
}

std::optional<KeptGameView> LatestKeptGame(const std::string& folder, int side, double ratio) {
    for (const KeptGame& kept : KeptGames(folder)) {
        if (const auto state = StateOf(kept.Path)) {
            return KeptGameView{kept.Path, LineOf(*state), BoardOf(*state, side, ratio)};
        }
    }
    return std::nullopt;
}

}  // namespace plasmos
