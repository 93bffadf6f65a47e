// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <functional>
#include <memory>
#include <string>

class QMainWindow;

namespace plasmos {

class BoardPresentation;
class LookDesk;
class QuestionDesk;
class RecordDesk;
class RecordMenus;
class TableTop;
struct GameState;

/// All that a window does with the record of its game: the games that are kept and offered, saving and opening, taking
/// back, looking back, and what is shown when a game is over.
class HistoryDesk : public QObject {
public:
    /// What the window does itself.
    struct Deeds {
        std::function<void(const std::function<void()>& game)> Play;  ///< as the start buttons do
        std::function<void()> BeginAfresh;                            ///< the window is as before a game
        std::function<void()> Enable;                                 ///< what can be chosen follows the game
        std::function<void()> NewGame;
        std::function<void(const GameState& state)> ShowState;
        std::function<void(bool on)> HoldMenus;         ///< nothing that rules take over can be turned
        std::function<void()> Count;                    ///< the game that is over is taken into the person's results
        std::function<void(const QString& text)> Tell;  ///< a box for the person
    };

    HistoryDesk(QMainWindow& window, TableTop& table, QuestionDesk& desk, const Deeds& deeds);
    ~HistoryDesk() override;

    /// Who shows the game; before any game is played.
    void ShowBy(BoardPresentation& presentation);

    /// Plays a new game and writes it down.
    void PlayNew(const std::function<void()>& play);
    void Open(const QString& path);
    /// What can be chosen now. A guided game is neither saved nor taken back.
    void Enable(bool guided);
    /// The same, as the game goes on.
    void Follow();
    /// An earlier board is looked back at no longer.
    void ShowNow();
    /// A game begins that is not written down, or the board is another one: the last game is past.
    void Forget();
    /// The game that was played is over, or was left.
    void GameIsOver();
    /// Whether leaving the game loses nothing.
    bool IsKept() const;
    /// Whether the game that is over counts in the person's results.
    bool CountsNow();

    RecordDesk& Records() { return *records_; }
    LookDesk& Looking() { return *look_; }

private:
    void ConnectSummary(const std::function<void()>& newGame);
    void OfferResume();

    QMainWindow* window_;
    TableTop* table_;
    std::unique_ptr<RecordDesk> records_;
    std::unique_ptr<LookDesk> look_;
    std::unique_ptr<RecordMenus> menus_;
    std::string waiting_;  ///< the kept game that the start card offers
};

}  // namespace plasmos
