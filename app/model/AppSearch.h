#pragma once

#include "grouping/AppGroup.h"

#include <string_view>
#include <vector>

namespace vexel {

// The apps the Apps page's search field finds: those whose name, or one of
// whose processes' names, contains the query ignoring case, and the app that
// owns a process whose PID is the query. An empty query finds every app;
// one that matches nothing finds none. Order is kept.
[[nodiscard]] std::vector<AppGroup> searchApps(const std::vector<AppGroup>& apps, std::string_view query);

} // namespace vexel
