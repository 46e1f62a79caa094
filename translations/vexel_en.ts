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
</context>
</TS>
