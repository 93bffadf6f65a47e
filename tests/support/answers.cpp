// SPDX-License-Identifier: GPL-3.0-or-later
#include "model/genes.h"
#include "questions/visit.h"
#include "tests/support/scripted_board.h"

namespace plasmos::testing {

namespace {

using Kind = Answer::Kind;

bool IsOneOf(Kind kind, std::initializer_list<Kind> kinds) {
    return std::find(kinds.begin(), kinds.end(), kind) != kinds.end();
}

/// Whether a question of a kind has a control for an answer. Yes is no square, though the rules look at it.
bool Belongs(Kind kind, QuestionKind question) {
    switch (question) {
        case QuestionKind::YesNo: return IsOneOf(kind, {Kind::Yes, Kind::No});
        case QuestionKind::Square: return kind == Kind::Square;
        case QuestionKind::Number: return IsOneOf(kind, {Kind::Number, Kind::Close});
        case QuestionKind::Amoeba: return IsOneOf(kind, {Kind::Amoeba, Kind::Nobody, Kind::Close});
        case QuestionKind::Food: return (kind >= Kind::Field && kind <= Kind::CarryNothing) || kind == Kind::Close;
        case QuestionKind::Victim:
            return IsOneOf(kind, {Kind::Mark, Kind::LookAway, Kind::Pick, Kind::Done, Kind::Close});
        case QuestionKind::Genes: return (kind >= Kind::Tick && kind <= Kind::Done) || kind == Kind::Close;
        case QuestionKind::Box: return IsOneOf(kind, {Kind::Acknowledge, Kind::Close});
    }
    return false;
}

Line One(const Answer& answer) {
    return {answer.Text(), {answer}, {}};
}

}  // namespace

void PutFitting(const Answer& answer, Question& question) {
    if (!Belongs(answer.What, question.Kind)) {
        throw ScriptError(Concat("the answer \"", answer.Text(), "\" does not fit a question of the kind ",
                                 QuestionKindName(question.Kind), " to clan ", question.Clan, ": \"", question.Text,
                                 "\""));
    }
    auto* genes = As<GeneForm>(&question);
    if (genes != nullptr && answer.What == Answer::Kind::Tick) {
        genes->gcheck_Click(answer.Number);  // a box is clicked, whatever that makes of it
    } else {
        question.Put(answer);
    }
}

Line Yes() {
    return One(YesAnswer());
}

Line No() {
    return One(NoAnswer());
}

Line Square(int square) {
    return One(Numbered(Kind::Square, square));
}

Line ClickAt(int x, int y) {
    return Do(Concat("ClickAt(", x, ",", y, ")"), [x, y](Question&) { Picture1_MouseUp(x, y); });
}

Line Ok() {
    return One(Plain(Kind::Acknowledge));
}

Line Number(int number) {
    return One(Numbered(Kind::Number, number));
}

Line Amoeba(int amoeba) {
    return One(Numbered(Kind::Amoeba, amoeba));
}

Line Nobody() {
    return One(Plain(Kind::Nobody));
}

Line Eat(std::vector<int> amounts) {
    return One(WithAmounts(Kind::Eat, std::move(amounts)));
}

Line EatSuggested() {
    return {"EatSuggested", {Plain(Kind::Suggestion), WithAmounts(Kind::Eat, {})}, {}};
}

Line Parasitize() {
    return {"Parasitize", {Plain(Kind::Parasitism), Plain(Kind::Victim)}, {}};
}

Line Struggle() {
    return {"Struggle", {Plain(Kind::Struggle), Plain(Kind::Victim)}, {}};
}

Line Pick(std::vector<Answer::Piece> pieces) {
    return One(WithPieces(Kind::Pick, std::move(pieces)));
}

Line Genes(const std::vector<std::string>& codes, const std::string& bp) {
    Line line{"Genes", {}, {}};
    for (const std::string& code : codes) {
        line.Answers.push_back(Numbered(Kind::Tick, GeneNumber(code)));
    }
    if (!bp.empty()) {
        line.Answers.push_back(TypedInto(Kind::Pay, 0, bp));
    }
    line.Answers.push_back(Plain(Kind::Done));
    return line;
}

Line CloseIt() {
    return One(Plain(Kind::Close));
}

Line EndTheProgram() {
    return Do("EndTheProgram", [](Question&) { throw ProgramEnd{}; });
}

Line Do(std::string name, std::function<void(Question&)> act) {
    return {std::move(name), {}, std::move(act)};
}

}  // namespace plasmos::testing
