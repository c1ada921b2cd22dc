# SPDX-License-Identifier: MIT
# In place: the mode of the file and a link to it stay, even where a tag is removed; failures change nothing.
"$VEXLTAGS" --sort=yes -f real a.py
chmod 640 real
ln -s real tags
"$VEXLTAGS_PORTABLE" -i tags
ls -l tags | grep -q -e '-> real$'
stat -c %a real
sed "s|$HOME|HOME|" real
echo 'no tag' >other
"$VEXLTAGS_PORTABLE" --in-place other missing || echo "status $?"
cat other
ls
