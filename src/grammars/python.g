// SPDX-License-Identifier: MIT
// Python to the extent that tags need: indentation, `class` and `def`.
grammar python;

options {
  language = C;
  tokenVocab = pythonVocabulary;
}

@lexer::includes {
#include "engine/parser_ops.h"
#include "parserstate/lexer_state.h"
}

@lexer::context {
  vexltags::TagsLexerState* fileState;
}

@lexer::members {
#include "engine/recognizer_support.h"
}

@parser::includes {
#include "engine/parser_ops.h"
#include "engine/std_string.h"
#include "parserstate/lexer_state.h"
#include "python/python_tags_parser.h"
}

@parser::context {
  vexltags::PythonTagsParser* builder;
  vexltags::TagsLexerState* fileState;
  vexltags::TokenTable* tokens;
  vexltags::FollowStack* follows;
  vexltags::TrialTable* trials;
  vexltags::LoopRuns* loops;
}

@parser::members {
#include "engine/recognizer_support.h"
}

// --- Parser ---

inputStream
  : inputTokens EOF
  ;

inputTokens
  : ( inputToken )*
  ;

inputToken
  : ( ( PY_LeadingWithespace )? 'class' )=> classdef
  | ( ( PY_LeadingWithespace )? 'def' )=> funcdef
  | ( PY_LeadingWithespace )=> PY_LeadingWithespace
  | PY_NAME
  | ':'
  | '('
  | ')'
  ;

classdef
@declarations { int indent = 0; }
  : ( w = PY_LeadingWithespace { indent = vexltags::IndentWidth($w); } )?
    'class' n = PY_NAME ( inheritance )? ':'
    { ctx->builder->DumpClassDef(vexltags::TokenString($n), indent, vexltags::TokenLine($n)); }
  ;

funcdef
@declarations { int indent = 0; }
  : ( w = PY_LeadingWithespace { indent = vexltags::IndentWidth($w); } )?
    'def' n = PY_NAME ( parameters )? ( ':' | '->' )
    { ctx->builder->DumpFuncDef(vexltags::TokenString($n), indent, vexltags::TokenLine($n)); }
  ;

balanceParens
  : '(' ( ( '(' )=> balanceParens | ( ~( '(' | ')' ) )=> ~( '(' | ')' ) )* ')'
  ;

inheritance
  : balanceParens
  ;

parameters
  : balanceParens
  ;

// --- Lexer ---

T__17 : ':' ;
T__18 : '(' ;
T__19 : ')' ;
T__20 : 'class' ;
T__21 : 'def' ;
T__22 : '->' ;

PY_LeadingWithespace
  : { ctx->pLexer->getCharPositionInLine(ctx->pLexer) == 0 }?
    ( ' ' | '\t' )+ ( PY_EndOfLine { $channel = HIDDEN; } )?
  ;

PY_Whitespace
  : { ctx->pLexer->getCharPositionInLine(ctx->pLexer) > 0 }? ( '\t' | ' ' )+ { $channel = HIDDEN; }
  | PY_EndOfLine { $channel = HIDDEN; }
  ;

PY_COMMENT
  : ( '\t' | ' ' )* '#' ( ~( '\n' | '\r' ) )* PY_EndOfLine { $channel = HIDDEN; }
  ;

PY_StringLiteral
  : ( 'r' | 'R' )? ( PY_ShortString | PY_LongString ) { $channel = HIDDEN; }
  ;

fragment PY_ShortString
  : '"' ( PY_Escape | ~( '\\' | '"' | '\n' ) )* '"'
  | '\'' ( PY_Escape | ~( '\\' | '\'' | '\n' ) )* '\''
  ;

fragment PY_LongString
  : '"""' ( PY_Triquote )* '"""'
  | '\'\'\'' ( PY_Tryapos )* '\'\'\''
  ;

fragment PY_Tryapos
  : ( '\'' '\''? )? ( PY_Escape | ~( '\\' | '\'' ) )+
  ;

fragment PY_Triquote
  : ( '"' '"'? )? ( PY_Escape | ~( '\\' | '"' ) )+
  ;

fragment PY_Escape
  : '\\' .
  ;

fragment PY_EndOfLine
  : ( '\r\n' )=> '\r\n'
  | '\r'
  | '\n'
  ;

PY_NAME
  : PY_Letter ( PY_LetterOrDigit )*
  ;

fragment PY_Letter
  : 'A' .. 'Z' | '_' | 'a' .. 'z'
  ;

fragment PY_LetterOrDigit
  : '0' .. '9' | 'A' .. 'Z' | '_' | 'a' .. 'z'
  ;
