#pragma once

#include "platform/Platform.h"
#include "reports/VexelService.h"

#include <nlohmann/json.hpp>

#include <string>

namespace vexel::MCPTools {

// The eight read-only tools the MCP server offers, in the order it lists them:
// each entry "name", "title", "description", "inputSchema", "annotations".
[[nodiscard]] nlohmann::json table(Platform platform);

// Whether the table holds a tool of that name.
[[nodiscard]] bool known(const std::string& name);

// The report a tool returns for its arguments (an object; unusable values fall
// back to the defaults). Raises ReportError for a missing app name or an
// unknown tool, and whatever the report raises.
[[nodiscard]] nlohmann::json call(VexelService& service, const std::string& name, const nlohmann::json& arguments);

} // namespace vexel::MCPTools
