#include "recorder/HeadlessRecorder.h"

#include "StopSignals.h"
#include "model/Cadence.h"
#include "model/Sampler.h"
#include "recorder/RecorderLock.h"

#include <cerrno>
#include <cmath>
#include <csignal>
#include <ctime>
#include <iostream>

namespace vexel {

namespace {

// Waits `seconds` for a stop signal; whether one came.
bool stopRequested(const sigset_t& signals, double seconds)
{
    timespec wait{};
    wait.tv_sec = static_cast<time_t>(seconds);
    wait.tv_nsec = static_cast<long>((seconds - std::floor(seconds)) * 1e9);
    for (;;) {
        if (::sigtimedwait(&signals, nullptr, &wait) >= 0)
            return true;
        if (errno != EINTR)
            return false; // EAGAIN: the time is up
    }
}

} // namespace

HeadlessRecorder::HeadlessRecorder(Options options)
    : m_options(std::move(options))
{
}

int HeadlessRecorder::run(std::ostream& out, std::ostream& err)
{
    const sigset_t signals = blockStopSignals();
    const auto& paths = m_options.paths;
    const RecorderLock lock(paths.dir);
    if (!lock.held()) {
        if (lock.holder())
            err << "Vexel is already recording on this computer (process " << *lock.holder()
                << "); this one stops instead of writing beside it.\n";
        else
            err << lock.error().value_or("Couldn't take the recorder's lock.") << "\n";
        return 1;
    }
    std::optional<Sentence> openError;
    auto store = Sampler::openStore(paths, openError);
    if (!store) {
        err << openError.value_or(Sentence{"Couldn't open the history."}).english() << "\n";
        return 1;
    }
    Sampler sampler(m_options.makeMonitor(), std::move(store), paths);
    // What of the settings could not be used is said once, to the journal.
    for (const auto& message : sampler.settingsFile().messages())
        err << english(message) << "\n";
    err << std::flush;
    auto settings = sampler.settingsFile().settings();
    Cadence cadence;
    out << "Recording to " << paths.history().string() << " every " << settings.sampleSeconds << " s.\n" << std::flush;
    std::optional<Sentence> lastError;
    bool first = true;
    do {
        const auto plan = cadence.plan(m_options.clock(), first, {false, Route::overview}, settings);
        first = false;
        const auto result = sampler.tick(m_options.clock(), plan);
        // Say a failure once, and again only when it changes; a notice
        // (the history file replaced under it) as it comes.
        if (result.error && result.error != lastError)
            err << "History: " << result.error->english() << "\n" << std::flush;
        lastError = result.error;
        if (result.notice)
            err << result.notice->english() << "\n" << std::flush;
    } while (!stopRequested(signals, Cadence::tickSeconds(false, settings)));

    int status = 0;
    if (const auto failure = sampler.flush()) {
        err << "History: the last minute was lost: " << failure->english() << "\n";
        status = 1;
    }
    settings.lastSeen = m_options.clock();
    if (const auto failure = sampler.saveSettings(settings, SettingsFile::Saving::automatic); !failure.empty()) {
        err << english(failure) << "\n";
        status = 1;
    }
    out << "Stopped recording.\n";
    return status;
}

int runHeadlessRecorder()
{
    HeadlessRecorder recorder({VexelPaths::standard(), [] { return Monitor::live(); }, currentTime});
    return recorder.run(std::cout, std::cerr);
}

} // namespace vexel
