#pragma once

#include <cstddef>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace vexel::Files {

// The first `maxBytes` of a file, read with as few system calls as possible;
// nothing when it cannot be opened or read. /proc and sysfs files report a
// size of 0, so the size is never trusted.
[[nodiscard]] std::optional<std::string> read(const std::string& path, size_t maxBytes = 256 * 1024);

// A whole file of at most `maxBytes`, or why not: the system's error number,
// or EFBIG when the file holds more than `maxBytes`.
struct WholeFile {
    std::optional<std::string> bytes;
    int error = 0;
};
[[nodiscard]] WholeFile readWhole(const std::string& path, size_t maxBytes);

// Reads into `buffer` (reusing its capacity); false when the file cannot be
// read, with errno saying why.
[[nodiscard]] bool readInto(const std::string& path, std::string& buffer, size_t maxBytes = 256 * 1024);

// A sysfs or /proc attribute: a small file's text without surrounding blanks
// and newline; empty when it cannot be read.
[[nodiscard]] std::string readValue(const std::string& path);

// The names in a folder, without "." and ".."; empty when it cannot be listed.
[[nodiscard]] std::vector<std::string> list(const std::string& folder);

// Whether anything (a file, folder or a link to one) exists at `path`.
[[nodiscard]] bool exists(const std::string& path);

// Whether `path` is known not to exist: true only when the system says there
// is no such file, not when the path could not be looked at (a folder without
// permission), so that "nothing there" and "couldn't look" stay apart.
[[nodiscard]] bool missing(const std::string& path);

// Creates `folder` and any missing parent. The folder itself, when made here,
// is the user's alone (0700) whatever the umask; an existing one is left as
// it is. Throws std::filesystem::filesystem_error.
void createPrivateFolder(const std::filesystem::path& folder);

// Makes `file` the user's alone (0600) whatever the umask, creating it empty
// when missing. Throws std::filesystem::filesystem_error.
void makePrivateFile(const std::filesystem::path& file);

// The target of a symbolic link; nothing when `path` is not a readable link.
[[nodiscard]] std::optional<std::string> readLink(const std::string& path);

// The canonical absolute path; nothing when it cannot be resolved.
[[nodiscard]] std::optional<std::string> realPath(const std::string& path);

// The last component of a path ("/a/b" → "b").
[[nodiscard]] std::string baseName(const std::string& path);

} // namespace vexel::Files
