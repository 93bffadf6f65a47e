// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/app/end_signals.h"

#ifdef _WIN32
namespace plasmos {
struct EndSignals::Pipe {};
EndSignals::EndSignals(std::function<void()>) {}
EndSignals::~EndSignals() = default;
}  // namespace plasmos
#else

#include <sys/socket.h>
#include <unistd.h>

#include <QSocketNotifier>
#include <cerrno>
#include <csignal>
#include <utility>

#include "files/process.h"

namespace plasmos {

namespace {

// The writing end for the handler, which may do no more than write.
volatile std::sig_atomic_t writingEnd = -1;

void OnSignal(int) {
    const int reason = errno;
    const char byte = 1;
    const auto written = ::write(static_cast<int>(writingEnd), &byte, 1);
    static_cast<void>(written);
    errno = reason;
}

}  // namespace

struct EndSignals::Pipe {
    int Ends[2] = {-1, -1};
    std::unique_ptr<QSocketNotifier> Notifier;
};

EndSignals::EndSignals(std::function<void()> onEnd) : pipe_(std::make_unique<Pipe>()) {
    if (::socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, pipe_->Ends) != 0) {
        return;
    }
    pipe_->Notifier = std::make_unique<QSocketNotifier>(pipe_->Ends[1], QSocketNotifier::Read);
    QObject::connect(pipe_->Notifier.get(), &QSocketNotifier::activated,
                     [from = pipe_->Ends[1], end = std::move(onEnd)] {
                         char byte = 0;
                         if (::read(from, &byte, 1) == 1) {
                             end();
                         }
                     });
    writingEnd = pipe_->Ends[0];
    CatchEndSignals(OnSignal);
}

EndSignals::~EndSignals() {
    ReleaseEndSignals();
    writingEnd = -1;
    pipe_->Notifier.reset();
    for (const int end : pipe_->Ends) {
        if (end >= 0) {
            ::close(end);
        }
    }
}

}  // namespace plasmos

#endif
