#include "settings/MenuItemConfig.h"

#include "text/Sentence.h"

namespace vexel {

namespace {

struct KindInfo {
    MenuItemKind kind;
    const char* raw;
    const char* title;
    const char* symbol;
    bool graph;
};

constexpr std::array<KindInfo, 7> kinds{{
    {MenuItemKind::cpu, "cpu", VEXEL_WORDS("vexel::Vexel", "CPU"), "cpu", true},
    {MenuItemKind::memory, "memory", VEXEL_WORDS("vexel::Vexel", "Memory"), "memory", true},
    {MenuItemKind::network, "network", VEXEL_WORDS("vexel::Vexel", "Network"), "network-transmit-receive", true},
    {MenuItemKind::thermal, "thermal", VEXEL_WORDS("vexel::Vexel", "Heat"), "temperature", false},
    {MenuItemKind::battery, "battery", VEXEL_WORDS("vexel::Vexel", "Battery"), "battery", false},
    {MenuItemKind::disk, "disk", VEXEL_WORDS("vexel::Vexel", "Disk"), "drive-harddisk", true},
    {MenuItemKind::gpu, "gpu", VEXEL_WORDS("vexel::Vexel", "GPU"), "video-display", true},
}};

const KindInfo& info(MenuItemKind kind)
{
    return kinds[static_cast<size_t>(kind)];
}

} // namespace

std::string rawValue(MenuItemKind kind)
{
    return info(kind).raw;
}

std::optional<MenuItemKind> menuItemKindFromRaw(std::string_view raw)
{
    for (const auto& entry : kinds) {
        if (raw == entry.raw)
            return entry.kind;
    }
    return std::nullopt;
}

std::string title(MenuItemKind kind)
{
    return info(kind).title;
}

std::string symbolName(MenuItemKind kind)
{
    return info(kind).symbol;
}

bool canGraph(MenuItemKind kind)
{
    return info(kind).graph;
}

std::string rawValue(MenuItemStyle style)
{
    switch (style) {
    case MenuItemStyle::value: return "value";
    case MenuItemStyle::graph: return "graph";
    case MenuItemStyle::both: return "both";
    }
    return "value";
}

std::optional<MenuItemStyle> menuItemStyleFromRaw(std::string_view raw)
{
    for (const auto style : {MenuItemStyle::value, MenuItemStyle::graph, MenuItemStyle::both}) {
        if (raw == rawValue(style))
            return style;
    }
    return std::nullopt;
}

std::string title(MenuItemStyle style)
{
    switch (style) {
    case MenuItemStyle::value: return VEXEL_WORDS("vexel::Vexel", "Value");
    case MenuItemStyle::graph: return VEXEL_WORDS("vexel::Vexel", "Graph");
    case MenuItemStyle::both: return VEXEL_WORDS("vexel::Vexel", "Both");
    }
    return VEXEL_WORDS("vexel::Vexel", "Value");
}

std::vector<MenuItemConfig> defaultMenuItems()
{
    return {
        {MenuItemKind::cpu, true, MenuItemStyle::both},
        {MenuItemKind::memory, true, MenuItemStyle::value},
        {MenuItemKind::network, true, MenuItemStyle::value},
        {MenuItemKind::thermal, false, MenuItemStyle::value},
        {MenuItemKind::battery, false, MenuItemStyle::value},
        {MenuItemKind::disk, false, MenuItemStyle::value},
        {MenuItemKind::gpu, false, MenuItemStyle::graph},
    };
}

} // namespace vexel
