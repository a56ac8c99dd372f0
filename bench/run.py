#!/usr/bin/env python3
"""Prints how fast this program is beside its peers; started by scripts/bench.

    run.py BUILD_DIRECTORY PLUGINS [ROW...]

A ROW is the name of a group or the beginning of a row's name. Without one all rows run but those of
the group "scale", which take long. Everything is written below the working directory. The exit
status is 1 when a target is missed."""
import contextlib
import itertools
import json
import math
import os
import pathlib
import statistics
import subprocess
import sys

import packages
from measure import Table, in_turn, run, text_of, together

MIB = 2 ** 20
SOURCE = pathlib.Path(__file__).resolve().parent.parent
ICON = str(SOURCE / "bundle/ico_72_quillmere.png")
WORK = pathlib.Path.cwd()

# Of the micro-benchmarks by the beginning of the name: the peer, and the target.
MICRO = {
    "string": ("std::string", {}),
    "utf16": ("ICU's UnicodeString", {}),
    "nfc": ("ICU's Normalizer2", {}),
    "log-line": ("spdlog, flushing each line", {"target": 1.05}),
    "log-stopped-1": ("spdlog", {"most": 20e-9}),
    "log-stopped": ("spdlog", {}),
    "config": ("QSettings, all values", {"target": 0.20}),
    "file-info": ("realpath and lstat", {"target": 1.00}),
    "rename": ("the same with 10 files", {"target": 1.10}),
    "text": ("QCoreApplication::translate", {"target": 1.20}),
}


