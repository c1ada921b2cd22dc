// SPDX-License-Identifier: MIT
// Swift to the extent that tags need: declarations, and enough of types and expressions to skip
// them.
//
// Rules that nest have the option `memoize`: their outcome in a speculative parse is kept. It only
// saves time.
//
// The order of alternatives and the explicit predicates decide how a construct is read. Function
// bodies, accessors and closures are skipped as balanced text. There are no statements: nothing is
// skipped between declarations, and a token that cannot begin one ends the tags of the file.
grammar swift;

options {
  language = C;
  tokenVocab = swiftVocabulary;
}

@lexer::includes {
#include "engine/parser_ops.h"
#include "parserstate/lexer_state.h"
#include "swift/regex_head.h"
}

@lexer::context {
  vexltags::TagsLexerState* fileState;
}

@lexer::members {
#include "engine/recognizer_support.h"
#include "grammars/swift_lexer_predicates.h"
}

@parser::includes {
#include "engine/parser_ops.h"
#include "engine/std_string.h"
#include "parserstate/lexer_state.h"
#include "swift/operators.h"
#include "swift/swift_names.h"
#include "swift/swift_tags_parser.h"
}

@parser::context {
  vexltags::SwiftTagsParser* builder;
  vexltags::TagsLexerState* fileState;
  vexltags::TokenTable* tokens;
  vexltags::FollowStack* follows;
  vexltags::TrialTable* trials;
  vexltags::LoopRuns* loops;
}

@parser::members {
#include "engine/recognizer_support.h"

#include "grammars/swift_parser_predicates.h"
}

// --- Lexer: keywords and other literals, by number; the first rule that matches wins ---

T__68 : 'func' ;
T__69 : 'class' ;
T__70 : 'convenience' ;
T__71 : 'dynamic' ;
T__72 : 'final' ;
T__73 : 'infix' ;
T__74 : 'lazy' ;
T__75 : 'optional' ;
T__76 : 'override' ;
T__77 : 'postfix' ;
T__78 : 'prefix' ;
T__79 : 'required' ;
T__80 : 'static' ;
T__81 : 'unowned' ;
T__82 : 'safe' ;
T__83 : 'unsafe' ;
T__84 : 'weak' ;
T__85 : 'mutating' ;
T__86 : 'nonisolated' ;
T__87 : 'nonmutating' ;
T__88 : 'async' ;
T__89 : 'throws' ;
T__90 : 'rethrows' ;
T__91 : '->' ;
T__92 : 'where' ;
T__93 : 'init' ;
T__94 : 'deinit' ;
T__95 : 'subscript' ;
T__96 : 'await' ;
T__97 : 'try' ;
T__98 : 'self' ;
T__99 : 'super' ;
T__100 : '#filePath' ;
T__101 : '#fileID' ;
T__102 : '#file' ;
T__103 : '#line' ;
T__104 : '#column' ;
T__105 : '#function' ;
T__106 : '#dsohandle' ;
T__107 : '#colorLiteral' ;
T__108 : 'red' ;
T__109 : 'green' ;
T__110 : 'blue' ;
T__111 : 'alpha' ;
T__112 : '#fileLiteral' ;
T__113 : 'resourceName' ;
T__114 : '#imageLiteral' ;
T__115 : 'nil' ;
T__116 : '#available' ;
T__117 : 'inout' ;
T__118 : '#selector' ;
T__119 : 'let' ;
T__120 : 'var' ;
T__121 : 'typealias' ;
T__122 : 'actor' ;
T__123 : 'struct' ;
T__124 : 'protocol' ;
T__125 : 'extension' ;
T__126 : 'private' ;
T__127 : 'fileprivate' ;
T__128 : 'internal' ;
T__129 : 'public' ;
T__130 : 'open' ;
T__131 : 'set' ;
T__132 : 'indirect' ;
T__133 : 'enum' ;
T__134 : 'case' ;
T__135 : 'import' ;
T__136 : 'Any' ;
T__137 : 'Self' ;
T__138 : 'Type' ;
T__139 : 'Protocol' ;
T__140 : 'some' ;
T__141 : 'true' ;
T__142 : 'false' ;
T__143 : 'willSet' ;
T__144 : 'of' ;
T__145 : '0x' ;
T__146 : '0b' ;
T__147 : '0o' ;
T__148 : '$' ;

// --- Lexer: single characters; an operator of several characters is a run of these ---

