# SPDX-License-Identifier: MIT
# In place: a file that cannot be replaced or written completely stays as it is, and no other file is left.
"$VEXLTAGS" --sort=yes --tag-relative -f tags a.py
cp tags before
mkfifo pipe
ln -s nowhere dangling
ln -s loop loop
for name in pipe /dev/null . dangling loop; do
  "$VEXLTAGS_PORTABLE" -i "$name" || echo "$name: $?"
done
(
  ulimit -f 0
  "$VEXLTAGS_PORTABLE" -i tags || echo "no room: $?"
)
chmod a-w .
[ "$(id -u)" = 0 ] || "$VEXLTAGS_PORTABLE" -i tags 2>&1 | grep -qx 'error creating a temporary file for tags'
chmod u+w .
cmp tags before
ls -d tags*
