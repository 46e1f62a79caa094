#pragma once

#include <sqlite3.h>

#include <filesystem>

namespace vexel::Sqlite {

// Opens a history file for reading without ever opening a file for writing.
// SQLite on its own opens a write-ahead database's "-wal" and "-shm" files
// read-write, creating them when missing, even on a read-only connection; the
// command line and the MCP server must leave the data folder untouched. So:
// when both files are there (the app keeps them, also after it closes) the
// connection reads through a file system layer that opens every file
// read-only, with SQLite's usual locking against the writer; otherwise (a file
// the app never opened, or one copied without them) the database file alone
// holds every committed row and is read as an immutable file.
// A writer holding its locks is waited for up to `busyMilliseconds`. Returns
// SQLite's result code; `handle` is set as sqlite3_open_v2 sets it.
[[nodiscard]] int openReadOnly(const std::filesystem::path& file, sqlite3** handle, int busyMilliseconds);

// The "file:" URI of a path, with the characters URIs reserve escaped.
[[nodiscard]] std::string fileURI(const std::filesystem::path& file);

} // namespace vexel::Sqlite
