#include "sampling/Sampler.h"

#include "history/Downsample.h"
#include "history/HistoryError.h"
#include "io/Files.h"
#include "spikes/SpikeFinder.h"

#include <exception>
#include <limits>

namespace vexel {

namespace {

constexpr int weekDays = 7;

// The start of the calendar day `daysBack` days before the one holding `now`.
double dayStart(double now, int daysBack, const TimeZone& zone)
{
    // Noon of the day wanted, so that a daylight-saving hour cannot slip into the next or previous day.
    CivilTime noon = zone.civil(vexel::start(HistoryRange::today, now, zone) + 43200 - daysBack * 86400.0);
    noon.hour = noon.minute = noon.second = 0;
    return zone.toEpoch(noon).value_or(now - daysBack * 86400.0);
}

} // namespace

Sampler::Sampler(std::unique_ptr<Monitor> monitor, std::unique_ptr<HistoryStore> store, VexelPaths paths, TimeZone zone)
    : m_monitor(std::move(monitor))
    , m_store(std::move(store))
    , m_paths(std::move(paths))
    , m_zone(zone)
    , m_settings(SettingsFile::load(m_paths.settings()))
    , m_log(ActivityLog::load(m_paths.activity()))
    , m_savedLog(m_log)
{
}

std::unique_ptr<HistoryStore> Sampler::openStore(const VexelPaths& paths, std::optional<Sentence>& error)
{
    try {
        return std::make_unique<HistoryStore>(paths.history(), HistoryAccess::readWrite);
    } catch (const HistoryError& failure) {
        error = failure.said(); // "Couldn't open the history: …" already
    } catch (const std::exception& failure) {
        error = Sentence{VEXEL_WORDS("vexel::Vexel", "Couldn't open the history: %1"), {{failure.what()}}};
    }
    return nullptr;
}

void Sampler::recordUnder(std::unique_ptr<RecorderLock> lock)
{
    m_lock = std::move(lock);
    if (!m_lock->held()) {
        if (m_lock->error())
            m_openError = Sentence{VEXEL_WORDS("vexel::Vexel", "Couldn't open the history: %1"), {{*m_lock->error()}}};
        else
            openForReading();
        return;
    }
    if (!m_store) {
        std::optional<Sentence> error;
        m_store = openStore(m_paths, error);
        m_openError = error;
    }
}

void Sampler::openForReading()
{
    try {
        m_store = std::make_unique<HistoryStore>(m_paths.history(), HistoryAccess::readOnly);
        m_openError.reset();
    } catch (const std::exception& failure) {
        m_store.reset();
        // No file yet is no failure: the recorder makes it.
        m_openError
            = Files::missing(m_paths.history().string()) ? std::nullopt : std::optional(HistoryError::said(failure));
    }
}

std::optional<int64_t> Sampler::otherRecorder() const
{
    if (!m_lock || m_lock->held())
        return std::nullopt;
    return m_lock->holder();
}

TickResult Sampler::tick(double now, const TickPlan& plan)
{
    TickResult result;
    try {
        if (beforeSample)
            beforeSample(now);
        result.frame = m_monitor->sample(now, {.everyone = plan.everyone, .network = plan.network});
        followTheFile(result);
        if (plan.compact)
            takeOverRecording(result);
        if (plan.record)
            record(result.frame, now, result);
        if (plan.compact)
            compact(now, plan, result);
        if (plan.ports)
            scanPorts(result.frame, plan, result);
        if (plan.docker)
            result.docker = m_monitor->dockerState();
        if (plan.totals)
            totals(now, result);
    } catch (const std::exception& failure) {
        result.error = Sentence{VEXEL_WORDS("vexel::Vexel", "Vexel couldn't finish a reading: %1"), {{failure.what()}}};
    }
    result.otherRecorder = otherRecorder();
    return result;
}

void Sampler::followTheFile(TickResult& result)
{
    if (!m_store || !m_store->goneFromItsPath())
        return;
    if (m_store->readOnly()) {
        openForReading(); // the recorder goes on in a file of its own at the path
        return;
    }
    m_store->emptyLog();
    m_store.reset();
    std::optional<Sentence> error;
    m_store = openStore(m_paths, error);
    m_openError = error;
    if (!m_store) {
        result.error = error;
        return;
    }
    result.notice
        = Sentence{VEXEL_WORDS("vexel::Vexel",
                       "%1 was removed or replaced while Vexel was recording, and what it held is gone. Vexel goes on "
                       "recording in the file now at that path, starting with the minute it hadn't written yet."),
            {{m_paths.history().string()}}};
}

void Sampler::takeOverRecording(TickResult& result)
{
    if (!m_lock || m_lock->held())
        return;
    if (!m_lock->take()) {
        if (!m_store)
            openForReading(); // the recorder may have made the file since
        return;
    }
    m_store.reset();
    std::optional<Sentence> error;
    m_store = openStore(m_paths, error);
    m_openError = error;
    if (m_store)
        result.notice = Sentence{
            VEXEL_WORDS("vexel::Vexel", "Vexel's recorder stopped, so this window records the history now.")};
    else
        result.error = error;
}

void Sampler::record(const Frame& frame, double now, TickResult& result)
{
    if (!recording() || !m_batch.add(frame) || !m_batch.due(now))
        return;
    try {
        m_batch.writeTo(*m_store);
    } catch (const std::exception& failure) {
        result.error = HistoryError::said(failure);
    }
}

void Sampler::compact(double now, const TickPlan& plan, TickResult& result)
{
    if (!m_store)
        return;
    try {
        if (m_store->readOnly()) {
            result.historyBytes = m_store->usedBytes();
            return;
        }
        // Limits that stand in for what the user wrote (a settings file that
        // couldn't be read as written) roll history up but expire and trim
        // nothing: the user may have asked to keep more.
        const bool trusted = m_settings.historyLimitsTrusted();
        m_store->maxBytes = trusted ? plan.maxBytes : std::numeric_limits<int64_t>::max();
        const int retentionDays = trusted ? plan.retentionDays : std::numeric_limits<int>::max();
        // What compaction rolls up includes the minute still waiting, written
        // in the compaction's own transaction.
        m_batch.writeTo(*m_store, [&] { m_store->compact(now, retentionDays); });
        m_store->vacuum();
        result.historyBytes = m_store->usedBytes();
    } catch (const std::exception& failure) {
        result.error = HistoryError::said(failure);
    }
}

void Sampler::scanPorts(const Frame& frame, const TickPlan& plan, TickResult& result)
{
    auto listeners = m_monitor->listeners();
    result.servers
        = m_monitor->devServers(frame, listeners.value_or(std::vector<ListenSocket>{}), m_log, plan.idleAfter);
    result.listeners = std::move(listeners).value_or(std::vector<ListenSocket>{});
    if (m_log == m_savedLog)
        return; // a scan every 8 s on the Developers page mostly changes nothing
    try {
        m_log.save(m_paths.activity());
        m_savedLog = m_log;
    } catch (const std::exception&) {
        // The log is a convenience: servers are flagged idle again from their CPU time.
    }
}

void Sampler::totals(double now, TickResult& result)
{
    if (!m_store)
        return;
    try {
        if (recording())
            m_batch.writeTo(*m_store);
        const double today = dayStart(now, 0, m_zone);
        result.today = m_store->totals(today, now);
        std::vector<DayTotal> week;
        for (int back = weekDays - 1; back >= 0; --back) {
            const double start = dayStart(now, back, m_zone);
            const double end = back == 0 ? now : dayStart(now, back - 1, m_zone);
            week.push_back({start, m_store->totals(start, end)});
        }
        result.week = std::move(week);
        result.todaySeries = Downsample::regroup(
            m_store->series(vexel::tier(HistoryRange::today), today, now), vexel::chartBucket(HistoryRange::today));
    } catch (const std::exception& failure) {
        result.error = HistoryError::said(failure);
    }
}

Sampler::HistoryResult Sampler::history(HistoryRange range, double now, const SpikeRules& rules)
{
    HistoryResult result;
    const double from = vexel::start(range, now, m_zone);
    result.from = from;
    result.to = now;
    if (!m_store) {
        result.error = m_openError;
        return result;
    }
    // What is waiting is part of the range; a failure to write it still leaves the rest to read.
    result.error = flush();
    try {
        const auto tier = vexel::tier(range);
        result.points = m_store->series(tier, from, now);
        result.apps = m_store->appSeries(tier, from, now);
        result.spikes = SpikeFinder::find(result.points, result.apps, rules);
        result.first = m_store->firstSample();
    } catch (const std::exception& failure) {
        result = HistoryResult{{}, {}, {}, {}, from, now, HistoryError::said(failure)};
    }
    return result;
}

Paragraph Sampler::saveSettings(const VexelSettings& settings, SettingsFile::Saving saving)
{
    try {
        auto outcome = m_settings.save(settings, saving);
        // Vexel's own bookkeeping leaves a broken file alone: that was said when it was read.
        if (saving == SettingsFile::Saving::automatic)
            return {};
        return std::move(outcome.note);
    } catch (const std::exception& failure) {
        return {Sentence{VEXEL_WORDS("vexel::Vexel", "Couldn't save the settings: %1"), {{failure.what()}}}};
    }
}

std::optional<Sentence> Sampler::flush()
{
    if (!recording())
        return std::nullopt;
    try {
        m_batch.writeTo(*m_store);
        return std::nullopt;
    } catch (const std::exception& failure) {
        return HistoryError::said(failure);
    }
}

std::optional<Sentence> Sampler::erase()
{
    if (const auto recorder = otherRecorder())
        return Sentence{VEXEL_WORDS("vexel::Vexel",
                            "Vexel's recorder (process %1) keeps the history, so it can't be erased from this window. "
                            "Stop the recorder first (systemctl --user stop vexel-recorder)."),
            {{std::to_string(*recorder)}}};
    if (!recording())
        return m_openError.value_or(Sentence{VEXEL_WORDS("vexel::Vexel", "There is no history to erase.")});
    try {
        m_batch = HistoryBatch();
        m_store->eraseAll();
        return std::nullopt;
    } catch (const std::exception& failure) {
        return HistoryError::said(failure);
    }
}

} // namespace vexel
