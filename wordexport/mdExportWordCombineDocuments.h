#pragma once

#include <QString>

struct clsExport;

/// The path of the finished document: the export folder, and its name, by default the form type's, with ".doc".
QString mdFinishedDocumentPath(const QString &exportFolder, const QString &name);
QString mdFinishedDocumentPath(const clsExport &run);

/// What a document that is named after its claim's file begins with; two claims of one such name can be told apart by
/// a number.
QString mdNameByFile(const QString &claimFile);
/// The name of such a document of that form type.
QString mdDocumentNameByFile(const QString &claimFile, const QString &formType, int number = 1);
/// The name of the folder of its sheets, where other exports work in the same folder.
QString mdTempFolderNameByFile(const QString &claimFile, int number);

/// Ends an export that may not replace a document where there is one.
void mdStopAtExistingDocument(clsExport &run);

/// Joins the sheets in the order in which they were made and puts the result under the finished document's name. The
/// joining is done in the temporary folder: the finished name holds the old document or the whole new one at all times.
void mdExportWordCombineDocuments(clsExport &run);
