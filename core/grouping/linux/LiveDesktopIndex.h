#pragma once

#include "grouping/linux/DesktopIndex.h"

#include <memory>

namespace vexel {

// The desktop index of this session: the standard application folders, with
// programs resolved on this machine's PATH folders and through symbolic links.
[[nodiscard]] std::shared_ptr<const DesktopIndex> liveDesktopIndex();

} // namespace vexel
