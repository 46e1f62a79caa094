#include "history/ReadOnlyOpen.h"

#include "format/CFormat.h"

#include <string>

namespace vexel::Sqlite {

namespace {

constexpr const char* vfsName = "vexel-read-only";

sqlite3_vfs* baseVfs = nullptr;

// Every file, the write-ahead log included, is opened read-only and never created.
int openWithoutWriting(sqlite3_vfs*, const char* name, sqlite3_file* file, int flags, int* outFlags)
{
    flags &= ~(SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE | SQLITE_OPEN_DELETEONCLOSE);
    flags |= SQLITE_OPEN_READONLY;
    return baseVfs->xOpen(baseVfs, name, file, flags, outFlags);
}

// Registered once, on first use; the layer lives as long as the process.
void registerVfs()
{
    static const bool registered = [] {
        baseVfs = ::sqlite3_vfs_find(nullptr);
        static sqlite3_vfs layer = *baseVfs;
        layer.zName = vfsName;
        layer.pNext = nullptr;
        layer.xOpen = openWithoutWriting;
        return ::sqlite3_vfs_register(&layer, 0) == SQLITE_OK;
    }();
    (void)registered;
}

bool present(const std::filesystem::path& file)
{
    std::error_code error;
    return std::filesystem::exists(file, error);
}

int open(const std::string& uri, sqlite3** handle)
{
    constexpr int flags = SQLITE_OPEN_READONLY | SQLITE_OPEN_URI | SQLITE_OPEN_FULLMUTEX;
    return ::sqlite3_open_v2(uri.c_str(), handle, flags, vfsName);
}

// A connection that can read its first page: opening alone checks nothing.
bool readable(sqlite3* handle)
{
    return ::sqlite3_exec(handle, "SELECT count(*) FROM sqlite_schema", nullptr, nullptr, nullptr) == SQLITE_OK;
}

} // namespace

std::string fileURI(const std::filesystem::path& file)
{
    std::string uri = "file:";
    for (const char c : file.string()) {
        if (c == '%' || c == '?' || c == '#' || static_cast<unsigned char>(c) < 0x21
            || static_cast<unsigned char>(c) > 0x7e)
            uri += cformat("%%%02X", static_cast<unsigned char>(c));
        else
            uri += c;
    }
    return uri;
}

int openReadOnly(const std::filesystem::path& file, sqlite3** handle)
{
    registerVfs();
    const std::string uri = fileURI(file);
    if (!present(file))
        return SQLITE_CANTOPEN;
    const bool writerFiles = present(file.string() + "-wal") && present(file.string() + "-shm");
    if (writerFiles) {
        const int result = open(uri + "?readonly_shm=1", handle);
        if (result == SQLITE_OK && readable(*handle))
            return SQLITE_OK;
        // The app closed the file between the look and the open, taking its
        // log with it: what it wrote is in the database file now.
        ::sqlite3_close(*handle);
        *handle = nullptr;
    }
    return open(uri + "?immutable=1", handle);
}

} // namespace vexel::Sqlite
