#pragma once

#include <filesystem>
#include <string>

namespace vexel::AtomicFile {

// How a file is kept. What the user keeps (settings, logs) is flushed to
// disk and, when new, the user's alone. A file rewritten at every tick for
// another program to read (metrics for node_exporter's collector, which runs
// as another user) is readable by all and left to the kernel to flush: the
// next tick rewrites it anyway.
struct Keeping {
    unsigned newFileMode = 0600;
    bool flushed = true;
};

// Replaces `file` with `bytes` so that a reader sees the old file or the new
// one, never a mixture: the bytes go to a temporary file beside it (named
// FILE.XXXXXX, which no collector of *.prom files reads), and the temporary
// file is renamed over the old one; when `flushed`, both the file and its
// folder are flushed to disk first. A `file` that is a symbolic link (a
// dotfiles folder's) is written through to the file it names, and stays a
// link. An existing file keeps its permissions; a new one has
// `newFileMode`, and a folder made for it is the user's alone (0700).
// Throws std::filesystem::filesystem_error.
void write(const std::filesystem::path& file, const std::string& bytes, Keeping keeping = {});

// The file that writing `file` changes: `file` itself, or, through any
// number of symbolic links, the path the last one names (it may not exist).
[[nodiscard]] std::filesystem::path target(const std::filesystem::path& file);

} // namespace vexel::AtomicFile
