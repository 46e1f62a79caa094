#pragma once

#include "system/SystemSnapshot.h"

namespace vexel {

// Where machine-wide readings come from. A source may keep state between
// calls (previous counters, caches), so one thread at a time calls it.
class SystemSource {
public:
    virtual ~SystemSource() = default;

    // One reading taken at `now` (seconds since the epoch); its `time` is `now`.
    // Never fails: what cannot be read is zero, empty or absent.
    [[nodiscard]] virtual SystemSnapshot read(double now) = 0;
};

} // namespace vexel
