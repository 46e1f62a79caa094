#include "support/FaultyFiles.h"

#include <sqlite3.h>

#include <atomic>

namespace vexel::testing::FaultyFiles {

namespace {

// Reads left before they fail; negative while healthy.
std::atomic<int> readsLeft{-1};

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

// Every other call passes straight through to the system layer's handle.
template <typename> struct Forward;
template <typename R, typename... A> struct Forward<R (*sqlite3_io_methods::*)(sqlite3_file*, A...)> {
    template <R (*sqlite3_io_methods::*method)(sqlite3_file*, A...)> static R to(sqlite3_file* file, A... args)
    {
        return (real(file)->pMethods->*method)(real(file), args...);
    }
};
template <auto method> constexpr auto pass = &Forward<decltype(method)>::template to<method>;

using M = sqlite3_io_methods;
const sqlite3_io_methods methods{3, pass<&M::xClose>, read, pass<&M::xWrite>, pass<&M::xTruncate>, pass<&M::xSync>,
    pass<&M::xFileSize>, pass<&M::xLock>, pass<&M::xUnlock>, pass<&M::xCheckReservedLock>, pass<&M::xFileControl>,
    pass<&M::xSectorSize>, pass<&M::xDeviceCharacteristics>, pass<&M::xShmMap>, pass<&M::xShmLock>,
    pass<&M::xShmBarrier>, pass<&M::xShmUnmap>, fetch, pass<&M::xUnfetch>};

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
    readsLeft = goodReads < 0 ? 0 : goodReads;
}

void heal()
{
    readsLeft = -1;
}

} // namespace vexel::testing::FaultyFiles
