# SPDX-License-Identifier: MIT
# The git hook writes tags after commit, checkout and merge, and ignores listed files that do not exist.
command -v git >/dev/null || { echo "git is not installed"; exit 77; }
[ -x "$VEXLTAGS_TREE" ] || { echo "vexltags-tree is not built"; exit 77; }
mkdir bin
ln -s "$VEXLTAGS_TREE" bin/vexltags-tree
PATH=$PWD/bin:$PATH
export GIT_CONFIG_NOSYSTEM=1 GIT_AUTHOR_NAME=a GIT_AUTHOR_EMAIL=a@b GIT_COMMITTER_NAME=a GIT_COMMITTER_EMAIL=a@b
git -c init.defaultBranch=main init -q repo
cd repo
mkdir -p .git/hooks 'a dir'
# As the page says, with this copy instead of the installed one.
sed -n '/^for hook/,/^done/p' "$VEXLTAGS_SOURCE/hooks/README.md" |
  sed "s|/usr/share/doc/vexltags|$VEXLTAGS_SOURCE|" >install-hooks
. ./install-hooks
rm install-hooks
echo tags >>.git/info/exclude
names() { echo "$1: $(grep -v '^!' tags | cut -f 1 | tr '\n' ' ')"; }

echo 'def one(): pass' >'a dir/é.py'
echo 'int no_source;' >notes.txt
git add .
git commit -qm one
names commit
git checkout -q -b side
echo 'int two;' >two.c
git add .
git commit -qm two
names commit
git checkout -q main
names checkout
git merge -q side >/dev/null
names merge
cd 'a dir'
git rm -q ../two.c
git commit -qm gone
cd ..
names 'commit from below'
rm 'a dir/é.py'
git checkout -q side
names 'checkout of a tree with a file missing'
git status --short
ls .git | grep tags || true
rm ../bin/vexltags-tree
git checkout -q main
names 'checkout without the program'
