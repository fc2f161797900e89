// Runs the document validator over many files in one process, because each start takes seconds.
//
//     node validate_documents.mjs OOXML-VALIDATE FILE[=VERSION,VERSION...]...
//
// Without versions a file is checked for every office version that the validator knows. Prints one line of JSON for
// each file and office version: {"file", "version", "findings": [{"description", "part", "path"}]}.

import { readFile, realpath } from "node:fs/promises";
import { dirname, join } from "node:path";
import { pathToFileURL } from "node:url";

const [program, ...files] = process.argv.slice(2);
// The command is in the same package as its library.
const library = join(dirname(await realpath(program)), "..", "index.js");
const { default: validate, OFFICE_VERSIONS, ready } = await import(pathToFileURL(library));

await ready();
for (const argument of files) {
    const [file, versions] = argument.split("=");
    const bytes = new Uint8Array(await readFile(file));
    for (const version of versions?.split(",") ?? OFFICE_VERSIONS) {
        // Our documents are named .doc, so the format must be stated.
        const findings = await validate(bytes, "docx", version);
        console.log(JSON.stringify({
            file,
            version,
            findings: findings.map(({ description, path }) => ({
                description,
                part: path?.partUri,
                path: path?.xpath,
            })),
        }));
    }
}
