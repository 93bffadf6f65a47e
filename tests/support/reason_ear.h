// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "model/observer.h"
#include "model/services.h"

namespace plasmos::testing {

/// Listens to a game for its reasons, as long as it lives.
class ReasonEar : public Observer {
public:
    ReasonEar() { services.Listener = this; }
    ~ReasonEar() override { services.Listener = nullptr; }
    ReasonEar(const ReasonEar&) = delete;
    ReasonEar& operator=(const ReasonEar&) = delete;

    bool WantsText() const override { return false; }
    bool WantsReasons() const override { return true; }
    void OnRoll(int, int) override {}
    void OnBegin(Step, int, int) override {}
    void OnEnd(Step, int, int) override {}
    void OnReason(std::string_view sentence) override { Told.emplace_back(sentence); }
    void OnSay(std::string_view) override {}
    void OnBox(std::string_view) override {}
    void OnAsk(const Question&) override {}
    void OnAnswer(const Question&, const Answer&, bool) override {}
    void OnOver() override {}

    std::vector<std::string> Told;  ///< every sentence, in order
};

}  // namespace plasmos::testing
