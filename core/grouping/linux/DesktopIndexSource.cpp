#include "grouping/linux/DesktopIndexSource.h"

#include <sys/stat.h>

namespace vexel {

DesktopIndexSource::DesktopIndexSource(std::vector<std::string> folders, Build build, Clock clock, double checkEvery)
    : m_folders(std::move(folders))
    , m_build(std::move(build))
    , m_clock(std::move(clock))
    , m_checkEvery(checkEvery)
{
    m_lastCheck = m_clock();
    m_stamps = stamps();
    m_index = m_build();
}

std::vector<int64_t> DesktopIndexSource::stamps() const
{
    // A folder that is missing stamps -1, so that its creation counts as a change.
    std::vector<int64_t> stamps;
    stamps.reserve(m_folders.size());
    for (const auto& folder : m_folders) {
        struct stat info { };
        stamps.push_back(::stat(folder.c_str(), &info) == 0
                ? static_cast<int64_t>(info.st_mtim.tv_sec) * 1'000'000'000 + info.st_mtim.tv_nsec
                : -1);
    }
    return stamps;
}

std::shared_ptr<const DesktopIndex> DesktopIndexSource::current()
{
    const double now = m_clock();
    if (now - m_lastCheck >= m_checkEvery) {
        m_lastCheck = now;
        if (auto fresh = stamps(); fresh != m_stamps) {
            m_stamps = std::move(fresh);
            m_index = m_build();
            ++m_generation;
        }
    }
    return m_index;
}

} // namespace vexel
