// SPDX-License-Identifier: MIT
// Tests of reading Swift declarations without a grammar.
#include "thorough/swift_declarations.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>

#include "swift/swift_scanner.h"
#include "thorough/swift_text.h"

namespace vexltags::thorough {
namespace {

/// The tags of `source`, each as "name:line:kind:scope" without what is empty, joined by blanks.
std::string Tags(const std::string& source) {
  SwiftText text;
  std::string& copy = text.Simplify(source);
  unsigned char name[] = "test";
  const pANTLR3_INPUT_STREAM input =
      antlr3StringStreamNew(reinterpret_cast<pANTLR3_UINT8>(copy.data()), ANTLR3_ENC_8BIT,
                            static_cast<ANTLR3_UINT32>(copy.size()), name);
  std::string result;
  {
    TokenTable table(input);
    const auto* begin = reinterpret_cast<const unsigned char*>(copy.data());
    ScanCursor cursor{begin, begin + copy.size(), begin, 1, begin, 0};
    ScanSwift(cursor, table);
    EXPECT_EQ(cursor.at, cursor.end) << source;
    table.Finish(cursor.line);
    const Options options;
    Dumper dumper;
    SwiftTagsParser builder(options, dumper, "");
    SwiftDeclarations(table, source, builder).ReadAll();
    for (std::string line : dumper.Lines()) {
      line.pop_back();
      // NAME tab FILE tab LINE;" tab KIND, and maybe tab SCOPE.
      std::string tag;
      std::size_t field = 0;
      for (std::size_t from = 0; from <= line.size(); ++field) {
        const std::size_t tab = std::min(line.find('\t', from), line.size());
        const std::string piece = line.substr(from, tab - from);
        if (field == 2) {
          tag += ":" + piece.substr(0, piece.find(';'));
        } else if (field != 1) {
          tag += (field == 0 ? "" : ":") + piece;
        }
        from = tab + 1;
      }
      result += (result.empty() ? "" : " ") + tag;
    }
  }
  input->close(input);
  return result;
}

TEST(SwiftDeclarations, ReadsEveryKind) {
  EXPECT_EQ(Tags("class A {}\nactor B {}\nstruct C {}\nprotocol D {}\nenum E {}\nextension F {}"),
            "A:1:c B:2:c C:3:s D:4:Y E:5:g F:6:Z");
  EXPECT_EQ(Tags("let a = 1\nvar b: Int\ntypealias C = Int\nfunc d() {}"),
            "a:1:b b:2:V C:3:t d():4:f");
  EXPECT_EQ(Tags("struct S {\n init() {}\n deinit {}\n subscript(i: Int) -> Int { 1 }\n}"),
            "S:1:s init():2:f:S deinit:3:f:S subscript():4:f:S");
  EXPECT_EQ(Tags("protocol P<T> { associatedtype T: Q = R }\n@M macro m(_ a: A) = #x(\"\")"),
            "P:1:Y T:1:t:P m(_):2:f");
}

TEST(SwiftDeclarations, ReadsLabels) {
  EXPECT_EQ(Tags("func f(a: Int, _ b: [Int] = [1, 2], c d: (Int, Int)...) {}"), "f(a:,_,c:):1:f");
  EXPECT_EQ(Tags("func f(a: D<A, B>, b: (C, D) -> E = { x, y in z }, c: Int = p < q ? r : s) {}"),
            "f(a:,b:,c:):1:f");
  EXPECT_EQ(
      Tags("func f<T: A & B>(a: borrowing T, for b: sending T = D<A, B>()) async throws(E) {}"),
      "f(a:,for:):1:f");
  EXPECT_EQ(Tags("func f(`in` a: @Sendable (Int) -> Void, inout: Int,)"), "f(`in`:,inout:):1:f");
}

TEST(SwiftDeclarations, ReadsOperators) {
  EXPECT_EQ(
      Tags("func == (a: A, b: A) {}\nfunc <<T>(a: T) {}\nfunc <= <T>(a: T) {}\nfunc ..<(a: A)"),
      "==(a:,b:):1:f <(a:):2:f <=(a:):3:f ..<(a:):4:f");
  EXPECT_EQ(Tags("prefix func \xE2\x88\x9A(a: A) {}\nfunc !\xE2\x89\x88= (a: A)\nfunc / (a: A)"),
            "\xE2\x88\x9A(a:):1:f !\xE2\x89\x88=(a:):2:f /(a:):3:f");
  EXPECT_EQ(Tags("infix operator ==\nfunc f() {}"), "f():2:f");
}

TEST(SwiftDeclarations, ReadsModifiersInAnyOrder) {
  EXPECT_EQ(
      Tags("final public class A { class func f() {}\n override open class var x: Int { 1 } }"),
      "A:1:c f():1:f:A x:2:V:A");
  EXPECT_EQ(Tags("package(set) nonisolated(unsafe) static var a = 1\nprivate\nlet b = 2"),
            "a:1:V b:3:b");
  EXPECT_EQ(Tags("distributed actor A {}\nclass open { class open {} }"),
            "A:1:c open:2:c open:2:c:open");
  EXPECT_EQ(Tags("open(set)\nlet a = public\n  .b"), "a:2:b");
}

TEST(SwiftDeclarations, ReadsBindings) {
  EXPECT_EQ(Tags("let a = 1, b: D<A, B> = D<A, B>(), c = p < q, d"), "a:1:b b:1:b c:1:b d:1:b");
  EXPECT_EQ(Tags("var a, b: Int\nlet (c, (d, _)) = e, (f: g, h) = i\nlet _ = j"),
            "a:1:V b:1:V c:2:b d:2:b g:2:b h:2:b");
  EXPECT_EQ(Tags("var a: Int = 1 { didSet { let b = 2 } }\nvar c: Int\n{ get set }\nlet d = e { "
                 "let f }.g"),
            "a:1:V c:2:V d:4:b");
}

TEST(SwiftDeclarations, ReadsEnums) {
  EXPECT_EQ(Tags("enum E: Int { case a = 1, b\n indirect case c(x: Int, E), d; case e }"),
            "E:1:g a:1:e:enum:E b:1:e:enum:E c:2:e:enum:E d:2:e:enum:E e:2:e:enum:E");
  EXPECT_EQ(Tags("enum E { struct S { let x = 1 }\n case a\n func f() { switch self { case .a: 1 } "
                 "}\n case b }"),
            "E:1:g S:1:s:E x:1:b:E.S a:2:e:enum:E f():3:f:E b:4:e:enum:E");
}

TEST(SwiftDeclarations, ReadsExtensionsOfAnyType) {
  EXPECT_EQ(Tags("extension A<B>.C: @retroactive D where E == F {}"), "A.C:1:Z");
  EXPECT_EQ(Tags("extension [Int: A] { var b: Int { 1 } }"), "[Int: A]:1:Z b:1:V:[Int: A]");
}

TEST(SwiftDeclarations, SkipsStatements) {
  EXPECT_EQ(Tags("print(1)\nif let a = b,\n  let c = d {\n let e = 1\n} else if let f = g "
                 "{\n}\nlet h = 1"),
            "h:7:b");
  EXPECT_EQ(
      Tags("guard let a = b else { return }\nfor x in y { }\nrepeat { } while a < b\nlet c = 1"),
      "c:4:b");
  EXPECT_EQ(Tags("switch a { case let b: c }\nlet d = if e { f }\n  else { g }\nfunc h() {}"),
            "d:2:b h():4:f");
  EXPECT_EQ(Tags("import struct A.B\npublic import C\n#Preview { let d = 1 }\nlet e = .init(f: g)"),
            "e:4:b");
}

TEST(SwiftDeclarations, ReadsOnAfterDamage) {
  EXPECT_EQ(Tags("}\nlet a = )\nlet b = 1"), "a:2:b b:3:b");
  EXPECT_EQ(Tags("func f(\nlet b = 1"), "b:2:b");
  EXPECT_EQ(Tags("class A\nclass B {\n let a = (\n}\nlet c = 1"), "B:2:c a:3:b:B c:5:b");
  EXPECT_EQ(Tags("class"), "");
  EXPECT_EQ(Tags("func f() { {\nlet a = 1 }\nlet b = 2"), "f():1:f b:3:b");
}

TEST(SwiftDeclarations, ReadsLongRunsInLinearTime) {
  for (const char* piece : {"a<", "public\n", "let a = b<c<", "func a<", "extension a<\n", "(", "{",
                            "}", "case a,", "let a,", "class ", "enum a {", "init(", ",a:b"}) {
    std::string source = "let x = ";
    for (int i = 0; i < 50000; ++i) source += piece;
    EXPECT_EQ(Tags(source).substr(0, 5), "x:1:b") << piece;
  }
}

TEST(SwiftDeclarations, EndsUnclosedCurliesByIndentation) {
  EXPECT_EQ(
      Tags("class A {\n  func b() {\n    if c {\n  }\n  func d() {\n    e()\n  }\n}\nvar f = 1"),
      "A:1:c b():2:f:A d():5:f:A f:9:V")
      << "the body of a function";
  EXPECT_EQ(Tags("class A {\n  let b = 1\n\nclass C {\n  let d = 2\n}\n"),
            "A:1:c b:2:b:A C:4:c d:5:b:C")
      << "the body of a type";
  EXPECT_EQ(Tags("class A {\n  class B {\n    func c() {\nfunc d() {\n  e()\n}\n"),
            "A:1:c B:2:c:A c():3:f:A.B d():4:f")
      << "several at once";
}

TEST(SwiftDeclarations, DoesNotEndCurliesThatAreClosed) {
  EXPECT_EQ(Tags("class A {\n  let b = 1\nlet c = 2\n}\nlet d = {"), "A:1:c b:2:b:A c:3:b:A d:5:b")
      << "one declaration farther to the left";
}

TEST(SwiftDeclarations, EndsNoCurliesWithoutIndentation) {
  EXPECT_EQ(Tags("class A {\nfunc b() {\nif c {\n}\n}\nlet d = 1\n"), "A:1:c b():2:f:A d:6:b:A");
}

}  // namespace
}  // namespace vexltags::thorough