SW_SEMI : ';' ;
SW_LCURLY : '{' ;
SW_RCURLY : '}' ;
SW_LPAREN : '(' ;
SW_RPAREN : ')' ;
SW_LT : '<' ;
SW_GT : '>' ;
SW_COMMA : ',' ;
SW_COLON : ':' ;
SW_ASSIGN : '=' ;
SW_AMPERSAND : '&' ;
SW_QUESTIONMARK : '?' ;
SW_NOT : '!' ;
SW_DOT : '.' ;
SW_LSQUARE : '[' ;
SW_RSQUARE : ']' ;
SW_BACKSLASH : '\\' ;
SW_MINUS : '-' ;
SW_PLUS : '+' ;
SW_STAR : '*' ;
SW_MOD : '%' ;
SW_TILDE : '~' ;
SW_BITWISEOR : '|' ;
SW_BITWISEXOR : '^' ;
SW_BACKTICK : '`' ;

// --- Lexer: names and numbers ---

SW_Any
  : 'any'
  ;

fragment SW_Letter
  : 'A'..'Z' | '_' | 'a'..'z'
  ;

fragment SW_Digit
  : '0'..'9'
  ;

fragment SW_LetterOrDigit
  : SW_Digit | SW_Letter
  ;

fragment SW_Hexadecimal_digit
  : '0'..'9' | 'A'..'F' | 'a'..'f'
  ;

Binary_literal
  : '0b' ( '0' | '1' ) ( '0' | '1' | '_' )*
  ;

Octal_literal
  : '0o' '0'..'7' ( '0'..'7' | '_' )*
  ;

Hexadecimal_literal
  : '0x' SW_Hexadecimal_digit ( SW_Hexadecimal_digit | '_' )*
  ;

Decimal_literal
  : SW_Digit ( SW_Digit | '_' )*
  ;

fragment SW_DecimalDigits
  : ( SW_Digit )+
  ;

// A single letter. Precedes SW_Identifier, which matches it too.
SW_FloatingPoint_E
  : 'E' | 'e'
  ;

SW_FloatingPoint_P
  : 'P' | 'p'
  ;

SW_Identifier
  : '$' ( SW_Digit )+
  | SW_Letter ( SW_LetterOrDigit )*
  | '`' SW_Letter ( SW_LetterOrDigit )* '`'
  ;

fragment Decimal_fraction
  : '.' SW_Digit ( SW_Digit | '_' )*
  ;

fragment Decimal_exponent
  : ( 'E' | 'e' ) ( '+' | '-' )? SW_Digit ( SW_Digit | '_' )*
  ;

SW_ELLIPSIS
  : '..' ( '.' | '<' )?
  ;

// --- Lexer: hidden tokens, which stay in the buffer ---

fragment SW_EndOfLine
  : ( '\r\n' )=> '\r\n' | '\n' | '\r' | EOF
  ;

SW_Whitespace
  : ( ' ' | '\t' | SW_EndOfLine ) { $channel = HIDDEN; }
  ;

SW_SingleLineComment
  : '//' ( ~( '\n' | '\r' ) )* SW_EndOfLine { $channel = HIDDEN; }
  ;

SW_CComment
  : '/*' ( options { greedy = false; } : ( '/*' )=> SW_CComment | . )* '*/' { $channel = HIDDEN; }
  ;

fragment SW_PreprocContinuation
  : '\\\n' | '\\\r\n' | '\\\r' | ~( '\n' | '\r' )
  ;

fragment SW_PreprocLineEater
  : ( SW_PreprocContinuation )* ( '\n' | '\r' | EOF )
  ;

// '#elseif' matches as '#else'. The parser sees every branch of a conditional.
SW_CompilerControlStatements
  : ( '#if' | '#else' | '#endif' ) ( SW_PreprocContinuation )* ( '\n' | '\r' | EOF )
    { $channel = HIDDEN; }
  ;

SW_ErrorStatement
  : ( '#error' | '#warning' ) SW_BalanceParens { $channel = HIDDEN; }
  ;

// Balanced text ignores strings and comments: parentheses in them count.
fragment SW_BalanceParens
  : '(' ( ( '(' )=> SW_BalanceParens | ~( '(' | ')' ) )* ')'
  ;

fragment SW_BalanceNonemptyParens
  : '(' ( ( '(' )=> SW_BalanceParens | ~( '(' | ')' ) )+ ')'
  ;

fragment SW_BalanceAngleBrackets
  : '<' ( ( '<' )=> SW_BalanceAngleBrackets | ~( '<' | '>' ) )* '>'
  ;

fragment Attribute_Identifier
  : '@' ( SW_Letter )+
  ;

fragment Attribute_With_Parameters_Identifier
  : '@available' | '@Environment' | '@ModelPublished' | '@objc' | '@_spi'
  ;

Attribute
  : ( Attribute_Identifier SW_BalanceAngleBrackets
    | ( Attribute_With_Parameters_Identifier ( ' ' )* SW_BalanceNonemptyParens )=>
      Attribute_With_Parameters_Identifier ( ' ' )* SW_BalanceNonemptyParens
    | Attribute_Identifier
    ) { $channel = HIDDEN; }
  ;

// --- Lexer: a slash that begins no comment ---

