# SPDX-License-Identifier: MIT
# A message of the parser names the column of a token, and its index with hidden tokens counted.
# Columns count from 0, in the first line from -1. A token that recovery makes up takes the place of
# the next one; its index is 0.
for source in *.c *.swift; do
  "$VEXLTAGS" --dumpErrors -f tags $source 2>messages
  sed "s|(Start: -*[1-9][0-9]*-Stop: -*[1-9][0-9]*)|(EXTENT)|; s|$HOME|HOME|" messages
done
