#include "grouping/AppIdentity.h"

#include <array>
#include <set>

namespace vexel {

namespace {

struct Family {
    std::string_view title;
    std::initializer_list<std::string_view> names;
};

const std::array<Family, 8> families{{
    {"Spotlight",
        {"mds", "mds_stores", "mdworker", "mdworker_shared", "mdbulkimport", "corespotlightd", "Spotlight",
            "spotlightknowledged", "mdsync"}},
    {"iCloud & File Provider",
        {"bird", "cloudd", "fileproviderd", "FileProvider", "CloudDocsFileProvider", "iCloudNotificationAgent",
            "FPCKService", "cloudphotod"}},
    {"Time Machine", {"backupd", "backupd-helper", "TMHelperAgent"}},
    {"Photos library", {"photoanalysisd", "mediaanalysisd", "photolibraryd", "mediaanalysisd-access"}},
    {"Software Update", {"softwareupdated", "SoftwareUpdateNotificationManager", "MobileSoftwareUpdate"}},
    {"Security scans (XProtect)",
        {"XProtect", "XprotectService", "XProtectPluginService", "syspolicyd", "XProtectBehaviorService"}},
    {"WindowServer", {"WindowServer"}},
    {"Kernel", {"kernel_task"}},
}};

constexpr std::array<std::string_view, 10> systemPrefixes{"/System/", "/usr/libexec/", "/usr/sbin/", "/usr/bin/",
    "/sbin/", "/bin/", "/Library/Apple/", "/usr/lib/", "/private/var/db/", "/Library/Application Support/Apple/"};

constexpr std::array<std::string_view, 7> visibleSystemApps{
    "Finder", "Dock", "ControlCenter", "NotificationCenter", "Siri", "screencaptureui", "WindowManager"};

Identity familyIdentity(const std::string& title)
{
    return Identity{"sys:" + title, title, AppKind::system, std::nullopt};
}

std::string withoutExtension(std::string_view name)
{
    const auto dot = name.rfind('.');
    return std::string(dot == std::string_view::npos ? name : name.substr(0, dot));
}

std::string lastComponent(std::string_view path)
{
    const auto slash = path.rfind('/');
    return std::string(slash == std::string_view::npos ? path : path.substr(slash + 1));
}

// Walks parents from one process, remembering every decision of this call.
// Identities are interned: each distinct one is stored once and processes
// refer to it by index, so a frame of thousands of processes copies only the
// few dozen identities it holds.
class Resolver {
public:
    Resolver(const std::vector<ProcRecord>& records, const IdentityRules& rules, IdentityCache* cache)
        : m_rules(rules)
        , m_cache(cache)
    {
        m_byPid.reserve(records.size());
        m_final.reserve(records.size());
        for (size_t i = 0; i < records.size(); ++i)
            m_byPid.try_emplace(records[i].pid, &records[i]);
    }

    uint32_t identity(const ProcRecord& record, int depth)
    {
        if (const auto done = m_final.find(record.pid); done != m_final.end())
            return done->second;
        const uint32_t own = base(record);
        const auto parentEntry = m_byPid.find(record.ppid);
        const ProcRecord* parent = parentEntry == m_byPid.end() ? nullptr : parentEntry->second;
        if (record.ppid < 2 || record.ppid == record.pid || (parent != nullptr && m_rules.isLauncher(*parent)))
            return decide(record, own);
        if (depth > 64 || m_walk.contains(record.pid))
            return decide(record, own);
        if (record.zombie && parent != nullptr)
            return decide(record, follow(record, *parent, depth));
        const Identity& ownIdentity = m_identities[own];
        if (ownIdentity.kind == AppKind::app && m_rules.isMainExecutable(record, ownIdentity))
            return decide(record, own);
        // A parent that started after the child is a reused pid: not its parent at all.
        if (parent != nullptr && parent->start <= record.start) {
            const uint32_t inherited = follow(record, *parent, depth);
            return decide(record, m_identities[inherited].kind == AppKind::system ? own : inherited);
        }
        return decide(record, own);
    }

    [[nodiscard]] std::vector<Identity> takeIdentities() { return std::move(m_identities); }

private:
    uint32_t follow(const ProcRecord& record, const ProcRecord& parent, int depth)
    {
        m_walk.insert(record.pid);
        const uint32_t result = identity(parent, depth + 1);
        m_walk.erase(record.pid);
        return result;
    }

    uint32_t decide(const ProcRecord& record, uint32_t identity)
    {
        m_final.insert_or_assign(record.pid, identity);
        return identity;
    }

    uint32_t intern(const Identity& identity)
    {
        const auto [slot, added] = m_indexByKey.try_emplace(identity.key, static_cast<uint32_t>(m_identities.size()));
        if (added)
            m_identities.push_back(identity);
        return slot->second;
    }

