#include "io/Output.h"

#include <cerrno>
#include <unistd.h>

namespace vexel::Output {

void writeAll(int fd, std::string_view bytes)
{
    size_t done = 0;
    while (done < bytes.size()) {
        const ssize_t written = ::write(fd, bytes.data() + done, bytes.size() - done);
        if (written < 0 && errno == EINTR)
            continue;
        if (written <= 0)
            return;
        done += static_cast<size_t>(written);
    }
}

} // namespace vexel::Output
