#include "platform/linux/drm_fdinfo.h"

#include "platform/linux/text_cursor.h"

namespace tarvo::linux_platform {

namespace {

class ClientBuilder {
public:
    void add(std::string_view key, TextCursor value) {
        if (key == "drm-driver") {
            client_.driver = value.field();
        } else if (key == "drm-pdev") {
            client_.address = value.field();
        } else if (key == "drm-client-id") {
            id_ = value.number();
        } else if (const auto number = value.number()) {
            addToEngine(key, *number);
        }
    }

    std::optional<DRMClient> build() {
        if (client_.driver.empty() || !id_) return std::nullopt;
        client_.id = *id_;
        return std::move(client_);
    }

private:
    void addToEngine(std::string_view key, std::uint64_t number) {
        // The longer of two names with the same beginning first.
        if (auto* engine = named(key, "drm-engine-capacity-")) {
            if (number > 0) engine->capacity = number;
        } else if ((engine = named(key, "drm-engine-")) != nullptr) {
            engine->busyNanoseconds = number;
        } else if ((engine = named(key, "drm-total-cycles-")) != nullptr) {
            engine->totalCycles = number;
        } else if ((engine = named(key, "drm-cycles-")) != nullptr) {
            engine->cycles = number;
        }
    }

    DRMEngine* named(std::string_view key, std::string_view prefix) {
        if (!key.starts_with(prefix) || key.size() == prefix.size()) return nullptr;
        return &client_.engines[std::string(key.substr(prefix.size()))];
    }

    DRMClient client_;
    std::optional<std::uint64_t> id_;
};

} // namespace

std::optional<DRMClient> parseDRMFdinfo(std::string_view text) {
    ClientBuilder builder;
    while (!text.empty()) {
        const auto line = text.substr(0, text.find('\n'));
        text.remove_prefix(line.size() < text.size() ? line.size() + 1 : line.size());
        const auto colon = line.find(':');
        if (colon == std::string_view::npos) continue;
        builder.add(line.substr(0, colon), TextCursor(line.substr(colon + 1)));
    }
    return builder.build();
}

} // namespace tarvo::linux_platform
