#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Tests of run_cases.py, with a shell script in place of the program."""
import pathlib
import subprocess
import sys
import tempfile
import unittest

RUNNER = pathlib.Path(__file__).resolve().parent / "run_cases.py"
# Writes a header and its last argument's content to the file after -f, then runs ./behave
# from the scratch root.
PROGRAM = """#!/bin/sh
[ "$1" = -f ] || exit 99
out=$2
for source; do :; done
{ printf '!_TAG_FILE_FORMAT\\t2\\n!_TAG_FILE_SORTED\\t0\\n!_TAG_PROGRAM_NAME\\tx\\n!_TAG_V\\t1\\n'
  cat "$source"; } > "$out"
. "$(dirname "$0")/behave"
"""


class RunCases(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory(prefix="vexltags-runner-")
        self.addCleanup(folder.cleanup)
        self.root = pathlib.Path(folder.name)
        self.program = self.root / "program"
        self.program.write_text(PROGRAM)
        self.program.chmod(0o755)
        self.behave("")

    def behave(self, script):
        (self.root / "behave").write_text(script)

    def golden(self, name="python/one", source="a\n", tags="a\n", **more):
        files = {"input.py": source, "expected.tags": tags, "README": "Why.\n"}
        self.write("cases/" + name, **files, **more)

    def cli(self, script, name="one", **more):
        self.write("cli/" + name, **{"run.sh": script}, **more)

    def write(self, folder, **files):
        path = self.root / folder
        path.mkdir(parents=True, exist_ok=True)
        for name, content in files.items():
            data = content if isinstance(content, bytes) else content.encode()
            (path / name).write_bytes(data)

    def run_cases(self, *args):
        command = [sys.executable, RUNNER, "--root", self.root, "--program", self.program, *args]
        result = subprocess.run(command, capture_output=True, text=True, check=False)
        return result.returncode, result.stdout + result.stderr

    def expect(self, status, *texts, args=()):
        actual, output = self.run_cases(*args)
        self.assertEqual(actual, status, output)
        for text in texts:
            self.assertIn(text, output)

    def test_equal_output_passes(self):
        self.golden()
        self.cli('echo hello; echo oops >&2; exit 3',
                 **{"expected.stdout": "hello\n", "expected.stderr": "oops\n",
                    "expected.status": "3\n"})
        self.expect(0, "2 ok")

    def test_different_tags_fail_and_are_kept(self):
        self.golden(tags="b\n")
        self.expect(1, "FAILED: python/one", "-b\n+a\n", "command: cd ", "1 FAILED")
        kept = self.root / "failed-cases/python/one"
        self.assertEqual((kept / "actual.tags").read_text(), "a\n")
        self.assertIn("-b\n+a\n", (kept / "diff").read_text())

    def test_every_byte_counts(self):
        for source, tags in (("a", "a\n"), ("a\r\n", "a\n"), (b"\xff\n", b"\\xff\n"), ("", "\n")):
            self.golden(source=source, tags=tags)
            self.expect(1, "FAILED: python/one")

    def test_absent_expectations_mean_empty_and_zero(self):
        self.golden()
        for script in ("echo x", "echo x >&2", "exit 1", "kill -9 $$"):
            self.behave(script)
            self.expect(1, "FAILED: python/one")
        for script in ("echo x", "echo x >&2", "exit 1", "false", "echo $UNSET_NAME"):
            self.cli(script)
            self.expect(1, "FAILED: cli/one", args=("--kind", "cli"))

    def test_golden_case_with_streams_status_and_args(self):
        self.golden(**{"args": "--first\n--second=a b\n",
                       "expected.stdout": "[--first][--second=a b]", "expected.status": "4\n"})
        self.behave("printf '[%s]' \"$5\" \"$6\"; exit 4")
        self.expect(0, "1 ok")

    def test_known_bug_must_go_once_fixed(self):
        self.golden(tags="b\n", **{"known-bug": "letters\n"})
        self.expect(0, "known bug: python/one: letters")
        self.golden(**{"known-bug": "letters\n"})
        self.expect(1, "FIXED: python/one")

    def test_skip_prints_the_reason(self):
        self.cli("echo no tool here; exit 77")
        self.expect(0, "skipped: cli/one: no tool here")

    def test_cli_case_has_a_home_of_its_own(self):
        self.cli('test "$PWD" = "$HOME"; test ! -e expected.tags; test -x "$VEXLTAGS"\n'
                 'cp data tags', data="x\n", **{"expected.tags": "x\n"})
        self.expect(0, "1 ok")
        self.assertFalse((self.root / "cli/one/tags").exists())

    def test_missing_tags_file_fails(self):
        self.cli(":", **{"expected.tags": ""})
        self.expect(1, "there is no file tags")

    def test_a_case_that_hangs_fails(self):
        self.cli("sleep 60 & wait")
        self.expect(1, "still running after 0.2 seconds", args=("--timeout", "0.2"))

    def test_misspelt_files_fail(self):
        self.golden(**{"arg": ""})
        self.expect(1, "unknown file arg")
        self.cli(":", name="two", **{"expected.output": ""})
        self.expect(1, "unknown file expected.output", args=("--filter", "two"))

    def test_no_case_at_all_fails(self):
        self.golden()
        self.expect(1, "no case to run", args=("--filter", "nothing"))

    def test_selection(self):
        self.golden("python/one")
        self.golden("swift/python-like")
        self.cli(":", name="python")
        for args, names in (
            ([], ["python/one", "swift/python-like", "cli/python"]),
            (["--language", "python"], ["python/one"]),
            (["--kind", "cli"], ["cli/python"]),
            (["--kind", "cases", "--filter", "like"], ["swift/python-like"]),
        ):
            self.assertEqual(self.run_cases("--list", *args)[1].split(), names)

    def test_cases_are_found_at_any_depth(self):
        self.golden("swift/two")
        self.golden("swift/class/nested")
        self.golden("swift/class/deep/er")
        self.cli(":", name="list/from-file")
        self.write("cli/with-folder", **{"run.sh": ":"})
        self.write("cli/with-folder/data", **{"run.sh": "exit 1"})
        for args, names in (
            ([], ["swift/class/deep/er", "swift/class/nested", "swift/two", "cli/list/from-file",
                  "cli/with-folder"]),
            (["--filter", "swift/class"], ["swift/class/deep/er", "swift/class/nested"]),
        ):
            self.assertEqual(self.run_cases("--list", *args)[1].split(), names)
        self.expect(0, "5 ok")

    def test_first_stops_at_the_first_failure(self):
        for name in "abc":
            self.golden(f"python/{name}", tags="a\n" if name == "a" else "b\n")
        self.expect(1, "FAILED: python/b", "1 ok, 1 FAILED", args=("--first", "--jobs", "1"))

    def test_a_case_without_its_files_fails(self):
        self.write("cases/swift/class/lost", README="Why.\n")
        self.expect(1, "FAILED: swift/class/lost: one file input.EXT is needed, there are 0")
        self.write("cli/list/lost", **{"run": ":"})
        self.expect(1, "FAILED: cli/list/lost: run.sh is missing", args=("--kind", "cli"))

    def test_accept_takes_one_case_and_shows_it(self):
        self.golden("python/one", tags="b\n", **{"expected.stderr": "gone\n"})
        self.golden("python/one-more", tags="b\n")
        self.behave("echo new; exit 5")
        self.expect(0, "-b\n+a\n", args=("--accept", "python/one"))
        self.assertEqual((self.root / "cases/python/one-more/expected.tags").read_text(), "b\n")
        self.assertFalse((self.root / "cases/python/one/expected.stderr").exists())
        self.expect(0, args=("--language", "python", "--filter", "one", "--list"))
        self.expect(1, "1 ok, 1 FAILED")
        self.assertEqual(self.run_cases("--accept", "python/on")[0], 2)


if __name__ == "__main__":
    unittest.main()
