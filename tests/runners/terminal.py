#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Runs a command in a terminal, types into it, and waits for what it shows.

usage: terminal.py [--seconds N] STEP... -- COMMAND...

Each STEP is `wait=TEXT`, which waits until the terminal has shown TEXT since the last step, or
`type=KEYS`, in which \\t, \\r and \\x1b are keys. Each step waits for the one before, so no step
depends on the speed of the machine. After the last step, or after N seconds (20), the command and
its children are killed. The status is 0 if all texts were shown; otherwise it is 1, and the missing
text and what was shown instead are printed.
"""
import codecs
import os
import pty
import re
import select
import signal
import sys
import time

# Moves, colours and titles.
ESCAPES = re.compile(rb"\x1b\[[0-9;?>=]*[A-Za-z]|\x1b\][^\x07]*\x07|\x1b[=>]|\x1b\([AB0]")


class Terminal:
    def __init__(self, command, seconds):
        self.end = time.monotonic() + seconds
        self.shown = b""
        self.child, self.descriptor = pty.fork()
        if self.child == 0:
            try:
                os.execvp(command[0], command)
            finally:
                os._exit(127)

    def wait(self, text):
        """True once `text` was shown; drops what was shown up to its end."""
        while True:
            plain = ESCAPES.sub(b"", self.shown)
            place = plain.find(text)
            if place >= 0:
                self.shown = plain[place + len(text):]
                return True
            left = self.end - time.monotonic()
            if left <= 0 or not select.select([self.descriptor], [], [], left)[0]:
                return False
            try:
                more = os.read(self.descriptor, 65536)
            except OSError:
                more = b""  # On Linux: the last process has closed the terminal.
            if not more:
                return False
            self.shown += more

    def type(self, keys):
        os.write(self.descriptor, keys)
        return True

    def close(self):
        try:
            os.killpg(self.child, signal.SIGKILL)
        except ProcessLookupError:
            pass
        os.close(self.descriptor)
        os.waitpid(self.child, 0)


def main():
    arguments = sys.argv[1:]
    seconds = 20.0
    if arguments[:1] == ["--seconds"]:
        seconds = float(arguments[1])
        del arguments[:2]
    if "--" not in arguments:
        sys.exit(__doc__)
    middle = arguments.index("--")
    steps = [step.partition("=") for step in arguments[:middle]]
    if any(verb not in ("wait", "type") for verb, _, _ in steps):
        sys.exit(__doc__)
    terminal = Terminal(arguments[middle + 1:], seconds)
    try:
        for verb, _, text in steps:
            done = (terminal.wait(text.encode()) if verb == "wait"
                    else terminal.type(codecs.decode(text.encode(), "unicode_escape").encode()))
            if not done:
                print(f"not shown: {text}")
                print(ESCAPES.sub(b"", terminal.shown).decode("utf-8", "replace"))
                sys.exit(1)
    finally:
        terminal.close()


if __name__ == "__main__":
    main()
