#include "wordexport/mdExportSheet.h"

#include "wordexport/clsExport.h"
#include "wordexport/document/clsWordDocument.h"
#include "wordexport/mdExportCopyTemplate.h"
#include "wordexport/mdExportWordGenerateOverRuns.h"

#include <algorithm>
#include <iterator>

namespace {

void stopIfLost(const clsExport &run, const clsMSWord &word)
{
    if (run.stopsAtLostSheet && word.sheetLost())
        throw clsExportStopped();
}

QString propertyOf(const clsExport &run, const clsSheetFile &sheet, const clsFittedText &text)
{
    if (!text.placeholder.isEmpty())
        return run.fields.value({sheet.page, text.placeholder});
    const bool inGrid = run.grid && text.column >= 1 && text.column <= int(run.grid->cells.size());
    return inGrid ? QString::fromLatin1(run.grid->cells[size_t(text.column - 1)].property) : QString();
}

clsForecast::Box boxOf(const clsExport &run, const clsSheetFile &sheet, const clsFittedText &text)
{
    clsForecast::Box box {sheet.name, text.placeholder, propertyOf(run, sheet, text), text.row, text.column,
        text.halfPoints / 2.0, text.printedHalfPoints / 2.0, text.lines, clsForecast::Box::clsState(text.state)};
    if (text.row > 0)
        box.Grid = int(sheet.grids.size()) - 1;
    if (text.row > 0 && run.list) {
        box.List = QString::fromLatin1(run.list->name);
        box.Item = run.list->order(run.form, run.firstItem + text.row - 1);
    }
    return box;
}

static_assert(int(clsForecast::Box::Smaller) == int(clsFittedText::Smaller)
    && int(clsForecast::Box::RunsOn) == int(clsFittedText::RunsOn)
    && int(clsForecast::Box::Cut) == int(clsFittedText::Cut));

void note(clsExport &run, const clsMSWord &word)
{
    clsSheetFile &sheet = run.sheets[word.savedPath()];
    if (run.inMemory)
        sheet.kept = word.kept();
    else
        sheet.text = word.savedText();
    // Each opening of a sheet fits only the text typed during it.
    std::transform(word.fitted().begin(), word.fitted().end(), std::back_inserter(sheet.boxes),
        [&](const clsFittedText &text) { return boxOf(run, sheet, text); });
    sheet.paperPages = word.paperPages();
}

} // namespace

QString mdMakeSheet(clsExport &run, const QString &templateName, int pageNumber, int sheetNumber)
{
    const QString path = mdExportCopyTemplate(run, templateName, mdSheetName(pageNumber, sheetNumber));
    run.sheets[path].page = pageNumber;
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
    } else if (sheet.kept) {
        word.OpenDocument(path, sheet.templateName, *sheet.kept);
    } else {
        word.OpenDocument(path, sheet.templateName);
    }
    sheet.isCopy = false;
    sheet.text.reset();
    stopIfLost(run, word);
}

void mdSaveSheet(clsExport &run, clsMSWord &word)
{
    if (run.inMemory)
        word.KeepAndClose();
    else
        word.SaveAndClose();
    if (!word.savedPath().isEmpty())
        note(run, word);
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

int mdLineBreaksIn(QString text)
{
    text.replace(QLatin1String("\r\n"), QLatin1String("\n"));
    return int(std::count_if(text.begin(), text.end(),
        [](QChar character) { return character == u'\n' || character == u'\r' || character == u'\v'; }));
}

void mdReplaceRows(clsExport &run, clsMSWord &word, std::span<const clsPlaceholderRow> rows, int pageNumber)
{
    for (const clsPlaceholderRow &row : rows) {
        const QString placeholder = QString::fromLatin1(row.placeholder);
        const QString text = row.source(run.bill);
        if (row.property)
            run.fields.insert({pageNumber, placeholder}, QString::fromLatin1(row.property));
        if (row.overRun)
            mdExportWordGenerateOverRuns(run, text, *row.overRun, word, placeholder, pageNumber);
        else
            mdReplace(word, placeholder, text, row.fill);
    }
}
