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

/// A template that was read and found to be a sound document, with what its sheets need of it at hand.
struct clsTemplate {
    QByteArray bytes;
    clsZipPackage content;
    bool isPlain; ///< of its text, as `mdIsPlainText` has it
    /// The bytes of its styles; not known before a first sheet was opened.
    std::optional<QByteArray> styles {};
};

/// A sheet's file, as the export that wrote it knows it.
struct clsSheetFile {
    QString templateName; ///< the file name of the template that it was made from
    QString name {}; ///< such as 3(1)
    int page = 0;
    /// Nothing but copied yet: what stands in it is what stands in the template.
    bool isCopy = true;
    /// Where the text stands in it; nothing where it was not saved since it was opened.
    std::optional<clsTextPlace> text {};
    /// What would stand in it, where the sheets stay in memory.
    std::optional<clsZipPackage> kept {};
    /// The grids that were typed into it.
    std::vector<clsForecast::Grid> grids {};
    /// The line breaks in the first cells of these, each of which pushes what stands below down by a line.
    int breaks = 0;
    /// What was typed into it and is not printed at its own size, and the paper pages that it takes.
    std::vector<clsForecast::Box> boxes {};
    int paperPages = 1;
};

/// One running export: the claim that it prints and the whole of the state that its steps share.
struct clsExport {
    clsZR3Form &form;
    /// Where the page templates lie.
    QString templatesFolder;
    /// The folder of the finished document. It starts as the claim's export folder, but it is held here: the claim
    /// keeps its texts in the code page, which not every folder's name is in.
    QString exportFolder = form.ExportPath();

    /// The name of the finished document, without its ending.
    QString documentName = form.FormType();
    /// The folder of the sheets, below the export folder. Exports of one name there take turns.
    QString tempFolderName = QStringLiteral("~ZR3Temp");
    /// Other exports work in the export folder at the same time, in folders of their own: the document gets its name in
    /// a turn with theirs.
    bool sharesFolder = false;

    /// A sheet that could not be opened, saved or joined is passed over, as every failure of the word processor: the
    /// user has been told. With this set the export stops there instead, and no document comes out: for callers who
    /// can't ask anybody whether an incomplete one will do.
    bool stopsAtLostSheet = false;
    /// The file in which the claim lies; empty for a claim that was never saved. Its rights are the document's.
    QString claimFile {};
    /// Without this, a document that is there by the time of the export stops it.
    bool mayReplace = true;
    /// True once it did.
    bool stoppedAtDocument = false;
    /// The sheets stay in the temporary folder when the export has ended.
    bool keepsSheets = false;

    /// The sheets stay in memory: no folder is touched, and no document comes out.
    bool inMemory = false;

    /// Held while the export works in the temporary folder; nothing there is this export's without it.
    std::shared_ptr<clsFolderLock> folderLock {};

    /// The full paths of the sheet files, in the order in which they were made.
    QStringList ExportFileCollection {};
    /// The number of the latest sheet of the page in hand. Each page sets it but counsel's fees, which goes on from the
    /// page before it, as it stands.
    int ExportSheetCounter = 0;

    /// The claim's figures, as they stand while it is exported.
    clsBill bill {form};

    /// The properties behind the placeholders of the pages.
    QHash<std::pair<int, QString>, QString> fields {};
    /// The grid that is being typed.
    const clsGrid *grid = nullptr;
    /// The list whose items are typed into the open sheet, and which of them its first row shows.
    const clsPrintedList *list = nullptr;
    int firstItem = 1;

    /// The templates read so far, by their file names, and the files written so far, by their paths.
    QHash<QString, clsTemplate> templates {};
    QHash<QString, clsSheetFile> sheets {};
};

/// Ends an export after the user has been told why; no document comes out.
struct clsExportStopped { };
