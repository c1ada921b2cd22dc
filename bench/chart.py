#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Draws a result of compare.py as a bar chart of speeds relative to ctags, one bar per row.

  chart.py bench/results/NAME.json OUT.svg
"""
import html
import json
import sys

LEFT, BARS, RIGHT = 250, 330, 190
STEP, BAR, TOP = 30, 18, 64
STYLE = """  <style>
    text { font: 13px system-ui, sans-serif; fill: #24292f }
    .title { font-size: 15px; font-weight: 600 } .small { font-size: 11px; fill: #6e7781 }
    .bar { fill: #2f6fb3 } .base { stroke: #d1242f; stroke-width: 1.5 }
    .grid { stroke: #d0d7de; stroke-width: 1 }
    @media (prefers-color-scheme: dark) {
      text { fill: #e6edf3 } .small { fill: #9198a1 } .bar { fill: #58a6ff } .grid { stroke: #3d444d }
    }
  </style>"""


def speed(row):
    if row["files"] == 1:
        return "%.1f ms" % (1e3 * row["median"])
    if row["tiny"]:
        return "%.0f µs per file" % (1e6 * row["median"] / row["files"])
    return "%.0f MB/s" % (row["bytes"] / 1e6 / row["median"])


def svg(data):
    rows = data["rows"]
    most = max([row["ratio"] for row in rows if "ratio" in row] + [2.0])
    scale = BARS / most
    width, height = LEFT + BARS + RIGHT, TOP + STEP * len(rows) + 34
    bottom = TOP + STEP * len(rows)
    out = ['<svg xmlns="http://www.w3.org/2000/svg" width="%d" height="%d" viewBox="0 0 %d %d" '
           'role="img" aria-label="Speed of vexltags as a multiple of ctags">' %
           (width, height, width, height), STYLE,
           '  <text class="title" x="12" y="24">Indexing speed, as a multiple of ctags</text>',
           '  <text class="small" x="12" y="42">CPU time, median of %d pairs of runs on the same '
           'files; longer is faster</text>' % data["about"]["pairs"]]
    for mark in range(0, int(most) + 1):
        x = LEFT + mark * scale
        out.append('  <line class="%s" x1="%.1f" y1="%d" x2="%.1f" y2="%d"/>' %
                   ("base" if mark == 1 else "grid", x, TOP - 8, x, bottom))
        out.append('  <text class="small" x="%.1f" y="%d" text-anchor="middle">%d×</text>' %
                   (x, bottom + 14, mark))
    for index, row in enumerate(rows):
        y = TOP + STEP * index
        ratio = row.get("ratio")
        label = "%.1f× · %s" % (ratio, speed(row)) if ratio else speed(row) + ", not in ctags"
        out.append('  <text x="%d" y="%d" text-anchor="end">%s</text>' %
                   (LEFT - 10, y + 14, html.escape(row["title"])))
        if ratio:
            out.append('  <rect class="bar" x="%d" y="%d" width="%.1f" height="%d" rx="2"/>' %
                       (LEFT, y, ratio * scale, BAR))
        out.append('  <text x="%d" y="%d">%s</text>' % (LEFT + BARS + 14, y + 14, label))
    about = data["about"]
    out.append('  <text class="small" x="12" y="%d">%s</text>' % (height - 4, html.escape(
        " · ".join(x for x in (about["cpu"], about["compiler"], about["date"]) if x))))
    return "\n".join(out + ["</svg>", ""])


def write(data, path):
    with open(path, "w", encoding="utf-8") as file:
        file.write(svg(data))


if __name__ == "__main__":
    if len(sys.argv) != 3:
        sys.exit(__doc__)
    with open(sys.argv[1], encoding="utf-8") as source:
        write(json.load(source), sys.argv[2])
