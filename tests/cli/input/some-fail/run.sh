# SPDX-License-Identifier: MIT
# A file that fails is reported and changes nothing else.
"$VEXLTAGS" -f tags missing.py a.py gone/b.py a.py/x.py b.py
