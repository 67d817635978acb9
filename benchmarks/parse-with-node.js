// Usage: node parse-with-node.js SCRIPT LOG
//
// Prints the milliseconds that SCRIPT, one of the plugin's, needs to parse LOG.
"use strict";

const fs = require("fs");
const vm = require("vm");

const [script, log] = process.argv.slice(2).map(file => fs.readFileSync(file, "utf8"));
vm.runInThisContext(script.replace(".pragma library", ""));
const start = performance.now();
globalThis.loadNmeaLog(log);
console.log(performance.now() - start);
