#pragma once

#include <atomic>
#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>

namespace vexel {

// The one process that records this user's history holds this lock (a file
// in the data folder, locked with flock, holding the holder's pid). The
// kernel drops the lock with the process, however it ends.
class RecorderLock {
public:
    // Tries the lock once; `held()` is false when another process has it,
    // and `holder()` then says which.
    explicit RecorderLock(const std::filesystem::path& folder);
    ~RecorderLock();
    RecorderLock(const RecorderLock&) = delete;
    RecorderLock& operator=(const RecorderLock&) = delete;

    // Tries again, without waiting (the recorder beside the window may have
    // stopped); whether the lock is held now.
    bool take();
    // Blocks until the lock is free and takes it; false when it cannot be
    // waited for at all. May be called from another thread than the one
    // that asks `held()`.
    bool wait();

    [[nodiscard]] bool held() const { return m_held.load(); }
    // The pid written by the holder, when another process holds the lock.
    [[nodiscard]] const std::optional<int64_t>& holder() const { return m_holder; }
    // Why the lock could not even be tried (the folder cannot be made, …).
    [[nodiscard]] const std::optional<std::string>& error() const { return m_error; }

private:
    std::filesystem::path m_file;
    int m_fd = -1;
    // The holder's pid written into the file once the lock is ours.
    void markHeld();

    std::atomic<bool> m_held = false;
    std::optional<int64_t> m_holder;
    std::optional<std::string> m_error;
};

} // namespace vexel
