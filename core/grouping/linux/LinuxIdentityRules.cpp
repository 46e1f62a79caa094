#include "grouping/linux/LinuxIdentityRules.h"

#include "grouping/linux/CgroupLeaf.h"
#include "io/Files.h"

#include <array>

namespace vexel {

namespace {

struct Family {
    std::string_view title;
    std::initializer_list<std::string_view> names;
};

// Names as the kernel's comm shows them, cut to 15 characters.
const std::array<Family, 4> families{{
    {"Display server",
        {"Xorg", "Xwayland", "gnome-shell", "kwin_wayland", "kwin_x11", "sway", "Hyprland", "weston", "cosmic-comp"}},
    {"Audio", {"pipewire", "pipewire-pulse", "wireplumber", "pulseaudio"}},
    {"File indexing",
        {"tracker-miner-fs-3", "tracker-miner-f", "tracker-extract-3", "tracker-extract", "localsearch-3", "baloo_file",
            "baloo_file_extractor", "baloo_file_extr", "updatedb"}},
    {"Software updates",
        {"packagekitd", "apt", "apt-get", "dpkg", "unattended-upgrade", "unattended-upgr", "dnf", "rpm", "snapd",
            "fwupd", "flatpak-system-helper", "flatpak-system-"}},
}};

constexpr std::array<std::string_view, 6> systemFolders{
    "/usr/lib/", "/usr/lib64/", "/usr/libexec/", "/lib/", "/usr/sbin/", "/sbin/"};

Identity system(const std::string& title)
{
    return Identity{"sys:" + title, title, AppKind::system, std::nullopt};
}

Identity tool(const ProcRecord& record)
{
    return Identity{"tool:" + record.name, record.name, AppKind::tool, record.path};
}

bool inSystemSlice(const ProcRecord& record)
{
    return record.cgroup && (record.cgroup->starts_with("/system.slice/") || *record.cgroup == "/init.scope");
}

bool inSessionSlice(const ProcRecord& record)
{
    return record.cgroup && record.cgroup->find("/user@") != std::string::npos
        && record.cgroup->find("/session.slice/") != std::string::npos;
}

// "/tmp/.mount_Obsidi3xYzQ/obsidian" → the AppImage's mount folder.
std::optional<std::string> appImageMount(const std::string& path)
{
    constexpr std::string_view prefix = "/tmp/.mount_";
    if (!path.starts_with(prefix))
        return std::nullopt;
    const auto slash = path.find('/', prefix.size());
    return path.substr(0, slash);
}

std::optional<std::string> snapName(const std::string& path)
{
    if (!path.starts_with("/snap/"))
        return std::nullopt;
    const auto slash = path.find('/', 6);
    if (slash == std::string::npos || slash == 6)
        return std::nullopt;
    return path.substr(6, slash - 6);
}

} // namespace

LinuxIdentityRules::LinuxIdentityRules(
    std::shared_ptr<const DesktopIndex> index, BundleNameFunction desktopName, uint32_t uidMin)
    : m_index(index ? std::move(index) : std::make_shared<DesktopIndex>())
    , m_desktopName(std::move(desktopName))
    , m_uidMin(uidMin)
{
}

LinuxIdentityRules::LinuxIdentityRules(
    std::shared_ptr<DesktopIndexSource> source, BundleNameFunction desktopName, uint32_t uidMin)
    : m_index(source->current())
    , m_source(std::move(source))
    , m_desktopName(std::move(desktopName))
    , m_uidMin(uidMin)
{
}

bool LinuxIdentityRules::refresh() const
{
    if (!m_source)
        return false;
    const auto before = m_source->generation();
    (void)m_source->current();
    return m_source->generation() != before;
}

const DesktopIndex* LinuxIdentityRules::index() const
{
    return m_source ? m_source->last().get() : m_index.get();
}

std::optional<std::string> LinuxIdentityRules::familyByName(std::string_view name)
{
    for (const auto& family : families) {
        for (const auto member : family.names) {
            if (member == name)
                return std::string(family.title);
        }
    }
    return std::nullopt;
}

Identity LinuxIdentityRules::desktopApp(const DesktopIndex::App& app) const
{
    const auto name = m_desktopName ? m_desktopName(app.file) : std::nullopt;
    return Identity{
        "app:" + app.id, name.value_or(app.entry.name.empty() ? app.id : app.entry.name), AppKind::app, app.file};
}

std::optional<Identity> LinuxIdentityRules::fromUnit(const CgroupLeaf::AppUnit& unit) const
{
    using Kind = CgroupLeaf::AppUnit::Kind;
    if (unit.kind == Kind::flatpak) {
        const auto* app = index()->byId(unit.id);
        Identity identity = app != nullptr ? desktopApp(*app) : Identity{"", unit.id, AppKind::app, std::nullopt};
        identity.key = "app:flatpak:" + unit.id;
        return identity;
    }
    if (unit.kind == Kind::snap)
        return std::nullopt; // named below, from the snap's desktop file
    for (const auto& id : {unit.id, unit.launcherlessId}) {
        const auto* app = index()->byId(id);
        // A terminal-based app's processes belong to the terminal that shows them.
        if (app != nullptr && !app->entry.terminal)
            return desktopApp(*app);
    }
    return std::nullopt;
}

std::optional<Identity> LinuxIdentityRules::fromLeafUnit(const ProcRecord& record) const
{
    if (!record.cgroup)
        return std::nullopt;
    const auto unit = CgroupLeaf::appUnit(CgroupLeaf::leaf(*record.cgroup));
    return unit ? fromUnit(*unit) : std::nullopt;
}

std::optional<Identity> LinuxIdentityRules::fromEnclosingUnit(const ProcRecord& record) const
{
    // GNOME Terminal's server and its tabs' vte-spawn scopes sit in the slice
    // app-org.gnome.Terminal.slice; Konsole's tabs in tab(<pid>).scope inside
    // its app scope. The nearest app unit around the leaf names the app.
    if (!record.cgroup)
        return std::nullopt;
    for (const auto& component : CgroupLeaf::enclosing(*record.cgroup)) {
        if (const auto unit = CgroupLeaf::appUnit(component))
            if (auto identity = fromUnit(*unit))
                return identity;
    }
    return std::nullopt;
}

std::optional<Identity> LinuxIdentityRules::fromSnap(const ProcRecord& record) const
{
    // The scope names the snap and the app ("snap.slack.slack-<uuid>.scope");
    // a program under /snap/<name>/ names only the snap.
    const auto unit = record.cgroup ? CgroupLeaf::appUnit(CgroupLeaf::leaf(*record.cgroup)) : std::nullopt;
    std::optional<std::string> snap;
    std::string appName;
    if (unit && unit->kind == CgroupLeaf::AppUnit::Kind::snap) {
        snap = unit->id;
        appName = unit->snapApp;
    } else if (record.path) {
        snap = snapName(*record.path);
    }
    if (!snap)
        return std::nullopt;
    Identity identity{"app:snap:" + *snap, *snap, AppKind::app, std::nullopt};
    const auto* app = index()->byId(*snap + "_" + (appName.empty() ? *snap : appName));
    if (app == nullptr && !appName.empty())
        app = index()->byId(*snap + "_" + *snap);
    if (app != nullptr) {
        identity.name = desktopApp(*app).name;
        identity.path = app->file;
    }
    return identity;
}

Identity LinuxIdentityRules::appImage(const ProcRecord& record, const std::string& mount)
{
    // The runtime mounts the image at /tmp/.mount_ + six letters of the file's
    // name + six random characters: a new folder every launch. The file, which
    // its environment names, is what stays; else the letters do.
    const std::string name = Files::baseName(*record.path);
    if (record.appImage)
        return Identity{"app:" + *record.appImage, name, AppKind::app, *record.appImage};
    const std::string folder = Files::baseName(mount).substr(std::string_view(".mount_").size());
    const std::string letters = folder.size() > 6 ? folder.substr(0, folder.size() - 6) : folder;
    return Identity{"app:appimage:" + letters, name, AppKind::app, mount};
}

std::optional<Identity> LinuxIdentityRules::fromInstall(const std::string& executable) const
{
    if (const auto* app = index()->byExecutable(executable))
        return desktopApp(*app);
    return std::nullopt;
}

bool LinuxIdentityRules::isSystemOwned(const ProcRecord& record) const
{
    return record.uid < m_uidMin || inSystemSlice(record);
}

Identity LinuxIdentityRules::base(const ProcRecord& record) const
{
    if (record.kernelThread)
        return system("Kernel");
    if (auto family = familyByName(record.name))
        return system(*family);
    if (record.path)
        if (auto family = familyByName(Files::baseName(*record.path)))
            return system(*family);
    if (auto unit = fromLeafUnit(record))
        return *unit;
    // A Flatpak started outside its own scope (`flatpak run` in a terminal).
    if (record.flatpakApp)
        return *fromUnit({CgroupLeaf::AppUnit::Kind::flatpak, *record.flatpakApp, *record.flatpakApp, {}});
    if (auto snap = fromSnap(record))
        return *snap;
    if (!record.path) {
        if (auto enclosing = fromEnclosingUnit(record))
            return *enclosing;
        return isSystemOwned(record) ? AppIdentity::services(Platform::linux) : tool(record);
    }
    const std::string& path = *record.path;
    if (const auto mount = appImageMount(path))
        return appImage(record, *mount);
    // A program of its own (VS Code started from a terminal tab) keeps its
    // name; anything else in an app's slice or scope is that app's.
    if (auto installed = fromInstall(path))
        return *installed;
    if (auto enclosing = fromEnclosingUnit(record))
        return *enclosing;
    for (const auto folder : systemFolders) {
        if (path.starts_with(folder))
            return AppIdentity::services(Platform::linux);
    }
    if ((path.starts_with("/usr/bin/") || path.starts_with("/bin/")) && isSystemOwned(record))
        return AppIdentity::services(Platform::linux);
    if (inSessionSlice(record))
        return system("Desktop session");
    return tool(record);
}

void LinuxIdentityRules::cacheKey(const ProcRecord& record, std::string& key) const
{
    key.assign(record.name);
    key += '\x1f';
    key += record.path.value_or("");
    key += '\x1f';
    key += record.cgroup.value_or("");
    key += '\x1f';
    key += record.flatpakApp.value_or("");
    key += '\x1f';
    key += record.appImage.value_or("");
    key += '\x1f';
    key += record.kernelThread ? 'k' : (record.uid < m_uidMin ? 's' : 'u');
}

bool LinuxIdentityRules::isLauncher(const ProcRecord& parent) const
{
    // kthreadd, and the user's service manager, which adopts orphans of the session.
    if (parent.pid == 2)
        return true;
    return parent.cgroup && parent.cgroup->find("/user@") != std::string::npos
        && parent.cgroup->ends_with(".service/init.scope");
}

bool LinuxIdentityRules::isMainExecutable(const ProcRecord& record, const Identity& identity) const
{
    if (!record.path || !identity.key.starts_with("app:"))
        return false;
    const auto* app = index()->byId(identity.key.substr(4));
    return app != nullptr && app->program && *app->program == *record.path;
}

} // namespace vexel
