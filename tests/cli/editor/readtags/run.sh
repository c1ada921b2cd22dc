# SPDX-License-Identifier: MIT
# Another reader finds names in the file by binary search, in byte order and in folded order.
command -v readtags >/dev/null || { echo "readtags is not installed"; exit 77; }
tab=$(printf '\t')
for order in yes foldcase; do
  # This reader needs a tab after the digit that states the order.
  "$VEXLTAGS" --sort=$order --tag-relative a.py |
    sed "s/^\(!_TAG_FILE_SORTED$tab.\) /\1$tab/" >tags
  for name in Zeta alpha zeta missing; do
    readtags -e -t tags "$name"
  done
done
