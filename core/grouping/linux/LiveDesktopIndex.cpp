#include "grouping/linux/LiveDesktopIndex.h"

#include "grouping/linux/ProgramPaths.h"
#include "platform/Environment.h"
#include "processes/Shell.h"

#include <chrono>

namespace vexel {

std::shared_ptr<const DesktopIndex> liveDesktopIndex()
{
    const auto resolve = [folders = Shell::searchFolders()](
                             const std::string& program) { return ProgramPaths::resolve("", program, folders); };
    const auto home = homeFolder();
    return std::make_shared<DesktopIndex>(
        DesktopIndex::standardFolders(), resolve, DesktopIndex::standardSharedFolders(home));
}

std::shared_ptr<DesktopIndexSource> liveDesktopIndexSource()
{
    const auto clock
        = [] { return std::chrono::duration<double>(std::chrono::steady_clock::now().time_since_epoch()).count(); };
    return std::make_shared<DesktopIndexSource>(DesktopIndex::standardFolders(), liveDesktopIndex, clock);
}

} // namespace vexel
