// SPDX-License-Identifier: MIT
// Tests of rewriting declarations for the grammar of the C family.
#include "thorough/declaration_repair.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "testing/main_words.h"

namespace vexltags::thorough {
namespace {

using testing_support::MainText;

struct Case {
  const char* source;
  const char* repaired;
};

/// Expects each source to become what is next to it, and the result to say whether that is a
/// change.
void ExpectRepairs(DeclarationEnd end, const DeclarationPlace& place,
                   const std::vector<Case>& cases) {
  for (const Case& one : cases) {
    const MainText text(one.source);
    EXPECT_TRUE(text.IsComplete()) << one.source;
    Words words = text.Words(end == DeclarationEnd::Semicolon || end == DeclarationEnd::Body);
    const std::string before = text.Show(words);
    const bool changed = RepairDeclaration(words, end, place);
    EXPECT_EQ(text.Show(words), one.repaired) << one.source;
    EXPECT_EQ(changed, before != one.repaired) << one.source;
  }
}

void ExpectRepairs(DeclarationEnd end, const std::vector<Case>& cases) {
  ExpectRepairs(end, {}, cases);
}

constexpr DeclarationPlace kInClass{true, false, false, false, "A", Dialect::Cxx};
constexpr DeclarationPlace kInObjc{false, true, false, false, "", Dialect::Unknown};
constexpr DeclarationPlace kInNamespace{false, false, true, false, "", Dialect::Cxx};
constexpr DeclarationPlace kInC{false, false, false, false, "", Dialect::C};

TEST(DeclarationRepair, LeavesNothingAsItIs) {
  Words none;
  EXPECT_FALSE(RepairDeclaration(none, DeclarationEnd::Other, {}));
  EXPECT_TRUE(none.empty());
}

TEST(DeclarationRepair, ReducesClassesToTheirNames) {
  ExpectRepairs(DeclarationEnd::ClassBody,
                {{"class A {", "class A {"},
                 {"class A : public B, C<int> {", "class A {"},
                 {"class API_EXPORT A final : public B {", "class A final {"},
                 {"class ALIGNED(16) A {", "class A {"},
                 {"class A OLD {", "class A {"},
                 {"struct AB {", "struct AB {"},
                 {"API class A {", "class A {"},
                 {"static const struct A {", "const struct A {"},
                 {"typedef struct {", "typedef struct {"},
                 {"class a::b::C {", "class a :: b :: C {"},
                 {"class ::a::C {", "class a :: C {"}});
}

TEST(DeclarationRepair, ReducesTemplateHeads) {
  ExpectRepairs(DeclarationEnd::ClassBody,
                {{"template <> struct A<int> : B {", "template < > struct A < int > {"},
                 {"template <class T = int, int N = f(1, 2)> class A {",
                  "template < class T , int N > class A {"},
                 {"template <class T = A<int, 3>, class U> class B {",
                  "template < class T , class U > class B {"},
                 {"template <class T> requires B<T> struct A {", "template < class T > struct A {"},
                 {"MAKE_TEMPLATE(typename T)(requires B<T>) struct A {", "struct A {"}});
}

TEST(DeclarationRepair, ReducesNamespaces) {
  ExpectRepairs(DeclarationEnd::NamespaceBody,
                {{"namespace a {", "namespace a {"},
                 {"namespace a::inline b {", "namespace a :: inline b {"},
                 {"namespace {", "namespace {"},
                 {"inline namespace a {", "inline namespace a {"},
                 {"API namespace a {", "namespace a {"},
                 {"namespace a VISIBLE {", "namespace a {"},
                 {"namespace a VISIBLE(x) {", "namespace a {"},
                 {"namespace VISIBLE a {", "namespace a {"},
                 {"extern \"C\" {", "extern \"C\" {"}});
}

TEST(DeclarationRepair, ReducesEnumsToNames) {
  ExpectRepairs(DeclarationEnd::EnumBody,
                {{"enum A { B };", "enum A { B } ;"},
                 {"enum class A : unsigned char { B };", "enum class A { B } ;"},
                 {"enum EXPORT A { B };", "enum A { B } ;"},
                 {"enum a::B { C };", "enum B { C } ;"},
                 {"enum class a::b::C { D };", "enum class C { D } ;"},
                 {"static enum A { B };", "enum A { B } ;"},
                 {"enum : int { B };", "enum { B } ;"}});
}

TEST(DeclarationRepair, ReducesEnumeratorsToNames) {
  ExpectRepairs(DeclarationEnd::EnumBody,
                {{"enum A { B = 1, C = f(2, 3), D };", "enum A { B , C , D } ;"},
                 {"enum A { B = X<1, 2>::value, C };", "enum A { B , C } ;"},
                 {"enum A { B OLD_SINCE(3), C OLD = 2, };", "enum A { B , C , } ;"},
                 {"enum A { MADE(B), C };", "enum A { C } ;"}});
}

TEST(DeclarationRepair, SplitsTheNamesAfterAnEnum) {
  ExpectRepairs(DeclarationEnd::EnumBody,
                {{"typedef enum { B } A;", "typedef enum { B } A ;"},
                 {"typedef enum A { B } C, D;", "typedef enum A { B } C ; typedef int D ;"},
                 {"typedef enum { B } OLD A;", "typedef enum { B } A ;"},
                 {"enum A { B } c;", "enum A { B } c ;"},
                 {"enum A { B = 1 } c;", "enum A { B } c ;"},
                 {"static enum A { B } c, *d;", "enum A { B } c ; int d ;"}});
  for (const DeclarationPlace& place : {kInClass, kInNamespace}) {
    ExpectRepairs(DeclarationEnd::EnumBody, place,
                  {{"typedef enum { B } A;", "enum { B } ; typedef int A ;"},
                   {"enum A { B } c, d;", "enum A { B } ; int c ; int d ;"},
                   {"typedef enum { B };", "typedef enum { B } ;"}});
  }
}

TEST(DeclarationRepair, ReducesTheNamesAfterAClass) {
  ExpectRepairs(DeclarationEnd::Semicolon, {{"} a;", "} a ;"},
                                            {"};", "} ;"},
                                            {"} a = {1, 2}, b = 3;", "} a , b ;"},
                                            {"} const a;", "} a ;"},
                                            {"} ALIGNED(4) a;", "} a ;"},
                                            {"} PACKED a;", "} a ;"},
                                            {"} PACKED *a;", "} * a ;"},
                                            {"} a OLD;", "} a ;"}});
}

TEST(DeclarationRepair, ReducesMethods) {
  ExpectRepairs(DeclarationEnd::Body, kInObjc,
                {{"- (void)a:(int)b c:(D *)d { e(); }", "- a : b c : d {}"}});
  ExpectRepairs(DeclarationEnd::Semicolon, kInObjc,
                {{"+ (id)a;", "+ a ;"},
                 {"- (void)a OLD_SINCE(3);", "- a ;"},
                 {"- (void)a:(int)b OLD;", "- a : b ;"},
                 {"- (void)a:(int)new;", "- a : new^ ;"}});
}

TEST(DeclarationRepair, ReducesProperties) {
  ExpectRepairs(DeclarationEnd::Semicolon, kInObjc,
                {{"@property (nonatomic, copy) NSArray<B *> *a;", "@property int a ;"},
                 {"@property (nonatomic, readonly) BOOL a;", "@property ( readonly ) int a ;"},
                 {"@property (copy) void (^a)(int);", "@property int a ;"},
                 {"@property int a OLD_SINCE(3);", "@property int a ;"},
                 {"@property int a OLD;", "@property int a ;"}});
}

TEST(DeclarationRepair, KeepsTheAccessorsOfProperties) {
  ExpectRepairs(DeclarationEnd::Semicolon, kInObjc,
                {{"@property (getter=isA, strong, setter=putA:) BOOL a;",
                  "@property ( getter= isA , setter= putA ) int a ;"}});
}

TEST(DeclarationRepair, ReducesTheHeadsOfInterfaces) {
  ExpectRepairs(DeclarationEnd::Other, {{"@interface A : B <C>", "@interface A"},
                                        {"@interface A <C, D>", "@interface A"},
                                        {"@interface A (B) <C>", "@interface A ( B )"},
                                        {"@interface A ()", "@interface A ( )"},
                                        {"@interface API_X A : B", "@interface A"},
                                        {"@interface A<T> : B<T>", "@interface A"},
                                        {"@implementation A", "@implementation A"},
                                        {"@protocol A <B>", "@protocol A"}});
  ExpectRepairs(DeclarationEnd::Semicolon, {{"@protocol A;", "@protocol A ;"}});
}

TEST(DeclarationRepair, LeavesOtherObjcWordsAsTheyAre) {
  ExpectRepairs(DeclarationEnd::Semicolon, kInObjc,
                {{"@synthesize a = b;", "@synthesize a = b ;"}});
}

TEST(DeclarationRepair, ReducesFunctions) {
  ExpectRepairs(DeclarationEnd::Body,
                {{"int f(int a, B b = {1, 2}) noexcept(true) { return 1; }", "int f ( ) {}"},
                 {"A::A(int b) : c(b) {}", "A :: A ( ) {}"},
                 {"int (f)(int a) {}", "int f ( ) {}"},
                 {"int (*f(A *a) const)(int) {}", "int f ( ) {}"},
                 {"char (&A::f())[3] {}", "char A :: f ( ) {}"},
                 {"template(typename T)(requires B<T>) void f(T) {}", "void f ( ) {}"},
                 {"MAKE_TEMPLATE(typename T)(requires B<T>) void f(T) {}", "void f ( ) {}"},
                 {"template <class T> requires B<T> void f(T) {}", "template < > void f ( ) {}"}});
  ExpectRepairs(DeclarationEnd::Semicolon, kInClass,
                {{"virtual void f(int) const = 0;", "virtual void f ( ) ;"},
                 {"A(int b);", "A ( ) ;"},
                 {"template <class T> void f(T);", "template < > void f ( ) ;"}});
}

TEST(DeclarationRepair, MakesMembersOfCalls) {
  ExpectRepairs(DeclarationEnd::Semicolon, kInClass,
                {{"CONSTANT(unsigned long, a = f(1, 2));", "unsigned long a ;"},
                 {"METHOD(void, f, (int a, B<c, d> e), (override));", "void f ( ) ;"},
                 {"METHOD(std::size_t, f, ());", "std :: size_t f ( ) ;"},
                 {"METHOD(f, void());", "int f ( ) ;"},
                 {"METHOD(f, A(B *));", "int f ( ) ;"},
                 {"METHOD(f, A(int, b));", "int f ( ) ;"},
                 {"METHOD(f, A());", ""},
                 {"METHOD(f, A(b, c));", ""},
                 {"CHECK(a, b);", ""},
                 {"CHECK(a == b, c = d);", ""},
                 {"CHECK(a, b, c);", ""},
                 {"CHECK();", ""}});
  ExpectRepairs(DeclarationEnd::Semicolon, {{"CONSTANT(int, a = 1);", ""}});
}

TEST(DeclarationRepair, ReducesOperators) {
  ExpectRepairs(DeclarationEnd::Semicolon, kInClass,
                {{"bool operator()(int) const;", "bool operator ( ) ( ) ;"},
                 {"B operator,(C);", "B operator ,^ ( ) ;"},
                 {"operator a::B() const;", "operator B ( ) ;"},
                 {"friend bool operator==(A, A) = default;", "friend bool operator == ( ) {}"}});
}

TEST(DeclarationRepair, GivesConversionsOutsideTheirClassAResult) {
  ExpectRepairs(DeclarationEnd::Body,
                {{"A::operator B() const {}", "auto A :: operator B ( ) {}"},
                 {"a::A<int>::operator B() {}", "auto a :: A < int > :: operator B ( ) {}"},
                 {"inline A::operator B() {}", "inline auto A :: operator B ( ) {}"},
                 {"bool A::operator!() {}", "bool A :: operator ! ( ) {}"}});
}

TEST(DeclarationRepair, RemovesInitialisers) {
  ExpectRepairs(DeclarationEnd::Semicolon, {{"int a;", "int a ;"},
                                            {"int a = 1, b = {2, 3}, c;", "int a , b , c ;"},
                                            {"int a = f(1, 2);", "int a ;"},
                                            {"A a{1};", "A a ;"},
                                            {"A a = B<1, 2>::c, d;", "A a , d ;"}});
}

TEST(DeclarationRepair, RemovesDefaultArguments) {
  ExpectRepairs(DeclarationEnd::Semicolon,
                {{"int f(A* a = 1, B* b = g(2, 3));", "int f ( A * a , B * b ) ;"},
                 {"int f(A* a = B<1, 2>::c, D* d);", "int f ( A * a , D * d ) ;"}});
}

TEST(DeclarationRepair, RemovesTheWidthsOfBitFields) {
  ExpectRepairs(DeclarationEnd::Semicolon, kInClass,
                {{"int a : 3;", "int a ;"},
                 {"int a : 3, b : (4 + 5);", "int a , b ;"},
                 {"int : 3;", ""},
                 {"int : 3, : 4;", ""},
                 {"int a : F(1), : 3, b : G(1, 2) + 1, : 4;", "int a , b ;"},
                 {"A : 3, override : 4;", "A override^ ;"}});
}

TEST(DeclarationRepair, ReducesTypedefs) {
  ExpectRepairs(DeclarationEnd::Semicolon, {{"typedef int A;", "typedef int A ;"},
                                            {"typedef B<int> *A;", "typedef int A ;"},
                                            {"typedef int (*A)(int);", "typedef int A ;"},
                                            {"typedef int A(int);", "typedef int A ;"},
                                            {"typedef char A[3][4];", "typedef int A ;"},
                                            {"typedef int A OLD;", "typedef int A ;"},
                                            {"typedef struct A B;", "typedef struct A B ;"}});
}

TEST(DeclarationRepair, ReducesAliases) {
  ExpectRepairs(DeclarationEnd::Semicolon,
                {{"using A = B<int>;", "using A = int ;"},
                 {"using A OLD = B;", "using A = int ;"},
                 {"using A = struct B;", "using A = struct B ;"},
                 {"using ::a::B;", "using a :: B ;"},
                 {"using namespace a;", "using namespace a ;"},
                 {"template <class T> using A = B<T>;", "template < > using A = int ;"}});
}

TEST(DeclarationRepair, ReducesConcepts) {
  ExpectRepairs(DeclarationEnd::Semicolon, {{"template <class T = int> concept A = B<T> && C<T>;",
                                             "template < class T > concept A = true ;"}});
}

TEST(DeclarationRepair, RemovesTheArgumentsOfVariables) {
  ExpectRepairs(DeclarationEnd::Semicolon, {{"template <class T> constexpr bool a<B<T>> = true;",
                                             "template < class T > constexpr bool a ;"}});
}

TEST(DeclarationRepair, RemovesWhatDeclaresNothingNew) {
  ExpectRepairs(DeclarationEnd::Semicolon, {{"template class A<int>;", ""},
                                            {"extern template class A<int>;", ""},
                                            {"template <class T> class A;", ""},
                                            {"MADE(a, b);", ""}});
  ExpectRepairs(DeclarationEnd::Body, {{"TEST(a, b) { c(); }", ""}});
}

TEST(DeclarationRepair, RemovesMacrosBeforeDeclarations) {
  ExpectRepairs(DeclarationEnd::Semicolon, {{"API_EXPORT int f();", "int f ( ) ;"},
                                            {"API(1) int a;", "int a ;"},
                                            {"extern API(1) int a;", "extern int a ;"},
                                            {"API_A API_B int a;", "int a ;"},
                                            {"OLD\nB a;", "B a ;"},
                                            {"list_of(int) a;", "list_of a ;"},
                                            {"API const int a;", "const int a ;"}});
}

TEST(DeclarationRepair, RemovesMacrosInDeclarations) {
  ExpectRepairs(DeclarationEnd::Semicolon, {{"int EXPORT a;", "int a ;"},
                                            {"b EXPORT c;", "b c ;"},
                                            {"EXPORT b c;", "b c ;"},
                                            {"b* EXPORT c;", "b * c ;"},
                                            {"int a OLD;", "int a ;"},
                                            {"int a[3] OLD;", "int a [ 3 ] ;"},
                                            {"int f(A*) OLD(x);", "int f ( A * ) ;"}});
}

TEST(DeclarationRepair, RemovesScopesAndEnumWords) {
  ExpectRepairs(DeclarationEnd::Semicolon, {{"::a::B c;", "a :: B c ;"},
                                            {"enum A;", "enum A ;"},
                                            {"enum class A;", "enum class A ;"},
                                            {"enum A a;", "A a ;"},
                                            {"int f(enum A a);", "int f ( ) ;"}});
}

TEST(DeclarationRepair, MakesNamesOfKeywords) {
  ExpectRepairs(DeclarationEnd::Semicolon, kInC,
                {{"int new(int template);", "int new^ ( ) ;"},
                 {"void *class, *delete;", "void * class^ , * delete^ ;"}});
  ExpectRepairs(DeclarationEnd::Semicolon,
                {{"int class;", "int class^ ;"}, {"auto a = 1;", "auto^ a ;"}});
}

}  // namespace
}  // namespace vexltags::thorough
