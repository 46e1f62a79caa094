#include "support/DemoService.h"

namespace vexel::testing {

std::unique_ptr<DemoWorld> warmDemoWorld()
{
    auto world = std::make_unique<DemoWorld>();
    for (int i = 0; i < 3; ++i)
        world->advance(2);
    return world;
}

DemoService::DemoService(const std::filesystem::path& dataFolder, World motion)
    : world(warmDemoWorld())
    , now(world->now())
    , service(
          VexelPaths(dataFolder), TimeZone::fixed(0), [this] { return now; },
          [this, motion] { return motion == World::advancing ? world->advancingMonitor(1.0) : world->monitor(); },
          VexelService::Settle::onTheClock, Platform::macOS)
{
}

} // namespace vexel::testing
