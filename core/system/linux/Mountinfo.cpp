#include "system/linux/Mountinfo.h"

#include "text/TextScan.h"

#include <algorithm>
#include <array>
#include <set>

namespace vexel::Mountinfo {

namespace {

constexpr std::array<std::string_view, 18> diskFileSystems{"ext2", "ext3", "ext4", "xfs", "btrfs", "f2fs", "bcachefs",
    "zfs", "jfs", "vfat", "exfat", "ntfs", "ntfs3", "fuseblk", "hfsplus", "udf", "iso9660", "msdos"};

constexpr std::array<std::string_view, 10> systemTrees{
    "/boot", "/efi", "/proc", "/sys", "/dev", "/snap", "/var/snap", "/var/lib/docker", "/var/lib/containers", "/run"};

bool isUnder(std::string_view path, std::string_view tree)
{
    return path == tree || (path.starts_with(tree) && path.size() > tree.size() && path[tree.size()] == '/');
}

bool isOctal(char c)
{
    return c >= '0' && c <= '7';
}

} // namespace

std::string unescape(std::string_view field)
{
    std::string out;
    out.reserve(field.size());
    for (size_t i = 0; i < field.size(); ++i) {
        if (field[i] == '\\' && i + 3 < field.size() && isOctal(field[i + 1]) && isOctal(field[i + 2])
            && isOctal(field[i + 3])) {
            const int value = (field[i + 1] - '0') * 64 + (field[i + 2] - '0') * 8 + (field[i + 3] - '0');
            out.push_back(static_cast<char>(value & 0xff));
            i += 3;
        } else {
            out.push_back(field[i]);
        }
    }
    return out;
}

std::vector<Mount> parse(std::string_view text)
{
    std::vector<Mount> mounts;
    TextScan::forEachLine(text, [&](std::string_view line) {
        const auto separator = line.find(" - ");
        if (separator == std::string_view::npos)
            return;
        const auto head = TextScan::words(line.substr(0, separator));
        const auto tail = TextScan::words(line.substr(separator + 3));
        // ID parent maj:min root mountpoint options [tags…] - fstype source superoptions
        if (head.size() < 6 || tail.size() < 2)
            return;
        Mount mount;
        mount.device = std::string(head[2]);
        mount.mountPoint = unescape(head[4]);
        mount.fsType = std::string(tail[0]);
        mount.source = unescape(tail[1]);
        if (tail.size() > 2)
            mount.superOptions = std::string(tail[2]);
        mounts.push_back(std::move(mount));
    });
    return mounts;
}

bool isUserVolume(const Mount& mount)
{
    if (std::find(diskFileSystems.begin(), diskFileSystems.end(), mount.fsType) == diskFileSystems.end())
        return false;
    const std::string_view point = mount.mountPoint;
    if (point == "/")
        return true;
    if (!point.starts_with('/'))
        return false;
    if (isUnder(point, "/run/media"))
        return true;
    return std::none_of(systemTrees.begin(), systemTrees.end(), [&](auto tree) { return isUnder(point, tree); });
}

std::vector<Mount> userVolumes(const std::vector<Mount>& mounts)
{
    std::vector<Mount> result;
    std::set<std::string> seen;
    // The root mount claims its device first, so a bind mount of it elsewhere is not listed.
    for (const auto& mount : mounts) {
        if (mount.mountPoint == "/" && isUserVolume(mount)) {
            result.push_back(mount);
            seen.insert(mount.device);
            break;
        }
    }
    for (const auto& mount : mounts) {
        if (mount.mountPoint == "/" || !isUserVolume(mount) || !seen.insert(mount.device).second)
            continue;
        result.push_back(mount);
    }
    return result;
}

} // namespace vexel::Mountinfo
