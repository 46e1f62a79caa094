#pragma once

#include "history/AppPoint.h"
#include "history/SysPoint.h"

#include <vector>

namespace vexel::Downsample {

// Every mean is time-weighted: a point weighs its `dur`, a negative one 0.

// One point for a bucket starting at `t` of length `size` (0 for "as long as
// the points"): means of cpu, mem and swap; maxima; sums of byte amounts;
// gpu, power and battery averaged over the points that have them.
[[nodiscard]] SysPoint rollup(const std::vector<SysPoint>& points, double t, double size);

// The points in buckets of `size` seconds, one rolled-up point per non-empty bucket, ascending.
[[nodiscard]] std::vector<SysPoint> regroup(const std::vector<SysPoint>& points, double size);

// The apps worth storing: the `keep` busiest by CPU, then the three leaders
// of memory, energy, disk and network not yet chosen (a leader already
// chosen still uses up its place), in the order chosen.
[[nodiscard]] std::vector<AppPoint> select(const std::vector<AppPoint>& apps, size_t keep);

// One bucket's app points merged per app: CPU averaged over the `covered`
// time (an app present for half the bucket counts as idle for the rest),
// memory over the app's own time, amounts summed; then `select`.
[[nodiscard]] std::vector<AppPoint> rollupApps(
    const std::vector<AppPoint>& apps, double t, double covered, size_t keep);

// How many apps a history names by their core time.
inline constexpr size_t busiestAppCount = 10;

// The apps that kept the processor busiest over `covered` seconds from `t`,
// highest first, at most `count` and none that used none: what both the
// History page and `vexel history` list as core time by app.
[[nodiscard]] std::vector<AppPoint> busiestApps(
    const std::vector<AppPoint>& apps, double t, double covered, size_t count = busiestAppCount);

// App points in buckets of `size`, each bucket's covered time taken from the system points.
[[nodiscard]] std::vector<AppPoint> regroupApps(
    const std::vector<AppPoint>& apps, const std::vector<SysPoint>& sys, double size, size_t keep);

} // namespace vexel::Downsample
