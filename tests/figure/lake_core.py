"""The tables that marlbrook-figure makes of the manual's sheet, for tests that reckon them anew."""

import csv
import os
import shutil
import subprocess
import tempfile
from pathlib import Path

import manual

PROGRAM = Path(os.environ.get("MARLBROOK_BIN", manual.TOP / "build/release/bin")) / "marlbrook-figure"


def read(path, encoding="utf-8"):
    with open(path, encoding=encoding, newline="") as file:
        return list(csv.reader(file))


def sheet():
    return read(manual.FOLDER / "lake_core.csv", "windows-1252")


def make_tables(case, *options):
    """Their folder, as long as the class of tests runs; beside it there is room for more."""
    folder = tempfile.TemporaryDirectory()
    case.addClassCleanup(folder.cleanup)
    shutil.copy(manual.FOLDER / "lake_core.csv", folder.name)
    subprocess.run([PROGRAM, "lake_core.csv", *options], cwd=folder.name, timeout=120, check=True)
    return Path(folder.name) / "lake_core_tables"
