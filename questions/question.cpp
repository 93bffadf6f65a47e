// SPDX-License-Identifier: GPL-3.0-or-later
#include "questions/question.h"

namespace plasmos {

std::string_view QuestionKindName(QuestionKind kind) {
    constexpr std::string_view names[] = {"yesno", "square", "number", "amoeba", "food", "victim", "genes", "box"};
    return names[static_cast<std::size_t>(kind)];
}

}  // namespace plasmos
