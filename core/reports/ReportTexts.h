#pragma once

#include "platform/Platform.h"

#include <string>

namespace vexel::ReportTexts {

// The fixed sentences of the reports that name the platform.

// What the status report leaves out, and why.
[[nodiscard]] std::string notMeasured(Platform platform);
// Whose sockets the ports report can list.
[[nodiscard]] std::string portsNote(Platform platform);

} // namespace vexel::ReportTexts
