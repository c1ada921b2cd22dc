# SPDX-License-Identifier: MIT
"""One run of the program in a folder of its own, under limits, for the suite in robustness.py."""
import os
import pathlib
import resource
import signal
import subprocess
import tempfile
import time

GIB = 2**30


class Skip(Exception):
    """The machine does not allow this case; the text says why."""


class Wrong(Exception):
    """The program did not do what it promises; the text says what it did."""


def require(holds, text):
    if not holds:
        raise Wrong(text)


class Done:
    """What a run left: status (negative for a signal), output texts, peak MiB, seconds."""

    def __init__(self, status, out, err, peak, seconds):
        self.status, self.out, self.err, self.peak, self.seconds = status, out, err, peak, seconds


class Place:
    """A folder for one case, and how to run the program in it."""

    def __init__(self, options, folder):
        self.options = options
        self.folder = pathlib.Path(folder)
        self.last = None

    def write(self, name, text):
        path = os.path.join(os.fsencode(self.folder), os.fsencode(name))
        with open(path, "wb") as file:
            file.write(text if isinstance(text, bytes) else text.encode("latin-1"))
        return name

    def path(self, name):
        return os.path.join(os.path.realpath(self.folder), name)

    def run(self, *arguments, seconds=30, stdout=None, limits=(), user=None, stdin=None,
            stderr=None, gib=None, closed=(), pipes_break=True, environment=None):
        """Runs the program in the folder. `stdin`, `stdout` and `stderr` are descriptors instead of
        nothing and files, `closed` the numbers of those that it does not have at all; `limits` are
        more pairs for setrlimit. A broken pipe ends the program unless it looks out for itself, or
        with `pipes_break` false is no signal at all."""
        gib = self.options.gib if gib is None else gib
        seconds *= self.options.patience

        def prepare():
            resource.setrlimit(resource.RLIMIT_CORE, (0, 0))
            if gib:
                resource.setrlimit(resource.RLIMIT_AS, (int(gib * GIB), int(gib * GIB)))
            if user is not None:
                os.setgroups([])
                os.setgid(user)
                os.setuid(user)
            for which, amount in limits:
                resource.setrlimit(which, (amount, amount))
            signal.signal(signal.SIGPIPE, signal.SIG_DFL if pipes_break else signal.SIG_IGN)
            for number in closed:
                os.close(number)

        if environment is None:
            environment = dict(os.environ, HOME="/nonexistent", PWD=str(self.folder))
        with tempfile.TemporaryFile() as out, tempfile.TemporaryFile() as err:
            start = time.monotonic()
            child = subprocess.Popen([self.options.program, *self.options.always, *arguments],
                                     cwd=self.folder,
                                     stdin=stdin or subprocess.DEVNULL, stdout=stdout or out,
                                     stderr=stderr or err, preexec_fn=prepare,
                                     restore_signals=True, env=environment)
            usage = wait(child, seconds)
            if usage is None:
                raise Wrong(f"did not end within {seconds:g} s")
            out.seek(0)
            err.seek(0)
            done = Done(child.returncode, out.read(), err.read(), usage.ru_maxrss / 1024,
                        time.monotonic() - start)
        self.last = done
        if done.status < 0 or (b"Sanitizer" in done.err) or (b"runtime error:" in done.err):
            raise Wrong(f"ended by {describe(done.status)}: {done.err[-2000:]!r}")
        return done

    def tags(self, *arguments, stderr=b"", **how):
        """Runs the program for a tags file that must be complete. Returns its text."""
        done = self.run("--sort=no", "-f", "tags", *arguments, **how)
        require(done.status == 0, f"status {done.status}: {done.err[-300:]!r}")
        if stderr is not None:
            require(done.err == stderr, f"messages {done.err[-600:]!r}, not {stderr!r}")
        text = (self.folder / "tags").read_bytes()
        require(text.startswith(b"!_TAG_FILE_FORMAT\t2\t") and text.endswith(b"\n"),
                "the tags file is not whole")
        return text


def wait(child, seconds):
    """Waits for the child. Returns its resource usage, None if it had to be killed."""
    end = time.monotonic() + seconds
    pause = 0.001
    while True:
        pid, status, usage = os.wait4(child.pid, os.WNOHANG)
        if pid:
            child.returncode = os.waitstatus_to_exitcode(status)
            return usage
        if time.monotonic() > end:
            child.kill()
            os.wait4(child.pid, 0)
            child.returncode = -signal.SIGKILL
            return None
        time.sleep(pause)
        pause = min(pause * 1.5, 0.05)


def describe(status):
    return signal.Signals(-status).name if status < 0 else f"status {status}"


def has_tag(text, name):
    """Whether the tags text names `name`; Swift's functions carry their labels in parentheses."""
    start = b"\n" + name.encode("latin-1")
    return start + b"\t" in text or start + b"()\t" in text


def require_tags(text, names, absent=()):
    for name in names:
        require(has_tag(text, name), f"no tag {name}")
    for name in absent:
        require(not has_tag(text, name), f"a tag {name}")
