// SPDX-License-Identifier: GPL-3.0-or-later
#include "record/guided_game.h"

#include "model/board_size.h"
#include "questions/visit.h"
#include "record/lesson_notes.h"

namespace plasmos {

namespace {

constexpr float GuidedReplay = 2;

GameSetup GuidedSetup() {
    GameSetup setup;
    setup.HasRequestedReplay = true;
    setup.RequestedReplay = GuidedReplay;
    setup.Menu = {.normmen = false, .victorymen = false, .twoplayermen = false};
    return setup;
}

/// Part `index` of a text whose parts are parted by ";"; empty behind the last one.
std::string_view PartOf(std::string_view text, std::size_t index) {
    for (; index > 0; --index) {
        const std::size_t end = text.find(';');
        text = end == std::string_view::npos ? std::string_view() : text.substr(end + 1);
    }
    return text.substr(0, text.find(';'));
}

}  // namespace

GuidedGame::GuidedGame()
    : PassingObserver(services.Listener),
      setupBefore_(game),
      filesBefore_(services.Files),
      listenerBefore_(services.Listener) {
    const bool fast = game.FastMode;
    static_cast<GameSetup&>(game) = GuidedSetup();
    game.FastMode = fast;
    ResetTables();
    SetBoard(DefaultSide, DefaultSide);
    services.Files = nullptr;
    services.Listener = this;
}

GuidedGame::~GuidedGame() {
    services.Listener = listenerBefore_;
    services.Files = filesBefore_;
    const bool over = game.Turn > LastTurn || game.GameOver;
    const bool sameBoard = game.NumRows == setupBefore_.NumRows && game.NumCols == setupBefore_.NumCols &&
                           game.Blocked == setupBefore_.Blocked;
    setupBefore_.FastMode = game.FastMode;
    static_cast<GameSetup&>(game) = setupBefore_;
    if (!over || !sameBoard) {
        ResetTables();
    }
}

Advice GuidedGame::AdviceFor(const Question& question) const {
    Advice advice;
    if (!onPath_ || LessonsAreOver() || Lessons()[lesson_].Asked != question.Kind) {
        advice.Note = TopicNote(question, game);
        return advice;
    }
    const Lesson& lesson = Lessons()[lesson_];
    advice.Note = lesson.Note;
    advice.Number = static_cast<int>(lesson_) + 1;
    Answer next;
    if (const auto step = PartOf(lesson.Steps, step_); !step.empty() && Answer::Parse(step, next).empty()) {
        advice.Recommended = next;
    }
    return advice;
}

void GuidedGame::OnInput(const Question& question, const Answer& answer) {
    if (onPath_ && !LessonsAreOver() && answer.Text() == PartOf(Lessons()[lesson_].Steps, step_)) {
        ++step_;
    }
    PassingObserver::OnInput(question, answer);
}

void GuidedGame::OnAnswer(const Question& question, const Answer& answer, bool accepted) {
    PassingObserver::OnAnswer(question, answer, accepted);
    if (!accepted || !onPath_ || LessonsAreOver()) {
        return;
    }
    const Lesson& lesson = Lessons()[lesson_];
    onPath_ = lesson.Asked == question.Kind && answer.Text() == PartOf(lesson.Told, told_);
    if (onPath_ && PartOf(lesson.Told, ++told_).empty()) {
        ++lesson_;
        step_ = told_ = 0;
    }
}

}  // namespace plasmos
