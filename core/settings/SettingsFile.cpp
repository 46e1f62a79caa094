#include "settings/SettingsFile.h"

#include "io/AtomicFile.h"
#include "io/Files.h"
#include "text/TextScan.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstring>

namespace vexel {

using Json = nlohmann::ordered_json;

namespace {

// Far more than any settings file holds; a larger file is not Vexel's settings.
constexpr size_t readCap = 4 * 1024 * 1024;

const Sentence leftAlone{VEXEL_WORDS("vexel::Vexel", "Vexel uses its defaults for now and leaves the file as it is.")};

// The settings whose stand-ins must never expire or trim history.
constexpr std::array<const char*, 2> historyLimits{"retentionDays", "maxHistoryMB"};

// What the file holds now.
struct Reading {
    SettingsFile::State state = SettingsFile::State::missing;
    Json document = Json::object();
    std::optional<Sentence> failure;
};

// nlohmann's parse error without its code: "parse error at line 3, column 1: …".
std::string parseError(const char* what)
{
    const std::string text = what;
    const auto bracket = text.find("] ");
    return bracket == std::string::npos ? text : text.substr(bracket + 2);
}

Reading readDocument(const std::filesystem::path& file)
{
    const std::string name = file.string();
    const auto whole = Files::readWhole(name, readCap);
    if (!whole.bytes) {
        if (whole.error == ENOENT)
            return {};
        if (whole.error == EFBIG)
            return {SettingsFile::State::unreadable, {},
                Sentence{VEXEL_WORDS("vexel::Vexel", "%1 is larger than 4 MB, too large to be settings."), {{name}}}};
        return {SettingsFile::State::unreadable, {},
            Sentence{VEXEL_WORDS("vexel::Vexel", "Couldn't read %1: %2."), {{name}, {std::strerror(whole.error)}}}};
    }
    // An empty file holds nothing of the user's to keep.
    if (TextScan::trim(*whole.bytes).empty())
        return {SettingsFile::State::read, Json::object(), std::nullopt};
    try {
        Json document = Json::parse(*whole.bytes);
        if (!document.is_object())
            return {SettingsFile::State::unreadable, {},
                Sentence{VEXEL_WORDS("vexel::Vexel", "%1 holds a JSON %2, not an object of settings."),
                    {{name}, {document.type_name()}}}};
        return {SettingsFile::State::read, std::move(document), std::nullopt};
    } catch (const Json::parse_error& error) {
        return {SettingsFile::State::unreadable, {},
            Sentence{VEXEL_WORDS("vexel::Vexel", "%1 isn't valid JSON (%2)."), {{name}, {parseError(error.what())}}}};
    }
}

// Writes into `document` each key of `wanted` whose value differs from
// `before` (what was read or saved last), object by object, so that a file
// the user keeps short stays short. A key Vexel dropped (lastSeen cleared)
// goes when it still holds Vexel's value.
void mergeChanges(Json& document, const Json& wanted, const Json& before)
{
    for (const auto& [key, value] : wanted.items()) {
        const auto found = document.find(key);
        const auto old = before.find(key);
        if (found != document.end() && value.is_object() && found->is_object())
            mergeChanges(*found, value, old != before.end() ? *old : Json::object());
        else if (old == before.end() || *old != value)
            document[key] = value;
    }
    for (const auto& [key, value] : before.items())
        if (!wanted.contains(key) && document.contains(key) && document[key] == value)
            document.erase(key);
}

} // namespace

SettingsFile::SettingsFile(std::filesystem::path file)
    : m_file(std::move(file))
{
}

SettingsFile SettingsFile::load(std::filesystem::path file)
{
    SettingsFile settings(std::move(file));
    const auto reading = readDocument(settings.m_file);
    settings.m_failure = reading.failure;
    settings.adopt(reading.state, reading.document);
    for (const char* limit : historyLimits) {
        const bool unusable = std::ranges::any_of(
            settings.m_problems, [limit](const SettingsProblem& problem) { return problem.key == limit; });
        if (reading.state == State::unreadable || unusable)
            settings.m_standIns.emplace_back(limit);
    }
    return settings;
}

void SettingsFile::adopt(State state, const Json& document)
{
    m_state = state;
    m_problems.clear();
    m_settings = state == State::read ? settingsFromJson(document, &m_problems) : VexelSettings{};
    m_saved = m_settings;
}

std::vector<Paragraph> SettingsFile::messages() const
{
    std::vector<Paragraph> said;
    if (m_failure)
        said.push_back({*m_failure, leftAlone});
    for (const auto& problem : m_problems)
        said.push_back({problem.text});
    return said;
}

SettingsFile::SaveOutcome SettingsFile::save(const VexelSettings& settings, Saving saving)
{
    const auto before = toJson(m_saved);
    const auto wanted = toJson(settings);
    // A limit the user sets is theirs, saved or not.
    std::erase_if(m_standIns,
        [&](const std::string& limit) { return before.value(limit, Json()) != wanted.value(limit, Json()); });
    Reading now = readDocument(m_file);
    if (now.state == State::unreadable) {
        // Not saved: the change is still to write when the file can be read again.
        if (saving == Saving::automatic)
            return {false, {*now.failure, leftAlone}};
        return {false,
            {Sentence{VEXEL_WORDS("vexel::Vexel", "Your change holds until Vexel quits but can't be saved.")},
                *now.failure,
                Sentence{VEXEL_WORDS("vexel::Vexel",
                    "Put the file right, or move it away, and Vexel saves its settings there again.")}}};
    }
    if (now.state == State::missing)
        now.document = wanted; // a new file has every key, to be read and edited
    else
        mergeChanges(now.document, wanted, before);
    AtomicFile::write(m_file, now.document.dump(2) + "\n");
    m_failure.reset();
    adopt(State::read, now.document);
    m_settings = settings;
    m_saved = settings;
    return {true, {}};
}

} // namespace vexel
