#include "update/update_info.h"

#include <simdjson.h>

namespace tarvo {

namespace dom = simdjson::dom;

std::optional<UpdateInfo> parseUpdateManifest(std::string_view json) {
    dom::parser parser;
    dom::object manifest;
    if (parser.parse(json.data(), json.size()).get(manifest)) return std::nullopt;

    std::string_view version, url;
    if (manifest["version"].get(version) || manifest["url"].get(url)) return std::nullopt;
    UpdateInfo info{std::string(version), std::string(url), std::nullopt};

    dom::element notes;
    if (manifest["notes"].get(notes) || notes.is_null()) return info;
    std::string_view text;
    if (notes.get(text)) return std::nullopt;
    info.notes = text;
    return info;
}

} // namespace tarvo
