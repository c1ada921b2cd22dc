# SPDX-License-Identifier: MIT
# Unsorted appending to a file that does not exist makes one without a header.
"$VEXLTAGS" --append --sort=no -f tags b.py a.py
