# SPDX-License-Identifier: MIT
# Python goes by the exact end of the path, a name that is nothing but the suffix included.
cp a.py .py
cp b.py b.pyx
cp c.py c.c.py
"$VEXLTAGS" -f tags .py b.pyx c.c.py
