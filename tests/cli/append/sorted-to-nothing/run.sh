# SPDX-License-Identifier: MIT
# Sorted appending to a file that does not exist makes one with a header.
"$VEXLTAGS" --append=yes -f tags b.py a.py
