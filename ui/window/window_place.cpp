// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/window/window_place.h"

#include <QGuiApplication>
#include <QScreen>
#include <QTimer>
#include <QWidget>
#include <QWindow>
#include <algorithm>

#include "files/settings_store.h"
#include "files/text.h"
#include "model/services.h"
#include "ui/look/palette.h"

namespace plasmos {

namespace {

constexpr QSize UsualSize(1320, 860);
constexpr QSize LeastSize(720, 400);
constexpr int FrameKnown = 300;
constexpr int FarthestPixel = 100000;

}  // namespace

WindowPlace::WindowPlace(QWidget& window) : window_(&window) {}

void WindowPlace::Load() {
    QScreen* screen = QGuiApplication::primaryScreen();
    const QRect space = screen != nullptr ? screen->availableGeometry() : QRect(QPoint(0, 0), UsualSize);
    const QSize most = space.size() - UsualFrame;
    const QSize least = LeastSize.boundedTo(most);
    window_->setMinimumSize(least);
    QSize size = UsualSize.boundedTo(most);
    if (services.Settings == nullptr) {
        window_->resize(size);
        return;
    }
    const SettingsStore& store = *services.Settings;
    const int left = GetNumber(store, "board", "left", FarthestPixel, -FarthestPixel, FarthestPixel);
    const int top = GetNumber(store, "board", "top", FarthestPixel, -FarthestPixel, FarthestPixel);
    size.setWidth(GetNumber(store, "board", "width", size.width(), least.width(), most.width()));
    size.setHeight(GetNumber(store, "board", "height", size.height(), least.height(), most.height()));
    window_->resize(size);
    const QRect title(left, top, size.width(), 30);
    const auto screens = QGuiApplication::screens();
    const bool seen = std::any_of(screens.begin(), screens.end(), [&title](const QScreen* one) {
        const QRect shared = one->availableGeometry().intersected(title);
        return shared.width() >= 60 && shared.height() >= 10;
    });
    if (seen) {
        window_->move(left, top);
    }
}

// The window's frame is known only after the window is there, and the free area may change.
void WindowPlace::Watch() {
    if (watching_) {
        return;
    }
    watching_ = true;
    for (const int milliseconds : {0, FrameKnown}) {
        QTimer::singleShot(milliseconds, this, [this] { KeepOnScreen(); });
    }
    const auto watch = [this](QScreen* screen) {
        if (screen != nullptr) {
            connect(screen, &QScreen::availableGeometryChanged, this, &WindowPlace::KeepOnScreen, Qt::UniqueConnection);
            KeepOnScreen();
        }
    };
    connect(window_->windowHandle(), &QWindow::screenChanged, this, watch);
    watch(window_->screen());
}

void WindowPlace::KeepOnScreen() {
    if (window_->screen() == nullptr || window_->isMaximized() || window_->isFullScreen() || window_->isMinimized()) {
        return;
    }
    const QRect space = window_->screen()->availableGeometry();
    const QSize most = space.size() - (window_->frameGeometry().size() - window_->size());
    window_->setMinimumSize(LeastSize.boundedTo(most));
    if (window_->size().boundedTo(most) == window_->size()) {
        return;
    }
    window_->resize(window_->size().boundedTo(most));
    const QRect frame = window_->frameGeometry();
    window_->move(std::max(space.left(), std::min(frame.left(), space.right() + 1 - frame.width())),
                  std::max(space.top(), std::min(frame.top(), space.bottom() + 1 - frame.height())));
}

void WindowPlace::Save() {
    if (services.Settings == nullptr || window_->isMinimized()) {
        return;
    }
    QRect place(window_->pos(), window_->size());
    if (window_->isMaximized() || window_->isFullScreen()) {
        const QPoint frame = window_->geometry().topLeft() - window_->pos();
        place = window_->normalGeometry().translated(-frame);
    }
    const std::pair<const char*, int> values[] = {
        {"left", place.x()}, {"top", place.y()}, {"width", place.width()}, {"height", place.height()}};
    for (const auto& [key, value] : values) {
        if (!services.Settings->Save("board", key, Concat(value))) {
            qWarning("The window's position could not be saved in %s", services.Settings->Where().c_str());
            return;
        }
    }
}

}  // namespace plasmos
