// SPDX-License-Identifier: MIT
// C, C++ and Objective-C to the extent that tags need: source text as it is, not preprocessed.
grammar main;

options {
  language = C;
  tokenVocab = mainVocabulary;
  backtrack = true;
}

@lexer::includes {
#include "cfamily/lexer_actions.h"
#include "engine/parser_ops.h"
#include "parserstate/lexer_state.h"
}

@lexer::context {
  vexltags::TagsLexerState* fileState;
  vexltags::ConditionalMemo* conditionals;
}

@lexer::members {
#include "engine/recognizer_support.h"
}

@parser::includes {
#include "cfamily/declarations.h"
#include "cfamily/grammar_actions.h"
#include "cfamily/plain_forms.h"
#include "cfamily/plain_types.h"
#include "cfamily/type_text.h"
#include "engine/parser_ops.h"
#include "engine/std_string.h"
#include "parserstate/lexer_state.h"

// Rules take and return these types, and generated code is outside any namespace.
using namespace vexltags;
}

@parser::context {
  vexltags::VexlTagsParser* builder;
  vexltags::TagsLexerState* fileState;
  vexltags::TokenTable* tokens;
  vexltags::FollowStack* follows;
  vexltags::TrialTable* trials;
  vexltags::LoopRuns* loops;
}

@parser::members {
#include "engine/recognizer_support.h"

// Evaluated directly after a LESSTHAN: only one that follows a name opens a template argument list.
static bool LooksLikeTemplateOpener(pmainParser ctx) { return TypeBehind(ctx, 2) == ID; }
}

// Parser. A file is a flat sequence of items. The opening and the closing of a scope are items of
// their own, and the tag builder keeps track of scopes. A construct that does not parse therefore
// costs a few tokens, not the scope around it.
//
// The order of alternatives decides how a construct is read: where the next token allows several
// alternatives, the first that parses is taken. The option `backtrack` makes these speculative
// parses. An explicit predicate is written only where it tests something other than its whole
// alternative. Unlike an implicit one it is evaluated even where the next token decides, so adding
// or removing one changes tags.

// --- Items ---

inputStream
  : inputTokens EOF
  ;

inputTokens
  : ( inputToken1 )*
  ;

inputToken1
  : inputToken { ReportProgress(ctx); }
  ;

inputToken
  : function
  | objcMethod
  | simpleDeclDef
  | using_directive
  | using_declaration
  | alias_declaration
  | classForwardDecl
  | classDefStart
  | forwardObjcInterface
  | objcInterface
  | objcImplementation
  | externC { ctx->builder->PushOtherLCurly(); }
  | RCURLY names = declaratorList end = SEMICOLON
    { CloseScopeWithDeclarators(*ctx->builder, $names.r, TokenLine($end)); }
  | RCURLY end = SEMICOLON { CloseScope(*ctx->builder, TokenLine($end)); }
  | brace = RCURLY { ctx->builder->PopRCurly(false, TokenLine($brace)); }
  | '_LIBCPP_END_NAMESPACE_STD' { ctx->builder->PopRCurly(false, NextLine(ctx)); }
  | ( LCURLY )=> curlyEater
  | objcEnd
  | macro
  | ( enum_specifier )=> enum_specifier
  | typeDef
  | concept_definition
  | ( template_head )? deduction_guide
  | staticAssert
  | 'typedef' { ctx->builder->inTypedef = true; }
  | privacySpec
  | LPAREN ( expression_list )? RPAREN
  | SEMICOLON
  ;

using_directive
  : 'using' classOpener SEMICOLON
  ;

using_declaration
  : 'using' using_declarator ( COMMA using_declarator )* ( ELLIPSIS )? SEMICOLON
  ;

using_declarator
  : ( 'typename' )? nested_name_specifier unqualified_id
  ;

classForwardDecl
  : classOpener SEMICOLON
  ;

classDefStart
  : d = classOpener ( base_clause )? LCURLY { OpenClass(*ctx->builder, $d.r); }
  | '_LIBCPP_BEGIN_NAMESPACE_STD' { OpenStdNamespace(*ctx->builder, NextLine(ctx)); }
  ;

externC
  : 'extern' StringLiteral LCURLY
  ;

macro
  : d = Define { ctx->builder->DumpMacro(TokenView($d).value_or(""), TokenLine($d)); }
  ;

staticAssert
  : 'static_assert' parenEater
  ;

privacySpec
  : ( 'public' | 'protected' | 'private' ) COLON
  ;

linkage returns [stdString r]
  : ( 'extern' StringLiteral { AppendWithSpace($r, "extern \"C/C++\""); }
    | w = ( 'mutable' | 'constexpr' | 'extern' | 'inline' | 'virtual' | 'consteval' | 'constinit'
          | 'static' | 'thread_local'
          ) { AppendWithSpace($r, TokenString($w)); }
    )*
  ;

// --- Functions and simple declarations ---

function
options { memoize = true; }
@declarations { bool isDefinition = false; }
@init { if (FailsAsPlainDeclaration(ctx) || PassesAsFunction(ctx)) return; }
  : ( f = 'friend' )? fp = functionDeclDef
    ( SEMICOLON
    | optInitializerList ( requires_clause )? curlyEater { isDefinition = true; }
    )
    { EndFunction(*ctx->builder, std::move($fp.r), $f != NULL, isDefinition); }
  ;

// Constructors and destructors; operators; plain functions; functions with a deduced result.
functionDeclDef returns [FunctionPrototype r]
options { memoize = true; }
  : ( ( h = template_head { AppendWithSpace($r.templateText, $h.r); } )+ )?
    ( 'friend' { $r.isFriend = true; } )?
    ( ( ( function_specifier )* qualifiedFunctionName params )=>
      ( s = function_specifier { AppendWithSpace($r.linkage, $s.r); } )*
      n = qualifiedFunctionName { $r.SetName($n.r); }
      p = params { $r.params = std::move($p.r); }
      ( exception_specification )? ( requires_clause )? ( ASSIGN ( 'delete' | 'default' ) )?
    | ( ( function_specifier )* ( type | 'auto' )? optQualifier operatorName )=>
      ( s = function_specifier { AppendWithSpace($r.linkage, $s.r); } )*
      ( t = type { $r.returnType = $t.r.name; } | 'auto' { $r.returnType = "auto"; } )?
      q = optQualifier n = operatorName { $r.SetOperator($q.r, $n.r); }
      p = params { $r.params = std::move($p.r); }
      ( c = functionConstQualifier { AppendWithSpace($r.constQualifier, $c.r); } )*
      ( ref_qualifier )? ( exception_specification )? ( ( POINTERTO )=> trailing_return_type )?
      ( requires_clause )?
      ( ASSIGN Number { $r.isPure = true; } | ASSIGN ( 'delete' | 'default' ) )?
      ( 'final' | 'override' )*
    | l = linkage { $r.linkage = $l.r; }
      t = type { $r.returnType = $t.r.name; }
      n = qualifiedFunctionName { $r.SetName($n.r); }
      p = params { $r.params = std::move($p.r); }
      ( c = functionConstQualifier { AppendWithSpace($r.constQualifier, $c.r); } )*
      ( ref_qualifier )? ( exception_specification )?
      ( ASSIGN Number { $r.isPure = true; } | ASSIGN ( 'delete' | 'default' ) )?
      ( 'final' | 'override' )*
    | l = linkage { $r.linkage = $l.r; }
      ( 'auto' { $r.returnType = "auto"; } | d = decltype_specifier { $r.returnType = $d.r; } )
      ( ptr_operator )*
      n = qualifiedFunctionName { $r.SetName($n.r); }
      p = params { $r.params = std::move($p.r); }
      ( c = functionConstQualifier { AppendWithSpace($r.constQualifier, $c.r); } )*
      ( ref_qualifier )? ( exception_specification )? ( trailing_return_type )?
      ( ASSIGN Number { $r.isPure = true; } | ASSIGN ( 'delete' | 'default' ) )?
    )
  ;

