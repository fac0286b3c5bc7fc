#pragma once

#include "platform/dispatcher.h"

#include <functional>
#include <memory>
#include <utility>

namespace tarvo::ui {

/// Reads something without keeping the main thread, and then calls `done` once on it.
template <typename Result>
using Loader = std::function<void(std::function<void(Result)> done)>;

/// A loader that runs `read` on a background thread. The dispatcher outlives what is under way.
template <typename Result>
Loader<Result> inBackground(Dispatcher& dispatcher, std::function<Result()> read) {
    return [&dispatcher, read = std::move(read)](std::function<void(Result)> done) {
        dispatcher.global(QualityOfService::userInitiated, [&dispatcher, read, done = std::move(done)] {
            auto result = std::make_shared<Result>(read());
            dispatcher.async([done, result] { done(std::move(*result)); });
        });
    };
}

/// One view's loading: at most one is under way, and what comes after the view is gone is dropped. Main
/// thread only.
template <typename Result>
class Loading {
public:
    /// `changed` is called when loading begins and when it has ended, then after `publish`.
    Loading(Loader<Result> loader, std::function<void(Result)> publish, std::function<void()> changed)
        : loader_(std::move(loader)), publish_(std::move(publish)), changed_(std::move(changed)) {}

    bool isLoading() const { return isLoading_; }
    /// Whether anything was ever published.
    bool hasLoaded() const { return hasLoaded_; }

    /// Nothing happens while a load is under way.
    void start() {
        if (isLoading_ || !loader_) return;
        isLoading_ = true;
        changed_();
        loader_([this, alive = std::weak_ptr<int>(alive_)](Result result) {
            if (!alive.expired()) finish(std::move(result));
        });
    }

    /// What a load under way has read may be out of date already: it is followed by another.
    void startAfresh() {
        isDue_ = isLoading_;
        start();
    }

private:
    void finish(Result result) {
        isLoading_ = false;
        hasLoaded_ = true;
        publish_(std::move(result));
        changed_();
        if (std::exchange(isDue_, false)) start();
    }

    Loader<Result> loader_;
    std::function<void(Result)> publish_;
    std::function<void()> changed_;
    bool isLoading_ = false;
    bool hasLoaded_ = false;
    bool isDue_ = false;
    std::shared_ptr<int> alive_ = std::make_shared<int>();
};

} // namespace tarvo::ui
