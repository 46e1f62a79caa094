#pragma once

#include "system/DiskStats.h"
#include "system/linux/LinuxRoots.h"

#include <vector>

namespace vexel {

// Lists the user-visible volumes from mountinfo with their capacities and labels.
class VolumeReader {
public:
    explicit VolumeReader(const LinuxRoots& roots)
        : m_roots(roots)
    {
    }

    // The volumes, root first; empty when mountinfo cannot be read.
    [[nodiscard]] std::vector<VolumeInfo> volumes() const;

private:
    [[nodiscard]] std::string label(const std::string& source, const std::string& mountPoint) const;
    [[nodiscard]] std::string systemName() const;

    const LinuxRoots& m_roots;
};

} // namespace vexel
