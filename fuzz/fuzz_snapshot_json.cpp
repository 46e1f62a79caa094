// Snapshot JSON: whatever decodes encodes back to the same snapshot.

#include "FuzzInput.h"
#include "system/SnapshotJson.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    const auto json = nlohmann::ordered_json::parse(fuzzText(data, size), nullptr, false);
    if (json.is_discarded())
        return 0;
    const auto snapshot = vexel::snapshotFromJson(json);
    if (!snapshot)
        return 0;
    const auto again = vexel::snapshotFromJson(nlohmann::ordered_json::parse(vexel::toJson(*snapshot).dump()));
    require(again.has_value());
    require(vexel::toJson(*again).dump() == vexel::toJson(*snapshot).dump());
    return 0;
}