// Only the head of a regular expression. The parser consumes the tokens up to the closing slash.
RegexHead
  : { IsRegexHead(ctx) }? '/'
  ;

SW_DIVIDE : '/' ;

// --- Lexer: strings; an interpolation is balanced text inside the one token ---

SW_StringLiteral
  : '"""' ( SW_Quoted_mutline_text_item )* '"""'
  | '"' ( SW_Interpolated_text_item )* '"'
  ;

// A gated predicate: the loop decides by one character, and would otherwise end at any quote.
SW_RawStringLiteral
  : '#"' ( { !IsRawStringEnd(ctx) }?=> ( ( '\\#(' )=> '\\#' SW_BalanceParens | . ) )* '"#'
  ;

fragment SW_Quoted_text
  : ( SW_Quoted_text_item )+
  ;

fragment SW_Quoted_text_item
  : SW_Escaped_character | ~( '"' | '\\' | '\n' | '\r' )
  ;

fragment SW_Interpolated_text_item
  : ( '\\' '(' )=> '\\' SW_BalanceParens | SW_Quoted_text_item
  ;

fragment SW_Quoted_mutline_text_item
  : '"' ~'"'
  | '""' ~'"'
  | ( '\\' '(' )=> '\\' SW_BalanceParens
  | SW_Escaped_character
  | ~( '"' | '\\' )
  ;

fragment SW_Escaped_character
  : '\\' ( '"' | '\'' | '0' | '\\' | 'n' | 'r' | 't' )
  | '\\u' '{' ( SW_Hexadecimal_digit )+ '}'
  | '\\x' SW_Hexadecimal_digit SW_Hexadecimal_digit
  ;

// --- Declarations ---

inputStream
  : inputTokens EOF
  ;

inputTokens
  : satements
  ;

satements
  : ( statement )+
  ;

// The body of a type is not a rule: its closing brace is a statement.
statement
  : declaration ( SW_SEMI )?
  | r = SW_RCURLY { ctx->builder->PopRCurly(vexltags::TokenLine($r)); }
  ;

declaration
  : import_declaration
  | constant_declaration
  | variable_declaration
  | typealias_declaration
  | function_declaration
  | enum_declaration
  | struct_declaration
  | class_declaration
  | protocol_declaration
  | initializer_declaration
  | deinitializer_declaration
  | extension_declaration
  | subscript_declaration
  ;

// --- Declarations: functions ---

function_declaration
  : function_head n = function_name ( generic_parameter_clause )? ps = function_signature
    ( generic_where_clause )? ( ( SW_LCURLY )=> curlyEater )?
    { ctx->builder->DumpSwiftFunction($n.result.text, $ps.result, $n.result.line); }
  ;

function_head
  : ( attributes )? ( declaration_modifier )* 'func'
  ;

declaration_modifier
  : 'class' | 'convenience' | 'dynamic' | 'final' | 'infix' | 'lazy' | 'optional' | 'override'
  | 'postfix' | 'prefix' | 'required' | 'static'
  | 'unowned' ( SW_LPAREN 'safe' SW_RPAREN | SW_LPAREN 'unsafe' SW_RPAREN )?
  | 'weak' | access_level_modifier | 'mutating' | 'nonisolated' | 'nonmutating'
  ;

function_name returns [vexltags::Name result]
  : n = declarationIdentifier { $result += $n.result; }
  | o = operator_ { $result += $o.result; }
  ;

function_signature returns [vexltags::ParamList result]
  : p = parameter_clause { $result = $p.result; }
    ( 'async' )? ( 'throws' | 'rethrows' )? ( function_result )?
  ;

function_result
  : '->' ( ( attributes )=> attributes )? type
  ;

parameter_clause returns [vexltags::ParamList result]
  : SW_LPAREN ( l = parameter_list { $result = $l.result; } )? SW_RPAREN
  ;

parameter_list returns [vexltags::ParamList result]
  : p = parameter { $result.Add($p.result); } ( SW_COMMA p = parameter { $result.Add($p.result); } )*
  ;

parameter returns [vexltags::Param result]
  : ( attributes )? ( e = external_parameter_name )? l = local_parameter_name type_annotation
    ( default_argument_clause )? ( SW_ELLIPSIS )?
    { $result = vexltags::ParameterLabel($e.result, $l.result); }
  ;

default_argument_clause
  : SW_ASSIGN expression
  ;

// --- Declarations: initialisers and subscripts, whose parameters are dropped ---

initializer_declaration
  : ( attributes )? ( declaration_modifier )* i = 'init' ( SW_QUESTIONMARK | SW_NOT )?
    ( generic_parameter_clause )?
    ( parameter_clause | SW_LPAREN declarationIdentifier SW_RPAREN )
    ( 'async' )? ( 'throws' | 'rethrows' )? ( generic_where_clause )? ( ( SW_LCURLY )=> curlyEater )?
    { ctx->builder->DumpKeywordFunction($i); }
  ;

