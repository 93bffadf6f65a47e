// SPDX-License-Identifier: GPL-3.0-or-later
#include "files/platform.h"

#ifdef _WIN32
#include <process.h>
#else
#include <pwd.h>
#include <unistd.h>
#endif

#include <chrono>
#include <cstdlib>
#include <ctime>
#include <thread>

namespace plasmos {

namespace {

std::tm LocalTime(std::time_t seconds) {
    std::tm local{};
#ifdef _WIN32
    localtime_s(&local, &seconds);
#else
    localtime_r(&seconds, &local);
#endif
    return local;
}

std::string Environment(const char* name) {
    const char* value = std::getenv(name);
    return value != nullptr ? value : "";
}

}  // namespace

std::string HomeFolder() {
    if (auto home = Environment("HOME"); !home.empty()) {
        return home;
    }
#ifdef _WIN32
    return Environment("USERPROFILE");
#else
    const passwd* account = ::getpwuid(::getuid());
    return account != nullptr && account->pw_dir != nullptr ? account->pw_dir : "";
#endif
}

std::string DataFolderPath() {
    if (auto chosen = Environment("PLASMOS_DATA"); !chosen.empty()) {
        const bool atHome = chosen == "~" || chosen.substr(0, 2) == "~/";
        return atHome ? HomeFolder() + chosen.substr(1) : chosen;
    }
#ifdef _WIN32
    return "C:\\QX\\Plasmo6";
#else
    if (const auto home = Environment("XDG_DATA_HOME"); !home.empty() && home.front() == '/') {
        return home + "/QX/Plasmo6";
    }
    return HomeFolder() + "/.local/share/QX/Plasmo6";
#endif
}

std::string DateAndTime() {
    const std::tm local = LocalTime(std::time(nullptr));
    char text[32];
    return {text, std::strftime(text, sizeof text, "%Y-%m-%d %H:%M:%S", &local)};
}

double SecondsSinceMidnight() {
    using std::chrono::system_clock;
    const auto now = system_clock::now();
    const std::tm local = LocalTime(system_clock::to_time_t(now));
    const auto whole = std::chrono::time_point_cast<std::chrono::seconds>(now);
    const std::chrono::duration<double> part = now - whole;
    return local.tm_hour * 3600.0 + local.tm_min * 60.0 + local.tm_sec + part.count();
}

int ProcessNumber() {
#ifdef _WIN32
    return _getpid();
#else
    return static_cast<int>(getpid());
#endif
}

void SleepMilliseconds(int milliseconds) {
    std::this_thread::sleep_for(std::chrono::milliseconds(milliseconds));
}

}  // namespace plasmos
