# SPDX-License-Identifier: MIT
# Paths relative to the working directory, regardless of -f, and for files above it at any distance.
mkdir -p x/y/z
cp a.py x/y
cp b.py x/y/z
cd x/y
"$VEXLTAGS" --tag-relative -f ../../tags a.py z/b.py ../../c.py ./z/../../../b.py
