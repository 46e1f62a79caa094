// mountinfo: the volumes are a subset of the mounts, each device appears
// once, and the root comes first when it is there.

#include "FuzzInput.h"
#include "system/linux/Mountinfo.h"

#include <set>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    const auto mounts = vexel::Mountinfo::parse(fuzzText(data, size));
    const auto volumes = vexel::Mountinfo::userVolumes(mounts);
    require(volumes.size() <= mounts.size());
    std::set<std::string> devices;
    for (size_t i = 0; i < volumes.size(); ++i) {
        require(devices.insert(volumes[i].device).second);
        require(vexel::Mountinfo::isUserVolume(volumes[i]));
        if (i > 0)
            require(volumes[i].mountPoint != "/");
    }
    require(vexel::Mountinfo::unescape(fuzzText(data, size)).size() <= size);
    return 0;
}
