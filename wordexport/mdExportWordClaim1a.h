#pragma once

struct clsExport;

/// Exports the claim as Claim1A.doc into its export folder. False, after a message, if no document was produced;
/// unexpected failures are run-time errors, and leave an existing document unchanged.
bool mdExportWordClaim1a(clsExport &run);
