// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

namespace plasmos {

/// The user's home folder: what HOME names, else the account's.
std::string HomeFolder();

/// The game's data folder: what PLASMOS_DATA names ("~/" in it is the home folder), else C:\QX\Plasmo6 on Windows and
/// QX/Plasmo6 under the user's data home elsewhere (XDG_DATA_HOME, or ~/.local/share).
std::string DataFolderPath();

/// Local date and time, "YYYY-MM-DD HH:MM:SS".
std::string DateAndTime();

/// Seconds since local midnight, with fractions.
double SecondsSinceMidnight();

/// The system's number of this process.
int ProcessNumber();

/// Whether the platform has up-down controls, which the options dialog needs.
bool HasUpDownControls();

/// Holds the thread up for a number of milliseconds.
void SleepMilliseconds(int milliseconds);

}  // namespace plasmos
