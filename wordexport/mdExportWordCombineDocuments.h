#pragma once

#include <QString>

struct clsExport;

/// The path of the finished document: the export folder, and its name, by default the form type's, with ".doc".
QString mdFinishedDocumentPath(const QString &exportFolder, const QString &name);
QString mdFinishedDocumentPath(const clsExport &run);

/// The name of a document of that form type that is named after its claim's file.
QString mdDocumentNameByFile(const QString &claimFile, const QString &formType);

/// Ends an export that may not replace a document where there is one.
void mdStopAtExistingDocument(clsExport &run);

/// Joins the sheets in the order in which they were made and puts the result under the finished document's name. The
/// joining is done in the temporary folder: the finished name holds the old document or the whole new one at all times.
void mdExportWordCombineDocuments(clsExport &run);
