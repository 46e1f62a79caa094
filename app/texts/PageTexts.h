#pragma once

#include "platform/Platform.h"

#include <QString>

#include <cstdint>
#include <string>

namespace vexel::PageTexts {

// The pages' sentences that name the platform or its parts, written whole
// for each so that translators see whole sentences: on macOS (and in the
// demo world) as originally worded, on Linux the true sentence for a Linux
// desktop. Commands and paths stay as they are typed.

[[nodiscard]] QString revealInFiles(Platform platform); // "Reveal in Finder", "Show in Files"
[[nodiscard]] QString commandCopied(Platform platform);
[[nodiscard]] QString cpuScaleMachine(Platform platform); // "% of the whole Mac"
[[nodiscard]] QString cpuScaleCore(Platform platform); // "% of one core (like Activity Monitor)"
// "CPU figures are shown as % of the whole Mac." and the like.
[[nodiscard]] QString cpuScaleSentence(Platform platform, bool wholeMachine);
[[nodiscard]] QString perAppMemoryNote(Platform platform); // "Per-app memory is the footprint, like top."

// "If it's hanging or busy": a command that samples the process's stacks for
// five seconds, and a fuller one that asks for a password.
[[nodiscard]] std::string sampleCommand(Platform platform, int32_t pid);
[[nodiscard]] std::string fullerReportCommand(Platform platform, int32_t pid);
[[nodiscard]] QString fullerReportNote(Platform platform);

// The inspector's explanations.
[[nodiscard]] QString otherUsersNote(Platform platform, int count);
[[nodiscard]] QString zombiesNote(int count);
[[nodiscard]] QString systemGroupNote(Platform platform);

[[nodiscard]] QString memoryPressureNote(Platform platform);
[[nodiscard]] QString diskPerAppNote(Platform platform);
[[nodiscard]] QString networkPerAppNote(Platform platform);
[[nodiscard]] QString noGpuUtilisation(Platform platform);
[[nodiscard]] QString noGpuPerApp(Platform platform);
// Absent on Linux: it has no Neural Engine to leave out.
[[nodiscard]] QString neuralEngineNote(Platform platform);
[[nodiscard]] QString mainsPower(Platform platform);
[[nodiscard]] QString thisMachine(Platform platform); // "This Mac", "This computer"
// Where the energy per app comes from: measured by the system, estimated from CPU use, or some of each.
enum class EnergySource { measured, estimated, mixed };
[[nodiscard]] QString energyNote(Platform platform, EnergySource source);
[[nodiscard]] QString thermalNote(Platform platform);
[[nodiscard]] QString dockerEngines(Platform platform);
[[nodiscard]] QString installInTerminal(Platform platform);
// The line that installs the vexel command found at `vexelPath`, and the one
// that adds its MCP server to Claude Code.
[[nodiscard]] std::string installCommand(Platform platform, const std::string& vexelPath);
[[nodiscard]] std::string mcpAddCommand(Platform platform);

// The panel dropdowns' sentences for readings without per-app figures.
[[nodiscard]] QString dropdownGpuNote(Platform platform);
[[nodiscard]] QString dropdownNoBattery(Platform platform);
[[nodiscard]] QString dropdownThermalNote(Platform platform);
// "Menu Bar Settings…" or "Panel Settings…".
[[nodiscard]] QString panelSettings(Platform platform);

} // namespace vexel::PageTexts
