#pragma once

#include "reports/VexelService.h"
#include "synth/DemoWorld.h"

#include <filesystem>
#include <memory>

namespace vexel::testing {

// The report service over the demo world in fixture mode: no sleep, the two
// settling samples one simulated second apart, the clock fixed at the world's
// time when made, the Mac's words, and a data folder of the test's own.
struct DemoService {
    // Whether the world moves on a second before each reading of its
    // processes, so that the settled frame has rates.
    enum class World { advancing, still };

    explicit DemoService(const std::filesystem::path& dataFolder, World motion = World::advancing);

    std::unique_ptr<DemoWorld> world;
    double now = 0;
    VexelService service;
};

// The demo world after the warm-up every report test starts from.
[[nodiscard]] std::unique_ptr<DemoWorld> warmDemoWorld();

} // namespace vexel::testing