optQualifier returns [stdString r]
@init { if (HasNoQualifier(ctx)) return r; }
  : ( n = simpleTypeName SCOPE { $r = AppendQualifier($r, $n.r.text, false); } )*
  ;

function_specifier returns [stdString r]
  : w = ( 'constexpr' | 'inline' | 'virtual' | 'explicit' | 'consteval' | 'constinit' )
    { $r = TokenString($w); }
  ;

functionConstQualifier returns [stdString r]
  : c = cv_qualifier { $r = $c.r; }
  ;

exception_specification
  : 'throw' LPAREN ( scopeOverride ID ( COMMA scopeOverride ID )* | ELLIPSIS )? RPAREN
  | noexcept_specification
  ;

noexcept_specification
  : ( 'noexcept' | '_NOEXCEPT' | '_NOEXCEPT_' | '_NOEXCEPT_DEBUG' ) ( parenEater )?
  ;

noexcept_expression
  : ( 'noexcept' | '_NOEXCEPT' | '_NOEXCEPT_' | '_NOEXCEPT_DEBUG' ) parenEater
  ;

optInitializerList
  : ( COLON memberInitializer ( COMMA memberInitializer )* )?
  ;

memberInitializer
  : typeName ( arguments | curlyEater ) ( ELLIPSIS )?
  ;

declaratorList returns [VectorOfName r]
@init { if (PassesAs(ctx, &PlainForms::PastDeclarators)) return r; }
  : d = declarator { $r.Add($d.r); } ( COMMA d = declarator { $r.Add($d.r); } )*
  ;

qualifiedFunctionName returns [Name r]
@init { if (TakesWord(ctx, r)) return r; }
  : ( TILDE { $r += "~"; } )? n = simpleTypeName { $r += $n.r; }
    ( SCOPE { $r += "::"; } ( TILDE { $r += "~"; } )? n = simpleTypeName { $r += $n.r; } )*
  ;

simpleDeclDef
options { memoize = true; }
@declarations { TypeDescriptor declared; VectorOfName names; }
@init { if (PassesAs(ctx, &PlainForms::PastDeclaration)) return; }
  : ( template_head )? linkage
    ( ( funcPointerOrBlockType )=> p = funcPointerOrBlockType
      { SetFunctionPointer($p.r, declared, names); } ( ASSIGN initializer )?
    | t = type { declared = $t.r; } l = declaratorList { names = $l.r; }
    | 'auto' { declared.name = "auto"; } l = declaratorList { names = $l.r; }
    | s = signedUnsigned { declared.name = $s.r; } l = declaratorList { names = $l.r; }
    )
    SEMICOLON { EndSimpleDeclaration(*ctx->builder, declared, names); }
  ;

typeDef
@declarations { TypeDescriptor declared; VectorOfName names; }
  : 'typedef'
    ( p = funcPointerOrBlockType { SetFunctionPointer($p.r, declared, names); }
    | ( t = type { declared = $t.r; } | s = signedUnsigned { declared.name = $s.r; } )
      ( n = simpleTypeName optArray { names.Add($n.r); }
        ( COMMA n = simpleTypeName optArray { names.Add($n.r); } )* )
    )
    SEMICOLON { EndTypedef(*ctx->builder, declared, names); }
  ;

alias_declaration
@declarations { TypeDescriptor declared; }
  : ( template_head )? 'using' n = simpleTypeName ASSIGN
    ( p = funcPointerOrBlockType { declared = FunctionPointerType($p.r); }
    | d = defining_type_id { declared = $d.r; }
    | t = type { declared = $t.r; }
    )
    SEMICOLON { EndAlias(*ctx->builder, $n.r, declared); }
  ;

deduction_guide
  : identifier params POINTERTO simple_template_id SEMICOLON
  ;

// --- Classes and enums ---

// The declarators after the brace of an enum belong to this rule; those after a class do not.
enum_specifier
@declarations { TypeDescriptor descriptor("", kEnumKind, -1); }
  : ( 'typedef' { descriptor.isTypedef = true; } )?
    ( w = NsOptionsMacro { descriptor.ResetNameAndLine($w); }
    | 'enum' ( ( 'class' | 'struct' ) { descriptor.isScoped = true; } )?
      ( w = ID { descriptor.ResetNameAndLine($w); } )? ( COLON type )?
      { NameEnum(descriptor, NextLine(ctx)); }
    )
    ( LCURLY { ctx->builder->OpenEnum(descriptor); }
      ( enumerator_definition ( COMMA )? )*
      brace = RCURLY { CloseEnum(*ctx->builder, TokenLine($brace)); }
    )?
    ( n = simpleTypeName { DeclareEnumName(*ctx->builder, descriptor, $n.r); } )?
    SEMICOLON
  ;

enumerator_definition
@declarations { Name name; }
  : w = ID { name = $w; } ( ASSIGN constant_expression )? { ctx->builder->DumpEnumerator(name); }
  ;

defining_type_id returns [TypeDescriptor r]
@init { if (ctx->fileState->CheckRunningTooLong()) return r; }
  : s = defining_type_specifier { $r = $s.r; }
    ( a = abstract_declarator { $r += $a.r; } )?
  ;

classOpener returns [TypeDescriptor r]
options { memoize = true; }
  : ( 'typedef' { $r.isTypedef = true; } )? ( t = template_head )? ( miscDeclspec )* ( 'inline' )?
    k = structClassUnionNamespace { $r.kind = $k.kind; }
    ( ( simpleTypeName SCOPE )+ 'inline' )?
    ( n = typeName ( 'final' )? { NameClass($r, $n.r, $t.r); }
    | { NameAnonymousClass($r, NextLine(ctx)); }
    )
  ;

base_clause
  : COLON base_specifier ( COMMA base_specifier )* ( ELLIPSIS )?
  ;

base_specifier
  : ( 'virtual' | 'public' | 'protected' | 'private' )* class_or_decltype
  ;

class_or_decltype
  : ( templateDisambiguator )? qualifiedFunctionName
  | decltype_specifier
  ;

defining_type_specifier returns [TypeDescriptor r]
  : s = type_specifier { $r = $s.r; }
  | enum_specifier
  ;

class_head
  : class_key class_head_name ( 'final' )? ( base_clause )?
  | class_key ( base_clause )?
  ;

class_head_name
  : ( nested_name_specifier )? class_name
  ;

class_key returns [long kind = kNoKind]
  : 'struct' { $kind = kStructKind; }
  | 'class' { $kind = kClassKind; }
  | 'union' { $kind = kUnionKind; }
  ;

structClassUnionNamespace returns [long kind = kNoKind]
  : 'struct' { $kind = kStructKind; }
  | 'class' { $kind = kClassKind; }
  | 'union' { $kind = kUnionKind; }
  | 'namespace' { $kind = kNamespaceKind; }
  ;

// --- Types and declarators ---

decltype_specifier returns [stdString r]
  : 'decltype' parenEater { $r = "decltype-based result"; }
  ;

trailing_return_type returns [stdString r]
  : POINTERTO t = type { $r = $t.r.name; }
  ;

placeholder_type_specifier returns [stdString r]
  : ( type_constraint )? 'auto' { $r = "auto"; }
  | ( type_constraint )? 'decltype' LPAREN 'auto' RPAREN { $r = "decltype"; }
  ;

decl_specifier returns [TypeDescriptor r]
  : s = storage_class_specifier { $r.name = $s.r; }
  | d = defining_type_specifier { $r = $d.r; }
  | f = function_specifier { $r.name = $f.r; }
  | w = ( 'typedef' | 'constexpr' | 'inline' | 'friend' | 'consteval' | 'constinit' )
    { AppendWithSpace($r.name, TokenString($w)); }
  ;

