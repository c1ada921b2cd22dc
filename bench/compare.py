#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Compares the speed of vexltags and ctags: CPU seconds on the same files, in pairs of runs.

  compare.py --program build/release/vexltags [--code DIR]... [--objc DIR]... [--swift DIR]...

prints the table, and with --save NAME writes bench/results/NAME.{json,md} and doc/speed.svg. Runs
alternate, A B A B, and ratios are taken pair by pair, so that load on the machine slows both sides.
Slowness is never an error: the exit status is 1 only if two runs of vexltags write different tags, or
if the tags differ from those in --digests for the same input.
"""
import argparse
import datetime
import hashlib
import json
import os
import platform
import shutil
import statistics
import subprocess
import sys
import tempfile

sys.dont_write_bytecode = True
import chart
import inputs

HERE = os.path.dirname(os.path.abspath(__file__))
ROOT = os.path.dirname(HERE)


def run(command):
    """Returns the CPU seconds, user plus system, of one run."""
    null = os.open(os.devnull, os.O_RDWR)
    child = os.posix_spawnp(command[0], command, os.environ,
                            file_actions=[(os.POSIX_SPAWN_DUP2, null, fd) for fd in (0, 1, 2)])
    os.close(null)
    _, status, usage = os.wait4(child, 0)
    if status != 0:
        sys.exit("status %d from %s" % (os.waitstatus_to_exitcode(status), " ".join(command)))
    return usage.ru_utime + usage.ru_stime


def sample(command, repeat):
    return sum(run(command) for _ in range(repeat)) / repeat


def peak_of(command, scratch):
    """Returns the peak resident KiB of one run, or None without GNU time. The kernel's figure for a
    direct child is useless: it includes the time before exec, when the child is still a copy of this
    process. GNU time is a small process in between."""
    tool = shutil.which("time")
    if tool is None:
        return None
    report = os.path.join(scratch, "peak")
    run([tool, "-f", "%M", "-o", report, *command])
    with open(report, encoding="ascii") as file:
        return int(file.read())


def digest_of(path):
    """Returns a digest of the tag lines, without the header, which contains the version."""
    digest = hashlib.sha256()
    with open(path, "rb") as file:
        digest.update(b"".join(line for line in file if not line.startswith(b"!_TAG_")))
    return digest.hexdigest()


def identity_of(row):
    """Returns a digest of the paths and contents of the input files."""
    digest = hashlib.sha256()
    for path in row.paths:
        with open(path, "rb") as file:
            digest.update(path.encode() + b"\0" + hashlib.sha256(file.read()).digest())
    return digest.hexdigest()


def check(row, found, known):
    """Compares with the digest of an earlier run on the same input, or stores it. False if it differs."""
    identity = identity_of(row)
    old = known.get(row.key)
    if old is not None and old["input"] == identity:
        return old["tags"] == found
    known[row.key] = {"input": identity, "tags": found}
    return True


def spread(values):
    """Returns half the interquartile range, in per cent of the median."""
    low, middle, high = statistics.quantiles(values, n=4)
    return 50 * (high - low) / middle if middle else 0.0


def measure(row, options, scratch):
    """Runs the pairs of one row. Returns its numbers and the digest of its tags."""
    listing, ours, theirs = (os.path.join(scratch, name) for name in ("list", "ours", "theirs"))
    with open(listing, "w", encoding="utf-8", errors="surrogateescape") as file:
        file.writelines(path + "\n" for path in row.paths)
    program = [options.program, "--sort=yes", "-L", listing, "-f", ours]
    ctags = None
    if row.ctags is not None and options.ctags:
        ctags = [options.ctags, "-n", "--sort=yes", *row.ctags, "-L", listing, "-f", theirs]

    run(program)  # Warms the file cache for both; not counted.
    digest = digest_of(ours)
    mine, other = [], []
    for _ in range(options.pairs):
        mine.append(sample(program, row.repeat))
        if ctags:
            other.append(sample(ctags, row.repeat))
    if digest_of(ours) != digest:
        sys.exit("%s: two runs wrote different tags" % row.title)

    result = {
        "key": row.key, "title": row.title, "files": len(row.paths), "bytes": row.size,
        "tiny": row.is_tiny, "goal": row.goal, "seconds": mine,
        "median": statistics.median(mine), "least": min(mine), "spread": spread(mine),
        "peak_kib": peak_of(program, scratch),
    }
    if ctags:
        ratios = [b / a for a, b in zip(mine, other)]
        result.update({
            "ctags_options": list(row.ctags), "ctags_seconds": other,
            "ctags_median": statistics.median(other), "ctags_least": min(other),
            "ctags_spread": spread(other), "ctags_peak_kib": peak_of(ctags, scratch),
            "ratio": statistics.median(ratios), "ratio_of_least": min(other) / min(mine),
            "ratio_spread": spread(ratios),
        })
    return result, digest


def output_of(*command):
    try:
        return subprocess.run(command, capture_output=True, text=True, check=False).stdout.strip()
    except OSError:
        return ""


def machine(options):
    """Describes the machine and the programs that were measured."""
    cpu = next((line.split(":")[1].strip() for line in open("/proc/cpuinfo", encoding="ascii")
                if line.startswith("model name")), platform.machine())
    cache = os.path.join(os.path.dirname(os.path.abspath(options.program)), "CMakeCache.txt")
    compiler = ""
    if os.path.isfile(cache):
        with open(cache, encoding="utf-8") as file:
            path = next((line.split("=", 1)[1].strip() for line in file
                         if line.startswith("CMAKE_CXX_COMPILER:")), "c++")
        compiler = output_of(path, "--version").split("\n")[0]
    return {
        "date": datetime.date.today().isoformat(), "cpu": cpu, "cores": os.cpu_count(),
        "system": platform.platform(), "compiler": compiler,
        "load": ["%.2f" % load for load in os.getloadavg()],
        "vexltags": output_of(options.program, "--version").split("\n")[0],
        "commit": output_of("git", "-C", ROOT, "describe", "--always", "--dirty"),
        "ctags": output_of(options.ctags, "--version").split("\n")[0] if options.ctags else "",
        "pairs": options.pairs,
    }


def speed(result, seconds):
    """Returns the speed in the unit that fits the row."""
    if result["files"] == 1:
        return "%.2f ms" % (1e3 * seconds)
    if result["tiny"]:
        return "%.1f µs/file" % (1e6 * seconds / result["files"])
    return "%.1f MB/s" % (result["bytes"] / 1e6 / seconds)


def table_line(result):
    cells = [result["title"], "%.1f MB" % (result["bytes"] / 1e6) if not result["tiny"] else "–",
             speed(result, result["median"]), "±%.0f %%" % result["spread"]]
    if "ratio" in result:
        cells += [speed(result, result["ctags_median"]), "**%.2fx**" % result["ratio"],
                  "%.2fx" % result["ratio_of_least"], "±%.0f %%" % result["ratio_spread"]]
    else:
        cells += ["–"] * 4
    cells.append("%.0f MB" % (result["peak_kib"] / 1024) if result["peak_kib"] else "–")
    cells.append(result["goal"])
    return "| " + " | ".join(cells) + " |"


HEAD = ("| input | size | vexltags | spread | ctags | ratio | ratio of least | spread | peak | "
        "goal / aim |\n|---|---:|---:|---:|---:|---:|---:|---:|---:|---:|")


def markdown(about, results):
    facts = "".join("- %s: %s\n" % (key, ", ".join(value) if isinstance(value, list) else value)
                    for key, value in about.items() if value != "")
    return "# vexltags and ctags, CPU time\n\n%s\n%s\n%s\n" % (
        facts, HEAD, "\n".join(table_line(result) for result in results))


def save(name, about, results):
    folder = os.path.join(HERE, "results")
    os.makedirs(folder, exist_ok=True)
    data = {"about": about, "rows": results}
    with open(os.path.join(folder, name + ".json"), "w", encoding="utf-8") as file:
        json.dump(data, file, indent=1, ensure_ascii=False)
        file.write("\n")
    with open(os.path.join(folder, name + ".md"), "w", encoding="utf-8") as file:
        file.write(markdown(about, results))
    chart.write(data, os.path.join(ROOT, "doc", "speed.svg"))


def rows_for(options, folder):
    yield from inputs.system_rows()
    yield from inputs.named_rows(options.code, options.objc, options.swift)
    yield from inputs.made_rows(os.path.join(folder, "tiny"), options.tiny)
    if options.made:
        yield from inputs.made_languages(os.path.join(folder, "made"), int(options.made * 1e6))


def arguments():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--program", default=os.path.join(ROOT, "build/release/vexltags"))
    parser.add_argument("--ctags", default=shutil.which("ctags"), help="empty: measure alone")
    parser.add_argument("--pairs", type=int, default=7, help="use at least 5 for numbers to publish")
    parser.add_argument("--rows", help="only these keys, separated by commas (include,python,…)")
    parser.add_argument("--code", action="append", default=[], metavar="DIR",
                        help="a C or C++ code base, which gets its own row")
    parser.add_argument("--objc", action="append", default=[], metavar="DIR")
    parser.add_argument("--swift", action="append", default=[], metavar="DIR")
    parser.add_argument("--tiny", type=int, default=20000, help="number of tiny files")
    parser.add_argument("--made", type=float, default=0, metavar="MB",
                        help="add the synthetic tree, with this much of each language")
    parser.add_argument("--made-in", metavar="DIR",
                        help="write made files here and keep them, since --digests includes paths")
    parser.add_argument("--digests", metavar="FILE",
                        help="JSON file of digests to check and to extend with new inputs")
    parser.add_argument("--save", metavar="NAME", help="save the result and draw the chart")
    options = parser.parse_args()
    if options.pairs < 2:
        parser.error("--pairs: at least 2")
    return options


def main():
    options = arguments()
    wanted = options.rows.split(",") if options.rows else None
    known = {}
    if options.digests and os.path.exists(options.digests):
        with open(options.digests, encoding="ascii") as file:
            known = json.load(file)
    about, results, different = machine(options), [], []
    print(HEAD)
    with tempfile.TemporaryDirectory(prefix="vexltags-bench-") as scratch:
        for row in rows_for(options, options.made_in or scratch):
            if not row.paths or (wanted and row.key not in wanted):
                continue
            result, digest = measure(row, options, scratch)
            if options.digests and not check(row, digest, known):
                different.append(row.title)
            results.append(result)
            print(table_line(result), flush=True)
    if different:
        print("tags differ from %s: %s" % (options.digests, ", ".join(different)), file=sys.stderr)
        return 1
    if options.digests:
        with open(options.digests, "w", encoding="ascii") as file:
            json.dump(known, file, indent=1)
            file.write("\n")
    if options.save:
        save(options.save, about, results)
    return 0


if __name__ == "__main__":
    sys.exit(main())
