#include "wordexport/mdExportSheet.h"

#include "wordexport/clsExport.h"
#include "wordexport/document/clsWordDocument.h"
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

void mdOpenSheet(clsExport &run, clsMSWord &word, const QString &path)
{
    clsSheetFile &sheet = run.sheets[path];
    if (const auto original = run.templates.find(sheet.templateName); sheet.isCopy && original != run.templates.end()) {
        word.OpenDocument(path, sheet.templateName, original->content);
        if (word.isOpen() && !original->styles)
            original->styles = word.openDocument()->styles();
    } else {
        word.OpenDocument(path, sheet.templateName);
    }
    sheet.isCopy = false;
    sheet.text.reset();
    stopIfLost(run, word);
}

void mdSaveSheet(clsExport &run, clsMSWord &word)
{
    word.SaveAndClose();
    if (!word.savedPath().isEmpty())
        run.sheets[word.savedPath()].text = word.savedText();
    stopIfLost(run, word);
}

void mdInsertSheet(const clsExport &run, clsMSWord &word, const QString &path)
{
    const clsSheetFile sheet = run.sheets.value(path);
    const auto original = run.templates.find(sheet.templateName);
    if (original != run.templates.end() && original->isPlain && original->styles && sheet.text) {
        const clsPlainText plain {*original->styles, *sheet.text};
        word.InsertFileAtEnd(path, sheet.templateName, &plain);
    } else {
        word.InsertFileAtEnd(path, sheet.templateName);
    }
}

void mdFinishSheet(clsExport &run, clsMSWord &word)
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

void mdRemoveSpareMarks(clsMSWord &word)
{
    word.RemoveHidden(SheetMarkPlaceholder);
}

void mdTypeCell(clsMSWord &word, const QString &text, clsFillClass fill)
{
    word.SetText(QString(text), fill == clsFillClass::TickBox, fill == clsFillClass::Money, true, false);
}

void mdReplaceRows(clsExport &run, clsMSWord &word, std::span<const clsPlaceholderRow> rows, int pageNumber)
{
    for (const clsPlaceholderRow &row : rows) {
        const QString placeholder = QString::fromLatin1(row.placeholder);
        const QString text = row.source(run.bill);
        if (row.overRun)
            mdExportWordGenerateOverRuns(run, text, *row.overRun, word, placeholder, pageNumber);
        else
            mdReplace(word, placeholder, text, row.fill);
    }
}
