#include "io/AtomicFile.h"

#include "io/Files.h"
#include "io/Output.h"

#include <cerrno>
#include <cstdlib>
#include <fcntl.h>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>

namespace vexel::AtomicFile {

namespace {

// More links than this in a row is a loop, as the kernel counts it.
constexpr int mostLinks = 40;

[[noreturn]] void fail(const std::string& what, const std::filesystem::path& file, int error)
{
    throw std::filesystem::filesystem_error(what, file, std::error_code(error, std::generic_category()));
}

// The rename is on disk once the folder that holds the name is.
void syncFolder(const std::filesystem::path& folder)
{
    const int fd = ::open(folder.empty() ? "." : folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (fd < 0)
        return; // the file is written; only its survival of a power cut is less sure
    ::fsync(fd);
    ::close(fd);
}

} // namespace

std::filesystem::path target(const std::filesystem::path& file)
{
    std::filesystem::path path = file;
    for (int hop = 0; hop < mostLinks; ++hop) {
        const auto link = Files::readLink(path.string());
        if (!link)
            return path;
        const std::filesystem::path named(*link);
        path = named.is_absolute() ? named : path.parent_path() / named;
    }
    fail("Couldn't follow the links to the file", file, ELOOP);
}

void write(const std::filesystem::path& file, const std::string& bytes, Keeping keeping)
{
    const auto destination = target(file);
    if (destination.has_parent_path())
        Files::createPrivateFolder(destination.parent_path());
    struct stat existing { };
    const bool exists = ::stat(destination.c_str(), &existing) == 0;
    std::string temporary = destination.string() + ".XXXXXX";
    const int fd = ::mkstemp(temporary.data()); // 0600 until told otherwise
    if (fd < 0)
        fail("Couldn't create the file", file, errno);
    try {
        const mode_t mode = exists ? existing.st_mode & 07777 : keeping.newFileMode;
        if (mode != 0600 && ::fchmod(fd, mode) != 0)
            fail("Couldn't keep the file's permissions", file, errno);
        if (const int error = Output::writeAll(fd, bytes); error != 0)
            fail("Couldn't write the file", file, error);
        if (keeping.flushed && ::fsync(fd) != 0)
            fail("Couldn't write the file", file, errno);
    } catch (...) {
        ::close(fd);
        ::unlink(temporary.c_str());
        throw;
    }
    ::close(fd);
    if (::rename(temporary.c_str(), destination.c_str()) != 0) {
        const int error = errno;
        ::unlink(temporary.c_str());
        fail("Couldn't replace the file", file, error);
    }
    if (keeping.flushed)
        syncFolder(destination.parent_path());
}

} // namespace vexel::AtomicFile
