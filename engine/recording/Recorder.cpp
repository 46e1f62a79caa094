#include "recording/Recorder.h"

#include "recording/StopSignals.h"
#include "sampling/Cadence.h"
#include "sampling/RecorderLock.h"
#include "sampling/Sampler.h"

#include <cerrno>
#include <cmath>
#include <csignal>
#include <ctime>
#include <memory>
#include <ostream>
#include <pthread.h>
#include <thread>
#include <unistd.h>

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

// Told to the waiting recorder by the thread that took the lock for it.
constexpr int lockTaken = SIGUSR1;

enum class Waited { taken, stopped, failed };

// Blocks on the lock on a thread of its own while this one waits for the
// lock, a stop signal, or the news that the lock can't be waited for. The
// thread is left blocked in flock when a stop comes first, and ends with
// the process.
Waited waitForTheLock(const std::shared_ptr<RecorderLock>& lock, sigset_t signals)
{
    sigaddset(&signals, lockTaken);
    ::pthread_sigmask(SIG_BLOCK, &signals, nullptr);
    std::thread([lock, waiter = ::pthread_self()] {
        (void)lock->wait();
        ::pthread_kill(waiter, lockTaken);
    }).detach();
    for (;;) {
        siginfo_t info{};
        const int taken = ::sigwaitinfo(&signals, &info);
        // Only the waiting thread's word counts, not a SIGUSR1 from outside.
        if (taken == lockTaken && info.si_pid == ::getpid())
            return lock->held() ? Waited::taken : Waited::failed;
        if (taken >= 0 && taken != lockTaken)
            return Waited::stopped;
    }
}

} // namespace

Recorder::Recorder(Options options)
    : m_options(std::move(options))
{
}

int Recorder::run(std::ostream& out, std::ostream& err)
{
    const sigset_t signals = blockStopSignals();
    const auto lock = std::make_shared<RecorderLock>(m_options.paths.dir);
    if (lock->error() && !lock->held()) {
        err << *lock->error() << "\n";
        return 1;
    }
    if (!lock->held()) {
        err << "Vexel is already recording on this computer";
        if (lock->holder())
            err << " (process " << *lock->holder() << ")";
        err << "; this one waits and takes over once it stops.\n" << std::flush;
        const Waited waited = waitForTheLock(lock, signals);
        if (waited == Waited::failed) {
            err << "Couldn't wait for the recorder's lock in " << m_options.paths.dir.string() << ".\n";
            return 1;
        }
        if (waited == Waited::stopped) {
            out << "Stopped waiting.\n";
            return 0;
        }
    }
    return record(out, err, signals);
}

int Recorder::record(std::ostream& out, std::ostream& err, const sigset_t& signals)
{
    const auto& paths = m_options.paths;
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
        const auto plan = cadence.plan(m_options.clock(), first, Cadence::View{}, settings);
        first = false;
        const auto result = sampler.tick(m_options.clock(), plan);
        // Say a failure once, and again only when it changes; a notice
        // (the history file replaced under it) as it comes.
        if (result.error && result.error != lastError)
            err << "History: " << result.error->english() << "\n" << std::flush;
        lastError = result.error;
        if (result.notice)
            err << result.notice->english() << "\n" << std::flush;
        for (auto* listener : m_options.listeners)
            listener->tookTick(result, settings);
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

} // namespace vexel
