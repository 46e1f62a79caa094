#pragma once

#include "grouping/linux/DesktopIndex.h"
#include "grouping/linux/DesktopIndexSource.h"

#include <memory>

namespace vexel {

// The desktop index of this session: the standard application folders, with
// programs resolved on this machine's PATH folders and through symbolic links.
[[nodiscard]] std::shared_ptr<const DesktopIndex> liveDesktopIndex();

// The same, rebuilt when an app is installed or removed while Vexel runs.
[[nodiscard]] std::shared_ptr<DesktopIndexSource> liveDesktopIndexSource();

} // namespace vexel
