# SPDX-License-Identifier: MIT
# Appending the same file again doubles its entries.
"$VEXLTAGS" --append --sort=yes -f tags b.py a.py
"$VEXLTAGS" --append --sort=yes -f tags b.py a.py