deinitializer_declaration
  : ( attributes )? d = 'deinit' ( ( SW_LCURLY )=> curlyEater )?
    { ctx->builder->DumpKeywordFunction($d); }
  ;

subscript_declaration
  : ( attributes )? ( declaration_modifier )* s = 'subscript' ( generic_parameter_clause )?
    parameter_clause function_result ( generic_where_clause )? ( ( SW_LCURLY )=> curlyEater )?
    { ctx->builder->DumpKeywordFunction($s); }
  ;

// --- Declarations: constants and variables ---

constant_declaration
  : ( attributes )? ( declaration_modifier )* 'let'
    p = pattern_initializer { ctx->builder->DumpEach(vexltags::kConstantKind, $p.result); }
    ( SW_COMMA p2 = pattern_initializer { ctx->builder->DumpEach(vexltags::kConstantKind, $p2.result); } )*
  ;

// The first form is a computed or observed property. A brace after an initialiser is read as its
// trailing closure, so the first form fails there and the second takes the declaration.
variable_declaration
  : ( attributes )? ( declaration_modifier )* 'var'
    ( ( declarationIdentifier ( type_annotation )? ( initializer )? SW_LCURLY )=>
      n = declarationIdentifier ( type_annotation )? ( initializer )? curlyEater
      { ctx->builder->DumpNamed(vexltags::kVariableKind, $n.result); }
    | p = pattern_initializer { ctx->builder->DumpEach(vexltags::kVariableKind, $p.result); }
      ( SW_COMMA p2 = pattern_initializer { ctx->builder->DumpEach(vexltags::kVariableKind, $p2.result); } )*
    )
  ;

pattern_initializer returns [vexltags::VectorOfName result]
  : p = pattern { $result = $p.result; } ( initializer )?
  ;

initializer
  : SW_ASSIGN expression
  ;

// --- Declarations: types ---

typealias_declaration
  : ( attributes )? ( access_level_modifier )? 'typealias' n = declarationIdentifier
    ( generic_parameter_clause )? SW_ASSIGN type
    { ctx->builder->DumpNamed(vexltags::kTypeAliasKind, $n.result); }
  ;

class_declaration
  : ( attributes )? ( access_level_modifier )? ( 'final' )? ( 'class' | 'actor' )
    n = declarationIdentifier ( generic_parameter_clause )? ( type_inheritance_clause )?
    ( generic_where_clause )? SW_LCURLY
    { ctx->builder->OpenType(vexltags::kClassKind, $n.result); }
  ;

struct_declaration
  : ( attributes )? ( access_level_modifier )? 'struct' n = declarationIdentifier
    ( generic_parameter_clause )? ( type_inheritance_clause )? ( generic_where_clause )? SW_LCURLY
    { ctx->builder->OpenType(vexltags::kStructKind, $n.result); }
  ;

protocol_declaration
  : ( attributes )? ( access_level_modifier )? 'protocol' n = declarationIdentifier
    ( type_inheritance_clause )? ( generic_where_clause )? SW_LCURLY
    { ctx->builder->OpenType(vexltags::kProtocolKind, $n.result); }
  ;

extension_declaration
  : ( attributes )? ( access_level_modifier )? 'extension' n = type_identifier
    ( type_inheritance_clause )? ( generic_where_clause )? SW_LCURLY
    { ctx->builder->OpenType(vexltags::kExtensionKind, $n.result); }
  ;

access_level_modifier
  : ( 'private' | 'fileprivate' | 'internal' | 'public' | 'open' ) ( SW_LPAREN 'set' SW_RPAREN )?
  ;

type_inheritance_clause
  : SW_COLON ( attributes )? type_identifier ( SW_COMMA ( attributes )? type_identifier )*
  ;

enum_declaration
  : ( attributes )? ( access_level_modifier )? union_style_enum
  ;

union_style_enum
  : ( 'indirect' )? 'enum' n = declarationIdentifier ( generic_parameter_clause )?
    ( type_inheritance_clause )? ( generic_where_clause )? SW_LCURLY
    { ctx->builder->OpenEnum($n.result); }
    ( declaration
    | ( attributes )? ( 'indirect' )? 'case' enumCase ( SW_COMMA enumCase )*
    )*
    r = SW_RCURLY { ctx->builder->PopRCurly(vexltags::TokenLine($r)); }
  ;

enumCase
  : n = declarationIdentifier ( tuple_type | raw_value_assignment )?
    { ctx->builder->DumpEnumerator($n.result); }
  ;

raw_value_assignment
  : SW_ASSIGN raw_value_literal
  ;

// --- Declarations: imports, which make no tag ---

import_declaration
  : ( attributes )? 'import' import_path_identifier ( SW_DOT import_path_identifier )*
  ;

