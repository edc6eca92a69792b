#!/usr/bin/env python3
"""Makes docs/pictures/about.png anew: of the program itself, because the box names its folder, which should be one that
a user might have.

    docs/about_picture.py      after packaging/build.sh release; docs/pictures.sh runs it with the letters of the other pictures
"""
import pathlib
import shutil
import sys

DOCS = pathlib.Path(__file__).resolve().parent
sys.path.insert(0, str(DOCS.parent / "tests/windows"))

from desk import MAIN, Program  # noqa: E402
from spoken import wait_for  # noqa: E402
from x11_desk import X11Desk  # noqa: E402

FOLDER = pathlib.Path("/tmp/Marlbrook")
SCREEN = "800x800"  # as large as the one that the other pictures are made on
ABOUT = "Marlbrook 2.7"


class PlainlyNamed(Program):
    def start(self):
        FOLDER.mkdir()  # an error if there is such a folder
        for part in list(self.folder.iterdir()):
            shutil.move(part, FOLDER)
        self.folder.rmdir()
        self.folder = FOLDER
        self.command = [str(FOLDER / "marlbrook")]
        super().start()

    def end(self):
        super().end()
        shutil.rmtree(FOLDER)


def take_picture(desk, program):
    program.begin("12.5")
    program.click(MAIN, "About", "menu item")
    program.click(MAIN, ABOUT, "menu item")
    window = program.window(ABOUT)
    pictures = [None]

    def is_at_rest():
        pictures.append(desk.output("import", "-strip", "-window", str(window), "png:-"))
        return pictures[-1] == pictures[-2]

    wait_for("two pictures in a row that are alike", is_at_rest)
    (DOCS / "pictures/about.png").write_bytes(pictures[-1])


def main():
    desk = X11Desk(SCREEN)
    program = PlainlyNamed(desk)
    try:
        take_picture(desk, program)
    finally:
        program.end()
        desk.close()


main()
