#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>

class QString;

namespace vexel {

// The pages of the main window, in sidebar order.
enum class Route { overview, apps, cpu, memory, disk, network, gpu, power, history, developers };

inline constexpr std::array<Route, 10> allRoutes{Route::overview, Route::apps, Route::cpu, Route::memory, Route::disk,
    Route::network, Route::gpu, Route::power, Route::history, Route::developers};

// The identifier used in settings and by the sampler's plan ("overview", "power"…).
[[nodiscard]] std::string identifier(Route route);
[[nodiscard]] std::optional<Route> routeFromIdentifier(std::string_view identifier);
// The sidebar title ("Overview", "Power & Heat"…).
[[nodiscard]] QString title(Route route);
// The freedesktop icon name shown beside the title (its symbolic form
// "…-symbolic" is looked for first).
[[nodiscard]] std::string symbolName(Route route);
// The keyboard shortcut that opens the page ("Ctrl+1" … "Ctrl+0").
[[nodiscard]] std::string shortcut(Route route);

} // namespace vexel
