#pragma once

#include <string_view>

namespace vexel::Output {

// Writes all of `bytes` to the file descriptor in as few writes as the kernel
// allows (one, for a line to a pipe or terminal), retrying after signals.
// The errno of the write that failed (ENOSPC for a full disk, EPIPE when the
// other end is gone), or 0 when everything was written.
int writeAll(int fd, std::string_view bytes);

} // namespace vexel::Output
