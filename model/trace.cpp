// SPDX-License-Identifier: GPL-3.0-or-later
#include "model/trace.h"

#include <cstdio>
#include <new>

#include "files/game_files.h"
#include "files/platform.h"
#include "model/dice.h"
#include "model/services.h"

namespace plasmos {

namespace {

constexpr int Tries = 3;
constexpr int PauseBetweenTries = 50;

/// Somebody may have deleted the folder since the game began.
void MakeFolderAgain() {
    try {
        services.Files->MakeFolder();
    } catch (const RuntimeError&) {
        // The next try names what is wrong with the file itself.
    }
}

void AppendWithPatience(std::string_view file, const std::string& text) {
    WriteWithPatience([&] { services.Files->Append(file, text); });
}

}  // namespace

void WriteWithPatience(const std::function<void()>& write) {
    for (int tried = 1;; ++tried) {
        try {
            write();
            return;
        } catch (const RuntimeError&) {
            if (tried == Tries) {
                throw;
            }
        }
        SleepMilliseconds(PauseBetweenTries);
        MakeFolderAgain();
    }
}

void WriteTrace(std::string_view text, std::string_view kind) {
    if (!TracesAreKept() || kind == "crt") {
        return;
    }
    const bool random = kind == "rnd" || kind == "rand";
    AppendWithPatience(random ? RandomFile : MoveFile, Concat(text, "\n"));
}

void EmptyMoveFile() {
    if (TracesAreKept()) {
        services.Files->Rewrite(MoveFile, {});
    }
}

std::string ErrorRecord(const RuntimeError& error, int clan, int amoeba) {
    const bool known = clan >= 0 && clan <= MaxClans;
    const auto name = known ? game.Players[clan].Name.String() : std::string();
    return Concat("ReplayNo: ", ReplayText(game.ReplayNo), "\n", "Player: ", clan, " (", name, ")  Moeba: ", amoeba,
                  "\n", "Turn: ", game.Turn, "   No. Players: ", game.NumPlayers, "\n", "Error #", error.Number, ": ",
                  error.what(), "\n\n\n");
}

void AppendErrorRecord(const RuntimeError& error, int clan, int amoeba) {
    std::string record;
    try {
        record = ErrorRecord(error, clan, amoeba);
        if (TracesAreKept()) {
            AppendWithPatience(ErrorFile, record);
            return;
        }
    } catch (const std::exception& refused) {
        std::fprintf(stderr, "%s: %s\n", ErrorFile.data(), refused.what());
    }
    std::fputs(record.empty() ? error.what() : record.c_str(), stderr);
}

void WriteErrorRecord(const RuntimeError& error, int clan, int amoeba) {
    AppendErrorRecord(error, clan, amoeba);
    throw ProgramEnd{1};
}

RuntimeError CurrentError() {
    try {
        throw;
    } catch (const RuntimeError& error) {
        return error;
    } catch (const std::bad_alloc&) {
        return {7, "Out of memory"};
    } catch (const std::exception& error) {
        return {51, Concat("Internal error: ", std::string_view(error.what()))};
    }
}

}  // namespace plasmos
