// settings.json: loading never fails, and saved settings load back unchanged.

#include "FuzzInput.h"
#include "settings/VexelSettings.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    const auto json = nlohmann::ordered_json::parse(fuzzText(data, size), nullptr, false);
    const auto settings = vexel::settingsFromJson(json.is_discarded() ? nlohmann::ordered_json() : json);
    const auto reloaded = vexel::settingsFromJson(nlohmann::ordered_json::parse(vexel::toJson(settings).dump()));
    require(reloaded == settings);
    return 0;
}
