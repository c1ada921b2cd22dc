# SPDX-License-Identifier: MIT
"""The corpora: where they are, which package brings them, and how a compiler reads them."""
import fnmatch
import glob
import os

_CXX_HEADERS = ("*.h", "*.hh", "*.hpp", "*.hxx", "*.ipp", "*.inl", "*.tcc", "*.inc", "*.def")


class Corpus:
    """One row of the results.

    `package` brings the files. `folders` are searched for files whose name matches `patterns`, or
    that have no suffix where `bare` is set; parts of paths in `without` are left out.
    `configurations` are lists of flags for the compiler, all of which are tried. `ctags` is what
    ctags has to be told to read the files as the language they are; None if it has no such
    language. `stubs` says that headers outside the corpus are missing, and what they would declare
    has to be guessed. `{npm}` in a flag is the folder of npm's packages.
    """

    def __init__(self, name, title, package, folders, language="c++", patterns=_CXX_HEADERS,
                 bare=False, without=(), configurations=((),), ctags=("--langmap=C++:+.h.inc.def",),
                 stubs=False, npm=False, most=None):
        self.name, self.title, self.package, self.folders = name, title, package, folders
        self.language, self.patterns, self.bare, self.without = language, patterns, bare, without
        self.configurations, self.ctags, self.stubs = configurations, ctags, stubs
        self.npm, self.most = npm, most

    def files(self, npm=None):
        """The files, links resolved, in a fixed order; an npm corpus lies below `npm`."""
        tops = []
        for folder in self.folders:
            if self.npm:
                folder = os.path.join(npm, folder) if npm else ""
            tops += sorted(glob.glob(folder)) if folder else []
        found = {}
        for top in tops:
            for path in _walk(top):
                if self._takes(path, top):
                    found[os.path.realpath(path)] = True
        paths = list(found)
        if self.most and len(paths) > self.most:
            step = len(paths) / self.most
            paths = [paths[int(index * step)] for index in range(self.most)]
        return paths

    def headers(self, npm):
        """All headers of the packages that the corpus comes from."""
        tops = {os.path.join(npm, *folder.split("/")[:2 if folder.startswith("@") else 1])
                for folder in self.folders}
        return [path for top in sorted(tops) for path in _walk(top)
                if path.endswith((".h", ".hpp"))]

    def _takes(self, path, top):
        name = os.path.basename(path)
        if any(fnmatch.fnmatch(path[len(os.path.dirname(top)):], part) for part in self.without):
            return False
        if self.bare and "." not in name:
            return True
        return any(fnmatch.fnmatch(name, pattern) for pattern in self.patterns)


def _walk(top):
    if os.path.isfile(top):
        yield top
        return
    for folder, names, files in os.walk(top):
        names.sort()
        for name in sorted(files):
            path = os.path.join(folder, name)
            if os.path.isfile(path):
                yield path


def _newest(pattern):
    """The path of the newest version that is installed, or the pattern."""
    return (sorted(glob.glob(pattern)) or [pattern])[-1]


def _standards(*names, more=()):
    return tuple(("-std=" + name, *more) for name in names)


_LIBCXX = ("-nostdinc++", "-isystem", "/usr/lib/llvm-14/include/c++/v1")
_QT = "/usr/include/x86_64-linux-gnu/qt5"
_QT_MODULES = ("QtCore", "QtGui", "QtWidgets", "QtNetwork", "QtDBus", "QtSql", "QtXml", "QtTest",
               "QtConcurrent", "QtPrintSupport")
# The folder of the build's settings.
_WX = "-I" + _newest("/usr/lib/*/wx/include/*-3.2")
_GLIB = ("-I/usr/include/glib-2.0", "-I/usr/lib/x86_64-linux-gnu/glib-2.0/include",
         "-I/usr/include/gio-unix-2.0")
