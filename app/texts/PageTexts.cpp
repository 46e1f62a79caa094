#include "texts/PageTexts.h"

#include "texts/Vexel.h"

namespace vexel::PageTexts {

namespace {

bool onMac(Platform platform)
{
    return platform == Platform::macOS;
}

} // namespace

QString revealInFiles(Platform platform)
{
    return onMac(platform) ? Vexel::tr("Reveal in Finder") : Vexel::tr("Show in Files");
}

QString commandCopied(Platform platform)
{
    return onMac(platform) ? Vexel::tr("Command copied. Paste it into Terminal.")
                           : Vexel::tr("Command copied. Paste it into a terminal.");
}

QString cpuScaleMachine(Platform platform)
{
    return onMac(platform) ? Vexel::tr("% of the whole Mac") : Vexel::tr("% of the whole computer");
}

QString cpuScaleCore(Platform platform)
{
    return onMac(platform) ? Vexel::tr("% of one core (like Activity Monitor)") : Vexel::tr("% of one core (like top)");
}

QString cpuScaleSentence(Platform platform, bool wholeMachine)
{
    if (wholeMachine)
        return onMac(platform) ? Vexel::tr("CPU figures are shown as % of the whole Mac.")
                               : Vexel::tr("CPU figures are shown as % of the whole computer.");
    return onMac(platform) ? Vexel::tr("CPU figures are shown as % of one core (like Activity Monitor).")
                           : Vexel::tr("CPU figures are shown as % of one core (like top).");
}

QString perAppMemoryNote(Platform platform)
{
    return onMac(platform) ? Vexel::tr("Per-app memory is the footprint, like Activity Monitor.")
                           : Vexel::tr("Per-app memory is the footprint, like top.");
}

std::string sampleCommand(Platform platform, int32_t pid)
{
    const std::string id = std::to_string(pid);
    if (onMac(platform))
        return "sample " + id + " 5";
    // Five stack dumps a second apart: gdb may attach to the user's own
    // processes on a stock Debian kernel, where perf needs a password.
    return "for i in 1 2 3 4 5; do gdb -p " + id + " -batch -ex 'thread apply all bt' 2>/dev/null; sleep 1; done";
}

std::string fullerReportCommand(Platform platform, int32_t pid)
{
    const std::string id = std::to_string(pid);
    if (onMac(platform))
        return "sudo spindump " + id + " 10";
    const std::string file = "/tmp/vexel-" + id + ".perf";
    return "sudo perf record -g -p " + id + " -o " + file + " -- sleep 10 && sudo perf report -i " + file + " --stdio";
}

QString fullerReportNote(Platform platform)
{
    return onMac(platform) ? Vexel::tr("A fuller report; asks for your password in Terminal.")
                           : Vexel::tr("A fuller report; asks for your password in a terminal.");
}

QString otherUsersNote(Platform platform, int count)
{
    return onMac(platform)
        ? Vexel::tr("%n process(es) belong(s) to another user (usually macOS). Vexel sees their CPU and resident "
                    "memory but not their disk or energy.",
            nullptr, count)
        : Vexel::tr("%n process(es) belong(s) to another user (usually root or a system service). Vexel sees their "
                    "CPU and resident memory but not their disk or energy.",
            nullptr, count);
}

QString zombiesNote(int count)
{
    return Vexel::tr("%n process(es) ended and wait(s) for its parent to collect it (zombie). They use no CPU or "
                     "memory.",
        nullptr, count);
}

QString systemGroupNote(Platform platform)
{
    return onMac(platform) ? Vexel::tr("macOS manages these processes itself; Vexel doesn't offer to quit them.")
                           : Vexel::tr("Linux manages these processes itself; Vexel doesn't offer to quit them.");
}

QString memoryPressureNote(Platform platform)
{
    return onMac(platform)
        ? Vexel::tr("Memory pressure is how hard macOS is working to find room: compressing, then swapping to disk. "
                    "High use with normal pressure is fine — cached files are let go the moment an app needs the "
                    "space.")
        : Vexel::tr("Memory pressure is how hard Linux is working to find room: compressing, then swapping to disk. "
                    "High use with normal pressure is fine — cached files are let go the moment an app needs the "
                    "space.");
}

QString diskPerAppNote(Platform platform)
{
    return onMac(platform)
        ? Vexel::tr("Per-app figures cover your own apps; macOS doesn't share other users' disk counters.")
        : Vexel::tr("Per-app figures cover your own apps; Linux doesn't share other users' disk counters.");
}

QString networkPerAppNote(Platform platform)
{
    return onMac(platform) ? Vexel::tr("Per-app figures from nettop, refreshed every few seconds.")
                           : Vexel::tr("Per-app figures from ss (TCP only), refreshed every few seconds.");
}

QString noGpuUtilisation(Platform platform)
{
    return onMac(platform)
        ? Vexel::tr("This Mac's graphics driver doesn't report utilisation, so there's nothing to show here.")
        : Vexel::tr("This computer's graphics driver doesn't report utilisation, so there's nothing to show here.");
}

QString noGpuPerApp(Platform platform)
{
    if (onMac(platform))
        return Vexel::tr("macOS reports how busy the whole GPU is, but not which app is using it — that needs "
                         "private interfaces, so Vexel doesn't show GPU per app. The busiest apps by energy are "
                         "usually the ones drawing on it.");
    return Vexel::tr("Linux's drivers report how busy the whole GPU is; Vexel doesn't read which app is using it, so "
                     "it doesn't show GPU per app. The busiest apps by energy are usually the ones drawing on it.");
}

QString neuralEngineNote(Platform platform)
{
    return onMac(platform) ? Vexel::tr("The Neural Engine has no public usage counter on macOS, so Vexel leaves it "
                                       "out rather than guess.")
                           : QString();
}

QString thisMachine(Platform platform)
{
    return onMac(platform) ? Vexel::tr("This Mac") : Vexel::tr("This computer");
}

QString mainsPower(Platform platform)
{
    return onMac(platform) ? Vexel::tr("This Mac runs on mains power — no battery to report.")
                           : Vexel::tr("This computer runs on mains power — no battery to report.");
}

QString energyNote(Platform platform, EnergySource source)
{
    switch (source) {
    case EnergySource::measured:
        return onMac(platform) ? Vexel::tr("Energy per app is measured by macOS.")
                               : Vexel::tr("Energy per app is measured by Linux.");
    case EnergySource::estimated:
        return onMac(platform) ? Vexel::tr("Energy per app is estimated from CPU use on this Mac.")
                               : Vexel::tr("Energy per app is estimated from CPU use on this computer.");
    case EnergySource::mixed: break;
    }
    return onMac(platform)
        ? Vexel::tr("Measured: measured by macOS. Estimated: estimated from CPU use on this Mac.")
        : Vexel::tr("Measured: measured by Linux. Estimated: estimated from CPU use on this computer.");
}

QString thermalNote(Platform platform)
{
    if (onMac(platform))
        return Vexel::tr("macOS tells apps how hot it's running and when it's slowing down to cool off — that's the "
                         "scale above. Exact temperatures and fan speeds aren't available through public macOS "
                         "interfaces, so Vexel doesn't show them.");
    return Vexel::tr("Linux reports its thermal zones, its sensors and when the processor is slowed down to cool off; "
                     "the scale above sums them up. The temperatures and fan speeds the sensors report are listed "
                     "below.");
}

QString dockerEngines(Platform platform)
{
    return onMac(platform) ? Vexel::tr("Docker Desktop, OrbStack, Colima or Rancher Desktop")
                           : Vexel::tr("Docker Engine, Docker Desktop or Podman");
}

QString installInTerminal(Platform platform)
{
    // ~/.local/bin is the user's own: linking there asks for no password.
    return onMac(platform) ? Vexel::tr("Once, in Terminal (it may ask for your password). Then:")
                           : Vexel::tr("Once, in a terminal (no password needed). Then:");
}

std::string installCommand(Platform platform, const std::string& vexelPath)
{
    if (onMac(platform))
        return "sudo ln -sf '" + vexelPath + "' /usr/local/bin/vexel";
    return "mkdir -p ~/.local/bin && ln -sf '" + vexelPath + "' ~/.local/bin/vexel";
}

std::string mcpAddCommand(Platform platform)
{
    return onMac(platform) ? "claude mcp add vexel -- /usr/local/bin/vexel --mcp"
                           : "claude mcp add vexel -- ~/.local/bin/vexel --mcp";
}

QString dropdownGpuNote(Platform platform)
{
    return onMac(platform) ? Vexel::tr("macOS doesn't report GPU use per app.")
                           : Vexel::tr("Vexel doesn't read GPU use per app on Linux.");
}

QString dropdownNoBattery(Platform platform)
{
    return onMac(platform) ? Vexel::tr("No battery — this Mac runs on mains power.")
                           : Vexel::tr("No battery — this computer runs on mains power.");
}

QString dropdownThermalNote(Platform platform)
{
    return onMac(platform)
        ? Vexel::tr("Exact temperatures and fan speeds aren't available to apps through public macOS interfaces.")
        : Vexel::tr("Every temperature and fan the sensors report is on Power & Heat.");
}

QString panelSettings(Platform platform)
{
    return onMac(platform) ? Vexel::tr("Menu Bar Settings…") : Vexel::tr("Panel Settings…");
}

} // namespace vexel::PageTexts