import_path_identifier
  : declarationIdentifier | operator_
  ;

// --- Balanced text by token type: a single step where the closing bracket is known ---

curlyEater
@init { if (vexltags::StepOverBrackets(ctx, SW_LCURLY, SW_RCURLY)) return; }
  : SW_LCURLY ( ( SW_LCURLY )=> curlyEater | ~( SW_LCURLY | SW_RCURLY ) )* SW_RCURLY
  ;

parenEater
@init { if (vexltags::StepOverBrackets(ctx, SW_LPAREN, SW_RPAREN)) return; }
  : SW_LPAREN ( ( SW_LPAREN )=> parenEater | ~( SW_LPAREN | SW_RPAREN ) )* SW_RPAREN
  ;

// --- Types ---

type
options { memoize = true; }
  : ( ( array_type ( SW_QUESTIONMARK | SW_NOT )* )=> array_type ( SW_QUESTIONMARK | SW_NOT )*
    | ( type_identifier SW_AMPERSAND type_identifier )=>
      protocol_composition_type ( SW_QUESTIONMARK | SW_NOT )*
    | ( dictionary_type ( SW_QUESTIONMARK | SW_NOT )* )=>
      dictionary_type ( SW_QUESTIONMARK | SW_NOT )*
    | ( function_type )=> function_type
    | ( opaque_type )=> opaque_type
    | ( type_identifier ( SW_QUESTIONMARK | SW_NOT )* )=>
      type_identifier ( SW_QUESTIONMARK | SW_NOT )*
    | ( tuple_type ( SW_QUESTIONMARK | SW_NOT )* )=> tuple_type ( SW_QUESTIONMARK | SW_NOT )*
    | 'Any' ( SW_QUESTIONMARK | SW_NOT )*
    | 'Self' ( SW_QUESTIONMARK | SW_NOT )*
    | ( SW_LPAREN type SW_RPAREN ( SW_QUESTIONMARK | SW_NOT )* )=>
      SW_LPAREN type SW_RPAREN ( SW_QUESTIONMARK | SW_NOT )*
    | SW_LPAREN type '->' type SW_RPAREN ( SW_QUESTIONMARK | SW_NOT )*
    )
    ( ( SW_DOT ( 'Type' | 'Protocol' ) ( SW_QUESTIONMARK | SW_NOT )* )=>
      SW_DOT ( 'Type' | 'Protocol' ) ( SW_QUESTIONMARK | SW_NOT )*
    )?
  ;

array_type
options { memoize = true; }
  : SW_LSQUARE type SW_RSQUARE
  ;

dictionary_type
options { memoize = true; }
  : SW_LSQUARE type SW_COLON type SW_RSQUARE
  ;

function_type
options { memoize = true; }
  : ( attributes )? function_type_argument_clause ( 'async' )? ( 'throws' | 'rethrows' )? '->' type
  ;

function_type_argument_clause
options { memoize = true; }
  : SW_LPAREN ( function_type_argument_list ( SW_ELLIPSIS )? )? SW_RPAREN
  ;

function_type_argument_list
  : function_type_argument ( SW_COMMA function_type_argument )*
  ;

function_type_argument
  : ( ( attributes )=> attributes )? ( 'inout' )? type
  | ( labelIdentifier )? labelIdentifier type_annotation
  ;

tuple_type
options { memoize = true; }
  : SW_LPAREN ( tuple_type_element ( SW_COMMA tuple_type_element )* )? SW_RPAREN
  ;

tuple_type_element_list
  : tuple_type_element ( SW_COMMA tuple_type_element_list )?
  ;

tuple_type_element
  : declarationIdentifier type_annotation | type
  ;

opaque_type
options { memoize = true; }
  : ( SW_Any | 'some' ) type
  ;

// The dotted name without generic arguments, with the line of its last part.
type_identifier returns [vexltags::Name result]
options { memoize = true; }
  : n = type_name { $result = $n.result; } ( generic_argument_clause )?
    ( ( SW_DOT ( generic_argument_clause )? type_name )=>
      SW_DOT ( generic_argument_clause )? m = type_name
      { vexltags::AppendMember($result, $m.result); }
      ( generic_argument_clause )?
    )*
  ;

type_name returns [vexltags::Name result]
  : n = declarationIdentifier { $result = $n.result; }
  ;

generic_argument_clause
options { memoize = true; }
  : SW_LT type ( SW_COMMA type )* SW_GT
  ;

type_annotation
  : ( SW_COLON attributes 'inout' type )=> SW_COLON attributes 'inout' type
  | ( SW_COLON attributes type )=> SW_COLON attributes type
  | SW_COLON ( 'inout' )? type
  ;

// Never matches, since the lexer hides attributes.
attributes
  : ( ( Attribute )=> Attribute )+
  ;

// --- Generic clauses ---

generic_parameter_clause
  : SW_LT generic_parameter_list SW_GT
  ;

