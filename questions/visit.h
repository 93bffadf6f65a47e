// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "questions/ask.h"
#include "questions/choice_forms.h"
#include "questions/food_form.h"
#include "questions/gene_form.h"
#include "questions/victim_form.h"

namespace plasmos {

/// How many kinds of question there are; the box stays the last of them.
inline constexpr int QuestionKindCount = static_cast<int>(QuestionKind::Box) + 1;

/// One function object out of several, for Visit().
template <class... Cases>
struct Overloaded : Cases... {
    using Cases::operator()...;
};
template <class... Cases>
Overloaded(Cases...) -> Overloaded<Cases...>;

namespace detail {

template <class Base, class Derived>
using LikeConst = std::conditional_t<std::is_const_v<Base>, const Derived, Derived>;

}  // namespace detail

/// Calls a visitor with a question as what it is. It must have a case for each kind: one that is missing does not
/// compile. A new kind of question is added here, and the compiler then names every place that has to know it.
template <class AnyQuestion, class Visitor>
decltype(auto) Visit(AnyQuestion& question, Visitor&& visitor) {
    using namespace detail;
    switch (question.Kind) {
        case QuestionKind::YesNo: return visitor(static_cast<LikeConst<AnyQuestion, YesNoQuestion>&>(question));
        case QuestionKind::Square: return visitor(static_cast<LikeConst<AnyQuestion, SquareQuestion>&>(question));
        case QuestionKind::Number: return visitor(static_cast<LikeConst<AnyQuestion, AmNumfrm>&>(question));
        case QuestionKind::Amoeba: return visitor(static_cast<LikeConst<AnyQuestion, AmChoicefrm>&>(question));
        case QuestionKind::Food: return visitor(static_cast<LikeConst<AnyQuestion, FoodForm>&>(question));
        case QuestionKind::Victim: return visitor(static_cast<LikeConst<AnyQuestion, VictimForm>&>(question));
        case QuestionKind::Genes: return visitor(static_cast<LikeConst<AnyQuestion, GeneForm>&>(question));
        case QuestionKind::Box: break;
    }
    return visitor(static_cast<LikeConst<AnyQuestion, BoxQuestion>&>(question));
}

/// The question as one of its kinds; nullptr where it is of another.
template <class Wanted, class AnyQuestion>
auto* As(AnyQuestion* question) {
    using Result = detail::LikeConst<AnyQuestion, Wanted>;
    Result* wanted = nullptr;
    if (question != nullptr) {
        Visit(*question, Overloaded{[&](Result& found) { wanted = &found; }, [](const Question&) {}});
    }
    return wanted;
}

}  // namespace plasmos
