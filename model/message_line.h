// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>

#include "model/game_state.h"

namespace plasmos {

// The message line, whose text the state holds. Whatever replaces its text goes through here, and first makes up the
// pause that the text is still owed: a statement stands for 4 pause units, one that concerns a person's clan for 10,
// and the pauses that the rules take while it stands count. What a question shows is read when it is answered and owes
// nothing. In fast mode and without a window nothing is made up.

/// Time to read what a computer clan tells in, in pause units.
inline constexpr int TellingPause = 4;
/// Time to read what concerns a person's clan in, in pause units.
inline constexpr int StatementPause = 10;

/// A statement in the colours of a clan, which it concerns.
void ShowStatement(std::string_view text, int clan);

/// A statement below what stands there; the time of the whole begins anew.
void AddStatement(std::string_view text, int clan);

/// What has just been stated concerns this clan, too.
void Concern(int clan);

/// What a question shows. A text that begins with what stands there leaves that where it is; a line
/// break at the beginning is not shown.
void ShowQuestionText(std::string_view text, int clan);

/// A text that stood there before a question has it again.
void PutBackMessage(const std::string& before, int clan);

/// A game begins: no text stands there any more, whatever is shown.
inline void ForgetMessage() {
    game.Message = "";
}

/// The message line without text.
void ClearMessage();

/// A text as a new line below what the message line shows.
std::string BelowMessage(std::string_view text);

/// Makes up the pause that the text is still owed.
void LetMessageBeRead();

/// A person has answered: what stands in the message line has been read.
inline void MessageIsRead() {
    game.PauseOwed = game.MessageUnits = 0;
}

/// A pause of the rules.
void TakePause(int units);

}  // namespace plasmos
