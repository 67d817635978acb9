// Usage: node parse-with-node.js SCRIPT LOG
//
// Prints the milliseconds that the script, which is one of the plugin's, takes for the log.
"use strict";

const fs = require("fs");
const vm = require("vm");

const [script, log] = process.argv.slice(2).map(file => fs.readFileSync(file, "utf8"));
vm.runInThisContext(script.replace(".pragma library", ""));
const start = performance.now();
globalThis.loadNmeaLog(log);
console.log(performance.now() - start);
