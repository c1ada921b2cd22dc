# SPDX-License-Identifier: MIT
# Sorted appending keeps the old lines and writes a new header.
cp old tags
"$VEXLTAGS" --append -f tags b.py a.py
