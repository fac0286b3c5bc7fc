#pragma once

#include "platform/hot_keys.h"

#include <memory>

namespace tarvo::macos_platform {

/// Hot keys of the Carbon event manager. What is still installed at its end is removed. Main thread only.
class CarbonHotKeys : public HotKeys {
public:
    CarbonHotKeys();
    ~CarbonHotKeys() override;
    CarbonHotKeys(const CarbonHotKeys&) = delete;
    CarbonHotKeys& operator=(const CarbonHotKeys&) = delete;

    HotKeyHandlerRef installPressedHandler(std::function<void(const HotKeyID&)> pressed) override;
    void removeHandler(HotKeyHandlerRef handler) override;
    std::optional<HotKeyRef> registerHotKey(std::uint32_t keyCode, std::uint32_t modifiers,
                                            HotKeyID id) override;
    void unregisterHotKey(HotKeyRef hotKey) override;

private:
    struct Installed;
    std::unique_ptr<Installed> installed_; ///< keeps the framework's names out of this header
};

} // namespace tarvo::macos_platform
