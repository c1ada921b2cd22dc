# SPDX-License-Identifier: MIT
# The exact end of the path selects Python, even where the name is only the suffix.
cp a.py .py
cp b.py b.pyx
cp c.py c.c.py
"$VEXLTAGS" -f tags .py b.pyx c.c.py
