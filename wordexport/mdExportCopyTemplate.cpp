#include "wordexport/mdExportCopyTemplate.h"

#include "shell/clsRunTimeError.h"
#include "shell/mdLog.h"
#include "wordexport/clsExport.h"
#include "wordexport/clsWordPackage.h"
#include "wordexport/mdDocumentFile.h"
#include "wordexport/mdExportTempFolder.h"

namespace {

/// Reads a template's file; a failure says which one it was, since nobody else knows the name.
QByteArray readTemplate(const QString &path)
{
    try {
        return mdReadDocumentFile(path, ZipLimits::PackageBytes);
    } catch (const clsRunTimeError &error) {
        throw clsRunTimeError(error.number(), QStringLiteral("%1: %2").arg(error.description(), path));
    }
}

/// The bytes of a template. Each is looked at once, for a damaged one would otherwise be found out only when sheets
/// made from it lie about.
const QByteArray &templateBytes(clsExport &run, const QString &templateName)
{
    auto known = run.templates.find(templateName);
    if (known == run.templates.end()) {
        const QString path = QStringLiteral("%1/%2.doc").arg(run.templatesFolder, templateName);
        const QByteArray bytes = readTemplate(path);
        clsWordPackage package(clsZipPackage::fromBytes(bytes, templateName), templateName);
        package.partXml(package.mainPart());
        known = run.templates.insert(templateName, bytes);
    }
    return known.value();
}

} // namespace

QString mdExportCopyTemplate(clsExport &run, const QString &templateName, const QString &sheetName)
{
    WriteLog(QStringLiteral("Begin Export Copy Template"));
    const QString path = QStringLiteral("%1/%2.doc").arg(mdExportTempFolder(run.exportFolder), sheetName);
    mdWriteWorkingFile(path, templateBytes(run, templateName));
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
