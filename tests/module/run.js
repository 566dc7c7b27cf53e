// Runs a test program that is a WebAssembly module on the library that is one, the very file that a page loads:
//
//     node run.js PROGRAM LIBRARY ARGUMENT ...
//
// The library imports nothing, so that nothing can be given to it: the program gets the library's memory instead, and
// its routines as entries of the program's own table of functions. A pointer then means the same on both sides, and a
// call goes straight from the one to the other.
"use strict";
const fs = require("fs");
const { WASI } = require("wasi");

const [programPath, libraryPath] = process.argv.slice(2);
const page = 65536;
const programEnd = 32 << 20; // its data begin at 16 MB: CMakeLists.txt

function instance(path, imports) {
    return new WebAssembly.Instance(new WebAssembly.Module(fs.readFileSync(path)), imports);
}

// The allocator of the library takes all memory that there is at its first call. That is over before there is more.
const library = instance(libraryPath, {}).exports;
const memory = library.memory;
library.free(library.malloc(1));
if (memory.buffer.byteLength > programEnd / 2) throw new Error(libraryPath + " reaches into the memory of a program");
memory.grow((programEnd - memory.buffer.byteLength) / page);

const wasi = new WASI({ version: "preview1", args: process.argv.slice(2), env: process.env, returnOnExit: true });
const places = new Map(); // of routines, in the table of the program
let table;

// The place of an exported routine, or 0.
function find(letters, count) {
    const name = Buffer.from(memory.buffer, letters, count).toString("latin1");
    if (typeof library[name] !== "function") return 0;
    if (!places.has(name)) {
        const place = table.grow(1);
        table.set(place, library[name]);
        places.set(name, place);
    }
    return places.get(name);
}

// What WASI calls fd_write. That of node 20 ends the process when the garbage collector runs inside it.
function write(file, pieces, count, written) {
    const view = new DataView(memory.buffer);
    let bytes = 0;
    for (let at = pieces; at < pieces + 8 * count; at += 8) {
        const piece = Buffer.from(memory.buffer, view.getUint32(at, true), view.getUint32(at + 4, true));
        for (let done = 0; done < piece.length; ) done += fs.writeSync(file, piece, done);
        bytes += piece.length;
    }
    view.setUint32(written, bytes, true);
    return 0;
}

const system = { ...wasi.wasiImport, fd_write: write };
const imports = { wasi_snapshot_preview1: system, env: { memory }, library: { find } };
const program = instance(programPath, imports).exports;
table = program.__indirect_function_table;
process.exitCode = wasi.start({ exports: { memory, _start: program._start } });
