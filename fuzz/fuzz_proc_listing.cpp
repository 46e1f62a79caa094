// getdents64 records of /proc: the walk stays within its bytes and every pid
// it finds is a whole number.

#include "FuzzInput.h"
#include "processes/linux/ProcListing.h"

#include <span>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    std::vector<int32_t> pids;
    const auto text = fuzzText(data, size);
    vexel::ProcListing::addPids(std::span(text.data(), text.size()), pids);
    require(pids.size() <= size / 20);
    for (const int32_t pid : pids)
        require(pid >= 0);
    return 0;
}
