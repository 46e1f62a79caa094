#include "devservers/ActivityLog.h"

#include "io/AtomicFile.h"
#include "io/Files.h"
#include "json/JsonFields.h"

#include <algorithm>
#include <nlohmann/json.hpp>
#include <set>

namespace vexel {

namespace {

constexpr double activityThreshold = 0.25; // CPU seconds
constexpr double longRunning = 3600; // seconds
constexpr double quietPerDay = 30; // CPU seconds per day of life

} // namespace

std::string ActivityLog::keyOf(const ProcKey& key)
{
    return std::to_string(key.pid) + "@" + std::to_string(key.start);
}

double ActivityLog::observe(const ProcKey& key, std::optional<double> cpuTime, double started, double now)
{
    const std::string name = keyOf(key);
    const auto found = m_entries.find(name);
    if (!cpuTime)
        return found != m_entries.end() ? found->second.lastActive : now;
    if (found != m_entries.end()) {
        Entry& entry = found->second;
        if (*cpuTime - entry.cpu > activityThreshold)
            entry.lastActive = now;
        entry.cpu = *cpuTime;
        return entry.lastActive;
    }
    const double age = now - started;
    const double perDay = *cpuTime / (std::max(age, 1.0) / 86400);
    const double lastActive = age > longRunning && perDay < quietPerDay ? started + 60 : now;
    m_entries.emplace(name, Entry{*cpuTime, lastActive, now});
    return lastActive;
}

void ActivityLog::prune(const std::vector<ProcKey>& keeping)
{
    std::set<std::string> kept;
    for (const auto& key : keeping)
        kept.insert(keyOf(key));
    std::erase_if(m_entries, [&](const auto& entry) { return !kept.contains(entry.first); });
}

ActivityLog ActivityLog::load(const std::filesystem::path& file)
{
    ActivityLog log;
    const auto text = Files::read(file.string(), 16 * 1024 * 1024);
    if (!text)
        return log;
    const auto json = nlohmann::json::parse(*text, nullptr, false);
    const auto* entries = JsonFields::field(json, "entries");
    if (entries == nullptr || !entries->is_object())
        return log;
    for (const auto& item : entries->items()) {
        const auto cpu = JsonFields::value<double>(item.value(), "cpu");
        const auto lastActive = JsonFields::value<double>(item.value(), "lastActive");
        const auto firstSeen = JsonFields::value<double>(item.value(), "firstSeen");
        if (cpu && lastActive && firstSeen)
            log.m_entries.emplace(item.key(), Entry{*cpu, *lastActive, *firstSeen});
    }
    return log;
}

void ActivityLog::save(const std::filesystem::path& file) const
{
    nlohmann::ordered_json entries = nlohmann::ordered_json::object();
    for (const auto& [key, entry] : m_entries)
        entries[key] = {{"cpu", entry.cpu}, {"lastActive", entry.lastActive}, {"firstSeen", entry.firstSeen}};
    AtomicFile::write(file, nlohmann::ordered_json{{"entries", entries}}.dump(2) + "\n");
}

} // namespace vexel
