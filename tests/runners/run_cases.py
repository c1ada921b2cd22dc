#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Runs the golden cases and the command-line cases with a given vexltags and compares bytes.

A golden case is a folder tests/cases/LANGUAGE/CONSTRUCT/NAME/ with
  input.EXT        the source to index
  expected.tags    its tag lines without the header, in the order in which they are written
  args             optional: more options, one a line
  README           one sentence: what the case shows
A command-line case is a folder tests/cli/TOPIC/NAME/ with run.sh, which runs under `sh -eu` in a
fresh copy of the folder that is also its HOME. The environment has the program in $VEXLTAGS, its
companions from the same folder in $VEXLTAGS_PORTABLE, $VEXLTAGS_CTAGS and $VEXLTAGS_TREE, Python in
$PYTHON and the project's sources in $VEXLTAGS_SOURCE. Exit status 77 skips the case; the last line
printed is the reason.

Cases are found at any depth: a folder that holds a file is a case, one that holds only folders is a
group. A case is named by its path below tests/cases, or below tests for a command-line case.

Both kinds may have expected.stdout, expected.stderr and expected.status; a missing one means empty,
or 0. If a command-line case has expected.tags, it is compared with the file `tags` that run.sh
leaves. A file known-bug has the reason why a case fails for now; once it passes, that is an error.
"""
import argparse
import concurrent.futures
import dataclasses
import difflib
import os
import pathlib
import shlex
import shutil
import signal
import subprocess
import sys
import tempfile

ROOT = pathlib.Path(__file__).resolve().parent.parent
PARTS = ("tags", "stdout", "stderr", "status")
GOLDEN_FILES = {"README", "args", "known-bug"} | {f"expected.{part}" for part in PARTS}
GOLDEN_OPTIONS = ["--sort=no", "--tag-relative"]
HEADER_LINES = 4
NO_HOME = "/nonexistent"
SKIPPED = 77
COMPANIONS = ("portable", "ctags", "tree")
# Characters that have a backslash before them in the path of a tag line.
ESCAPED = set("\t\n\r \"'()*<>?[\\]^")


@dataclasses.dataclass
class Case:
    kind: str  # "cases" or "cli"
    folder: pathlib.Path
    name: str


@dataclasses.dataclass
class Outcome:
    case: Case
    verdict: str  # "ok", "FAILED", "skipped", "known bug" or "FIXED"
    report: str = ""


def case_folders(folder):
    """The case folders below `folder`, in order. A folder with no file in it groups others."""
    for path in sorted(folder.iterdir() if folder.is_dir() else []):
        if path.is_dir():
            if any(not entry.is_dir() for entry in path.iterdir()):
                yield path
            else:
                yield from case_folders(path)


def find_cases(root, kinds, language, text):
    cases = []
    for kind, base in (("cases", root / "cases"), ("cli", root)):
        if kind not in kinds:
            continue
        for folder in case_folders(root / kind):
            name = folder.relative_to(base).as_posix()
            if language and (kind != "cases" or not name.startswith(f"{language}/")):
                continue
            if text in name:
                cases.append(Case(kind, folder, name))
    return cases


def complaint_about(case):
    """What is wrong with the files of the case itself, so that a misspelled file is noticed."""
    names = {path.name for path in case.folder.iterdir()}
    inputs = {name for name in names if name.startswith("input.")}
    if case.kind == "cli":
        if "run.sh" not in names:
            return "run.sh is missing"
        odd = {name for name in names if name.startswith("expected.")} - GOLDEN_FILES
    else:
        odd = names - GOLDEN_FILES - inputs
        if len(inputs) != 1:
            return f"one file input.EXT is needed, there are {len(inputs)}"
        for needed in ("expected.tags", "README"):
            if needed not in names:
                return f"{needed} is missing"
    return f"unknown file {sorted(odd)[0]}" if odd else ""


def environment(home, folder, **more):
    kept = ("PATH", "TMPDIR", "LD_LIBRARY_PATH", "LLVM_PROFILE_FILE", "VEXLTAGS_MUTANT")
    env = {
        name: value
        for name, value in os.environ.items()
        if name in kept or name.endswith("SAN_OPTIONS")
    }
    env.update(LC_ALL="C", HOME=str(home), PWD=str(folder), **more)
    return env


def execute(command, folder, env, timeout):
    """Runs a command with all its children. Returns stdout, stderr and the status as text."""
    process = subprocess.Popen(
        command,
        cwd=folder,
        env=env,
        stdin=subprocess.DEVNULL,
        stdout=subprocess.PIPE,
        stderr=subprocess.PIPE,
        start_new_session=True,
    )
    try:
        out, err = process.communicate(timeout=timeout)
        status = process.returncode
    except subprocess.TimeoutExpired:
        os.killpg(process.pid, signal.SIGKILL)
        out, err = process.communicate()
        status = f"still running after {timeout} seconds"
    return {"stdout": out, "stderr": err, "status": f"{status}\n".encode()}


def extra_options(case):
    args = case.folder / "args"
    lines = os.fsdecode(args.read_bytes()).split("\n") if args.exists() else []
    return [line for line in lines if line]


def golden_command(case, program):
    source = next(case.folder.glob("input.*")).name
    return [program, *GOLDEN_OPTIONS, *extra_options(case), source]


def run_golden(case, program, scratch, timeout):
    folder = case.folder
    if ESCAPED & set(str(folder)):
        # The relative path in the tags would otherwise show the escapes of the folders above.
        folder = scratch / "case"
        shutil.copytree(case.folder, folder)
    tags = scratch / "tags"
    command = golden_command(case, program)
    command[1:1] = ["-f", str(tags)]
    actual = execute(command, folder, environment(NO_HOME, folder), timeout)
    content = tags.read_bytes() if tags.exists() else b""
    if content.startswith(b"!_TAG_FILE_FORMAT\t"):
        content = content.split(b"\n", HEADER_LINES)[-1]
    actual["tags"] = content
    return actual


def run_cli(case, program, scratch, timeout):
    folder = scratch / "home"
    skip = shutil.ignore_patterns("expected.*", "README", "known-bug")
    shutil.copytree(case.folder, folder, ignore=skip)
    programs = {"VEXLTAGS": program}
    for companion in COMPANIONS:
        programs[f"VEXLTAGS_{companion.upper()}"] = f"{program}-{companion}"
    env = environment(
        folder, folder, PYTHON=sys.executable, VEXLTAGS_SOURCE=str(ROOT.parent), **programs
    )
    actual = execute(["sh", "-eu", "run.sh"], folder, env, timeout)
    tags = folder / "tags"
    if (case.folder / "expected.tags").exists():
        actual["tags"] = tags.read_bytes() if tags.is_file() else b"(there is no file tags)\n"
    else:
        actual["tags"] = b""
    return actual


def absent(part):
    return b"0\n" if part == "status" else b""


def expected_part(case, part):
    path = case.folder / f"expected.{part}"
    return path.read_bytes() if path.exists() else absent(part)


def lines_of(data):
    lines = data.decode("utf-8", "backslashreplace").split("\n")
    last = lines.pop()
    result = [line + "\n" for line in lines]
    if last:
        result.append(last + "\n\\ no newline at the end\n")
    return result


def differences(case, actual):
    result = []
    for part in PARTS:
        expected = expected_part(case, part)
        if expected != actual[part]:
            lines = difflib.unified_diff(
                lines_of(expected), lines_of(actual[part]), f"expected.{part}", f"actual {part}"
            )
            # Bytes that are not text can look like their own escapes.
            result += list(lines) or [f"expected.{part} differs in its bytes\n"]
    return "".join(result)


def bare_command(case, program):
    folder = shlex.quote(os.path.relpath(case.folder))
    if case.kind == "cases":
        return f"cd {folder} && HOME={NO_HOME} {shlex.join(golden_command(case, program))}"
    return (
        f'cp -r {folder} /tmp/case && cd /tmp/case && HOME="$PWD" VEXLTAGS={shlex.quote(program)} '
        + "".join(f"VEXLTAGS_{one.upper()}={shlex.quote(program)}-{one} " for one in COMPANIONS)
        + f"VEXLTAGS_SOURCE={shlex.quote(str(ROOT.parent))} "
        f"PYTHON={shlex.quote(sys.executable)} sh -eu run.sh"
    )


def keep_output(case, actual, diff, scratch, keep):
    folder = keep / case.name
    shutil.rmtree(folder, ignore_errors=True)
    folder.mkdir(parents=True)
    for part in PARTS:
        (folder / f"actual.{part}").write_bytes(actual[part])
    (folder / "diff").write_text(diff, encoding="utf-8")
    if case.kind == "cli":
        subprocess.run(["cp", "-R", scratch / "home", folder / "home"], check=False)
    return folder


def run_case(case, program, timeout):
    """Runs one case in a scratch folder. Returns its output and the folder, which the caller removes."""
    # Other users need access: some cases give up root's privileges.
    parent = "/tmp" if ESCAPED & set(tempfile.gettempdir()) else None
    scratch = pathlib.Path(tempfile.mkdtemp(prefix="vexltags-", dir=parent)).resolve()
    scratch.chmod(0o755)
    run = run_golden if case.kind == "cases" else run_cli
    return run(case, program, scratch, timeout), scratch


def remove(scratch):
    for folder, names, _ in os.walk(scratch):
        for path in (os.path.join(folder, name) for name in names):
            if not os.path.islink(path):
                os.chmod(path, 0o700)  # before the walk enters it
    shutil.rmtree(scratch, ignore_errors=True)


def judge(case, program, timeout, keep):
    complaint = complaint_about(case)
    if complaint:
        return Outcome(case, "FAILED", complaint + "\n")
    actual, scratch = run_case(case, program, timeout)
    try:
        if case.kind == "cli" and actual["status"] == f"{SKIPPED}\n".encode():
            reason = (actual["stdout"].decode("utf-8", "replace").splitlines() or ["no reason"])[-1]
            return Outcome(case, "skipped", reason)
        diff = differences(case, actual)
        known = case.folder / "known-bug"
        if known.exists():
            reason = known.read_text(encoding="utf-8").strip()
            if diff:
                return Outcome(case, "known bug", reason)
            return Outcome(case, "FIXED", f"passes now, remove known-bug ({reason})\n")
        if not diff:
            return Outcome(case, "ok")
        kept = keep_output(case, actual, diff, scratch, keep)
        report = f"{diff}command: {bare_command(case, program)}\noutput kept in {kept}\n"
        return Outcome(case, "FAILED", report)
    finally:
        remove(scratch)


def accept(case, program, timeout):
    complaint = complaint_about(case)
    if complaint and complaint != "expected.tags is missing":
        sys.exit(f"{case.name}: {complaint}")
    actual, scratch = run_case(case, program, timeout)
    remove(scratch)
    diff = differences(case, actual)
    sys.stdout.write(diff or f"{case.name}: nothing to accept\n")
    for part in PARTS:
        path = case.folder / f"expected.{part}"
        if part == "tags":
            wanted = case.kind == "cases" or path.exists()
        else:
            wanted = actual[part] != absent(part)
        if wanted:
            path.write_bytes(actual[part])
        else:
            path.unlink(missing_ok=True)


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--program", help="the vexltags to test")
    parser.add_argument("--kind", choices=("cases", "cli"), help="golden or command line only")
    parser.add_argument("--language", help="golden cases of this folder only")
    parser.add_argument("--filter", default="", help="cases with this text in their name only")
    parser.add_argument("--without", metavar="OPTION", help="leave out cases whose args have OPTION")
    parser.add_argument("--list", action="store_true", help="print the names and run nothing")
    parser.add_argument("--accept", metavar="CASE", help="show and take one case's output")
    parser.add_argument("--keep", help="where the output of failures goes (beside the program)")
    parser.add_argument("--root", default=ROOT, help="the folder with cases/ and cli/")
    parser.add_argument("--jobs", type=int, default=os.cpu_count(), help="cases at the same time")
    parser.add_argument("--first", action="store_true", help="stop at the first failure")
    parser.add_argument("--timeout", type=float, default=120, help="seconds for one case")
    options = parser.parse_args()

    kinds = (options.kind,) if options.kind else ("cases", "cli")
    root = pathlib.Path(options.root).resolve()
    cases = find_cases(root, kinds, options.language, options.filter)
    if options.without:
        cases = [case for case in cases if options.without not in extra_options(case)]
    if options.list:
        print("\n".join(case.name for case in cases))
        return 0
    if not options.program or not os.access(options.program, os.X_OK):
        parser.error("--program must name a program")
    program = os.path.abspath(options.program)

    if options.accept:
        chosen = [case for case in cases if case.name == options.accept]
        if len(chosen) != 1:
            parser.error(f"no case is named {options.accept}")
        accept(chosen[0], program, options.timeout)
        return 0
    if not cases:
        print("no case to run", file=sys.stderr)
        return 1

    keep = pathlib.Path(options.keep or os.path.join(os.path.dirname(program), "failed-cases"))
    counts = dict.fromkeys(("ok", "known bug", "skipped", "FAILED", "FIXED"), 0)
    with concurrent.futures.ThreadPoolExecutor(options.jobs) as pool:
        for outcome in pool.map(lambda c: judge(c, program, options.timeout, keep), cases):
            counts[outcome.verdict] += 1
            if outcome.verdict != "ok":
                print(f"{outcome.verdict}: {outcome.case.name}: {outcome.report.rstrip()}")
                sys.stdout.flush()
            if options.first and outcome.verdict in ("FAILED", "FIXED"):
                pool.shutdown(wait=False, cancel_futures=True)
                break
    print(", ".join(f"{count} {verdict}" for verdict, count in counts.items() if count))
    return 1 if counts["FAILED"] or counts["FIXED"] else 0


if __name__ == "__main__":
    sys.exit(main())
