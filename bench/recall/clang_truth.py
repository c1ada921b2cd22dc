# SPDX-License-Identifier: MIT
"""What clang declares in the files of a corpus: the truth for C, C++ and Objective-C.

Every file is parsed as a translation unit of its own, or is taken from a unit that included it
without an error, once for each configuration of the corpus. The binding's own cursor class costs
too much for millions of cursors, so the walk calls the C interface.
"""
import ctypes
import glob
import os
import re

import truth

_OPTIONS = 0x01 | 0x200  # Record the preprocessing in detail; go on after a fatal error.

_library = None
_cx = None


class _Ranges(ctypes.Structure):
    pass


def load():
    """Loads libclang and its binding. Returns None, or what is missing."""
    global _library, _cx
    if _library is not None:
        return None
    try:
        import clang.cindex as cindex
    except ImportError:
        return "the binding of libclang for this Python (python3-clang-14)"
    names = sorted(glob.glob("/usr/lib/*/libclang-14.so*") +
                   glob.glob("/usr/lib/llvm-14/lib/libclang*.so*"))
    if names and not cindex.Config.loaded:
        cindex.Config.set_library_file(names[0])
    try:
        library = cindex.conf.lib
    except cindex.LibclangError:
        return "libclang (libclang1-14)"
    _cx, _library = cindex, library
    _Ranges._fields_ = [("count", ctypes.c_uint), ("ranges", ctypes.POINTER(cindex.SourceRange))]
    for name in ("clang_getSkippedRanges", "clang_getAllSkippedRanges"):
        getattr(library, name).restype = ctypes.POINTER(_Ranges)
    library.clang_getSkippedRanges.argtypes = [ctypes.c_void_p, ctypes.c_void_p]
    library.clang_disposeSourceRangeList.argtypes = [ctypes.POINTER(_Ranges)]
    library.clang_getFileLocation.argtypes = [
        cindex.SourceLocation, ctypes.POINTER(ctypes.c_void_p), ctypes.POINTER(ctypes.c_uint),
        ctypes.POINTER(ctypes.c_uint), ctypes.POINTER(ctypes.c_uint)]
    library.clang_Cursor_isInlineNamespace.argtypes = [cindex.Cursor]
    library.clang_getFileLocation.restype = None
    return None


_NAMED_SCOPES = frozenset((
    "STRUCT_DECL", "UNION_DECL", "CLASS_DECL", "ENUM_DECL", "NAMESPACE", "CLASS_TEMPLATE",
    "CLASS_TEMPLATE_PARTIAL_SPECIALIZATION", "OBJC_INTERFACE_DECL", "OBJC_CATEGORY_DECL",
    "OBJC_PROTOCOL_DECL", "OBJC_IMPLEMENTATION_DECL", "OBJC_CATEGORY_IMPL_DECL"))
_TYPES = {
    "STRUCT_DECL": "struct", "UNION_DECL": "union", "CLASS_DECL": "class", "ENUM_DECL": "enum",
    "CLASS_TEMPLATE": "class", "CLASS_TEMPLATE_PARTIAL_SPECIALIZATION": "class"}
_FUNCTIONS = frozenset((
    "FUNCTION_DECL", "CXX_METHOD", "CONSTRUCTOR", "DESTRUCTOR", "CONVERSION_FUNCTION",
    "FUNCTION_TEMPLATE"))
_METHODS = frozenset(("OBJC_INSTANCE_METHOD_DECL", "OBJC_CLASS_METHOD_DECL"))
_OBJC = {
    "OBJC_INTERFACE_DECL": "interface", "OBJC_PROTOCOL_DECL": "protocol",
    "OBJC_IMPLEMENTATION_DECL": "implementation", "OBJC_CATEGORY_DECL": "category",
    "OBJC_CATEGORY_IMPL_DECL": "category"}
_PLAIN = {
    "NAMESPACE": "namespace", "ENUM_CONSTANT_DECL": "enumerator", "FIELD_DECL": "member",
    "OBJC_IVAR_DECL": "member", "TYPEDEF_DECL": "typedef", "TYPE_ALIAS_DECL": "typedef",
    "TYPE_ALIAS_TEMPLATE_DECL": "typedef", "MACRO_DEFINITION": "macro"}
_OPTIONAL = frozenset(("NAMESPACE_ALIAS", "USING_DECLARATION"))
_NO_DECLARATIONS = frozenset((
    "TYPE_REF", "TEMPLATE_REF", "NAMESPACE_REF", "MEMBER_REF", "DECL_REF_EXPR", "PARM_DECL",
    "OBJC_SUPER_CLASS_REF", "INCLUSION_DIRECTIVE"))


