#pragma once

#include "devservers/ActivityLog.h"
#include "history/HistoryRange.h"
#include "history/HistoryStore.h"
#include "model/HistoryBatch.h"
#include "model/TickPlan.h"
#include "model/TickResult.h"
#include "monitor/Monitor.h"
#include "settings/SettingsFile.h"
#include "settings/VexelPaths.h"
#include "spikes/Spike.h"
#include "spikes/SpikeRules.h"
#include "time/TimeZone.h"

#include <functional>
#include <memory>
#include <optional>

namespace vexel {

// Does the slow work of the desktop app and the recorder: samples the
// machine, keeps history, scans ports and containers, reads and saves the
// settings. Everything it owns (the monitor, the store, the activity log, the
// settings file) is touched by one thread only, the one that calls it.
class Sampler {
public:
    // A loaded range of history with its spikes.
    struct HistoryResult {
        std::vector<SysPoint> points;
        std::vector<AppPoint> apps;
        std::vector<Spike> spikes;
        std::optional<double> first; // the oldest stored sample
        double from = 0; // the range read
        double to = 0;
    };

    // `store` is absent when the history could not be opened or another
    // process records it: then nothing is recorded, and `setOpenError` says
    // why. The settings file of `paths` is read here.
    Sampler(std::unique_ptr<Monitor> monitor, std::unique_ptr<HistoryStore> store, VexelPaths paths,
        TimeZone zone = TimeZone::current());

    // Opens the history of `paths` for writing; when it cannot, the reason,
    // in a sentence for the user ("Couldn't open the history: …").
    static std::unique_ptr<HistoryStore> openStore(const VexelPaths& paths, std::optional<std::string>& error);

    // Called before each reading (the demo world advances its clock there).
    std::function<void(double now)> beforeSample;

    [[nodiscard]] TickResult tick(double now, const TickPlan& plan);
    [[nodiscard]] HistoryResult history(HistoryRange range, double now, const SpikeRules& rules);
    // Writes the points still waiting (at quit, before a read of history elsewhere).
    void flush();
    // Forgets every stored point.
    void erase();

    // The settings file as this run found it.
    [[nodiscard]] const SettingsFile& settingsFile() const { return m_settings; }
    // Saves the settings (SettingsFile::save); what to tell the user: a
    // failure, or, for the user's own change, what became of a file that
    // could not be read. Nothing when there is nothing to say.
    [[nodiscard]] std::optional<std::string> saveSettings(const VexelSettings& settings, SettingsFile::Saving saving);

    [[nodiscard]] bool recording() const { return m_store != nullptr; }
    [[nodiscard]] const std::optional<std::string>& openError() const { return m_openError; }
    // Why there is no store, in words for the user.
    void setOpenError(std::string why) { m_openError = std::move(why); }

private:
    void record(const Frame& frame, double now, TickResult& result);
    void compact(double now, const TickPlan& plan, TickResult& result);
    void scanPorts(const Frame& frame, const TickPlan& plan, TickResult& result);
    void totals(double now, TickResult& result);

    std::unique_ptr<Monitor> m_monitor;
    std::unique_ptr<HistoryStore> m_store;
    VexelPaths m_paths;
    TimeZone m_zone;
    SettingsFile m_settings;
    ActivityLog m_log;
    ActivityLog m_savedLog; // as the file holds it: an unchanged log is not written again
    HistoryBatch m_batch;
    std::optional<std::string> m_openError;
};

} // namespace vexel
