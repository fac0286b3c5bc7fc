#include "platform/desktop/preference_file_watcher.h"

#include "support/qt_wait.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <cstdio>

namespace tarvo::desktop {
namespace {

class PreferenceFileWatcherTest : public testing::Test {
protected:
    static void write(const QString& path, const QByteArray& text) {
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(text);
    }
    /// As programs write: beside the file, then over it.
    void replace(const QByteArray& text) const {
        write(path + ".new", text);
        ASSERT_EQ(std::rename((path + ".new").toUtf8().constData(), path.toUtf8().constData()), 0);
    }
    bool toldTimes(int wanted) {
        return waitUntil([&] { return told >= wanted; });
    }

    QTemporaryDir folder;
    QString path = folder.filePath("tarvo/preferences.json");
    int told = 0;
};

TEST_F(PreferenceFileWatcherTest, TellsOfAFileThatIsReplacedAgainAndAgain) {
    QDir(folder.path()).mkdir("tarvo");
    write(path, "1");
    PreferenceFileWatcher watcher(path.toStdString(), [this] { ++told; });
    for (int round = 1; round <= 3; ++round) {
        replace(QByteArray::number(round));
        EXPECT_TRUE(toldTimes(round)) << round;
    }
}

TEST_F(PreferenceFileWatcherTest, TellsOfAFileThatIsWrittenInPlace) {
    QDir(folder.path()).mkdir("tarvo");
    write(path, "1");
    PreferenceFileWatcher watcher(path.toStdString(), [this] { ++told; });
    write(path, "2");
    EXPECT_TRUE(toldTimes(1));
}

TEST_F(PreferenceFileWatcherTest, TellsOnceOfWritesThatFollowEachOther) {
    QDir(folder.path()).mkdir("tarvo");
    PreferenceFileWatcher watcher(path.toStdString(), [this] { ++told; });
    for (int round = 0; round < 5; ++round)
        replace("x");
    EXPECT_TRUE(toldTimes(1));
    QTimer quiet;
    quiet.setSingleShot(true);
    quiet.start(3 * PreferenceFileWatcher::debounce);
    EXPECT_TRUE(waitUntil([&] { return !quiet.isActive(); }));
    EXPECT_EQ(told, 1);
}

TEST_F(PreferenceFileWatcherTest, NoticesAFolderThatComesIntoBeingLater) {
    PreferenceFileWatcher watcher(path.toStdString(), [this] { ++told; });
    QDir(folder.path()).mkdir("tarvo");
    EXPECT_TRUE(toldTimes(1));
    write(path, "1");
    EXPECT_TRUE(toldTimes(2));
}

} // namespace
} // namespace tarvo::desktop
