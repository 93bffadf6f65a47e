// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QApplication>
#include <QTemporaryDir>
#include <QTest>

#include "ui/look/palette.h"

namespace plasmos::testing {

/// All files of window tests are in one executable, and each is run in a process of its own, by its name:
/// `ui_tests why_test [what Qt Test understands]`. A file may have further programs, which its tests start.
class WindowProgram {
public:
    using Main = int (*)(int, char**);
    WindowProgram(const char* name, Main main);
};

/// Without a screen of its own a test gets one in memory: PLASMOS_SCREEN names it (1024x600, with a window's
/// frame around the window), else it is large.
void ChooseScreen();

/// Runs the tests of a class off the screen, away from the user's own settings and desktop.
template <class Tests>
int RunWindowTests(int argc, char** argv) {
    ChooseScreen();
    const QTemporaryDir home;
    qputenv("XDG_CONFIG_HOME", home.path().toLocal8Bit());
    qputenv("XDG_DATA_HOME", home.path().toLocal8Bit());
    qputenv("DBUS_SESSION_BUS_ADDRESS", "disabled:");
    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    PrepareApplication();
    Tests tests;
    return QTest::qExec(&tests, argc, argv);
}

}  // namespace plasmos::testing

/// The class of tests in a file; `name` is the file's.
#define WINDOW_TESTS(name, Class) static const WindowProgram name##_program(#name, &RunWindowTests<Class>);
