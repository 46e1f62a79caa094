#pragma once

#include "processes/linux/DescriptorBudget.h"

#include <optional>
#include <span>
#include <string_view>

namespace vexel {

// A /proc file opened once and read again from its start at each reading,
// which costs one system call instead of three (open, read, close) and no
// path lookup. The descriptor is kept while the budget allows; otherwise the
// file is opened and closed each time. A kept /proc/<pid> descriptor belongs
// to the process it was opened for: once that process has ended it answers
// ESRCH, even when its pid has been given to a new one.
class KeptFile {
public:
    KeptFile() = default;
    ~KeptFile() { close(); }
    KeptFile(KeptFile&& other) noexcept;
    KeptFile& operator=(KeptFile&& other) noexcept;
    KeptFile(const KeptFile&) = delete;
    KeptFile& operator=(const KeptFile&) = delete;

    // The file's first `buffer.size()` bytes: through the kept descriptor,
    // or by opening `path` when none is kept (then keeping it when `budget`
    // allows). Nothing, with errno saying why, when it cannot be read; a kept
    // descriptor that fails is closed.
    [[nodiscard]] std::optional<std::string_view> read(
        const char* path, std::span<char> buffer, DescriptorBudget& budget);

    [[nodiscard]] bool kept() const { return m_fd >= 0; }
    void close();

private:
    int m_fd = -1;
    DescriptorBudget* m_budget = nullptr;
};

} // namespace vexel