    uint32_t base(const ProcRecord& record)
    {
        if (m_cache == nullptr)
            return intern(m_rules.base(record));
        m_rules.cacheKey(record, m_key);
        if (const Identity* known = m_cache->find(m_key))
            return intern(*known);
        return intern(m_cache->store(m_key, m_rules.base(record)));
    }

    const IdentityRules& m_rules;
    IdentityCache* m_cache;
    std::unordered_map<int32_t, const ProcRecord*> m_byPid;
    std::unordered_map<int32_t, uint32_t> m_final;
    std::unordered_map<std::string, uint32_t> m_indexByKey;
    std::vector<Identity> m_identities;
    std::set<int32_t> m_walk;
    std::string m_key; // reused for every cache key
};

} // namespace

namespace AppIdentity {

std::optional<std::string> familyByName(std::string_view name)
{
    for (const auto& family : families) {
        for (const auto member : family.names) {
            if (member == name)
                return std::string(family.title);
        }
    }
    return std::nullopt;
}

std::optional<std::string> outermostApp(std::string_view path)
{
    size_t from = 0;
    while (true) {
        const auto at = path.find(".app", from);
        if (at == std::string_view::npos)
            return std::nullopt;
        const auto end = at + 4;
        if (end == path.size() || path[end] == '/')
            return std::string(path.substr(0, end));
        from = at + 1;
    }
}

bool isMainExecutable(std::string_view path, std::string_view bundle)
{
    return path.starts_with(bundle) && path.substr(bundle.size()).starts_with("/Contents/MacOS/");
}

bool isSystemPath(std::string_view path)
{
    for (const auto prefix : systemPrefixes) {
        if (path.starts_with(prefix))
            return true;
    }
    return false;
}

Identity services(Platform platform)
{
    return familyIdentity(systemName(platform) + " services");
}

Identity base(const ProcRecord& record, const BundleNameFunction& bundleName)
{
    if (const auto family = familyByName(record.name))
        return familyIdentity(*family);
    if (!record.path) {
        if (record.uid != 0 && record.pid != 0)
            return Identity{"tool:" + record.name, record.name, AppKind::tool, std::nullopt};
        return services(Platform::macOS);
    }
    const std::string& path = *record.path;
    if (path.find("/WebKit.framework/") != std::string::npos && path.find(".xpc/") != std::string::npos)
        return familyIdentity("Web content (WebKit)");
    if (const auto app = outermostApp(path)) {
        const std::string appName = withoutExtension(lastComponent(*app));
        if (const auto family = familyByName(appName))
            return familyIdentity(*family);
        const bool systemApp = app->starts_with("/System/Library/") || app->starts_with("/Library/Apple/");
        const bool visible
            = std::find(visibleSystemApps.begin(), visibleSystemApps.end(), appName) != visibleSystemApps.end();
        if (systemApp && !visible)
            return services(Platform::macOS);
        const auto display = bundleName ? bundleName(*app) : std::nullopt;
        return Identity{"app:" + *app, display.value_or(appName), AppKind::app, *app};
    }
    if (isSystemPath(path))
        return services(Platform::macOS);
    return Identity{"tool:" + record.name, record.name, AppKind::tool, path};
}

Resolution resolveAll(const std::vector<ProcRecord>& records, const IdentityRules& rules, IdentityCache* cache)
{
    if (rules.refresh() && cache != nullptr)
        cache->clear();
    Resolver resolver(records, rules, cache);
    Resolution resolution;
    resolution.indexOfRecord.reserve(records.size());
    for (const auto& record : records)
        resolution.indexOfRecord.push_back(resolver.identity(record, 0));
    resolution.identities = resolver.takeIdentities();
    return resolution;
}

std::unordered_map<int32_t, Identity> resolve(
    const std::vector<ProcRecord>& records, const IdentityRules& rules, IdentityCache* cache)
{
    const auto resolution = resolveAll(records, rules, cache);
    std::unordered_map<int32_t, Identity> identities;
    identities.reserve(records.size());
    for (size_t i = 0; i < records.size(); ++i)
        identities.try_emplace(records[i].pid, resolution.identities[resolution.indexOfRecord[i]]);
    return identities;
}

} // namespace AppIdentity

Identity MacIdentityRules::base(const ProcRecord& record) const
{
    return AppIdentity::base(record, m_bundleName);
}

void MacIdentityRules::cacheKey(const ProcRecord& record, std::string& key) const
{
    key.assign(record.name);
    if (record.path) {
        key += '\x1f';
        key += *record.path;
    } else if (record.uid == 0 || record.pid == 0) {
        key += "\x1f\x1e"; // no path and a system owner: a different identity than a user's tool
    }
}

bool MacIdentityRules::isLauncher(const ProcRecord&) const
{
    return false; // pid 1, launchd, is already below the parent threshold
}

bool MacIdentityRules::isMainExecutable(const ProcRecord& record, const Identity& identity) const
{
    return record.path && identity.path && AppIdentity::isMainExecutable(*record.path, *identity.path);
}

} // namespace vexel
