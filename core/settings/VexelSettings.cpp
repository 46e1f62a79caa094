#include "settings/VexelSettings.h"

#include "format/CFormat.h"
#include "io/AtomicFile.h"
#include "settings/SettingsFile.h"
#include "json/JsonFields.h"

#include <algorithm>
#include <cmath>
#include <type_traits>
#include <variant>

namespace vexel {

using Json = nlohmann::ordered_json;

namespace {

// What a number may be, and the sentence that says a value was not used as
// written: the key, the two limits and the value used instead.
struct Limits {
    double least = 0;
    double most = 0;
    const char* notUsed = "";
};

// One number or flag of a record under its JSON key: each table below is the
// one place that names a record's keys, for writing and for reading.
template <typename Record> struct Field {
    const char* key;
    std::variant<double Record::*, int Record::*, bool Record::*> member;
    Limits limits{}; // numbers only
};

// Where a decode says what it could not use as written; the dotted path of a
// nested key ("strain.cpuElevated").
class Problems {
public:
    Problems(std::vector<SettingsProblem>* sink, std::string prefix)
        : m_sink(sink)
        , m_prefix(std::move(prefix))
    {
    }

    [[nodiscard]] Problems nested(const std::string& key) const { return {m_sink, path(key) + "."}; }
    [[nodiscard]] std::string path(const std::string& key) const { return m_prefix + key; }
    // `pattern` names the key as %1, followed by `values`.
    void say(const std::string& key, const char* pattern, std::vector<Sentence::Value> values = {}) const
    {
        if (m_sink == nullptr)
            return;
        values.insert(values.begin(), {path(key)});
        m_sink->push_back({path(key), Sentence(pattern, std::move(values))});
    }

private:
    std::vector<SettingsProblem>* m_sink;
    std::string m_prefix;
};

std::string number(double value)
{
    return cformat("%.15g", value);
}

std::string quoted(const std::string& text)
{
    return "\"" + text + "\"";
}

// A number within its limits. A value of another kind, or a fraction where a
// whole number belongs, keeps the default; one out of range is brought to
// the nearest limit. Either is said once, by name.
template <typename T>
void readNumber(const Json& object, const char* key, const Limits& limits, T& into, const Problems& problems)
{
    const Json* value = JsonFields::field(object, key);
    if (value == nullptr)
        return;
    const auto say = [&] {
        problems.say(
            key, limits.notUsed, {{number(limits.least)}, {number(limits.most)}, {number(static_cast<double>(into))}});
    };
    if (!value->is_number()) {
        say();
        return;
    }
    const double written = value->template get<double>();
    if (std::is_integral_v<T> && std::isfinite(written) && std::floor(written) != written) {
        say();
        return;
    }
    const double used = std::clamp(written, limits.least, limits.most);
    into = static_cast<T>(used);
    if (used != written)
        say();
}

void readFlag(const Json& object, const char* key, bool& into, const Problems& problems)
{
    const Json* value = JsonFields::field(object, key);
    if (value == nullptr)
        return;
    if (value->is_boolean())
        into = value->get<bool>();
    else
        problems.say(
            key, VEXEL_WORDS("vexel::Vexel", "%1 must be true or false; using %2."), {{into ? "true" : "false"}});
}

template <typename Record, size_t count>
void writeFields(Json& json, const std::array<Field<Record>, count>& fields, const Record& record)
{
    for (const auto& field : fields)
        std::visit([&](auto member) { json[field.key] = record.*member; }, field.member);
}

template <typename Record, size_t count>
void readFields(
    const Json& json, const std::array<Field<Record>, count>& fields, Record& record, const Problems& problems)
{
    for (const auto& field : fields) {
        std::visit(
            [&](auto member) {
                if constexpr (std::is_same_v<decltype(member), bool Record::*>)
                    readFlag(json, field.key, record.*member, problems);
                else
                    readNumber(json, field.key, field.limits, record.*member, problems);
            },
            field.member);
    }
}

constexpr Limits fraction{0, 1, VEXEL_WORDS("vexel::Vexel", "%1 must be a fraction, %2 to %3; using %4.")};
constexpr Limits percent{0, 100, VEXEL_WORDS("vexel::Vexel", "%1 must be a whole percentage, %2 to %3; using %4.")};
constexpr Limits bytes{0, 1e15, VEXEL_WORDS("vexel::Vexel", "%1 must be a number of bytes, %2 to %3; using %4.")};
constexpr const char* seconds = VEXEL_WORDS("vexel::Vexel", "%1 must be a number of seconds, %2 to %3; using %4.");

const std::array<Field<StrainRules>, 9> strainFields{{
    {"cpuElevated", &StrainRules::cpuElevated, fraction},
    {"cpuStrained", &StrainRules::cpuStrained, fraction},
    {"batteryElevated", &StrainRules::batteryElevated, percent},
    {"batteryStrained", &StrainRules::batteryStrained, percent},
    {"diskFreeElevated", &StrainRules::diskFreeElevated, fraction},
    {"diskFreeStrained", &StrainRules::diskFreeStrained, fraction},
    {"gpuElevated", &StrainRules::gpuElevated, fraction},
    {"gpuStrained", &StrainRules::gpuStrained, fraction},
    {"netElevated", &StrainRules::netElevated,
        {0, 1e12, VEXEL_WORDS("vexel::Vexel", "%1 must be a number of bytes per second, %2 to %3; using %4.")}},
}};

const std::array<Field<SpikeRules>, 8> spikeFields{{
    {"cpu", &SpikeRules::cpu, fraction},
    {"cpuMinutes", &SpikeRules::cpuMinutes,
        {1, 1440, VEXEL_WORDS("vexel::Vexel", "%1 must be a whole number of minutes, %2 to %3; using %4.")}},
    {"diskPerMinute", &SpikeRules::diskPerMinute, bytes},
    {"diskTotal", &SpikeRules::diskTotal, bytes},
    {"netPerMinute", &SpikeRules::netPerMinute, bytes},
    {"netTotal", &SpikeRules::netTotal, bytes},
    {"batteryDrop", &SpikeRules::batteryDrop,
        {0, 100, VEXEL_WORDS("vexel::Vexel", "%1 must be a number of percentage points, %2 to %3; using %4.")}},
    {"mergeGap", &SpikeRules::mergeGap, {0, 86400, seconds}},
}};

// The settings' plain numbers and flags; the rest is written out below.
const std::array<Field<VexelSettings>, 7> plainFields{{
    {"sampleSeconds", &VexelSettings::sampleSeconds,
        {VexelSettings::shortestSample, VexelSettings::longestSample, seconds}},
    {"networkBits", &VexelSettings::networkBits},
    {"retentionDays", &VexelSettings::retentionDays,
        {1, 3650, VEXEL_WORDS("vexel::Vexel", "%1 must be a whole number of days, %2 to %3; using %4.")}},
    {"maxHistoryMB", &VexelSettings::maxHistoryMB,
        {1, 100000, VEXEL_WORDS("vexel::Vexel", "%1 must be a whole number of megabytes, %2 to %3; using %4.")}},
    {"metricsApps", &VexelSettings::metricsApps,
        {1, 1000, VEXEL_WORDS("vexel::Vexel", "%1 must be a whole number of apps, %2 to %3; using %4.")}},
    {"idleDays", &VexelSettings::idleDays,
        {0.1, 365, VEXEL_WORDS("vexel::Vexel", "%1 must be a number of days, %2 to %3; using %4.")}},
    {"onboarded", &VexelSettings::onboarded},
}};

template <typename Enum, typename FromRaw>
void readEnum(
    const Json& json, const char* key, Enum& into, FromRaw fromRaw, const char* notUsed, const Problems& problems)
{
    const Json* value = JsonFields::field(json, key);
    if (value == nullptr)
        return;
    if (const auto raw = JsonFields::value<std::string>(json, key))
        if (const auto parsed = fromRaw(*raw)) {
            into = *parsed;
            return;
        }
    problems.say(key, notUsed, {{quoted(rawValue(into))}});
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

// The whole list, or nothing when any entry cannot be read or a kind comes twice.
std::optional<std::vector<MenuItemConfig>> menuItemsFromJson(const Json& json)
{
    if (!json.is_array())
        return std::nullopt;
    std::vector<MenuItemConfig> items;
    for (const auto& entry : json) {
        const auto item = menuItemFromJson(entry);
        if (!item || std::ranges::find(items, item->kind, &MenuItemConfig::kind) != items.end())
            return std::nullopt;
        items.push_back(*item);
    }
    return items;
}

template <typename Record, size_t count>
void readRules(const Json& json, const char* key, const std::array<Field<Record>, count>& fields, Record& rules,
    const Problems& problems)
{
    const Json* object = JsonFields::field(json, key);
    if (object == nullptr)
        return;
    if (!object->is_object()) {
        problems.say(key, VEXEL_WORDS("vexel::Vexel", "%1 must be an object of thresholds; using the defaults."));
        return;
    }
    readFields(*object, fields, rules, problems.nested(key));
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

VexelSettings settingsFromJson(const Json& json, std::vector<SettingsProblem>* problemSink)
{
    const Problems problems(problemSink, "");
    VexelSettings settings;
    readFields(json, plainFields, settings, problems);
    readEnum(json, "cpuScale", settings.cpuScale, cpuScaleFromRaw,
        VEXEL_WORDS("vexel::Vexel", "%1 must be \"mac\" or \"core\"; using %2."), problems);
    if (const Json* items = JsonFields::field(json, "menuItems")) {
        if (auto read = menuItemsFromJson(*items))
            settings.menuItems = std::move(*read);
        else
            problems.say("menuItems",
                VEXEL_WORDS("vexel::Vexel",
                    "%1 must be a list of items, each with a kind, enabled and style, no kind twice; "
                    "using the default items."));
    }
    readRules(json, "strain", strainFields, settings.strain, problems);
    readRules(json, "spikes", spikeFields, settings.spikes, problems);
    readEnum(json, "appSort", settings.appSort, appSortFromRaw,
        VEXEL_WORDS(
            "vexel::Vexel", "%1 must be one of \"cpu\", \"memory\", \"energy\", \"disk\" or \"network\"; using %2."),
        problems);
    if (JsonFields::field(json, "lastSeen") != nullptr) {
        const auto lastSeen = JsonFields::value<double>(json, "lastSeen");
        if (lastSeen && *lastSeen >= 0)
            settings.lastSeen = lastSeen;
        else
            problems.say(
                "lastSeen", VEXEL_WORDS("vexel::Vexel", "%1 must be a time in seconds since 1970; leaving it out."));
    }
    return settings;
}

VexelSettings VexelSettings::load(const std::filesystem::path& file)
{
    return SettingsFile::load(file).settings();
}

void VexelSettings::save(const std::filesystem::path& file) const
{
    AtomicFile::write(file, toJson(*this).dump(2) + "\n");
}

} // namespace vexel
