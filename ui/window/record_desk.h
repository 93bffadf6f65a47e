// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QString>
#include <functional>
#include <memory>
#include <optional>

#include "model/game_state.h"
#include "record/going_back.h"
#include "record/kept_games.h"

class QWidget;

namespace plasmos {

class BoardPresentation;

/// The record of the game in a window: it is written down while it is played and kept in the data folder, saved and
/// opened, and taken back. Going anywhere in a game is playing it again: the rules leave the game they play, and its
/// inputs, or some of them, are played silently.
class RecordDesk : public QObject {
public:
    /// What the window does itself.
    struct Deeds {
        std::function<void(const std::function<void()>& game)> Play;  ///< as the start buttons do
        std::function<void()> LeaveGame;                              ///< the rules are told to leave the game
        std::function<void()> BeginAfresh;                            ///< the window is as before a game
        std::function<void()> CaughtUp;                               ///< the window shows a game that was played again
        std::function<void()> Count;                    ///< the game that is over is taken into the person's results
        std::function<void(const QString& text)> Tell;  ///< a box for the person
    };

    RecordDesk(QWidget& window, Deeds deeds);
    ~RecordDesk() override;

    /// Who shows the game; before any game is played.
    void ShowBy(BoardPresentation& presentation) { presentation_ = &presentation; }

    /// Plays a new game, written down from its beginning, and whatever games it is left for.
    void PlayNew(const std::function<void()>& play);
    /// Opens a record, or goes on with a kept game; the one that is played is left.
    /// False: it could not be opened, and the person has been told why.
    bool Open(const std::string& path);
    /// Writes the record of the game so far. False: the person has been told what went wrong.
    bool Save(const std::string& path);

    /// There is no game any more that could be looked back at: another one is played that is not written down.
    void Forget();
    bool HasGame() const;
    bool CanTakeBack() const;
    bool CanGoAgain() const;
    void TakeBack();
    void GoAgain();
    /// Takes back to a moment of the game, and goes on from there. What it had come to stays among the kept games.
    void GoOnFrom(int moment);

    /// The game as it is written down; the last one when it is over. None: nullptr.
    const GameRecorder* Recorder() const { return recorder_.get(); }
    /// Whether leaving the game loses nothing.
    bool IsKept() const { return keeper_.IsKept(); }
    const std::string& GamesFolder() const { return folder_; }
    /// The path of a game that is kept there, whichever way leads to it; empty: it is another file.
    std::string KeptPath(const std::string& path) const;
    /// Whether the game that is over counts in the person's results: each does once, and one from a saved file does
    /// not.
    bool CountsNow();

private:
    /// A game to be played again.
    struct Next {
        GameRecord Record;
        int Until = 0;  ///< the moment at which the person goes on; 0: the open question
        bool Opened = false;
        std::string Path{};    ///< of a kept game
        bool Counted = false;  ///< it does not count in the results
        bool Apart = false;    ///< what it was before stays kept, too
    };

    std::string KeptText() const;
    void GoTo(InputList inputs, int until);
    void Go(Next next);
    void KeepNew(std::string_view lines);
    void Run(const std::function<void()>& first);
    void LeaveFor(const Next& next);
    void Replay(Next next);
    void Record();
    void Stop();
    void Keep(const Next& next);
    void EndKeeping(const std::string& goneOnWith = {});
    void TakeOwnBoard();
    MenuMarks OwnMarks() const;
    void NoteOwnMarks();
    void TakeOwnMarks();
    int WhoTakesBack() const;

    QWidget* window_;
    Deeds deeds_;
    BoardPresentation* presentation_ = nullptr;
    std::string folder_;
    GameKeeper keeper_;
    std::unique_ptr<GameRecorder> recorder_;
    std::optional<Next> next_;
    GameRecord record_;  ///< that is played again
    InputList kept_;     ///< as the kept file has them
    TakenBack takenBack_;
    Observer* listenerBefore_ = nullptr;
    std::optional<MenuMarks> marksBefore_;  ///< of the person, before a game was played again
    MenuMarks marksThen_;                   ///< of the game that was played again, where the person went on
    bool running_ = false;
    bool begun_ = false;       ///< the new game is kept
    bool counted_ = false;     ///< the game has come to its end once
    bool otherBoard_ = false;  ///< the board is that of an opened game
};

}  // namespace plasmos
