#pragma once

#include <QString>

struct clsExport;

/// The path of the finished document: the export folder and its name (by default the form type's) with ".doc".
QString mdFinishedDocumentPath(const QString &exportFolder, const QString &name);
QString mdFinishedDocumentPath(const clsExport &run);

/// The start of the name of a document named after its claim's file; two claims of the same name get different numbers.
QString mdNameByFile(const QString &claimFile);
/// The name of such a document for that form type.
QString mdDocumentNameByFile(const QString &claimFile, const QString &formType, int number = 1);
/// The name of its sheets' folder if other exports work in the same folder.
QString mdTempFolderNameByFile(const QString &claimFile, int number);

/// Ends an export that may not replace an existing document.
void mdStopAtExistingDocument(clsExport &run);

/// Joins the sheets in the order in which they were created, and renames the result to the finished document. Works in
/// the temporary folder: at all times the finished name is the old document or the complete new one.
void mdExportWordCombineDocuments(clsExport &run);
