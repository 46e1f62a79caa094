#!/usr/bin/env python3
"""Peak resident memory of one process, without the tools it runs.

GNU time reports the largest of a process and its children, so a command that
runs `docker` (a 22 MB Go program) reads as docker's size. This starts the
command, reads its own high-water mark (VmHWM in /proc/<pid>/status) every few
milliseconds until it exits, and prints the last reading in kB.
Usage: peak-rss.py [--input FILE] COMMAND [ARGS...]
"""
import subprocess
import sys
import time


def main():
    args = sys.argv[1:]
    stdin = subprocess.DEVNULL
    if args[:1] == ["--input"]:
        stdin = open(args[1], "rb")
        args = args[2:]
    child = subprocess.Popen(args, stdin=stdin, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
    peak = 0
    while child.poll() is None:
        try:
            with open(f"/proc/{child.pid}/status") as status:
                for line in status:
                    if line.startswith("VmHWM:"):
                        peak = max(peak, int(line.split()[1]))
        except (FileNotFoundError, ProcessLookupError, ValueError):
            pass
        time.sleep(0.002)
    print(peak)


if __name__ == "__main__":
    main()
