#include "io/AtomicFile.h"

#include "io/Files.h"

#include <cerrno>
#include <cstdlib>
#include <fcntl.h>
#include <system_error>
#include <unistd.h>

namespace vexel::AtomicFile {

namespace {

[[noreturn]] void fail(const std::string& what, const std::filesystem::path& file, int error)
{
    throw std::filesystem::filesystem_error(what, file, std::error_code(error, std::generic_category()));
}

void writeAll(int fd, const std::string& bytes, const std::filesystem::path& file)
{
    size_t written = 0;
    while (written < bytes.size()) {
        const ssize_t n = ::write(fd, bytes.data() + written, bytes.size() - written);
        if (n < 0 && errno == EINTR)
            continue;
        if (n < 0)
            fail("Couldn't write the file", file, errno);
        written += static_cast<size_t>(n);
    }
}

} // namespace

void write(const std::filesystem::path& file, const std::string& bytes)
{
    if (file.has_parent_path())
        Files::createPrivateFolder(file.parent_path());
    std::string temporary = file.string() + ".XXXXXX";
    const int fd = ::mkstemp(temporary.data()); // 0600: the user's alone
    if (fd < 0)
        fail("Couldn't create the file", file, errno);
    try {
        writeAll(fd, bytes, file);
        if (::fsync(fd) != 0)
            fail("Couldn't write the file", file, errno);
    } catch (...) {
        ::close(fd);
        ::unlink(temporary.c_str());
        throw;
    }
    ::close(fd);
    if (::rename(temporary.c_str(), file.c_str()) != 0) {
        const int error = errno;
        ::unlink(temporary.c_str());
        fail("Couldn't replace the file", file, error);
    }
}

} // namespace vexel::AtomicFile