class Bench:
    def __init__(self, build, plugins, wanted):
        self.build, self.plugins, self.wanted = pathlib.Path(build), plugins, wanted
        self.probe = str(self.build / "bench/libbench-probe.so")
        self.table = Table()

    def wants(self, row, by_itself=True):
        return any(row.startswith(name) for name in self.wanted) if self.wanted else by_itself

    def tool(self, name):
        return str(self.build / "bench" / name)

    def bundle(self, package=None):
        return packages.bundle(WORK / "Quillmere.app", self.build / "launcher", self.plugins, ICON, package)

    def bare(self, probe=None):
        return run(self.tool("bench-window"), "bare", probe=probe)

    # Installing and upgrading

    def launch(self, launcher, old=None, place=WORK, **environment):
        """The launcher with an empty home, or one with a copy of the tree `old` in it."""
        with fresh_directory("home", place) as home:
            if old:
                (home / ".Quillmere").mkdir()
                install_old(old, home / ".Quillmere/Quillmere.app")
            settle(home)
            return self.start(launcher, home, **environment)

    def start(self, launcher, home, **environment):
        spent = run(launcher, HOME=str(home), **environment)
        if packages.VERSION != (home / ".Quillmere/Quillmere.app" / packages.INFO).read_text():
            sys.exit("bench: the launcher installed nothing")
        return spent

    def unpack(self, package, old=None, place=WORK):
        """The peer of an upgrade: the same two passes, the flush, and the old copy removed."""
        with fresh_directory("peer", place) as target:
            if old:
                install_old(old, target / "old")
            settle(target)
            parts = [run("bsdtar", "-tf", str(package)), run("bsdtar", "-xf", str(package), "-C", str(target))]
            flush = run("sync", "-f", str(target))
            parts.append(flush._replace(flush=flush.wall))
            if old:
                parts.append(run("rm", "-rf", str(target / "old")))
            return together(*parts)

    def upgrade_row(self, row, form, rounds=5, old=False):
        if not self.wants(row):
            return
        tree = packages.once(WORK / "client", packages.real_client)
        package = WORK / f"client.{form}"
        if not package.exists():
            packages.pack(tree, package, form)
        launcher = self.bundle(package)
        old_tree = tree if old else None
        package.read_bytes()  # is warm-up enough: programs and libraries have run before
        self.bare()
        run("bsdtar", "--version")
        spent = in_turn(
            rounds,
            warm_up=False,
            offscreen=lambda: self.launch(launcher, old_tree, probe=self.probe, QT_QPA_PLATFORM="offscreen"),
            window=lambda: self.launch(launcher, old_tree, probe=self.probe),
            peer=lambda: self.unpack(package, old_tree),
            bare=lambda: self.bare(self.probe))
        name = "bsdtar -tf, bsdtar -xf, sync -f" + (", rm -rf" if old else "")
        for side in ("offscreen", "window"):
            for what, target, value in (
                    ("wall", 1.02, lambda one: one.wall),
                    ("wall without the flush", None, lambda one: one.wall - one.flush),
                    ("processor time", 1.10, lambda one: one.cpu)):
                self.table.add(row, f"{what}, {side}", list(map(value, spent[side])),
                               list(map(value, spent["peer"])), "s", name, target=target)
        self.memory_line(row, "peak memory, window", spent["window"], spent["bare"])

    def memory_line(self, row, what, ours, bare):
        self.table.add(row, what, [one.memory for one in ours], [one.memory for one in bare], "MiB",
                       "a bare QApplication", above=8 * MIB)

    def growth_row(self, row="growth"):
        """Time and memory over the number of entries."""
        if not self.wants(row):
            return
        times, entries = {}, (0, 1000, 10000, 100000)
        for count in entries:
            package = packages.pack_entries(WORK / "entries.zst", entry_names(count))
            launcher = self.bundle(package)
            # What the disk does is no part of this row: ext4 is slow to make many files where others
            # were removed just before.
            with scratch() as place:
                spent = in_turn(5, ours=lambda: self.launch(launcher, place=place, probe=self.probe),
                                bare=lambda: self.bare(self.probe), peer=lambda: self.unpack(package, place=place))
            walls = {side: [one.wall - one.flush for one in runs] for side, runs in spent.items()}
            times[count] = statistics.median(walls["ours"])
            self.table.add(row, f"wall without the flush, {count} empty files", walls["ours"], walls["peer"], "s",
                           "bsdtar -tf, bsdtar -xf")
            self.memory_line(row, f"peak memory, {count} empty files", spent["ours"], spent["bare"])
        points = [(math.log(count), math.log(times[count] - times[0])) for count in entries[1:]]
        exponent = statistics.linear_regression(*zip(*points)).slope
        met = exponent <= 1.10
        self.table.missed |= not met
        self.table.line(row, "exponent of the time over the entries, 1,000 to 100,000", f"{exponent:.2f}", "1.00", "",
                        "", "1.10", "" if met else "MISSED", "linear")

    # Nothing to do

    def start_row(self, row="start", rounds=41):
        if not self.wants(row):
            return
        tree = packages.once(WORK / "little", packages.client)
        launcher = self.bundle()
        # What the disk does is no part of this row: ext4 is slow to make files where others, such as a
        # lock, were removed just before.
        with scratch() as place, fresh_directory("home", place) as home:
            os.environ["TMPDIR"] = str(place)
            installed = packages.once(home / ".Quillmere/Quillmere.app", packages.client)
            same = [self.tool("bench-window"), "same", ICON, str(tree / packages.INFO),
                    str(installed / packages.INFO), str(installed / packages.EXECUTABLE)]
            spent = in_turn(rounds, ours=lambda: self.start(launcher, home), bare=self.bare,
                            same=lambda: run(*same))
            probed = in_turn(15, ours=lambda: self.start(launcher, home, probe=self.probe))["ours"]
        ours = [one.wall for one in spent["ours"]]
        self.table.add(row, "wall, window", ours, [one.wall for one in spent["bare"]], "ms",
                       "a bare QApplication", target=1.25)
        self.table.add(row, "wall, window", ours, [one.wall for one in spent["same"]], "ms",
                       "a program that does the same", target=1.00)
        self.table.add(row, "processor time, window", [one.cpu for one in spent["ours"]],
                       [one.cpu for one in spent["same"]], "ms", "a program that does the same")
        self.phases(row, probed)

    def phases(self, row, runs):
        lengths = {}
        for one in runs:
            # Some points are come to more than once: the last time counts.
            marks = sorted(dict(one.marks).items(), key=lambda mark: mark[1])
            begins = [("dynamic linking", 0)] + marks
            for (name, begin), end in zip(begins, [mark[1] for mark in marks] + [one.wall]):
                lengths.setdefault(name, []).append((end - begin, (end - begin) / one.wall))
        for name, values in lengths.items():
            length, share = (statistics.median(column) for column in zip(*values))
            self.table.line(row, f"phase: {name}", text_of(length, "ms"), "", f"{share:.0%}", "", "-", "",
                            "share of the run")

    # Trees of files

    def remove_rows(self):
        for row, place in (("remove-disk", WORK), ("remove-tmpfs", WORK / "tmpfs")):
            if self.wants(row):
                with (tmpfs(place) if row == "remove-tmpfs" else contextlib.nullcontext(True)) as usable:
                    if usable:
                        self.remove_row(row, place)
                    else:
                        self.table.line(row, "skipped: no tmpfs can be mounted here", *[""] * 7)

    def remove_row(self, row, place, rounds=7):
        template = packages.once(place / "ten-thousand", lambda tree: packages.small_files(tree, 10000))

        def removing(*command):
            with fresh_directory("removed", place) as parent:
                subprocess.run(["cp", "-r", template, parent / "tree"], check=True)
                settle(place)
                return run(*command, str(parent / "tree"))

        spent = in_turn(rounds, ours=lambda: removing(self.tool("bench-remove"), "ours"),
                        rm=lambda: removing("rm", "-rf"),
                        standard=lambda: removing(self.tool("bench-remove"), "standard"))
        walls = {side: [one.wall for one in runs] for side, runs in spent.items()}
        self.table.add(row, "10,000 files, wall", walls["ours"], walls["rm"], "ms", "rm -rf", target=1.10)
        self.table.add(row, "10,000 files, wall", walls["ours"], walls["standard"], "ms",
                       "std::filesystem::remove_all")

    def copy_row(self, row="copy", rounds=11):
        if not self.wants(row):
            return
        tree = packages.once(WORK / "thousand", lambda part: packages.small_files(part, 1000, 30000))

        def copying(*command):
            with fresh_directory("copied") as parent:
                settle(WORK)
                return run(*command, str(tree), str(parent / "copy"))

        spent = in_turn(rounds, ours=lambda: copying(self.tool("bench-copy"), "ours"),
                        plain=lambda: copying(self.tool("bench-copy"), "plain"), cp=lambda: copying("cp", "-r"))
        walls = {side: [one.wall for one in runs] for side, runs in spent.items()}
        self.table.add(row, "1,000 files, wall", walls["ours"], walls["plain"], "ms",
                       "read, write and fsync each", target=1.05)
        self.table.add(row, "1,000 files, wall", walls["ours"], walls["cp"], "ms", "cp -r, which syncs nothing")

    # Inside one process

    def micro_rows(self, rounds=7):
        names = [*MICRO, *(name for name in self.wanted if name.startswith(tuple(MICRO)))]
        wanted = [name for name in names if self.wants(name)]
        if not wanted:
            return
        times = {}
        # What the disk does is no part of these rows.
        with scratch() as above, fresh_directory("micro", above) as place:
            command = [self.tool("bench-micro"), "--benchmark_format=json", "--benchmark_min_time=0.1",
                       f"--benchmark_filter=^({'|'.join(wanted)})"]
            for _ in range(rounds):
                output = subprocess.run(command, cwd=place, stdout=subprocess.PIPE, stderr=subprocess.DEVNULL,
                                        check=True).stdout
                for result in json.loads(output)["benchmarks"]:
                    row, side = result["name"].split("/")[:2]
                    what, clock = (("wall", "real_time") if result["threads"] > 1 else
                                   ("processor time", "cpu_time"))
                    sides = times.setdefault((row, what), {"ours": [], "peer": []})
                    sides[side].append(result[clock] / 1e9)
        for (row, what), sides in times.items():
            peer, target = next(MICRO[name] for name in MICRO if row.startswith(name))
            unit = "ns" if max(sides["ours"]) < 1e-6 else "us"
            self.table.add(row, what, sides["ours"], sides["peer"], unit, peer, **target)

    # On demand

    def scale_rows(self):
        for row, make in (("scale-entries", lambda path: packages.pack_entries(path, entry_names(1000000))),
                          ("scale-size", sparse_package), ("scale-depth", lambda path: packages.pack_entries(
                              path, ["d/" * level + "file" for level in range(1, 201)]))):
            if not self.wants(row, by_itself=False):
                continue
            package = make(WORK / "scale.zst")
            launcher = self.bundle(package)
            with fresh_directory("home") as home:
                ours = self.start(launcher, home, probe=self.probe)
                make_old(home / ".Quillmere/Quillmere.app")
                again = self.start(launcher, home, probe=self.probe)
            peer, bare = self.unpack(package), self.bare(self.probe)
            name = "bsdtar -tf, bsdtar -xf, sync -f"
            self.table.add(row, "first install, wall, window", [ours.wall], [peer.wall], "s", name)
            self.table.add(row, "upgrade, wall, window", [again.wall], [peer.wall], "s", name)
            self.memory_line(row, "peak memory, first install", [ours], [bare])
            self.memory_line(row, "peak memory, upgrade", [again], [bare])

    def all_rows(self):
        self.micro_rows()
        self.start_row()
        self.remove_rows()
        self.copy_row()
        self.growth_row()
        for form in packages.FORMS:
            self.upgrade_row(f"install-{form}", form)
        self.upgrade_row("replace-zst", "zst", old=True)
        self.scale_rows()


