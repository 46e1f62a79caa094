#include "reports/VexelService.h"

#include "io/Files.h"
#include "reports/ReportError.h"

#include <chrono>
#include <thread>

namespace vexel {

namespace {

// Reports see every user's processes and their network use.
constexpr Monitor::Readings everything{.everyone = true, .network = true};

} // namespace

VexelService::VexelService(
    VexelPaths paths, TimeZone calendar, Clock now, MonitorFactory makeMonitor, Settle settle, Platform platform)
    : m_paths(std::move(paths))
    , m_calendar(calendar)
    , m_now(std::move(now))
    , m_makeMonitor(std::move(makeMonitor))
    , m_settle(settle)
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

const Frame& VexelService::frame()
{
    if (m_cachedFrame)
        return *m_cachedFrame;
    if (m_settle == Settle::sleeping) {
        (void)monitor().sample(m_now(), everything);
        std::this_thread::sleep_for(std::chrono::seconds(1));
        m_cachedFrame = monitor().sample(m_now(), everything);
    } else {
        const double now = m_now();
        (void)monitor().sample(now - 1.0, everything);
        m_cachedFrame = monitor().sample(now, everything);
    }
    return *m_cachedFrame;
}

std::unique_ptr<HistoryStore> VexelService::openStore() const
{
    if (Files::missing(m_paths.history().string()))
        return nullptr;
    return std::make_unique<HistoryStore>(m_paths.history(), HistoryAccess::readOnly);
}

std::unique_ptr<HistoryStore> VexelService::requireStore() const
{
    auto store = openStore();
    if (!store)
        throw ReportError("Vexel has no history yet. Open Vexel and leave it running.");
    return store;
}

} // namespace vexel
