#include "tests/soak/clsDiskCheck.h"

#include "base/clsFileSystem.h"
#include "base/mdCodePage.h"
#include "commands/mdFileHandling.h"
#include "costing/mdTotalsReport.h"
#include "formdata/clsZR3Form.h"
#include "formdata/mdGlobals.h"
#include "tests/support/clsWordLint.h"
#include "wordexport/mdExportWordCombineDocuments.h"

#include <utility>

namespace {

/// The report of a claim's figures, one per line, without the printed numbers of the schedule's items: these are not
/// saved, and are set again by each drawing and export.
QList<QByteArray> figuresOf(const clsZR3Form &form)
{
    QList<QByteArray> lines = mdTotalsReport(form).json.split('\n');
    lines.removeIf([](const QByteArray &line) { return line.contains("\"SOTItemNumber\""); });
    return lines;
}

/// The same for the claim that is being written. Totalling writes 0 to an empty VAT of an advocacy item, which is
/// required behaviour, but here it would make a difference between the claim and its file.
QList<QByteArray> figuresWhileWriting(const clsZR3Form &form)
{
    std::vector<std::shared_ptr<clsZR3FASItem>> empty;
    for (const auto &item : form.FASItemsCollection())
        if (item->VATForFAS.isEmpty())
            empty.push_back(item);
    const QList<QByteArray> figures = figuresOf(form);
    for (const auto &item : empty)
        item->VATForFAS = QString();
    return figures;
}

} // namespace

void clsDiskCheck::begin()
{
    FileSystem().faultPoint = [this](clsFileStep step, const QString &path) {
        if (step == clsFileStep::Write)
            aboutToWrite(path);
        return clsFileFault {};
    };
}

clsDiskCheck::~clsDiskCheck()
{
    FileSystem().faultPoint = {};
}

void clsDiskCheck::aboutToWrite(const QString &path)
{
    if (!Form || path != Document().filePath())
        return;
    // A file is written in several steps.
    if (!m_saved.empty() && m_saved.back().path == path)
        m_saved.pop_back();
    m_saved.push_back({path, Form->XMLOutput(), figuresWhileWriting(*Form)});
}

void clsDiskCheck::exported()
{
    if (Form)
        m_documents.push_back(mdFinishedDocumentPath(Form->ExportPath(), Form->FormType()));
}

QString clsDiskCheck::whatIsWrong()
{
    for (const clsSaved &saved : std::exchange(m_saved, {})) {
        ++m_saves;
        if (const QString wrong = wrongWith(saved); !wrong.isEmpty())
            return saved.path + QStringLiteral(": ") + wrong;
    }
    for (const QString &document : std::exchange(m_documents, {})) {
        ++m_exports;
        const QStringList problems = clsWordLint::problemsOf(document, clsWordLint::MustBeGone);
        if (!problems.isEmpty())
            return document + QStringLiteral(": ") + problems.mid(0, 5).join(QStringLiteral("; "));
    }
    return {};
}

QString clsDiskCheck::wrongWith(const clsSaved &saved)
{
    if (FileSystem().ReadFile(saved.path) != mdToCodePage(saved.text))
        return QStringLiteral("the file does not hold the text of the claim");
    clsZR3Form again;
    if (!again.LoadXML(saved.path))
        return QStringLiteral("the saved claim can't be loaded");
    if (again.XMLOutput() != saved.text)
        return QStringLiteral("the loaded claim has another text");
    const QList<QByteArray> now = figuresOf(again);
    for (qsizetype line = 0; line < qMax(now.size(), saved.figures.size()); ++line)
        if (now.value(line) != saved.figures.value(line))
            return QStringLiteral("the loaded claim has other figures, first:")
                + QString::fromUtf8(saved.figures.value(line)) + QStringLiteral(" became")
                + QString::fromUtf8(now.value(line));
    return {};
}
