#include "platform/linux/network_mount_probe.h"

#include "support/manual_clock.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <atomic>
#include <future>

namespace tarvo::linux_platform {

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

using namespace std::chrono_literals;

// A server that answers for every path but "/dead", for which it waits until it is let go.
class Server {
public:
    MeasureFileSystem measure() {
        return [state = state_](const std::string& path) -> std::optional<FileSystemSize> {
            ++state->calls;
            if (path == "/dead") state->released.wait();
            return FileSystemSize{1, 2};
        };
    }
    void release() { release_.set_value(); }
    int calls() const { return state_->calls; }

private:
    struct State {
        explicit State(std::promise<void>& promise) : released(promise.get_future().share()) {}
        std::shared_future<void> released;
        std::atomic<int> calls = 0;
    };
    std::promise<void> release_;
    std::shared_ptr<State> state_ = std::make_shared<State>(release_);
};

constexpr FileSystemSize answer{1, 2};

} // namespace

TEST(NetworkMountProbe, HandsOutTheAnswersInOrder) {
    ManualClock clock;
    NetworkMountProbe probe(
        clock,
        [](const std::string& path) {
            return FileSystemSize{path.size(), 100};
        },
        1min);
    EXPECT_THAT(probe.measure({"/abc", "/a"}), ElementsAre(FileSystemSize{4, 100}, FileSystemSize{2, 100}));
    EXPECT_THAT(probe.measure({}), IsEmpty());
}

TEST(NetworkMountProbe, LeavesOutWhatDoesNotAnswerAndLeavesItAlone) {
    ManualClock clock;
    Server server;
    NetworkMountProbe probe(clock, server.measure(), 0ms);
    EXPECT_THAT(probe.measure({"/dead"}), ElementsAre(std::nullopt));
    clock.advance(59s);
    EXPECT_THAT(probe.measure({"/dead"}), ElementsAre(std::nullopt));
    clock.advance(2s);
    // Still waiting for the first answer: no second thread is sent after it.
    EXPECT_THAT(probe.measure({"/dead"}), ElementsAre(std::nullopt));
    server.release();
    EXPECT_LE(server.calls(), 1);
}

TEST(NetworkMountProbe, TakesALateAnswerOnceTheMinuteIsOver) {
    ManualClock clock;
    Server server;
    NetworkMountProbe probe(clock, server.measure(), 0ms);
    EXPECT_THAT(probe.measure({"/dead"}), ElementsAre(std::nullopt));
    server.release();
    std::optional<FileSystemSize> size;
    while (!size) {
        clock.advance(61s);
        size = probe.measure({"/dead"}).at(0);
    }
    EXPECT_EQ(size, answer);
    EXPECT_EQ(server.calls(), 1);
}

} // namespace tarvo::linux_platform
