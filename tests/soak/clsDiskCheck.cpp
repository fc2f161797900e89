#include "tests/soak/clsDiskCheck.h"

#include "formdata/clsZR3Form.h"
#include "shell/clsFileSystem.h"
#include "shell/mdCodePage.h"
#include "shell/mdFileHandling.h"
#include "shell/mdGlobals.h"
#include "shell/zr3tool/mdTotalsReport.h"
#include "tests/support/clsWordLint.h"
#include "wordexport/mdExportWordCombineDocuments.h"

#include <utility>

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
    if (!Form || path != FormFilePath())
        return;
    // A file is written in several steps.
    if (!m_saved.empty() && m_saved.back().path == path)
        m_saved.pop_back();
    m_saved.push_back({path, Form->XMLOutput(), mdTotalsReport(*Form).json});
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
    const QByteArray figures = mdTotalsReport(again).json;
    if (figures == saved.figures)
        return {};
    const QList<QByteArray> now = figures.split('\n'), before = saved.figures.split('\n');
    for (qsizetype line = 0; line < before.size(); ++line)
        if (now.value(line) != before[line])
            return QStringLiteral("the loaded claim has other figures, first:") + QString::fromUtf8(before[line])
                + QStringLiteral(" became") + QString::fromUtf8(now.value(line));
    return QStringLiteral("the loaded claim has more figures");
}
