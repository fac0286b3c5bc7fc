#pragma once

#include <QFileSystemWatcher>
#include <QString>
#include <QTimer>

#include <functional>
#include <string>

namespace tarvo::desktop {

/// Tells when the preference file was written, by this program or another, a moment after the last of several
/// writes. The file and its folder may come into being later, and the file may be replaced. Main thread only.
class PreferenceFileWatcher {
public:
    static constexpr std::chrono::milliseconds debounce{100};

    PreferenceFileWatcher(const std::string& path, std::function<void()> written);

private:
    void watch();

    QString path_;
    QString folder_;
    QFileSystemWatcher watcher_;
    QTimer quiet_;
};

} // namespace tarvo::desktop
