#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace vexel {

// The readings a menu bar item can show, in their canonical order.
enum class MenuItemKind { cpu, memory, network, thermal, battery, disk, gpu };

inline constexpr std::array<MenuItemKind, 7> allMenuItemKinds{MenuItemKind::cpu, MenuItemKind::memory,
    MenuItemKind::network, MenuItemKind::thermal, MenuItemKind::battery, MenuItemKind::disk, MenuItemKind::gpu};

// How an item shows its reading.
enum class MenuItemStyle { value, graph, both };

[[nodiscard]] std::string rawValue(MenuItemKind kind);
[[nodiscard]] std::optional<MenuItemKind> menuItemKindFromRaw(std::string_view raw);
// "CPU", "Memory", "Network", "Heat", "Battery", "Disk", "GPU".
[[nodiscard]] std::string title(MenuItemKind kind);
// The icon name from the freedesktop icon theme shown beside the value.
[[nodiscard]] std::string symbolName(MenuItemKind kind);
// Whether the reading has a history worth drawing as a graph.
[[nodiscard]] bool canGraph(MenuItemKind kind);

[[nodiscard]] std::string rawValue(MenuItemStyle style);
[[nodiscard]] std::optional<MenuItemStyle> menuItemStyleFromRaw(std::string_view raw);
// "Value", "Graph", "Both".
[[nodiscard]] std::string title(MenuItemStyle style);

// One menu bar item; its identity is its kind.
struct MenuItemConfig {
    MenuItemKind kind = MenuItemKind::cpu;
    bool enabled = true;
    MenuItemStyle style = MenuItemStyle::value;

    [[nodiscard]] MenuItemKind id() const { return kind; }

    bool operator==(const MenuItemConfig&) const = default;
};

// CPU (both) and memory and network (value) on; the rest off; GPU as a graph.
[[nodiscard]] std::vector<MenuItemConfig> defaultMenuItems();

} // namespace vexel