decl_specifier_seq returns [TypeDescriptor r]
  : d = decl_specifier { $r = $d.r; }
    ( d = decl_specifier { AppendWithSpace($r.name, $d.r.name); } )*
  ;

optArray
  : ( squareBracketEater )*
  ;

builtInTypeSequence returns [Name r]
  : ( w = ( 'char' | 'char16_t' | 'char32_t' | 'wchar_t' | 'bool' | 'short' | 'int' | 'long'
          | 'signed' | 'unsigned' | 'float' | 'double' | 'void'
          ) { AppendTypeWord($r, $w); }
    )+
  ;

templateDisambiguator
  : typeName SCOPE 'template'
  ;

// Once the file has exceeded its time limit no type matches, so that the rules that need one fail
// and the parse unwinds.
type returns [TypeDescriptor r]
options { memoize = true; }
@init { if (ctx->fileState->CheckRunningTooLong() || PassesAs(ctx, &PlainForms::PastType)) return r; }
  : ( 'typename' )? ( c = cv_qualifier { AppendWithSpace($r.name, $c.r); } )*
    ( '__weak' | '__strong' )? ( 'typename' )? ( templateDisambiguator )?
    ( k = class_key { AppendWithSpace($r.name, ParserStateBase::NameSpaceKindName($k.kind)); } )*
    ( n = typeName { AppendTypeName($r, $n.r); }
    | n = builtInTypeSequence { AppendTypeName($r, $n.r); }
    )
    ( AND { $r.name += "&&"; }
    | AMPERSAND { $r.name += "&"; }
    | STAR { $r.name += "*"; }
    | c = cv_qualifier { AppendWithSpace($r.name, $c.r); }
    )*
  | decltype_specifier { $r.name = "decltype"; }
  ;

declarator returns [Name r]
  : ( ptr_operator_fragment )=> ptr_operator_fragment d = declarator { $r = $d.r; }
  | d = direct_declarator { $r = $d.r; }
  ;

ptr_declarator returns [Name r]
  : d = noptr_declarator { $r = $d.r; }
  | ptr_operator d = ptr_declarator { $r = $d.r; }
  ;

noptr_declarator returns [Name r]
  : ( d = declarator_id { $r = $d.r; } | LPAREN d = ptr_declarator { $r = $d.r; } RPAREN )
    ( parameters_and_qualifiers | LSQUARE ( constant_expression )? RSQUARE )*
  ;

declarator_id returns [Name r]
  : ( ELLIPSIS )? n = id_expression { $r = $n.r; }
  | ( SCOPE )? nested_name_specifier n = class_name { $r = $n.r; }
  ;

parameters_and_qualifiers
options { memoize = true; }
  : LPAREN parameter_declaration_clause RPAREN ( cv_qualifier )* ( ref_qualifier )?
    ( exception_specification )?
  ;

nested_name_specifier
  : class_name SCOPE
  | decltype_specifier SCOPE
  ;

type_name
  : class_name
  ;

class_name returns [Name r]
  : n = identifier { $r = $n.r; }
  | n = simple_template_id { $r = $n.r; }
  ;

id_expression returns [Name r]
  : unqualified_id { $r += "unqualified_id implement me"; }
  | qualified_id { $r += "unqualified_id implement me"; }
  ;

unqualified_id
  : identifier
  | operatorName
  | TILDE class_name
  | TILDE decltype_specifier
  ;

qualified_id
  : ( SCOPE )? nested_name_specifier ( 'template' )? unqualified_id
  | SCOPE identifier
  | SCOPE template_id
  ;

direct_declarator returns [Name r]
  : n = typeName { $r = $n.r; } ( COLON Number | optArray ) ( ASSIGN simplifiedInitializer )?
  ;

identifier returns [Name r]
  : w = ID { $r = $w; }
  ;

funcPointerOrBlockType returns [Param r]
options { memoize = true; }
@init { if (FailsAsPlainType(ctx)) return r; }
  : t = type { BeginFunctionPointer($r, $t.r); }
    ( LPAREN { $r.type += "("; } q = optQualifier { $r.type += $q.r; }
      ( w = ( BITWISEXOR | STAR ) { $r.type += TokenString($w); } )?
      ( n = typeName { $r = $n.r; } )? RPAREN { $r.type += ")"; }
    | n = typeName { $r = $n.r; }
    )
    p = params ( c = functionConstQualifier )?
      { EndFunctionPointer(*ctx->builder, $r, $p.r, $c.r); }
  ;

typeNameList returns [VectorOfName r]
  : n = typeName { $r.Add($n.r); } ( COLON Number | optArray )
    ( COMMA n = typeName { $r.Add($n.r); } )*
  ;

typeName returns [Name r]
options { memoize = true; }
@init { if (TakesWord(ctx, r) || PassesAs(ctx, &PlainForms::PastName)) return r; }
  : ( SCOPE { $r += "::"; } )? n = simpleTypeName { $r += $n.r; }
    ( SCOPE n2 = simpleTypeName { $r += "::" + $n2.r.text; } )*
  ;

simpleTypeName returns [Name r]
options { memoize = true; }
@init { if (TakesWord(ctx, r)) return r; }
  : w = ID { $r = $w; } ( l = templateArgumentList { $r += $l.r; } )?
  ;

scopeOverride returns [Name r]
  : ( SCOPE )?
    ( ( ID LESSTHAN template_argument_list GREATERTHAN SCOPE )=>
      w = ID { $r += $w; } LESSTHAN a = template_argument_list { $r += "<" + $a.r + ">::"; }
      GREATERTHAN SCOPE ( 'template' )?
    | ( ID SCOPE )=> w = ID { $r += $w; } SCOPE { $r += "::"; } ( 'template' )?
    )*
  ;

simple_type_specifier returns [TypeDescriptor r]
  : ( nested_name_specifier )? type_name
  | nested_name_specifier 'template' simple_template_id { $r.name = "implement me"; }
  | decltype_specifier { $r.name = "decltype"; }
  | p = placeholder_type_specifier { $r.name = $p.r; }
  | ( nested_name_specifier )? identifier
  | b = builtInTypeSequence { $r.ResetNameAndLine($b.r); }
  ;

type_specifier returns [TypeDescriptor r]
  : s = simple_type_specifier { $r.name = $s.r.name; }
  | typename_specifier
  | c = cv_qualifier { $r.name = $c.r; }
  ;

typename_specifier
  : 'typename' nested_name_specifier identifier
  | 'typename' nested_name_specifier ( 'template' )? simple_template_id
  ;

storage_class_specifier returns [stdString r]
  : w = ( 'mutable' | 'extern' | 'static' | 'thread_local' | 'register' ) { $r = TokenString($w); }
  ;

type_specifier_seq returns [TypeDescriptor r]
  : t = type_specifier { $r.name = $t.r.name; }
    ( s = type_specifier_seq { AppendSpecifiers($r, $s.r); } )?
  ;

abstractDeclaratorSuffix returns [stdString r]
  : p = params { $r = ParenthesizedNames($p.r); }
    ( c = cv_qualifier { $r += " " + $c.r; } )*
  | ( LSQUARE ( expression_list )? RSQUARE { $r = "[]"; } )+
  ;

ptr_operator returns [Name r]
  : ( ( 'near' | 'NEAR' | 'far' | 'FAR' ) STAR | STAR )
    ( c = cv_qualifier { AppendWithSpace($r.text, $c.r); } )*
  | w = AND { $r += $w; }
  | w = AMPERSAND { $r += $w; }
  | s = scopeOverride { $r = $s.r; } w = STAR { $r += $w; }
    ( c = cv_qualifier { AppendWithSpace($r.text, $c.r); } )*
  ;

