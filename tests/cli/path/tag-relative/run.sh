# SPDX-License-Identifier: MIT
# Paths relative to the working directory, whatever -f says and however often files are above it.
mkdir -p x/y/z
cp a.py x/y
cp b.py x/y/z
cd x/y
"$VEXLTAGS" --tag-relative -f ../../tags a.py z/b.py ../../c.py ./z/../../../b.py
