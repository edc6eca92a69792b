"""How long the figure of a long core takes, from the command to its end, beside matplotlib and R that draw the same percentages.

    python3 bench/figure_bench.py     after packaging/build.sh release
"""
import pathlib
import statistics
import subprocess
import tempfile
import time

BIN = pathlib.Path(__file__).resolve().parents[1] / "build/release/bin"
SAMPLES, TAXA = 250, 135
LABELS = ["---"] * 3


def sheet(folder):
    def row(labels, cell):
        return ",".join([f'"{label}"' for label in labels] + [str(cell(sample)) for sample in range(1, SAMPLES + 1)])

    rows = [row(["core.csv", "Last saved (dd/mm/yyyy):", "x", "Serial No."], lambda sample: sample),
            row(["Key index", "Trees", "Herbs", "Sample name"], lambda sample: f'"{4 * sample}"')]
    rows += [row([slot, int(slot <= 60), int(60 < slot <= 120), f"Taxon {slot}"], lambda sample: (slot * 7 + sample) % 100)
             for slot in range(1, TAXA + 1)]
    rows += [row([*LABELS, f"Additional info-{p}"], lambda sample: '"---"') for p in range(1, 7)]
    rows += [row([*LABELS, "Note: "], lambda sample: '""')]
    path = folder / "core.csv"
    path.write_text("\r\n".join(rows) + "\r\n", newline="")
    return path


def milliseconds(*command, folder, times):
    """The median of several processes."""
    spans = []
    for _ in range(times):
        begin = time.perf_counter()
        subprocess.run(command, cwd=folder, check=True, capture_output=True)
        spans.append((time.perf_counter() - begin) * 1000)
    return statistics.median(spans)


def measure():
    """What was made and by what: milliseconds."""
    with tempfile.TemporaryDirectory() as name:
        folder = pathlib.Path(name)
        core, tables = sheet(folder), folder / "core_tables"
        figure = BIN / "marlbrook-figure", core, "--style", "silhouette"
        subprocess.run([*figure, "--python", "--r"], check=True)
        return {
            "SVG, PDF and tables": milliseconds(*figure, folder=folder, times=7),
            "SVG and PDF": milliseconds(*figure, "--no-tables", folder=folder, times=7),
            "PDF by matplotlib, from the tables": milliseconds("/usr/bin/python3", "figure.py", folder=tables, times=3),
            "PDF by R's own graphics, from the tables": milliseconds("Rscript", "figure.R", folder=tables, times=3),
        }


if __name__ == "__main__":
    for what, spent in measure().items():
        print(f"{what}: {spent:.0f} ms")
