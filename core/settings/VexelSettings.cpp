#include "settings/VexelSettings.h"

#include "io/AtomicFile.h"
#include "io/Files.h"
#include "settings/JsonFields.h"

namespace vexel {

using Json = nlohmann::ordered_json;

namespace {

template <typename Enum, typename FromRaw> void readEnum(const Json& json, const char* key, Enum& into, FromRaw fromRaw)
{
    std::string raw;
    JsonFields::read(json, key, raw);
    if (const auto value = fromRaw(raw))
        into = *value;
}

std::optional<MenuItemConfig> menuItemFromJson(const Json& json)
{
    if (!json.is_object() || !json.contains("kind") || !json.contains("enabled") || !json.contains("style"))
        return std::nullopt;
    const auto& kind = json["kind"];
    const auto& enabled = json["enabled"];
    const auto& style = json["style"];
    if (!kind.is_string() || !enabled.is_boolean() || !style.is_string())
        return std::nullopt;
    const auto parsedKind = menuItemKindFromRaw(kind.get<std::string>());
    const auto parsedStyle = menuItemStyleFromRaw(style.get<std::string>());
    if (!parsedKind || !parsedStyle)
        return std::nullopt;
    return MenuItemConfig{*parsedKind, enabled.get<bool>(), *parsedStyle};
}

// The whole list, or nothing when any entry cannot be read.
std::optional<std::vector<MenuItemConfig>> menuItemsFromJson(const Json& json)
{
    if (!json.is_array())
        return std::nullopt;
    std::vector<MenuItemConfig> items;
    for (const auto& entry : json) {
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
    json["sampleSeconds"] = settings.sampleSeconds;
    json["cpuScale"] = rawValue(settings.cpuScale);
    json["networkBits"] = settings.networkBits;
    json["retentionDays"] = settings.retentionDays;
    json["maxHistoryMB"] = settings.maxHistoryMB;
    json["menuItems"] = Json::array();
    for (const auto& item : settings.menuItems)
        json["menuItems"].push_back(
            Json{{"kind", rawValue(item.kind)}, {"enabled", item.enabled}, {"style", rawValue(item.style)}});
    json["strain"] = toJson(settings.strain);
    json["spikes"] = toJson(settings.spikes);
    json["idleDays"] = settings.idleDays;
    json["appSort"] = rawValue(settings.appSort);
    json["onboarded"] = settings.onboarded;
    if (settings.lastSeen)
        json["lastSeen"] = *settings.lastSeen;
    return json;
}

VexelSettings settingsFromJson(const Json& json)
{
    VexelSettings settings;
    if (!json.is_object())
        return settings;
    JsonFields::read(json, "sampleSeconds", settings.sampleSeconds);
    readEnum(json, "cpuScale", settings.cpuScale, cpuScaleFromRaw);
    JsonFields::read(json, "networkBits", settings.networkBits);
    JsonFields::read(json, "retentionDays", settings.retentionDays);
    JsonFields::read(json, "maxHistoryMB", settings.maxHistoryMB);
    if (json.contains("menuItems"))
        if (auto items = menuItemsFromJson(json["menuItems"]))
            settings.menuItems = std::move(*items);
    if (json.contains("strain") && json["strain"].is_object())
        settings.strain = strainRulesFromJson(json["strain"]);
    if (json.contains("spikes") && json["spikes"].is_object())
        settings.spikes = spikeRulesFromJson(json["spikes"]);
    JsonFields::read(json, "idleDays", settings.idleDays);
    readEnum(json, "appSort", settings.appSort, appSortFromRaw);
    JsonFields::read(json, "onboarded", settings.onboarded);
    double lastSeen = 0;
    if (json.contains("lastSeen") && json["lastSeen"].is_number()) {
        JsonFields::read(json, "lastSeen", lastSeen);
        settings.lastSeen = lastSeen;
    }
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
