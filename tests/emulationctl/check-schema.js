// Usage: node check-schema.js NODE_MODULES SCHEMA BAD_LINES RECORDING...
//
// Says which line of BAD_LINES the schema of recordings accepts, which line of a recording it
// refuses, and which of its methods the recordings lack.

const fs = require("fs");
const [modules, schemaFile, badFile, ...recordings] = process.argv.slice(2);
const Ajv = require(`${modules}/ajv/dist/2020`).default;

const schema = JSON.parse(fs.readFileSync(schemaFile, "utf8"));
const validate = new Ajv({ strictTuples: false, formats: { "date-time": true } }).compile(schema);
const lines = file => fs.readFileSync(file, "utf8").split("\n")
    .filter(line => line.trim() && !line.startsWith("#")).map(line => JSON.parse(line));

const findings = [];
for (const line of lines(badFile).filter(line => validate(line)))
    findings.push(`accepted: ${JSON.stringify(line)}`);
const methods = new Set();
for (const line of recordings.flatMap(lines)) {
    methods.add(`${line.service} ${line.method}`);
    if (!validate(line))
        findings.push(`refused: ${JSON.stringify(line)}`);
}
for (const { properties } of schema.$defs.call.oneOf) {
    for (const method of properties.method.enum.map(name => `${properties.service.const} ${name}`)) {
        if (!methods.has(method))
            findings.push(`not tried: ${method}`);
    }
}
findings.forEach(finding => console.log(finding));
process.exitCode = findings.length > 0 ? 1 : 0;