generic_parameter_list
  : generic_parameter ( SW_COMMA generic_parameter )*
  ;

generic_parameter
  : ( type_name ( SW_COLON type_identifier )? )=> type_name ( SW_COLON type_identifier )?
  | type_name SW_COLON protocol_composition_type
  ;

generic_where_clause
  : 'where' requirement_list
  ;

requirement_list
  : requirement ( SW_COMMA requirement )*
  ;

requirement
  : ( conformance_requirement )=> conformance_requirement | same_type_requirement
  ;

conformance_requirement
  : ( type_identifier SW_COLON type_identifier )=> type_identifier SW_COLON type_identifier
  | type_identifier SW_COLON protocol_composition_type
  ;

same_type_requirement
  : type_identifier SW_ASSIGN SW_ASSIGN type
  ;

protocol_composition_type
options { memoize = true; }
  : type_identifier SW_AMPERSAND protocol_composition_continuation
  ;

protocol_composition_continuation
  : ( type_identifier )=> type_identifier | protocol_composition_type
  ;

// --- Patterns and parameter names ---

pattern returns [vexltags::VectorOfName result]
options { memoize = true; }
  : n = declarationIdentifier { $result.Add($n.result); } ( type_annotation )?
  | p = tuple_pattern { $result = $p.result; } ( type_annotation )?
  ;

tuple_pattern returns [vexltags::VectorOfName result]
options { memoize = true; }
  : SW_LPAREN
    ( e = tuple_pattern_element { $result.Add($e.result); }
      ( SW_COMMA e = tuple_pattern_element { $result.Add($e.result); } )*
    )?
    SW_RPAREN
  ;

tuple_pattern_element returns [vexltags::Name result]
  : ( pattern )=> p = pattern { $result = vexltags::FirstName($p.result); }
  | n = declarationIdentifier { $result = $n.result; } SW_COLON pattern
  ;

external_parameter_name returns [vexltags::Name result]
  : n = labelIdentifier { $result = $n.result; }
  ;

local_parameter_name returns [vexltags::Name result]
  : n = labelIdentifier { $result = $n.result; }
  ;

// --- Operators, classified by the tokens directly beside them ---

infix_operator
  : { isBinaryOp(ctx) }? operator_
  ;

prefix_operator
  : { isPrefixOp(ctx) }? operator_
  ;

postfix_operator
  : { isPostfixOp(ctx) }? operator_
  ;

// The line of the result is that of the token after the operator.
operator_ returns [vexltags::Name result]
options { memoize = true; }
@declarations { const auto first = INDEX(); }
  : ( operator_head ( ( operator_character )=> operator_character )*
    | SW_DOT ( ( operator_dot_character )=> operator_dot_character )+
    ) { $result = OperatorName(ctx, first); }
  ;

operator_head
  : SW_LT | SW_GT | SW_ASSIGN | SW_AMPERSAND | SW_QUESTIONMARK | SW_NOT | SW_DIVIDE | SW_MINUS
  | SW_PLUS | SW_STAR | SW_MOD | SW_BITWISEOR | SW_BITWISEXOR | SW_TILDE
  ;

operator_character
  : { operNotGenericClauseOpener(ctx) }? operator_head
  ;

operator_dot_character
  : SW_DIVIDE | SW_ASSIGN | SW_MINUS | SW_PLUS | SW_NOT | SW_STAR | SW_MOD
  | { operNotGenericClauseOpener(ctx) }? SW_LT
  | SW_GT | SW_AMPERSAND | SW_BITWISEOR | SW_BITWISEXOR | SW_TILDE | SW_QUESTIONMARK | SW_DOT
  ;

// --- Expressions, of which only the extent matters ---

expression
options { memoize = true; }
  : ( ( try_operator )=> try_operator )? ( 'await' )?
    ( ( prefix_expression SW_QUESTIONMARK expression SW_COLON expression )=>
      prefix_expression SW_QUESTIONMARK expression SW_COLON expression
    | prefix_expression ( infix_expression )*
    )
  | availability_condition
  ;

try_operator
  : 'try' ( ( SW_QUESTIONMARK | SW_NOT ) )*
  ;

infix_expression
options { memoize = true; }
  : ( infix_operator prefix_expression )=> infix_operator prefix_expression
  | ( conditional_operator ( ( try_operator )=> try_operator )? prefix_expression )=>
    conditional_operator ( ( try_operator )=> try_operator )? prefix_expression
  | assignment_operator ( ( try_operator )=> try_operator )? prefix_expression
  ;

assignment_operator
  : { isBinaryOp(ctx) }? SW_ASSIGN
  ;

conditional_operator
options { memoize = true; }
  : SW_QUESTIONMARK expression SW_COLON
  ;

optional_chaining_suffix
  : { !isBinaryOp(ctx) }? SW_QUESTIONMARK
  ;