ptr_operator_fragment
  : ( 'near' | 'NEAR' | 'far' | 'FAR' ) STAR ( cv_qualifier )*
  | STAR ( cv_qualifier )*
  | AMPERSAND
  | AND
  ;

noptr_abstract_declarator returns [Name r]
options { memoize = true; }
  : ( ( parameters_and_qualifiers | LSQUARE constant_expression RSQUARE )
      { $r.text = "implement me"; }
    )+
  | LPAREN ptr_abstract_declarator RPAREN
    ( ( parameters_and_qualifiers | LSQUARE constant_expression RSQUARE )
      { $r.text = "implement me"; }
    )*
    { $r.text = "implement me"; }
  ;

ptr_abstract_declarator returns [Name r]
  : n = noptr_abstract_declarator { $r = $n.r; }
  | p = ptr_operator { $r = $p.r; } ( a = abstract_declarator { $r += $a.r; } )?
  ;

abstract_declarator returns [Name r]
options { memoize = true; }
  : ( LPAREN abstract_declarator RPAREN ( LPAREN | LSQUARE ) )=>
    LPAREN a = abstract_declarator RPAREN s = abstractDeclaratorSuffix
    { $r = Name("(" + $a.r.text + ")" + $s.r, $a.r.line); }
  | p = ptr_abstract_declarator { $r = $p.r; }
  | w = ELLIPSIS { $r = $w; }
  | ( s = abstractDeclaratorSuffix { $r += $s.r; } )?
  ;

type_id returns [TypeDescriptor r]
options { memoize = true; }
  : t = type_specifier_seq { $r = $t.r; } a = abstract_declarator { $r += $a.r; }
  ;

signedUnsigned returns [stdString r]
  : w = ( 'signed' | 'unsigned' ) { $r = TokenString($w); }
  ;

signedQualifier returns [stdString r]
  : w = ( 'signed' | 'unsigned' ) { $r = TokenString($w); }
  ;

cv_qualifier returns [stdString r]
  : w = ( 'constexpr' | 'const' | 'volatile' ) { $r = TokenString($w); }
  ;

miscDeclspec
  : 'constexpr' | 'friend' | 'consteval' | 'const' | 'volatile'
  ;

ref_qualifier
  : AND | AMPERSAND
  ;

// The text is the symbol alone, without `operator`. There is no token for `>>`.
operatorName returns [Name r]
  : 'operator' w = GREATERTHAN { $r = $w; } w = ( GREATERTHAN | GREATEROREQUAL ) { $r += $w; }
  | 'operator'
    ( o = operTok { $r = $o.r; }
    | StringLiteral { $r += " \"\""; } w = ID { $r += $w; }
    | t = type { $r += Name($t.r.name, $t.r.line); }
    | w = ( 'new' | 'delete' ) { $r = Name(" " + TokenString($w), TokenLine($w)); }
      ( LSQUARE RSQUARE { $r += "[]"; } )?
    | w = LPAREN { $r = $w; } w = RPAREN { $r += $w; }
    | w = LSQUARE { $r = $w; } w = RSQUARE { $r += $w; }
    )
  ;

operTok returns [Name r]
  : w = ( LESSTHAN | GREATERTHAN | ASSIGN | TIMESEQUAL | DIVIDEEQUAL | PLUSEQUAL | MINUSEQUAL
        | MODEQUAL | SHIFTLEFTEQUAL | GREATEROREQUAL | BITWISEANDEQUAL | BITWISEXOREQUAL
        | BITWISEOREQUAL | OR | AND | BITWISEOR | BITWISEXOR | AMPERSAND | NOTEQUAL | EQUAL
        | LESSOREQUAL | SHIFTLEFT | PLUS | MINUS | STAR | DIVIDE | MOD | POINTERTOMBR | PLUSPLUS
        | MINUSMINUS | POINTERTO | TILDE | NOT | SPACESHIP
        ) { $r = $w; }
  ;

// --- Parameters ---

params returns [ParamList r]
options { memoize = true; }
@init {
  if (Takes(ctx, &PlainForms::PastNoParams) || PassesAs(ctx, &PlainForms::PastParams)) return r;
}
  : LPAREN c = parameter_declaration_clause RPAREN { $r = std::move($c.r); }
  ;

parameter_declaration_clause returns [ParamList r]
  : ( l = parameter_declaration_list { $r = std::move($l.r); } )? COMMA e = ELLIPSIS
    { AddVariadicParam($r, TokenLine($e)); }
  | ( l = parameter_declaration_list { $r = std::move($l.r); } )?
    ( e = ELLIPSIS { AddVariadicParam($r, TokenLine($e)); } )?
  ;

parameter_declaration_list returns [ParamList r]
options { memoize = true; }
  : ( p = param { $r.Add(std::move($p.r)); } )? ( COMMA p = param { $r.Add(std::move($p.r)); } )*
  ;

idOrCppKeyword returns [Name r]
  : n = identifier { $r = $n.r; }
  | w = ( 'new' | 'final' | 'operator' | 'namespace' | 'template' | 'delete' | 'override'
        | 'default' | 'union'
        ) { $r += $w; }
  ;

paramNameHack returns [Name r]
  : n = idOrCppKeyword { $r = $n.r; }
  | LPAREN ( AND | AMPERSAND ) n = idOrCppKeyword { $r = $n.r; } RPAREN
  | identifier LPAREN n = idOrCppKeyword { $r = $n.r; } RPAREN
  ;

param returns [Param r]
options { memoize = true; }
  : p = funcPointerOrBlockType { $r = $p.r; } optArray ( ASSIGN initializer_clause )?
  | ( t = type { SetUnnamedParam($r, $t.r); } ( 'auto' | decltype_specifier )? | 'auto' )
    ( ELLIPSIS )? ( n = paramNameHack { $r = $n.r; } )? optArray ( ASSIGN initializer_clause )?
  ;

parameter_declaration returns [Param r]
  : decl_specifier_seq d = declarator { $r.name = $d.r.text; } ( ASSIGN initializer_clause )?
  | decl_specifier_seq ( a = abstract_declarator { $r.name = $a.r.text; } )?
    ( ASSIGN initializer_clause )?
  ;

initializer_clause
options { memoize = true; }
  : expression
  | simplifiedInitializer
  ;

simplifiedInitializerEater
  : ( ( LPAREN )=> parenEater
    | ( LESSTHAN )=> relaxedTemplateArgumentEater
    | ( LCURLY )=> curlyEater
    | ~( SEMICOLON | COMMA )
    )*
  ;

simplifiedInitializer
options { memoize = true; }
  : cast initializer
  | ( LCURLY )=> curlyEater
  | simplifiedInitializerEater
  ;

// --- Templates and concepts ---

concept_name
  : identifier
  ;

type_constraint
  : ( nested_name_specifier )? concept_name ( templateArgumentList )?
  ;

constraint_expression
  : logical_or_expression
  ;

requires_expression
  : 'requires' ( parenEater )? curlyEater
  ;

concept_definition
  : h = template_head 'concept' n = simpleTypeName ASSIGN constraint_expression SEMICOLON
    { EndConcept(*ctx->builder, $n.r, $h.r); }
  ;

simple_template_id returns [Name r]
  : n = identifier { $r = $n.r; } l = templateArgumentList { $r += $l.r; }
  ;

template_id
  : simple_template_id
  ;

templateArgumentList returns [stdString r]
  : e = templateArgumentEater { $r = TemplateArgumentText(TextOf(ctx, $e.r)); }
  ;

