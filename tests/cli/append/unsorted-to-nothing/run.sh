# SPDX-License-Identifier: MIT
# Unsorted appending to a missing file creates one without a header.
"$VEXLTAGS" --append --sort=no -f tags b.py a.py
