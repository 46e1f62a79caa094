#pragma once

#include "grouping/AppSort.h"
#include "history/HistoryRange.h"
#include "history/HistoryStore.h"
#include "monitor/Monitor.h"
#include "platform/Platform.h"
#include "settings/VexelPaths.h"
#include "settings/VexelSettings.h"
#include "time/TimeZone.h"

#include <nlohmann/json.hpp>

#include <functional>
#include <memory>
#include <optional>

namespace vexel {

// Turns one settled frame of the machine, the recorded history and the spike
// finder into reports: plain JSON objects (keys sorted), shared by the command
// line, its tables and the MCP tools. Read-only: it never writes history,
// settings or the activity log. Used from one thread.
class VexelService {
public:
    using Clock = std::function<double()>;
    using MonitorFactory = std::function<std::unique_ptr<Monitor>()>;

    // How the frame gets its second sample, a second after the first: by
    // sleeping that second (real use), or by sampling one second before
    // `now()` and at it (fixture worlds, which move on their own clock).
    enum class Settle { sleeping, onTheClock };

    // `platform` picks the words of the texts.
    explicit VexelService(VexelPaths paths, TimeZone calendar = TimeZone::current(), Clock now = currentTime,
        MonitorFactory makeMonitor = Monitor::live, Settle settle = Settle::sleeping,
        Platform platform = livePlatform());

    // The monitor, made on first use.
    [[nodiscard]] Monitor& monitor();
    // The settings file's settings; defaults when it is missing or unreadable.
    [[nodiscard]] VexelSettings settings() const;
    // The one frame every report of this service reads, taken on first use.
    [[nodiscard]] const Frame& frame();
    // The history opened read-only; nothing when there is no history file.
    // Raises HistoryError when the file is there but will not open.
    [[nodiscard]] std::unique_ptr<HistoryStore> openStore() const;

    [[nodiscard]] nlohmann::json status();
    // Apps by `sort`, highest first, at most min(max(limit, 1), 200).
    [[nodiscard]] nlohmann::json topApps(AppSort sort, long long limit);
    // One app and its processes. Raises ReportError when no app matches.
    [[nodiscard]] nlohmann::json appDetail(const std::string& name);
    [[nodiscard]] nlohmann::json portsReport();
    [[nodiscard]] nlohmann::json serversReport();
    [[nodiscard]] nlohmann::json dockerReport();
    // Raise ReportError without history, HistoryError when it will not open or cannot be read.
    [[nodiscard]] nlohmann::json history(HistoryRange range);
    [[nodiscard]] nlohmann::json spikes(double hours);

    // One app group as a report row; CPU of the machine over `cores`.
    [[nodiscard]] static nlohmann::json appRow(const AppGroup& group, int cores);

    [[nodiscard]] Platform platform() const { return m_platform; }
    // The home folder, for paths shown as ~/… in tables.
    [[nodiscard]] std::string home() { return monitor().home(); }

private:
    [[nodiscard]] std::unique_ptr<HistoryStore> requireStore() const;
    // Today's byte totals for the status report; null without a readable history.
    [[nodiscard]] nlohmann::json todayPart() const;
    // The listening sockets, read once beside the frame; empty when unreadable.
    [[nodiscard]] const std::vector<ListenSocket>& listeners();

    VexelPaths m_paths;
    TimeZone m_calendar;
    Clock m_now;
    std::unique_ptr<Monitor> m_monitorStorage;
    MonitorFactory m_makeMonitor;
    Settle m_settle;
    std::optional<Frame> m_cachedFrame;
    std::optional<std::vector<ListenSocket>> m_listeners;
    Platform m_platform;
};

} // namespace vexel
