# SPDX-License-Identifier: MIT
# `-f -` is standard output and may still be followed by a file.
"$VEXLTAGS" -f - a.py
"$VEXLTAGS" -f - -f tags b.py
