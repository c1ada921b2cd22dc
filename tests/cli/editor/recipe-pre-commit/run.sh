# SPDX-License-Identifier: MIT
# The pre-commit entry of hooks/README.md refreshes tags at a commit and at a checkout.
for tool in git pre-commit; do
  command -v $tool >/dev/null || { echo "$tool is not installed"; exit 77; }
done
[ -x "$VEXLTAGS_TREE" ] || { echo "vexltags-tree is not built"; exit 77; }
mkdir bin
ln -s "$VEXLTAGS_TREE" bin/vexltags-tree
PATH=$PWD/bin:$PATH
export GIT_AUTHOR_NAME=a GIT_AUTHOR_EMAIL=a@b GIT_COMMITTER_NAME=a GIT_COMMITTER_EMAIL=a@b
git init -q repo
cd repo
echo tags >>.git/info/exclude
sed -n '/^```yaml$/,/^```$/p' "$VEXLTAGS_SOURCE/hooks/README.md" | sed '/^```/d' >.pre-commit-config.yaml
pre-commit install -t post-checkout -t post-merge -t post-commit >../log 2>&1
cp ../a.py .
git add .
git commit -qm one >../log 2>&1
grep -v '^!' tags | cut -f 1,3-
rm tags
git checkout -q -b side >../log 2>&1
grep -v '^!' tags | cut -f 1,3-
