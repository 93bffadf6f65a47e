# SPDX-License-Identifier: GPL-3.0-or-later
#
# The library headers that many files of a library read are read once for it: what is compiled from
# nothing takes a third of the time. clang++ compiles without them, which shows that no file forgets an include.
set(plasmos_window_headers
    <algorithm> <array> <cmath> <functional> <memory> <optional> <string> <string_view> <utility> <vector>
    <QAccessible> <QAccessibleWidget> <QAction> <QApplication> <QBoxLayout> <QEvent> <QFontMetricsF> <QGridLayout> <QIcon>
    <QImage> <QKeyEvent> <QLabel> <QMenu> <QMessageBox> <QMouseEvent> <QObject> <QPainter> <QPainterPath> <QPixmap>
    <QPushButton> <QScreen> <QSettings> <QString> <QStyle> <QTimer> <QToolTip> <QVariantAnimation> <QWidget>)
set(plasmos_case_headers <algorithm> <functional> <string> <vector> <gmock/gmock.h>)
set(plasmos_window_case_headers ${plasmos_window_headers} <gmock/gmock.h>
    <QDir> <QElapsedTimer> <QFile> <QLineEdit> <QMenuBar> <QProcess> <QTest> <QTextEdit> <QWindow>)

# plasmos_precompile(TARGET HEADER...) or plasmos_precompile(TARGET REUSE_FROM OTHER)
function(plasmos_precompile target)
    if(CMAKE_DISABLE_PRECOMPILE_HEADERS OR NOT CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
        return()
    endif()
    if(ARGV1 STREQUAL "REUSE_FROM")
        target_precompile_headers(${target} ${ARGN})
    else()
        target_precompile_headers(${target} PRIVATE ${ARGN})
    endif()
    # Precompiled, <string> is no longer a system header to g++ 12, which then sees overflows where
    # short literals are joined; ccache asks for the other one.
    target_compile_options(${target} PRIVATE -Wno-array-bounds -Wno-stringop-overflow -fpch-preprocess)
endfunction()
