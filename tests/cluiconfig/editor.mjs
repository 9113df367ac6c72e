// usage: node editor.mjs PACKAGES_DIRECTORY SCHEMA DOCUMENT...
// What the language server of an editor makes of the documents. Prints a JSON array: for each document its problems,
// and what is offered where it has the sign ¦, which is the cursor and no part of the document.

import { createRequire } from "node:module";
import { readFileSync } from "node:fs";

const [directory, schemaPath, ...paths] = process.argv.slice(2);
const require = createRequire(directory + "/");
const { getLanguageService, TextDocument } = require("vscode-json-languageservice");

const service = getLanguageService({});
service.configure({
    schemas: [{ uri: "schema:UIConfig", fileMatch: ["*.json"], schema: JSON.parse(readFileSync(schemaPath, "utf8")) }],
});

const answers = [];
for (const path of paths) {
    const text = readFileSync(path, "utf8");
    const document = TextDocument.create("file:///UIConfig.json", "json", 1, text.replace("¦", ""));
    const tree = service.parseJSONDocument(document);
    const problems = await service.doValidation(document, tree);
    const offered = text.includes("¦")
        ? await service.doComplete(document, document.positionAt(text.indexOf("¦")), tree) : { items: [] };
    answers.push({
        problems: problems.map((problem) => ({ message: problem.message, text: document.getText(problem.range) })),
        offered: offered.items.map((item) => item.label),
    });
}
console.log(JSON.stringify(answers));
