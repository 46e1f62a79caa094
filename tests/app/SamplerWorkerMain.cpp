// A recorder for the crash test: "SamplerWorker FOLDER compact|plain" samples
// the demo world every 2 simulated seconds into FOLDER's history, as fast as
// it can, compacting every simulated minute (or never, so that the batch's
// own minute decides), and prints "tick T" after each tick. The test kills it
// at random moments.

#include "model/Sampler.h"
#include "synth/DemoWorld.h"

#include <cstdio>
#include <string>

using namespace vexel;

int main(int argc, char** argv)
{
    if (argc < 3)
        return 2;
    const bool compacts = std::string(argv[2]) == "compact";
    DemoWorld world;
    const VexelPaths paths(argv[1]);
    std::optional<Sentence> error;
    Sampler sampler(world.monitor(), Sampler::openStore(paths, error), paths, TimeZone::fixed(0));
    if (error) {
        std::fprintf(stderr, "%s\n", error->english().c_str());
        return 1;
    }
    sampler.beforeSample = [&world](double now) { world.advance(now - world.now()); };
    double now = world.now();
    for (int tick = 0;; ++tick, now += 2) {
        const TickPlan plan{.record = true, .compact = compacts && tick % 30 == 0, .maxBytes = 1'000'000'000};
        if (const auto result = sampler.tick(now, plan); result.error) {
            std::fprintf(stderr, "%s\n", result.error->english().c_str());
            return 1;
        }
        std::printf("tick %.0f\n", now);
        std::fflush(stdout);
    }
}