// A `<` after a name opens a list, which must be closed; any other `<` is an ordinary token. A list
// contains no semicolon, which distinguishes it from `a < b;`.
templateArgumentEater returns [TokenRange r]
options { memoize = true; }
@declarations { const ANTLR3_MARKER first = INDEX(); }
  : LESSTHAN
    ( ( LESSTHAN { LooksLikeTemplateOpener(ctx) }? )=> templateArgumentEater
    | LESSTHAN
    | ( LPAREN )=> parenEater
    | ~( SEMICOLON | LESSTHAN | GREATERTHAN )
    )*
    GREATERTHAN { $r = TokenRange(first, LastIndex(ctx)); }
  ;

relaxedTemplateArgumentEater returns [TokenRange r]
options { memoize = true; }
@declarations { const ANTLR3_MARKER first = INDEX(); }
  : LESSTHAN
    ( ( LESSTHAN { LooksLikeTemplateOpener(ctx) }? )=> relaxedTemplateArgumentEater
    | LESSTHAN
    | ( LPAREN )=> parenEater
    | ~( SEMICOLON | LESSTHAN | GREATERTHAN )
    )*
    ( GREATERTHAN )? { $r = TokenRange(first, LastIndex(ctx)); }
  ;

template_argument_list returns [stdString r]
  : a = template_argument { $r = $a.r; } ( COMMA a = template_argument { $r += ", " + $a.r; } )*
  ;

template_argument returns [stdString r]
  : ( LPAREN | constant )=> p = primary_expression { $r = $p.r; }
  | t = type_id { $r = $t.r.name; }
  ;

template_head returns [stdString r]
options { memoize = true; }
@init { if (TakesEmptyTemplateHead(ctx, r)) return r; }
  : 'template'
    ( LESSTHAN ( l = template_parameter_list { $r = $l.r; } )? GREATERTHAN
    | e = templateArgumentEater { $r = TextOf(ctx, $e.r); }
    )
    ( requires_clause )?
  ;

template_parameter_list returns [stdString r]
options { memoize = true; }
  : p = template_parameter { $r = $p.r; } ( COMMA p = template_parameter { $r += ", " + $p.r; } )*
  ;

template_parameter returns [stdString r]
options { memoize = true; }
  : type_parameter_key ( ELLIPSIS )? ( t = type )? ( ASSIGN type_id )?
    { $r = TemplateParameterText($t.r.name); }
  | h = template_head type_parameter_key ( ELLIPSIS )? ( n = identifier ( ASSIGN id_expression )? )?
    { $r = $h.r + " " + $n.r.text; }
  | ( ( signedUnsigned )? ( t = type )? ( v = simpleTypeName )?
      ( ( ASSIGN constant ) | ( ASSIGN constant_expression )? )
    )
    { $r = ValueParameterText($t.r.name, $v.r.text); }
  ;

requires_clause
  : 'requires' constraint_logical_or_expression
  ;

constraint_logical_or_expression
options { memoize = true; }
  : constraint_logical_and_expression ( OR constraint_logical_and_expression )*
  ;

constraint_logical_and_expression
  : primary_expression ( AND constraint_logical_or_expression )*
  ;

type_parameter_key returns [stdString r]
  : w = ( 'typename' | 'class' ) { $r = TokenString($w); }
  ;

// --- Expressions ---

expression_list
  : expression ( COMMA expression )*
  ;

expression
options { memoize = true; }
  : assignment_expression
  ;

constant_expression
  : conditional_expression
  ;

assignment_expression
options { memoize = true; }
  : conditional_expression
    ( ( ASSIGN | TIMESEQUAL | DIVIDEEQUAL | PLUSEQUAL | MINUSEQUAL | MODEQUAL | SHIFTLEFTEQUAL
      | GREATERTHAN GREATEROREQUAL | BITWISEANDEQUAL | BITWISEXOREQUAL | BITWISEOREQUAL
      ) remaniderExpression
    )?
  ;

remaniderExpression
  : assignment_expression
  ;

conditional_expression
  : logical_or_expression ( QUESTIONMARK expression COLON conditional_expression )?
  ;

logical_or_expression
  : logical_and_expression ( OR logical_and_expression )*
  ;

logical_and_expression
  : inclusive_or_expression ( AND inclusive_or_expression )*
  ;

inclusive_or_expression
  : exclusive_or_expression ( BITWISEOR exclusive_or_expression )*
  ;

exclusive_or_expression
  : and_expression ( BITWISEXOR and_expression )*
  ;

and_expression
  : equality_expression ( AMPERSAND equality_expression )*
  ;

equality_expression
  : relational_expression ( ( NOTEQUAL | EQUAL ) relational_expression )*
  ;

// A `>` is an operator only if an operand follows; otherwise it may close a template argument list.
relational_expression
  : shift_expression
    ( ( LESSTHAN | GREATERTHAN | GREATEROREQUAL | LESSOREQUAL ) shift_expression )*
  ;

shift_expression
  : additive_expression ( ( SHIFTLEFT | GREATERTHAN GREATERTHAN ) additive_expression )*
  ;

additive_expression
  : multiplicative_expression ( ( PLUS | MINUS ) multiplicative_expression )*
  ;

multiplicative_expression
  : pm_expression ( ( STAR | DIVIDE | MOD ) pm_expression )*
  ;

pm_expression
  : cast_expression ( ( DOTMBR | POINTERTOMBR ) cast_expression )*
  ;

cast returns [Param r]
options { memoize = true; }
  : LPAREN
    ( p = funcPointerOrBlockType { $r = $p.r; }
    | t = type { SetUnnamedParam($r, $t.r); }
    | signedUnsigned
    )
    RPAREN
  ;

cast_expression
options { memoize = true; }
  : cast unary_expression
  | cast cast_expression
  | unary_expression
  ;

unary_expression
options { memoize = true; }
  : postfix_expression
  | ( PLUSPLUS | MINUSMINUS ) unary_expression
  | unary_operator cast_expression
  | 'sizeof' ( unary_expression | LPAREN type RPAREN )
  | 'sizeof' ELLIPSIS LPAREN identifier RPAREN
  | noexcept_expression
  | ( SCOPE )? 'new' postfix_expression
  ;

unary_operator
  : AMPERSAND | PLUS | MINUS | STAR | TILDE | NOT
  ;

postfix_expression
options { memoize = true; }
  : ( ( simple_type_specifier LPAREN )=>
      simple_type_specifier LPAREN ( expression_list )? RPAREN
    | primary_expression
    )
    ( LSQUARE ( expression_list )? RSQUARE
    | LPAREN ( expression_list )? RPAREN
    | ( DOT | POINTERTO ) typeName
    | PLUSPLUS
    | MINUSMINUS
    )*
  ;

constant returns [stdString r]
  : w = ( Number | CharLiteral | StringLiteral | 'true' | 'false' ) { $r = TokenString($w); }
  ;

primary_expression returns [stdString r]
options { memoize = true; }
  : n = typeName { $r = $n.r.text; }
  | c = constant { $r = $c.r; }
  | LPAREN expression RPAREN { $r = "(expr)"; }
  | lambda_expression
  | fold_expression
  | requires_expression
  ;

lambda_expression
  : lambda_introducer ( lambda_declarator )? curlyEater
  | lambda_introducer LESSTHAN template_parameter_list GREATERTHAN ( requires_clause )?
    ( lambda_declarator )? curlyEater
  ;

lambda_introducer
  : LSQUARE ( lambda_capture )? RSQUARE
  ;

lambda_capture
  : capture_default
  | capture_list
  | capture_default COMMA capture_list
  ;

capture_list
  : capture ( ELLIPSIS )?
  | capture COMMA capture_list
  ;

capture
  : simple_capture
  | init_capture
  ;

simple_capture
  : identifier
  | AMPERSAND identifier
  ;

init_capture
  : identifier initializer
  | AMPERSAND identifier initializer
  ;

