#pragma once

struct clsExport;

/// Exports the claim as Claim1.doc into its export folder. False, after a message, if no document was produced;
/// unexpected failures are run-time errors, and leave an existing document unchanged.
bool mdExportWordClaim1(clsExport &run);
