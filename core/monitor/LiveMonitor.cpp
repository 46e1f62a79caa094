// The one place that picks the live sources of the platform Vexel was built for.

#include "monitor/BundleNames.h"
#include "monitor/Monitor.h"

#include "devservers/LiveDockerSource.h"
#include "io/Files.h"
#include "platform/Environment.h"

#include <cstdlib>
#include <unistd.h>

#if defined(__linux__)
#include "devservers/linux/LinuxPortSources.h"
#include "grouping/linux/LinuxIdentityRules.h"
#include "grouping/linux/LiveDesktopIndex.h"
#include "platform/linux/LoginDefs.h"
#include "processes/linux/LiveProcessSource.h"
#include "rates/linux/LiveNetSource.h"
#include "system/linux/LiveSystemReader.h"
#endif

namespace vexel {

std::unique_ptr<Monitor> Monitor::live()
{
    static BundleNames names;
    const auto bundleName = [](const std::string& path) { return names.name(path); };
    MonitorSources sources;
    sources.home = homeFolder();
    sources.myUID = ::geteuid();
    sources.exists = [](const std::string& path) { return Files::exists(path); };
    sources.docker = std::make_shared<LiveDockerSource>(sources.home);
#if defined(__linux__)
    sources.processes = std::make_shared<LiveProcessSource>();
    sources.net = std::make_shared<LiveNetSource>();
    sources.system = std::make_shared<LiveSystemReader>();
    sources.ports = liveLinuxPortSource();
    const uint32_t uidMin = LoginDefs::liveUidMin();
    sources.identities = std::make_shared<LinuxIdentityRules>(liveDesktopIndexSource(), bundleName, uidMin);
    sources.places = ProgramPlaces::linux(uidMin);
#else
#error "Vexel's live sources exist for Linux only so far"
#endif
    return std::make_unique<Monitor>(std::move(sources));
}

} // namespace vexel
