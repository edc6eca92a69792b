#!/usr/bin/env python3
"""Makes docs/pictures/windows.png anew: the main window with the sample core, as the program for Windows shows it under Wine.

    docs/windows_picture.py      after packaging/windows/build.sh
"""
import os
import pathlib
import shutil
import sys

DOCS = pathlib.Path(__file__).resolve().parent
os.environ.setdefault("MARLBROOK_BIN", str(DOCS.parent / "build/windows/bin"))
sys.path[:0] = [str(DOCS.parent / "tests" / folder) for folder in ("wine", "windows")]

from computer import Computer, Installed, installed  # noqa: E402
from desk import MAIN, START  # noqa: E402
from keyboard import ENTER, TAB  # noqa: E402
from spoken import wait_for  # noqa: E402


def main():
    computer = Computer(installed())
    cores = computer.c / "Cores"
    cores.mkdir()
    shutil.copy(DOCS / "manual/lake_core.csv", cores / "lake core.csv")
    program = Installed(computer)
    program.window(START)
    program.press(TAB, ENTER)  # Open data file or template
    program.type_file_name("Open", r"C:\Cores\lake core.csv")
    program.press(ENTER)
    program.desk.gone("Open")
    opened = r"Marlbrook 2\.7\.5 - \[lake core\]"
    window = wait_for("the sheet", lambda: next(iter(computer.desk.windows(opened)), None))
    program.activate(MAIN)
    pictures = [None]

    def is_at_rest():
        pictures.append(computer.desk.output("import", "-window", str(window), "png:-"))
        return pictures[-1] == pictures[-2]

    wait_for("two pictures in a row that are alike", is_at_rest)
    (DOCS / "pictures/windows.png").write_bytes(pictures[-1])
    program.kill()
    computer.end()


main()
