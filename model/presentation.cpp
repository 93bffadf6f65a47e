// SPDX-License-Identifier: GPL-3.0-or-later
#include "model/presentation.h"

#include "model/game_state.h"

namespace plasmos {

namespace {

[[noreturn]] void RaiseNobodyToAsk() {
    throw RuntimeError(5, "Invalid procedure call: nobody is there to be asked");
}

class SilentPresentation final : public Presentation {
public:
    bool WantsText() const override { return false; }
    void Open(Question&) override { RaiseNobodyToAsk(); }
    void Close(Question&) override {}
    void Wait() override { RaiseNobodyToAsk(); }
};

}  // namespace

Presentation& SilentBoard() {
    static SilentPresentation board;
    return board;
}

}  // namespace plasmos
