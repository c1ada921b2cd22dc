# SPDX-License-Identifier: MIT
# Without HOME each relative path says so on standard output: one line for each tag of any kind.
unset HOME
for source in a.cc a.m a.py a.swift; do
  "$VEXLTAGS" --tag-relative --cannonical-paths=no --sort=no $source >out
  tags=$(grep -c "^[^!].*$source" out)
  missing=$(grep -c '^No \$HOME!$' out)
  echo "$source: $tags tags, $missing messages"
done
"$VEXLTAGS" --tag-relative --cannonical-paths=no --debugDump enum.cc | grep -v '^!'
