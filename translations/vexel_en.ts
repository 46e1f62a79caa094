<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>vexel::Vexel</name>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Vexel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close notice</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>App</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>System service</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tool</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Quit…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Force Quit…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Process</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>PID</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>CPU</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Memory</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>If it&apos;s hanging or busy</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Samples its call stacks for 5 seconds.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 (zombie)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Apps</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Find an app, process or PID</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No app, process or PID matches.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select an app to see its processes.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>CPU, last few minutes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Last few minutes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cores</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>CPU per core</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Load</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Busiest apps</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1  ·  %2  ·  %3   (the last 1, 5 and 15 minutes)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Load is the number of threads waiting for or using a core. Below %1 (your core count), nothing is waiting.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Developers</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Dev servers grouped by project folder.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Other listening ports</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>apps and services, not dev servers</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>None.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Containers</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Command line and AI tools</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add the read-only MCP server to Claude Code:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Looking for servers…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No dev servers running.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Servers</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Looking for containers…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Docker isn&apos;t installed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Vexel looks for the docker command from %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Docker isn&apos;t running</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Start Docker Desktop (or your engine) and this fills in.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Docker is running with no containers.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Disk</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Read</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Disk reads, last few minutes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Write</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Disk writes, last few minutes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Volumes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No volumes could be read.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reading and writing most</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>GPU</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>GPU, last few minutes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 busy</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>History</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Spikes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Core time by app</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>History can&apos;t be read.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reading the history…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>History starts now.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No samples yet for this range.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing recorded in this range.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Memory in use, last few minutes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What&apos;s in memory</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Most memory</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>App memory</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Wired</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Compressed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cached files</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Free</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Network</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Wi-Fi, Ethernet and cellular; VPN traffic counted once.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Download</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Download, last few minutes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Upload</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Upload, last few minutes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Moving most</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Battery</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mains</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Power</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Taking the first reading…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Overview</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Today</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>CPU since midnight</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Data moved each day this week, as a share of the busiest day</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Data moved each day this week, today at the right</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Dismiss</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>While you were away</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Power &amp; Heat</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Heat</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Thermal state</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Using most energy</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Drawing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Charging at</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Capacity left</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Charge cycles</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Condition</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reachable from other devices on your network</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reveal Working Folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stop…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Force Stop…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No app is using any right now.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open Vexel Window</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Quit Vexel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Charging</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>On power adapter</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>On battery</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 — Vexel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1, last few minutes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>When readings turn amber and red</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Disk amber below</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Battery amber at</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Battery falling</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What counts as a spike in History</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Spikes are what History and “While you were away” list, each with the app most responsible.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>CPU above</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1 minute</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>2 minutes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>3 minutes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>5 minutes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>10 minutes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>for at least</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Disk writes per minute above</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Network per minute above</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Dev servers</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>12 hours</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1 day</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>2 days</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>3 days</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1 week</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Flag servers idle for</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Command line and MCP</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Install Command</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Installs the vexel command (read-only).</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add to Claude Code</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Adds Vexel&apos;s read-only MCP server to Claude Code.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Installing…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Adding…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Readings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>2 seconds</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>3 seconds</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>5 seconds</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>10 seconds</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>30 seconds</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>CPU figures</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show network rates in bits (Mb/s)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open Vexel at login</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Read the Mac every</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Read the computer every</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>With the window closed Vexel reads the Mac at this interval; while you&apos;re looking it reads every 2 seconds. Other users&apos; processes, per-app network and ports are read less often to keep Vexel light.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>With the window closed Vexel reads the computer at this interval; while you&apos;re looking it reads every 2 seconds. Other users&apos; processes, per-app network and ports are read less often to keep Vexel light.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 (0–100)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1 month</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>3 months</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>6 months</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1 year</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keep history for</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>16 MB</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>32 MB</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>64 MB</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>128 MB</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>256 MB</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>512 MB</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Never let the file grow past</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Erase History…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Restore Defaults</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Readings in the menu bar</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Readings in the panel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Vexel Settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>General</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Panel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Alerts</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Developer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Menu Bar</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reveal in Finder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show in Files</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Command copied. Paste it into Terminal.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Command copied. Paste it into a terminal.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>% of the whole Mac</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>% of the whole computer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>% of one core (like Activity Monitor)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>% of one core (like top)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>CPU figures are shown as % of the whole Mac.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>CPU figures are shown as % of the whole computer.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>CPU figures are shown as % of one core (like Activity Monitor).</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>CPU figures are shown as % of one core (like top).</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Per-app memory is the footprint, like Activity Monitor.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Per-app memory is the footprint, like top.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A fuller report; asks for your password in Terminal.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A fuller report; asks for your password in a terminal.</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%n process(es) belong(s) to another user (usually macOS). Vexel sees their CPU and resident memory but not their disk or energy.</source>
        <translation>
            <numerusform>%n process belongs to another user (usually macOS). Vexel sees their CPU and resident memory but not their disk or energy.</numerusform>
            <numerusform>%n processes belong to another user (usually macOS). Vexel sees their CPU and resident memory but not their disk or energy.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n process(es) belong(s) to another user (usually root or a system service). Vexel sees their CPU and resident memory but not their disk or energy.</source>
        <translation>
            <numerusform>%n process belongs to another user (usually root or a system service). Vexel sees their CPU and resident memory but not their disk or energy.</numerusform>
            <numerusform>%n processes belong to another user (usually root or a system service). Vexel sees their CPU and resident memory but not their disk or energy.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n process(es) ended and wait(s) for its parent to collect it (zombie). They use no CPU or memory.</source>
        <translation>
            <numerusform>%n process has ended and waits for its parent to collect it (zombie). They use no CPU or memory.</numerusform>
            <numerusform>%n processes have ended and wait for its parent to collect it (zombie). They use no CPU or memory.</numerusform>
        </translation>
    </message>
    <message>
        <source>macOS manages these processes itself; Vexel doesn&apos;t offer to quit them.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Linux manages these processes itself; Vexel doesn&apos;t offer to quit them.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Memory pressure is how hard macOS is working to find room: compressing, then swapping to disk. High use with normal pressure is fine — cached files are let go the moment an app needs the space.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Memory pressure is how hard Linux is working to find room: compressing, then swapping to disk. High use with normal pressure is fine — cached files are let go the moment an app needs the space.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Per-app figures cover your own apps; macOS doesn&apos;t share other users&apos; disk counters.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Per-app figures cover your own apps; Linux doesn&apos;t share other users&apos; disk counters.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Per-app figures from nettop, refreshed every few seconds.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Per-app figures from ss (TCP only), refreshed every few seconds.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This Mac&apos;s graphics driver doesn&apos;t report utilisation, so there&apos;s nothing to show here.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This computer&apos;s graphics driver doesn&apos;t report utilisation, so there&apos;s nothing to show here.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>macOS reports how busy the whole GPU is, but not which app is using it — that needs private interfaces, so Vexel doesn&apos;t show GPU per app. The busiest apps by energy are usually the ones drawing on it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Linux&apos;s drivers report how busy the whole GPU is; Vexel doesn&apos;t read which app is using it, so it doesn&apos;t show GPU per app. The busiest apps by energy are usually the ones drawing on it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The Neural Engine has no public usage counter on macOS, so Vexel leaves it out rather than guess.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This Mac runs on mains power — no battery to report.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This computer runs on mains power — no battery to report.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Energy per app is measured by macOS.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Energy per app is measured by Linux.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Energy per app is estimated from CPU use on this Mac.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Energy per app is estimated from CPU use on this computer.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Measured: measured by macOS. Estimated: estimated from CPU use on this Mac.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Measured: measured by Linux. Estimated: estimated from CPU use on this computer.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>macOS tells apps how hot it&apos;s running and when it&apos;s slowing down to cool off — that&apos;s the scale above. Exact temperatures and fan speeds aren&apos;t available through public macOS interfaces, so Vexel doesn&apos;t show them.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Linux reports its thermal zones, its sensors and when the processor is slowed down to cool off; the scale above sums them up. The temperatures and fan speeds the sensors report are listed below.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Docker Desktop, OrbStack, Colima or Rancher Desktop</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Docker Engine, Docker Desktop or Podman</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Once, in Terminal (it may ask for your password). Then:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Once, in a terminal (no password needed). Then:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>macOS doesn&apos;t report GPU use per app.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Vexel doesn&apos;t read GPU use per app on Linux.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No battery — this Mac runs on mains power.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No battery — this computer runs on mains power.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Exact temperatures and fan speeds aren&apos;t available to apps through public macOS interfaces.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Every temperature and fan the sensors report is on Power &amp; Heat.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Menu Bar Settings…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Panel Settings…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Vexel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Settings…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Quit Vexel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Go</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Find App…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Quit Selected App…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open Vexel &amp;Window</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>CPU %1  ·  Memory %2  ·  %n process(es)</source>
        <translation>
            <numerusform>CPU %1  ·  Memory %2  ·  %n process</numerusform>
            <numerusform>CPU %1  ·  Memory %2  ·  %n processes</numerusform>
        </translation>
    </message>
    <message>
        <source>User %1  ·  System %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Read %1  ·  Write %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The lines break where readings stop. Your Mac was off, asleep or Vexel wasn&apos;t running.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The lines break where readings stop. Your computer was off, asleep or Vexel wasn&apos;t running.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pressure: %1  ·  Swap used: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Down %1  ·  Up %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No temperature or fan sensors can be read on this Mac.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No temperature or fan sensors can be read on this computer.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy http://localhost:%1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Amber means worth a look; red means under strain. Memory follows macOS&apos;s own pressure level, and heat follows the thermal state.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Amber means worth a look; red means under strain. Memory follows Linux&apos;s own pressure level, and heat follows the thermal state.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Average</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Peak</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>In use</source>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>
