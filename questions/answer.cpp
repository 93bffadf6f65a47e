// SPDX-License-Identifier: GPL-3.0-or-later
#include "questions/answer.h"

#include <algorithm>
#include <charconv>
#include <iterator>

#include "files/strings.h"
#include "files/text.h"

namespace plasmos {

namespace {

/// What follows an answer's word.
enum class Rest { Nothing, Number, FieldAndText, Text, Amounts, Pieces };

struct Word {
    std::string_view Spelling;
    Answer::Kind What;
    Rest Follows = Rest::Nothing;
};

using Kind = Answer::Kind;

/// In the order of the kinds; closing is the last.
constexpr Word Words[] = {
    {"yes", Kind::Yes},
    {"no", Kind::No},
    {"square", Kind::Square, Rest::Number},
    {"number", Kind::Number, Rest::Number},
    {"amoeba", Kind::Amoeba, Rest::Number},
    {"nobody", Kind::Nobody},
    {"field", Kind::Field, Rest::FieldAndText},
    {"leave", Kind::LeaveField, Rest::Number},
    {"suggestion", Kind::Suggestion},
    {"parasitism", Kind::Parasitism},
    {"struggle", Kind::Struggle},
    {"eat", Kind::Eat, Rest::Amounts},
    {"victim", Kind::Victim},
    {"starve", Kind::Starve},
    {"carry", Kind::Carry, Rest::Amounts},
    {"carry nothing", Kind::CarryNothing},
    {"fight", Kind::Fight, Rest::Pieces},
    {"mark", Kind::Mark, Rest::Number},
    {"look away", Kind::LookAway},
    {"pick", Kind::Pick, Rest::Pieces},
    {"tick", Kind::Tick, Rest::Number},
    {"untick", Kind::Untick, Rest::Number},
    {"pay", Kind::Pay, Rest::Text},
    {"reset", Kind::Reset},
    {"done", Kind::Done},
    {"ok", Kind::Acknowledge},
    {"close", Kind::Close},
};

constexpr bool EveryKindHasItsWord() {
    for (std::size_t kind = 0; kind < std::size(Words); ++kind) {
        if (Words[kind].What != static_cast<Kind>(kind)) {
            return false;
        }
    }
    return std::size(Words) == static_cast<std::size_t>(Kind::Close) + 1;
}

static_assert(EveryKindHasItsWord(), "a kind of answer is written with the word at its place");

const Word& WordOf(Kind kind) {
    return Words[static_cast<std::size_t>(kind)];
}

/// A text that was typed stays in its line.
std::string OnOneLine(std::string_view typed) {
    std::string line;
    for (const char c : typed) {
        switch (c) {
            case '\\': line += "\\\\"; break;
            case '\n': line += "\\n"; break;
            case '\r': line += "\\r"; break;
            default: line += c;
        }
    }
    return line;
}

bool ReadTyped(std::string_view line, std::string& typed) {
    for (std::size_t i = 0; i < line.size(); ++i) {
        if (line[i] != '\\') {
            typed += line[i];
            continue;
        }
        const char escaped = ++i < line.size() ? line[i] : '\0';
        if (escaped != '\\' && escaped != 'n' && escaped != 'r') {
            return false;
        }
        typed += escaped == 'n' ? '\n' : escaped == 'r' ? '\r' : '\\';
    }
    return true;
}

bool ReadNumber(std::string_view text, int& number) {
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    return error == std::errc() && end == text.data() + text.size();
}

/// Takes what stands before a sign off a text; all of it where the sign is not there.
std::string_view TakeUpTo(std::string_view& text, char sign) {
    const auto end = std::min(text.find(sign), text.size());
    const auto part = text.substr(0, end);
    text.remove_prefix(std::min(end + 1, text.size()));
    return part;
}

bool ReadAmounts(std::string_view text, std::vector<int>& amounts) {
    while (!text.empty()) {
        if (!ReadNumber(TakeUpTo(text, ','), amounts.emplace_back())) {
            return false;
        }
    }
    return true;
}

bool ReadPieces(std::string_view text, std::vector<Answer::Piece>& pieces) {
    while (!text.empty()) {
        std::string_view tag = TakeUpTo(text, ' ');
        Answer::Piece& piece = pieces.emplace_back();
        const auto clan = TakeUpTo(tag, ',');
        if (!ReadNumber(clan, piece.Clan) || !ReadNumber(tag, piece.Amoeba)) {
            return false;
        }
    }
    return true;
}

bool ReadField(std::string_view text, Answer& answer) {
    constexpr std::string_view becomes = " = ";
    const auto sign = text.find(becomes);
    return sign != std::string_view::npos && ReadNumber(text.substr(0, sign), answer.Number) &&
           ReadTyped(text.substr(sign + becomes.size()), answer.Typed);
}

bool ReadRest(Rest follows, std::string_view text, Answer& answer) {
    switch (follows) {
        case Rest::Nothing: return text.empty();
        case Rest::Number: return ReadNumber(text, answer.Number);
        case Rest::FieldAndText: return ReadField(text, answer);
        case Rest::Text: return ReadTyped(text, answer.Typed);
        case Rest::Amounts: return ReadAmounts(text, answer.Amounts);
        case Rest::Pieces: return ReadPieces(text, answer.Pieces);
    }
    return false;
}

std::string_view Example(Rest follows) {
    switch (follows) {
        case Rest::Nothing: return "nothing";
        case Rest::Number: return "a whole number";
        case Rest::FieldAndText: return "a field and what is typed into it, as in \"field 2 = 3\"";
        case Rest::Text: return "what is typed";
        case Rest::Amounts: return "amounts, as in \"0,2,1\"";
        case Rest::Pieces: return "pieces by clan and slot, as in \"3,1 3,2\"";
    }
    return {};
}

/// The longest spelling that a line is, or begins with before a blank; none: nullptr.
const Word* FindWord(std::string_view line) {
    const Word* found = nullptr;
    for (const Word& word : Words) {
        const bool begins = line.substr(0, word.Spelling.size()) == word.Spelling;
        const bool ends = line.size() == word.Spelling.size() ||
                          (line.size() > word.Spelling.size() && line[word.Spelling.size()] == ' ');
        if (begins && ends && (found == nullptr || found->Spelling.size() < word.Spelling.size())) {
            found = &word;
        }
    }
    return found;
}

}  // namespace

std::string AmountsText(const std::vector<int>& amounts) {
    std::string text;
    for (const int amount : amounts) {
        text += Concat(text.empty() ? "" : ",", amount);
    }
    return text;
}

std::string PiecesText(const std::vector<Answer::Piece>& pieces) {
    std::string text;
    for (const Answer::Piece& piece : pieces) {
        text += Concat(text.empty() ? "" : " ", piece.Clan, ",", piece.Amoeba);
    }
    return text;
}

std::string Answer::Text() const {
    const Word& word = WordOf(What);
    std::string rest;
    switch (word.Follows) {
        case Rest::Nothing: break;
        case Rest::Number: rest = Concat(Number); break;
        case Rest::FieldAndText: rest = Concat(Number, " = ", OnOneLine(Typed)); break;
        case Rest::Text: rest = OnOneLine(Typed); break;
        case Rest::Amounts: rest = AmountsText(Amounts); break;
        case Rest::Pieces: rest = PiecesText(Pieces); break;
    }
    return rest.empty() ? std::string(word.Spelling) : Concat(word.Spelling, " ", rest);
}

std::string Answer::Parse(std::string_view line, Answer& answer) {
    answer = {};
    const Word* word = FindWord(line);
    if (word == nullptr) {
        return Concat("\"", line, "\" is no answer; an answer begins with a word such as yes, square, eat or done");
    }
    answer.What = word->What;
    line.remove_prefix(std::min(word->Spelling.size() + 1, line.size()));
    if (!ReadRest(word->Follows, line, answer)) {
        return Concat("\"", word->Spelling, "\" is followed by ", Example(word->Follows), ", not by \"", line, "\"");
    }
    return {};
}

}  // namespace plasmos
