#pragma once

#include <string_view>

namespace vexel::Output {

// Writes all of `bytes` to the file descriptor in as few writes as the kernel
// allows (one, for a line to a pipe or terminal), retrying after signals.
// Gives up quietly when the other end is gone.
void writeAll(int fd, std::string_view bytes);

} // namespace vexel::Output
