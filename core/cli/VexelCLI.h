#pragma once

#include "platform/Platform.h"
#include "reports/VexelService.h"

#include <functional>
#include <string>
#include <vector>

namespace vexel::VexelCLI {

// Takes one line of output (the sink adds the newline).
using Sink = std::function<void(const std::string&)>;

// The help text, in the platform's words; no trailing newline.
[[nodiscard]] std::string usage(Platform platform);

// The `vexel` command: prints one report of `service` as a table, or as JSON
// with "--json", through `out`; problems go to `err`. `args` excludes the
// program's path. Returns 0 on success (help and version included), 1 when a
// report failed, 2 for a usage error. Never changes anything.
[[nodiscard]] int run(
    std::vector<std::string> args, VexelService& service, const std::string& version, const Sink& out, const Sink& err);

// A report as the command line prints it: pretty JSON, keys sorted, "/" as
// is, invalid UTF-8 replaced.
[[nodiscard]] std::string prettyJSON(const nlohmann::json& report);

} // namespace vexel::VexelCLI
