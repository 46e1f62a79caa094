#include "system/CounterDeltas.h"

namespace vexel {

namespace {

uint64_t forward(uint64_t previous, uint64_t current)
{
    return current >= previous ? current - previous : 0;
}

} // namespace

void CounterDeltas::add(std::string_view name, uint64_t first, uint64_t second)
{
    const auto previous = m_previous.find(name);
    if (previous != m_previous.end()) {
        m_firstDelta += forward(previous->second.first, first);
        m_secondDelta += forward(previous->second.second, second);
    }
    m_current.insert_or_assign(std::string(name), std::pair{first, second});
}

std::pair<double, double> CounterDeltas::finish(double now)
{
    std::pair<double, double> rates{0.0, 0.0};
    if (m_previousTime && now > *m_previousTime) {
        const double dt = now - *m_previousTime;
        rates = {static_cast<double>(m_firstDelta) / dt, static_cast<double>(m_secondDelta) / dt};
    }
    m_previous.swap(m_current);
    m_current.clear();
    m_previousTime = now;
    m_firstDelta = 0;
    m_secondDelta = 0;
    return rates;
}

} // namespace vexel
