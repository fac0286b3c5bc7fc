#pragma once

#include "platform/clock.h"
#include "platform/linux/backup_provider.h"

#include <memory>
#include <optional>

namespace tarvo::linux_platform {

/// Spares a tool that is costly to ask: its answer is served for a while.
class CachedBackup : public BackupProvider {
public:
    /// The clock outlives this.
    CachedBackup(const Clock& clock, std::chrono::seconds lifetime, std::unique_ptr<BackupProvider> provider)
        : clock_(clock), lifetime_(lifetime), provider_(std::move(provider)) {}

    std::optional<BackupState> state() override {
        const auto now = clock_.steadyNow();
        if (!askedAt_ || now - *askedAt_ >= lifetime_) {
            answer_ = provider_->state();
            askedAt_ = now;
        }
        return answer_;
    }

private:
    const Clock& clock_;
    std::chrono::seconds lifetime_;
    std::unique_ptr<BackupProvider> provider_;
    std::optional<SteadyTime> askedAt_;
    std::optional<BackupState> answer_;
};

} // namespace tarvo::linux_platform
