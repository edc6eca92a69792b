"""Runs the benchmarks, and the same jobs with peers and at their limits, and writes docs/benchmarks.md."""
import datetime
import json
import os
import pathlib
import platform
import re
import statistics
import subprocess
import sys
import tempfile
import time

TOP = pathlib.Path(__file__).resolve().parents[1]
BIN = TOP / "build/release/bin"
SAMPLES, TAXA = 250, 135
GROWTH = (10, 50, 100, 250)  # samples

sys.path.insert(0, str(TOP / "tests/windows"))
import desk
import figure_bench
import spoken


def milliseconds(job, times=7):
    """The median of several runs."""
    spans = []
    for _ in range(times):
        begin = time.perf_counter()
        job()
        spans.append((time.perf_counter() - begin) * 1000)
    return statistics.median(spans)


def text(value):
    return f"{value:.3g}" if value < 100 else f"{value:.0f}"


def benchmarks(program):
    """Name of a benchmark: milliseconds."""
    environment = dict(os.environ, QT_QPA_PLATFORM="offscreen")
    out = subprocess.run([BIN / program, "--benchmark_format=json"], capture_output=True, text=True, check=True, env=environment).stdout
    runs = json.loads(out)["benchmarks"]
    times = {run["name"].split("/iterations")[0].removesuffix("/real_time"): run["real_time"] / 1000 for run in runs}
    times.update({run["name"].split("/")[0] + " 99 %": run["p99_us"] / 1000 for run in runs if "p99_us" in run})
    return times


def window(task, acts):
    """Stage of an act: its median and 99 % in milliseconds, through the real window."""
    out = subprocess.run(["bench/window_bench.sh", task, str(acts)], cwd=TOP, capture_output=True, text=True, check=True).stdout
    stages = {stage: (float(median), float(most)) for stage, median, most in
              re.findall(r"to (\w+)\s+median\s+([\d.]+) ms\s+99 % within\s+([\d.]+)", out)}
    return stages or sys.exit(f"report.py: no times in what window_bench printed:\n{out}")


def memory(samples):
    """What the program holds, in megabytes: with a sheet of so many samples, with its diagram, with the tree."""
    out = subprocess.run(["bench/window_bench.sh", "memory", str(samples)], cwd=TOP, capture_output=True, text=True, check=True).stdout
    return {what: float(size) for what, size in re.findall(r"with (\w+)\s+([\d.]+) MB", out)}


def start_up(start, title):
    """Milliseconds until a window of that title is on the screen, and the megabytes that its program then holds: medians."""
    runs = []
    for _ in range(5):
        screen = desk.Desk()
        time.sleep(0.5)  # a window that comes before its manager is there stays unseen
        begin = time.perf_counter()
        process, end = start(screen)
        try:
            while not screen.windows(title):
                if time.perf_counter() - begin > spoken.PATIENCE:
                    sys.exit(f"report.py: no window {title} came")
            spent = (time.perf_counter() - begin) * 1000
            resident = pathlib.Path(f"/proc/{process.pid}/status").read_text().split("VmRSS:")[1].split()[0]
        finally:
            end()
            screen.close()
        runs.append((spent, float(resident) / 1024))
    return [statistics.median(column) for column in zip(*runs)]


def start_program(screen):
    program = desk.Program(screen)
    return program.process, program.end


def start_bare_window(screen):
    process = subprocess.Popen([BIN / "bare_window"], env=screen.env)

    def end():
        process.terminate()
        process.wait()

    return process, end


def large_sheet(folder):
    """A sheet that the program itself has saved."""
    sheet = folder / "large.csv"
    names = ",".join(f'"{10 * sample}"' for sample in range(1, SAMPLES + 1))
    rows = [f'"{sheet}","Last saved (dd/mm/yyyy):","x","Serial No.",' + ",".join(str(s) for s in range(1, SAMPLES + 1)),
            f'"Key index","Trees","Herbs","Sample name",{names}']
    rows += [f'{slot},{slot % 2},0,"Taxon {slot}",' + ",".join(str((slot + s) % 100) for s in range(1, SAMPLES + 1))
             for slot in range(1, TAXA + 1)]
    sheet.write_text("\r\n".join(rows) + "\r\n")
    return sheet


