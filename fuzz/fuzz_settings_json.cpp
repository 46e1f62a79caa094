// settings.json: loading never fails, every number is within its range, and
// saved settings load back unchanged, with nothing left to say about them.

#include "FuzzInput.h"
#include "settings/VexelSettings.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    const auto json = nlohmann::ordered_json::parse(fuzzText(data, size), nullptr, false);
    std::vector<vexel::SettingsProblem> problems;
    const auto settings = vexel::settingsFromJson(json.is_discarded() ? nlohmann::ordered_json() : json, &problems);
    require(settings.sampleSeconds >= 1 && settings.sampleSeconds <= 3600);
    require(settings.retentionDays >= 1 && settings.retentionDays <= 3650);
    require(settings.maxHistoryMB >= 1 && settings.maxHistoryMB <= 100000);
    require(settings.idleDays >= 0.1 && settings.idleDays <= 365);
    require(settings.spikes.cpuMinutes >= 1 && settings.strain.cpuStrained <= 1);
    for (const auto& problem : problems)
        require(problem.text.english().rfind(problem.key + " must be ", 0) == 0);
    std::vector<vexel::SettingsProblem> again;
    const auto reloaded
        = vexel::settingsFromJson(nlohmann::ordered_json::parse(vexel::toJson(settings).dump()), &again);
    require(reloaded == settings && again.empty());
    return 0;
}
