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
    <message>
        <source>%1 will stop immediately, without a chance to save. Unsaved work in it will be lost.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 will be asked to quit, just like choosing Quit from its menu. It may ask you to save first.</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>Its %n helper process(es) will end with it.</source>
        <translation>
            <numerusform>Its %n helper process will end with it.</numerusform>
            <numerusform>Its %n helper processes will end with it.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 can&apos;t be quit from Vexel.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 has already quit.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Force quit %1?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Quit %1?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Force Quit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Quit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 didn&apos;t respond to Quit.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Force quit %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Asked %1 to quit.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 (process %2) has already exited.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Force stop %1?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stop %1?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sends SIGKILL to process %1. It ends at once and can&apos;t clean up.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sends SIGTERM to process %1, asking it to shut down cleanly — like pressing Ctrl-C in its terminal.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Force Stop</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stop</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Couldn&apos;t signal %1 (process %2). It may have already exited.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sent SIGKILL to %1 (process %2).</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Asked %1 (process %2) to stop.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is still running after SIGTERM.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The disk that holds %1 is full: free some space there. Live readings go on, and the minute waiting is written once there is room.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Vexel can&apos;t write in %1: check that the folder and its files are yours and writable. Live readings go on.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Live readings go on, and Vexel tries the history again each minute.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 %2</source>
        <comment>a failure and what to do about it</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1. %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Erase all history?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Vexel forgets every sample it has kept, up to a year. This can&apos;t be undone. New samples start right away.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Erase History</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>History erased. New samples start now.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select an app in Apps first.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copied %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Couldn&apos;t open the history: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Vexel couldn&apos;t finish a reading: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 was removed or replaced while Vexel was recording, and what it held is gone. Vexel goes on recording in the file now at that path, starting with the minute it hadn&apos;t written yet.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Vexel&apos;s recorder stopped, so this window records the history now.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Couldn&apos;t save the settings: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Vexel&apos;s recorder (process %1) keeps the history, so it can&apos;t be erased from this window. Stop the recorder first (systemctl --user stop vexel-recorder).</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no history to erase.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>mostly %1 (%2)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>mostly %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Capacity left compares the battery&apos;s full charge today with when it was new. Below 80% it holds noticeably less.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1  estimated</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1  measured</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1  ·  CPU %2  ·  %3  ·  process %4</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Idle for %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Project: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Listening on %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 %2</source>
        <comment>a reading&apos;s name and its value: CPU 15%</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 %2 read, %3 written</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 %2 down, %3 up</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>User</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>System</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pressure</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Swap used</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 free</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Charge</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>State</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Level</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 · %2</source>
        <comment>a sensor: its chip and its label</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Charging, full in %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>On battery, %1 left</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%n day(s)</source>
        <translation>
            <numerusform>%n day</numerusform>
            <numerusform>%n days</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no status area in this desktop&apos;s panel, so Vexel&apos;s readings stay in this window. Closing it keeps Vexel recording in the taskbar; Ctrl+Q quits. On GNOME, the AppIndicator extension adds a status area.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Week</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Month</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Year</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Value</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Graph</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Both</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Memory pressure</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Disk writes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Battery drain</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 kept the processor busy for %2 min</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The processor was busy for %1 min</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Memory pressure reached %1 while the most memory was held by %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Memory pressure reached %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 written to disk by %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 written to disk</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 moved over the network by %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 moved over the network</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ran hot for %1 min while the busiest app was %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ran hot for %1 min</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Battery fell %1 points in %2 min while the most energy went to %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Battery fell %1 points in %2 min</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Normal</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Warning</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Critical</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>SSD</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Laptop</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Board</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Chipset</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Wi-Fi</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cool</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Warm</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hot</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Slightly warm. Fans may be audible.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hot. %1 is slowing the processor to cool down.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Very hot. %1 is slowing everything down hard.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Running at full speed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Couldn&apos;t find the vexel command at %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is already a file of yours; Vexel leaves it alone.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Couldn&apos;t link %1: %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Installed: %1 runs %2. If your shell doesn&apos;t find vexel, add ~/.local/bin to your PATH.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Claude Code&apos;s claude command isn&apos;t installed. Run this line in a terminal:
