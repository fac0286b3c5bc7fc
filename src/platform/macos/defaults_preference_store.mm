#include "platform/macos/defaults_preference_store.h"

#include "platform/macos/foundation_text.h"

#import <CoreFoundation/CoreFoundation.h>

#include <algorithm>
#include <chrono>
#include <utility>

namespace tarvo::macos_platform {
namespace {

PreferenceValue numberValue(NSNumber* number) {
    const CFTypeRef object = (__bridge CFTypeRef)number;
    if (CFGetTypeID(object) == CFBooleanGetTypeID()) return number.boolValue != NO;
    if (CFNumberIsFloatType((__bridge CFNumberRef)number)) return number.doubleValue;
    return std::int64_t{number.longLongValue};
}

/// A date may lie outside what a WallTime counts, as that of "never" does.
WallTime wallTime(NSDate* date) {
    constexpr double reach = 9.2e9; // seconds before and after 1970: 291 years
    const Seconds sinceEpoch{std::clamp(date.timeIntervalSince1970, -reach, reach)};
    return WallTime(std::chrono::duration_cast<WallTime::duration>(sinceEpoch));
}

std::optional<PreferenceValue> textList(NSArray* list) {
    std::vector<std::string> texts;
    for (id item in list) {
        if (![item isKindOfClass:[NSString class]]) return std::nullopt;
        texts.push_back(utf8Text(item).value_or(std::string()));
    }
    return texts;
}

std::optional<PreferenceValue> preferenceValue(id object) {
    if ([object isKindOfClass:[NSNumber class]]) return numberValue(object);
    if ([object isKindOfClass:[NSString class]]) return utf8Text(object);
    if ([object isKindOfClass:[NSArray class]]) return textList(object);
    if ([object isKindOfClass:[NSDate class]]) return wallTime(object);
    return std::nullopt;
}

struct AsObject {
    id operator()(bool value) const { return [NSNumber numberWithBool:value]; }
    id operator()(std::int64_t value) const { return [NSNumber numberWithLongLong:value]; }
    id operator()(double value) const { return [NSNumber numberWithDouble:value]; }
    id operator()(const std::string& value) const { return systemText(value); }
    id operator()(const std::vector<std::string>& value) const {
        NSMutableArray<NSString*>* const texts = [NSMutableArray arrayWithCapacity:value.size()];
        for (const auto& text : value)
            [texts addObject:systemText(text)];
        return texts;
    }
    id operator()(WallTime value) const {
        return [NSDate dateWithTimeIntervalSince1970:Seconds(value.time_since_epoch()).count()];
    }
};

} // namespace

struct DefaultsPreferenceStore::State {
    NSUserDefaults* defaults = NSUserDefaults.standardUserDefaults;
    id<NSObject> observation = nil;
    Observers<> changed;
};

DefaultsPreferenceStore::DefaultsPreferenceStore() : state_(std::make_shared<State>()) {
    const std::weak_ptr<State> weak = state_;
    const auto notify = [weak] {
        if (const auto state = weak.lock()) state->changed.notify();
    };
    // Without a queue the block runs where the change was made, which may be any thread of the process.
    state_->observation =
        [NSNotificationCenter.defaultCenter addObserverForName:NSUserDefaultsDidChangeNotification
                                                        object:state_->defaults
                                                         queue:nil
                                                    usingBlock:^(NSNotification*) {
                                                      if (NSThread.isMainThread) {
                                                          notify();
                                                      } else {
                                                          dispatch_async(dispatch_get_main_queue(), ^{
                                                            notify();
                                                          });
                                                      }
                                                    }];
}

DefaultsPreferenceStore::~DefaultsPreferenceStore() {
    [NSNotificationCenter.defaultCenter removeObserver:state_->observation];
}

std::optional<PreferenceValue> DefaultsPreferenceStore::object(std::string_view key) const {
    @autoreleasepool {
        return preferenceValue([state_->defaults objectForKey:systemText(key)]);
    }
}

void DefaultsPreferenceStore::set(std::string_view key, PreferenceValue value) {
    @autoreleasepool {
        [state_->defaults setObject:std::visit(AsObject{}, value) forKey:systemText(key)];
    }
}

void DefaultsPreferenceStore::remove(std::string_view key) {
    @autoreleasepool {
        [state_->defaults removeObjectForKey:systemText(key)];
    }
}

Subscription DefaultsPreferenceStore::observe(std::function<void()> changed) {
    return state_->changed.observe(std::move(changed));
}

} // namespace tarvo::macos_platform
