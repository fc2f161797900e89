#pragma once

#include "wordexport/clsExportPage.h"
#include "wordexport/document/clsMSWord.h"

struct clsExport;

// The basic steps of all pages and continuation sheets.

/// The placeholder of the mark beside a sheet's page number.
inline const QString SheetMarkPlaceholder = QStringLiteral("{or}");

/// Copies a template as a sheet's file, adds it to the sheets of the export and returns its path.
QString mdMakeSheet(clsExport &run, const QString &templateName, int pageNumber, int sheetNumber);

// Open and save a sheet. A lost sheet stops the export if `run` says so.

void mdOpenSheet(clsExport &run, clsMSWord &word, const QString &path);
void mdSaveSheet(clsExport &run, clsMSWord &word);
/// Appends a saved sheet to the open document. A lost sheet doesn't stop the export yet.
void mdInsertSheet(const clsExport &run, clsMSWord &word, const QString &path);
/// Saves and closes a sheet and quits its word processor.
void mdFinishSheet(clsExport &run, clsMSWord &word);

void mdReplace(clsMSWord &word, const QString &placeholder, const QString &text, clsFillClass fill);
void mdReplaceMark(clsMSWord &word, const QString &mark);
/// Removes the hidden placeholders of marks left over, once all marks of a sheet are set.
void mdRemoveSpareMarks(clsMSWord &word);
/// Types a grid's cell, or a piece of the additional information.
void mdTypeCell(clsMSWord &word, const QString &text, clsFillClass fill);

/// The line breaks of a typed text; each needs one more line down.
int mdLineBreaksIn(QString text);

/// Replaces the placeholders of a page in the order of their table. A text too long for its box gets its continuation
/// sheets at its place in that order.
void mdReplaceRows(clsExport &run, clsMSWord &word, std::span<const clsPlaceholderRow> rows, int pageNumber);
