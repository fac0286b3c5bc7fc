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

void appendWaybarObject(std::string& out, std::string& scratch, const StatsSnapshot& snapshot,
                        const Settings& settings, AppLanguage language) {
    JSONWriter json(out);
    json.beginObject();
    json.key("text");
    writeCombinedText(scratch, snapshot, settings);
    json.value(std::string_view(scratch));
    json.key("tooltip");
    writeCombinedToolTip(scratch, snapshot, settings, language);
    json.value(std::string_view(scratch));
    json.key("class");
    json.value(name(loadBand(snapshot)));
    json.endObject();
}

} // namespace tarvo::status
