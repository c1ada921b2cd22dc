# SPDX-License-Identifier: MIT
# The steps of gutentags' script: a run over the project, then one for each saved file, on a copy of
# the tags without those of that file. Vim compares names as they were given.
. "$VEXLTAGS_SOURCE/tests/shared/ctags.sh"
mkdir src
mv shape.h shape.cc tool.py src
printf -- '--recurse=yes\n\n' >recurse.options
: >wildignore
run() {
  if "$@"; then mv -f tags.temp tags; else echo "failed $?"; rm -f tags.temp; fi
}
update() {
  grep -v "	$1	" tags >tags.temp || true
  run "$ctags" -f tags.temp --options=recurse.options --exclude=@wildignore --append "$1"
}
count() {
  printf '%s %s %s\n' "$(grep -c '^!_TAG_FILE_FORMAT' tags)" "$(grep -c '	src/tool.py	' tags)" \
    "$(grep -vc '^!' tags)"
  LC_ALL=C sort -c tags
}
run "$ctags" -f tags.temp --options=recurse.options --exclude=@wildignore --exclude='a dir' .
head -n 1 tags
count
echo 'def added(): pass' >>src/tool.py
update src/tool.py
count
grep '^added' tags
echo 'def start(): pass' >src/tool.py
update src/tool.py
count
# A file without a tag that is left; an empty file to add to.
: >src/tool.py
update src/tool.py
count
: >tags
echo 'def start(): pass' >src/tool.py
update src/tool.py
grep -v '^!' tags
# The tags file in a folder of its own: names relative to it, but absolute ones stay.
mkdir cache
"$ctags" -f cache/tags.temp --options=recurse.options --tag-relative=yes src
grep '^start' cache/tags.temp
"$ctags" -f cache/tags.temp --options=recurse.options --tag-relative=yes "$PWD/src"
grep '^start' cache/tags.temp | sed "s|$PWD|HERE|"
# A list of files in place of the folder.
printf 'src/tool.py\nview.m\n' >tags.files
run "$ctags" -f tags.temp -L tags.files
grep -v '^!' tags | cut -f 2 | sort -u
# Patterns from Vim's list of ignored files.
printf '*.py\n*/shape.h\n' >wildignore
run "$ctags" -f tags.temp --options=recurse.options --exclude=@wildignore .
grep -v '^!' tags | cut -f 2 | sort -u
