#include "Route.h"

namespace vexel {

namespace {

struct RouteInfo {
    const char* identifier;
    const char* title;
    const char* symbol;
};

constexpr std::array<RouteInfo, 10> routes{{
    {"overview", "Overview", "view-grid"},
    {"apps", "Apps", "applications-other"},
    {"cpu", "CPU", "cpu"},
    {"memory", "Memory", "memory"},
    {"disk", "Disk", "drive-harddisk"},
    {"network", "Network", "network-transmit-receive"},
    {"gpu", "GPU", "video-display"},
    {"power", "Power & Heat", "battery"},
    {"history", "History", "document-open-recent"},
    {"developers", "Developers", "utilities-terminal"},
}};

const RouteInfo& info(Route route)
{
    return routes[static_cast<size_t>(route)];
}

} // namespace

std::string identifier(Route route)
{
    return info(route).identifier;
}

std::optional<Route> routeFromIdentifier(std::string_view id)
{
    for (const auto route : allRoutes) {
        if (id == info(route).identifier)
            return route;
    }
    return std::nullopt;
}

std::string title(Route route)
{
    return info(route).title;
}

std::string symbolName(Route route)
{
    return info(route).symbol;
}

std::string shortcut(Route route)
{
    const auto index = static_cast<int>(route);
    return "Ctrl+" + std::to_string((index + 1) % 10);
}

} // namespace vexel
