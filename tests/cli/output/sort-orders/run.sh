# SPDX-License-Identifier: MIT
# Emission order, byte order and folded order of the same names.
for order in no yes foldcase; do
  "$VEXLTAGS" --tag-relative --sort=$order a.py
done
