"""Runs processes in turn, and prints what they use."""
import collections
import os
import statistics
import sys
import time

# Seconds and bytes. The last three come from bench-probe; the marks are pairs of a name and a time since the start.
Spent = collections.namedtuple("Spent", "wall cpu flush memory marks", defaults=(0, 0, ()))


def run(*command, probe=None, **environment):
    """Runs a program without streams. It must succeed."""
    variables = {**os.environ, **environment}
    if probe:
        variables.update(LD_PRELOAD=probe, BENCH_PROBE="probe.txt")
    streams = [(os.POSIX_SPAWN_OPEN, fd, os.devnull, os.O_RDWR, 0) for fd in range(3)]
    start = time.monotonic_ns()
    child = os.posix_spawnp(command[0], command, variables, file_actions=streams)
    _, status, usage = os.wait4(child, 0)
    wall = time.monotonic_ns() - start
    if status != 0:
        sys.exit(f"bench: {' '.join(command)} ended with status {status}")
    cpu = usage.ru_utime + usage.ru_stime
    return Spent(wall / 1e9, cpu, *(read_probe(start) if probe else ()))


def read_probe(start):
    with open("probe.txt") as report:
        flush, memory, *marks = (line.rstrip().split(" ", 1) for line in report)
    return (int(flush[1]) / 1e9, int(memory[1]) * 1024,
            [(name, (int(at) - start) / 1e9) for at, name in marks])


def together(*parts):
    """Several processes in sequence, as one side."""
    return Spent(*(sum(values) for values in zip(*(part[:3] for part in parts))))


def in_turn(rounds, warm_up=True, **sides):
    """Runs all sides in each round, in alternating order, after an optional round that does not count.
    Result: a list of Spent for each side."""
    spent = {name: [] for name in sides}
    for turn in range(-1 if warm_up else 0, rounds):
        for name in sorted(sides, reverse=turn % 2 == 1):
            one = sides[name]()
            if turn >= 0:
                spent[name].append(one)
    return spent


UNITS = {"s": (1, 1), "ms": (1e-3, 1), "us": (1e-6, 2), "ns": (1e-9, 1), "MiB": (2 ** 20, 1)}


def text_of(value, unit):
    scale, digits = UNITS[unit]
    return f"{value / scale:.{digits}f} {unit}"


class Table:
    """One line for each measurement."""
    HEAD = ("row", "what", "ours", "peer", "ratio", "middle half", "target", "", "the peer")

    def __init__(self):
        self.lines = []
        self.missed = False

    def add(self, row, what, ours, peer, unit, name, target=None, most=None, above=None):
        """`ours` and `peer` are values by round. The target is a ratio, `most` for the value of ours,
        or `above` for its difference from the peer."""
        ratios = [a / b for a, b in zip(ours, peer)]
        mine, other, ratio = map(statistics.median, (ours, peer, ratios))
        low, _, high = statistics.quantiles(ratios, n=4) if len(ratios) > 1 else (ratio,) * 3
        met, wanted = True, "-"
        if target is not None:
            met, wanted = ratio <= target, f"{target:.2f}"
        elif most is not None:
            met, wanted = mine <= most, text_of(most, unit)
        elif above is not None:
            met, wanted = mine <= other + above, f"+{text_of(above, unit)}"
        self.line(row, what, text_of(mine, unit), text_of(other, unit), f"{ratio:.2f}",
                  f"{low:.2f} to {high:.2f}", wanted, "" if met else "MISSED", name)
        self.missed |= not met

    def line(self, *cells):
        self.lines.append(cells)
        print("  " + "  ".join(cell for cell in cells if cell), file=sys.stderr, flush=True)

    def __str__(self):
        rows = [self.HEAD] + self.lines
        widths = [max(len(row[column]) for row in rows) for column in range(len(self.HEAD))]
        rows.insert(1, ["-" * width for width in widths])
        return "\n".join("| " + " | ".join(cell.ljust(width) for cell, width in zip(row, widths)) + " |"
                         for row in rows)
