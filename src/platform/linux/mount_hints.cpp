#include "platform/linux/mount_hints.h"

#include "platform/linux/mountinfo.h"
#include "platform/linux/text_cursor.h"

namespace tarvo::linux_platform {

namespace {

void add(std::string_view point, std::string_view options, MountHints& hints) {
    if (point.empty()) return;
    if (hasMountOption(options, "x-gvfs-hide")) hints.hidden.insert(decodeMountText(point));
    if (hasMountOption(options, "x-gvfs-show")) hints.shown.insert(decodeMountText(point));
}

} // namespace

void addFstabHints(std::string_view text, MountHints& hints) {
    for (TextCursor cursor(text); !cursor.atEnd(); cursor.nextLine()) {
        auto line = cursor;
        if (line.field().starts_with('#')) continue;
        const auto point = line.field();
        line.field();
        add(point, line.field(), hints);
    }
}

void addUtabHints(std::string_view text, MountHints& hints) {
    constexpr std::string_view pointKey = "TARGET=";
    constexpr std::string_view optionsKey = "OPTS=";
    for (TextCursor cursor(text); !cursor.atEnd(); cursor.nextLine()) {
        auto line = cursor;
        std::string_view point;
        std::string_view options;
        for (auto field = line.field(); !field.empty(); field = line.field()) {
            if (field.starts_with(pointKey)) point = field.substr(pointKey.size());
            if (field.starts_with(optionsKey)) options = field.substr(optionsKey.size());
        }
        add(point, options, hints);
    }
}

} // namespace tarvo::linux_platform
