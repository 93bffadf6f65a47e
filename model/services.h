// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace plasmos {

class Presentation;
class Observer;
class GameFiles;
class SettingsStore;
class DiceTape;

/// Whom the games of a thread talk to. It stands beside the state, which points nowhere outside itself and
/// can be copied, kept and compared.
struct Services {
    Presentation* Window = nullptr;     ///< nobody: nothing is shown and nobody can be asked
    Observer* Listener = nullptr;       ///< hears rolls, steps and lines; may be nobody
    GameFiles* Files = nullptr;         ///< nobody: no file is read or written
    SettingsStore* Settings = nullptr;  ///< nobody: every setting has its default
    DiceTape* Tape = nullptr;           ///< recorded rolls instead of the generator's; may be none
};

/// The services of this thread.
extern constinit thread_local Services services;

}  // namespace plasmos
