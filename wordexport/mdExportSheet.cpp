#include "wordexport/mdExportSheet.h"

#include "wordexport/clsExport.h"
#include "wordexport/mdExportCopyTemplate.h"
#include "wordexport/mdExportWordGenerateOverRuns.h"

namespace {

void stopIfLost(const clsExport &run, const clsMSWord &word)
{
    if (run.stopsAtLostSheet && word.sheetLost())
        throw clsExportStopped();
}

} // namespace

QString mdMakeSheet(clsExport &run, const QString &templateName, int pageNumber, int sheetNumber)
{
    const QString path = mdExportCopyTemplate(run, templateName, mdSheetName(pageNumber, sheetNumber));
    run.ExportFileCollection << path;
    return path;
}

void mdOpenSheet(const clsExport &run, clsMSWord &word, const QString &path)
{
    word.OpenDocument(path, run.templateNames.value(path));
    stopIfLost(run, word);
}

void mdSaveSheet(const clsExport &run, clsMSWord &word)
{
    word.SaveAndClose();
    stopIfLost(run, word);
}

void mdFinishSheet(const clsExport &run, clsMSWord &word)
{
    mdSaveSheet(run, word);
    word.Quit();
}

void mdReplace(clsMSWord &word, const QString &placeholder, const QString &text, clsFillClass fill)
{
    word.DoReplace(placeholder, text, fill == clsFillClass::TickBox, fill == clsFillClass::Money, true);
}

void mdReplaceMark(clsMSWord &word, const QString &mark)
{
    mdReplace(word, SheetMarkPlaceholder, mark, clsFillClass::Text);
}

void mdTypeCell(clsMSWord &word, const QString &text, clsFillClass fill)
{
    word.SetText(QString(text), fill == clsFillClass::TickBox, fill == clsFillClass::Money, true, false);
}

void mdReplaceRows(clsExport &run, clsMSWord &word, std::span<const clsPlaceholderRow> rows, int pageNumber)
{
    for (const clsPlaceholderRow &row : rows) {
        const QString placeholder = QString::fromLatin1(row.placeholder);
        const QString text = row.source(run.form);
        if (row.overRun)
            mdExportWordGenerateOverRuns(run, text, *row.overRun, word, placeholder, pageNumber);
        else
            mdReplace(word, placeholder, text, row.fill);
    }
}
