// Quorin Lapacks for Node.js: every export as a function, by koffi. The DLL wants a 32-bit Node for Windows.
//
//   const lapacks = require("quorin-lapacks").load();
//   const x = Float32Array.of(1, 2, 3);
//   lapacks.sscal(3, 2, x, 1);
//
// Values that are only read are numbers (a character is a string of one, a complex number [re, im]). What is written is a typed array of
// the right type; complex numbers are pairs in it. Anything else throws TypeError before the call. Texts that are only read are strings.
// null is the null address where a routine takes one. A typed array that a routine keeps is held until forget() is called with it.
"use strict";

const fs = require("fs");
const path = require("path");
const koffi = require("koffi");
const data = require("./exports.js");

const ADDRESSES = koffi.sizeof("void *") === 4 ? Uint32Array : BigUint64Array;
const ARRAYS = { i: Int32Array, f: Float32Array, d: Float64Array, c: Float32Array, z: Float64Array, b: Uint8Array, p: ADDRESSES };
const TYPES = { "": "void", i: "int32_t", f: "float", d: "double", b: "char", p: "void *" };

class Parameter {
  constructor(text) {
    const [, name, callback, letter, marks] = /^(\w+):(?:\[(\w+)\]|(\w))([&*!?~]*)$/.exec(text);
    Object.assign(this, { name, callback, letter, isKept: marks.includes("~"), isNullable: marks.includes("?") });
    this.isWritten = marks.includes("!");
    this.isArray = marks.includes("*");
    this.isValue = !/[&*]/.test(marks);
    this.type = this.isValue && !callback ? TYPES[letter] : "void *";
  }

  fail(why) {
    throw new TypeError(`${this.name}: ${why}`);
  }

  // What koffi passes on: a number, an address, or a typed array for the address of its elements.
  convert(value) {
    if (value === undefined) this.fail("is missing");
    if (this.isValue) return this.byValue(value);
    if (value === null) return this.isNullable || this.isArray ? null : this.fail("must not be null");
    if (typeof value === "string" && this.letter === "b" && !this.isWritten) {
      if (!this.isArray && value.length !== 1) this.fail("a string of one character is wanted");
      return Buffer.from(value + "\0", "latin1");
    }
    if (!this.isWritten && !this.isArray) return this.scalar(value);
    return value instanceof ARRAYS[this.letter] ? value : this.fail(`${ARRAYS[this.letter].name} is wanted`);
  }

  byValue(value) {
    if (this.callback || this.letter === "p") {
      const isAddress = value === null || typeof value === "bigint" || ArrayBuffer.isView(value) || (!this.callback && typeof value === "number");
      return isAddress ? value : this.fail("an address is wanted");
    }
    return this.number(value);
  }

  number(value) {
    if (typeof value !== "number" || (this.letter === "i" && (value | 0) !== value)) {
      this.fail(this.letter === "i" ? "a number of 32 bits without fraction is wanted" : "a number is wanted");
    }
    return value;
  }

  scalar(value) {
    const make = ARRAYS[this.letter];
    if (value instanceof make) return value;
    if (this.letter === "c" || this.letter === "z") {
      return Array.isArray(value) && value.length === 2 ? make.from(value) : this.fail("[re, im] is wanted");
    }
    return make.of(this.number(value));
  }
}

class Lapacks {
  #kept = [];
  #protos = {};

  constructor(file) {
    const library = koffi.load(file);
    Object.assign(this, data.constants);
    for (const [name, [answer, letters, isStdcall]] of Object.entries(data.callbacks)) {
      const types = letters.match(/\w\*?/g).map((letter) => (letter.length > 1 ? "void *" : TYPES[letter]));
      this.#protos[name] = koffi.proto(isStdcall ? "__stdcall" : "__cdecl", name, TYPES[answer], types);
    }
    for (const [name, answer, texts] of data.routines) {
      const parameters = texts.split(" ").filter((text) => text).map((text) => new Parameter(text));
      const call = library.func("__cdecl", name, TYPES[answer], parameters.map((parameter) => parameter.type));
      this[name] = (...values) => {
        if (values.length !== parameters.length) {
          const wanted = parameters.map((parameter) => parameter.name).join(", ");
          throw new TypeError(`${name}(${wanted}) takes ${parameters.length} arguments, not ${values.length}`);
        }
        const converted = parameters.map((parameter, k) => parameter.convert(values[k]));
        parameters.forEach((parameter, k) => parameter.isKept && ArrayBuffer.isView(values[k]) && this.#kept.push(values[k]));
        return call(...converted);
      };
    }
    this.names = data.routines.map(([name]) => name);
  }

  addresses(count = 1) {
    return new ADDRESSES(count);
  }

  view(letter, address, count) {
    const make = ARRAYS[letter];
    return new make(koffi.view(address, count * make.BYTES_PER_ELEMENT));
  }

  text(address) {
    return koffi.decode(address, "char", -1);
  }

  callback(name, callable) {
    return koffi.register(callable, koffi.pointer(this.#protos[name]));
  }

  release(callback) {
    koffi.unregister(callback);
  }

  forget(array) {
    this.#kept = this.#kept.filter((other) => other !== array);
  }

  get kept() {
    return [...this.#kept];
  }
}

function load(file) {
  if (process.platform === "win32" && process.arch !== "ia32") {
    throw new Error(`${data.library} is a library of 32 bits, and this Node is one of ${process.arch}`);
  }
  const beside = path.join(__dirname, data.library);
  return new Lapacks(file || (fs.existsSync(beside) ? beside : data.library));
}

module.exports = { load };
