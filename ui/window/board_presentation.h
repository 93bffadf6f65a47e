// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <memory>

#include "model/presentation.h"
#include "ui/window/board_motions.h"

class QMainWindow;

namespace plasmos {

class BoardMenus;
class QuestionDesk;
class ScoreTrack;
class SideStrip;

/// What a window is made of, for whoever shows the game in it.
struct BoardParts {
    QMainWindow& Window;
    ScoreTrack& Track;
    SideStrip& Strip;
    BoardMenus& Menus;
    QuestionDesk& Desk;
};

/// What the rules tell and ask, shown in the parts of a window.
class BoardPresentation : public Presentation {
public:
    explicit BoardPresentation(const BoardParts& parts);

    void ShowHappening(const Happening& happening) override;
    bool WantsHints() const override { return true; }
    void ShowMessage(std::string_view text, int clan) override;
    void StartLog(std::string_view header) override;
    void Log(std::string_view line, int clan) override;
    void ShowPhase(std::string_view phase) override;
    void ShowCaption(std::string_view caption) override;
    void ShowTurn() override;
    void ShowClan(int clan) override;
    void ShowCurrentClan(int clan) override;
    void ShowAutoFlags(int clan) override;
    void DisableAutoEating() override;
    std::string TakeReplayText() override;
    void DrawBoard() override;
    void OutlinePiece(int clan, int amoeba, bool on) override;
    void Pause(int units) override;
    void Open(Question& question) override;
    void Refresh(Question& question) override;
    void Close(Question& question) override;
    void Wait() override;

    // ---- for a game that is played again silently ----
    /// The log's line of a happening, of which the rules have told nothing in words.
    void LogHappening(const Happening& happening);
    /// The log's heading for what comes.
    void LogPhase(std::string_view phase);
    /// The log's lines are held, and written at one stroke when that is over.
    void HoldLog(bool on);
    /// Everything that the window shows of the current game, as it stands: `message` in the colours of a clan.
    void ShowEverything(std::string_view message, int clan);

private:
    /// What the state has become: pieces, labels, order of play and scores.
    void ShowResult(const Happening& happening);
    void DrawPuddle();
    void ShowBP(int clan);
    void ShowGenes(int clan);
    void ShowOrder();
    void ShowCard();

    QMainWindow* window_;
    ScoreTrack* track_;
    SideStrip* strip_;
    BoardMenus* menus_;
    QuestionDesk* desk_;
    BoardMotions motions_;
};

/// Makes the presentation of a window out of its parts.
using PresentationMaker = std::function<std::unique_ptr<BoardPresentation>(const BoardParts&)>;

}  // namespace plasmos
