#!/usr/bin/env python3
"""Prints what a start of the installed program takes under Wine: the seconds until its start face has the keyboard and the memory that it then
has in use, the libraries and Wine's own with it, as the median of so many starts with the least and the most; and the frames of sound that the
system (WASAPI) is fed at a time.

    cd tests/wine && MARLBROOK_BIN=../../build/windows/bin PYTHONPATH=../windows /usr/bin/python3 start_figures.py [STARTS]
"""
import re
import statistics
import subprocess
import sys
import threading
import time

from computer import WINE, Computer, Installed, installed
from desk import START

MEGABYTE = 1024  # in the unit of /proc
SILENT_DEVICE = "pcm.!default { type null }\nctl.!default { type null }\n"


def start(computer):
    """Seconds, megabytes."""
    begin = time.monotonic()
    program = Installed(computer)
    program.window(START)
    seconds = time.monotonic() - begin
    with open(f"/proc/{program.process.pid}/smaps_rollup", encoding="ascii") as memory:
        kilobytes = int(re.search(r"^Rss: +(\d+)", memory.read(), re.M).group(1))
    program.kill()
    return seconds, kilobytes / MEGABYTE


def frames(computer):
    """As Wine tells them of the device that it opens."""
    (computer.home / ".asoundrc").write_text(SILENT_DEVICE, encoding="ascii")
    environment = {**computer.env, "SDL_AUDIODRIVER": "wasapi", "WINEDEBUG": "+alsa"}
    with subprocess.Popen([WINE, computer.programs / "bin/marlbrook.exe"], env=environment, stderr=subprocess.PIPE, text=True) as program:
        limit = threading.Timer(60, program.kill)
        limit.start()
        found = next((re.search(r"MMDevice period: (\d+) frames", line) for line in program.stderr if "MMDevice period" in line), None)
        limit.cancel()
        program.kill()
    return found.group(1) if found else "no device"


def tell(what, values, unit):
    print(f"{what}: {statistics.median(values):.2f} {unit} ({min(values):.2f} to {max(values):.2f})")


def main():
    computer = Computer(installed())
    start(computer)  # the first one lays down the user's folder, and Wine's own programs then run already
    seconds, megabytes = zip(*(start(computer) for _ in range(int(sys.argv[1]) if len(sys.argv) > 1 else 7)))
    tell("start face", seconds, "s")
    tell("memory", megabytes, "MB")
    print("sound:", frames(computer), "frames")
    computer.end()


if __name__ == "__main__":
    main()
