#include "grouping/linux/CgroupLeaf.h"

#include "text/TextScan.h"

#include <cctype>

namespace vexel::CgroupLeaf {

namespace {

bool isRandomTail(std::string_view tail)
{
    if (tail.empty())
        return false;
    for (const char c : tail) {
        if (!std::isxdigit(static_cast<unsigned char>(c)) && c != '-')
            return false;
    }
    return true;
}

// "name-1234" or "name-<uuid>" → "name".
std::string_view withoutRandomTail(std::string_view text)
{
    auto dash = text.rfind('-');
    while (dash != std::string_view::npos && dash > 0 && isRandomTail(text.substr(dash + 1))) {
        const auto earlier = text.rfind('-', dash - 1);
        if (earlier == std::string_view::npos || !isRandomTail(text.substr(earlier + 1)))
            return text.substr(0, dash);
        dash = earlier;
    }
    return text;
}

std::string_view withoutSuffix(std::string_view text, std::string_view suffix)
{
    return text.ends_with(suffix) ? text.substr(0, text.size() - suffix.size()) : text;
}

} // namespace

std::vector<std::string> enclosing(std::string_view cgroup)
{
    std::vector<std::string> units;
    auto end = cgroup.rfind('/');
    while (end != std::string_view::npos && end > 0) {
        const auto start = cgroup.rfind('/', end - 1);
        const auto begin = start == std::string_view::npos ? 0 : start + 1;
        units.push_back(TextScan::unescapeHex(cgroup.substr(begin, end - begin)));
        end = start;
    }
    return units;
}

std::string leaf(std::string_view cgroup)
{
    const auto slash = cgroup.rfind('/');
    const auto last = slash == std::string_view::npos ? cgroup : cgroup.substr(slash + 1);
    return TextScan::unescapeHex(last);
}

std::optional<AppUnit> appUnit(std::string_view leafName)
{
    std::string_view unit = leafName;
    if (unit.ends_with(".scope"))
        unit = withoutSuffix(unit, ".scope");
    else if (unit.ends_with(".service"))
        unit = withoutSuffix(unit, ".service");
    else if (unit.ends_with(".slice") && unit.starts_with("app-"))
        unit = withoutSuffix(unit, ".slice"); // an app's own slice, around its services and scopes
    else
        return std::nullopt;
    if (const auto at = unit.find('@'); at != std::string_view::npos)
        unit = unit.substr(0, at);

    if (unit.starts_with("app-flatpak-")) {
        const auto id = withoutRandomTail(unit.substr(12));
        if (id.empty())
            return std::nullopt;
        return AppUnit{AppUnit::Kind::flatpak, std::string(id), std::string(id), {}};
    }
    if (unit.starts_with("snap.")) {
        const auto rest = unit.substr(5);
        const auto dot = rest.find('.');
        if (dot == 0 || rest.empty())
            return std::nullopt;
        const auto name = rest.substr(0, dot);
        const auto app = dot == std::string_view::npos ? name : withoutRandomTail(rest.substr(dot + 1));
        return AppUnit{AppUnit::Kind::snap, std::string(name), std::string(name), std::string(app)};
    }
    std::string_view id;
    if (unit.starts_with("app-dbus-:"))
        unit = unit.substr(4); // D-Bus activated: "app-dbus-:1.37-org.a11y.atspi.Registry"
    if (unit.starts_with("app-"))
        id = withoutRandomTail(unit.substr(4));
    else if (unit.starts_with("dbus-:")) {
        // dbus-:1.2-org.gnome.Terminal: the bus name, then the id.
        const auto dash = unit.find('-', 6);
        if (dash == std::string_view::npos)
            return std::nullopt;
        id = unit.substr(dash + 1);
    } else {
        return std::nullopt;
    }
    if (id.empty())
        return std::nullopt;
    const auto dash = id.find('-');
    const auto launcherless = dash == std::string_view::npos ? id : id.substr(dash + 1);
    return AppUnit{AppUnit::Kind::launcher, std::string(id), std::string(launcherless), {}};
}

} // namespace vexel::CgroupLeaf
