#pragma once

#include <string>

namespace vexel {

// A path as people read it: under the home folder, "~" takes the home
// folder's place ("~/code/site"). Tables and pages show it; reports for
// programs (JSON) keep the full path.
[[nodiscard]] std::string shownPath(const std::string& path, std::string home);

} // namespace vexel
