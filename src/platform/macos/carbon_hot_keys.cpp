#include "platform/macos/carbon_hot_keys.h"

#include <map>
#include <utility>

// Last: it brings many short names with it.
#include <Carbon/Carbon.h>

namespace tarvo::macos_platform {
namespace {

class InstalledHandler {
public:
    explicit InstalledHandler(std::function<void(const HotKeyID&)> pressed) : pressed_(std::move(pressed)) {
        const EventTypeSpec hotKeyPressed{kEventClassKeyboard, kEventHotKeyPressed};
        InstallEventHandler(GetEventDispatcherTarget(), handle, 1, &hotKeyPressed, this, &reference_);
    }
    ~InstalledHandler() {
        if (reference_) RemoveEventHandler(reference_);
    }
    InstalledHandler(const InstalledHandler&) = delete;
    InstalledHandler& operator=(const InstalledHandler&) = delete;

private:
    static OSStatus handle(EventHandlerCallRef, EventRef event, void* userData) {
        if (!event || !userData) return noErr;
        EventHotKeyID id{};
        GetEventParameter(event, kEventParamDirectObject, typeEventHotKeyID, nullptr, sizeof id, nullptr,
                          &id);
        // A copy: what runs may remove this handler.
        const auto pressed = static_cast<const InstalledHandler*>(userData)->pressed_;
        pressed({id.signature, id.id});
        return noErr;
    }

    std::function<void(const HotKeyID&)> pressed_;
    EventHandlerRef reference_ = nullptr;
};

class RegisteredHotKey {
public:
    RegisteredHotKey(std::uint32_t keyCode, std::uint32_t modifiers, EventHotKeyID id) {
        constexpr OptionBits noOptions = 0;
        RegisterEventHotKey(keyCode, modifiers, id, GetEventDispatcherTarget(), noOptions, &reference_);
    }
    ~RegisteredHotKey() {
        if (reference_) UnregisterEventHotKey(reference_);
    }
    RegisteredHotKey(const RegisteredHotKey&) = delete;
    RegisteredHotKey& operator=(const RegisteredHotKey&) = delete;

    explicit operator bool() const { return reference_ != nullptr; }

private:
    EventHotKeyRef reference_ = nullptr;
};

} // namespace

struct CarbonHotKeys::Installed {
    std::uint32_t lastReference = 0;
    std::map<HotKeyHandlerRef, std::unique_ptr<InstalledHandler>> handlers;
    std::map<HotKeyRef, std::unique_ptr<RegisteredHotKey>> hotKeys; ///< after the handlers: ends first
};

CarbonHotKeys::CarbonHotKeys() : installed_(std::make_unique<Installed>()) {}

CarbonHotKeys::~CarbonHotKeys() = default;

HotKeyHandlerRef CarbonHotKeys::installPressedHandler(std::function<void(const HotKeyID&)> pressed) {
    const auto reference = ++installed_->lastReference;
    installed_->handlers.emplace(reference, std::make_unique<InstalledHandler>(std::move(pressed)));
    return reference;
}

void CarbonHotKeys::removeHandler(HotKeyHandlerRef handler) {
    installed_->handlers.erase(handler);
}

std::optional<HotKeyRef> CarbonHotKeys::registerHotKey(std::uint32_t keyCode, std::uint32_t modifiers,
                                                       HotKeyID id) {
    auto hotKey =
        std::make_unique<RegisteredHotKey>(keyCode, modifiers, EventHotKeyID{id.signature, id.number});
    if (!*hotKey) return std::nullopt;
    const auto reference = ++installed_->lastReference;
    installed_->hotKeys.emplace(reference, std::move(hotKey));
    return reference;
}

void CarbonHotKeys::unregisterHotKey(HotKeyRef hotKey) {
    installed_->hotKeys.erase(hotKey);
}

} // namespace tarvo::macos_platform
