// SPDX-License-Identifier: GPL-3.0-or-later
#include <algorithm>

#include "files/encoding.h"
#include "files/strings.h"
#include "model/board_size.h"
#include "model/dice.h"
#include "model/game_state.h"
#include "record/game_record.h"
#include "record/record_words.h"

namespace plasmos {

namespace {

constexpr std::size_t LongestLine = 8000;  // a lost line names a file

class Reader {
public:
    explicit Reader(std::string_view text) : rest_(text) {}

    ReadRecord Read() {
        if (ReadHead()) {
            read_.HasHead = true;
            ReadInputs();
        }
        return std::move(read_);
    }

private:
    enum class Found { Line, CutOff, Nothing };

    /// The next line that counts. One without its end may be the beginning of another one.
    Found Next() {
        while (!rest_.empty()) {
            ++number_;
            const auto end = rest_.find('\n');
            line_ = rest_.substr(0, end);
            rest_.remove_prefix(std::min(line_.size() + 1, rest_.size()));
            if (!line_.empty() && line_.back() == '\r') {
                line_.remove_suffix(1);
            }
            if (end == std::string_view::npos) {
                return Found::CutOff;
            }
            if (!line_.empty() && line_.front() != '#') {
                return Found::Line;
            }
        }
        return Found::Nothing;
    }

    bool Fail(std::string text) {
        read_.Fault = {number_, std::move(text)};
        return false;
    }

    bool FailExpecting(std::string_view expected) {
        return Fail(Concat("\"", Shown(line_), "\" stands where ", expected, " was expected"));
    }

    bool NextOfHead(std::string_view expected) {
        if (Next() != Found::Line) {
            number_ += number_ == 0 ? 1 : 0;
            return Fail(Concat("the record ends where ", expected, " was expected"));
        }
        return IsValidUtf8(line_) || Fail("this is no text in UTF-8, which a record is");
    }

    /// A line of a word and a whole number within bounds.
    bool ReadNumber(std::string_view word, int least, int most, int& number) {
        const auto expected = Concat("\"", word, "\" with a number from ", least, " to ", most);
        if (!NextOfHead(expected)) {
            return false;
        }
        auto line = line_;
        const bool fits = TakeWord(line, word) && TakeNumber(line, number) && line.empty();
        return (fits && number >= least && number <= most) || FailExpecting(expected);
    }

    /// A line of a word and one of two others.
    bool ReadChoice(std::string_view word, std::string_view yes, std::string_view no, bool& chosen) {
        const auto expected = Concat("\"", word, " ", yes, "\" or \"", word, " ", no, "\"");
        if (!NextOfHead(expected)) {
            return false;
        }
        chosen = line_ == Concat(word, " ", yes);
        return chosen || line_ == Concat(word, " ", no) || FailExpecting(expected);
    }

    bool ReadFirstLines() {
        if (!NextOfHead(Concat("\"", FirstLine, "\""))) {
            return false;
        }
        if (line_ != FirstLine) {
            return Fail(Concat("this is no game that was saved: it begins with \"", Shown(line_), "\" and not with \"",
                               FirstLine, "\""));
        }
        if (!NextOfHead("\"rules\" with a number")) {
            return false;
        }
        auto line = line_;
        if (!TakeWord(line, "rules") || !TakeNumber(line, Head().Rules) || !line.empty()) {
            return FailExpecting("\"rules\" with a number");
        }
        return Head().Rules == RulesVersion ||
               Fail(Concat("the game was played by version ", Head().Rules,
                           " of the rules; this program plays version ", RulesVersion, ", and only that"));
    }

    bool ReadReplay() {
        constexpr std::string_view expected = R"("replay" with the replay number)";
        if (!NextOfHead(expected)) {
            return false;
        }
        auto line = line_;
        return (TakeWord(line, "replay ") && ParseReplayNumber(line, Head().ReplayNo)) || FailExpecting(expected);
    }

    bool ReadBoard() {
        if (!ReadNumber("rows", MinSide, MaxSide, Head().Rows) ||
            !ReadNumber("columns", MinSide, MaxSide, Head().Cols)) {
            return false;
        }
        const int squares = Head().Rows * Head().Cols;
        const auto expected =
            Concat(R"("blocks none" or "blocks" with squares 1 to )", squares, ", ascending, each followed by \":\"");
        if (!NextOfHead(expected)) {
            return false;
        }
        auto line = line_;
        if (!TakeWord(line, "blocks ")) {
            return FailExpecting(expected);
        }
        if (line != "none") {
            Head().Blocks = ParseBlocks(line, squares);
            if (line.empty() || BlocksText(Head().Blocks) != line ||
                !std::is_sorted(Head().Blocks.begin(), Head().Blocks.end())) {
                return FailExpecting(expected);
            }
        }
        const auto fault = BoardFault({Head().Rows, Head().Cols, Head().Blocks});
        return fault.empty() || Fail(fault);
    }

