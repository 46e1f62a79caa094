#include "support/FaultyFiles.h"

#include <sqlite3.h>

#include <atomic>

namespace vexel::testing::FaultyFiles {

namespace {

// Reads left before they fail; negative while healthy.
std::atomic<int> readsLeft{-1};
std::atomic<int> failures{0};

sqlite3_vfs* systemLayer = nullptr;

// Our handle, followed in memory by the system layer's handle of the same file.
struct FaultyFile {
    sqlite3_file base;
    sqlite3_file* real;
};

sqlite3_file* real(sqlite3_file* file)
{
    return reinterpret_cast<FaultyFile*>(file)->real;
}

bool readFails()
{
    int left = readsLeft.load();
    while (left > 0 && !readsLeft.compare_exchange_weak(left, left - 1)) { }
    if (left != 0)
        return false;
    ++failures;
    return true;
}

int read(sqlite3_file* file, void* buffer, int amount, sqlite3_int64 offset)
{
    if (readFails())
        return SQLITE_IOERR_READ;
    return real(file)->pMethods->xRead(real(file), buffer, amount, offset);
}

int fetch(sqlite3_file* file, sqlite3_int64 offset, int amount, void** pages)
{
    if (readsLeft.load() >= 0) {
        *pages = nullptr; // no mapped pages while reads may fail: SQLite reads instead
        return SQLITE_OK;
    }
    return real(file)->pMethods->xFetch(real(file), offset, amount, pages);
}

int close(sqlite3_file* file)
{
    return real(file)->pMethods->xClose(real(file));
}

// The rest pass straight through.
int write(sqlite3_file* f, const void* b, int n, sqlite3_int64 o)
{
    return real(f)->pMethods->xWrite(real(f), b, n, o);
}
int truncate(sqlite3_file* f, sqlite3_int64 size)
{
    return real(f)->pMethods->xTruncate(real(f), size);
}
int sync(sqlite3_file* f, int flags)
{
    return real(f)->pMethods->xSync(real(f), flags);
}
int fileSize(sqlite3_file* f, sqlite3_int64* size)
{
    return real(f)->pMethods->xFileSize(real(f), size);
}
int lock(sqlite3_file* f, int level)
{
    return real(f)->pMethods->xLock(real(f), level);
}
int unlock(sqlite3_file* f, int level)
{
    return real(f)->pMethods->xUnlock(real(f), level);
}
int checkReservedLock(sqlite3_file* f, int* out)
{
    return real(f)->pMethods->xCheckReservedLock(real(f), out);
}
int fileControl(sqlite3_file* f, int op, void* arg)
{
    return real(f)->pMethods->xFileControl(real(f), op, arg);
}
int sectorSize(sqlite3_file* f)
{
    return real(f)->pMethods->xSectorSize(real(f));
}
int deviceCharacteristics(sqlite3_file* f)
{
    return real(f)->pMethods->xDeviceCharacteristics(real(f));
}
int shmMap(sqlite3_file* f, int region, int size, int extend, void volatile** out)
{
    return real(f)->pMethods->xShmMap(real(f), region, size, extend, out);
}
int shmLock(sqlite3_file* f, int offset, int n, int flags)
{
    return real(f)->pMethods->xShmLock(real(f), offset, n, flags);
}
void shmBarrier(sqlite3_file* f)
{
    real(f)->pMethods->xShmBarrier(real(f));
}
int shmUnmap(sqlite3_file* f, int deleteFlag)
{
    return real(f)->pMethods->xShmUnmap(real(f), deleteFlag);
}
int unfetch(sqlite3_file* f, sqlite3_int64 offset, void* page)
{
    return real(f)->pMethods->xUnfetch(real(f), offset, page);
}

const sqlite3_io_methods methods{3, close, read, write, truncate, sync, fileSize, lock, unlock, checkReservedLock,
    fileControl, sectorSize, deviceCharacteristics, shmMap, shmLock, shmBarrier, shmUnmap, fetch, unfetch};

int open(sqlite3_vfs*, const char* name, sqlite3_file* file, int flags, int* outFlags)
{
    auto* ours = reinterpret_cast<FaultyFile*>(file);
    ours->real = reinterpret_cast<sqlite3_file*>(ours + 1);
    ours->base.pMethods = nullptr;
    const int result = systemLayer->xOpen(systemLayer, name, ours->real, flags, outFlags);
    if (ours->real->pMethods != nullptr)
        ours->base.pMethods = &methods;
    return result;
}

// Installed before main: a layer registered later would not sit under the
// history's read-only layer, which wraps whatever is the default when it
// first opens a file.
[[maybe_unused]] const bool installed = [] {
    systemLayer = ::sqlite3_vfs_find(nullptr);
    static sqlite3_vfs layer = *systemLayer;
    layer.zName = "vexel-faulty";
    layer.pNext = nullptr;
    layer.szOsFile = static_cast<int>(sizeof(FaultyFile)) + systemLayer->szOsFile;
    layer.xOpen = open;
    return ::sqlite3_vfs_register(&layer, 1) == SQLITE_OK;
}();

} // namespace

void failReadsAfter(int goodReads)
{
    failures = 0;
    readsLeft = goodReads < 0 ? 0 : goodReads;
}

void heal()
{
    readsLeft = -1;
}

int failedReads()
{
    return failures.load();
}

} // namespace vexel::testing::FaultyFiles
