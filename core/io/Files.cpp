#include "io/Files.h"

#include "text/TextScan.h"

#include <cerrno>
#include <climits>
#include <cstdlib>
#include <dirent.h>
#include <fcntl.h>
#include <memory>
#include <sys/stat.h>
#include <unistd.h>

namespace vexel::Files {

namespace {

struct CloseFd {
    int fd;
    ~CloseFd()
    {
        const int error = errno; // the caller is told why the read failed, not how the close went
        if (fd >= 0)
            ::close(fd);
        errno = error;
    }
};

struct CloseDir {
    void operator()(DIR* dir) const { ::closedir(dir); }
};

} // namespace

bool readInto(const std::string& path, std::string& buffer, size_t maxBytes)
{
    buffer.clear();
    CloseFd file{::open(path.c_str(), O_RDONLY | O_CLOEXEC)};
    if (file.fd < 0)
        return false;
    size_t used = 0;
    size_t chunk = 4096;
    while (used < maxBytes) {
        buffer.resize(std::min(used + chunk, maxBytes));
        const ssize_t got = ::read(file.fd, buffer.data() + used, buffer.size() - used);
        if (got < 0) {
            if (errno == EINTR)
                continue;
            buffer.clear();
            return false;
        }
        if (got == 0)
            break;
        used += static_cast<size_t>(got);
        chunk *= 2;
    }
    buffer.resize(used);
    return true;
}

std::optional<std::string> read(const std::string& path, size_t maxBytes)
{
    std::string buffer;
    if (!readInto(path, buffer, maxBytes))
        return std::nullopt;
    return buffer;
}

WholeFile readWhole(const std::string& path, size_t maxBytes)
{
    std::string buffer;
    errno = 0;
    if (!readInto(path, buffer, maxBytes + 1))
        return {std::nullopt, errno != 0 ? errno : EIO};
    if (buffer.size() > maxBytes)
        return {std::nullopt, EFBIG};
    return {std::move(buffer), 0};
}

std::string readValue(const std::string& path)
{
    std::string text;
    if (!readInto(path, text, 4096))
        return {};
    return std::string(TextScan::trim(text));
}

std::vector<std::string> list(const std::string& folder)
{
    std::vector<std::string> names;
    std::unique_ptr<DIR, CloseDir> dir(::opendir(folder.c_str()));
    if (!dir)
        return names;
    while (const dirent* entry = ::readdir(dir.get())) {
        const std::string name = entry->d_name;
        if (name != "." && name != "..")
            names.push_back(name);
    }
    return names;
}

bool exists(const std::string& path)
{
    struct stat info { };
    return ::stat(path.c_str(), &info) == 0;
}

void createPrivateFolder(const std::filesystem::path& folder)
{
    std::error_code error;
    if (std::filesystem::is_directory(folder, error))
        return;
    if (folder.has_parent_path())
        std::filesystem::create_directories(folder.parent_path());
    if (::mkdir(folder.c_str(), 0700) != 0) {
        if (errno == EEXIST && std::filesystem::is_directory(folder, error))
            return; // made by someone else meanwhile
        throw std::filesystem::filesystem_error(
            "Couldn't create the folder", folder, std::error_code(errno, std::generic_category()));
    }
    ::chmod(folder.c_str(), 0700); // the umask may have taken bits away
}

void makePrivateFile(const std::filesystem::path& file)
{
    const int fd = ::open(file.c_str(), O_WRONLY | O_CREAT | O_CLOEXEC, 0600);
    if (fd < 0 || ::fchmod(fd, 0600) != 0) {
        const int error = errno;
        if (fd >= 0)
            ::close(fd);
        throw std::filesystem::filesystem_error(
            "Couldn't make the file private", file, std::error_code(error, std::generic_category()));
    }
    ::close(fd);
}

bool missing(const std::string& path)
{
    struct stat info { };
    return ::stat(path.c_str(), &info) != 0 && (errno == ENOENT || errno == ENOTDIR);
}

std::optional<std::string> readLink(const std::string& path)
{
    char target[PATH_MAX];
    const ssize_t length = ::readlink(path.c_str(), target, sizeof target);
    if (length <= 0 || static_cast<size_t>(length) >= sizeof target)
        return std::nullopt;
    return std::string(target, static_cast<size_t>(length));
}

std::optional<std::string> realPath(const std::string& path)
{
    std::unique_ptr<char, decltype(&std::free)> resolved(::realpath(path.c_str(), nullptr), &std::free);
    if (!resolved)
        return std::nullopt;
    return std::string(resolved.get());
}

std::string baseName(const std::string& path)
{
    auto end = path.size();
    while (end > 1 && path[end - 1] == '/')
        --end;
    if (end == 1 && path[0] == '/')
        return "/";
    const auto slash = path.rfind('/', end - 1);
    return slash == std::string::npos ? path.substr(0, end) : path.substr(slash + 1, end - slash - 1);
}

} // namespace vexel::Files
