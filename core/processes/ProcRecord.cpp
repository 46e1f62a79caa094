#include "processes/ProcRecord.h"

#include <cmath>

namespace vexel {

ProcKey ProcKey::of(const ProcRecord& record)
{
    const double whole = std::floor(record.start);
    const bool representable = std::isfinite(whole) && whole > -9.0e18 && whole < 9.0e18;
    return ProcKey{record.pid, representable ? static_cast<int64_t>(whole) : 0};
}

} // namespace vexel