def _setter(name):
    return "set%s:" % (name[:1].upper() + name[1:])


def _kind_names():
    return {kind.value: kind.name for kind in _cx.CursorKind.get_all_kinds()}


class Reader:
    """Reads the files of one corpus in one configuration. Keeps what was read cleanly, so that a
    header which many include is walked once."""

    def __init__(self, wanted, flags, stubs=None):
        self._wanted = set(wanted)
        self._flags = list(flags)
        self._stubs = stubs
        self._index = _cx.Index.create()
        self._names = _kind_names()
        self._texts = {}

    def text(self, path):
        if path not in self._texts:
            if len(self._texts) > 200:
                self._texts.clear()
            with open(path, "rb") as file:
                self._texts[path] = file.read()
        return self._texts[path]

    def read(self, path, done):
        """The truths of `path` and of the wanted files that it includes, but for those in `done`,
        by path."""
        unit = self._parse(path)
        if unit is None:
            return {}
        return _Walk(self, unit, path, done).run()

    def _parse(self, path):
        flags = self._flags
        if path.endswith(".mm"):
            flags = [flag.replace("objective-c", "objective-c++") if flag == "objective-c" else flag
                     for flag in flags] + ["-std=gnu++20"]
        try:
            if self._stubs is not None:
                return self._stubs.parse(self._index, path, flags, _OPTIONS)
            return self._index.parse(path, args=flags, options=_OPTIONS)
        except _cx.TranslationUnitLoadError:
            return None


