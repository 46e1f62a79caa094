#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace vexel::Mountinfo {

// One line of /proc/<pid>/mountinfo, with octal escapes undone.
struct Mount {
    std::string device; // "maj:min"
    std::string mountPoint;
    std::string fsType;
    std::string source;
    std::string superOptions;

    bool operator==(const Mount&) const = default;
};

// Every well-formed line, in file order.
[[nodiscard]] std::vector<Mount> parse(std::string_view text);

// Undoes the kernel's escapes of blank, tab, newline and backslash ("\040" …).
[[nodiscard]] std::string unescape(std::string_view field);

// Whether a mount is a volume a user would care about: a disk file system,
// mounted at "/" or outside the system's own trees (boot, pseudo file
// systems, snaps, container storage, /run except /run/media).
[[nodiscard]] bool isUserVolume(const Mount& mount);

// The user-visible volumes among `mounts`: each device once (bind mounts and
// subvolumes share their pool's capacity), the root volume first.
[[nodiscard]] std::vector<Mount> userVolumes(const std::vector<Mount>& mounts);

} // namespace vexel::Mountinfo
