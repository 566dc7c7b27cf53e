// Runs a program that is a WebAssembly module, with its arguments: node run_module.js MODULE ARGUMENT ...
"use strict";
const fs = require("fs");
const { WASI } = require("wasi");

const wasi = new WASI({ version: "preview1", args: process.argv.slice(2), env: {}, returnOnExit: true });
WebAssembly.instantiate(fs.readFileSync(process.argv[2]), wasi.getImportObject()).then(function (made) {
    process.exitCode = wasi.start(made.instance);
});