@contextlib.contextmanager
def fresh_directory(name, place=WORK, numbers=itertools.count(1)):
    """A new directory for a while, under a name that was not there before: ext4 is slow to make files
    where some were removed within the last minutes."""
    path = place / f"{name}-{next(numbers)}"
    path.mkdir()
    try:
        yield path
    finally:
        packages.remove(path)


def install_old(tree, app):
    subprocess.run(["cp", "-r", tree, app], check=True)
    make_old(app)


def make_old(app):
    (app / packages.INFO).write_text(packages.VERSION.replace("build_version=2", "build_version=1"))


def settle(path):
    """What was prepared is on the disk: nobody measured pays for it."""
    subprocess.run(["sync", "-f", path], check=True)


def entry_names(count, in_one=1000):
    return (f"Contents/Files/{number // in_one}/file{number}" for number in range(count))


def sparse_package(package, size=8 * 2 ** 30):
    with fresh_directory("sparse") as tree:
        packages.client(tree)
        with open(tree / "Contents/disk", "wb") as disk:
            disk.truncate(size)
        return packages.pack(tree, package, "zst")


@contextlib.contextmanager
def tmpfs(place):
    place.mkdir(exist_ok=True)
    if subprocess.run(["mount", "-t", "tmpfs", "tmpfs", place], stderr=subprocess.DEVNULL).returncode != 0:
        yield False
        return
    try:
        yield True
    finally:
        subprocess.run(["umount", place], check=True)


@contextlib.contextmanager
def scratch():
    """A directory on a tmpfs, if there can be one."""
    with tmpfs(WORK / "tmpfs") as usable:
        yield WORK / "tmpfs" if usable else WORK


def main():
    bench = Bench(sys.argv[1], sys.argv[2], sys.argv[3:])
    bench.all_rows()
    if not bench.table.lines:
        sys.exit(f"bench: no row begins with {' or '.join(bench.wanted)}")
    print(bench.table)
    sys.exit(1 if bench.table.missed else 0)


if __name__ == "__main__":
    main()
