#include "spikes/SpikeRules.h"

#include "settings/JsonFields.h"

namespace vexel {

nlohmann::ordered_json toJson(const SpikeRules& rules)
{
    nlohmann::ordered_json json;
    json["cpu"] = rules.cpu;
    json["cpuMinutes"] = rules.cpuMinutes;
    json["diskPerMinute"] = rules.diskPerMinute;
    json["diskTotal"] = rules.diskTotal;
    json["netPerMinute"] = rules.netPerMinute;
    json["netTotal"] = rules.netTotal;
    json["batteryDrop"] = rules.batteryDrop;
    json["mergeGap"] = rules.mergeGap;
    return json;
}

SpikeRules spikeRulesFromJson(const nlohmann::ordered_json& json)
{
    SpikeRules rules;
    JsonFields::read(json, "cpu", rules.cpu);
    JsonFields::read(json, "cpuMinutes", rules.cpuMinutes);
    JsonFields::read(json, "diskPerMinute", rules.diskPerMinute);
    JsonFields::read(json, "diskTotal", rules.diskTotal);
    JsonFields::read(json, "netPerMinute", rules.netPerMinute);
    JsonFields::read(json, "netTotal", rules.netTotal);
    JsonFields::read(json, "batteryDrop", rules.batteryDrop);
    JsonFields::read(json, "mergeGap", rules.mergeGap);
    return rules;
}

} // namespace vexel
