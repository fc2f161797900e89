// Runs the document validator over many files in one process, since each start of it costs seconds.
//
//     node validate_documents.mjs OOXML-VALIDATE FILE[=VERSION,VERSION...]...
//
// Without versions a file is looked at for every office version that the validator knows.
// One line of JSON for each file and office version: {"file", "version", "findings": [{"description", "part", "path"}]}.

import { readFile, realpath } from "node:fs/promises";
import { dirname, join } from "node:path";
import { pathToFileURL } from "node:url";

const [program, ...files] = process.argv.slice(2);
// The command lies beside the library that it is made of.
const library = join(dirname(await realpath(program)), "..", "index.js");
const { default: validate, OFFICE_VERSIONS, ready } = await import(pathToFileURL(library));

await ready();
for (const argument of files) {
    const [file, versions] = argument.split("=");
    const bytes = new Uint8Array(await readFile(file));
    for (const version of versions?.split(",") ?? OFFICE_VERSIONS) {
        // Our documents bear the name .doc, so that the format has to be told.
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
