#include "Route.h"

#include "texts/Vexel.h"

namespace vexel {

namespace {

struct RouteInfo {
    const char* identifier;
    const char* title;
    const char* symbol;
};

constexpr std::array<RouteInfo, 10> routes{{
    {"overview", QT_TRANSLATE_NOOP("vexel::Vexel", "Overview"), "view-grid"},
    {"apps", QT_TRANSLATE_NOOP("vexel::Vexel", "Apps"), "view-app-grid"},
    {"cpu", QT_TRANSLATE_NOOP("vexel::Vexel", "CPU"), "cpu"},
    {"memory", QT_TRANSLATE_NOOP("vexel::Vexel", "Memory"), "memory"},
    {"disk", QT_TRANSLATE_NOOP("vexel::Vexel", "Disk"), "drive-harddisk"},
    {"network", QT_TRANSLATE_NOOP("vexel::Vexel", "Network"), "network-transmit-receive"},
    {"gpu", QT_TRANSLATE_NOOP("vexel::Vexel", "GPU"), "video-display"},
    {"power", QT_TRANSLATE_NOOP("vexel::Vexel", "Power & Heat"), "battery-full"},
    {"history", QT_TRANSLATE_NOOP("vexel::Vexel", "History"), "document-open-recent"},
    {"developers", QT_TRANSLATE_NOOP("vexel::Vexel", "Developers"), "utilities-terminal"},
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

QString title(Route route)
{
    return Vexel::tr(info(route).title);
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
