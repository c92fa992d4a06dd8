"""Prints benchmark results beside their floors.

usage: report.py RESULT.json...

Each file is the JSON output of one benchmark program, with repetitions. A benchmark is compared with
its floor of the same file, which limits.json names:

    "GetEntity": {"floor": "F1", "limit": {"1000": 2.0, "": 1.5}}

says that GetEntity/1000 is read as a multiple of F1/1000 with a limit of 2, and GetEntity with any
other argument as one of F1 with that argument, with a limit of 1.5. A limit may be one number, and
may be missing. A key may carry its argument ("Sort/1000"); so may a floor, which is then that one
benchmark whatever the argument.

The ratio is the median over the median of the repetitions; "best" is the fastest over the fastest,
which a busy machine disturbs least. "held" is the memory that a benchmark counts. Exit status 1 when a benchmark failed; never because of a time.
"""

import json
import pathlib
import statistics
import sys

LIMITS = pathlib.Path(__file__).with_name("limits.json")
NANOSECONDS = {"ns": 1, "us": 1e3, "ms": 1e6, "s": 1e9}
RUN_OPTIONS = {"manual_time", "real_time", "process_time"}
HEADINGS = ("benchmark", "time", "spread", "MB/s", "held", "floor", "its time", "ratio", "best", "limit", "")


class Benchmark:
    """The repetitions of one benchmark: times in nanoseconds, bytes per second and bytes held when
    counted."""

    def __init__(self):
        self.times = []
        self.rates = []
        self.held = []
        self.error = None

    def add(self, run):
        if run.get("error_occurred"):
            self.error = run.get("error_message", "failed")
            return
        self.times.append(run["real_time"] * NANOSECONDS[run["time_unit"]])
        if "bytes_per_second" in run:
            self.rates.append(run["bytes_per_second"])
        if "held" in run:
            self.held.append(run["held"])

    @property
    def time(self):
        return statistics.median(self.times)

    @property
    def best(self):
        return min(self.times)

    @property
    def spread(self):
        return (max(self.times) - self.best) / self.time


def plain_name(run_name):
    """The registered name and its arguments, without what the run options add."""
    parts = run_name.split("/")
    return "/".join(p for p in parts if p not in RUN_OPTIONS and ":" not in p)


def read_results(path):
    """The benchmarks of one program by name, in the order in which they were registered."""
    runs = [r for r in json.loads(path.read_text())["benchmarks"] if r["run_type"] == "iteration"]
    runs.sort(key=lambda r: (r["family_index"], r["per_family_instance_index"]))
    results = {}
    for run in runs:
        results.setdefault(plain_name(run["run_name"]), Benchmark()).add(run)
    return results


def limit_of(entry, argument):
    limit = entry.get("limit")
    return limit.get(argument, limit.get("")) if isinstance(limit, dict) else limit


def find_floor(name, limits):
    """The name of the floor and the limit, None for what there is not."""
    base, slash, argument = name.partition("/")
    entry = limits.get(name) or limits.get(base)
    if entry is None:
        return None, None
    floor = entry["floor"]
    if "/" not in floor:
        floor += slash + argument
    return floor, limit_of(entry, argument)


def show_time(nanoseconds):
    for unit, size in (("s", 1e9), ("ms", 1e6), ("us", 1e3)):
        if nanoseconds >= size:
            return f"{nanoseconds / size:.3g} {unit}"
    return f"{nanoseconds:.3g} ns"


def compare(result, floor, limit):
    """The cells from the floor's time to the verdict."""
    ratio = result.time / floor.time
    best = result.best / floor.best
    verdict = "" if limit is None or ratio <= limit else "above"
    shown_limit = "" if limit is None else f"{limit:g}"
    return [show_time(floor.time), f"{ratio:.2f}", f"{best:.2f}", shown_limit, verdict]


def row(name, result, results, limits):
    if not result.times:
        return [name, result.error or "no time"] + [""] * (len(HEADINGS) - 2)
    rate = f"{statistics.median(result.rates) / 1e6:.0f}" if result.rates else ""
    held = f"{max(result.held) / 1024:.0f} KiB" if result.held else ""
    cells = [name, show_time(result.time), f"{result.spread:.0%}", rate, held]
    floor_name, limit = find_floor(name, limits)
    floor = results.get(floor_name)
    if floor is None or not floor.times:
        return cells + [""] * (len(HEADINGS) - len(cells))
    return cells + [floor_name] + compare(result, floor, limit)


def print_table(rows):
    widths = [max(len(r[i]) for r in rows) for i in range(len(HEADINGS))]
    for cells in rows:
        aligned = (c.ljust(w) if i in (0, 5) else c.rjust(w)
                   for i, (c, w) in enumerate(zip(cells, widths)))
        print("  ".join(aligned).rstrip())


def main(paths):
    if not paths:
        sys.exit(__doc__)
    limits = json.loads(LIMITS.read_text())
    failed = False
    for path in map(pathlib.Path, paths):
        results = read_results(path)
        print(f"\n{path.stem}")
        print_table([HEADINGS] + [row(n, r, results, limits) for n, r in results.items()])
        failed = failed or any(r.error for r in results.values())
    return 1 if failed else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
