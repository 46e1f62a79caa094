#pragma once

#include "grouping/Identity.h"
#include "processes/ProcRecord.h"

#include <optional>
#include <string>
#include <vector>

namespace vexel {

// One process as a row inside its app.
struct ProcRow {
    ProcKey key;
    int32_t pid = 0;
    int32_t ppid = 0;
    std::string name;
    std::optional<std::string> path;
    bool zombie = false;
    double cpu = 0; // cores
    uint64_t memory = 0; // bytes
    bool memoryIsFootprint = false;
    bool readable = false; // its counters could be read
    double start = 0; // seconds since the epoch
    uint32_t uid = 0; // its user

    bool operator==(const ProcRow&) const = default;
};

// Every process of one app, service family or tool, summed.
struct AppGroup {
    std::string id; // the identity key
    std::string name;
    AppKind kind = AppKind::tool;
    std::optional<std::string> path;
    std::optional<int32_t> mainPID;
    std::vector<ProcRow> processes;
    double cpu = 0; // cores
    uint64_t memory = 0; // bytes
    bool memoryApprox = false; // some member's memory is a resident size, not a footprint
    std::optional<double> energyW;
    bool energyEstimated = false; // the watts come from CPU use, not a meter
    double diskRead = 0; // bytes per second
    double diskWrite = 0;
    double netIn = 0;
    double netOut = 0;
    int unreadable = 0; // members whose counters could not be read
    int zombies = 0;

    bool operator==(const AppGroup&) const = default;
};

} // namespace vexel