def peers(folder, sheet):
    """The same jobs on the same data with pandas and scikit-learn; R reads the file too."""
    import numpy
    import pandas
    from scipy.sparse import diags
    from sklearn.cluster import AgglomerativeClustering

    frame = pandas.read_csv(sheet, skiprows=1, encoding="cp1252")
    counts = frame.iloc[:, 4:]
    shares = (counts / counts.sum()).T.to_numpy()
    neighbours = diags([1, 1], [-1, 1], shape=(SAMPLES, SAMPLES))
    tree = AgglomerativeClustering(n_clusters=1, linkage="ward", connectivity=neighbours, compute_full_tree=True)
    r_code = (f'x <- c(); for (i in 1:7) {{ t <- proc.time()[["elapsed"]]; d <- read.csv("{sheet}", skip = 1, check.names = FALSE); '
              'x <- c(x, proc.time()[["elapsed"]] - t) }; cat(median(x) * 1000)')
    return {
        "pandas read_csv": milliseconds(lambda: pandas.read_csv(sheet, skiprows=1, encoding="cp1252")),
        "pandas to_csv": milliseconds(lambda: frame.to_csv(folder / "out.csv", index=False)),
        "pandas percentages": milliseconds(lambda: numpy.round(counts / counts.sum() * 100, 4)),
        "pandas to_csv of percentages": milliseconds(lambda: numpy.round(counts / counts.sum() * 100, 4).to_csv(folder / "percent.csv")),
        "scikit-learn constrained tree": milliseconds(lambda: tree.fit(shares)),
        "R read.csv": float(subprocess.run(["Rscript", "-e", r_code], capture_output=True, text=True, check=True).stdout),
    }


def machine():
    cpu = re.search(r"model name\s*: (.*)", pathlib.Path("/proc/cpuinfo").read_text()).group(1)
    return f"{cpu}, {os.cpu_count()} cores, {platform.freedesktop_os_release()['PRETTY_NAME']}"


def table(head, rows):
    return "\n".join(["| " + " | ".join(row) + " |" for row in [head, ["---"] * len(head), *rows]])


