# SPDX-License-Identifier: MIT
# The language of a file: by suffix, by what an option says, by its first line.
. "$VEXLTAGS_SOURCE/tests/shared/ctags.sh"
printf '#!/usr/bin/env python3\ndef script(): pass\n' >script
printf '// -*- C++ -*-\nint value();\nclass Vec {};\n' >vec
printf '# -*- mode: python; coding: utf-8 -*-\ndef moded(): pass\n' >moded
printf 'class A {};\n' >data.txt
printf '@interface I\n@end\n' >objc.h
printf 'def odd(): pass\n' >Odd
printf 'just words\n' >words
tags() { "$ctags" -f- -u --fields=l "$@" | cut -f 1-2,4; }
tags script vec moded data.txt objc.h words
tags --langmap=c++:+.txt data.txt
tags --map-C++=.txt --langmap='python:(Odd),cobol:.cob' Odd data.txt
tags --language-force=python words Odd
tags --language-force=auto Odd objc.h
tags --languages=python script vec objc.h shape.h
tags --languages=objc shape.h objc.h
tags --languages=-C++ shape.h view.m | sort -u -k 2 | head -n 3