capture_default
  : AMPERSAND | ASSIGN
  ;

lambda_declarator
  : params ( 'mutable' | 'constexpr' )* ( exception_specification )? ( trailing_return_type )?
    ( requires_clause )?
  ;

fold_expression
  : LPAREN cast_expression fold_operator ELLIPSIS RPAREN
  | LPAREN ELLIPSIS fold_operator cast_expression RPAREN
  | LPAREN cast_expression fold_operator ELLIPSIS fold_operator cast_expression RPAREN
  ;

fold_operator
  : COMMA | LESSTHAN | GREATERTHAN | ASSIGN | TIMESEQUAL | DIVIDEEQUAL | PLUSEQUAL | MINUSEQUAL
  | MODEQUAL | SHIFTLEFTEQUAL | GREATEROREQUAL | BITWISEANDEQUAL | BITWISEXOREQUAL
  | BITWISEOREQUAL | OR | AND | BITWISEOR | BITWISEXOR | AMPERSAND | NOTEQUAL | EQUAL
  | LESSOREQUAL | SHIFTLEFT | PLUS | MINUS | STAR | DIVIDE | MOD | DOTMBR | POINTERTOMBR
  ;

initializer
options { memoize = true; }
  : cast initializer
  | ( LCURLY )=> curlyEater
  | expression
  ;

arguments
  : parenEater
  ;

// An eater skips balanced brackets of one kind; to it the other kinds are ordinary tokens.

parenEater
@init { if (StepOverBrackets(ctx, LPAREN, RPAREN)) return; }
  : LPAREN ( ( LPAREN )=> parenEater | ~( LPAREN | RPAREN ) )* RPAREN
  ;

squareBracketEater
@init { if (StepOverBrackets(ctx, LSQUARE, RSQUARE)) return; }
  : LSQUARE ( ( LSQUARE )=> squareBracketEater | ~RSQUARE )* RSQUARE
  ;

curlyEater
@init { if (StepOverBrackets(ctx, LCURLY, RCURLY)) return; }
  : LCURLY ( ( LCURLY )=> curlyEater | ~( LCURLY | RCURLY ) )* RCURLY
  ;

// --- Objective-C ---

forwardObjcInterface
@declarations { bool isInterface = false; }
  : ( Interface { isInterface = true; } | Protocol ) forwardObjcInterfaceList[isInterface]
    SEMICOLON { ctx->builder->inTypedef = false; }
  ;

forwardObjcInterfaceList[bool isInterface]
  : objcInterfacePart[isInterface, true] ( COMMA objcInterfacePart[isInterface, true] )*
  ;

objcInterface
@declarations { bool isInterface = false; }
  : ( Interface { isInterface = true; } | Protocol ) objcInterfacePart[isInterface, false]
  ;

objcInterfacePart[bool isInterface, bool isForward]
  : n = simpleTypeName ( ( LPAREN )=> c = objcCategory | ( COLON )=> objcInheritance )?
    optProtocolList
    { EndObjcInterfacePart(*ctx->builder, $n.r, $c.r, $isInterface, $isForward); }
  ;

objcImplementation
  : Implementation w = ID ( c = objcCategory )?
    { OpenObjcImplementation(*ctx->builder, NameOf($w), $c.r); }
  ;

objcInheritance
  : COLON ID
  ;

optProtocolList
  : ( LESSTHAN ID ( COMMA ID )* GREATERTHAN )?
  ;

objcCategory returns [Name r]
  : LPAREN ( n = simpleTypeName { $r = $n.r; } )? RPAREN
  ;

objcEnd
  : w = End { ctx->builder->PopClass(TokenLine($w)); }
  ;

objcParam returns [Param r]
  : LPAREN
    ( p = funcPointerOrBlockType { $r = $p.r; }
    | t = type { SetUnnamedParam($r, $t.r); }
    | signedUnsigned
    )
    optArray RPAREN
  ;

objcMethod
@declarations { MethodPrototypeList methods; }
  : ( m = objcDeclDef SEMICOLON { AddMethod(methods, $m.r, false); }
    | ( objcDeclDef LCURLY )=> m = objcDeclDef curlyEater { AddMethod(methods, $m.r, true); }
    | l = property { methods = $l.r; }
    | l = synthesize { methods = $l.r; }
    )
    { EndObjcMethod(*ctx->builder, methods); }
  ;

objcDeclDef returns [MethodPrototype r]
  : ( PLUS { $r.isClassMethod = true; } | MINUS { $r.isClassMethod = false; } )
    ( objcReturnType )?
    ( n = objcDeclarator { $r = $n.r; } | n = idOrCppKeyword { $r = $n.r; } )
    ( COMMA ELLIPSIS { $r.name += ", ..."; } )?
  ;

objcDeclarator returns [Name r]
  : ( ( k = idOrCppKeyword { $r += $k.r; } )? COLON { $r += ":"; } ( objcParam )? ID )+
  ;

objcReturnType returns [Param r]
  : p = objcParam { $r = $p.r; }
  ;

synthesize returns [MethodPrototypeList r]
  : '@synthesize' n = idOrCppKeyword { AddSynthesized($r, $n.r); }
    ( COMMA n = idOrCppKeyword { AddSynthesized($r, $n.r); } )* ( ASSIGN idOrCppKeyword )? SEMICOLON
  ;

property returns [MethodPrototypeList r]
@declarations { MethodPrototype method; }
  : '@property' ( a = propertyAttributes )? ( 'IBOutlet' )?
    ( p = funcPointerOrBlockType { method = $p.r; }
    | type n = idOrCppKeyword { method = $n.r; }
    | signedUnsigned n = idOrCppKeyword { method = $n.r; }
    )
    SEMICOLON { PopulatePropertyMethodPrototypeList(method, $a.r, false, $r); }
  ;

propertyAttribute returns [PropertyAttributeInfo r]
  : 'readonly' { $r.readonly = true; }
  | 'getter=' w = ID { $r.getter = TokenString($w); }
  | 'setter=' w = ID { $r.setter = TokenString($w); }
  | ID
  ;

propertyAttributes returns [PropertyAttributeInfo r]
  : LPAREN a = propertyAttribute { $r = $a.r; }
    ( COMMA a = propertyAttribute { MergePropertyAttribute($r, $a.r); } )* RPAREN
  ;

// Lexer. The longest match wins, and of equal matches the earliest rule. The lexer commits to a
// rule as soon as the next character allows no other; if that rule then fails, its characters are
// lost, which is intended. Tokens that the parser must not see go to the hidden channel, 99.

// Keywords.

