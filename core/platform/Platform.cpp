#include "platform/Platform.h"

namespace vexel {

Platform livePlatform()
{
#if defined(__APPLE__)
    return Platform::macOS;
#else
    return Platform::linux;
#endif
}

std::string machineWord(Platform platform)
{
    return platform == Platform::macOS ? "Mac" : "computer";
}

std::string systemName(Platform platform)
{
    return platform == Platform::macOS ? "macOS" : "Linux";
}

} // namespace vexel
