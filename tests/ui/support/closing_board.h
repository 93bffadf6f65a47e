// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QAction>
#include <QCoreApplication>
#include <QElapsedTimer>
#include <QMetaObject>
#include <QPushButton>
#include <csignal>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "files/text.h"
#include "model/game_state.h"
#include "questions/question.h"
#include "ui/app/hand.h"
#include "ui/window/board_presentation.h"
#include "ui/window/uboard.h"

namespace plasmos::testing {

/// How the end comes.
enum class Way { Close, Quit, End, Signal, Application };
inline constexpr Way Ways[] = {Way::Close, Way::Quit, Way::End, Way::Signal, Way::Application};

/// Counts waits and pauses, and brings the end about at one of them.
class ClosingBoard : public UBoard {
public:
    ClosingBoard() : UBoard([this](const BoardParts& parts) { return std::make_unique<Presenting>(parts, *this); }) {}

    int At = 0;  ///< 0: never
    Way How = Way::Close;
    int Count = 0;
    std::vector<std::string> Kinds;  ///< of every wait and pause: "Food in Movement", "pause in Scoring"
    QElapsedTimer Since;
    std::function<void()> OnAt;  ///< happens instead of an end

private:
    class Presenting : public BoardPresentation {
    public:
        Presenting(const BoardParts& parts, ClosingBoard& board) : BoardPresentation(parts), board_(&board) {}

        void Wait() override {
            board_->Next(QuestionKindName(board_->TopQuestion()->Kind));
            BoardPresentation::Wait();
        }
        void Pause(int units) override {
            board_->Next("pause");
            BoardPresentation::Pause(units);
        }

    private:
        ClosingBoard* board_;
    };

    void Next(std::string_view what) {
        Kinds.push_back(Concat(what, " in ", game.Phase));
        if (++Count != At) {
            return;
        }
        if (OnAt) {
            OnAt();
        } else {
            SetSpeed(0.2);
            QMetaObject::invokeMethod(
                this, [this] { BringAbout(); }, Qt::QueuedConnection);
        }
    }
    void BringAbout() {
        Since.start();
        switch (How) {
            case Way::Close: close(), BeSure(); return;
            case Way::Quit: findChild<QAction*>(QStringLiteral("men_quit"))->trigger(), BeSure(); return;
            case Way::End: EndProgram(); return;
            case Way::Signal: std::raise(SIGTERM); return;
            case Way::Application: QCoreApplication::quit(), BeSure(); return;
        }
    }
    /// In the middle of a person's game the window asks first.
    void BeSure() {
        if (auto* leave = findChild<QPushButton*>(QStringLiteral("leaveb")); leave != nullptr) {
            WindowHand().Press(*leave);
        }
    }
};

}  // namespace plasmos::testing
