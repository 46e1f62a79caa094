#pragma once

#include "devservers/ActivityLog.h"
#include "history/HistoryRange.h"
#include "history/HistoryStore.h"
#include "monitor/Monitor.h"
#include "sampling/HistoryBatch.h"
#include "sampling/RecorderLock.h"
#include "sampling/TickPlan.h"
#include "sampling/TickResult.h"
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
// settings file) is touched by one thread only, the one that calls it. No
// call throws: what failed is said in what it returns.
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
        std::optional<Sentence> error; // the history could not be read (or written first)
    };

    // Records into `store`; with none (it could not be opened), nothing is
    // recorded until `recordUnder` finds a history. The settings file of
    // `paths` is read here.
    Sampler(std::unique_ptr<Monitor> monitor, std::unique_ptr<HistoryStore> store, VexelPaths paths,
        TimeZone zone = TimeZone::current());

    // Opens the history of `paths` for writing; when it cannot, the reason,
    // in a sentence for the user ("Couldn't open the history: …").
    static std::unique_ptr<HistoryStore> openStore(const VexelPaths& paths, std::optional<Sentence>& error);

    // How the window shares the data folder with a recorder: holding `lock`,
    // it records; while another process holds it, it reads that process's
    // history read-only (today, the week, History, the away card) and tries
    // the lock again each minute, taking the recording over once it is free.
    void recordUnder(std::unique_ptr<RecorderLock> lock);

    // Called before each reading (the demo world advances its clock there).
    std::function<void(double now)> beforeSample;

    [[nodiscard]] TickResult tick(double now, const TickPlan& plan);
    [[nodiscard]] HistoryResult history(HistoryRange range, double now, const SpikeRules& rules);
    // Writes the points still waiting (at quit, before a read of history
    // elsewhere); the failure, in words, when they could not be written.
    std::optional<Sentence> flush();
    // Forgets every stored point; why not, when it could not.
    std::optional<Sentence> erase();

    // The settings file as this run found it.
    [[nodiscard]] const SettingsFile& settingsFile() const { return m_settings; }
    // Saves the settings (SettingsFile::save); what to tell the user: a
    // failure, or, for the user's own change, that the file can't be read
    // and the change holds until Vexel quits. Nothing when there is nothing to say.
    [[nodiscard]] Paragraph saveSettings(const VexelSettings& settings, SettingsFile::Saving saving);

    // Whether this process writes the history.
    [[nodiscard]] bool recording() const { return m_store && !m_store->readOnly(); }
    // The process that records the history while this one reads it.
    [[nodiscard]] std::optional<int64_t> otherRecorder() const;
    // Why there is no history to show, in words for the user.
    [[nodiscard]] const std::optional<Sentence>& openError() const { return m_openError; }

private:
    void record(const Frame& frame, double now, TickResult& result);
    void compact(double now, const TickPlan& plan, TickResult& result);
    void scanPorts(const Frame& frame, const TickPlan& plan, TickResult& result);
    void totals(double now, TickResult& result);
    // A history removed or replaced while open is left for the file now at
    // the path (a new one when there is none), keeping the points waiting.
    void followTheFile(TickResult& result);
    // With the recorder gone, this process records.
    void takeOverRecording(TickResult& result);
    void openForReading();

    std::unique_ptr<Monitor> m_monitor;
    std::unique_ptr<HistoryStore> m_store;
    std::unique_ptr<RecorderLock> m_lock;
    VexelPaths m_paths;
    TimeZone m_zone;
    SettingsFile m_settings;
    ActivityLog m_log;
    ActivityLog m_savedLog; // as the file holds it: an unchanged log is not written again
    HistoryBatch m_batch;
    std::optional<Sentence> m_openError;
};

} // namespace vexel
