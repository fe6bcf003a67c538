"""bindings/node: the exports as data, from which the package makes its functions by koffi, and their declarations for TypeScript."""

from __future__ import annotations

import json

from generator import model
from generator.bindings import names, python
from generator.bindings.names import Parameter
from generator.model import Family, Routine
from generator.product import LIBRARY
from generator.text import fill

WIDTH = 140

HEAD = "// {what}. Generated from the export tables. Do not edit.\n"

# Arrays, by the letters of the element types.
ARRAYS = {"i": "Int32Array", "f": "Float32Array", "d": "Float64Array", "c": "Float32Array", "z": "Float64Array", "b": "Uint8Array", "p": "Addresses"}
SCALARS = {"i": "number", "f": "number", "d": "number", "c": "Complex", "z": "Complex", "b": "string", "p": "Address"}

RESERVED = set("arguments await break case catch class const continue default delete do else enum eval export extends false finally for function if "
               "import in instanceof new null return super switch this throw true try typeof var void while with yield".split())  # fmt: skip

DECLARATIONS = """
/** An address: null, or what a routine gave. Typed arrays stand for the addresses of their elements. */
export type Address = bigint | number | null | ArrayBufferView;
/** Handles and other addresses in memory: make them with `addresses`. */
export type Addresses = Uint32Array | BigUint64Array;
/** Re and Im. Arrays of complex numbers hold the parts of each number one behind the other. */
export type Complex = readonly [number, number];
/** A function of the host that the library can call, from `callback`. */
export type Callback = bigint;

/** Loads the library and binds every export. Throws where one is missing, or if this process is not one of 32 bits. */
export function load(path?: string): Lapacks;

export interface Lapacks {
  /** Room for that many addresses, all null: for handles. */
  addresses(count?: number): Addresses;
  /** Memory of the library: `count` elements of the type of a letter (i, f, d), which callbacks get by their address. */
  view(letter: "i", address: Address, count: number): Int32Array;
  view(letter: "f", address: Address, count: number): Float32Array;
  view(letter: "d", address: Address, count: number): Float64Array;
  /** A text of the library, ended by a zero. */
  text(address: Address): string;
  /** Makes a function callable for the library, by the name of its C type, such as quorin_vector_function. It must not throw. */
  callback(name: string, callable: (...values: any[]) => any): Callback;
  /** Ends a callback. */
  release(callback: Callback): void;
  /** Ends holding an array that a routine has kept: call it when the routine's object is deleted. */
  forget(array: ArrayBufferView): void;
  /** Every export by its name, as those below. */
  readonly names: readonly string[];
"""


def exports(families: list[Family]) -> str:
    callbacks = {item.c_name for family in families for item in family.callbacks}
    data = {
        "library": LIBRARY,
        "callbacks": {},
        "constants": {name: value for family in families for _, items in names.constants(family) for name, value, _ in items},
        "routines": [],
    }
    for family in families:
        for item in family.callbacks:
            codes = [python.code(p.type, set()) + ("" if p.passing == names.VALUE else "*") for p in names.parameters(item)]
            data["callbacks"][item.c_name] = [python.answer(item, set()), "".join(codes), item.is_stdcall]
        for routine, name, is_index_form in names.exports(family):
            items = " ".join(python.parameter(p, callbacks) for p in names.parameters(routine, is_index_form))
            data["routines"].append([name, python.answer(routine, callbacks), items])
    head = HEAD.format(what="The exports as data; the letters are those of the Python package")
    rows = [f"  {json.dumps(key)}: {json.dumps(value)}" for key, value in data.items() if key != "routines"]
    routines = ",\n".join("    " + json.dumps(row) for row in data["routines"])
    return head + '"use strict";\nmodule.exports = {\n' + ",\n".join(rows) + f',\n  "routines": [\n{routines}\n  ]\n}};\n'


def type_name(item: Parameter, callbacks: set[str]) -> str:
    letter = python.code(item.type, callbacks)
    if letter.startswith("["):
        type_ = "Callback | null" if item.argument is not None and item.argument.is_nullable else "Callback"
    elif item.passing in (names.VALUE, names.INDEX) or (item.is_input and not (item.argument is not None and item.argument.is_array)):
        type_ = SCALARS[letter]
    elif item.is_text and item.is_input:
        type_ = "string"
    else:
        type_ = ARRAYS[letter]
    is_nullable = item.passing == names.ADDRESS and "null" not in type_
    return f"{type_} | null" if is_nullable else type_


def method(routine: Routine, name: str, is_index_form: bool, callbacks: set[str]) -> str:
    parameters = names.parameters(routine, is_index_form)
    chosen = names.distinct([p.name for p in parameters], RESERVED.__contains__)
    items = [f"{n}: {type_name(p, callbacks)}" for p, n in zip(parameters, chosen)]
    result = names.result(routine)
    letter = python.code(result, callbacks) if result else ""
    answer = {"": "void", "p": "Address"}.get(letter, "number")
    return names.wrapped(f"  {name}(", items, f"): {answer};", ",", WIDTH, "    ")


def declarations(families: list[Family]) -> str:
    callbacks = {item.c_name for family in families for item in family.callbacks}
    parts = [HEAD.format(what="What the package offers"), DECLARATIONS]
    seen: set[str] = set()
    for family in families:
        parts.append(f"\n  // {family.title}\n")
        for title, items in names.constants(family):
            for name, value, text in items:
                if name not in seen:
                    parts.append((fill(f"/** {text} */", "  ", WIDTH, "   * ") if text else "") + f"  readonly {name}: {value};\n")
                seen.add(name)
        for routine, name, is_index_form in names.exports(family):
            lines = [f"  /**\n", fill(f"* {routine.summary}", "   ", WIDTH, "   * ")]
            for argument in routine.arguments:
                text = names.meaning(argument, family.note(routine, argument.name))
                (chosen,) = names.distinct([argument.name], RESERVED.__contains__)
                lines.append(fill(f"* @param {chosen} {text}".replace("*/", "* /"), "   ", WIDTH, "   *   "))
            parts.append("".join(lines) + "   */\n" + method(routine, name, is_index_form, callbacks))
    return "".join(parts) + "}\n"


def files(families: list[Family]) -> dict[str, str]:
    return {"exports.js": exports(families), "index.d.ts": declarations(families)}
