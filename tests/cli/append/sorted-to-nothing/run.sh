# SPDX-License-Identifier: MIT
# Sorted appending to a missing file creates one with a header.
"$VEXLTAGS" --append=yes -f tags b.py a.py
