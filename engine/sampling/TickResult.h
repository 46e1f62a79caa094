#pragma once

#include "devservers/DevServers.h"
#include "devservers/DockerState.h"
#include "devservers/ListenSocket.h"
#include "history/HistoryStore.h"
#include "history/SysPoint.h"
#include "monitor/Frame.h"
#include "text/Sentence.h"

#include <optional>
#include <string>
#include <vector>

namespace vexel {

// Bytes read, written, received and sent over one calendar day.
struct DayTotal {
    double day = 0; // the day's start, seconds since the epoch
    HistoryStore::Totals totals;
};

// What one tick produced. An absent item was not read this tick: the model
// keeps what it has.
struct TickResult {
    Frame frame;
    std::optional<std::vector<ProjectGroup>> servers;
    std::optional<std::vector<ListenSocket>> listeners;
    std::optional<DockerState> docker;
    std::optional<HistoryStore::Totals> today;
    std::optional<std::vector<DayTotal>> week;
    std::optional<std::vector<SysPoint>> todaySeries;
    std::optional<int64_t> historyBytes;
    std::optional<Sentence> error; // the history's failure this tick
    std::optional<Sentence> notice; // something to tell once (the history file was replaced, …)
    std::optional<int64_t> otherRecorder; // the process recording the history this one reads
};

} // namespace vexel