    bool ReadClans() {
        constexpr std::string_view expected = R"("clans" with a number from 3 to 6 and "given", "rolled" or "asked")";
        if (!NextOfHead(expected)) {
            return false;
        }
        auto line = line_;
        if (!TakeWord(line, "clans") || !TakeNumber(line, Head().Clans) || !TakeWord(line, " ") ||
            Head().Clans < MinClans || Head().Clans > MaxClans) {
            return FailExpecting(expected);
        }
        const auto* how = std::find(std::begin(HowWords), std::end(HowWords), line);
        if (how == std::end(HowWords)) {
            return FailExpecting(expected);
        }
        Head().How = static_cast<RecordHead::ClansAre>(how - std::begin(HowWords));
        const bool asked = Head().How == RecordHead::ClansAre::Asked;
        const bool rolled = Head().How == RecordHead::ClansAre::Rolled;
        return (Head().Persons == 0 ? !asked : !rolled) ||
               Fail("a person is asked for the number of clans, and without a person it is rolled");
    }

    static bool IsName(const std::string& name, int most) {
        return !Trim(name).empty() && OneLine(name) == name && static_cast<int>(name.size()) <= most;
    }

    bool TakeNames(std::string_view line, int clan) {
        const int pieces = Head().Clans >= 5 ? MaxPieces - 1 : MaxPieces;
        DealtNames::OfClan dealt;
        bool sound = TakeWord(line, Concat("names ", clan, " of")) && TakeNumber(line, dealt.Choice) &&
                     dealt.Choice >= pieces && dealt.Choice <= 10000 && TakeQuoted(line, dealt.Name) &&
                     TakeWord(line, ":") && IsName(dealt.Name, 4 * LongestClanName) &&
                     FirstCharacters(dealt.Name, LongestClanName) == dealt.Name;
        for (int piece = 1; sound && piece <= pieces; ++piece) {
            dealt.Pieces.emplace_back();
            sound = TakeQuoted(line, dealt.Pieces.back()) && IsName(dealt.Pieces.back(), LongestPieceName);
        }
        Head().Names.Clans.push_back(std::move(dealt));
        return sound && line.empty();
    }

    bool ReadNames() {
        for (int clan = 1; clan <= Head().Clans; ++clan) {
            const auto expected = Concat(
                "\"names ", clan, R"( of", how many there were to choose from, the clan's name in quotes, ":" and )",
                Head().Clans >= 5 ? MaxPieces - 1 : MaxPieces, " names in quotes");
            if (!NextOfHead(expected) || !(TakeNames(line_, clan) || FailExpecting(expected))) {
                return false;
            }
        }
        return true;
    }

    bool ReadHead() {
        if (!ReadFirstLines() || !ReadReplay() || !ReadBoard() || !ReadNumber("persons", 0, 2, Head().Persons) ||
            !ReadChoice("difficulty", "normal", "easy", Head().Normal) ||
            !ReadChoice("victory", "on", "off", Head().Victory) || !ReadChoice("fast", "on", "off", Head().Fast) ||
            !ReadClans() || !ReadNames() || !NextOfHead("\"inputs\"")) {
            return false;
        }
        return line_ == "inputs" || FailExpecting("\"inputs\"");
    }

    /// Refused was the latest answer; switches are taken whenever they come.
    bool Refuse() {
        auto& inputs = read_.Record.Inputs;
        const auto answer =
            std::find_if(inputs.rbegin(), inputs.rend(), [](const Input& each) { return each.IsAnswer(); });
        if (answer == inputs.rend() || answer->Refused) {
            return Fail(R"("refused" stands below an answer, once)");
        }
        answer->Refused = true;
        return true;
    }

    bool ReadInput(Input& input) {
        if (!IsValidUtf8(line_) || line_.size() > LongestLine) {
            return Fail(Concat("an input is a text in UTF-8 of at most ", LongestLine, " bytes"));
        }
        const auto fault = Input::Parse(line_, input);
        return fault.empty() || Fail(OneLine(fault));
    }

    /// What was taken back since does not count.
    bool TakeBack(std::string_view line) {
        int count = 0;
        auto& inputs = read_.Record.Inputs;
        if (!TakeNumber(line, count) || !line.empty() || count < 0 || count > static_cast<int>(inputs.size())) {
            return Fail(Concat("\"back to\" is followed by a number of inputs, here 0 to ", inputs.size()));
        }
        inputs.resize(static_cast<std::size_t>(count));
        read_.Lines.resize(static_cast<std::size_t>(count));
        return true;
    }

    void ReadInputs() {
        for (;;) {
            const Found found = Next();
            if (found == Found::CutOff) {
                Fail(Concat("the record is cut off in the middle of \"", Shown(line_), "\""));
                read_.CutOff = true;
            }
            if (found != Found::Line) {
                return;
            }
            if (!ReadLine()) {
                return;
            }
        }
    }

    bool ReadLine() {
        auto& inputs = read_.Record.Inputs;
        if (line_ == "refused") {
            return Refuse();
        }
        if (line_ == CountedLine.substr(0, CountedLine.size() - 1)) {
            read_.Counted = true;
            return true;
        }
        if (auto line = line_; TakeWord(line, "back to")) {
            return TakeBack(line);
        }
        if (!inputs.empty() && LeavesGame(inputs.back())) {
            return Fail(Concat("the person has left the game above, and \"", Shown(line_), "\" comes later"));
        }
        Input input;
        if (!ReadInput(input)) {
            return false;
        }
        inputs.push_back(std::move(input));
        read_.Lines.push_back(number_);
        return true;
    }

    RecordHead& Head() { return read_.Record.Head; }

    std::string_view rest_;
    std::string_view line_;
    int number_ = 0;
    ReadRecord read_;
};

}  // namespace

ReadRecord ParseRecord(std::string_view text) {
    return Reader(text).Read();
}

}  // namespace plasmos
