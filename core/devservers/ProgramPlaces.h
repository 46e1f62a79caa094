#pragma once

#include "processes/ProcRecord.h"

#include <cstdint>
#include <string>
#include <vector>

namespace vexel {

// Where a platform keeps its own programs and its apps' data. A listener
// there is a system program or an app's own service (Steam, a sync client),
// not development work, unless a runtime excuses it.
struct ProgramPlaces {
    // Folders of the system's own programs.
    std::vector<std::string> systemFolders;
    // Control groups of the system's services ("/system.slice/", "/init.scope").
    std::vector<std::string> systemCgroups;
    // Users below this uid are the system's.
    uint32_t uidMin = 0;
    // Folders below the home folder where apps keep their data, with a "/" at the end.
    std::vector<std::string> appDataFolders;
    // Whether a runtime working in an app-data folder is the app's own as well.
    // On Linux apps ship and run interpreters there; on macOS a runtime counts anywhere.
    bool appDataHoldsRuntimes = false;

    // macOS: the system folders of app grouping, and ~/Library.
    [[nodiscard]] static ProgramPlaces macOS();
    // Linux: /usr/bin holds every distro interpreter, so only the library and
    // sbin folders are the system's; system services by cgroup and uid; the XDG
    // and Flatpak/Snap data folders play the part of ~/Library.
    [[nodiscard]] static ProgramPlaces linux(uint32_t uidMin);

    // Whether the process is the system's own by where it runs from, its
    // control group or its user.
    [[nodiscard]] bool isSystemProgram(const ProcRecord& record) const;
    // Whether `path` lies in one of the app-data folders of `home`.
    [[nodiscard]] bool inAppData(const std::string& path, const std::string& home) const;
};

} // namespace vexel
