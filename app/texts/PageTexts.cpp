#include "texts/PageTexts.h"

namespace vexel::PageTexts {

namespace {

bool onMac(Platform platform)
{
    return platform == Platform::macOS;
}

std::string plural(int count, const std::string& one, const std::string& many)
{
    return std::to_string(count) + " " + (count == 1 ? one : many);
}

} // namespace

std::string revealInFiles(Platform platform)
{
    return onMac(platform) ? "Reveal in Finder" : "Show in Files";
}

std::string commandCopied(Platform platform)
{
    return onMac(platform) ? "Command copied. Paste it into Terminal." : "Command copied. Paste it into a terminal.";
}

std::string likeTheSystemMonitor(Platform platform)
{
    return onMac(platform) ? "like Activity Monitor" : "like top";
}

std::string cpuScaleMachine(Platform platform)
{
    return "% of the whole " + machineWord(platform);
}

std::string cpuScaleCore(Platform platform)
{
    return "% of one core (" + likeTheSystemMonitor(platform) + ")";
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

std::string fullerReportNote(Platform platform)
{
    return onMac(platform) ? "A fuller report; asks for your password in Terminal."
                           : "A fuller report; asks for your password in a terminal.";
}

std::string otherUsersNote(Platform platform, int count)
{
    const std::string whose = onMac(platform) ? "(usually macOS)" : "(usually root or a system service)";
    return plural(count, "process belongs", "processes belong") + " to another user " + whose
        + ". Vexel sees their CPU and resident memory but not their disk or energy.";
}

std::string zombiesNote(int count)
{
    return plural(count, "process has", "processes have")
        + " ended and waits for its parent to collect it (zombie). They use no CPU or memory.";
}

std::string systemGroupNote(Platform platform)
{
    return systemName(platform) + " manages these processes itself; Vexel doesn't offer to quit them.";
}

std::string memoryPressureNote(Platform platform)
{
    return "Memory pressure is how hard " + systemName(platform)
        + " is working to find room: compressing, then swapping to disk. High use with normal pressure is fine — "
          "cached files are let go the moment an app needs the space.";
}

std::string diskPerAppNote(Platform platform)
{
    return "your own apps; " + systemName(platform) + " doesn't share other users' disk counters";
}

std::string networkPerAppNote(Platform platform)
{
    return onMac(platform) ? "from nettop, refreshed every few seconds"
                           : "from ss (TCP only), refreshed every few seconds";
}

std::string noGpuUtilisation(Platform platform)
{
    return "This " + machineWord(platform)
        + "'s graphics driver doesn't report utilisation, so there's nothing to show here.";
}

std::string noGpuPerApp(Platform platform)
{
    if (onMac(platform))
        return "macOS reports how busy the whole GPU is, but not which app is using it — that needs private "
               "interfaces, so Vexel doesn't show GPU per app. The busiest apps by energy are usually the ones drawing "
               "on it.";
    return "Linux's drivers report how busy the whole GPU is; Vexel doesn't read which app is using it, so it doesn't "
           "show GPU per app. The busiest apps by energy are usually the ones drawing on it.";
}

std::string neuralEngineNote(Platform platform)
{
    return onMac(platform)
        ? "The Neural Engine has no public usage counter on macOS, so Vexel leaves it out rather than guess."
        : "";
}

std::string mainsPower(Platform platform)
{
    return "This " + machineWord(platform) + " runs on mains power — no battery to report.";
}

std::string energyMeasured(Platform platform)
{
    return "measured by " + systemName(platform);
}

std::string energyEstimated(Platform platform)
{
    return "estimated from CPU use on this " + machineWord(platform);
}

std::string thermalNote(Platform platform)
{
    if (onMac(platform))
        return "macOS tells apps how hot it's running and when it's slowing down to cool off — that's the scale above. "
               "Exact temperatures and fan speeds aren't available through public macOS interfaces, so Vexel doesn't "
               "show them.";
    return "Linux reports its thermal zones, its sensors and when the processor is slowed down to cool off; the scale "
           "above sums them up. The temperatures and fan speeds the sensors report are listed below.";
}

std::string dockerEngines(Platform platform)
{
    return onMac(platform) ? "Docker Desktop, OrbStack, Colima or Rancher Desktop"
                           : "Docker Engine, Docker Desktop or Podman";
}

std::string installInTerminal(Platform platform)
{
    // ~/.local/bin is the user's own: linking there asks for no password.
    return onMac(platform) ? "Once, in Terminal (it may ask for your password). Then:"
                           : "Once, in a terminal (no password needed). Then:";
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

std::string dropdownGpuNote(Platform platform)
{
    return onMac(platform) ? "macOS doesn't report GPU use per app." : "Vexel doesn't read GPU use per app on Linux.";
}

std::string dropdownNoBattery(Platform platform)
{
    return "No battery — this " + machineWord(platform) + " runs on mains power.";
}

std::string dropdownThermalNote(Platform platform)
{
    return onMac(platform)
        ? "Exact temperatures and fan speeds aren't available to apps through public macOS interfaces."
        : "Every temperature and fan the sensors report is on Power & Heat.";
}

std::string panelSettings(Platform platform)
{
    return onMac(platform) ? "Menu Bar Settings…" : "Panel Settings…";
}

std::string shownPath(const std::string& path, std::string home)
{
    while (home.size() > 1 && home.back() == '/')
        home.pop_back();
    if (home.empty() || home == "/" || !path.starts_with(home))
        return path;
    if (path.size() == home.size())
        return "~";
    if (path[home.size()] != '/')
        return path; // /home/ann2 is not under /home/ann
    return "~" + path.substr(home.size());
}

} // namespace vexel::PageTexts
