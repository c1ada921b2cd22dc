#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Runs the program on input that tries to break it: deep, huge, damaged, misplaced, unwritable.

    tests/stress/robustness.py --program build/release/vexltags            the quick part
    tests/stress/robustness.py --program build/release/vexltags --large    the large part
    tests/stress/robustness.py --program ... --thorough                    either with --thorough
    tests/stress/robustness.py --program ... --list depth/swift            which cases there are

Each case runs in a child with a limit on time and on address space, between two good files. A case
passes if no signal ended the run, status and messages are right, and the tags are there: those before
the damage, those after it where the rules recover, and those of both good files. Inputs are generated
and not kept; the tables are in robustness_inputs.py, robustness_files.py and growth_families.py. Cases about the process, such as closed streams, are the functions of
robustness_process.py.
"""
import argparse
import concurrent.futures
import os
import resource
import shutil
import subprocess
import sys
import tempfile
import time

sys.path.insert(0, os.path.dirname(os.path.abspath(__file__)))
import robustness_files as files  # noqa: E402
import robustness_includes as includes  # noqa: E402
import robustness_inputs as inputs  # noqa: E402
import robustness_process as process  # noqa: E402
from robustness_place import Place, Skip, Wrong, require, require_tags  # noqa: E402


# --- Cases that are one bad text between two good files ------------------------------------------


def run_text(place, case):
    """Indexes the text of `case`, a row of the tables, between two good files."""
    good = inputs.GOOD[case.suffix]
    first = place.write("first" + case.suffix, good("first_tag"))
    last = place.write("last" + case.suffix, good("last_tag"))
    place.write("input" + case.suffix, case.text())
    text = place.tags(first, "input" + case.suffix, last, seconds=case.seconds)
    require_tags(text, ["first_tag", "last_tag", *case.tags], case.absent)
    for line, count in case.counts:
        found = text.count(line.encode("latin-1"))
        require(found == count, f"{found} times {line!r}, not {count}")
    if case.mib and place.options.gib:
        require(place.last.peak <= case.mib,
                f"{place.last.peak:.0f} MiB, more than {case.mib}")


# --- Files: what a path can lead to ---------------------------------------------------------------


def run_bad_path(place, case):
    """Indexes a path that is no readable file, between two good files."""
    place.write("first.c", "void first_tag(void);\n")
    place.write("last.c", "void last_tag(void);\n")
    path = case.make(place)
    resolved = path if case.keeps_path else place.path(path)
    message = f"failed {case.verb} {path} {resolved}\n".encode("utf-8", "surrogateescape")
    text = place.tags("first.c", path, "last.c", stderr=message, user=case.user)
    require_tags(text, ["first_tag", "last_tag"])
    done = place.run("-f", "alone", path, user=case.user)
    require(done.status == 255 and done.err == message,
            f"alone: status {done.status}, {done.err!r}")
    require(not (place.folder / "alone").exists(), "a tags file without any input")


def run_name(place, case):
    """Indexes a good file with an odd name, given as argument and in a list."""
    place.write(case.name_bytes, "void odd_tag(void);\n")
    stored = os.path.join(os.fsencode(os.path.realpath(place.folder)), case.escaped)
    line = b"\nodd_tag\t" + stored + b"\t1;\"\tp"
    text = place.tags(case.name_bytes)
    require(line in text, f"no line with {case.escaped!r} in {text[-200:]!r}")
    if b"\n" in case.name_bytes:
        return  # A list ends a path there.
    place.write("list", case.name_bytes + b"\0")
    require(line in place.tags("-L", "list"), "not the same by a list")


def run_changing(place, _):
    """Indexes files that are cut, emptied and removed while the program reads them."""
    place.write("last.c", "void last_tag(void);\n")
    stop = place.folder / "stop"
    changer = subprocess.Popen(
        [sys.executable, "-c", files.CHANGER, str(place.folder / "changing.c"), str(stop)],
        stdin=subprocess.DEVNULL)
    try:
        for _ in range(40):
            text = place.tags("changing.c", "last.c", stderr=None)
            require_tags(text, ["last_tag"])
    finally:
        stop.write_text("")
        changer.wait(20)


# --- Output ---------------------------------------------------------------------------------------


def write_many(place, count=20000):
    return place.write("many.py", "".join(f"def f{i}(): pass\n" for i in range(count)))


def require_failure(done, message):
    require(done.status == 255, f"status {done.status}")
    require(done.err == message.encode(), f"messages {done.err!r}, not {message!r}")


def run_full_device(place, _):
    if not os.path.exists("/dev/full"):
        raise Skip("there is no /dev/full")
    write_many(place)
    require_failure(place.run("-f", "/dev/full", "many.py"), "error writing /dev/full\n")
    with open("/dev/full", "wb") as full:
        require_failure(place.run("many.py", stdout=full), "error writing <stdout>\n")
    with open("/dev/full", "wb") as full:
        require_failure(place.run("--help", stdout=full), "error writing <stdout>\n")


def run_closed_pipe(place, _):
    write_many(place)
    reader, writer = os.pipe()
    os.close(reader)
    require_failure(place.run("many.py", stdout=writer), "error writing <stdout>\n")
    os.close(writer)


def run_full_disk(place, case):
    if os.geteuid() != 0:
        raise Skip("mounting a small disk needs root")
    disk = place.folder / "disk"
    disk.mkdir()
    if subprocess.run(["mount", "-t", "tmpfs", "-o", "size=128k", "none", disk],
                      stderr=subprocess.DEVNULL).returncode != 0:
        raise Skip("no disk can be mounted here")
    try:
        write_many(place)
        place.write("one.py", "def one(): pass\n")
        old = b"old_tag\tx.c\t1;\"\tf\n"
        (disk / "tags").write_bytes(old)
        if case.arguments:
            (disk / "filler").write_bytes(b"x" * 65536)
        done = place.run("-f", "disk/tags", *case.arguments, "many.py")
        require_failure(done, "error writing disk/tags\n")
        left = (disk / "tags").read_bytes() if (disk / "tags").exists() else b""
        require(left in (case.left, b"") and len(left) == len(case.left), f"left {left[:80]!r}")
        # The run that fits still works, on the disk and after the failure.
        if (disk / "filler").exists():
            (disk / "filler").unlink()
        require(place.run("-f", "disk/other", "one.py").status == 0, "the next run failed")
    finally:
        subprocess.run(["umount", disk], check=True)


def run_size_limit(place, case):
    write_many(place)
    if case.left:
        place.write("tags", case.left)
    done = place.run("-f", "tags", *case.arguments, "many.py",
                     limits=[(resource.RLIMIT_FSIZE, 65536)])
    require_failure(done, "error writing tags\n")
    path = place.folder / "tags"
    left = path.read_bytes() if path.exists() else b""
    require(left == case.left, f"left {left[:80]!r}")


def run_unopenable(place, case):
    place.write("a.c", "void f(void);\n")
    path = case.make(place)
    done = place.run("-f", path, "a.c", user=case.user)
    require_failure(done, f"error opening {path}\n")


# --- Limits ---------------------------------------------------------------------------------------


def run_limit(place, case):
    """A time limit on a file that takes long: the messages, and every tag that has to be there."""
    place.write("first" + case.suffix, inputs.GOOD[case.suffix]("first_tag"))
    place.write("last" + case.suffix, inputs.GOOD[case.suffix]("last_tag"))
    place.write("input" + case.suffix, case.text())
    text = place.tags(*case.arguments, "first" + case.suffix, "input" + case.suffix,
                      "last" + case.suffix, stderr=None, seconds=60)
    path = place.path("input" + case.suffix)
    messages = place.last.err.decode()
    lines = [line for line in messages.splitlines() if path in line]
    require(len(lines) == len(case.messages), f"messages {lines}")
    for line, (start, end) in zip(lines, case.messages):
        end = end.replace("PATH", path)
        require(line.startswith(start) and line.endswith(end), f"message {line!r}")
    # On a busy machine a good file, too, may take longer than a limit.
    good = [name for name in ("first", "last") if place.path(name + case.suffix) not in messages]
    require_tags(text, [name + "_tag" for name in good] + list(case.tags), case.absent)


# --- Command lines and lists ------------------------------------------------------------------------


def run_list(place, case):
    """A list of paths: how many of them gave a tag."""
    place.write("a.c", "void listed(void);\n")
    place.write("list", case.text())
    done = place.run("--sort=no", "-f", "tags", "-L", "list", seconds=60)
    require(done.status == (0 if case.count else 255), f"status {done.status}")
    found = 0
    if case.count:
        found = (place.folder / "tags").read_bytes().count(b"\nlisted\t")
    require(found == case.count, f"{found} tags, not {case.count}")
    require(done.err.startswith(case.stderr), f"messages {done.err[:200]!r}")


def run_small_memory(place, case):
    """Deep nesting in little address space: the run ends normally, however much of the file is read."""
    good = inputs.GOOD[case.suffix]
    first = place.write("first" + case.suffix, good("first_tag"))
    last = place.write("last" + case.suffix, good("last_tag"))
    place.write("input" + case.suffix, good("before") + case.text())
    if not place.options.gib:
        raise Skip("no limits on address space in this run")
    text = place.tags(first, "input" + case.suffix, last, gib=case.gib, limits=case.limits)
    require_tags(text, ["first_tag", "last_tag", "before"])


RUNNERS = {
    "text": run_text, "bad-path": run_bad_path, "name": run_name, "changing": run_changing,
    "full-device": run_full_device, "closed-pipe": run_closed_pipe, "full-disk": run_full_disk,
    "size-limit": run_size_limit, "unopenable": run_unopenable, "limit": run_limit,
    "list": run_list, "small-memory": run_small_memory,
    "function": lambda place, case: case.make(place),
}


def attempt(options, case):
    """Runs one case. Returns its verdict, a text that explains it, and the seconds it took."""
    folder = tempfile.mkdtemp(prefix="vexltags-")
    os.chmod(folder, 0o755)
    place = Place(options, folder)
    start = time.monotonic()
    verdict, text = "ok", ""
    try:
        if case.user is not None and os.geteuid() != 0:
            if case.needs_root:
                raise Skip("needs root, to become someone with fewer rights")
            case.user = None
        RUNNERS[case.kind](place, case)
    except Skip as reason:
        verdict, text = "skipped", str(reason)
    except Wrong as reason:
        verdict, text = "FAILED", str(reason)
    finally:
        shutil.rmtree(folder, ignore_errors=True)
    return verdict, text, time.monotonic() - start


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--program", required=True)
    parser.add_argument("words", nargs="*", help="only cases with one of these in their name")
    parser.add_argument("--thorough", action="store_true", help="run the program with --thorough")
    parser.add_argument("--large", action="store_true", help="the large cases instead of the quick")
    parser.add_argument("--jobs", type=int, default=2)
    parser.add_argument("--gib", type=float, default=8,
                        help="address space of a run; 0 for no limit on memory, as sanitizers need")
    parser.add_argument("--patience", type=float, default=1, help="factor on time")
    parser.add_argument("--list", action="store_true", help="only name the cases")
    parser.add_argument("--verbose", action="store_true", help="show the time of every case")
    options = parser.parse_intermixed_args()

    options.always = ["--thorough"] if options.thorough else []
    every = [*inputs.cases(options.thorough), *files.cases(options.thorough), *process.cases(), *includes.cases()]
    cases = [case for case in every if case.large == options.large
             and (not options.words or any(word in case.name for word in options.words))]
    if options.list:
        print("\n".join(case.name for case in cases))
        return 0
    require(len({case.name for case in cases}) == len(cases), "two cases have one name")
    counts = {"ok": 0, "skipped": 0, "FAILED": 0}
    with tempfile.TemporaryDirectory(prefix="vexltags-") as folder:
        os.chmod(folder, 0o755)
        # A copy that others may run, and that stays the same when the original is built again.
        options.program = shutil.copy(options.program, os.path.join(folder, "vexltags"))
        with concurrent.futures.ThreadPoolExecutor(options.jobs) as pool:
            pending = {pool.submit(attempt, options, case): case for case in cases}
            for future in concurrent.futures.as_completed(pending):
                verdict, text, seconds = future.result()
                counts[verdict] += 1
                if verdict != "ok" or options.verbose:
                    print(f"{verdict} {pending[future].name} ({seconds:.1f} s): {text}", flush=True)
    print(f"{counts['ok']} passed, {counts['FAILED']} failed, {counts['skipped']} skipped")
    return 1 if counts["FAILED"] or not cases else 0


if __name__ == "__main__":
    sys.exit(main())
