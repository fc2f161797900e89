#pragma once

struct clsExport;

/// Exports the claim as Claim1.doc into its export folder. False, after a message, if no document was produced;
/// unexpected failures are run-time errors. In both cases an existing document is not changed.
bool mdExportWordClaim1(clsExport &run);