forced_value_suffix
  : { !isBinaryOp(ctx) }? SW_NOT
  ;

prefix_expression
options { memoize = true; }
  : ( ( ( prefix_operator )=> prefix_operator )? postfix_expression )=>
    ( ( prefix_operator )=> prefix_operator )? postfix_expression
  | in_out_expression
  ;

in_out_expression
  : SW_AMPERSAND declarationIdentifier
  ;

postfix_expression
options { memoize = true; }
  : primary_expression
    ( ( function_call_suffix )=> function_call_suffix
    | ( initializer_suffix )=> initializer_suffix
    | ( explicit_member_suffix )=> explicit_member_suffix
    | ( postfix_self_suffix )=> postfix_self_suffix
    | subscript_suffix
    | ( forced_value_suffix )=> forced_value_suffix
    | ( optional_chaining_suffix )=> optional_chaining_suffix
    )*
    ( ( postfix_operator )=> postfix_operator )*
  ;

function_call_suffix
options { memoize = true; }
  : ( ( function_call_argument_clause )? trailing_closures )=>
    ( function_call_argument_clause )? trailing_closures
  | function_call_argument_clause
  ;

initializer_suffix
  : SW_DOT 'init' ( SW_LPAREN argument_names SW_RPAREN )?
  ;

argument_names
  : ( argument_name )+
  ;

argument_name
  : labelIdentifier SW_COLON
  ;

explicit_member_suffix
options { memoize = true; }
  : SW_DOT
    ( SW_DecimalDigits
    | labelIdentifier
      ( ( generic_argument_clause )=> generic_argument_clause
      | ( SW_LPAREN argument_names SW_RPAREN )=> SW_LPAREN argument_names SW_RPAREN
      )?
    )
  ;

postfix_self_suffix
  : SW_DOT 'self'
  ;

subscript_suffix
options { memoize = true; }
  : SW_LSQUARE function_call_argument_list SW_RSQUARE
  ;

function_call_argument_clause
options { memoize = true; }
  : SW_LPAREN ( function_call_argument_list )? SW_RPAREN
  ;

function_call_argument_list
options { memoize = true; }
  : function_call_argument ( SW_COMMA function_call_argument )*
  ;

function_call_argument
  : expression
  | labelIdentifier SW_COLON expression
  | operator_
  | labelIdentifier SW_COLON operator_
  ;

trailing_closure
  : closure_expression
  ;

trailing_closures
options { memoize = true; }
  : closure_expression ( labeled_trailing_closures )?
  ;

labeled_trailing_closures
  : ( labeled_trailing_closure )+
  ;

labeled_trailing_closure
  : labelIdentifier SW_COLON closure_expression
  ;

// A name whose `<` opens no argument list fails the first predicate and matches the last form,
// which leaves the `<` to the operators.
primary_expression
options { memoize = true; }
  : ( labelIdentifier ( generic_argument_clause )? )=>
    labelIdentifier ( ( generic_argument_clause )=> generic_argument_clause )?
  | ( literal_expression )=> literal_expression
  | ( self_expression )=> self_expression
  | ( superclass_expression )=> superclass_expression
  | closure_expression
  | ( SW_LPAREN expression SW_RPAREN )=> SW_LPAREN expression SW_RPAREN
  | ( tuple_expression )=> tuple_expression
  | implicit_member_expression
  | key_path_expression
  | selector_expression
  | labelIdentifier
  ;

closure_expression
  : curlyEater
  ;

self_expression
  : 'self'
    ( ( SW_DOT declarationIdentifier )=> SW_DOT declarationIdentifier
    | ( SW_DOT 'init' )=> SW_DOT 'init'
    | ( SW_LSQUARE function_call_argument_list SW_RSQUARE )=>
      SW_LSQUARE function_call_argument_list SW_RSQUARE
    )?
  ;

superclass_expression
  : 'super'
    ( ( SW_DOT declarationIdentifier )=> SW_DOT declarationIdentifier
    | ( SW_DOT 'init' )=> SW_DOT 'init'
    | ( SW_LSQUARE function_call_argument_list SW_RSQUARE )=>
      SW_LSQUARE function_call_argument_list SW_RSQUARE
    )?
  ;

implicit_member_expression
  : SW_DOT declarationIdentifier
  ;

key_path_expression
options { memoize = true; }
  : SW_BACKSLASH ( type )? SW_DOT key_path_components
  ;

key_path_components
  : key_path_component ( ( SW_DOT key_path_component )=> SW_DOT key_path_component )*
  ;

key_path_component
  : declarationIdentifier ( ( key_path_postfix )=> key_path_postfix )*
  | ( ( key_path_postfix )=> key_path_postfix )+
  ;

key_path_postfix
  : SW_QUESTIONMARK
  | SW_NOT
  | 'self'
  | SW_LSQUARE function_call_argument_list SW_RSQUARE
  ;

