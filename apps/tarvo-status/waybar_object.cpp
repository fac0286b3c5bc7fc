#include "waybar_object.h"

#include "json_writer.h"
#include "menubar/status_text.h"

namespace tarvo::status {
namespace {

std::string_view name(LoadBand band) {
    switch (band) {
    case LoadBand::normal:
        return "normal";
    case LoadBand::raised:
        return "raised";
    case LoadBand::high:
        break;
    }
    return "high";
}

} // namespace

void appendWaybarObject(std::string& out, const StatsSnapshot& snapshot, const Settings& settings,
                        AppLanguage language) {
    JSONWriter json(out);
    std::string text;
    json.beginObject();
    json.key("text");
    writeCombinedText(text, snapshot, settings);
    json.value(std::string_view(text));
    json.key("tooltip");
    writeCombinedToolTip(text, snapshot, settings, language);
    json.value(std::string_view(text));
    json.key("class");
    json.value(name(loadBand(snapshot)));
    json.endObject();
}

} // namespace tarvo::status
