// SPDX-License-Identifier: MIT
// What the grammar of the C family does at the end of each construct, one call for one action.
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

// Lines are 1-based. A declared name always comes from a token; where an error or the time limit
// cut a rule short and left a name without a line, the calls below drop it instead of tagging line
// -1.

// Functions, variables, typedefs ----------------------------------------------------------------

/// Ends a function: tags it unless it is a friend that is only declared, and ends a pending
/// typedef. `isFriend` adds to what the head itself has seen.
void EndFunction(VexlTagsParser& builder, FunctionPrototype prototype, bool isFriend,
                 bool isDefinition);

/// Ends a variable declaration: each name is a variable or member, or a typedef while one is
/// pending.
void EndSimpleDeclaration(VexlTagsParser& builder, const TypeDescriptor& type,
                          const VectorOfName& names);
/// Ends `typedef T a, b;`.
void EndTypedef(VexlTagsParser& builder, const TypeDescriptor& type, const VectorOfName& names);
/// Ends `using name = T;`. A pending typedef stays pending.
void EndAlias(VexlTagsParser& builder, const Name& name, const TypeDescriptor& type);
/// Ends a concept; `headText` is the text of its template head.
void EndConcept(VexlTagsParser& builder, const Name& name, const std::string& headText);

/// A function pointer or block as the type of a declaration: its type text and line, `kNoKind`.
TypeDescriptor FunctionPointerType(const Param& pointer);
/// The same split in two for a declaration: `type` gets the type text, `names` the pointer's name.
void SetFunctionPointer(const Param& pointer, TypeDescriptor& type, VectorOfName& names);

// Text of funcPointerOrBlockType ----------------------------------------------------------------

/// Starts the parameter from the type in front of it.
void BeginFunctionPointer(Param& pointer, const TypeDescriptor& type);
/// Adds the parameter list and, where it is not empty, the word behind it to the type text. Only
/// under `--debugDump`, the one place that shows it: a text with all texts of the parameters in it
/// makes pointers nested in each other's parameters cost the square of their depth.
void EndFunctionPointer(const VexlTagsParser& builder, Param& pointer, const ParamList& params,
                        const std::string& constQualifier);

// Parameters ------------------------------------------------------------------------------------

/// An unnamed parameter: the whole type stands in for its name.
void SetUnnamedParam(Param& param, const TypeDescriptor& type);
/// Appends the parameter that stands for `...`.
void AddVariadicParam(ParamList& list, int line);

// Classes, namespaces and braces ----------------------------------------------------------------

/// Names a class-like scope. A template's text goes on in angle brackets, unless the name already
/// ends in one as that of a specialisation does.
void NameClass(TypeDescriptor& descriptor, const Name& name, const std::string& templateText);
/// Gives a made-up name and the line of the next token to a class-like scope without one.
void NameAnonymousClass(TypeDescriptor& descriptor, int nextTokenLine);
/// Tags a class-like scope, unless its name is made up, and opens it.
void OpenClass(VexlTagsParser& builder, const TypeDescriptor& descriptor);
/// Opens `namespace std` without a tag, as a library's macro for it does.
void OpenStdNamespace(VexlTagsParser& builder, int line);
/// Handles `};` and ends a pending typedef.
void CloseScope(VexlTagsParser& builder, int semicolonLine);
/// Handles `} a, b;`: closes the scope and declares the names with the closed type as theirs.
void CloseScopeWithDeclarators(VexlTagsParser& builder, const VectorOfName& names,
                               int semicolonLine);

// Enums -----------------------------------------------------------------------------------------

/// Settles the name of an enum behind its head: one without a name gets a made-up one and the line
/// of the next token.
void NameEnum(TypeDescriptor& descriptor, int nextTokenLine);
/// Closes the enum's brace.
void CloseEnum(VexlTagsParser& builder, int braceLine);
/// Declares the variable or typedef named behind an enum.
void DeclareEnumName(VexlTagsParser& builder, const TypeDescriptor& descriptor, const Name& name);

// Objective-C -----------------------------------------------------------------------------------

/// Appends the accessors of a property: the getter, and the setter unless it is read-only.
void PopulatePropertyMethodPrototypeList(const MethodPrototype& proto,
                                         const PropertyAttributeInfo& attrs, bool isDefinition,
                                         MethodPrototypeList& list);
/// Adds a later attribute of a property to the earlier ones; a named accessor replaces an earlier.
void MergePropertyAttribute(PropertyAttributeInfo& attributes, const PropertyAttributeInfo& later);
/// Appends the accessors of one name of `@synthesize`.
void AddSynthesized(MethodPrototypeList& list, const Name& name);
/// Appends a method with or without a body.
void AddMethod(MethodPrototypeList& list, const MethodPrototype& method, bool isDefinition);
/// Tags the methods where an Objective-C scope is open, and ends a pending typedef.
void EndObjcMethod(VexlTagsParser& builder, const MethodPrototypeList& list);
/// Tags and opens an interface or protocol; a category goes behind the name in parentheses.
void OpenObjcInterface(VexlTagsParser& builder, const Name& name, const Name& category,
                       bool isInterface);
/// Tags and opens an implementation.
void OpenObjcImplementation(VexlTagsParser& builder, const Name& name, const Name& category);

}  // namespace vexltags