def page(times, acts, starts, held, others, figure):
    per = lambda name: times[name]
    reached = lambda task, stage: " / ".join(text(time) for time in acts[task].get(stage, ()))
    keys = [[what, *(reached(task, stage) for stage in ("model", "sound", "picture")), aim]
            for task, what, aim in (("plain", "a key, no diagram", "2 / 6"), ("diagram", "a key, diagram of 135 x 250 open", "– / 8"),
                                    ("fresh", "the same in a sample just begun", "– / 8"),
                                    ("tree", "a key, diagram and cluster tree open", "– / 10"),
                                    ("drag", "a move of the sample's line", "– / 2"))]
    near = lambda job, limit: [text(per(job)), text(per(limit)), f"{per(job) / per(limit):.1f}"]
    peer = lambda job, *names: ", ".join(f"{name} {text(others[name])}: {others[name] / per(job):.1f} times as long" for name in names)
    jobs = [["open a sheet", *near("Open/250", "ReadNumbers/250"), peer("Open/250", "pandas read_csv", "R read.csv")],
            ["save it in memory", *near("Save/250", "WriteNumbers/250"), peer("Save/250", "pandas to_csv")],
            ["save it on the disk", *near("SaveOnDisk/250", "WriteBytes/250"), ""],
            ["back-up", *near("BackUp/250", "WriteNumbers/250"), ""],
            ["percentages of all samples", *near("Percentages/250", "DivideCounts/250"), peer("Percentages/250", "pandas percentages")],
            ["save their table in memory", *near("SavePercentages/250", "WriteDecimals/250"), peer("SavePercentages/250", "pandas to_csv of percentages")],
            ["`ComputeDiagramData`", *near("DiagramData/250", "DivideCounts/250"), ""],
            ["`ComputeConiss`", *near("Coniss/250", "CompareNeighbours/250"), peer("Coniss/250", "scikit-learn constrained tree")],
            ["paint the diagram", *near("PaintWhole", "PaintSameLines"), ""],
            ["repaint the row of a count", text(per("RepaintRow")), "", "", ""]]
    growth = [[what, *(text(per(f"{name}/{n}")) for n in GROWTH)] for what, name in
              (("open", "Open"), ("save in memory", "Save"), ("save on the disk", "SaveOnDisk"), ("back-up", "BackUp"),
               ("percentages of all samples", "Percentages"), ("save their table in memory", "SavePercentages"), ("`ComputeDiagramData`", "DiagramData"), ("`ComputeConiss`", "Coniss"))]
    growth += [[f"memory with the {what}, MB", *(f"{held[n][what]:.0f}" for n in GROWTH)] for what in ("sheet", "diagram", "tree")]
    (start, megabytes), (bare_start, bare_megabytes) = starts
    return f"""# Benchmarks

Written by `./bench.sh` on {datetime.date.today():%d/%m/%Y}; {machine()}. Times are milliseconds. The sheet has {TAXA} taxa by {SAMPLES} samples where nothing else is said.

## From the user's hand to the screen

Through the real window on an X server, which runs on the same machine: median / 99 % within. The picture counts as there when the server has
carried out the painting. The aims are our own: what nobody sees late. Keys come 200 a second without a diagram, 40 a second beside one of 1600 by 1000 pixels, bar and curve. In a sample just begun each
key is a large percentage: the columns move, and the whole diagram is painted again, not one row.

{table(["act", "model", "sound", "picture", "aim"], keys)}

A key in the program alone, with the large sheet, takes {text(per("PressKeysOnLargeSheet"))}; 99 % within {text(per("PressKeysOnLargeSheet 99 %"))}.
The rest of the way to the model belongs to the X server and the toolkit.

The start face is on the screen {text(start)} after the command, and the program then holds {megabytes:.0f} MB. A window of the toolkit with nothing in it
takes {text(bare_start)} and {bare_megabytes:.0f} MB.

## Jobs

The limit is what the machine takes for the least that the job must do. Peers do the same job on the same data in the same run.

{table(["job", "Marlbrook", "limit", "times the limit", "beside it"], jobs)}

- The limit of opening is to find each cell and read it as a number. Opening also fills the cells of the screen, the lists and the totals, and writes the master
  back-up; pandas and R read the table alone.
- The limit of saving is to write each count as a number; on the disk it is one write and flush of the same bytes. A save also writes names and notes,
  sums each sample three times with a check for 16 bits, and takes the copy that Reset goes back to.
- The limit of the percentages is to divide each count. They are summed on their basis first; the diagram's are also ranked, and the widths of its columns found.
- The limit of the clustering is to compare each two neighbours once. The tree then joins all of them, one pair a step. scikit-learn's constrained clustering uses
  another criterion (Ward) on the same neighbours.
- The limit of painting is the toolkit's painter with the same bars and lines, all of one colour, in two calls. The diagram has three colours in turn, column by column.

## Growth with the samples

{table(["samples", *(str(n) for n in GROWTH)], growth)}

## Drawing

The display list of the diagram at the horizontal scales 1, 5 and 10: {text(per("Draw/1"))}, {text(per("Draw/5"))}, {text(per("Draw/10"))}; names {text(per("Names"))}, tree {text(per("Tree"))};
all that a key does to an open diagram before it is painted: {text(per("Redraw"))}.

## The figure

`marlbrook-figure` from the command to its end, as silhouettes, and the scripts that it writes beside its tables. The aim is a tenth of what matplotlib takes, and
150 milliseconds.

{table(["made", "milliseconds"], [[what, text(spent)] for what, spent in figure.items()])}
"""


def main():
    acts = {task: window(task, count) for task, count in (("plain", 5000), ("diagram", 1000), ("fresh", 1000), ("tree", 1000), ("drag", 600))}
    starts = start_up(start_program, desk.START), start_up(start_bare_window, "Bare window.*")
    held = {samples: memory(samples) for samples in GROWTH}
    with tempfile.TemporaryDirectory() as name:
        folder = pathlib.Path(name)
        others = peers(folder, large_sheet(folder))
    result = page(benchmarks("sheet_bench") | benchmarks("desktop_bench"), acts, starts, held, others, figure_bench.measure())
    (TOP / "docs/benchmarks.md").write_text(result)
    print(result)


main()
