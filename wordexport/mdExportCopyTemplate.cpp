#include "wordexport/mdExportCopyTemplate.h"

#include "base/clsRunTimeError.h"
#include "base/mdLog.h"
#include "wordexport/clsExport.h"
#include "wordexport/document/clsWordPackage.h"
#include "wordexport/document/mdCheckDocument.h"
#include "wordexport/document/mdDocumentFile.h"
#include "wordexport/mdExportTempFolder.h"
#include "wordexport/mdShippedTemplates.h"

namespace {

/// Reads a template's file; adds the file name to an error of the system.
QByteArray readTemplate(const QString &path)
{
    try {
        return mdReadDocumentFile(path, ZipLimits::PackageBytes);
    } catch (const clsRunTimeError &error) {
        if (error.number() == clsRunTimeError::InvalidFileFormat)
            throw;
        throw clsRunTimeError(error.number(), QStringLiteral("%1: %2").arg(error.description(), path));
    }
}

/// Checks a template that is not one of the build's own.
bool isPlainDocument(const clsZipPackage &content, const QString &fileName)
{
    clsWordPackage package(content, fileName);
    mdCheckDocument(package);
    return mdIsPlainText(package.partXml(package.mainPart()));
}

/// A template is checked once and completely: a fault would otherwise show only on a sheet made from it, or in the
/// finished document. The build's own were checked when they were built, and are plain.
const clsTemplate &templateOf(clsExport &run, const QString &fileName)
{
    auto known = run.templates.find(fileName);
    if (known == run.templates.end()) {
        const QByteArray bytes = readTemplate(run.templatesFolder + u'/' + fileName);
        const clsZipPackage content = clsZipPackage::fromBytes(bytes, fileName);
        known = run.templates.insert(
            fileName, {bytes, content, mdIsShippedTemplate(bytes) || isPlainDocument(content, fileName)});
    }
    return known.value();
}

} // namespace

QString mdExportCopyTemplate(clsExport &run, const QString &templateName, const QString &sheetName)
{
    WriteLog(QStringLiteral("Begin Export Copy Template"));
    const QString fileName = templateName + QStringLiteral(".doc");
    const QString path = QStringLiteral("%1/%2.doc").arg(mdExportTempFolder(run), sheetName);
    const clsTemplate &original = templateOf(run, fileName);
    if (!run.inMemory)
        mdWriteWorkingFile(path, original.bytes);
    run.sheets.insert(path, {fileName, sheetName});
    WriteLog(QStringLiteral("End Export Copy Template"));
    return path;
}

QString mdSheetName(int pageNumber, int sheetNumber)
{
    return QStringLiteral("%1(%2)").arg(pageNumber).arg(sheetNumber);
}

QString mdSheetMark(int sheetNumber)
{
    return QStringLiteral("(%1)").arg(sheetNumber);
}
