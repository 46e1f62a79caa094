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
class Resolver {
public:
    Resolver(const std::vector<ProcRecord>& records, const IdentityRules& rules, IdentityCache* cache)
        : m_rules(rules)
        , m_cache(cache)
    {
        for (const auto& record : records)
            m_byPid.try_emplace(record.pid, &record);
    }

    const Identity& identity(const ProcRecord& record, int depth)
    {
        if (const auto done = m_final.find(record.pid); done != m_final.end())
            return done->second;
        const Identity own = base(record);
        const auto parentEntry = m_byPid.find(record.ppid);
        const ProcRecord* parent = parentEntry == m_byPid.end() ? nullptr : parentEntry->second;
        if (record.ppid < 2 || record.ppid == record.pid || (parent != nullptr && m_rules.isLauncher(*parent)))
            return decide(record, own);
        if (depth > 64 || m_walk.contains(record.pid))
            return decide(record, own);
        if (record.zombie && parent != nullptr)
            return decide(record, follow(record, *parent, depth));
        if (own.kind == AppKind::app && m_rules.isMainExecutable(record, own))
            return decide(record, own);
        // A parent that started after the child is a reused pid: not its parent at all.
        if (parent != nullptr && parent->start <= record.start) {
            const Identity inherited = follow(record, *parent, depth);
            return decide(record, inherited.kind == AppKind::system ? own : inherited);
        }
        return decide(record, own);
    }

private:
    Identity follow(const ProcRecord& record, const ProcRecord& parent, int depth)
    {
        m_walk.insert(record.pid);
        Identity result = identity(parent, depth + 1);
        m_walk.erase(record.pid);
        return result;
    }

    const Identity& decide(const ProcRecord& record, Identity identity)
    {
        return m_final.insert_or_assign(record.pid, std::move(identity)).first->second;
    }

    Identity base(const ProcRecord& record)
    {
        if (m_cache == nullptr)
            return m_rules.base(record);
        const std::string key = m_rules.cacheKey(record);
        if (const Identity* known = m_cache->find(key))
            return *known;
        return m_cache->store(key, m_rules.base(record));
    }

    const IdentityRules& m_rules;
    IdentityCache* m_cache;
    std::unordered_map<int32_t, const ProcRecord*> m_byPid;
    std::unordered_map<int32_t, Identity> m_final;
    std::set<int32_t> m_walk;
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

std::unordered_map<int32_t, Identity> resolve(
    const std::vector<ProcRecord>& records, const IdentityRules& rules, IdentityCache* cache)
{
    Resolver resolver(records, rules, cache);
    std::unordered_map<int32_t, Identity> identities;
    identities.reserve(records.size());
    for (const auto& record : records)
        identities.try_emplace(record.pid, resolver.identity(record, 0));
    return identities;
}

} // namespace AppIdentity

Identity MacIdentityRules::base(const ProcRecord& record) const
{
    return AppIdentity::base(record, m_bundleName);
}

std::string MacIdentityRules::cacheKey(const ProcRecord& record) const
{
    std::string key = record.name;
    if (record.path) {
        key += '\x1f';
        key += *record.path;
    } else if (record.uid == 0 || record.pid == 0) {
        key += "\x1f\x1e"; // no path and a system owner: a different identity than a user's tool
    }
    return key;
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