T__92 : '_LIBCPP_END_NAMESPACE_STD' ;
T__93 : 'typedef' ;
T__94 : 'using' ;
T__95 : 'typename' ;
T__96 : '_LIBCPP_BEGIN_NAMESPACE_STD' ;
T__97 : 'enum' ;
T__98 : 'class' ;
T__99 : 'struct' ;
T__100 : 'sizeof' ;
T__101 : 'new' ;
T__102 : 'true' ;
T__103 : 'false' ;
T__104 : 'mutable' ;
T__105 : 'constexpr' ;
T__106 : 'decltype' ;
T__107 : 'requires' ;
T__108 : 'auto' ;
T__109 : 'concept' ;
T__110 : 'extern' ;
T__111 : 'inline' ;
T__112 : 'final' ;
T__113 : 'static_assert' ;
T__114 : 'virtual' ;
T__115 : 'public' ;
T__116 : 'protected' ;
T__117 : 'private' ;
T__118 : 'operator' ;
T__119 : 'namespace' ;
T__120 : 'template' ;
T__121 : 'delete' ;
T__122 : 'override' ;
T__123 : 'default' ;
T__124 : 'union' ;
T__125 : '@synthesize' ;
T__126 : '@property' ;
T__127 : 'IBOutlet' ;
T__128 : 'readonly' ;
T__129 : 'getter=' ;
T__130 : 'setter=' ;
T__131 : 'friend' ;
T__132 : 'throw' ;
T__133 : 'noexcept' ;
T__134 : '_NOEXCEPT' ;
T__135 : '_NOEXCEPT_' ;
T__136 : '_NOEXCEPT_DEBUG' ;
T__137 : 'explicit' ;
T__138 : 'consteval' ;
T__139 : 'constinit' ;
T__140 : 'static' ;
T__141 : 'thread_local' ;
T__142 : 'char' ;
T__143 : 'char16_t' ;
T__144 : 'char32_t' ;
T__145 : 'wchar_t' ;
T__146 : 'bool' ;
T__147 : 'short' ;
T__148 : 'int' ;
T__149 : 'long' ;
T__150 : 'signed' ;
T__151 : 'unsigned' ;
T__152 : 'float' ;
T__153 : 'double' ;
T__154 : 'void' ;
T__155 : '__weak' ;
T__156 : '__strong' ;
T__157 : 'register' ;
T__158 : 'near' ;
T__159 : 'NEAR' ;
T__160 : 'far' ;
T__161 : 'FAR' ;
T__162 : 'const' ;
T__163 : 'volatile' ;

// White space and comments.

Whitespace : ( ' ' | '\t' | EndOfLine ) { $channel = 99; } ;

fragment EndOfLine : ( '\r\n' )=> '\r\n' | '\r' | '\n' ;

Comment : ( SingleLineComment | CComment ) { $channel = 99; } ;

fragment SingleLineComment : '//' ( ~( '\n' | '\r' ) )* EndOfLine ;

fragment CComment : '/*' ( options { greedy = false; } : . )* '*/' ;

// Macros that are a bare word, or a word directly followed by its arguments. They precede ID and so
// take precedence over it.

CFMacroEater
    : ( 'CF_RETURNS_RETAINED' | 'CF_RETURNS_NOT_RETAINED' | 'CF_RELEASES_ARGUMENT' |
       'CF_CONSUMED' | 'CF_AUTOMATED_REFCOUNT_UNAVAILABLE' | 'CF_IMPLICIT_BRIDGING_ENABLED' |
       'CF_IMPLICIT_BRIDGING_DISABLED' | 'NS_AUTOMATED_REFCOUNT_UNAVAILABLE' |
       'NS_AUTOMATED_REFCOUNT_WEAK_UNAVAILABLE' | 'NS_ASSUME_NONNULL_BEGIN' |
       'NS_ASSUME_NONNULL_END' | 'NS_DESIGNATED_INITIALIZER' | 'NS_NOESCAPE' |
       'NS_RELEASES_ARGUMENT' | 'NS_REPLACES_RECEIVER' | 'NS_REQUIRES_NIL_TERMINATION' |
       'NS_REQUIRES_PROPERTY_DEFINITIONS' | 'NS_REQUIRES_SUPER' | 'NS_RETURNS_INNER_POINTER' |
       'NS_RETURNS_NOT_RETAINED' | 'NS_RETURNS_RETAINED' | 'NS_ROOT_CLASS' | 'NS_UNAVAILABLE' |
       'NS_VALID_UNTIL_END_OF_SCOPE' | 'DEPRECATED_ATTRIBUTE' | '__autoreleasing' | '__kindof' |
       '__nullable' | '_Nullable' | '__nonnull' | '_Nonnull' | '__null_unspecified' |
       '__covariant' | '__contravariant' | '__unsafe_unretained' | 'cg_nullable' |
       'CG_NONNULL_ARRAY' | 'CG_NULLABLE_ARRAY' | 'CG_BOXABLE'
      | ( 'AVAILABLE_MAC_OS_X_VERSION' | 'AVAILABLE_QTKIT_VERSION' |
         'AVAILABLE_IN_WEBKIT_VERSION' | 'AVAILABLE_WEBKIT_VERSION' |
         'DEPRECATED_IN_MAC_OS_X_VERSION_'
        ) ( 'A' .. 'Z' | '0' .. '9' | '_' )*
      ) { $channel = 99; }
    ;

MiscMacroEater : ( 'ALWAYS_STEP_OVER' | 'CLANG_ANALYZER_NORETURN' ) { $channel = 99; } ;

LibCPPMacroEater
    : ( ( '_LIBCPP_' ( LetterOrDigit )+ BalanceParens ) | ( '_LIBCPP_' ( LetterOrDigit )+ ) )
      { $channel = 99; }
    ;

ID : Letter ( LetterOrDigit )* { vexltags::HideFilteredWord(LEXER, ctx->fileState); } ;

fragment Letter : 'A' .. 'Z' | '_' | 'a' .. 'z' ;

fragment LetterOrDigit : Letter | '0' .. '9' ;

fragment Digit : '0' .. '9' ;

// Macros with arguments. They follow ID, so the characters after the word decide.

AvailabilityMacroEater
    : ( ( 'ATS_AVAILABLE' | 'ATS_DEPRECATED' | 'API_DEPRECATED' | 'API_AVAILABLE' |
           'API_UNAVAILABLE' | 'CF_AVAILABLE' | 'CF_ENUM_AVAILABLE' | 'CF_ENUM_DEPRECATED' |
           'CF_DEPRECATED' | 'CF_IMPLICIT_BRIDGING_' | 'CG_AVAILABLE' | 'CG_DEPRECATED' |
           'CT_AVAILABLE' | 'CT_ENUM_DEPRECATED' | 'CT_DEPRECATED' | 'IMAGEIO_AVAILABLE' |
           'NS_AVAILABLE' | 'NS_CLASS_AVAILABLE' | 'NS_DEPRECATED' | 'NS_ENUM_AVAILABLE' |
           'NS_ENUM_DEPRECATED' | '__DARWIN_ALIAS' | '__OSX_AVAILABLE' | 'SPI_AVAILABLE' |
           'SPI_UNAVAILABLE' | 'SPI_DEPRECATED' | '_ALIGNAS'
        ) ( 'A' .. 'Z' | '_' )*
      | 'CF_AUTOMATED_REFCOUNT_UNAVAILABLE' | 'IOSFC_AVAILABLE_STARTING' |
         'WEBKIT_OBJC_METHOD_ANNOTATION' | 'NS_FORMAT_FUNCTION' | 'NS_FORMAT_ARGUMENT' |
         'NS_SWIFT_UNAVAILABLE'
      ) ( ' ' | '\t' )* BalanceParens { $channel = 99; }
    ;

XXSwiftNameEater
    : ( 'NS_SWIFT_NAME' | 'CF_SWIFT_NAME' | 'MPS_SWIFT_NAME' ) ( ' ' | '\t' )* BalanceParens
      { $channel = 99; }
    ;

GeneralMacroEater
    : 'UNIT_TEST' ( 'A' .. 'Z' | '_' )* ( ' ' | '\t' )* BalanceParens { $channel = 99; }
    ;

// Counts parentheses only; those in strings and comments count too.
fragment BalanceParens : '(' ( BalanceParens | ~( '(' | ')' ) )* ')' ;

fragment BalanceSquareBrackets : '[' ( BalanceSquareBrackets | ~( '[' | ']' ) )* ']' ;

AttributeEater
    : ( '__attribute__' ( ' ' | '\t' )* '((' ( BalanceParens | ~( '(' | ')' ) )* '))'
      | '[[' ( BalanceSquareBrackets | ~( '[' | ']' ) )* ']]'
      ) { $channel = 99; }
    ;

