#include "processes/linux/DescriptorBudget.h"

#include <algorithm>
#include <sys/resource.h>

namespace vexel {

namespace {

// High enough for a machine of tens of thousands of processes; a tool that
// closes every possible descriptor at its start stays quick.
constexpr rlim_t raisedLimit = 65536;

uint64_t raiseSoftLimit()
{
    rlimit limit{};
    if (::getrlimit(RLIMIT_NOFILE, &limit) != 0)
        return 0;
    const rlim_t wanted = limit.rlim_max == RLIM_INFINITY ? raisedLimit : std::min(limit.rlim_max, raisedLimit);
    if (limit.rlim_cur != RLIM_INFINITY && limit.rlim_cur < wanted) {
        rlimit raised{wanted, limit.rlim_max};
        if (::setrlimit(RLIMIT_NOFILE, &raised) == 0)
            return wanted;
    }
    return limit.rlim_cur == RLIM_INFINITY ? raisedLimit : limit.rlim_cur;
}

} // namespace

DescriptorBudget& DescriptorBudget::program()
{
    static DescriptorBudget budget(shareOf(raiseSoftLimit()));
    return budget;
}

size_t DescriptorBudget::shareOf(uint64_t softLimit)
{
    const uint64_t reserve = std::max<uint64_t>(softLimit / 4, 128);
    return softLimit > reserve ? static_cast<size_t>(softLimit - reserve) : 0;
}

bool DescriptorBudget::take()
{
    size_t used = m_inUse.load(std::memory_order_relaxed);
    while (used < limit()) {
        if (m_inUse.compare_exchange_weak(used, used + 1, std::memory_order_relaxed))
            return true;
    }
    return false;
}

void DescriptorBudget::lowerTo(size_t limit)
{
    size_t current = m_limit.load(std::memory_order_relaxed);
    while (limit < current && !m_limit.compare_exchange_weak(current, limit, std::memory_order_relaxed)) { }
}

void DescriptorBudget::giveBack()
{
    m_inUse.fetch_sub(1, std::memory_order_relaxed);
}

} // namespace vexel
