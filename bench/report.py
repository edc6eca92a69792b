"""Runs the benchmarks, and the same jobs with peers and at their limits, and writes docs/benchmarks.md."""
import datetime
import json
import os
import pathlib
import platform
import re
import statistics
import subprocess
import tempfile
import time

TOP = pathlib.Path(__file__).resolve().parents[1]
BIN = TOP / "build/release/bin"
SAMPLES, TAXA = 250, 135


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


def core():
    """Name of a benchmark: milliseconds."""
    out = subprocess.run([BIN / "sheet_bench", "--benchmark_format=json"], capture_output=True, text=True, check=True).stdout
    runs = json.loads(out)["benchmarks"]
    times = {run["name"].split("/iterations")[0]: run["real_time"] / 1000 for run in runs}
    times["press_p99"] = next(run["p99_us"] for run in runs if run["name"].startswith("PressKeysOnLargeSheet")) / 1000
    return times


def window(task, acts):
    """Stage of an act: its median and 99 % in milliseconds, through the real window."""
    out = subprocess.run(["bench/window_bench.sh", task, str(acts)], cwd=TOP, capture_output=True, text=True, check=True).stdout
    return {stage: (float(median), float(most)) for stage, median, most in
            re.findall(r"to (\w+)\s+median\s+([\d.]+) ms\s+99 % within\s+([\d.]+)", out)}


def start_up():
    """Milliseconds from the command to the start face on the screen, and the megabytes that the program then holds."""
    code = ("import sys,time;sys.path.insert(0,'tests/windows');import desk;d=desk.Desk();b=time.perf_counter();p=desk.Program(d);"
            "exec(\"while not d.windows('^Marlbrook 2'): pass\");print((time.perf_counter()-b)*1000);"
            "print(open(f'/proc/{p.process.pid}/status').read().split('VmRSS:')[1].split()[0]);p.end();d.close()")
    runs = [subprocess.run(["python3", "-c", code], cwd=TOP, capture_output=True, text=True, check=True).stdout.split() for _ in range(5)]
    return statistics.median(float(run[0]) for run in runs), statistics.median(float(run[1]) for run in runs) / 1024


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


def limits(folder, sheet):
    """The same bytes written and flushed in one piece."""
    data = sheet.read_bytes() * 2  # a saved sheet is about twice as long, with its notes and sums

    def write():
        with open(folder / "bytes", "wb") as file:
            file.write(data)

    def write_and_flush():
        with open(folder / "bytes", "wb") as file:
            file.write(data)
            file.flush()
            os.fsync(file.fileno())

    return milliseconds(write), milliseconds(write_and_flush)


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
        "pandas read": milliseconds(lambda: pandas.read_csv(sheet, skiprows=1, encoding="cp1252")),
        "pandas write": milliseconds(lambda: frame.to_csv(folder / "out.csv", index=False)),
        "pandas percentages": milliseconds(lambda: numpy.round(counts / counts.sum() * 100, 4)),
        "scikit-learn tree": milliseconds(lambda: tree.fit(shares)),
        "R read": float(subprocess.run(["Rscript", "-e", r_code], capture_output=True, text=True, check=True).stdout),
    }


def machine():
    cpu = re.search(r"model name\s*: (.*)", pathlib.Path("/proc/cpuinfo").read_text()).group(1)
    return f"{cpu}, {os.cpu_count()} cores, {platform.freedesktop_os_release()['PRETTY_NAME']}"


def table(head, rows):
    return "\n".join(["| " + " | ".join(row) + " |" for row in [head, ["---"] * len(head), *rows]])


def page(times, acts, start, bare, flushed, others):
    per = lambda name: times[name]
    reached = lambda task, stage: " / ".join(text(time) for time in acts[task].get(stage, ()))
    keys = [[what, *(reached(task, stage) for stage in ("model", "sound", "picture"))]
            for task, what in (("plain", "a key, no diagram"), ("diagram", "a key, diagram of 135 x 250 open"),
                               ("tree", "the same with the cluster tree"), ("drag", "a move of the sample's line"))]
    jobs = [["open a sheet, whole", text(per("Open")), f"pandas read_csv {text(others['pandas read'])}, R read.csv {text(others['R read'])}",
             f"{text(others['pandas read'] / per('Open'))} and {text(others['R read'] / per('Open'))} times as long"],
            ["save it (in memory)", text(per("Save")), f"pandas to_csv {text(others['pandas write'])}",
             f"{text(others['pandas write'] / per('Save'))} times as long"],
            ["write its bytes to the disk", text(bare), "with a flush to the disk", text(flushed)],
            ["back-up", text(per("BackUp")), "", ""],
            ["percentages of all samples", text(per("Percentages")), f"pandas {text(others['pandas percentages'])}",
             f"{text(others['pandas percentages'] / per('Percentages'))} times as long"],
            ["cluster tree of 250 samples", text(per("Coniss/250")), f"scikit-learn, constrained {text(others['scikit-learn tree'])}",
             f"{text(others['scikit-learn tree'] / per('Coniss/250'))} times as long"]]
    growth = [[what, *(text(per(f"{name}/{n}")) for n in (10, 50, 100, 250))] for what, name in
              (("ComputeDiagramData", "DiagramData"), ("ComputeConiss", "Coniss"))]
    return f"""# Benchmarks

Written by `./bench.sh` on {datetime.date.today():%d/%m/%Y}; {machine()}. Times are milliseconds. The sheet has {TAXA} taxa by {SAMPLES} samples where nothing else is said.

## From the user's hand to the screen

Through the real window on an X server, which runs on the same machine: median / 99 % within. The picture counts as there when the server has
carried out the painting. Keys come 200 a second without a diagram, 40 a second beside one of 1600 by 1000 pixels.

{table(["act", "model", "sound", "picture"], keys)}

A key in the program alone, with the large sheet, takes {text(per("PressKeysOnLargeSheet"))}; 99 % within {text(times["press_p99"])}.

The start face is on the screen {text(start[0])} after the command; the program then holds {start[1]:.0f} MB.

## Jobs

The program works on files in memory here; what the disk adds is told apart. Peers do the same job on the same data in the same run.

{table(["job", "Marlbrook", "beside it", "that is"], jobs)}

Opening fills the cells of the screen, the lists and the totals, and writes the master back-up; pandas and R read the table alone. The constrained clustering
of scikit-learn is another criterion (Ward) on the same neighbours.

## Growth with the samples

{table(["", "10", "50", "100", "250"], growth)}

## Drawing

The display list of the diagram at the horizontal scales 1, 5 and 10: {text(per("Draw/1"))}, {text(per("Draw/5"))}, {text(per("Draw/10"))}; names {text(per("Names"))}, tree {text(per("Tree"))};
all that a key does to an open diagram before it is painted: {text(per("Redraw"))}.
"""


def main():
    with tempfile.TemporaryDirectory() as name:
        folder = pathlib.Path(name)
        sheet = large_sheet(folder)
        others = peers(folder, sheet)
        bare, flushed = limits(folder, sheet)
        acts = {task: window(task, count) for task, count in (("plain", 5000), ("diagram", 1000), ("tree", 1000), ("drag", 600))}
        result = page(core(), acts, start_up(), bare, flushed, others)
    (TOP / "docs/benchmarks.md").write_text(result)
    print(result)


main()
