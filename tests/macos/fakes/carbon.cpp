#include "macos/fakes/carbon.h"

#include "macos/fakes/ledger.h"

#include <Carbon/Carbon.h>

#include <algorithm>
#include <cstring>
#include <memory>

namespace tarvo::fakes {
namespace {

constexpr OSStatus parameterMissing = -9870;
constexpr OSStatus hotKeyExists = -9878;

struct Handler {
    EventHandlerUPP function;
    void* userData;
};

struct Event {
    EventHotKeyID id;
};

struct Installed {
    std::vector<std::unique_ptr<Handler>> handlers;
    std::vector<std::unique_ptr<RegisteredKey>> keys;
    const Event* current = nullptr;
};

Installed& installed() {
    static Installed instance;
    return instance;
}

EventTargetRef dispatcherTarget() {
    static char target = 0;
    return reinterpret_cast<EventTargetRef>(&target);
}

template <typename Held>
bool drop(std::vector<std::unique_ptr<Held>>& list, const void* reference) {
    return std::erase_if(list, [&](const auto& held) { return held.get() == reference; }) == 1;
}

OSStatus deliver(const Event& event) {
    const Handler handler = *installed().handlers.back();
    installed().current = &event;
    const auto reference = reinterpret_cast<EventRef>(const_cast<Event*>(&event));
    const OSStatus status = handler.function(nullptr, reference, handler.userData);
    installed().current = nullptr;
    return status;
}

} // namespace

Carbon& carbon() {
    static Carbon instance;
    return instance;
}

bool pressKeys(std::uint32_t keyCode, std::uint32_t modifiers) {
    for (const auto& key : installed().keys) {
        if (key->keyCode != keyCode || key->modifiers != modifiers || installed().handlers.empty()) continue;
        expect(deliver({{key->signature, key->number}}) == noErr, "a press that was not handled");
        return true;
    }
    return false;
}

std::int32_t callHandler(bool withEvent, bool withUserData) {
    const Handler handler = *installed().handlers.back();
    Event event{};
    const auto reference = reinterpret_cast<EventRef>(&event);
    return handler.function(nullptr, withEvent ? reference : nullptr,
                            withUserData ? handler.userData : nullptr);
}

void forgetKeys() {
    installed().handlers.clear();
    installed().keys.clear();
}

} // namespace tarvo::fakes

using namespace tarvo::fakes;

extern "C" {

EventTargetRef GetEventDispatcherTarget() {
    return dispatcherTarget();
}

OSStatus InstallEventHandler(EventTargetRef target, EventHandlerUPP handler, ItemCount typeCount,
                             const EventTypeSpec* types, void* userData, EventHandlerRef* reference) {
    expect(target == dispatcherTarget(), "a handler at another target");
    // 'keyb' and the press, in numbers of their own.
    expect(typeCount == 1 && types->eventClass == 0x6B657962 && types->eventKind == 5,
           "a handler of other events");
    installed().handlers.push_back(std::make_unique<Handler>(Handler{handler, userData}));
    *reference = reinterpret_cast<EventHandlerRef>(installed().handlers.back().get());
    ledger().taken("event handler");
    return noErr;
}

OSStatus RemoveEventHandler(EventHandlerRef reference) {
    if (!expect(drop(installed().handlers, reference), "RemoveEventHandler of what is not installed"))
        return -1;
    ledger().givenBack("event handler");
    return noErr;
}

OSStatus GetEventParameter(EventRef event, EventParamName name, EventParamType desiredType, EventParamType*,
                           ByteCount bufferSize, ByteCount*, void* data) {
    const auto* const given = reinterpret_cast<const Event*>(event);
    expect(given == installed().current, "a parameter of another event");
    // '----' and 'hkid', in numbers of their own.
    const bool isID = name == 0x2D2D2D2D && desiredType == 0x686B6964 && bufferSize == sizeof(EventHotKeyID);
    if (!expect(isID, "another parameter of a press")) return parameterMissing;
    std::memcpy(data, &given->id, sizeof given->id);
    return noErr;
}

OSStatus RegisterEventHotKey(UInt32 keyCode, UInt32 modifiers, EventHotKeyID id, EventTargetRef target,
                             OptionBits options, EventHotKeyRef* reference) {
    expect(target == dispatcherTarget(), "a hot key at another target");
    expect(options == 0, "a hot key with options");
    if (carbon().keysAreTaken) return hotKeyExists;
    const RegisteredKey key{keyCode, modifiers, id.signature, id.id};
    carbon().everRegistered.push_back(key);
    installed().keys.push_back(std::make_unique<RegisteredKey>(key));
    *reference = reinterpret_cast<EventHotKeyRef>(installed().keys.back().get());
    ledger().taken("hot key");
    return noErr;
}

OSStatus UnregisterEventHotKey(EventHotKeyRef reference) {
    if (!expect(drop(installed().keys, reference), "UnregisterEventHotKey of what is not registered"))
        return -1;
    ledger().givenBack("hot key");
    return noErr;
}
}
