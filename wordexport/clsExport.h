#pragma once

#include "costing/clsBill.h"
#include "formdata/clsZR3Form.h"
#include "wordexport/clsForecast.h"
#include "wordexport/document/clsPlainText.h"
#include "wordexport/document/clsZipPackage.h"

#include <QHash>
#include <QString>
#include <QStringList>

#include <memory>
#include <optional>
#include <vector>

class clsFolderLock;
struct clsGrid;
struct clsPrintedList;

/// A template that has been read and checked, with what its sheets need of it.
struct clsTemplate {
    QByteArray bytes;
    clsZipPackage content;
    bool isPlain; ///< whether its text is plain, as defined by `mdIsPlainText`
    /// The bytes of its styles; unset until the first sheet is opened.
    std::optional<QByteArray> styles {};
};

/// A sheet's file, as recorded by the export that wrote it.
struct clsSheetFile {
    QString templateName; ///< the file name of its template
    QString name {}; ///< such as 3(1)
    int page = 0;
    /// Copied only: its content is still the template's.
    bool isCopy = true;
    /// The position of the text in it; unset if it was not saved since it was opened.
    std::optional<clsTextPlace> text {};
    /// Its content, if the sheets stay in memory.
    std::optional<clsZipPackage> kept {};
    /// The grids that were typed into it.
    std::vector<clsForecast::Grid> grids {};
    /// The line breaks in the first cells of these grids; each moves the following content down by a line.
    int breaks = 0;
    /// The texts typed into it that are not printed at their own size, and its number of paper pages.
    std::vector<clsForecast::Box> boxes {};
    int paperPages = 1;
};

/// A running export: the claim it prints and all state shared by its steps.
struct clsExport {
    clsZR3Form &form;
    /// The folder of the page templates.
    QString templatesFolder;
    /// The folder of the finished document. Starts as the claim's export folder, but is kept here: the claim keeps its
    /// texts in the code page, which can't represent every folder name.
    QString exportFolder = form.ExportPath();

    /// The name of the finished document, without its extension.
    QString documentName = form.FormType();
    /// The folder of the sheets, below the export folder. Exports with the same name there take turns.
    QString tempFolderName = QStringLiteral("~ZR3Temp");
    /// Other exports work in the same export folder at the same time, with separate sheet folders: they take turns to
    /// put their documents in place.
    bool sharesFolder = false;

    /// A sheet that could not be opened, saved or joined is skipped, as after every failure of the word processor: the
    /// user has seen a message. If this is set, the export stops instead and produces no document, for callers that
    /// can't ask whether an incomplete one will do.
    bool stopsAtLostSheet = false;
    /// The claim's file; empty for a claim that was never saved. The document gets its permissions.
    QString claimFile {};
    /// If false, an existing document stops the export.
    bool mayReplace = true;
    /// True once that has happened.
    bool stoppedAtDocument = false;
    /// The sheets stay in the temporary folder after the export.
    bool keepsSheets = false;

    /// The sheets stay in memory: no folder is touched and no document produced.
    bool inMemory = false;

    /// Held while the export works in the temporary folder; without it nothing there may be touched.
    std::shared_ptr<clsFolderLock> folderLock {};

    /// The full paths of the sheet files, in the order in which they were created.
    QStringList ExportFileCollection {};
    /// The number of the latest sheet of the current page. Each page sets it except counsel's fees, which continues
    /// from the page before it. Required behaviour; do not fix.
    int ExportSheetCounter = 0;

    /// The claim's figures at the time of the export.
    clsBill bill {form};

    /// The properties behind the placeholders of the pages.
    QHash<std::pair<int, QString>, QString> fields {};
    /// The grid being typed.
    const clsGrid *grid = nullptr;
    /// The list whose items are typed into the open sheet, and the number of the item in its first row.
    const clsPrintedList *list = nullptr;
    int firstItem = 1;

    /// The templates read so far, by file name, and the files written so far, by path.
    QHash<QString, clsTemplate> templates {};
    QHash<QString, clsSheetFile> sheets {};
};

/// Ends an export after a message with the reason; no document is produced.
struct clsExportStopped { };
