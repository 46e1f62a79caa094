#pragma once

#include "platform/Platform.h"

#include <QPixmap>
#include <QWidget>

#include <filesystem>
#include <functional>
#include <optional>
#include <set>
#include <string>

namespace vexel {

// Pictures of the app on the demo world, for the README and for looking at
// what a change did: VEXEL_SNAPSHOT_DIR names the folder, VEXEL_SNAPSHOT_ONLY
// the pictures wanted (names or name prefixes, separated by commas or
// blanks), VEXEL_SNAPSHOT_STAY keeps the app open afterwards,
// VEXEL_SNAPSHOT_LOCALE=pseudo draws them in the pseudo-language, every
// translatable sentence wrapped and a third longer, and
// VEXEL_SNAPSHOT_PLATFORM=linux says in Linux's words what the demo Mac shows.
// A page is drawn at its whole height, as tall as its content.
struct SnapshotOptions {
    std::filesystem::path folder;
    std::set<std::string> only; // empty: every picture
    bool stay = false;
    bool pseudoLocale = false;
    Platform platform = Platform::macOS; // whose words the texts use

    // The options of this environment; nothing without VEXEL_SNAPSHOT_DIR.
    [[nodiscard]] static std::optional<SnapshotOptions> from(
        const std::function<std::optional<std::string>(const char*)>& getenv);
    // Whether the picture `name` ("window-light.png") is wanted.
    [[nodiscard]] bool wants(const std::string& name) const;
    // Whether any picture whose name starts with `prefix` ("strained-") is wanted.
    [[nodiscard]] bool wantsAny(const std::string& prefix) const;
};

class AppModel;
class DemoWorld;

// A window's picture once its layouts have settled.
[[nodiscard]] QPixmap picture(QWidget& window);

// Puts the demo world under load and lets the model see it (a few ticks and
// the history), before the "strained-" pictures are taken.
void strainDemoWorld(DemoWorld& world, AppModel& model);

// Runs the app on the demo world with recording actions, writes the
// pictures it knows in light and dark, then the "strained-" ones of the
// world under load, and quits (unless asked to stay).
// Needs the QApplication made, offscreen unless the app is to stay.
int runSnapshotMode(const SnapshotOptions& options);

} // namespace vexel
