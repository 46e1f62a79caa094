#include "grouping/linux/DesktopIndex.h"

#include "io/Files.h"
#include "platform/Environment.h"
#include "text/TextScan.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <cstdlib>

namespace vexel {

namespace {

// Programs that only start another one: their entries say nothing about which
// executable belongs to the app.
constexpr std::array<std::string_view, 14> wrappers{"sh", "bash", "env", "python", "python3", "java", "node", "flatpak",
    "snap", "perl", "ruby", "gjs", "electron", "gtk-launch"};

std::optional<std::string> nonEmpty(std::optional<std::string> value)
{
    return value && !value->empty() ? value : std::nullopt;
}

bool isWrapper(const std::string& program)
{
    const std::string base = Files::baseName(program);
    return std::find(wrappers.begin(), wrappers.end(), base) != wrappers.end()
        || (base.starts_with("python") && base.find_first_not_of("python0123456789.") == std::string::npos);
}

std::string lowerCase(std::string text)
{
    for (auto& c : text)
        c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    return text;
}

std::string folderOf(const std::string& path)
{
    const auto slash = path.rfind('/');
    return slash == std::string::npos || slash == 0 ? std::string("/") : path.substr(0, slash);
}

} // namespace

DesktopIndex::DesktopIndex(
    const std::vector<std::string>& folders, const ProgramResolver& resolve, std::vector<std::string> sharedFolders)
    : m_shared(std::move(sharedFolders))
{
    for (const auto& folder : folders)
        scan(folder, "", resolve);
    for (const auto& [id, app] : m_apps) {
        // A terminal program (vim, htop) belongs to the terminal that shows it,
        // so its entry claims no executable.
        if (app.entry.hidden || app.entry.terminal || !app.program || isWrapper(*app.program))
            continue;
        m_idByProgram.try_emplace(*app.program, id);
        // Distributions often start an app through a script in /usr/bin that runs
        // the real program elsewhere; the entry's id or window class still names it.
        m_idByName.try_emplace(lowerCase(id), id);
        if (!app.entry.wmClass.empty())
            m_idByName.try_emplace(lowerCase(app.entry.wmClass), id);
        const std::string root = folderOf(*app.program);
        if (std::find(m_shared.begin(), m_shared.end(), root) == m_shared.end())
            m_roots.emplace_back(root, id);
    }
    std::stable_sort(
        m_roots.begin(), m_roots.end(), [](const auto& a, const auto& b) { return a.first.size() > b.first.size(); });
}

void DesktopIndex::scan(const std::string& folder, const std::string& prefix, const ProgramResolver& resolve)
{
    auto names = Files::list(folder);
    std::sort(names.begin(), names.end());
    for (const auto& name : names) {
        const std::string path = folder + "/" + name;
        if (name.ends_with(".desktop")) {
            const std::string id = prefix + name.substr(0, name.size() - 8);
            if (m_apps.contains(id))
                continue;
            const auto text = Files::read(path, 256 * 1024);
            auto entry = text ? DesktopEntry::parse(*text) : std::nullopt;
            if (!entry)
                continue;
            const std::string& program = entry->program.empty() ? entry->tryExec : entry->program;
            auto resolved = program.empty() ? std::nullopt : resolve(program);
            m_apps.emplace(id, App{id, path, std::move(*entry), std::move(resolved)});
        } else if (prefix.size() < 256 && name.find('.') == std::string::npos && !Files::list(path).empty()) {
            // Sub-folders make ids with dashes: kde4/dolphin.desktop is "kde4-dolphin".
            scan(path, prefix + name + "-", resolve);
        }
    }
}

std::vector<std::string> DesktopIndex::standardFolders()
{
    const auto home = homeFolder();
    std::vector<std::string> folders;
    const auto dataHome = nonEmpty(environmentVariable("XDG_DATA_HOME"));
    folders.push_back((dataHome && dataHome->starts_with('/') ? *dataHome : home + "/.local/share") + "/applications");
    const std::string dataDirs = nonEmpty(environmentVariable("XDG_DATA_DIRS")).value_or("/usr/local/share:/usr/share");
    size_t start = 0;
    while (start <= dataDirs.size()) {
        const auto colon = dataDirs.find(':', start);
        const auto dir = dataDirs.substr(start, colon == std::string::npos ? std::string::npos : colon - start);
        if (dir.starts_with('/'))
            folders.push_back(dir + "/applications");
        if (colon == std::string::npos)
            break;
        start = colon + 1;
    }
    for (const std::string& extra : {home + "/.local/share/flatpak/exports/share/applications",
             std::string("/var/lib/flatpak/exports/share/applications"),
             std::string("/var/lib/snapd/desktop/applications")}) {
        if (std::find(folders.begin(), folders.end(), extra) == folders.end())
            folders.push_back(extra);
    }
    return folders;
}

std::vector<std::string> DesktopIndex::standardSharedFolders(const std::string& home)
{
    return {"/", "/usr", "/usr/bin", "/usr/sbin", "/bin", "/sbin", "/usr/local/bin", "/usr/lib", "/usr/lib64",
        "/usr/libexec", "/usr/share", "/opt", "/snap/bin", home, home + "/.local/bin", home + "/bin"};
}

const DesktopIndex::App* DesktopIndex::byId(const std::string& id) const
{
    const auto found = m_apps.find(id);
    return found == m_apps.end() || found->second.entry.hidden ? nullptr : &found->second;
}

const DesktopIndex::App* DesktopIndex::byExecutable(const std::string& executable) const
{
    if (const auto exact = m_idByProgram.find(executable); exact != m_idByProgram.end())
        return byId(exact->second);
    for (const auto& [root, id] : m_roots) {
        if (executable.size() > root.size() && executable.starts_with(root) && executable[root.size()] == '/')
            return byId(id);
    }
    if (const auto named = m_idByName.find(lowerCase(Files::baseName(executable))); named != m_idByName.end())
        return byId(named->second);
    return nullptr;
}

} // namespace vexel
