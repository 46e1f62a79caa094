#pragma once

#include <atomic>
#include <cstddef>
#include <cstdint>

namespace vexel {

// How many descriptors the process table may keep open from reading to
// reading. The program has one budget, shared by every source in it, so that
// SQLite, sockets, Qt and the tools Shell starts always find room.
class DescriptorBudget {
public:
    explicit DescriptorBudget(size_t limit)
        : m_limit(limit)
    {
    }

    // The program's budget. The first call raises the soft limit on open
    // files towards the hard limit (the system's soft default of 1,024 is
    // kept low only for programs that still use select()), then keeps a
    // share of it.
    [[nodiscard]] static DescriptorBudget& program();

    // Of `softLimit` descriptors, those the process table may keep: a quarter,
    // and never fewer than 128, stay free for everything else.
    [[nodiscard]] static size_t shareOf(uint64_t softLimit);

    // Claims one descriptor; false when the budget is spent.
    [[nodiscard]] bool take();
    void giveBack();
    // Keeps at most `limit` from now on, after the program ran out of
    // descriptors (a leak elsewhere, or a limit lowered while it runs).
    void lowerTo(size_t limit);

    [[nodiscard]] size_t limit() const { return m_limit.load(std::memory_order_relaxed); }
    [[nodiscard]] size_t inUse() const { return m_inUse.load(std::memory_order_relaxed); }

private:
    std::atomic<size_t> m_limit;
    std::atomic<size_t> m_inUse{0};
};

} // namespace vexel
