#include "settings/VexelSettings.h"

#include "io/AtomicFile.h"
#include "io/Files.h"
#include "json/JsonFields.h"

#include <variant>

namespace vexel {

using Json = nlohmann::ordered_json;

namespace {

// One number or flag of a record under its JSON key: each table below is the
// one place that names a record's keys, for writing and for reading.
template <typename Record> struct Field {
    const char* key;
    std::variant<double Record::*, int Record::*, bool Record::*> member;
};

template <typename Record, size_t count>
void writeFields(Json& json, const std::array<Field<Record>, count>& fields, const Record& record)
{
    for (const auto& field : fields)
        std::visit([&](auto member) { json[field.key] = record.*member; }, field.member);
}

template <typename Record, size_t count>
void readFields(const Json& json, const std::array<Field<Record>, count>& fields, Record& record)
{
    for (const auto& field : fields)
        std::visit([&](auto member) { JsonFields::read(json, field.key, record.*member); }, field.member);
}

const std::array<Field<StrainRules>, 9> strainFields{{
    {"cpuElevated", &StrainRules::cpuElevated},
    {"cpuStrained", &StrainRules::cpuStrained},
    {"batteryElevated", &StrainRules::batteryElevated},
    {"batteryStrained", &StrainRules::batteryStrained},
    {"diskFreeElevated", &StrainRules::diskFreeElevated},
    {"diskFreeStrained", &StrainRules::diskFreeStrained},
    {"gpuElevated", &StrainRules::gpuElevated},
    {"gpuStrained", &StrainRules::gpuStrained},
    {"netElevated", &StrainRules::netElevated},
}};

const std::array<Field<SpikeRules>, 8> spikeFields{{
    {"cpu", &SpikeRules::cpu},
    {"cpuMinutes", &SpikeRules::cpuMinutes},
    {"diskPerMinute", &SpikeRules::diskPerMinute},
    {"diskTotal", &SpikeRules::diskTotal},
    {"netPerMinute", &SpikeRules::netPerMinute},
    {"netTotal", &SpikeRules::netTotal},
    {"batteryDrop", &SpikeRules::batteryDrop},
    {"mergeGap", &SpikeRules::mergeGap},
}};

// The settings' plain numbers and flags; the rest is written out below.
const std::array<Field<VexelSettings>, 6> plainFields{{
    {"sampleSeconds", &VexelSettings::sampleSeconds},
    {"networkBits", &VexelSettings::networkBits},
    {"retentionDays", &VexelSettings::retentionDays},
    {"maxHistoryMB", &VexelSettings::maxHistoryMB},
    {"idleDays", &VexelSettings::idleDays},
    {"onboarded", &VexelSettings::onboarded},
}};

template <typename Enum, typename FromRaw> void readEnum(const Json& json, const char* key, Enum& into, FromRaw fromRaw)
{
    if (const auto raw = JsonFields::value<std::string>(json, key))
        if (const auto value = fromRaw(*raw))
            into = *value;
}

std::optional<MenuItemConfig> menuItemFromJson(const Json& json)
{
    const auto kind = JsonFields::value<std::string>(json, "kind");
    const auto enabled = JsonFields::value<bool>(json, "enabled");
    const auto style = JsonFields::value<std::string>(json, "style");
    if (!kind || !enabled || !style)
        return std::nullopt;
    const auto parsedKind = menuItemKindFromRaw(*kind);
    const auto parsedStyle = menuItemStyleFromRaw(*style);
    if (!parsedKind || !parsedStyle)
        return std::nullopt;
    return MenuItemConfig{*parsedKind, *enabled, *parsedStyle};
}

// The whole list, or nothing when any entry cannot be read.
std::optional<std::vector<MenuItemConfig>> menuItemsFromJson(const Json* json)
{
    if (json == nullptr || !json->is_array())
        return std::nullopt;
    std::vector<MenuItemConfig> items;
    for (const auto& entry : *json) {
        const auto item = menuItemFromJson(entry);
        if (!item)
            return std::nullopt;
        items.push_back(*item);
    }
    return items;
}

} // namespace

Json toJson(const VexelSettings& settings)
{
    Json json;
    writeFields(json, plainFields, settings);
    json["cpuScale"] = rawValue(settings.cpuScale);
    json["menuItems"] = Json::array();
    for (const auto& item : settings.menuItems)
        json["menuItems"].push_back(
            Json{{"kind", rawValue(item.kind)}, {"enabled", item.enabled}, {"style", rawValue(item.style)}});
    writeFields(json["strain"], strainFields, settings.strain);
    writeFields(json["spikes"], spikeFields, settings.spikes);
    json["appSort"] = rawValue(settings.appSort);
    if (settings.lastSeen)
        json["lastSeen"] = *settings.lastSeen;
    return json;
}

VexelSettings settingsFromJson(const Json& json)
{
    VexelSettings settings;
    readFields(json, plainFields, settings);
    readEnum(json, "cpuScale", settings.cpuScale, cpuScaleFromRaw);
    if (auto items = menuItemsFromJson(JsonFields::field(json, "menuItems")))
        settings.menuItems = std::move(*items);
    if (const Json* strain = JsonFields::field(json, "strain"))
        readFields(*strain, strainFields, settings.strain);
    if (const Json* spikes = JsonFields::field(json, "spikes"))
        readFields(*spikes, spikeFields, settings.spikes);
    readEnum(json, "appSort", settings.appSort, appSortFromRaw);
    if (const auto lastSeen = JsonFields::value<double>(json, "lastSeen"))
        settings.lastSeen = lastSeen;
    return settings;
}

VexelSettings VexelSettings::load(const std::filesystem::path& file)
{
    const auto bytes = Files::read(file.string(), 4 * 1024 * 1024);
    if (!bytes)
        return {};
    const auto json = Json::parse(*bytes, nullptr, false);
    if (json.is_discarded())
        return {};
    return settingsFromJson(json);
}

void VexelSettings::save(const std::filesystem::path& file) const
{
    AtomicFile::write(file, toJson(*this).dump(2) + "\n");
}

} // namespace vexel
