#include "platform/macos/macos_volumes.h"

#include "platform/macos/foundation_text.h"

namespace tarvo::macos_platform {
namespace {

using Values = NSDictionary<NSURLResourceKey, id>;

NSArray<NSURLResourceKey>* volumeKeys() {
    return @[
        NSURLVolumeAvailableCapacityForImportantUsageKey, NSURLVolumeTotalCapacityKey, NSURLVolumeNameKey,
        NSURLVolumeIsRemovableKey, NSURLVolumeIsInternalKey
    ];
}

std::optional<std::uint64_t> bytes(NSNumber* number) {
    if (number == nil || number.longLongValue < 0) return std::nullopt;
    return number.unsignedLongLongValue;
}

std::optional<bool> flag(NSNumber* number) {
    if (number == nil) return std::nullopt;
    return number.boolValue != NO;
}

/// Without values when the volume does not answer.
VolumeValues described(NSURL* volume, Values* values) {
    return {.path = utf8Text(volume.path).value_or(std::string()),
            .name = utf8Text(values[NSURLVolumeNameKey]),
            .availableForImportantUsage = bytes(values[NSURLVolumeAvailableCapacityForImportantUsageKey]),
            .totalCapacity = bytes(values[NSURLVolumeTotalCapacityKey]),
            .isRemovable = flag(values[NSURLVolumeIsRemovableKey]),
            .isInternal = flag(values[NSURLVolumeIsInternalKey])};
}

} // namespace

std::optional<VolumeValues> MacVolumes::root() {
    @autoreleasepool {
        NSURL* const volume = [NSURL fileURLWithPath:@"/" isDirectory:YES];
        Values* const values = [volume resourceValuesForKeys:@[
            NSURLVolumeAvailableCapacityForImportantUsageKey, NSURLVolumeTotalCapacityKey
        ]
                                                       error:nil];
        if (values == nil) return std::nullopt;
        return described(volume, values);
    }
}

std::optional<std::vector<VolumeValues>> MacVolumes::mounted() {
    @autoreleasepool {
        NSArray<NSURL*>* const volumes = [NSFileManager.defaultManager
            mountedVolumeURLsIncludingResourceValuesForKeys:volumeKeys()
                                                    options:NSVolumeEnumerationSkipHiddenVolumes];
        if (volumes == nil) return std::nullopt;
        std::vector<VolumeValues> result;
        for (NSURL* volume in volumes)
            result.push_back(described(volume, [volume resourceValuesForKeys:volumeKeys() error:nil]));
        return result;
    }
}

} // namespace tarvo::macos_platform
