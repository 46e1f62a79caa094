#include "grouping/linux/LiveDesktopIndex.h"

#include "io/Files.h"
#include "platform/Environment.h"
#include "processes/Shell.h"

#include <cstdlib>

namespace vexel {

std::shared_ptr<const DesktopIndex> liveDesktopIndex()
{
    const auto resolve = [](const std::string& program) -> std::optional<std::string> {
        const auto path = program.starts_with('/') ? std::optional(program) : Shell::find(program);
        return path ? Files::realPath(*path) : std::nullopt;
    };
    const auto home = homeFolder();
    return std::make_shared<DesktopIndex>(
        DesktopIndex::standardFolders(), resolve, DesktopIndex::standardSharedFolders(home));
}

} // namespace vexel
