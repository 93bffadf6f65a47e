// SPDX-License-Identifier: GPL-3.0-or-later
#include "model/switches.h"

#include <algorithm>

#include "files/text.h"
#include "model/genes.h"
#include "model/observer.h"
#include "model/presentation.h"
#include "model/services.h"

namespace plasmos {

namespace {

using Kind = Switch::Kind;

/// In the order of the kinds.
constexpr std::string_view Words[] = {"normal", "victory", "fast", "eating", "tentacle"};
constexpr std::string_view LeaveText = "leave game";

bool IsAutomatic(Kind kind) {
    return kind == Kind::Eating || kind == Kind::Tentacle;
}

void SetAutomatic(const Switch& turned) {
    const bool known = turned.Clan >= 1 && turned.Clan <= game.NumPlayers && !game.Players[turned.Clan].IsComputer;
    const bool tentacle = turned.What == Kind::Tentacle;
    if (!known || (tentacle && turned.On && !HasGene(turned.Clan, "ten"))) {
        return;
    }
    game.AutoFlags[turned.Clan][tentacle ? 2 : 1] = turned.On;
    Show(&Presentation::ShowAutoFlags, turned.Clan);
}

void Apply(const Switch& turned) {
    switch (turned.What) {
        case Kind::Normal: game.Menu.normmen = turned.On; break;
        case Kind::Victory: game.Menu.victorymen = turned.On; break;
        case Kind::FastMode: game.FastMode = turned.On; break;
        case Kind::Eating:
        case Kind::Tentacle: SetAutomatic(turned); break;
        case Kind::Leave: throw GameLeft{};
    }
}

std::string_view TakeWord(std::string_view& line) {
    const auto end = std::min(line.find(' '), line.size());
    const auto word = line.substr(0, end);
    line.remove_prefix(std::min(end + 1, line.size()));
    return word;
}

/// A clan's number is one digit.
bool ReadClan(std::string_view word, int& clan) {
    clan = word.size() == 1 ? word.front() - '0' : 0;
    return clan >= 1 && clan <= MaxClans;
}

bool ReadOn(std::string_view word, bool& on) {
    on = word == "on";
    return on || word == "off";
}

}  // namespace

std::string Switch::Text() const {
    if (What == Kind::Leave) {
        return std::string(LeaveText);
    }
    const auto word = Words[static_cast<std::size_t>(What)];
    const auto state = On ? " on" : " off";
    return IsAutomatic(What) ? Concat("set ", word, " ", Clan, state) : Concat("set ", word, state);
}

std::string Switch::Parse(std::string_view line, Switch& read) {
    read = {};
    if (line == LeaveText) {
        return {};
    }
    auto rest = line;
    const bool sets = TakeWord(rest) == "set";
    const auto* found = std::find(std::begin(Words), std::end(Words), TakeWord(rest));
    if (!sets || found == std::end(Words)) {
        return Concat("\"", line, "\" is no switch; these are \"", LeaveText,
                      R"(", and "set" with normal, victory, fast, eating or tentacle)");
    }
    read.What = static_cast<Kind>(found - std::begin(Words));
    const bool clan = !IsAutomatic(read.What) || ReadClan(TakeWord(rest), read.Clan);
    if (clan && ReadOn(rest, read.On)) {
        return {};
    }
    return Concat("\"set ", *found, "\" is followed by ", IsAutomatic(read.What) ? "a clan's number and " : "",
                  R"("on" or "off", not as in ")", line, "\"");
}

void SwitchQueue::Add(const Switch& turned) {
    const auto* end = std::remove_if(std::begin(waiting_), std::begin(waiting_) + count_, [&](const Switch& waiting) {
        return waiting.What == turned.What && waiting.Clan == turned.Clan;
    });
    count_ = static_cast<int>(end - std::begin(waiting_));
    if (count_ < Most) {
        waiting_[count_++] = turned;
    }
}

Switch SwitchQueue::Next() {
    const Switch oldest = waiting_[0];
    std::copy(std::begin(waiting_) + 1, std::begin(waiting_) + count_, std::begin(waiting_));
    --count_;
    return oldest;
}

const Switch* SwitchQueue::Find(Switch::Kind kind, int clan) const {
    const auto* end = std::begin(waiting_) + count_;
    const auto* found = std::find_if(
        std::begin(waiting_), end, [&](const Switch& waiting) { return waiting.What == kind && waiting.Clan == clan; });
    return found != end ? found : nullptr;
}

bool WantsFastMode() {
    const Switch* waiting = services.Switches.Find(Kind::FastMode, 0);
    return waiting != nullptr ? waiting->On : game.FastMode;
}

bool WantsAutomatic(int clan, Switch::Kind kind) {
    const Switch* waiting = services.Switches.Find(kind, clan);
    return waiting != nullptr ? waiting->On : game.AutoFlags[clan][kind == Kind::Tentacle ? 2 : 1];
}

void SettleSwitches() {
    while (!services.Switches.Empty()) {
        if (const Switch turned = services.Switches.Next(); turned.What != Kind::Leave) {
            Apply(turned);
        }
    }
}

void TakeSwitches(TakenAt place) {
    while (!services.Switches.Empty()) {
        const Switch turned = services.Switches.Next();
        if (services.Listener != nullptr) {
            services.Listener->OnSwitch(turned, place);
        }
        Apply(turned);
    }
}

}  // namespace plasmos
