#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Runs Vim in a terminal emulator, jumps to a tag, checks the screen, and can save it as an image.

usage: screen.py --program VEXLTAGS [--save FILE.png]

Needs the Debian packages vim and python3-pyte, and for --save python3-pil and fonts-dejavu-core. If
Vim or pyte is missing, it says so and exits with status 77.
"""
import argparse
import os
import pathlib
import pty
import select
import shutil
import subprocess
import sys
import tempfile
import time

COLUMNS, ROWS = 80, 20
ROOT = pathlib.Path(__file__).resolve().parent.parent
FONT = "/usr/share/fonts/truetype/dejavu/DejaVuSansMono.ttf"
# Terminal colours by their pyte names.
COLOURS = {
    "default": "#d0d0d0", "black": "#3a3a3a", "red": "#e06c75", "green": "#98c379",
    "brown": "#d7af5f", "blue": "#61afef", "magenta": "#c678dd", "cyan": "#56b6c2",
    "white": "#ffffff",
}
BACKGROUND = "#1c1c1c"


def skip(why):
    print(why)
    sys.exit(77)


def feed(stream, terminal, seconds, until=None):
    """Feeds the terminal's output to the emulator until `until()` holds or the time is over."""
    end = time.monotonic() + seconds
    while time.monotonic() < end:
        if select.select([terminal], [], [], 0.2)[0]:
            try:
                stream.feed(os.read(terminal, 65536))
            except OSError:
                return
        elif until is not None and until():
            return


def text_colour(cell):
    name = cell.fg
    if name in COLOURS:
        return COLOURS[name]
    return f"#{name}" if len(name) == 6 else COLOURS["default"]


def draw(screen, path):
    from PIL import Image, ImageDraw, ImageFont

    font = ImageFont.truetype(FONT, 14)
    left, top, right, _ = font.getbbox("M" * COLUMNS)
    width, height = (right - left) / COLUMNS, 18
    picture = Image.new("RGB", (int(width * COLUMNS) + 16, height * ROWS + 16), BACKGROUND)
    pen = ImageDraw.Draw(picture)
    for y in range(ROWS):
        for x in range(COLUMNS):
            cell = screen.buffer[y][x]
            at = (8 + x * width, 8 + y * height)
            colour, ground = text_colour(cell), None
            if cell.reverse or (x, y) == (screen.cursor.x, screen.cursor.y):
                colour, ground = BACKGROUND, colour
            if ground:
                pen.rectangle((at[0], at[1], at[0] + width, at[1] + height - 1), fill=ground)
            if cell.data.strip():
                pen.text(at, cell.data, font=font, fill=colour)
    picture.quantize(32).save(path, optimize=True)


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--program", required=True, type=os.path.abspath)
    parser.add_argument("--save", type=os.path.abspath, help="save the screen as this image")
    options = parser.parse_args()
    try:
        import pyte
    except ImportError:
        skip("python3-pyte is not installed")
    if not shutil.which("vim"):
        skip("vim is not installed")

    folder = pathlib.Path(tempfile.mkdtemp(prefix="vexltags-"))
    try:
        for name in ("line_order.h", "line_order.cc"):
            shutil.copy(ROOT / "src/output" / name, folder)
        subprocess.run([options.program, "--sort=yes", "--tag-relative", "-f", "tags",
                        "line_order.h", "line_order.cc"], cwd=folder, check=True,
                       env=dict(os.environ, PWD=str(folder)))
        (folder / "vimrc").write_text(
            "set nocompatible tags=tags laststatus=2 ruler nowrap background=dark noswapfile\n"
            "silent! syntax on\n", encoding="utf-8")
        child, terminal = pty.fork()
        if child == 0:
            os.chdir(folder)
            os.environ.update(TERM="linux", LC_ALL="C.UTF-8", COLUMNS=str(COLUMNS), LINES=str(ROWS))
            os.execvp("vim", ["vim", "-u", "vimrc", "-i", "NONE", "-c", "tag SortLines",
                              "-c", "tselect SortLines"])
        screen = pyte.Screen(COLUMNS, ROWS)
        stream = pyte.ByteStream(screen)
        import fcntl
        import struct
        import termios
        fcntl.ioctl(terminal, termios.TIOCSWINSZ, struct.pack("HHHH", ROWS, COLUMNS, 0, 0))

        def shown(text):
            return any(text in line for line in screen.display)

        feed(stream, terminal, 20, lambda: shown("Type number and <Enter>"))
        listed = shown("line_order.cc") and shown("line_order.h")
        os.write(terminal, b"1\r")
        feed(stream, terminal, 20, lambda: not shown("Type number"))
        feed(stream, terminal, 1)
        row = screen.display[screen.cursor.y]
        os.write(terminal, b":qa!\r")
        jumped = row.startswith("void SortLines(") and shown("line_order.cc")
        if options.save and jumped:
            draw(screen, options.save)
        feed(stream, terminal, 2)
        os.close(terminal)
        os.waitpid(child, 0)
    finally:
        shutil.rmtree(folder)
    if not (listed and jumped):
        print("\n".join(screen.display))
        return 1
    return 0


if __name__ == "__main__":
    sys.exit(main())