// The text of the token is the name of the enum.
NsOptionsMacro
@declarations { ANTLR3_MARKER name = 0; pANTLR3_STRING text = NULL; }
    : ( 'CF_OPTIONS' | 'NS_OPTIONS' | 'NS_ENUM' | 'CF_ENUM' ) ( ' ' | '\t' )*
      '(' ( ' ' | '\t' | LetterOrDigit )+ ',' ( ' ' | '\t' )*
      { name = GETCHARINDEX(); } ( LetterOrDigit )+ { text = vexltags::TextSince(INPUT, name); }
      ( ' ' | '\t' )* ')'
      { SETTEXT(text); }
    ;

// Preprocessor lines and conditional code. Semantic predicates are evaluated at the '#'.

// The text of the token is the name of the macro. A comment after it is part of the token, line
// ends included; an unclosed comment is text like any other. A search of the input tells whether a
// comment is closed: a speculative match would scan to the end of the file for each unclosed one.
Define
@declarations { ANTLR3_MARKER name = 0; pANTLR3_STRING text = NULL; }
    : '#' ( ' ' | '\t' )* 'define' ( ' ' | '\t' )+
      { name = GETCHARINDEX(); } Letter ( LetterOrDigit )*
      { text = vexltags::TextSince(INPUT, name); }
      ( ~( '\n' | '\r' | 'A' .. 'Z' | '_' | 'a' .. 'z' | '0' .. '9' )
        ( options { k = 1; }
        : { vexltags::CCommentAhead(INPUT, ctx->conditionals) }? CComment
        | PreprocContinuation
        )*
      )?
      { SETTEXT(text); }
    ;

// A backslash and a line end, or any character but a line end.
fragment PreprocContinuation : '\\\n' | '\\\r\n' | '\\\r' | ~( '\n' | '\r' ) ;

// The rest of a line and of the lines that continue it, up to a line end or the end of the input.
fragment PreprocLineEater : ( PreprocContinuation )* ( '\n' | '\r' )? ;

MiscPreproc
    : ( '#' ( ' ' | '\t' )* 'endif' PreprocLineEater
      | '#' ( ' ' | '\t' )* 'error' PreprocLineEater
      | '#' ( ' ' | '\t' )* 'warning' PreprocLineEater
      | '#' ( ' ' | '\t' )* 'include' PreprocLineEater
      | '#' ( ' ' | '\t' )* 'import' PreprocLineEater
      | '#' ( ' ' | '\t' )* 'undef' PreprocLineEater
      | '#macro' PreprocLineEater
      | '#' ( ' ' | '\t' )* 'pragma' PreprocLineEater
      ) { $channel = 99; }
    ;

// The body of a condition that is known to be false, through the line of the '#endif', '#else' or
// '#elif' that closes it. C++ scans it without recursion, since bodies nest to any depth.
fragment IfZeroBodyEater : { vexltags::EatIfZeroBody(INPUT, ctx->conditionals) }? ;

PreprocIf
    : ( { vexltags::IfZeroMatch(vexltags::CharsAhead(INPUT)) }?
        '#' ( ' ' | '\t' )* 'if' ( ' ' | '\t' )+ '0' PreprocLineEater IfZeroBodyEater
      | { vexltags::IfDefinedWellKnownNegative(vexltags::CharsAhead(INPUT)) }?
        '#' ( ' ' | '\t' )* 'ifdef' PreprocLineEater IfZeroBodyEater
      | { !vexltags::IfZeroMatch(vexltags::CharsAhead(INPUT)) }?
        '#' ( ' ' | '\t' )* 'if' PreprocLineEater
      ) { $channel = 99; }
    ;

// The rest of a conditional after one of its lines, through the line of its '#endif'. Includes
// nested conditionals.
fragment IfdefEater : { vexltags::EatToEndif(INPUT, ctx->conditionals) }? ;

ElseEater
    : ( { vexltags::ElifZeroMatch(vexltags::CharsAhead(INPUT)) }?
        '#' ( ' ' | '\t' )* 'elif' ( ' ' | '\t' )+ '0' PreprocLineEater IfZeroBodyEater
      | { !vexltags::ElifZeroMatch(vexltags::CharsAhead(INPUT)) }?
        '#' ( ' ' | '\t' )* ( 'elif' | 'else' ) PreprocLineEater IfdefEater
      ) { $channel = 99; }
    ;

PreprocJunk : '#i' EndOfLine { $channel = 99; } ;

// Objective-C keywords.

Interface : '@interface' ;
Implementation : '@implementation' ;
Protocol : '@protocol' ;
End : '@end' ;

// Literals.

StringLiteral
    : '"' ( Escape | '\\\n' | '\\\r' | '\\\r\n' | ~( '\n' | '\r' | '"' | '\\' ) )* '"'
    ;

CharLiteral : '\'' ( Escape | ~( '\'' | '\\' | '\n' | '\r' ) )+ '\'' ;

fragment Escape
    : '\\' ( '"' | '\'' | '?' | '\\' | 'a' | 'b' | 'f' | 'n' | 'r' | 't' | 'v'
           | ( Digit )+
           | 'x' ( '0' .. '9' | 'A' .. 'F' | 'a' .. 'f' )+
           )
    ;

// An apostrophe separates digits before the point and in hexadecimal, but not after the point. The
// forms share their leading digits, so that a long number is not read once for each form.
Number
    : '0' ( 'x' | 'X' ) ( 'a' .. 'f' | 'A' .. 'F' | Digit )
      ( 'a' .. 'f' | 'A' .. 'F' | Digit | '\'' )* ( LongSuffix | UnsignedSuffix )*
    | ( Digit ) ( Digit | '\'' )*
      ( ( '.' ( Digit )* ( Exponent )? | Exponent ) ( FloatSuffix | LongSuffix )?
      | ( LongSuffix | UnsignedSuffix )*
      )
    ;

fragment LongSuffix : 'L' | 'l' ;
fragment UnsignedSuffix : 'U' | 'u' ;
fragment FloatSuffix : 'F' | 'f' ;
fragment Exponent : ( 'e' | 'E' ) ( '+' | '-' )? ( Digit )+ ;

// Operators and punctuation. There is no '>>' and no '>>=': template brackets close one by one.

SCOPE : '::' ;
LESSTHAN : '<' ;
GREATERTHAN : '>' ;
SEMICOLON : ';' ;
AMPERSAND : '&' ;
STAR : '*' ;
LSQUARE : '[' ;
RSQUARE : ']' ;
COMMA : ',' ;
LPAREN : '(' ;
RPAREN : ')' ;
LCURLY : '{' ;
RCURLY : '}' ;
TILDE : '~' ;
ASSIGN : '=' ;
OR : '||' ;
SHIFTLEFT : '<<' ;
AND : '&&' ;
PLUSEQUAL : '+=' ;
MINUSEQUAL : '-=' ;
TIMESEQUAL : '*=' ;
DIVIDEEQUAL : '/=' ;
MODEQUAL : '%=' ;
BITWISEXOREQUAL : '^=' ;
BITWISEANDEQUAL : '&=' ;
BITWISEOREQUAL : '|=' ;
NOTEQUAL : '!=' ;
EQUAL : '==' ;
LESSOREQUAL : '<=' ;
GREATEROREQUAL : '>=' ;
SHIFTLEFTEQUAL : '<<=' ;
PLUSPLUS : '++' ;
MINUSMINUS : '--' ;
POINTERTOMBR : '->*' ;
POINTERTO : '->' ;
PLUS : '+' ;
MINUS : '-' ;
DIVIDE : '/' ;
MOD : '%' ;
BITWISEXOR : '^' ;
BITWISEOR : '|' ;
NOT : '!' ;
COLON : ':' ;
ELLIPSIS : '...' ;
QUESTIONMARK : '?' ;
DOTMBR : '.*' ;
DOT : '.' ;
SPACESHIP : '<=>' ;