class _Walk:
    """One translation unit. A cursor is wanted if its name is in a wanted file."""

    def __init__(self, reader, unit, main, done):
        self._reader, self._unit, self._main = reader, unit, main
        self._names, self._lib = reader._names, _library
        self._files = {}
        self._found = {}
        self._done = done
        self._spots = {}
        self._containers = []

        def keep(child, _, kids):
            child._tu = unit
            kids.append(child)
            return 1

        self._keep = _cx.callbacks["cursor_visit"](keep)

    def run(self):
        self._found[self._main] = truth.FileTruth(self._main)  # Also where nothing is declared.
        self._collect_errors()
        self._children(self._unit.cursor, (), False)
        for path, found in self._found.items():
            self._skip(path, found)
            found.finish()
        self._place_in_containers()
        return self._found

    def _place_in_containers(self):
        """Accepts an Objective-C container, under each of its names, as the scope of all that it
        contains: types in it are global to the compiler, but indexers may name the container."""
        for found, first, last, names in self._containers:
            for (line, _), value in found.declarations.items():
                if first < line <= last and not set(value[3]) - {"", *names}:
                    value[3] = list(dict.fromkeys(value[3] + names))

    def _file(self, handle):
        """The truth for a file of the unit, or None where it is not wanted."""
        if not handle:
            return None
        if handle in self._files:
            return self._files[handle]
        name = self._lib.clang_getFileName(_cx.File(ctypes.cast(handle, _cx.c_object_p)))
        name = os.path.realpath(name if isinstance(name, str) else str(name))
        wanted = name in self._reader._wanted and (name == self._main or name not in self._done)
        found = None
        if wanted:
            found = self._found.setdefault(name, truth.FileTruth(name))
        self._files[handle] = found
        return found

    def _place(self, location):
        """(truth or None, line, offset) of the place in a file that a location belongs to."""
        file, line, column, offset = (ctypes.c_void_p(), ctypes.c_uint(), ctypes.c_uint(),
                                      ctypes.c_uint())
        self._lib.clang_getFileLocation(location, ctypes.byref(file), ctypes.byref(line),
                                        ctypes.byref(column), ctypes.byref(offset))
        return self._file(file.value), line.value, offset.value

    def _collect_errors(self):
        for diagnostic in self._unit.diagnostics:
            if diagnostic.severity < 3:
                continue
            found, line, _ = self._place(diagnostic.location)
            if found is not None and "file not found" not in diagnostic.spelling:
                found.errors.append((line, diagnostic.spelling))

    def _skip(self, path, found):
        handle = _cx.File.from_name(self._unit, path)
        ranges = self._lib.clang_getSkippedRanges(self._unit, handle)
        for index in range(ranges.contents.count):
            part = ranges.contents.ranges[index]
            found.skipped.append((self._place(part.start)[1] + 1, self._place(part.end)[1] - 1))
        self._lib.clang_disposeSourceRangeList(ranges)

    def _children(self, cursor, scope, local):
        kids = []
        self._lib.clang_visitChildren(cursor, self._keep, kids)
        for child in kids:
            self._visit(child, scope, local)

    def _visit(self, cursor, scope, local):
        kind = self._names.get(cursor._kind_id, "")
        if kind in _NO_DECLARATIONS:
            return
        found, line, offset = self._place(self._lib.clang_getCursorLocation(cursor))
        if found is None:
            # What a wanted file declares by including another one in the middle of a scope.
            if kind in ("NAMESPACE", "UNEXPOSED_DECL", "LINKAGE_SPEC") and not local:
                self._children(cursor, scope, local)
            return
        if kind == "MACRO_INSTANTIATION":
            extent = cursor.extent
            found.uses.append((line, self._place(extent.end)[1], cursor.spelling))
            return
        if kind == "COMPOUND_STMT" and scope and scope[-1] == "()":
            extent = cursor.extent
            found.bodies.append((self._place(extent.start)[1], self._place(extent.end)[1]))
        self._declare(cursor, kind, found, line, offset, scope, local)

    def _declare(self, cursor, kind, found, line, offset, scope, local):
        place = (found, line, offset)
        if kind in _TYPES or kind in _OBJC or kind == "NAMESPACE":
            self._scope(cursor, kind, place, scope, local)
        elif kind in _FUNCTIONS:
            self._function(cursor, place, scope, local)
        elif kind in _METHODS:
            # Indexers report the line of any part of a selector.
            self._add(place, [cursor.spelling], "method", cursor, scope,
                      (found.path, offset) not in self._spots, self._last_line(cursor, line))
            if self._is_definition(cursor):
                self._children(cursor, scope + ("()",), True)
        elif kind == "OBJC_PROPERTY_DECL":
            self._spots[(found.path, offset)] = True
            self._property(cursor, place, scope)
        elif kind == "FRIEND_DECL":
            self._children(cursor, scope + ("friend",), local)
        elif kind == "VAR_DECL":
            if not local:
                self._add(place, [cursor.spelling], "variable", cursor, scope, True)
            self._children(cursor, scope, True)
        elif kind in _PLAIN:
            self._add(place, [truth.plain_name(cursor.spelling)], _PLAIN[kind], cursor, scope,
                      not local or kind == "MACRO_DEFINITION")
            if kind != "MACRO_DEFINITION":
                self._children(cursor, scope, local)
        elif kind in ("OBJC_SYNTHESIZE_DECL", "OBJC_DYNAMIC_DECL"):
            name = cursor.spelling
            self._add(place, [name], "method", cursor, scope, False)
            self._add(place, [_setter(name)], "method", cursor, scope, False)
        elif kind in _OPTIONAL:
            self._add(place, [truth.plain_name(cursor.spelling)], "other", cursor, scope, False)
        else:
            if kind == "UNEXPOSED_DECL":
                self._unexposed(cursor, place, scope, local)
            self._children(cursor, scope, local)

    def _is_definition(self, cursor):
        return bool(self._lib.clang_isCursorDefinition(cursor))

    def _scope(self, cursor, kind, place, scope, local):
        """A type, a namespace or what Objective-C has in their place."""
        found = place[0]
        need = self._is_definition(cursor) or kind in _OBJC
        if kind in _TYPES and need and not local and self._is_instantiation(found, cursor):
            need = False
        if kind in ("OBJC_INTERFACE_DECL", "OBJC_PROTOCOL_DECL"):
            # Not a forward declaration. A definition, for clang, is the implementation.
            need = self._extent_text(found, cursor).endswith(b"@end")
        name = truth.plain_name(cursor.spelling)
        names = self._objc_names(cursor, kind, name)
        if kind in _OBJC:
            extent = cursor.extent
            self._containers.append((found, self._place(extent.start)[1],
                                     self._place(extent.end)[1], names))
        if not name and names[0]:  # A class extension.
            self._add(place, [names[-1], names[0]], "category", cursor, scope, False)
        elif name and not name.startswith("("):
            self._add(place, names, _TYPES.get(kind) or _OBJC.get(kind) or "namespace", cursor,
                      scope, need and not local)
        self._children(cursor, scope + (names[0],), local)

    def _function(self, cursor, place, scope, local):
        defined, spelling = self._is_definition(cursor), cursor.spelling
        is_friend = bool(scope) and scope[-1] == "friend"
        if spelling.startswith("<deduction guide for "):
            self._add(place, [spelling[len("<deduction guide for "):-1]], "function", cursor, scope,
                      False)
        else:
            self._add(place, [truth.plain_name(spelling)], "function", cursor, scope,
                      not local and (defined or not is_friend))
        if defined:
            self._children(cursor, scope + ("()",), True)

    def _unexposed(self, cursor, place, scope, local):
        """Concepts, variable templates and the names of a structured binding have no kind of
        cursor of their own; the text before the name decides."""
        found, _, offset = place
        spelling = cursor.spelling
        if not spelling or spelling[0] in "[(":
            return
        head = self._reader.text(found.path)[max(0, offset - 400):offset]
        if re.search(rb"\bconcept\s+$", head):
            self._add(place, [spelling], "concept", cursor, scope, not local)
        elif spelling.isidentifier() and not re.search(rb"[\[,]\s*$", head):
            self._add(place, [spelling], "variable", cursor, scope, not local)
        else:
            self._add(place, [spelling], "other", cursor, scope, False)

    def _property(self, cursor, place, scope):
        """A renamed getter counts as the property; setters may be tagged."""
        name = cursor.spelling
        words = []
        for token in cursor.get_tokens():
            if token.spelling == name:
                break
            words.append(token.spelling)
        accessors = {before: after for before, after in zip(words, words[2:])
                     if before in ("getter", "setter")}
        self._add(place, [name, accessors.get("getter", "")], "property", cursor, scope, True)
        setter = accessors.get("setter", _setter(name))
        self._add(place, [setter, setter + ":"], "method", cursor, scope, False)

    def _last_line(self, cursor, line):
        """The line in which the head of a method ends."""
        last = self._place(cursor.extent.end)[1]
        for child in cursor.get_children():
            if self._names.get(child._kind_id) == "COMPOUND_STMT":
                last = self._place(child.extent.start)[1]
        return max(line, last)

    def _objc_names(self, cursor, kind, name):
        if kind not in ("OBJC_CATEGORY_DECL", "OBJC_CATEGORY_IMPL_DECL"):
            return [name]
        owner = ""
        for child in cursor.get_children():
            if self._names.get(child._kind_id) == "OBJC_CLASS_REF":
                owner = child.spelling
                break
        return ["%s(%s)" % (owner, name), name, owner]

    def _is_instantiation(self, found, cursor):
        """Whether a type is only instantiated here: `template class A<int>;` has no body."""
        text = self._extent_text(found, cursor)
        return bool(text) and b"{" not in text

    def _extent_text(self, found, cursor):
        extent = cursor.extent
        start, end = self._place(extent.start)[2], self._place(extent.end)[2]
        return self._reader.text(found.path)[start:end]

    def _made(self, found, offset, name):
        """Whether the text at `offset` is not the name that is declared there: a macro made it."""
        text = self._reader.text(found.path)
        word = re.match(rb"[\w$~]+|operator", name)
        return bool(word) and not text.startswith(word.group(), offset)

    def _add(self, place, names, kind, cursor, scope, need, last=None):
        found, line, offset = place
        names = [name for name in names if name]
        if not names:
            return
        parents = self._parents(cursor, scope)
        made = need and kind != "category" and self._made(found, offset, names[0].encode())
        found.add(line, names, kind, parents, truth.MADE if made else
                  truth.NEEDED if need else truth.OPTIONAL, last)

    def _parents(self, cursor, scope):
        """The innermost named scopes that a tag may name: where the name belongs, and where it
        is written."""
        parents = []
        lexical = [name for name in scope if name not in ("()", "friend")]
        parents.append(next((name for name in reversed(lexical) if name and name[0] != "("), ""))
        parent = self._lib.clang_getCursorSemanticParent(cursor)
        inner = True
        while parent is not None:
            parent._tu = self._unit
            kind = self._names.get(parent._kind_id, "")
            name = truth.plain_name(parent.spelling) if kind in _NAMED_SCOPES else ""
            if kind == "TRANSLATION_UNIT" or kind.startswith("INVALID"):
                break
            if name and name[0] != "(":
                parents.append(name)
                if not (kind == "NAMESPACE" and self._is_inline(parent)):
                    inner = False
                    break
            parent = self._lib.clang_getCursorSemanticParent(parent)
        if inner and parent is not None:
            parents.append("")
        return tuple(dict.fromkeys(parents))

    def _is_inline(self, cursor):
        return bool(self._lib.clang_Cursor_isInlineNamespace(cursor))
