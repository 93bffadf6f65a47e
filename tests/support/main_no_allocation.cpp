// SPDX-License-Identifier: GPL-3.0-or-later
// Plays games that nobody listens to and counts what they take from the heap: nothing.
#include <cstdio>
#include <cstdlib>
#include <new>

#include "flow/play_game.h"
#include "model/game_state.h"

namespace {

long taken = 0;

}  // namespace

void* operator new(std::size_t size) {
    ++taken;
    if (void* memory = std::malloc(size); memory != nullptr) {
        return memory;
    }
    throw std::bad_alloc();
}
void operator delete(void* memory) noexcept {
    std::free(memory);
}
void operator delete(void* memory, std::size_t) noexcept {
    std::free(memory);
}

int main() {
    using namespace plasmos;
    SetBoard(5, 5);
    game.FastMode = true;
    game.HasRequestedReplay = true;
    const long before = taken;
    for (int replay = 1; replay <= 400; ++replay) {
        game.RequestedReplay = static_cast<float>(replay);
        PlayUnattended();
    }
    std::printf("%ld allocations in 400 games\n", taken - before);
    return taken == before ? 0 : 1;
}
