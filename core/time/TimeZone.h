#pragma once

#include <optional>

namespace vexel {

// A calendar date and time of day, as a person reads it off a clock.
struct CivilTime {
    int year = 1970;
    int month = 1; // 1…12
    int day = 1; // 1…31
    int hour = 0;
    int minute = 0;
    int second = 0;
};

// The zone in which civil times are read: the machine's local zone (with its
// daylight-saving rules) or a fixed offset from UTC.
struct TimeZone {
    bool local = true;
    int offsetSeconds = 0; // east of UTC, when not local

    [[nodiscard]] static TimeZone current() { return {}; }
    [[nodiscard]] static TimeZone fixed(int offsetSeconds) { return {false, offsetSeconds}; }

    // Seconds since the Unix epoch of a civil time in this zone; nothing for
    // an impossible date.
    [[nodiscard]] std::optional<double> toEpoch(const CivilTime& civil) const;

    // The civil time of an instant in this zone, and its weekday (0 = Sunday).
    [[nodiscard]] CivilTime civil(double epoch, int* weekday = nullptr) const;
};

} // namespace vexel
