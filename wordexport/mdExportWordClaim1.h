#pragma once

struct clsExport;

/// Exports the claim as Claim1.doc into its export folder. False if the user has been told why no document was
/// produced; unexpected failures are run-time errors. In both cases an existing document is not changed.
bool mdExportWordClaim1(clsExport &run);
