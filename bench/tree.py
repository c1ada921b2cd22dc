#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Measures vexltags-tree on a tree of 10,000 files: cold, after edits, merged and searched.

  tree.py [--from DIR]... [--files 10000] [--mb 120] [--rounds 5] [--save NAME]
  tree.py --made

copies sources from the folders into a scratch folder, or makes synthetic ones, and prints a table.
--save NAME writes bench/results/NAME.{json,md}, from which scale.py takes its rates. Slowness is never
an error; the exit status is 1 if a run fails or re-reads other files than it has to.
"""
import argparse
import contextlib
import json
import os
import re
import shutil
import statistics
import subprocess
import sys
import tempfile
import threading
import time
import zlib

sys.dont_write_bytecode = True
import compare
import inputs
import make_tree

SUFFIXES = inputs.C_SUFFIXES + (".m", ".mm", ".swift", ".py")
MACRO = "VEXLTAGS_BENCH_API"
USERS = 40


def fill(root, options):
    """Makes the tree, a git work tree if there is git. Returns its paths, in order, and their size."""
    if options.made:
        size = int(options.mb * 1e6 / len(make_tree.SUFFIXES))
        each = int(options.mb * 1e6 / options.files)
        for language in sorted(make_tree.SUFFIXES):
            make_tree.make_tree(root, language, size, each, 1)
    else:
        found = [p for p in inputs.find(options.folders, SUFFIXES, largest=1 << 20)]
        count = min(options.files, len(found))
        left = options.mb * 1e6
        for i in range(count):
            path = found[i * len(found) // count]
            left -= os.path.getsize(path)
            if left < 0:
                break
            copy = os.path.join(root, path.lstrip("/").replace("node_modules", "modules"))
            os.makedirs(os.path.dirname(copy), exist_ok=True)
            shutil.copyfile(path, copy)
    # A macro that few files use, as the API macro of a library.
    for i in range(USERS):
        write(os.path.join(root, "api", "use%02d.h" % i),
              "%s int api_function_%d(int);\n" % (MACRO, i))
    write(os.path.join(root, "api", "api.h"), "#define %s\n" % MACRO)
    paths = inputs.find([root])
    if shutil.which("git"):
        for command in (["git", "init", "-q"], ["git", "add", "-A"]):
            subprocess.run(command, cwd=root, check=True, capture_output=True)
        write(os.path.join(root, ".git", "info", "exclude"), "/tags*\n")
    return paths, sum(os.path.getsize(path) for path in paths)


def write(path, text, mode="w"):
    os.makedirs(os.path.dirname(path), exist_ok=True)
    with open(path, mode, encoding="utf-8") as file:
        file.write(text)


class Clock:
    """Runs programs in the tree and keeps the wall and CPU seconds of each measurement by its key."""

    def __init__(self, folder, environment):
        self.folder, self.environment = folder, environment
        self.wall, self.cpu = {}, {}

    def run(self, key, command):
        """Runs one command; returns what it wrote to standard error."""
        with tempfile.TemporaryFile() as errors:
            start = time.perf_counter()
            child = subprocess.Popen(command, cwd=self.folder, env=self.environment,
                                     stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL,
                                     stderr=errors)
            _, status, usage = os.wait4(child.pid, 0)
            seconds = time.perf_counter() - start
            child.returncode = os.waitstatus_to_exitcode(status)
            errors.seek(0)
            text = errors.read().decode(errors="replace")
        if child.returncode != 0:
            sys.exit("status %d from %s\n%s" % (child.returncode, " ".join(command), text))
        self.wall.setdefault(key, []).append(seconds)
        self.cpu.setdefault(key, []).append(usage.ru_utime + usage.ru_stime)
        return text


def descendants(pid):
    """Yields the process and all below it."""
    yield pid
    for task in os.listdir("/proc/%d/task" % pid):
        with open("/proc/%d/task/%s/children" % (pid, task), encoding="ascii") as file:
            for child in file.read().split():
                with contextlib.suppress(OSError):
                    yield from descendants(int(child))


def peak_of_all(command, folder, environment):
    """Returns the peak KiB of all processes of one run: the sum of their proportional sets, which count
    a page that several share once, looked at every 20 ms."""
    peak = 0
    child = subprocess.Popen(command, cwd=folder, env=environment, stdin=subprocess.DEVNULL,
                             stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
    ended = threading.Event()
    threading.Thread(target=lambda: (child.wait(), ended.set()), daemon=True).start()
    while not ended.wait(0.02):
        total = 0
        with contextlib.suppress(OSError):
            for pid in descendants(child.pid):
                with contextlib.suppress(OSError), open("/proc/%d/smaps_rollup" % pid,
                                                        encoding="ascii") as file:
                    total += int(re.search(r"^Pss: +(\d+)", file.read(), re.MULTILINE)[1])
        peak = max(peak, total)
    if child.returncode != 0:
        sys.exit("status %d from %s" % (child.returncode, " ".join(command)))
    return peak


def files_read(summary):
    """The number of files read, from the summary of a run."""
    return int(re.search(r"(\d+) read", summary)[1])


def expect(what, found, wanted):
    if found != wanted:
        sys.exit("%s: %d files were read, not %d" % (what, found, wanted))


def measure_edits(clock, options, root, paths, tree):
    """Runs after edits, each after a pause in which time stamps grow old. Returns the counts of files."""
    edited = next(p for p in paths if p.endswith(".h") and "/api/" not in p)
    users = 0
    time.sleep(0.1)
    clock.run("settle", tree)
    for number in range(options.rounds):
        text = clock.run("nothing edited", tree)
        expect("nothing edited", files_read(text), 0)
        write(edited, "int bench_edit_%d(void);\n" % number, "a")
        time.sleep(0.1)
        text = clock.run("one file edited", tree)
        expect("one file edited", files_read(text), 1)
        write(os.path.join(root, "api", "api.h"), "#define %s %s\n" % (
            MACRO, "extern" if number % 2 else "static"))
        time.sleep(0.1)
        text = clock.run("a #define edited", tree)
        users = files_read(text)
        expect("a #define edited", users, USERS + 1)
        tags = os.path.join(root, "tags")
        clock.run("copy of the tags file", ["cp", tags, tags + ".copy"])
        os.remove(tags + ".copy")
    return {"re-read after a #define": users, "files that have its word": USERS + 1}


def measure_tags(clock, options, root):
    """Merges two tags files, of half of the sources each, and searches. Returns size and number of tags."""
    tags = os.path.join(root, "tags")
    with open(tags, "rb") as file:
        lines = [line for line in file if not line.startswith(b"!_TAG_")]
    halves = [os.path.join(clock.folder, "half%d" % i) for i in (0, 1)]
    for i, half in enumerate(halves):
        with open(half, "wb") as file:
            file.writelines(line for line in lines if zlib.crc32(line.split(b"\t")[1]) % 2 == i)
    name = lines[len(lines) // 2].split(b"\t")[0].decode(errors="replace")
    for _ in range(options.rounds):
        clock.run("merge", ["env", "LC_ALL=C", "sort", "-m", "-s", "-t", "\t", "-k1,2",
                            "-o", os.path.join(clock.folder, "merged"), *halves])
        if options.readtags:
            clock.run("query", [options.readtags, "-t", tags, name])
    with open(os.path.join(clock.folder, "merged"), "rb") as file:
        if file.read() != b"".join(lines):
            sys.exit("the merged halves are not the whole")
    return {"tags": len(lines), "tags bytes": os.path.getsize(tags)}


def measure(options, scratch):
    root, home = os.path.join(scratch, "tree"), os.path.join(scratch, "home")
    os.makedirs(root)
    os.makedirs(home)
    paths, size = fill(root, options)
    environment = dict(os.environ, HOME=home, XDG_CACHE_HOME=home, PWD=root)
    clock = Clock(root, environment)
    listing = os.path.join(scratch, "list")
    write(listing, "".join(path + "\n" for path in paths))
    program, companion = options.program, options.program + "-tree"
    tree = [companion, "-j", str(options.jobs)]
    one = [program, "--thorough", "--sort=yes", "-L", listing, "-f", os.path.join(scratch, "one")]
    commands = {
        "vexltags --thorough": one,
        "vexltags": [word for word in one if word != "--thorough"],
        "cold, --no-cache": [*tree, "--no-cache"],
        "cold, --no-cache --exact": [*tree, "--no-cache", "--exact"],
        "cold, one worker": [companion, "--no-cache", "-j", "1"],
    }
    if options.ctags:
        commands["ctags -R"] = [options.ctags, "-R", "-f", os.path.join(scratch, "other"), "."]
    for command in commands.values():
        clock.run("warm", command)
    for _ in range(options.rounds):
        for key, command in commands.items():
            clock.run(key, command)
        for entry in os.listdir(home):
            shutil.rmtree(os.path.join(home, entry), ignore_errors=True)
        clock.run("cold", tree)
    counts = {"files": len(paths), "bytes": size}
    counts.update(measure_edits(clock, options, root, paths, tree))
    counts.update(measure_tags(clock, options, root))
    peaks = {key: peak_of_all(commands[key], root, environment)
             for key in ("cold, --no-cache", "vexltags --thorough")}
    shutil.rmtree(home)
    os.makedirs(home)
    peaks["cold"] = peak_of_all(tree, root, environment)
    if options.ctags:
        peaks["ctags -R"] = peak_of_all(commands["ctags -R"], root, environment)
    return {"counts": counts, "peaks_kib": peaks,
            "wall": {key: clock.wall[key] for key in clock.wall if key not in ("warm", "settle")},
            "cpu": {key: clock.cpu[key] for key in clock.cpu if key not in ("warm", "settle")}}


def ratio(result, slow, fast, time_of="wall"):
    """The median over rounds of the time of one measurement divided by that of another."""
    if slow not in result[time_of]:
        return "–"
    pairs = zip(result[time_of][slow], result[time_of][fast])
    return "%.2fx" % statistics.median(a / b for a, b in pairs)


def markdown(result):
    counts, wall, peaks = result["counts"], result["wall"], result["peaks_kib"]
    lines = ["# vexltags-tree on one tree", ""]
    lines += ["- %s: %s" % (key, ", ".join(value) if isinstance(value, list) else value)
              for key, value in result["about"].items() if value != ""]
    lines += ["", "%d files, %.1f MB; %d tags in %.1f MB. Wall seconds, medians." % (
        counts["files"], counts["bytes"] / 1e6, counts["tags"], counts["tags bytes"] / 1e6), "",
        "| run | seconds | least | CPU seconds |", "|---|---:|---:|---:|"]
    lines += ["| %s | %.3f | %.3f | %.3f |" % (key, statistics.median(wall[key]), min(wall[key]),
                                               statistics.median(result["cpu"][key])) for key in wall]
    mib = {key: "%.0f MB" % (value / 1024) for key, value in peaks.items()}
    lines += ["", "| goal | measured | must / aim |", "|---|---:|---:|",
              "| cold against one run of `vexltags --thorough` | %s | 1.8x / 1.95x on two cores |"
              % ratio(result, "vexltags --thorough", "cold, --no-cache"),
              "| the same with a new cache | %s | |" % ratio(result, "vexltags --thorough", "cold"),
              "| cold against `ctags -R` | %s | 4x / 6x |" % ratio(result, "ctags -R",
                                                                  "cold, --no-cache"),
              "| the same with a new cache | %s | |" % ratio(result, "ctags -R", "cold"),
              "| the same, CPU time | %s | |" % ratio(result, "ctags -R", "cold, --no-cache", "cpu"),
              "| nothing edited | %.3f s | 0.15 / 0.05 s |" % statistics.median(
                  wall["nothing edited"]),
              "| one file edited, without writing | %.3f s | 0.3 / 0.1 s |" % statistics.median(
                  a - b for a, b in zip(wall["one file edited"], wall["copy of the tags file"])),
              "| files read after a `#define` is edited | %d | %d |" % (
                  counts["re-read after a #define"], counts["files that have its word"]),
              "| peak memory over all processes, cold | %s | 400 / 200 MB |" % mib["cold"],
              "| peak memory, `--no-cache` | %s | |" % mib["cold, --no-cache"],
              "| peak memory, `vexltags --thorough` | %s | |" % mib["vexltags --thorough"],
              "| peak memory, `ctags -R` | %s | |" % mib.get("ctags -R", "–")]
    return "\n".join(lines) + "\n"


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--program", default=os.path.join(compare.ROOT, "build/release/vexltags"),
                        help="vexltags; vexltags-tree is taken from its folder")
    parser.add_argument("--ctags", default=shutil.which("ctags"), help="empty: measure alone")
    parser.add_argument("--readtags", default=shutil.which("readtags"))
    parser.add_argument("--from", dest="folders", action="append", metavar="DIR",
                        help="copy sources from here; default: /usr/include and Python's library")
    parser.add_argument("--made", action="store_true", help="make a synthetic tree instead")
    parser.add_argument("--files", type=int, default=10000)
    parser.add_argument("--mb", type=float, default=120)
    parser.add_argument("--jobs", "-j", type=int, default=os.cpu_count())
    parser.add_argument("--rounds", type=int, default=5)
    parser.add_argument("--scratch", help="make the tree in this folder")
    parser.add_argument("--save", metavar="NAME", help="write bench/results/NAME.{json,md}")
    options = parser.parse_args()
    options.program = os.path.abspath(options.program)
    options.folders = options.folders or inputs.existing("/usr/include", "/usr/lib/python3.11")
    options.pairs = options.rounds
    scratch = tempfile.mkdtemp(prefix="vexltags-", dir=options.scratch)
    try:
        about = compare.machine(options)
        result = {"about": about, **measure(options, scratch)}
    finally:
        shutil.rmtree(scratch)
    about["input"] = "synthetic" if options.made else "files of Debian and npm packages"
    about["workers"] = options.jobs
    text = markdown(result)
    sys.stdout.write(text)
    if options.save:
        base = os.path.join(compare.HERE, "results", options.save)
        with open(base + ".json", "w", encoding="utf-8") as file:
            json.dump(result, file, indent=1, ensure_ascii=False)
            file.write("\n")
        write(base + ".md", text)


if __name__ == "__main__":
    main()
