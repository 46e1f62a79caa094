#include "settings/VexelPaths.h"

#include "platform/Environment.h"

namespace vexel {

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
