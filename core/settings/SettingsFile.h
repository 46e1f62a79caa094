#pragma once

#include "settings/VexelSettings.h"

#include <nlohmann/json.hpp>

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace vexel {

// The user's settings.json as Vexel found it: the settings in it, what of it
// could not be used, and saves that change only what Vexel changed. A file
// the user wrote is never overwritten on a guess: one that cannot be read is
// left as it is, and unknown keys (a newer version's, a user's notes) and
// values Vexel did not change stay as they were written.
class SettingsFile {
public:
    enum class State {
        missing, // no file: Vexel's defaults, written in full at the first save
        read, // a JSON object, used key by key
        unreadable, // there, but not settings Vexel can read: left alone
    };

    // Who asks for a save: Vexel's own bookkeeping (when it last ran, that
    // the first start is over) or a change the user makes. Neither touches a
    // file that cannot be read; the user is told that their change holds
    // until Vexel quits.
    enum class Saving { automatic, userChange };

    // What a save did, and what to tell the user when there is something
    // to say (the file was left alone).
    struct SaveOutcome {
        bool written = false;
        Paragraph note;
    };

    // Reads `file` (at most 4 MB). Never throws: what cannot be read is said
    // in `failure` or `problems`.
    [[nodiscard]] static SettingsFile load(std::filesystem::path file);

    [[nodiscard]] const VexelSettings& settings() const { return m_settings; }
    [[nodiscard]] State state() const { return m_state; }
    // Why the file could not be read, with what Vexel does about it.
    [[nodiscard]] const std::optional<Sentence>& failure() const { return m_failure; }
    // The values that were not used as written, each said once.
    [[nodiscard]] const std::vector<SettingsProblem>& problems() const { return m_problems; }
    // The failure, with what Vexel does about it, or the problems: one paragraph each.
    [[nodiscard]] std::vector<Paragraph> messages() const;
    // Whether the history's limits (retentionDays, maxHistoryMB) are the
    // user's: read as written, or left out of the file (or no file at all),
    // so Vexel's defaults. False when the file could not be read or either
    // limit was not usable as written, and so for the whole run (a file put
    // right meanwhile is read at the next start), unless the user sets that
    // limit anew: no history may be expired or trimmed on the strength of a
    // value that stands in for what the user wrote.
    [[nodiscard]] bool historyLimitsTrusted() const { return m_standIns.empty(); }

    // Saves `settings`. The file is read again first, and only the keys
    // whose value differs from what this file last read or saved are written
    // into what it holds now, so that a change saved meanwhile by another
    // Vexel process stays too; a new file gets every key. Written atomically, and
    // through a symbolic link to the file it names. Throws
    // std::filesystem::filesystem_error when the file cannot be written.
    SaveOutcome save(const VexelSettings& settings, Saving saving);

private:
    explicit SettingsFile(std::filesystem::path file);
    // Takes the state, settings and problems of a document read or written.
    void adopt(State state, const nlohmann::ordered_json& document);

    std::filesystem::path m_file;
    State m_state = State::missing;
    VexelSettings m_settings;
    VexelSettings m_saved; // as the file last held them, by this process's reading
    std::optional<Sentence> m_failure;
    std::vector<SettingsProblem> m_problems;
    std::vector<std::string> m_standIns; // history limits that stand in for what the user wrote
};

} // namespace vexel
