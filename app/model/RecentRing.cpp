#include "model/RecentRing.h"

#include <algorithm>

namespace vexel {

RingSample RingSample::of(const Frame& frame)
{
    const auto& system = frame.system;
    RingSample sample;
    sample.t = frame.time;
    sample.cpu = (system.cpu.user + system.cpu.system) * 100;
    sample.mem = system.memory.usedFraction() * 100;
    sample.netIn = system.net.inRate;
    sample.netOut = system.net.outRate;
    sample.diskR = system.disk.readRate;
    sample.diskW = system.disk.writeRate;
    if (system.gpu)
        sample.gpu = system.gpu->utilisation * 100;
    if (system.battery)
        sample.battery = system.battery->percent;
    return sample;
}

void RecentRing::append(const RingSample& sample)
{
    m_samples.push_back(sample);
    while (m_samples.size() > capacity)
        m_samples.pop_front();
}

std::optional<double> RecentRing::peak(std::optional<double> RingSample::*field) const
{
    std::optional<double> largest;
    for (const auto& sample : m_samples) {
        if (const auto value = sample.*field; value && (!largest || *value > *largest))
            largest = value;
    }
    return largest;
}

std::optional<double> RecentRing::peak(double RingSample::*field) const
{
    std::optional<double> largest;
    for (const auto& sample : m_samples)
        largest = std::max(largest.value_or(sample.*field), sample.*field);
    return largest;
}

} // namespace vexel
