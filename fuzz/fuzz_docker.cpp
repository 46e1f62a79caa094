// docker ps and stats output: every container has an id, running ones come
// first after merging, and sizes are never negative.

#include "FuzzInput.h"
#include "devservers/DockerParser.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    const auto text = fuzzText(data, size);
    auto containers = vexel::DockerParser::parsePS(text);
    for (const auto& container : containers)
        require(!container.id.empty());
    const auto merged = vexel::DockerParser::merge(containers, vexel::DockerParser::parseStats(text));
    require(merged.size() == containers.size());
    bool seenStopped = false;
    for (const auto& container : merged) {
        if (container.state != "running")
            seenStopped = true;
        else
            require(!seenStopped);
    }
    (void)vexel::DockerParser::size(text);
    return 0;
}
