#pragma once

#include "monitor/Frame.h"

#include <deque>
#include <optional>

namespace vexel {

// One recent reading, for the small live traces.
struct RingSample {
    double t = 0;
    double cpu = 0; // total CPU, percent
    double mem = 0; // memory in use, percent 0…100
    double netIn = 0; // bytes per second
    double netOut = 0;
    double diskR = 0;
    double diskW = 0;
    std::optional<double> gpu; // percent
    std::optional<double> battery; // percent

    bool operator==(const RingSample&) const = default;

    // The reading of a frame's snapshot.
    [[nodiscard]] static RingSample of(const Frame& frame);
};

// The last few minutes of readings: at most `capacity`, the oldest dropped first.
class RecentRing {
public:
    static constexpr size_t capacity = 150;

    void append(const RingSample& sample);
    [[nodiscard]] const std::deque<RingSample>& samples() const { return m_samples; }
    // The largest value of one field over the ring; absent when empty or never present.
    [[nodiscard]] std::optional<double> peak(std::optional<double> RingSample::*field) const;
    [[nodiscard]] std::optional<double> peak(double RingSample::*field) const;

private:
    std::deque<RingSample> m_samples;
};

} // namespace vexel
