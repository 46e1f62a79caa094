#include "settings/VexelPaths.h"

#include <cstdlib>
#include <pwd.h>
#include <unistd.h>

namespace vexel {

std::optional<std::string> environmentVariable(const char* name)
{
    const char* value = std::getenv(name);
    if (value == nullptr)
        return std::nullopt;
    return std::string(value);
}

std::string homeFolder()
{
    return homeFolder(environmentVariable);
}

std::string homeFolder(const std::function<std::optional<std::string>(const char*)>& getenv)
{
    if (const auto home = getenv("HOME"); home && !home->empty())
        return *home;
    if (const passwd* entry = ::getpwuid(::getuid()); entry != nullptr && entry->pw_dir != nullptr)
        return entry->pw_dir;
    return "/";
}

VexelPaths VexelPaths::standard(const std::function<std::optional<std::string>(const char*)>& getenv)
{
    if (const auto dir = getenv("VEXEL_DATA_DIR"); dir && !dir->empty())
        return VexelPaths(*dir);
    // Relative values of XDG_DATA_HOME are invalid and must be ignored.
    if (const auto data = getenv("XDG_DATA_HOME"); data && data->starts_with('/'))
        return VexelPaths(std::filesystem::path(*data) / "vexel");
    return VexelPaths(std::filesystem::path(homeFolder(getenv)) / ".local/share/vexel");
}

VexelPaths VexelPaths::standard()
{
    return standard(environmentVariable);
}

} // namespace vexel
