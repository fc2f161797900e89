#pragma once

struct clsExport;

/// Exports the claim as Claim1A.doc into its export folder. False when the user was told why no document came out;
/// failures that nothing foresees are run-time errors, and leave the finished document as it was.
bool mdExportWordClaim1a(clsExport &run);
