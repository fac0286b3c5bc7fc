#include "platform/desktop/termination_signals.h"

#include <csignal>
#include <unistd.h>
#include <utility>

namespace tarvo::desktop {

namespace {

// A signal handler can reach nothing but what is static; it writes one byte and does no more.
int wakeUpPipe = -1;

void handle(int) {
    const char byte = 0;
    [[maybe_unused]] const auto written = ::write(wakeUpPipe, &byte, 1);
}

void setHandler(void (*handler)(int)) {
    struct sigaction action {};
    action.sa_handler = handler;
    action.sa_flags = SA_RESTART;
    for (const int number : {SIGTERM, SIGINT, SIGHUP})
        ::sigaction(number, &action, nullptr);
}

} // namespace

TerminationSignals::TerminationSignals(std::function<void()> asked) {
    signals_ = makePipe();
    if (!signals_) return;
    setNonBlocking(signals_->readEnd);
    setNonBlocking(signals_->writeEnd);
    wakeUpPipe = signals_->writeEnd.get();
    notifier_ = std::make_unique<QSocketNotifier>(signals_->readEnd.get(), QSocketNotifier::Read);
    QObject::connect(notifier_.get(), &QSocketNotifier::activated, notifier_.get(),
                     [this, asked = std::move(asked)] {
                         char byte = 0;
                         if (::read(signals_->readEnd.get(), &byte, 1) == 1) asked();
                     });
    setHandler(handle);
}

TerminationSignals::~TerminationSignals() {
    // The end is under way: who asks again, as timeout(1) does at once, must not cut it short.
    setHandler(SIG_IGN);
    wakeUpPipe = -1;
}

} // namespace tarvo::desktop
