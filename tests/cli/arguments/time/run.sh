# SPDX-License-Identifier: MIT
# --time prints one line for each file that was read, before the tags.
"$VEXLTAGS" --time a.py missing.py b.py | sed 's/^Time: [0-9][0-9]*us$/Time: us/'
