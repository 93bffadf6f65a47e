// SPDX-License-Identifier: GPL-3.0-or-later
#include "questions/question.h"

#include <iterator>

#include "model/observer.h"
#include "model/presentation.h"
#include "model/services.h"

namespace plasmos {

std::string_view QuestionKindName(QuestionKind kind) {
    constexpr std::string_view names[] = {"yesno", "square", "number", "amoeba", "food", "victim", "genes", "box"};
    static_assert(std::size(names) == static_cast<std::size_t>(QuestionKind::Box) + 1, "every kind has a name");
    return names[static_cast<std::size_t>(kind)];
}

void Question::Put(const Answer& answer) {
    const bool covered = services.Asked != nullptr && services.Asked != this;
    if (covered || Answered()) {
        return;
    }
    if (services.Listener != nullptr) {
        services.Listener->OnInput(*this, answer);
    }
    Store(answer);
}

bool HintsAreWanted() {
    return services.Window != nullptr && services.Window->WantsHints();
}

void NoteAnswer(const Question& question, const Answer& answer, bool accepted) {
    if (services.Listener != nullptr) {
        services.Listener->OnAnswer(question, answer, accepted);
    }
}

}  // namespace plasmos
