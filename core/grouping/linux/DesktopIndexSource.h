#pragma once

#include "grouping/linux/DesktopIndex.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace vexel {

// The desktop index of a running program, rebuilt when an app is installed
// or removed. Installing adds or replaces a file in an applications folder,
// which changes the folder's modification time: the folders are looked at
// again at most once every `checkEvery` seconds, a handful of stat calls.
class DesktopIndexSource {
public:
    using Build = std::function<std::shared_ptr<const DesktopIndex>()>;
    using Clock = std::function<double()>; // seconds, never going back

    DesktopIndexSource(std::vector<std::string> folders, Build build, Clock clock, double checkEvery = 5);

    // The index as of the last look, rebuilt first when a folder changed.
    [[nodiscard]] std::shared_ptr<const DesktopIndex> current();
    // The index as of the last look, without looking.
    [[nodiscard]] const std::shared_ptr<const DesktopIndex>& last() const { return m_index; }
    // How many times the index has been rebuilt since the first build.
    [[nodiscard]] uint64_t generation() const { return m_generation; }

private:
    [[nodiscard]] std::vector<int64_t> stamps() const;

    std::vector<std::string> m_folders;
    Build m_build;
    Clock m_clock;
    double m_checkEvery;
    double m_lastCheck = 0;
    std::vector<int64_t> m_stamps;
    std::shared_ptr<const DesktopIndex> m_index;
    uint64_t m_generation = 0;
};

} // namespace vexel
