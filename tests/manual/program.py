"""The running program, asked through the driver: its windows, the captions of their controls, its messages."""

import os
import re
import subprocess
import tempfile
from functools import cache
from pathlib import Path

TOP = Path(__file__).resolve().parents[2]
HERE = Path(__file__).resolve().parent
DRIVER = Path(os.environ.get("MARLBROOK_BIN", TOP / "build/release/bin")) / "marlbrook-drive"

WITH_CAPTION = ("Label", "Button", "Frame", "CheckBox", "OptionButton", "MenuItem")
WITH_TOOL_TIP = ("Slider", "PictureBox")
NUMBERED = ("mnuMoveTo", "mnuLetters")  # a caption of theirs is a number or a letter


def play(script, folder=None):
    """Plays a script that lies in `folder`; its paths "./" lie there."""
    with tempfile.TemporaryDirectory() as own:
        path = Path(folder or own) / "asked.drive"
        path.write_text(script, encoding="utf-8")
        return subprocess.run([DRIVER, str(path)], capture_output=True, text=True, timeout=60)


def play_file(path):
    """Plays a script of this folder. Beside it lie the sheet of the manual, the same with a key index twice, and one of 250 samples."""
    with tempfile.TemporaryDirectory() as work:
        sheet = (TOP / "docs" / "manual" / "lake_core.csv").read_bytes()
        (Path(work) / "lake_core.csv").write_bytes(sheet)
        (Path(work) / "key_twice.csv").write_bytes(sheet.replace(b'\r\n4,1,0,"', b'\r\n3,1,0,"'))
        (Path(work) / "full.csv").write_bytes(sheet_of(250))
        (Path(work) / path.name).write_bytes(path.read_bytes())
        return subprocess.run([DRIVER, str(Path(work) / path.name)], capture_output=True, text=True, timeout=60)


def sheet_of(samples):
    """A sheet without names of taxa and without counts."""
    places = range(1, samples + 1)
    rows = [["", "", "", "Serial No.", *places], ["Key index", "Subtotal-1", "Subtotal-2", "Sample name", *places]]
    rows += [[slot, 0, 0, "---", *[0] * samples] for slot in range(1, 136)]
    rows += [["---", "---", "---", name, *["---"] * samples] for name in ["a", "b", "c", "d", "e", "f", "Note: "]]
    return "".join(",".join(map(str, row)) + "\r\n" for row in rows).encode()


@cache
def constants():
    found = {}
    for header in [TOP / "sheet/sizes.h", *sorted((TOP / "windows").glob("*.h"))]:
        for name, value in re.findall(r"constexpr int (\w+) = (\d+);", header.read_text(encoding="utf-8")):
            found[name] = int(value)
    return found


@cache
def controls():
    """window -> [(kind, name as the driver says it)], from the windows' own lists."""
    found = {}
    for header in sorted((TOP / "windows").glob("*_window*.h")):
        for kind, body, window in re.findall(r"struct (\w+) : Window \{(.*?)^\};(?=.*?^extern \1 (\w+);)", header.read_text(encoding="utf-8"), re.M | re.S):
            of_window = found.setdefault(window, [])
            public = re.sub(r"//[^\n]*", "", body.split("private:")[0])
            for control, declared in re.findall(r"^\s+([A-Z]\w+) ((?:\w+(?:\[[^\]]+\])?(?:,\s+)?)+);", public, re.M):
                for name, size in re.findall(r"(\w+)(?:\[([^\]]+)\])?", declared):
                    places = range(eval(size, constants())) if size else [None]
                    of_window += [(control, name if place is None else f"{name}({place})") for place in places]
    return found


def ask(before, names):
    """What `show` tells of those of the names that there are, after the commands `before`."""
    names = list(names)
    told = {}
    while names:
        ran = play(before + "".join(f"show {name}\n" for name in names))
        told.update(line.split(" = ", 1) for line in ran.stdout.splitlines() if " = " in line)
        if ran.returncode == 0:
            return told
        stopped = re.search(r"asked\.drive:(\d+): (.*)", ran.stderr)
        place = int(stopped.group(1)) - before.count("\n") - 1 if stopped else -1
        if place < 0:
            raise AssertionError(ran.stderr)
        names = names[place + 1:]  # an index that the window leaves out
    return told


def plain(caption):
    """As it is read: without the mark of the letter that Alt takes, and without blanks around it."""
    return caption.replace("&", "").strip()


NEXT_SAMPLE = 'begin 4\nkey @1\nclick frmMain.Command5(1)\n'


@cache
def captions(window):
    """kind -> captions that the window's controls have at the start or when a second sample is about to be added."""
    questions = {}
    for kind, name in controls()[window]:
        if name.startswith(NUMBERED):
            continue
        if kind in WITH_CAPTION:
            questions[f"{window}.{name}.Caption"] = kind
        if kind in WITH_TOOL_TIP:
            questions[f"{window}.{name}.ToolTip"] = kind
        if kind == "TabControl":
            questions.update({f"{window}.{name}.TabCaption({tab})": kind for tab in range(3)})
    questions[f"{window}.Title"] = "Title"
    found = {}
    for before in ("", "start\n", NEXT_SAMPLE):
        for name, told in ask(before, questions).items():
            found.setdefault(questions[name], set()).add(plain(told))
    return found


@cache
def message_scripts():
    return sorted(HERE.glob("*.drive"))


@cache
def messages():
    """(title, text) of each message that the scripts of this folder expect, and so have seen."""
    found = set()
    for script in message_scripts():
        for title, text in re.findall(r'^expect-message (\S+|"[^"]*") "([^"]*)"', script.read_text(encoding="utf-8"), re.M):
            found.add((title.strip('"'), text))
    return found


@cache
def failure_words():
    return set(re.findall(r'constexpr const char\* k\w+ = "([^"]+)";', (TOP / "platform" / "failure.h").read_text(encoding="utf-8")))


@cache
def sentences_of_message_boxes():
    """Every literal that reads like (a part of) a sentence in a file that opens a message box."""
    found = set()
    for source in TOP.glob("*/**/*.cpp"):
        if source.relative_to(TOP).parts[0] in ("tests", "drive", "bench", "build"):
            continue
        text = source.read_text(encoding="utf-8")
        if not re.search(r"messages->Show|ShowExclamation|ShowPlainMessage\(\"|Fault\{", text):
            continue
        joined = re.sub(r'"\s*\n\s*"', "", text)
        found |= {literal.split("\\n")[0] for literal in re.findall(r'"((?:[^"\\\n]|\\.)*)"', joined) if re.search(r"\S+ \S+ .*[.?']$|^\) is|Frame too", literal)}
    return found
