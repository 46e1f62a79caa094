#include "reports/VexelService.h"

#include "reports/ReportError.h"

#include <chrono>
#include <thread>

namespace vexel {

VexelService::VexelService(
    VexelPaths paths, TimeZone calendar, Clock now, MonitorFactory makeMonitor, bool settleSleeps, Platform platform)
    : m_paths(std::move(paths))
    , m_calendar(calendar)
    , m_now(std::move(now))
    , m_makeMonitor(std::move(makeMonitor))
    , m_settleSleeps(settleSleeps)
    , m_platform(platform)
{
}

Monitor& VexelService::monitor()
{
    if (!m_monitorStorage)
        m_monitorStorage = m_makeMonitor();
    return *m_monitorStorage;
}

VexelSettings VexelService::settings() const
{
    return VexelSettings::load(m_paths.settings());
}

Frame VexelService::take(double time)
{
    ++m_samplesTaken;
    return monitor().sample(time, true, true);
}

const Frame& VexelService::frame()
{
    if (m_cachedFrame)
        return *m_cachedFrame;
    if (m_settleSleeps) {
        (void)take(m_now());
        std::this_thread::sleep_for(std::chrono::seconds(1));
        m_cachedFrame = take(m_now());
    } else {
        const double now = m_now();
        (void)take(now - 1.0);
        m_cachedFrame = take(now);
    }
    return *m_cachedFrame;
}

std::unique_ptr<HistoryStore> VexelService::openStore() const
{
    std::error_code error;
    if (!std::filesystem::is_regular_file(m_paths.history(), error))
        return nullptr;
    try {
        return std::make_unique<HistoryStore>(m_paths.history(), true);
    } catch (const HistoryError&) {
        return nullptr;
    }
}

std::unique_ptr<HistoryStore> VexelService::requireStore() const
{
    auto store = openStore();
    if (!store)
        throw ReportError("Vexel has no history yet. Open Vexel and leave it running.");
    return store;
}

} // namespace vexel
