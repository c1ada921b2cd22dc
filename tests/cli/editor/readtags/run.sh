# SPDX-License-Identifier: MIT
# Another reader finds names in the file by binary search, in byte order and in folded order.
command -v readtags >/dev/null || { echo "readtags is not installed"; exit 77; }
tab=$(printf '\t')
for order in yes foldcase; do
  # This reader wants a tab behind the digit that tells the order.
  "$VEXLTAGS" --sort=$order --tag-relative a.py |
    sed "s/^\(!_TAG_FILE_SORTED$tab.\) /\1$tab/" >tags
  for name in Zeta alpha zeta missing; do
    readtags -e -t tags "$name"
  done
done
