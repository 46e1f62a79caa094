#pragma once

#include <filesystem>
#include <string>

namespace vexel::AtomicFile {

// Replaces `file` with `bytes` so that a reader sees the old file or the new
// one, never a mixture: the bytes go to a temporary file beside it, are
// flushed, and the temporary file is renamed over the old one. The file is the
// user's alone (0600); a folder made for it too (0700). Throws
// std::filesystem::filesystem_error.
void write(const std::filesystem::path& file, const std::string& bytes);

} // namespace vexel::AtomicFile
