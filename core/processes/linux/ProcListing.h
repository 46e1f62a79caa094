#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace vexel {

// The process ids in a /proc folder. The folder is read with getdents64 into
// one buffer that grows to hold the machine's whole list, so that a reading
// costs two system calls (the list, then its end) rather than one per few
// dozen entries.
class ProcListing {
public:
    // Replaces `pids` with the folder's numeric entries; false (and no pids)
    // when the folder cannot be opened or listed.
    [[nodiscard]] bool read(const std::string& folder, std::vector<int32_t>& pids);

    // The numeric names among the linux_dirent64 records in `records`, added
    // to `pids`. Stops at a record that does not fit the bytes.
    static void addPids(std::span<const char> records, std::vector<int32_t>& pids);

    // "1234" → 1234; nothing for a name that is not a whole number (a pid is
    // at most 2^22 on Linux, so anything of nine digits or more is no pid).
    [[nodiscard]] static std::optional<int32_t> pidOf(std::string_view name);

private:
    std::vector<char> m_buffer = std::vector<char>(32 * 1024);
};

} // namespace vexel