_POSTGRES = _newest("/usr/include/postgresql/*/server")
_KERNEL = _newest("/usr/src/linux-headers-*-common")
_KERNEL_BUILD = _newest("/usr/src/linux-headers-*-amd64")
_KERNEL_FLAGS = ("-std=gnu11", "-nostdinc", "-D__KERNEL__", "-fshort-wchar", "-fms-extensions",
                 "-I" + _KERNEL + "/arch/x86/include",
                 "-I" + _KERNEL_BUILD + "/arch/x86/include/generated", "-I" + _KERNEL + "/include",
                 "-I" + _KERNEL_BUILD + "/include", "-I" + _KERNEL + "/arch/x86/include/uapi",
                 "-I" + _KERNEL_BUILD + "/arch/x86/include/generated/uapi",
                 "-I" + _KERNEL + "/include/uapi", "-I" + _KERNEL_BUILD + "/include/generated/uapi",
                 "-include", "linux/compiler-version.h", "-include", "linux/kconfig.h",
                 "-include", "linux/compiler_types.h", "-include", "linux/types.h")
# For objc/objc.h, which libobjc-12-dev brings.
_GCC_INCLUDE = _newest("/usr/lib/gcc/x86_64-linux-gnu/*/include")
_GNUSTEP = ("-fobjc-runtime=gcc", "-fblocks", "-fconstant-string-class=NSConstantString",
            "-DGNUSTEP", "-DGNUSTEP_BASE_LIBRARY=1", "-DGNU_RUNTIME=1", "-DGNUSTEP_GUI_LIBRARY=1",
            "-I/usr/include/GNUstep", "-idirafter", _GCC_INCLUDE)
_C_CTAGS = ("--langmap=C:+.h",)
# What Apple's headers define and GNUstep's do not.
_APPLE = ("-fobjc-runtime=ios-14.0", "-fblocks", "-fobjc-arc", "-fobjc-weak", "-D__unused=",
          "-idirafter", _GCC_INCLUDE,
          "-D__nullable=_Nullable", "-D__null_unspecified=", "-D__used=",
          "-D__OSX_AVAILABLE(...)=", "-D__deprecated_msg(x)=", "-I/usr/include/GNUstep",
          "-D__APPLE__",
          "-DTARGET_OS_IOS=1", "-DTARGET_OS_IPHONE=1", "-DNS_DESIGNATED_INITIALIZER=",
          "-DNS_REQUIRES_SUPER=", "-DNS_SWIFT_NAME(x)=", "-DNS_SWIFT_UI_ACTOR=",
          "-DNS_UNAVAILABLE=", "-DAPI_AVAILABLE(...)=", "-DAPI_UNAVAILABLE(...)=",
          "-DAPI_DEPRECATED(...)=", "-DNS_SWIFT_UNAVAILABLE(x)=", "-DNS_REFINED_FOR_SWIFT=",
          "-DNS_SWIFT_SENDABLE=", "-DNS_NOESCAPE=", "-DIBOutlet=", "-DIBAction=void",
          "-DIBInspectable=", "-DUI_APPEARANCE_SELECTOR=",
          "-DNS_CLOSED_ENUM(t,n)=enum n : t n; enum n : t",
          "-DNS_ERROR_ENUM(t,n)=enum n : int n; enum n : int", "-DNS_TYPED_ENUM=",
          "-DNS_TYPED_EXTENSIBLE_ENUM=", "-DNS_STRING_ENUM=", "-DNS_EXTENSIBLE_STRING_ENUM=",
          "-DNS_ENUM_AVAILABLE_IOS(x)=", "-DNS_AVAILABLE_IOS(...)=", "-DNS_DEPRECATED_IOS(...)=",
          "-DNS_CLASS_AVAILABLE_IOS(...)=", "-DNS_VALID_UNTIL_END_OF_SCOPE=",
          "-DCG_BOXABLE=", "-DCA_BOXABLE=", "-DUIKIT_EXTERN=extern", "-DNS_ROOT_CLASS=")

