// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "record/game_recorder.h"

namespace plasmos {

class BoardPresentation;

/// Plays the inputs of a game again without pauses and without drawing, and hands the game over to the window where
/// they end: at the question that is open then, or at a moment of the game. The log has its lines by then.
class CatchUp : public InputPlayer {
public:
    /// `recorder` hears the game; `until` is the moment at which the window takes over, 0: at the question.
    CatchUp(const InputList& inputs, GameRecorder& recorder, BoardPresentation& window, int until);
    ~CatchUp() override;
    CatchUp(const CatchUp&) = delete;
    CatchUp& operator=(const CatchUp&) = delete;

    /// Called when the window has taken over, before it shows what is asked.
    std::function<void()> OnHandedOver;
    /// What did not fit, where something did not: the window takes over there. Empty: everything did.
    const std::string& Fault() const { return fault_; }

    bool WantsHints() const override { return true; }
    void ShowMessage(std::string_view text, int clan) override;
    void StartLog(std::string_view header) override;
    void Log(std::string_view line, int clan) override;
    void ShowPhase(std::string_view phase) override;
    void ShowHappening(const Happening& happening) override;
    void ShowCaption(std::string_view caption) override;
    void ShowCurrentClan(int clan) override;
    void ShowAutoFlags(int clan) override;
    void OutlinePiece(int clan, int amoeba, bool on) override;
    void Open(Question& question) override;
    void Close(Question& question) override;

    void OnBegin(Step step, int clan, int amoeba) override;
    void OnEnd(Step step, int clan, int amoeba) override;
    void OnHappening(const Happening& happening) override;

    /// The game has come to its end before anything else: the window shows that.
    void Finish();

protected:
    void Mismatch(const InputFault& fault) override { fault_ = fault.Text; }
    void Exhausted(Question& question) override;

private:
    void LookAtMoment();
    void HandOver();

    GameRecorder* recorder_;
    BoardPresentation* window_;
    int until_;
    bool handedOver_ = false;
    std::string fault_;
    std::string message_;
    int messageClan_ = 0;
    int outlinedClan_ = 0;
    int outlined_ = 0;
    std::vector<Question*> open_;
};

}  // namespace plasmos
