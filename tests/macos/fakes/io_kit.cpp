#include "macos/fakes/io_kit.h"

#include "macos/fakes/ledger.h"

#include <IOKit/IOKitLib.h>
#include <mach/mach.h>

#include <algorithm>
#include <map>
#include <set>

namespace tarvo::fakes {
namespace {

constexpr std::int32_t badArgument = static_cast<std::int32_t>(0xE00002C2);

/// A service, or an iterator over several.
struct Handle {
    std::vector<const Service*> services;
    std::size_t next = 0;
    bool isIterator = false;
};

struct Handles {
    std::uint32_t last = 0x1000;
    std::map<std::uint32_t, Handle> objects;
    std::set<std::uint32_t> connections;
};

Handles& handles() {
    static Handles instance;
    return instance;
}

std::uint32_t take(Handle handle) {
    ledger().taken(handle.isIterator ? "iterator" : "service");
    handles().objects.emplace(++handles().last, std::move(handle));
    return handles().last;
}

Handle* find(std::uint32_t object, bool isIterator, const std::string& user) {
    const auto found = handles().objects.find(object);
    if (!expect(found != handles().objects.end(), user + " of what is not held")) return nullptr;
    return expect(found->second.isIterator == isIterator, user + " of the wrong kind") ? &found->second
                                                                                       : nullptr;
}

/// What matches the dictionary, which is released.
std::vector<const Service*> matched(std::uint32_t port, const void* matching) {
    expect(port == kIOMainPortDefault, "a look-up at another port");
    std::vector<const Service*> found;
    if (const Value* const value = valueOf(matching, "a look-up")) {
        for (const auto& service : ioKit().services) {
            if (service.className == value->values.at(0).text) found.push_back(&service);
        }
        releaseObject(matching);
    }
    return found;
}

bool isPlain(const void* allocator, std::uint32_t options) {
    return expect(allocator == kCFAllocatorDefault, "properties of another allocator") &&
           expect(options == 0, "properties with options");
}

} // namespace

IOKit& ioKit() {
    static IOKit instance;
    return instance;
}

void forgetHandles() {
    handles() = {};
}

} // namespace tarvo::fakes

using namespace tarvo::fakes;

extern "C" {

// Not null, as it is on the system, so that null in its place is noticed.
const mach_port_t kIOMainPortDefault = 0x4D50;

CFMutableDictionaryRef IOServiceMatching(const char* className) {
    if (ioKit().matchingFails) return nullptr;
    const void* const made = makeObject(dictionary({{"IOProviderClass", text(className)}}));
    return static_cast<CFMutableDictionaryRef>(const_cast<void*>(made));
}

io_service_t IOServiceGetMatchingService(mach_port_t mainPort, CFDictionaryRef matching) {
    const auto found = matched(mainPort, matching);
    return found.empty() ? 0 : take({{found.front()}});
}

kern_return_t IOServiceGetMatchingServices(mach_port_t mainPort, CFDictionaryRef matching,
                                           io_iterator_t* existing) {
    auto found = matched(mainPort, matching);
    if (ioKit().enumerationFails) return KERN_FAILURE;
    *existing = take({std::move(found), 0, true});
    return KERN_SUCCESS;
}

io_object_t IOIteratorNext(io_iterator_t iterator) {
    Handle* const handle = find(iterator, true, "IOIteratorNext");
    if (!handle || handle->next >= ioKit().iteratorEndsAfter.value_or(handle->services.size())) return 0;
    return take({{handle->services.at(handle->next++)}});
}

kern_return_t IOObjectRelease(io_object_t object) {
    const auto found = handles().objects.find(object);
    if (!expect(found != handles().objects.end(), "IOObjectRelease of what is not held")) return badArgument;
    ledger().givenBack(found->second.isIterator ? "iterator" : "service");
    handles().objects.erase(found);
    return KERN_SUCCESS;
}

kern_return_t IORegistryEntryCreateCFProperties(io_registry_entry_t entry, CFMutableDictionaryRef* properties,
                                                CFAllocatorRef allocator, IOOptionBits options) {
    const Handle* const handle = find(entry, false, "IORegistryEntryCreateCFProperties");
    if (!handle || !isPlain(allocator, options)) return badArgument;
    const auto& described = handle->services.front()->properties;
    if (!described) return KERN_FAILURE;
    *properties = static_cast<CFMutableDictionaryRef>(const_cast<void*>(makeObject(*described)));
    return KERN_SUCCESS;
}

CFTypeRef IORegistryEntryCreateCFProperty(io_registry_entry_t entry, CFStringRef key,
                                          CFAllocatorRef allocator, IOOptionBits options) {
    const Handle* const handle = find(entry, false, "IORegistryEntryCreateCFProperty");
    const Value* const name = valueOf(key, "IORegistryEntryCreateCFProperty");
    if (!handle || !name || !isPlain(allocator, options)) return nullptr;
    ioKit().propertyNames.push_back(name->text);
    const auto& described = handle->services.front()->properties;
    if (!described) return nullptr;
    for (std::size_t i = 0; i < described->keys.size(); ++i) {
        if (described->keys[i].text == name->text) return makeObject(described->values[i]);
    }
    return nullptr;
}

kern_return_t IOServiceOpen(io_service_t service, task_port_t owningTask, uint32_t type,
                            io_connect_t* connect) {
    if (!find(service, false, "IOServiceOpen")) return badArgument;
    expect(owningTask == mach_task_self(), "IOServiceOpen for another task");
    ioKit().openedTypes.push_back(type);
    if (ioKit().openFailure != 0) return ioKit().openFailure;
    *connect = ++handles().last;
    handles().connections.insert(*connect);
    ledger().taken("connection");
    return KERN_SUCCESS;
}

kern_return_t IOServiceClose(io_connect_t connect) {
    if (!expect(handles().connections.erase(connect) == 1, "IOServiceClose of what is not open"))
        return badArgument;
    ledger().givenBack("connection");
    return KERN_SUCCESS;
}

kern_return_t IOConnectCallStructMethod(mach_port_t connection, uint32_t selector, const void* input,
                                        size_t inputSize, void* output, size_t* outputSize) {
    if (!expect(handles().connections.contains(connection), "a request to what is not open"))
        return badArgument;
    const auto* const given = static_cast<const unsigned char*>(input);
    auto* const room = static_cast<unsigned char*>(output);
    StructCall call{selector, {given, given + inputSize}, *outputSize};
    call.outputWasZero = std::all_of(room, room + *outputSize, [](unsigned char byte) { return byte == 0; });
    ioKit().calls.push_back(call);
    return ioKit().answer ? ioKit().answer(call, room) : badArgument;
}
}