CORPORA = [
    Corpus("libstdcxx", "libstdc++ 12", "libstdc++-12-dev", ["/usr/include/c++/12"], bare=True,
           without=("*/ext/pb_ds/*", "*/testsuite/*"), ctags=("--language-force=C++",),
           configurations=_standards("gnu++20", "gnu++2b", "gnu++17", "gnu++98")),
    Corpus("libcxx", "libc++ 14", "libc++-14-dev", ["/usr/lib/llvm-14/include/c++/v1"], bare=True,
           without=("*/__support/*",), ctags=("--language-force=C++",),
           configurations=_standards("gnu++20", "gnu++17", "gnu++03", more=_LIBCXX)),
    Corpus("fmt", "fmt", "libfmt-dev", ["/usr/include/fmt"],
           configurations=_standards("gnu++20", "gnu++14") + (
               ("-std=c++17", "-DFMT_HEADER_ONLY"),)),
    Corpus("abseil", "Abseil, headers", "libabsl-dev", ["/usr/include/absl"],
           configurations=_standards("gnu++17", "gnu++20", "gnu++14")),
    Corpus("json", "JSON for Modern C++", "nlohmann-json3-dev", ["/usr/include/nlohmann"],
           configurations=_standards("gnu++20", "gnu++11")),
    Corpus("spdlog", "spdlog", "libspdlog-dev", ["/usr/include/spdlog"],
           configurations=_standards("gnu++17", more=("-DSPDLOG_FMT_EXTERNAL",)) + (
               ("-std=gnu++11", "-DSPDLOG_COMPILED_LIB", "-DSPDLOG_FMT_EXTERNAL"),)),
    Corpus("range", "range-v3", "librange-v3-dev",
           ["/usr/include/range", "/usr/include/meta", "/usr/include/concepts"],
           configurations=_standards("gnu++17", "gnu++20")),
    Corpus("tbb", "oneTBB", "libtbb-dev", ["/usr/include/oneapi"],
           configurations=_standards("gnu++17", "gnu++20",
                                     more=("-DTBB_PREVIEW_TASK_GROUP_EXTENSIONS=1",))),
    Corpus("eigen", "Eigen", "libeigen3-dev", ["/usr/include/eigen3/Eigen"], bare=True,
           ctags=("--language-force=C++",),
           configurations=(("-std=gnu++14", "-I/usr/include/eigen3"),)),
    Corpus("boost", "Boost, a part", "libboost1.74-dev",
           ["/usr/include/boost/" + name for name in (
               "container", "intrusive", "filesystem", "iostreams", "multi_index",
               "program_options", "smart_ptr", "property_tree", "date_time", "format", "any.hpp",
               "optional", "variant", "heap", "lockfree", "circular_buffer")],
           configurations=_standards("gnu++17")),
    Corpus("qt", "Qt 5", "qtbase5-dev", [_QT + "/" + name for name in _QT_MODULES],
           configurations=(("-std=gnu++17", "-fPIC", "-I" + _QT,
                            *("-I%s/%s" % (_QT, name) for name in _QT_MODULES)),)),
    Corpus("llvm", "LLVM 14", "llvm-14-dev",
           ["/usr/include/llvm-14/llvm/" + name for name in ("ADT", "Support", "IR", "Analysis")],
           patterns=("*.h",), configurations=(
               ("-std=gnu++14", "-I/usr/include/llvm-14", "-I/usr/include/llvm-c-14"),)),
    Corpus("protobuf", "Protocol Buffers", "libprotobuf-dev", ["/usr/include/google/protobuf"],
           configurations=_standards("gnu++17")),
    Corpus("capnp", "Cap'n Proto", "libcapnp-dev", ["/usr/include/capnp", "/usr/include/kj"],
           configurations=_standards("gnu++20")),
    Corpus("cryptopp", "Crypto++", "libcrypto++-dev", ["/usr/include/crypto++"],
           configurations=_standards("gnu++17")),
    Corpus("botan", "Botan", "libbotan-2-dev", ["/usr/include/botan-2"],
           configurations=_standards("gnu++17", more=("-I/usr/include/botan-2",))),
    Corpus("poco", "POCO", "libpoco-dev", ["/usr/include/Poco"],
           configurations=_standards("gnu++17")),
    Corpus("opencv", "OpenCV, core", "libopencv-core-dev", ["/usr/include/opencv4/opencv2"],
           configurations=_standards("gnu++17", more=("-I/usr/include/opencv4",))),
    Corpus("wx", "wxWidgets", "libwxgtk3.2-dev", ["/usr/include/wx-3.2"],
           configurations=(("-std=gnu++17", "-I/usr/include/wx-3.2", _WX, "-D__WXGTK__",
                            "-D_FILE_OFFSET_BITS=64", "-DWXUSINGDLL", "-include", "wx/wx.h"),)),
    Corpus("osg", "OpenSceneGraph", "libopenscenegraph-dev",
           ["/usr/include/" + name for name in ("osg", "osgUtil", "osgDB", "osgGA", "osgText",
                                                "osgViewer", "OpenThreads")],
           bare=True, ctags=("--language-force=C++",), configurations=_standards("gnu++14")),
    Corpus("re2", "RE2 and Abseil, sources", "re2", ["re2/vendor"],
           patterns=_CXX_HEADERS + ("*.cc",), npm=True,
           without=("*_test.cc", "*benchmark*", "*/testing/*", "*/fuzzing/*"),
           configurations=(("-std=gnu++17", "-I{npm}/re2/vendor/abseil-cpp",
                            "-I{npm}/re2/vendor/re2"),)),
    Corpus("sqlite", "SQLite", "better-sqlite3", ["better-sqlite3/deps/sqlite3"], "c",
           ("*.c", "*.h"), npm=True, ctags=_C_CTAGS,
           configurations=(("-std=gnu11",), ("-std=gnu11", "-DSQLITE_DEBUG", "-DSQLITE_ENABLE_FTS5",
                                             "-DSQLITE_ENABLE_RTREE", "-DSQLITE_ENABLE_SESSION",
                                             "-DSQLITE_ENABLE_PREUPDATE_HOOK"))),
    Corpus("tree-sitter", "tree-sitter", "tree-sitter", ["tree-sitter/vendor/tree-sitter/lib"], "c",
           ("*.c", "*.h"), npm=True, ctags=_C_CTAGS,
           configurations=(("-std=gnu11",
                            "-I{npm}/tree-sitter/vendor/tree-sitter/lib/src",
                            "-I{npm}/tree-sitter/vendor/tree-sitter/lib/include"),)),
    Corpus("yoga", "Yoga", "react-native", ["react-native/ReactCommon/yoga"],
           patterns=_CXX_HEADERS + ("*.cpp",), npm=True,
           configurations=(("-std=gnu++20", "-I{npm}/react-native/ReactCommon/yoga"),)),
    Corpus("kernel", "Linux headers", "linux-headers-amd64",
           [_KERNEL + "/include/linux", _KERNEL + "/include/net"], "c", ("*.h",), ctags=_C_CTAGS,
           configurations=(_KERNEL_FLAGS,)),
    Corpus("uapi", "Linux headers for programs", "linux-libc-dev", ["/usr/include/linux"], "c",
           ("*.h",), ctags=_C_CTAGS, configurations=(("-std=gnu11",),)),
    Corpus("uv", "libuv", "libuv1-dev", ["/usr/include/uv.h", "/usr/include/uv"], "c", ("*.h",),
           ctags=_C_CTAGS, configurations=(("-std=gnu11",),)),
    Corpus("glibc", "GNU C library", "libc6-dev",
           ["/usr/include/" + name for name in (
               "stdio.h", "stdlib.h", "string.h", "math.h", "wchar.h", "unistd.h", "signal.h",
               "pthread.h", "time.h", "netdb.h", "search.h", "regex.h", "elf.h", "link.h",
               "x86_64-linux-gnu/bits", "x86_64-linux-gnu/sys", "net", "netinet", "arpa")], "c",
           ("*.h",), ctags=_C_CTAGS, configurations=(("-std=gnu11", "-D_GNU_SOURCE"),)),
    Corpus("glib", "GLib", "libglib2.0-dev", ["/usr/include/glib-2.0"], "c", ("*.h",),
           ctags=_C_CTAGS, configurations=(("-std=gnu11", *_GLIB, "-include", "glib.h"),)),
    Corpus("magick", "ImageMagick", "libmagick++-6-headers", ["/usr/include/ImageMagick-6"], "c",
           ("*.h",), without=("*/Magick++*",), ctags=_C_CTAGS,
           configurations=(("-std=gnu11", "-I/usr/include/ImageMagick-6",
                            "-I/usr/include/x86_64-linux-gnu/ImageMagick-6",
                            "-DMAGICKCORE_QUANTUM_DEPTH=16", "-DMAGICKCORE_HDRI_ENABLE=0",
                            "-include", "magick/MagickCore.h"),)),
    Corpus("nss", "NSS", "libnss3-dev", ["/usr/include/nss", "/usr/include/nspr"], "c", ("*.h",),
           ctags=_C_CTAGS, configurations=(("-std=gnu11", "-I/usr/include/nss",
                                            "-I/usr/include/nspr"),)),
    Corpus("postgres", "PostgreSQL", "postgresql-server-dev-15", [_POSTGRES], "c", ("*.h",),
           ctags=_C_CTAGS, configurations=(("-std=gnu11", "-D_GNU_SOURCE", "-I" + _POSTGRES,
                                            "-include", "postgres.h"),)),
    Corpus("sass", "LibSass, sources", "node-sass",
           ["node-sass/src/libsass/src", "node-sass/src/libsass/include"],
           patterns=_CXX_HEADERS + ("*.cpp",), npm=True,
           configurations=(("-std=gnu++17", "-I{npm}/node-sass/src/libsass/include"),)),
    Corpus("c", "curl and zlib, headers", "libcurl4-openssl-dev, zlib1g-dev",
           ["/usr/include/x86_64-linux-gnu/curl", "/usr/include/zlib.h", "/usr/include/zconf.h",
            "/usr/include/x86_64-linux-gnu/openssl", "/usr/include/openssl"], "c", ("*.h",),
           ctags=_C_CTAGS, configurations=(("-std=gnu11",),)),
    Corpus("gnustep", "GNUstep headers", "libgnustep-gui-dev", ["/usr/include/GNUstep"], "objc",
           ("*.h",), ctags=("--language-force=ObjectiveC",),
           configurations=((*_GNUSTEP, "-include", "Foundation/Foundation.h",
                          "-include", "AppKit/AppKitDefines.h"),)),
    Corpus("objc", "Objective-C sources", "react-native, expo-modules-core, @capacitor/ios",
           ["react-native/React", "react-native/Libraries", "expo-modules-core/ios",
            "@capacitor/ios"], "objc", ("*.m",), npm=True, stubs=True,
           ctags=("--language-force=ObjectiveC",),
           configurations=((*_APPLE, "-include", "Foundation/Foundation.h"),)),
    Corpus("objcxx", "Objective-C++ sources",
           "react-native-screens, react-native-svg, react-native-gesture-handler",
           ["react-native-screens/ios", "react-native-svg/apple",
            "react-native-gesture-handler/apple"], "objc", ("*.mm",), npm=True, stubs=True,
           ctags=("--language-force=ObjectiveC",),
           configurations=((*_APPLE, "-include", "Foundation/Foundation.h"),)),
    Corpus("python", "Python's library", "libpython3.11-stdlib", ["/usr/lib/python3.11"], "python",
           ("*.py",), ctags=("--languages=Python",)),
    Corpus("python3", "Python packages of Debian", "python3-*", ["/usr/lib/python3"], "python",
           ("*.py",), ctags=("--languages=Python",)),
    Corpus("swift", "Swift", "expo-modules-core, expo-modules-jsi, @capacitor/ios, react-native",
           ["*", "@*/*"], "swift", ("*.swift",), ctags=None, npm=True),
]
