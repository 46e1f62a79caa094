#include "system/linux/LinuxRoots.h"

#include "system/linux/NvidiaLibrary.h"

#include <sys/statvfs.h>

namespace vexel {

LinuxRoots liveRoots()
{
    LinuxRoots roots;
    roots.capacity = [](const std::string& mountPoint) -> std::optional<FsCapacity> {
        struct statvfs info { };
        if (::statvfs(mountPoint.c_str(), &info) != 0)
            return std::nullopt;
        // f_bavail, not f_bfree: ext4 keeps reserved blocks that only root may use.
        return FsCapacity{
            static_cast<uint64_t>(info.f_blocks) * info.f_frsize, static_cast<uint64_t>(info.f_bavail) * info.f_frsize};
    };
    roots.nvidia = [] { return NvidiaLibrary::query(); };
    return roots;
}

} // namespace vexel
