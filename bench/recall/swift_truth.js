// SPDX-License-Identifier: MIT
// Reads paths of Swift files from standard input; writes what each declares, one JSON object a
// line.
//   node swift_truth.js NODE_MODULES < list
'use strict';
const fs = require('fs');
const path = require('path');

const modules = path.resolve(process.argv[2]);
const Parser = require(path.join(modules, 'tree-sitter'));
const Swift = require(path.join(modules, 'tree-sitter-swift'));

const kTypes = new Set(['class_declaration', 'protocol_declaration']);
const kFunctions = new Set(['function_declaration', 'protocol_function_declaration']);
const kProperties = new Set(['property_declaration', 'protocol_property_declaration']);
// What is declared inside these is local.
const kBodies = new Set(['function_body', 'computed_property', 'lambda_literal', 'statements',
  'willset_didset_block', 'computed_getter', 'computed_setter']);

// Keywords that are newer than the grammar, and attributes that it misreads. None declares
// anything, so each is replaced by blanks; names are read from the original source.
const kDeclares = '(?:func|var|let|class|struct|enum|init|protocol|extension|actor|typealias|' +
    'subscript)';
const kBlank = [
  /\b(?:nonisolated|unowned)\((?:unsafe|safe|nonsending)\)/g,
  /\b(?:sending|consuming|borrowing|consume|copy|discard)(?=[ \t]+[\w@([])/g,
  /\brepeat[ \t]+each\b/g, /\beach(?=[ \t]+\w)/g, /\bany(?=[ \t]+~)/g,
  /@_?(?:implicitSelfCapture|inheritActorContext|unsafeInheritExecutor)\b/g,
  /@_?(?:lifetime|extern)\b(?:\([^()]*\))?/g,
  /~(?=[A-Za-z_])/g, /#(?=(?:expect|require|Predicate|externalMacro)\b)/g,
  /(?<=\bthrows)\([\w.]+\)/g,
  new RegExp('\\bpackage(?=[ \\t]+(?:\\w+[ \\t]+)*' + kDeclares + '\\b)', 'g'),
];
const kDirectives = /^[ \t]*#(?:if|elseif|else|endif)\b.*/gm;
const blank = (text) => text.replace(/[^\n]/g, ' ');

function prepare(source, dropDirectives) {
  let text = kBlank.reduce((result, pattern) => result.replace(pattern, blank), source);
  text = text.replace(/`[^`\n]*`/g, (name) => name.replace(/[^\w`]/g, '_'));
  return dropDirectives ? text.replace(kDirectives, blank) : text;
}

const fields = (node, name) => node.childrenForFieldName(name).filter((n) => n.isNamed || n.text);

// "x:" or "_" for each parameter, as they are called.
function labels(node) {
  const found = [];
  for (const child of node.namedChildren) {
    if (child.type !== 'parameter') continue;
    const label = child.childForFieldName('external_name') || child.childForFieldName('name');
    found.push(label.text === '_' ? '_' : label.text + ':');
  }
  return '(' + found.join(',') + ')';
}

// The name of a function: the identifier, or the operator in its place.
function functionName(node) {
  let past = false;
  for (const child of node.children) {
    if (child.type === 'func') {
      past = true;
    } else if (past && child.type !== 'comment' && child.type !== 'multiline_comment') {
      return child;
    }
  }
  return null;
}

// All names that a pattern binds.
function bound(node, into) {
  if (node.type === 'simple_identifier') into.push(node);
  for (const child of node.namedChildren) {
    if (child.type === 'pattern' || child.type === 'simple_identifier') bound(child, into);
  }
  return into;
}

function readFile(file) {
  const source = fs.readFileSync(file, 'utf8');
  const [plain, flat] = [false, true].map((drop) => readText(file, source, prepare(source, drop)));
  return flat.errors.length < plain.errors.length ? flat : plain;
}

function readText(file, source, text) {
  const tree = parser.parse((index) => text.slice(index, index + 8192));
  const textOf = (node) => source.slice(node.startIndex, node.endIndex);
  const declarations = [];
  const errors = [];

  function add(at, name, kind, scope, local) {
    const names = [name];
    if (name.includes('`')) names.push(name.replace(/`/g, ''));
    declarations.push([at.startPosition.row + 1, names, kind, scope, !local]);
  }

  function typeOf(node, scope, local) {
    const name = node.childForFieldName('name');
    const word = node.children.find((child) => ['class', 'struct', 'enum', 'extension', 'actor',
      'protocol'].includes(child.type));
    const kind = word ? word.type : 'class';
    if (!name) return scope;
    const type = textOf(name).replace(/<[^]*?>(?=\.|$)/g, '').replace(/\s+/g, '');
    add(name, type, kind, scope, local);
    return type.slice(type.lastIndexOf('.') + 1);
  }

  function visit(node, scope, local) {
    const type = node.type;
    if (type === 'ERROR' || node.isMissing) errors.push(node.startPosition.row + 1);
    if (kTypes.has(type)) {
      const inner = typeOf(node, scope, local);
      for (const child of node.namedChildren) visit(child, inner, local);
      return;
    }
    if (kFunctions.has(type)) {
      const name = functionName(node);
      if (name) add(name, textOf(name) + labels(node), 'function', scope, local);
    } else if (type === 'init_declaration') {
      add(node.children.find((child) => child.type === 'init') || node, 'init()', 'function', scope,
        local);
    } else if (type === 'deinit_declaration') {
      add(node.children.find((child) => child.type === 'deinit') || node, 'deinit', 'function',
        scope, local);
    } else if (type === 'subscript_declaration') {
      add(node.children.find((child) => child.type === 'subscript') || node, 'subscript()',
        'function', scope, local);
    } else if (type === 'typealias_declaration' || type === 'associatedtype_declaration') {
      const name = node.childForFieldName('name');
      if (name) add(name, textOf(name), type.slice(0, -12), scope, local);
    } else if (type === 'enum_entry') {
      for (const name of fields(node, 'name')) {
        if (name.type === 'simple_identifier') add(name, textOf(name), 'case', scope, local);
      }
    } else if (type === 'macro_declaration') {
      const name = node.namedChildren.find((child) => child.type === 'simple_identifier');
      if (name) add(name, textOf(name) + labels(node), 'macro', scope, true);
    } else if (kProperties.has(type)) {
      for (const pattern of fields(node, 'name')) {
        if (pattern.type !== 'pattern') continue;
        for (const name of bound(pattern, [])) add(name, textOf(name), 'property', scope, local);
      }
    }
    const inside = local || kBodies.has(type);
    for (const child of node.namedChildren) visit(child, scope, inside);
  }

  visit(tree.rootNode, '', false);
  return {path: file, declarations, errors: [...new Set(errors)]};
}

const parser = new Parser();
parser.setLanguage(Swift);
for (const file of fs.readFileSync(0, 'utf8').split('\n').filter(Boolean)) {
  process.stdout.write(JSON.stringify(readFile(file)) + '\n');
}
