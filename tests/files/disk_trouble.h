// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <unistd.h>

#include <string>
#include <vector>

#include "flow/play_game.h"
#include "model/consistency.h"
#include "model/services.h"
#include "questions/ask.h"
#include "rules/movement.h"
#include "tests/support/on_disk.h"
#include "tests/support/scripted_board.h"

namespace plasmos::testing {

inline constexpr uid_t OtherUser = 65534;

/// Whom permissions stop: another user while it lives, where the tests are run by one they do not stop.
class AsNobody {
public:
    AsNobody() : was_(geteuid()) {
        if (was_ == 0 && seteuid(OtherUser) != 0) {
            ADD_FAILURE() << "cannot become another user";
        }
    }
    ~AsNobody() {
        if (geteuid() != was_ && seteuid(was_) != 0) {
            ADD_FAILURE() << "cannot become the old user again";
        }
    }
    AsNobody(const AsNobody&) = delete;
    AsNobody& operator=(const AsNobody&) = delete;

private:
    uid_t was_;
};

class DiskTrouble : public OnDisk {
protected:
    DiskTrouble() {
        std::filesystem::permissions(Home(), std::filesystem::perms(0755));
        game.RequestedClans = 3;
        game.FastMode = true;
        board_.AnswerBy([](Question& question) { question.Put(Plain(Answer::Kind::Acknowledge)); });
    }

    /// What the person is told when a game of computer clans is played with the folder as it is; the
    /// winner is no news.
    std::vector<std::string> BoxesOfAGame() {
        services.Files = &files;
        board_.Boxes.clear();
        PlayUnattended();
        std::vector<std::string> boxes;
        for (const auto& box : board_.Boxes) {
            if (box.find(" wins!") == std::string::npos) {
                boxes.push_back(box);
            }
        }
        return boxes;
    }
    /// Two pieces that drift to the right, one square each.
    void TwoDrift() {
        NewPosition(3);
        services.Files = &files;
        game.Turn = 2;
        game.Drift = 1;
        Put(1, 1, 7);
        Put(2, 1, 9);
        MovementPhase();
        EXPECT_EQ(CheckConsistency(), "");
    }

    ScriptedBoard board_;
};

}  // namespace plasmos::testing
