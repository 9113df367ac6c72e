// usage: node validate.mjs AJV_DIRECTORY SCHEMA DOCUMENT...
// Prints a JSON array: for each document, true or the first error.

import { createRequire } from "node:module";
import { readFileSync } from "node:fs";

const [ajvDirectory, schemaPath, ...documents] = process.argv.slice(2);
const require = createRequire(ajvDirectory + "/");
const Ajv = require("ajv").default;

const read = (path) => JSON.parse(readFileSync(path, "utf8"));
const ajv = new Ajv({ strict: true, strictTypes: false, strictRequired: false });
ajv.addVocabulary(["x-effect", "x-listed-by", "x-names"]);
const validate = ajv.compile(read(schemaPath));
console.log(JSON.stringify(documents.map((path) =>
    validate(read(path)) || `${validate.errors[0].instancePath} ${validate.errors[0].message}`)));
