#include "platform/desktop/preference_file_watcher.h"

#include <QFileInfo>

#include <utility>

namespace tarvo::desktop {

namespace {

/// The folder itself, or the nearest one above it that exists.
QString existing(QString folder) {
    while (!QFileInfo::exists(folder)) {
        const QString above = QFileInfo(folder).path();
        if (above == folder) break;
        folder = above;
    }
    return folder;
}

} // namespace

PreferenceFileWatcher::PreferenceFileWatcher(const std::string& path, std::function<void()> written)
    : path_(QString::fromStdString(path)), folder_(QFileInfo(path_).path()) {
    quiet_.setSingleShot(true);
    quiet_.setInterval(debounce);
    QObject::connect(&quiet_, &QTimer::timeout, &quiet_, [this, written = std::move(written)] {
        watch();
        written();
    });
    const auto restart = [this] { quiet_.start(); };
    QObject::connect(&watcher_, &QFileSystemWatcher::fileChanged, &quiet_, restart);
    QObject::connect(&watcher_, &QFileSystemWatcher::directoryChanged, &quiet_, restart);
    watch();
}

// A watched file that is replaced is watched no longer, and a missing folder appears in the one above it.
void PreferenceFileWatcher::watch() {
    const QString folder = existing(folder_);
    if (!watcher_.directories().contains(folder)) {
        if (!watcher_.directories().isEmpty()) watcher_.removePaths(watcher_.directories());
        watcher_.addPath(folder);
    }
    if (QFileInfo::exists(path_) && !watcher_.files().contains(path_)) watcher_.addPath(path_);
}

} // namespace tarvo::desktop
