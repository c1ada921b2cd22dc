// SPDX-License-Identifier: MIT
// The actions of the C-family grammar at the end of each construct, one function for each.
#pragma once

#include <string>

#include "cfamily/function_prototype.h"
#include "cfamily/type_text.h"
#include "cfamily/vexl_tags_parser.h"
#include "parserstate/append.h"
#include "parserstate/method_prototype.h"
#include "parserstate/name.h"
#include "parserstate/param.h"

namespace vexltags {

using TypeDescriptor = ParserStateBase::TypeDescriptor;

// Lines are 1-based. A declared name always comes from a token. If an error or the time limit cuts
// a rule short, a name can be left without a line; the functions below drop it.

// Functions, variables, typedefs ----------------------------------------------------------------

/// Ends a function: tags it, unless it is a friend that is only declared, and ends a pending
/// typedef. It is a friend if `isFriend` is set or its head says so.
void EndFunction(VexlTagsParser& builder, FunctionPrototype&& prototype, bool isFriend,
                 bool isDefinition);

/// Ends a variable declaration: tags each name as a variable or member, or as a typedef if one is
/// pending.
void EndSimpleDeclaration(VexlTagsParser& builder, const TypeDescriptor& type,
                          const VectorOfName& names);
/// Ends `typedef T a, b;`.
void EndTypedef(VexlTagsParser& builder, const TypeDescriptor& type, const VectorOfName& names);
/// Ends `using name = T;`. Does not end a pending typedef.
void EndAlias(VexlTagsParser& builder, const Name& name, const TypeDescriptor& type);
/// Ends a concept. `headText` is the text of its template head.
void EndConcept(VexlTagsParser& builder, const Name& name, const std::string& headText);

/// The type of a function pointer or block: its type text and line, of no kind.
TypeDescriptor FunctionPointerType(const Param& pointer);
/// Splits a function pointer into the type of a declaration and its name, which is added to
/// `names`.
void SetFunctionPointer(const Param& pointer, TypeDescriptor& type, VectorOfName& names);

// Text of funcPointerOrBlockType ----------------------------------------------------------------

/// Starts the pointer with the type before it.
void BeginFunctionPointer(Param& pointer, const TypeDescriptor& type);
/// Appends the parameter list and the word after it, if any, to the type text. Does so only under
/// `--debugDump`, which alone shows that text: including the text of all parameters makes the cost
/// of nested function pointers quadratic in their depth.
void EndFunctionPointer(const VexlTagsParser& builder, Param& pointer, const ParamList& params,
                        const std::string& constQualifier);

// Parameters ------------------------------------------------------------------------------------

/// Names an unnamed parameter after its whole type.
void SetUnnamedParam(Param& param, const TypeDescriptor& type);
/// Appends the parameter `...`.
void AddVariadicParam(ParamList& list, int line);

// Classes, namespaces and braces ----------------------------------------------------------------

/// Names a class-like scope. The text of a template head is appended in angle brackets, unless the
/// name ends in one, as that of a specialisation does.
void NameClass(TypeDescriptor& descriptor, const Name& name, const std::string& templateText);
/// Gives an unnamed class-like scope a made-up name and the line of the next token.
void NameAnonymousClass(TypeDescriptor& descriptor, int nextTokenLine);
/// Tags a class-like scope, unless its name is made up, and opens it.
void OpenClass(VexlTagsParser& builder, const TypeDescriptor& descriptor);
/// Opens `namespace std` for a library's macro, without a tag.
void OpenStdNamespace(VexlTagsParser& builder, int line);
/// Handles `};`: closes the scope and ends a pending typedef.
void CloseScope(VexlTagsParser& builder, int semicolonLine);
/// Handles `} a, b;`: closes the scope and declares names of the closed type.
void CloseScopeWithDeclarators(VexlTagsParser& builder, const VectorOfName& names,
                               int semicolonLine);

// Enums -----------------------------------------------------------------------------------------

/// Completes the head of an enum: an unnamed one gets a made-up name and the line of the next
/// token.
void NameEnum(TypeDescriptor& descriptor, int nextTokenLine);
/// Closes the enum's brace.
void CloseEnum(VexlTagsParser& builder, int braceLine);
/// Declares the variable or typedef named after an enum.
void DeclareEnumName(VexlTagsParser& builder, const TypeDescriptor& descriptor, const Name& name);

// Objective-C -----------------------------------------------------------------------------------

/// Appends the accessors of a property: the getter, and the setter unless it is read-only.
void PopulatePropertyMethodPrototypeList(const MethodPrototype& proto,
                                         const PropertyAttributeInfo& attrs, bool isDefinition,
                                         MethodPrototypeList& list);
/// Merges a later attribute of a property into the earlier ones; a named accessor replaces them.
void MergePropertyAttribute(PropertyAttributeInfo& attributes, const PropertyAttributeInfo& later);
/// Appends the accessors of a name in `@synthesize`.
void AddSynthesized(MethodPrototypeList& list, const Name& name);
/// Appends a method with or without a body.
void AddMethod(MethodPrototypeList& list, const MethodPrototype& method, bool isDefinition);
/// Tags the methods if an Objective-C scope is open, and ends a pending typedef.
void EndObjcMethod(VexlTagsParser& builder, const MethodPrototypeList& list);
/// Tags and opens an interface or protocol; a category is added to the name in parentheses.
void OpenObjcInterface(VexlTagsParser& builder, const Name& name, const Name& category,
                       bool isInterface);
/// Tags and opens an implementation.
void OpenObjcImplementation(VexlTagsParser& builder, const Name& name, const Name& category);

}  // namespace vexltags
