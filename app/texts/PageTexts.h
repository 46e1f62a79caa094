#pragma once

#include "platform/Platform.h"

#include <cstdint>
#include <string>

namespace vexel::PageTexts {

// The pages' sentences that name the platform or its parts, written once for
// each: on macOS (and in the demo world) as originally worded, on Linux the
// true sentence for a Linux desktop.

[[nodiscard]] std::string revealInFiles(Platform platform); // "Reveal in Finder", "Show in Files"
[[nodiscard]] std::string commandCopied(Platform platform);
[[nodiscard]] std::string likeTheSystemMonitor(Platform platform); // "like Activity Monitor", "like top"
[[nodiscard]] std::string cpuScaleMachine(Platform platform); // "% of the whole Mac"
[[nodiscard]] std::string cpuScaleCore(Platform platform); // "% of one core (like Activity Monitor)"

// "If it's hanging or busy": a command that samples the process's stacks for
// five seconds, and a fuller one that asks for a password.
[[nodiscard]] std::string sampleCommand(Platform platform, int32_t pid);
[[nodiscard]] std::string fullerReportCommand(Platform platform, int32_t pid);
[[nodiscard]] std::string fullerReportNote(Platform platform);

// The inspector's explanations.
[[nodiscard]] std::string otherUsersNote(Platform platform, int count);
[[nodiscard]] std::string zombiesNote(int count);
[[nodiscard]] std::string systemGroupNote(Platform platform);

[[nodiscard]] std::string memoryPressureNote(Platform platform);
[[nodiscard]] std::string diskPerAppNote(Platform platform);
[[nodiscard]] std::string networkPerAppNote(Platform platform);
[[nodiscard]] std::string noGpuUtilisation(Platform platform);
[[nodiscard]] std::string noGpuPerApp(Platform platform);
// Absent on Linux: it has no Neural Engine to leave out.
[[nodiscard]] std::string neuralEngineNote(Platform platform);
[[nodiscard]] std::string mainsPower(Platform platform);
[[nodiscard]] std::string energyMeasured(Platform platform);
[[nodiscard]] std::string energyEstimated(Platform platform);
[[nodiscard]] std::string thermalNote(Platform platform);
[[nodiscard]] std::string dockerEngines(Platform platform);
[[nodiscard]] std::string installInTerminal(Platform platform);
// The line that installs the vexel command found at `vexelPath`, and the one
// that adds its MCP server to Claude Code.
[[nodiscard]] std::string installCommand(Platform platform, const std::string& vexelPath);
[[nodiscard]] std::string mcpAddCommand(Platform platform);

// The panel dropdowns' sentences for readings without per-app figures.
[[nodiscard]] std::string dropdownGpuNote(Platform platform);
[[nodiscard]] std::string dropdownNoBattery(Platform platform);
[[nodiscard]] std::string dropdownThermalNote(Platform platform);
// "Menu Bar Settings…" or "Panel Settings…".
[[nodiscard]] std::string panelSettings(Platform platform);

// A path as shown: under the home folder, "~" takes the home folder's place.
[[nodiscard]] std::string shownPath(const std::string& path, std::string home);

} // namespace vexel::PageTexts