%1
Or paste this into your assistant&apos;s MCP settings:
%2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 Run this line in a terminal:
%2
Or paste this into your assistant&apos;s MCP settings:
%3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>claude said: %1Run this line in a terminal:
%2
Or paste this into your assistant&apos;s MCP settings:
%3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Added Vexel&apos;s read-only MCP server to Claude Code.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: no readings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: average %2, highest %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> percent</source>
        <comment>read out after a figure: 15 percent</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>no readings yet</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>now %1, highest %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Apps, not processes: every helper process counted with its app, processes grouped under the apps and services that started them.</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%n cores: %1 performance and %2 efficiency</source>
        <translation>
            <numerusform>%n core: %1 performance and %2 efficiency</numerusform>
            <numerusform>%n cores: %1 performance and %2 efficiency</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n core(s)</source>
        <translation>
            <numerusform>%n core</numerusform>
            <numerusform>%n cores</numerusform>
        </translation>
    </message>
    <message>
        <source>Your assistant can ask what&apos;s busy, what happened overnight, which dev servers are idle and what&apos;s on a port. It can&apos;t quit or stop anything — it has to ask you to do it here.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>When node, python, rails, a database or your own build listens on a port, it shows up here under its project.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>process %1, reachable from the network</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>process %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%n container(s)</source>
        <translation>
            <numerusform>%n container</numerusform>
            <numerusform>%n containers</numerusform>
        </translation>
    </message>
    <message>
        <source>  ·  CPU %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 free of %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing unusual: no long CPU spikes, memory pressure, big writes or downloads, heat or fast battery drain.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Core time: an hour of one core fully busy. Apps that never made the top dozen at a moment aren&apos;t kept, so small ones may be missing.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Vexel takes a reading every few seconds and keeps up to a year, thinning old readings to hourly so the file stays small. Come back in a few minutes.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 of %2 in use</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Disk %1 written, %2 read  ·  Network %3 down, %4 up</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sun</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mon</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tue</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Wed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Thu</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fri</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sat</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Jan</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Feb</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mar</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Apr</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>May</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Jun</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Jul</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Aug</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sep</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Oct</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nov</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Dec</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 %2</source>
        <comment>a day of a month: 24 Nov</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1% within an hour</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A server counts as idle when it hasn&apos;t used any CPU (served a request, rebuilt) for this long. Vexel only flags it — stopping is always up to you, and it asks first.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Readings are kept every few seconds for 3 hours, then each minute for 2 days, every 10 minutes for 5 weeks and hourly after that — so a year stays small.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The history takes %1 on disk.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Measuring the history&apos;s size…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Vexel&apos;s recorder (process %1) keeps it; this window shows it and takes over when the recorder stops.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>With no menu bar items, Vexel keeps its Dock icon so you can always get back to it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>With no panel items, Vexel keeps its window in the taskbar so you can always get back to it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 on, %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 off, %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Couldn&apos;t write %1: %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Couldn&apos;t remove %1: %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>History error: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Couldn&apos;t open the history: %1 was written by a newer version of Vexel (history version %2; this one reads up to %3). Vexel leaves it alone; update Vexel to use it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Couldn&apos;t open the history: %1 isn&apos;t a Vexel history: it is another program&apos;s SQLite database. Vexel leaves it alone; move it elsewhere and Vexel starts a new history there.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Vexel uses its defaults for now and leaves the file as it is.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is larger than 4 MB, too large to be settings.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Couldn&apos;t read %1: %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 holds a JSON %2, not an object of settings.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 isn&apos;t valid JSON (%2).</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Your change holds until Vexel quits but can&apos;t be saved.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Put the file right, or move it away, and Vexel saves its settings there again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 must be true or false; using %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 must be a fraction, %2 to %3; using %4.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 must be a whole percentage, %2 to %3; using %4.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 must be a number of bytes, %2 to %3; using %4.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 must be a number of seconds, %2 to %3; using %4.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 must be a number of bytes per second, %2 to %3; using %4.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 must be a whole number of minutes, %2 to %3; using %4.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 must be a number of percentage points, %2 to %3; using %4.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 must be a whole number of days, %2 to %3; using %4.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 must be a whole number of megabytes, %2 to %3; using %4.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 must be a number of days, %2 to %3; using %4.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 must be an object of thresholds; using the defaults.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 must be &quot;mac&quot; or &quot;core&quot;; using %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 must be a list of items, each with a kind, enabled and style, no kind twice; using the default items.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 must be one of &quot;cpu&quot;, &quot;memory&quot;, &quot;energy&quot;, &quot;disk&quot; or &quot;network&quot;; using %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 must be a time in seconds since 1970; leaving it out.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Processes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Force Stop Process…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Part of %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Energy</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Disk read</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Disk written</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This Mac</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This computer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>From %1 to %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 %2</source>
        <comment>a weekday and a time</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Drag to reorder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Each reading is its own item, shown left to right in this order. Drag a reading by its grip, or use the arrows, to reorder. A reading turns amber or red in the menu bar when it&apos;s under strain; thresholds are in Alerts.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Each reading is its own item, shown left to right in this order. Drag a reading by its grip, or use the arrows, to reorder. A reading turns amber or red in the panel when it&apos;s under strain; thresholds are in Alerts.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>under a minute</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 of it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>now</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 min ago</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 must be a whole number of apps, %2 to %3; using %4.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>
