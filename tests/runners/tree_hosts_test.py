#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Tests vexltags-tree --hosts with several SSH servers on this machine, each with a home of its own.

usage: tree_hosts_test.py --program VEXLTAGS-TREE [-v] [TEST...]

Exits with 77, which skips the test, where sshd or GNU parallel is missing or sshd does not start.
"""
import argparse
import os
import pathlib
import pwd
import shutil
import signal
import socket
import subprocess
import sys
import tempfile
import time
import unittest

PROGRAM = ""
SSHD = shutil.which("sshd") or "/usr/sbin/sshd"
SKIPPED = 77


def free_port():
    with socket.socket() as listener:
        listener.bind(("127.0.0.1", 0))
        return listener.getsockname()[1]


def answers(port):
    with socket.socket() as client:
        return client.connect_ex(("127.0.0.1", port)) == 0


class Hosts:
    """SSH servers on the loopback interface."""

    def __init__(self):
        self.folder = pathlib.Path(tempfile.mkdtemp(prefix="vexltags-hosts-")).resolve()
        self.processes = []
        if os.geteuid() == 0:
            os.makedirs("/run/sshd", mode=0o755, exist_ok=True)
        for name in ("host_key", "user_key"):
            subprocess.run(["ssh-keygen", "-q", "-t", "ed25519", "-N", "", "-f",
                            self.folder / name], check=True)
        shutil.copy(self.folder / "user_key.pub", self.folder / "authorized_keys")
        self.config = self.folder / "config"
        self.config.write_text("")

    def close(self):
        for process in self.processes:
            process.send_signal(signal.SIGCONT)
            process.kill()
            process.wait()
        shutil.rmtree(self.folder, ignore_errors=True)

    def add(self, name, program=None):
        """Starts a server; `program` is a shell script in place of vexltags-tree."""
        home = self.folder / name
        (home / "bin").mkdir(parents=True)
        place = home / "bin/vexltags-tree"
        if program is None:
            place.symlink_to(PROGRAM)
        else:
            place.write_text(f"#!/bin/sh\n{program}\n")
            place.chmod(0o755)
        port = free_port()
        settings = home / "sshd_config"
        settings.write_text(
            f"Port {port}\nListenAddress 127.0.0.1\nHostKey {self.folder}/host_key\n"
            f"AuthorizedKeysFile {self.folder}/authorized_keys\nStrictModes no\nUsePAM no\n"
            f"PidFile {home}/pid\nPasswordAuthentication no\nMaxStartups 100\nMaxSessions 100\n"
            f"SetEnv HOME={home} PATH={home}/bin:/usr/local/bin:/usr/bin:/bin\n")
        with open(home / "log", "wb") as log:
            process = subprocess.Popen([SSHD, "-D", "-e", "-f", settings], stderr=log)
        self.processes.append(process)
        for _ in range(200):
            if answers(port):
                break
            if process.poll() is not None:
                print((home / "log").read_text(), file=sys.stderr)
                sys.exit(SKIPPED)
            time.sleep(0.05)
        with open(self.config, "a", encoding="utf-8") as config:
            config.write(f"Host {name}\n  HostName 127.0.0.1\n  Port {port}\n"
                         f"  User {pwd.getpwuid(os.geteuid()).pw_name}\n"
                         f"  IdentityFile {self.folder}/user_key\n  IdentitiesOnly yes\n"
                         "  StrictHostKeyChecking no\n  UserKnownHostsFile /dev/null\n"
                         "  LogLevel ERROR\n  BatchMode yes\n")
        return process

    def option(self, *names):
        return "--hosts=" + ",".join(f"ssh -F {self.config} {name}" for name in names)


class ManyHosts(unittest.TestCase):
    def setUp(self):
        self.hosts = Hosts()
        self.addCleanup(self.hosts.close)
        self.root = self.hosts.folder / "tree"
        for i in range(60):
            path = self.root / f"part{i % 7}/a{i}.cc"
            path.parent.mkdir(parents=True, exist_ok=True)
            path.write_text(f"#include \"api.h\"\nAPI class C{i} {{ struct {{ int x; }} y; }};\n"
                            f"typedef struct {{ int a; }} T{i};\n" * (i * 20), encoding="utf-8")
        (self.root / "part0/api.h").write_text("#define API [[nodiscard]]\n")
        (self.root / "b.swift").write_text("class Body { func stop() {} }\n")
        self.expected, _ = self.run_tree("--no-cache")

    def run_tree(self, *options):
        home = self.hosts.folder / "own"
        home.mkdir(exist_ok=True)
        env = dict(os.environ, HOME=str(home), XDG_CACHE_HOME=str(home / "cache"),
                   PWD=str(self.root), LC_ALL="C")
        done = subprocess.run([PROGRAM, "-q", "--format=raw", "-f", "-", *options], cwd=self.root,
                              env=env, stdin=subprocess.DEVNULL, stdout=subprocess.PIPE,
                              stderr=subprocess.PIPE, timeout=300)
        self.assertEqual(done.returncode, 0, done.stderr)
        return done.stdout, done.stderr.decode()

    def test_same_bytes_as_alone(self):
        self.hosts.add("one")
        self.hosts.add("two")
        for options in ((), ("--send",), ("--exact",)):
            expected = self.run_tree("--no-cache", *options)[0]
            self.assertEqual(self.run_tree("--no-cache", *options, self.hosts.option("one", "two")),
                             (expected, ""))
        # A number before a slash limits the tasks at once, as in GNU parallel.
        numbered = self.hosts.option("one").replace("ssh", "1/ssh", 1)
        self.assertEqual(self.run_tree("--no-cache", numbered), (self.expected, ""))
        # Results of other machines are kept as those of this one.
        self.assertEqual(self.run_tree(self.hosts.option("one", "two")), (self.expected, ""))
        self.assertEqual(self.run_tree(), (self.expected, ""))

    def test_it_is_the_hosts_that_read(self):
        record = (f'echo "$@" >>"$HOME/calls"; "{PROGRAM}" "$@" || exit; '
                  'echo "ok $@" >>"$HOME/calls"')
        self.hosts.add("one", record)
        self.assertEqual(self.run_tree("--no-cache", self.hosts.option("one")),
                         (self.expected, ""))
        calls = (self.hosts.folder / "one/calls").read_text().splitlines()
        self.assertGreater(calls.count("--worker"), 1)
        self.assertEqual(calls.count("ok --worker"), calls.count("--worker"))

    def test_a_host_that_is_killed(self):
        self.hosts.add("one")
        # The machine goes down when it gets the first task.
        self.hosts.add("two", f'if [ "$1" = --worker ]; then touch "$HOME/killed"; '
                              f'kill -9 "$(cat "$HOME/pid")"; exit 1; fi; exec "{PROGRAM}" "$@"')
        output, errors = self.run_tree("--no-cache", self.hosts.option("one", "two"))
        self.assertEqual(output, self.expected)
        self.assertTrue((self.hosts.folder / "two/killed").exists())
        self.assertRegex(errors, r"two failed; what it was to read is read elsewhere")

    def test_a_host_that_never_answers(self):
        self.hosts.add("one")
        self.hosts.add("silent").send_signal(signal.SIGSTOP)
        output, errors = self.run_tree("--no-cache", self.hosts.option("one", "silent"))
        self.assertEqual(output, self.expected)
        self.assertRegex(errors, r"silent does not answer; it is left out")

    def test_a_host_with_another_version(self):
        self.hosts.add("one")
        self.hosts.add("old", "echo vexltags-tree v0.1")
        output, errors = self.run_tree("--no-cache", self.hosts.option("one", "old"))
        self.assertEqual(output, self.expected)
        self.assertRegex(errors, r"old has another version; it is left out")

    def test_a_host_whose_answers_are_cut(self):
        self.hosts.add("one")
        self.hosts.add("cut", f'[ "$1" = --worker ] || exec "{PROGRAM}" "$@"; '
                              f'"{PROGRAM}" "$@" >"$HOME/all"; head -c -1 "$HOME/all"')
        output, errors = self.run_tree("--no-cache", self.hosts.option("one", "cut"))
        self.assertEqual(output, self.expected)
        self.assertRegex(errors, r"cut failed; what it was to read is read elsewhere")

    def test_hosts_that_all_fail(self):
        self.hosts.add("bad", f'[ "$1" = --worker ] && exit 9; exec "{PROGRAM}" "$@"')
        output, errors = self.run_tree("--no-cache", self.hosts.option("bad", "unknown"))
        self.assertEqual(output, self.expected)
        self.assertRegex(errors, r"unknown does not answer")
        self.assertRegex(errors, r"bad failed")


if __name__ == "__main__":
    parser = argparse.ArgumentParser()
    parser.add_argument("--program", required=True)
    known, rest = parser.parse_known_args()
    PROGRAM = os.path.abspath(known.program)
    if not os.access(SSHD, os.X_OK) or not shutil.which("parallel") or not shutil.which("ssh"):
        print("sshd, ssh or GNU parallel is missing")
        sys.exit(SKIPPED)
    unittest.main(argv=[sys.argv[0], *rest])
