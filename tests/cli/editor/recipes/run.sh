# SPDX-License-Identifier: MIT
# The recipes of hooks/README.md for Make and CMake.
for tool in git make cmake ninja; do
  command -v $tool >/dev/null || { echo "$tool is not installed"; exit 77; }
done
block() { sed -n "/^\`\`\`$1\$/,/^\`\`\`\$/p" "$VEXLTAGS_SOURCE/hooks/README.md" | sed '/^```/d'; }
[ -x "$VEXLTAGS_TREE" ] || { echo "vexltags-tree is not built"; exit 77; }
mkdir bin
ln -s "$VEXLTAGS_TREE" bin/vexltags-tree
PATH=$PWD/bin:$PATH
git init -q repo
cd repo
cp ../a.py ../b.swift .
git add .
block make >Makefile
make -s tags
grep -v '^!' tags | cut -f 1,3-
rm tags
{
  echo 'cmake_minimum_required(VERSION 3.22)'
  echo 'project(example NONE)'
  block cmake
} >CMakeLists.txt
cmake -G Ninja -S . -B ../build >../log
ninja -C ../build tags >../log
grep -v '^!' tags | cut -f 1,3-
