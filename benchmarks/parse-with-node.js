// Usage: node parse-with-node.js SCRIPT LOG
//
// Prints the milliseconds that SCRIPT, one of the plugin's, needs to parse LOG and to make the texts
// of the points' times.
"use strict";

const fs = require("fs");
const path = require("path");

// Runs a script of the plugin and returns its functions and constants. Node.js knows neither its
// directives nor qsTr().
function load(file) {
    const source = fs.readFileSync(file, "utf8")
        .replace(".pragma library", "")
        .replace(/^\.import "(.*)" as (.*)$/gm, "const $2 = load('$1');");
    const names = [...source.matchAll(/^(?:function|const|class) (\w+)/gm)].map(match => match[1]);
    const run = new Function("load", "qsTr", `${source}\nreturn {${names}};`);
    return run(name => load(path.join(path.dirname(file), name)), text => text);
}

const [script, log] = process.argv.slice(2);
const {loadNmeaLog} = load(script);
const text = fs.readFileSync(log, "utf8");
const start = performance.now();
for (const point of loadNmeaLog(text))
    point.timeString;
console.log(performance.now() - start);
