#include "processes/linux/ProcListing.h"

#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace vexel {

namespace {

// linux_dirent64: d_ino (8 bytes), d_off (8), d_reclen (2), d_type (1), then
// the name, NUL-terminated and padded to the record's length.
constexpr size_t nameOffset = 19;
constexpr size_t lengthOffset = 16;
constexpr size_t mostBuffer = 16 * 1024 * 1024;

} // namespace

std::optional<int32_t> ProcListing::pidOf(std::string_view name)
{
    if (name.empty() || name.size() > 8)
        return std::nullopt;
    int32_t value = 0;
    for (const char c : name) {
        if (c < '0' || c > '9')
            return std::nullopt;
        value = value * 10 + (c - '0');
    }
    return value;
}

void ProcListing::addPids(std::span<const char> records, std::vector<int32_t>& pids)
{
    size_t at = 0;
    while (records.size() - at > nameOffset) {
        uint16_t length = 0;
        std::memcpy(&length, records.data() + at + lengthOffset, sizeof length);
        if (length <= nameOffset || length > records.size() - at)
            return;
        std::string_view name(records.data() + at + nameOffset, length - nameOffset);
        name = name.substr(0, name.find('\0'));
        if (const auto pid = pidOf(name))
            pids.push_back(*pid);
        at += length;
    }
}

bool ProcListing::read(const std::string& folder, std::vector<int32_t>& pids)
{
    pids.clear();
    const int fd = ::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (fd < 0)
        return false;
    size_t total = 0;
    bool listed = true;
    for (;;) {
        const long got = ::syscall(SYS_getdents64, fd, m_buffer.data(), m_buffer.size());
        if (got < 0 && errno == EINTR)
            continue;
        if (got <= 0) {
            listed = got == 0;
            break;
        }
        addPids(std::span(m_buffer.data(), static_cast<size_t>(got)), pids);
        total += static_cast<size_t>(got);
    }
    ::close(fd);
    // The next reading's list fits in one call, with room for new processes.
    if (total + total / 4 > m_buffer.size() && m_buffer.size() < mostBuffer)
        m_buffer.resize(std::min(mostBuffer, total + total / 2));
    if (!listed)
        pids.clear();
    return listed;
}

} // namespace vexel
