#pragma once

#include "wordexport/clsExportPage.h"
#include "wordexport/document/clsMSWord.h"

struct clsExport;

// The small steps that all pages and continuation sheets are made of.

/// The placeholder of the mark beside a sheet's page number.
inline const QString SheetMarkPlaceholder = QStringLiteral("{or}");

/// Copies a template to a sheet, adds it to the sheets of the export and returns its path.
QString mdMakeSheet(clsExport &run, const QString &templateName, int pageNumber, int sheetNumber);

// Opening and saving stop the export where it asks for that and the sheet is lost.

void mdOpenSheet(clsExport &run, clsMSWord &word, const QString &path);
void mdSaveSheet(clsExport &run, clsMSWord &word);
/// Appends a sheet that was saved to the document that is open. One that is lost stops nothing yet.
void mdInsertSheet(const clsExport &run, clsMSWord &word, const QString &path);
/// Saves, closes and ends a sheet's word processor.
void mdFinishSheet(clsExport &run, clsMSWord &word);

void mdReplace(clsMSWord &word, const QString &placeholder, const QString &text, clsFillClass fill);
void mdReplaceMark(clsMSWord &word, const QString &mark);
/// Removes the hidden places for marks that no mark has taken, when all marks of a sheet are made.
void mdRemoveSpareMarks(clsMSWord &word);
/// Types a grid's cell, or a piece of the additional information.
void mdTypeCell(clsMSWord &word, const QString &text, clsFillClass fill);

/// The line breaks of a text that is typed, each of which is a line more to go down.
int mdLineBreaksIn(QString text);

/// Replaces the placeholders of a page in the order of their table. A text too long for its box goes to continuation
/// sheets in its place in that order.
void mdReplaceRows(clsExport &run, clsMSWord &word, std::span<const clsPlaceholderRow> rows, int pageNumber);