literal_expression
options { memoize = true; }
  : literal
  | ( array_literal )=> array_literal
  | ( dictionary_literal )=> dictionary_literal
  | playground_literal
  | '#filePath' | '#fileID' | '#file' | '#line' | '#column' | '#function' | '#dsohandle'
  ;

playground_literal
  : '#colorLiteral' SW_LPAREN 'red' SW_COLON expression SW_COMMA 'green' SW_COLON expression
    SW_COMMA 'blue' SW_COLON expression SW_COMMA 'alpha' SW_COLON expression SW_RPAREN
  | '#fileLiteral' SW_LPAREN 'resourceName' SW_COLON expression SW_RPAREN
  | '#imageLiteral' SW_LPAREN 'resourceName' SW_COLON expression SW_RPAREN
  ;

tuple_expression
options { memoize = true; }
  : SW_LPAREN ( tuple_element ( SW_COMMA tuple_element )* )? SW_RPAREN
  ;

tuple_element
  : expression
  | labelIdentifier SW_COLON expression
  ;

literal
  : numeric_literal | SW_StringLiteral | SW_RawStringLiteral | boolean_literal | 'nil' | regexLiteral
  ;

array_literal
options { memoize = true; }
  : SW_LSQUARE ( expression ( SW_COMMA expression )* ( SW_COMMA )? )? SW_RSQUARE
  ;

dictionary_literal
options { memoize = true; }
  : SW_LSQUARE SW_COLON SW_RSQUARE
  | SW_LSQUARE
    ( expression SW_COLON expression ( SW_COMMA expression SW_COLON expression )* ( SW_COMMA )? )?
    SW_RSQUARE
  ;

availability_condition
  : '#available' parenEater
  ;

selector_expression
  : '#selector' parenEater
  ;

raw_value_literal
  : numeric_literal | SW_StringLiteral | SW_RawStringLiteral | boolean_literal | regexLiteral
  ;

numeric_literal
  : ( ( SW_MINUS )? floating_point_literal )=> ( SW_MINUS )? floating_point_literal
  | ( SW_MINUS )? integer_literal
  ;

integer_literal
  : Decimal_literal | Binary_literal | Octal_literal | Hexadecimal_literal
  ;

floating_point_literal
  : Decimal_literal ( ( SW_DOT Decimal_literal )=> SW_DOT Decimal_literal )?
    ( SW_FloatingPoint_E ( SW_PLUS | SW_MINUS )? Decimal_literal )?
  | Hexadecimal_literal ( ( SW_DOT Hexadecimal_literal )=> SW_DOT Hexadecimal_literal )?
    ( SW_FloatingPoint_P ( SW_PLUS | SW_MINUS )? Hexadecimal_literal )?
  ;

boolean_literal
  : 'true' | 'false'
  ;

// A backslash consumes the token after it, so an escaped slash closes nothing.
regexLiteral
  : RegexHead ( ~( SW_BACKSLASH | SW_DIVIDE ) | SW_BACKSLASH . )* SW_DIVIDE
  ;

// --- Names: what may be declared, and what may label an argument ---

declarationIdentifier returns [vexltags::Name result]
  : t = ( SW_Any | SW_FloatingPoint_E | SW_FloatingPoint_P | SW_Identifier
        | 'convenience' | 'dynamic' | 'final' | 'infix' | 'lazy' | 'optional' | 'override'
        | 'postfix' | 'prefix' | 'required' | 'unowned' | 'safe' | 'unsafe' | 'weak' | 'mutating'
        | 'nonmutating' | 'red' | 'green' | 'blue' | 'alpha' | 'open' | 'set' | 'indirect' | 'Type'
        | 'Protocol' | 'willSet'
        ) { $result = $t; }
  ;

labelIdentifier returns [vexltags::Name result]
  : t = ( SW_Any | SW_FloatingPoint_E | SW_FloatingPoint_P | SW_Identifier
        | 'func' | 'class' | 'convenience' | 'dynamic' | 'final' | 'infix' | 'lazy' | 'optional'
        | 'override' | 'postfix' | 'prefix' | 'required' | 'static' | 'unowned' | 'safe' | 'unsafe'
        | 'weak' | 'mutating' | 'nonmutating' | 'throws' | 'rethrows' | 'where' | 'init' | 'deinit'
        | 'try' | 'self' | 'super' | 'red' | 'green' | 'blue' | 'alpha' | 'nil' | 'typealias'
        | 'struct' | 'protocol' | 'extension' | 'private' | 'fileprivate' | 'internal' | 'public'
        | 'open' | 'set' | 'indirect' | 'enum' | 'case' | 'Self' | 'Type' | 'Protocol' | 'true'
        | 'false' | 'willSet' | 'of'
        ) { $result = $t; }
  ;
