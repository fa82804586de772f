"""Prints what scripts/bench measured as tables.

table.py MEASURED          ratios of one run
table.py BEFORE AFTER      two builds beside each other
"""

import json
import pathlib
import re
import sys

WINDOWS = [
    "drehkipp_einfluegelig",
    "dreiteilig_mit_oberlicht",
    "rundbogen_dreiteilig",
    "haustuer_mit_seitenteilen",
    "sprossen_und_zusatzteile",
    "raster_3x3",
]
OPERATIONS = [
    "parse from memory",
    "parse from file",
    "calculate",
    "fit and calculate",
    "all outlines",
    "hidden lines",
    "write",
    "SVG",
    "whole cycle",
]
GRIDS = {
    "`Berechne`, sashes alone": "calculate/grid of ",
    "`Berechne`, with mullions": "calculate/grid with mullions of ",
    "front view": "hidden lines/grid of ",
}
SIZES = [1, 4, 16, 64, 256, 400]
NANOSECONDS = {"ns": 1, "us": 1e3, "ms": 1e6, "s": 1e9}


class Measured:
    """The times, allocations and instructions of one run, by row."""

    def __init__(self, folder):
        folder = pathlib.Path(folder)
        self.time, self.allocations = read_times(folder / "times.json")
        self.instructions = read_counts(folder)

    def both(self, row, reference):
        """How often a row takes what the reference takes: time, instructions."""
        return (
            self.time[row] / self.time[reference],
            self.instructions[row] / self.instructions[reference],
        )


def read_times(path):
    """The least of the repetitions: what other work on the machine added is no part of it."""
    time, allocations = {}, {}
    for run in json.loads(path.read_text())["benchmarks"]:
        if run["run_type"] == "aggregate":
            continue
        if run.get("error_occurred"):
            sys.exit(f"{run['name']}: {run['error_message']}")
        row = run["run_name"].removesuffix("/repeats:5")
        taken = run["cpu_time"] * NANOSECONDS[run["time_unit"]]
        time[row] = min(taken, time.get(row, taken))
        allocations[row] = run["allocations"]
    return time, allocations


def read_counts(folder):
    rounds = {}
    for line in (folder / "rows.txt").read_text().splitlines():
        count, _, row = line.split("\t")
        rounds[row] = int(count)
    instructions = {}
    for path in folder.glob("callgrind.out.*"):
        text = path.read_text()
        row = re.search(r"^desc: Trigger: Client Request: (.*)$", text, re.M)
        if row:
            total = int(re.search(r"^(?:totals|summary): (\d+)", text, re.M)[1])
            instructions[row[1]] = total / rounds[row[1]]
    return instructions


def heading(text):
    print(f"\n## {text}\n")


def table(columns, rows):
    print("| " + " | ".join(columns) + " |")
    print("|" + "---|" * len(columns))
    for row in rows:
        print("| " + " | ".join(row) + " |")


def short(number):
    return f"{number:.0f}" if number >= 100 else f"{number:.1f}" if number >= 1 else f"{number:.2f}"


def print_windows(m):
    heading("Windows: times as multiples of the bare union of the window's shapes")
    rows = []
    for operation in OPERATIONS + ["reference: fgets and strtod"]:
        ratios = [
            m.time[f"{operation}/{w}"] / m.time[f"reference: union/{w}"] for w in WINDOWS
        ]
        rows.append([operation] + [short(r) for r in ratios])
    table(["", *WINDOWS], rows)


def print_growth(m):
    heading("Growth: time (instructions) per sash, that of 16 sashes = 1")
    rows = []
    for name, prefix in GRIDS.items():
        cells = []
        for size in SIZES:
            time, count = m.both(f"{prefix}{size}", f"{prefix}16")
            cells.append(f"{time * 16 / size:.2f} ({count * 16 / size:.2f})")
        rows.append([name] + cells)
    table(["sashes"] + [str(s) for s in SIZES], rows)


def targets(m):
    """What, time ratio, ratio of instructions, and the limit."""
    for window in ["dreiteilig_mit_oberlicht", "rundbogen_dreiteilig"]:
        ratios = m.both(f"calculate/{window}", f"reference: union/{window}")
        yield f"`Berechne` / bare union, {window}", *ratios, 6
    for window in WINDOWS:
        ratios = m.both(f"whole cycle/{window}", f"reference: fgets and strtod/{window}")
        yield f"whole cycle / fgets and strtod, {window}", *ratios, 25
    for size in ["10 KB", "1 MB"]:
        ratios = m.both(f"INI document/{size}", f"reference: peer INI/{size}")
        yield f"INI document / peer, {size}", *ratios, 1
    for name, prefix in list(GRIDS.items())[:2]:
        time, count = m.both(f"{prefix}400", f"{prefix}16")
        yield f"{name}: a sash of 400 / of 16", time / 25, count / 25, 1.3


def print_targets(m):
    heading("Targets")
    rows = [
        [name, short(time), short(count), str(limit)] for name, time, count, limit in targets(m)
    ]
    for window in WINDOWS:
        allocations = short(m.allocations[f"fit and calculate/{window}"])
        rows.append([f"allocations per component, fitted again: {window}", allocations, "", "10"])
    table(["", "time", "instructions", "at most"], rows)


def print_comparison(before, after):
    heading("Before and after")
    rows = []
    for row in after.instructions:
        if row.startswith("reference"):
            continue
        b, a = before.instructions[row], after.instructions[row]
        time = after.time[row] / before.time[row]
        rows.append([row, f"{b:,.0f}", f"{a:,.0f}", f"{a / b:.2f}", f"{time:.2f}"])
    rows.sort()
    table(["", "instructions before", "after", "ratio", "ratio of times"], rows)


def main(folders):
    runs = [Measured(folder) for folder in folders]
    if len(runs) == 2:
        print_comparison(*runs)
        return
    print_windows(runs[0])
    print_growth(runs[0])
    print_targets(runs[0])


main(sys.argv[1:])
