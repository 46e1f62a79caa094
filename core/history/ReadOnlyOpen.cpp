#include "history/ReadOnlyOpen.h"

#include "format/CFormat.h"
#include "history/Sqlite.h"
#include "io/Files.h"

#include <chrono>
#include <string>
#include <thread>

namespace vexel::Sqlite {

namespace {

constexpr const char* vfsName = "vexel-read-only";
// A first read: it fails on a file that is not a database, and waits out a writer's recovery.
constexpr const char* probe = "SELECT count(*) FROM sqlite_schema";

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

int open(const std::string& uri, sqlite3** handle)
{
    constexpr int flags = SQLITE_OPEN_READONLY | SQLITE_OPEN_URI | SQLITE_OPEN_FULLMUTEX;
    const int result = ::sqlite3_open_v2(uri.c_str(), handle, flags, vfsName);
    // Sorting or grouping more rows than the page cache holds would spill to
    // temporary files, which the layer above cannot create: keep them in memory.
    if (result == SQLITE_OK)
        ::sqlite3_exec(*handle, "PRAGMA temp_store=MEMORY", nullptr, nullptr, nullptr);
    return result;
}

int openThroughLog(const std::string& uri, sqlite3** handle, int busyMilliseconds)
{
    constexpr int pauseMilliseconds = 5;
    for (int waited = 0;; waited += pauseMilliseconds) {
        int result = open(uri + "?readonly_shm=1", handle);
        if (result == SQLITE_OK) {
            ::sqlite3_extended_result_codes(*handle, 1);
            ::sqlite3_busy_timeout(*handle, busyMilliseconds);
            result = ::sqlite3_exec(*handle, probe, nullptr, nullptr, nullptr);
            if (result == SQLITE_OK)
                return SQLITE_OK;
        }
        if (!transient(result) || waited >= busyMilliseconds)
            return result;
        ::sqlite3_close(*handle);
        *handle = nullptr;
        std::this_thread::sleep_for(std::chrono::milliseconds(pauseMilliseconds));
    }
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

int openReadOnly(const std::filesystem::path& file, sqlite3** handle, int busyMilliseconds)
{
    registerVfs();
    const std::string uri = fileURI(file);
    if (!Files::exists(file.string()))
        return SQLITE_CANTOPEN;
    const std::string log = file.string() + "-wal";
    const std::string index = file.string() + "-shm";
    if (Files::exists(log) && Files::exists(index)) {
        const int result = openThroughLog(uri, handle, busyMilliseconds);
        if (result == SQLITE_OK || (Files::exists(log) && Files::exists(index)))
            return result;
        // The files went between the look and the open (removed by hand or
        // by an older writer): what was committed is in the database file.
        ::sqlite3_close(*handle);
        *handle = nullptr;
    }
    const int result = open(uri + "?immutable=1", handle);
    // Opening reads nothing yet; the first read tells a database from other bytes.
    return result == SQLITE_OK ? ::sqlite3_exec(*handle, probe, nullptr, nullptr, nullptr) : result;
}

} // namespace vexel::Sqlite
