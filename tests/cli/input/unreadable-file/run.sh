# SPDX-License-Identifier: MIT
# A file without read permission is reported and the rest is indexed.
run=
if test "$(id -u)" = 0; then
  # Root may read everything.
  run='setpriv --reuid=65534 --regid=65534 --clear-groups'
  $run true 2>/dev/null || { echo "root cannot give up its rights here"; exit 77; }
fi
cp "$VEXLTAGS" program
chmod 755 . program
chmod 644 a.py
chmod 000 b.py
$run ./program a.py b.py 2>messages
sed "s|$HOME|HOME|" messages
