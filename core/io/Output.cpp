#include "io/Output.h"

#include <cerrno>
#include <unistd.h>

namespace vexel::Output {

int writeAll(int fd, std::string_view bytes)
{
    size_t done = 0;
    while (done < bytes.size()) {
        const ssize_t written = ::write(fd, bytes.data() + done, bytes.size() - done);
        if (written < 0 && errno == EINTR)
            continue;
        if (written < 0)
            return errno;
        if (written == 0)
            return EIO;
        done += static_cast<size_t>(written);
    }
    return 0;
}

} // namespace vexel::Output
