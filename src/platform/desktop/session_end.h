#pragma once

#include <QObject>

#include <functional>

class QSessionManager;

namespace tarvo::desktop {

/// What the program does when the desktop session ends around it. One object at a time, made after the
/// QApplication; main thread only.
class SessionEnd : public QObject {
    Q_OBJECT

public:
    /// `save` writes what is not saved yet. It is called when a session manager asks for it, and when the
    /// window system is gone; in that case the process then ends with status 0, since nothing in it is at
    /// fault.
    explicit SessionEnd(std::function<void()> save);
    ~SessionEnd() override;

private:
    void commitData();
    static void leaveAfterSaving();

    std::function<void()> save_;
};

} // namespace tarvo::desktop
