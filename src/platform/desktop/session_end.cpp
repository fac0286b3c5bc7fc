#include "platform/desktop/session_end.h"

#include "platform/desktop/logging.h"

#include <QGuiApplication>
#include <QSessionManager>

#include <cstdlib>
#include <utility>

namespace tarvo::desktop {

namespace {

// Qt ends the process with exit() when the window system is gone, and what that calls can reach nothing but
// what is static.
SessionEnd* current = nullptr;

} // namespace

SessionEnd::SessionEnd(std::function<void()> save) : save_(std::move(save)) {
    connect(qGuiApp, &QGuiApplication::commitDataRequest, this, &SessionEnd::commitData,
            Qt::DirectConnection);
    // Whether the program starts with the next session is the user's choice, not the session manager's.
    connect(
        qGuiApp, &QGuiApplication::saveStateRequest, this,
        [](QSessionManager& manager) { manager.setRestartHint(QSessionManager::RestartNever); },
        Qt::DirectConnection);
    [[maybe_unused]] static const bool once = std::atexit(&SessionEnd::leaveAfterSaving) == 0;
    current = this;
}

SessionEnd::~SessionEnd() {
    current = nullptr;
}

void SessionEnd::commitData() {
    qCDebug(sessionLog, "asked to save");
    save_();
}

void SessionEnd::leaveAfterSaving() {
    if (!current) return;
    current->save_();
    std::_Exit(EXIT_SUCCESS);
}

} // namespace tarvo::desktop
