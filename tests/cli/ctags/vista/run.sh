# SPDX-License-Identifier: MIT
# The arguments of vista.vim, in JSON and in the tags format. Any text on standard error would discard
# the result.
. "$VEXLTAGS_SOURCE/tests/shared/ctags.sh"
vista() {
  "$ctags" --format=2 --excmd=pattern --fields=+nksSaf --extras=+F --sort=no --append=no "$@"
}
json='--output-format=json --fields=-PF -f-'
vista --extras= --language-force=python --python-kinds=fmciv $json tool.py
vista --language-force=c++ --c++-kinds=cdefghmnpstuv $json shape.cc
vista --extras= --language-force=objectivec --objectivec-kinds=EIMPcefimpstv $json view.m >objc.json
cp body.swift 0123abcd.swift
vista --extras= $json 0123abcd.swift >swift.json
cp view.m 0123abcd.objcpp
# Without a table, all kinds: two categories more.
vista --extras= $json 0123abcd.objcpp | grep -v '"category","scope"' | cmp - objc.json
# Every object has a kind and a line, and a parent that comes no later for each scope.
"$PYTHON" -c '
import json, sys
for name, separator in (("objc.json", ":"), ("swift.json", ".")):
    tags = [json.loads(line) for line in open(name)]
    for tag in tags:
        assert tag["_type"] == "tag" and isinstance(tag["line"], int) and tag["kind"], tag
        if "scope" not in tag:
            continue
        assert any(other["kind"] == tag["scopeKind"] and other["line"] <= tag["line"]
                   and tag["scope"].split(separator)[-1] == other["name"] for other in tags), tag
    print(name, len(tags))
'
vista --extras= --language-force=python --python-kinds=fmciv -f- tool.py
# The finder for a project.
mkdir sub
mv tool.py sub
"$ctags" -R -x --output-format=json --fields=+n sub
"$ctags" -R -x --_xformat='TAGNAME:%N ++++ KIND:%K ++++ LINE:%n ++++ INPUT-FILE:%F ++++ PATTERN:%P' sub
