#!/usr/bin/env python3
"""Do the tests notice when the program is changed? Makes single small changes in the procedures of the core, one at a time in a copy of
the checkout, and runs the unit tests and then the scripts until one fails:

    tests/mutants.py COUNT [SEED [FOLDER...]]

COUNT changes are drawn at random, of each kind about as many: a comparison turned, + and - or && and || exchanged, a constant one
higher, a call left out. What no test notices is printed; someone must judge whether it matters. The driver scripts in the FOLDERs run
beside those of the tests. The copy and its build stay in build/mutants. Takes half a minute or so for each change.
"""
import filecmp
import os
import pathlib
import random
import re
import resource
import shutil
import subprocess
import sys

TOP = pathlib.Path(__file__).resolve().parent.parent
HOME = TOP / "build" / "mutants"
TREE = HOME / "tree"
BUILD = HOME / "build"
FOLDERS = ["session", "files", "keys", "taxa", "diagram"]
MEMORY = 4 << 30  # bytes: a change may make a loop endless

TEXT_OR_COMMENT = re.compile(r'"(?:\\.|[^"\\])*"|\'(?:\\.|[^\'\\])*\'|//.*')
CALL = re.compile(r"(?:^\s+|\) )(?!return\b|throw\b|if\b|for\b|while\b|else\b)(?:[\w.:\[\]]|->)+\([^{}]*\)(?=;$)")
KINDS = {
    "comparison": [(r"(?<= )==(?= )", "!="), (r"(?<= )!=(?= )", "=="), (r"(?<= )<=(?= )", "<"), (r"(?<= )>=(?= )", ">"),
                   (r"(?<= )<(?= )", "<="), (r"(?<= )>(?= )", ">=")],
    "sum": [(r"(?<= )\+(?= )", "-"), (r"(?<= )-(?= )", "+")],
    "logic": [(r"(?<= )&&(?= )", "||"), (r"(?<= )\|\|(?= )", "&&")],
    "constant": [(r"(?<![\w.])\d+(?![\w.])", lambda text: str(int(text) + 1))],
}


def blank_texts(line):
    return TEXT_OR_COMMENT.sub(lambda found: "\0" * len(found.group()), line)


def changes_of(line):
    """(kind, the changed line) for every change that the line allows."""
    bare = blank_texts(line)
    if bare.startswith("#"):
        return
    for kind, rules in KINDS.items():
        for pattern, other in rules:
            for found in re.finditer(pattern, bare):
                put = other(found.group()) if callable(other) else other
                yield kind, line[: found.start()] + put + line[found.end() :]
    found = CALL.search(bare)
    if found and bare[: found.end()].count("(") == bare[: found.end()].count(")"):
        start = found.start() + re.match(r"\s+|\) ", found.group()).end()
        yield "call", line[:start] + line[found.end() :]


def all_changes():
    by_kind = {}
    for folder in FOLDERS:
        for path in sorted((TREE / folder).glob("*.cpp")):
            for number, line in enumerate(path.read_text().split("\n")):
                for kind, changed in changes_of(line):
                    by_kind.setdefault(kind, []).append((path, number, changed))
    return by_kind


def draw(count, seed):
    by_kind = all_changes()
    dice = random.Random(seed)
    for changes in by_kind.values():
        dice.shuffle(changes)
    drawn = []
    while len(drawn) < count and any(by_kind.values()):
        for kind in sorted(by_kind):
            if by_kind[kind]:
                drawn.append((kind, *by_kind[kind].pop()))
    return drawn[:count]


def run(command, seconds):
    """Whether the command ended well, in time."""
    process = subprocess.Popen(
        command, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL, start_new_session=True, cwd=TREE,
        env={**os.environ, "CCACHE_DISABLE": "1", "TMPDIR": str(HOME / "tmp")})
    try:
        return process.wait(seconds) == 0
    except subprocess.TimeoutExpired:
        os.killpg(process.pid, 9)
        process.wait()
        return False


def build():
    return run(["cmake", "--build", str(BUILD), "--target", "unit_tests", "marlbrook-drive"], 900)


def unit_tests_pass():
    return run([str(BUILD / "bin" / "unit_tests"), "--gtest_brief=1", "--gtest_fail_fast"], 120)


def scripts_pass():
    return run(["ctest", "--test-dir", str(BUILD), "-L", "scripts", "--parallel", "2", "--stop-on-failure"], 300)


def outcome():
    if not build():
        return "does not compile"
    if not unit_tests_pass():
        return "noticed by the unit tests"
    return "SURVIVES" if scripts_pass() else "noticed by the scripts"


def try_change(kind, path, number, changed):
    """The outcome, after which the file is as it was."""
    whole = path.read_text()
    lines = whole.split("\n")
    old, lines[number] = lines[number], changed
    path.write_text("\n".join(lines))
    result = outcome()
    path.write_text(whole)
    print(f"{result}: {kind} {path.relative_to(TREE)}:{number + 1}", flush=True)
    if result == "SURVIVES":
        print(f"    - {old.strip()}\n    + {changed.strip()}", flush=True)
    return result


def files_below(folder):
    skipped = {"build", ".git", "__pycache__"}
    return {path.relative_to(folder) for path in folder.rglob("*") if path.is_file() and not skipped & set(path.relative_to(folder).parts)}


def make_copy(script_folders):
    """Files that have not changed stay as they are: what was built of them still holds."""
    wanted = files_below(TOP)
    for gone in files_below(TREE) - wanted:
        (TREE / gone).unlink()
    for name in wanted:
        if not (TREE / name).exists() or not filecmp.cmp(TOP / name, TREE / name, shallow=False):
            (TREE / name).parent.mkdir(parents=True, exist_ok=True)
            shutil.copy(TOP / name, TREE / name)
    (HOME / "tmp").mkdir(exist_ok=True)
    subprocess.run(
        ["cmake", "-S", str(TREE), "-B", str(BUILD), "-G", "Ninja", "-DCMAKE_CXX_FLAGS=-O1 -w", "-DCMAKE_DISABLE_FIND_PACKAGE_Qt6=ON",
         "-DCMAKE_DISABLE_FIND_PACKAGE_benchmark=ON", "-DMARLBROOK_SCRIPT_FOLDERS=" + ";".join(script_folders)], check=True, stdout=subprocess.DEVNULL)


def main():
    numbers = sys.argv[1:3]
    folders = [pathlib.Path(folder).resolve() for folder in sys.argv[3:]]
    if not numbers or not all(word.isdigit() for word in numbers) or not all(folder.is_dir() for folder in folders):
        sys.exit("usage: mutants.py COUNT [SEED [FOLDER...]]")
    seed = int(numbers[1]) if len(numbers) == 2 else random.randrange(10**6)
    resource.setrlimit(resource.RLIMIT_AS, (MEMORY, MEMORY))
    os.nice(19)
    TREE.mkdir(parents=True, exist_ok=True)
    make_copy([str(folder) for folder in folders])
    if outcome() != "SURVIVES":
        sys.exit("mutants.py: the tests fail as it is")
    drawn = draw(int(sys.argv[1]), seed)
    print(f"seed {seed}", flush=True)
    results = [try_change(*change) for change in drawn]
    tried = [result for result in results if result != "does not compile"]
    survivors = tried.count("SURVIVES")
    print(f"{len(tried) - survivors} noticed, {survivors} survive, {len(results) - len(tried)} do not compile")


if __name__ == "__main__":
    main()
