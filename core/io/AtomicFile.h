#pragma once

#include <filesystem>
#include <string>

namespace vexel::AtomicFile {

// Replaces `file` with `bytes` so that a reader sees the old file or the new
// one, never a mixture: the bytes go to a temporary file beside it, are
// flushed to disk, and the temporary file is renamed over the old one, whose
// folder is then flushed too. A `file` that is a symbolic link (a dotfiles
// folder's) is written through to the file it names, and stays a link. An
// existing file keeps its permissions; a new one is the user's alone (0600),
// and a folder made for it too (0700). Throws std::filesystem::filesystem_error.
void write(const std::filesystem::path& file, const std::string& bytes);

// The file that writing `file` changes: `file` itself, or, through any
// number of symbolic links, the path the last one names (it may not exist).
[[nodiscard]] std::filesystem::path target(const std::filesystem::path& file);

} // namespace vexel::AtomicFile
