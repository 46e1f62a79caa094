#include "monitor/BundleNames.h"

#include "grouping/linux/DesktopEntry.h"
#include "io/Files.h"
#include "monitor/PlistReader.h"
#include "platform/Environment.h"

namespace vexel {

namespace {

std::optional<std::string> readName(const std::string& path)
{
    if (path.ends_with(".desktop")) {
        const auto text = Files::read(path, 256 * 1024);
        const auto entry = text ? DesktopEntry::parse(*text, messagesLocale()) : std::nullopt;
        return entry ? std::optional(entry->name) : std::nullopt;
    }
    const auto plist = Files::read(path + "/Contents/Info.plist", 1024 * 1024);
    if (!plist)
        return std::nullopt;
    if (auto display = PlistReader::topLevelString(*plist, "CFBundleDisplayName"))
        return display;
    return PlistReader::topLevelString(*plist, "CFBundleName");
}

} // namespace

std::optional<std::string> BundleNames::name(const std::string& path)
{
    {
        std::lock_guard lock(m_lock);
        if (const auto found = m_cache.find(path); found != m_cache.end())
            return found->second;
    }
    // Read outside the lock: a slow disk must not hold up other threads.
    auto result = readName(path);
    std::lock_guard lock(m_lock);
    return m_cache.try_emplace(path, std::move(result)).first->second;
}

} // namespace vexel
