#pragma once

#include "grouping/linux/DesktopEntry.h"

#include <functional>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace vexel {

// The installed apps of a Linux desktop, from the .desktop files of the XDG
// application folders: by desktop id, by the real path of their program, and
// by the folder their program is installed in (so that helpers beside the
// program belong to the app too).
class DesktopIndex {
public:
    struct App {
        std::string id; // "org.gnome.Terminal", "code"
        std::string file; // the .desktop file
        DesktopEntry entry;
        std::optional<std::string> program; // the program's real path, when it resolves
    };

    // The canonical path of an Exec program (a bare name is looked up on the PATH); nothing when unknown.
    using ProgramResolver = std::function<std::optional<std::string>(const std::string& program)>;

    DesktopIndex() = default;

    // Scans `folders` in order ("…/share/applications"); the first file of an id wins.
    DesktopIndex(const std::vector<std::string>& folders, const ProgramResolver& resolve,
        std::vector<std::string> sharedFolders);

    // The application folders of this session: $XDG_DATA_HOME, $XDG_DATA_DIRS,
    // and the Flatpak and Snap exports when missing from them.
    [[nodiscard]] static std::vector<std::string> standardFolders();
    // Folders too widely shared to make every program in them part of one app.
    [[nodiscard]] static std::vector<std::string> standardSharedFolders(const std::string& home);

    [[nodiscard]] const App* byId(const std::string& id) const;
    // The app whose program is exactly `executable`, else the one whose install
    // folder holds it, else the one whose id or window class is the executable's name.
    [[nodiscard]] const App* byExecutable(const std::string& executable) const;
    [[nodiscard]] size_t size() const { return m_apps.size(); }

private:
    void scan(const std::string& folder, const std::string& prefix, const ProgramResolver& resolve);

    std::map<std::string, App> m_apps;
    std::map<std::string, std::string> m_idByProgram;
    std::map<std::string, std::string> m_idByName; // lower-case id or window class
    std::vector<std::pair<std::string, std::string>> m_roots; // install folder, id; longest first
    std::vector<std::string> m_shared;
};

} // namespace vexel
