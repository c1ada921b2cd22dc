# SPDX-License-Identifier: MIT
# Which files -R reads: links, depth, exclusions and what no one means.
. "$VEXLTAGS_SOURCE/tests/shared/ctags.sh"
rm -r *.swift *.m *.cc *.h 'a dir'
mkdir -p src/deep/deeper build .git lib
for file in src/one.py src/deep/two.py src/deep/deeper/three.py build/four.py .git/five.py lib/six.py; do
  echo 'def f(): pass' >$file
done
cp tool.py 'src/back~'
mkfifo src/pipe.py
ln -s ../src src/deep/up
ln -s ../lib src/linked
ln -s missing src/broken.py
files() { "$ctags" -R -f- "$@" | cut -f 2 | uniq | sort -u | tr '\n' ' '; echo; }
files
files src
files ./src
files src/
files --links=no src
files --maxdepth=1 src
files --maxdepth=0 src
files --exclude=build --exclude=deeper --exclude=linked
files --exclude=src/deep --exclude=./lib/
files --exclude='*/deeper/*' src
files --exclude='t*.py' --exclude-exception='two*' src
files --exclude=. "$PWD/lib" | sed "s|$PWD|HERE|"
files --exclude=.
files --exclude= .git
files --exclude='[' lib
files src/one.py lib/six.py
files --exclude='six*' lib/six.py
files --recurse=no src
files --maxdepth=1 --exclude=@missing lib
printf 'lib\nsrc/one.py\n\nnone.py\r\nsrc/pipe.py' | files -L -
