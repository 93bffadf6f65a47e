// SPDX-License-Identifier: GPL-3.0-or-later
#include "record/guided_game.h"

#include <algorithm>

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

/// One meal is as good as another.
bool IsAsTold(const Answer& answer, std::string_view told) {
    Answer lesson;
    return answer.Text() == told || (answer.What == Answer::Kind::Eat && Answer::Parse(told, lesson).empty() &&
                                     lesson.What == Answer::Kind::Eat);
}

bool MayBeGiven(const Question& question, const Answer& answer) {
    const auto allowed = question.Allowed();
    return std::find(allowed.begin(), allowed.end(), answer) != allowed.end();
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
    const bool over = IsOver();
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
    if (!onPath_ || LessonsAreOver()) {
        advice.Note = TopicNote(question, game);
        return advice;
    }
    const Lesson& lesson = Lessons()[lesson_];
    const bool between = lesson.Asked != question.Kind;  // such as what was refused
    advice.Note = between ? TopicNote(question, game) : std::string(lesson.Note);
    advice.Number = static_cast<int>(lesson_) + 1;
    if (between) {
        return advice;
    }
    Answer next;
    if (const auto step = PartOf(lesson.Steps, step_);
        !step.empty() && Answer::Parse(step, next).empty() && MayBeGiven(question, next)) {
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
    onPath_ = lesson.Asked == question.Kind && IsAsTold(answer, PartOf(lesson.Told, told_));
    if (onPath_ && PartOf(lesson.Told, ++told_).empty()) {
        ++lesson_;
        step_ = told_ = 0;
    }
}

}  // namespace plasmos
