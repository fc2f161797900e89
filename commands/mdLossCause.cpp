#include "commands/mdLossCause.h"

#include "base/clsFileSystem.h"
#include "base/mdCodePage.h"
#include "formdata/clsZR3Form.h"
#include "formdata/mdGlobals.h"

#include <QDir>
#include <QRegularExpression>

#include <algorithm>

namespace {

const QString ClaimExtension = QStringLiteral(".zr3");

bool holds(const QString &path, const QByteArray &bytes)
{
    try {
        return FileSystem().ReadFile(path) == bytes;
    } catch (const clsRunTimeError &) {
        return false;
    }
}

/// Whether the claim's file has this content, or another claim in its folder, in case the file was renamed.
bool isOnDisk(const QByteArray &bytes)
{
    const QString path = Document().filePath();
    if (path.isEmpty())
        return false;
    if (holds(path, bytes))
        return true;
    const QDir folder(QFileInfo(path).path(), u'*' + ClaimExtension, QDir::NoSort, QDir::Files | QDir::NoSymLinks);
    const QFileInfoList files = folder.entryInfoList();
    return std::any_of(files.begin(), files.end(),
        [&](const QFileInfo &file) { return file.size() == bytes.size() && holds(file.filePath(), bytes); });
}

/// A claim's text without its path. A claim opened from another folder counts as changed by its path, but that is not
/// the user's work.
struct clsAroundPath {
    explicit clsAroundPath(const QString &text)
    {
        static const QRegularExpression element(QStringLiteral("<path(/>|>[^<]*</path>)"));
        const QRegularExpressionMatch found = element.match(text);
        before = QStringView(text).left(qMax(qsizetype(0), found.capturedStart()));
        after = QStringView(text).mid(before.size() + found.capturedLength());
    }
    bool operator==(const clsAroundPath &) const = default;

    QStringView before;
    QStringView after;
};

clsLossCause causeInFile()
{
    try {
        const QString path = Document().filePath();
        if (!FileSystem().FileExists(path))
            return clsLossCause::FileMissing;
        FileSystem().ReadFile(path);
        return clsLossCause::FileChanged;
    } catch (const clsRunTimeError &) {
        return clsLossCause::FileUnreadable;
    }
}

clsLossCause lossCause()
{
    const QString text = Form->XMLOutput();
    const bool isClean = text == CleanXML;
    if ((isClean && Document().lastSave == clsDocument::clsSaved::Never) || isOnDisk(mdToCodePage(text)))
        return clsLossCause::None;
    if (isClean)
        return Document().lastSave == clsDocument::clsSaved::Failed ? clsLossCause::SaveFailed : causeInFile();
    const bool isAsOpened = clsAroundPath(text) == clsAroundPath(CleanXML) && isOnDisk(mdToCodePage(CleanXML));
    return isAsOpened ? clsLossCause::None : clsLossCause::UnsavedChanges;
}

} // namespace

clsLossCause FormLossCause() noexcept
{
    try {
        return Document().opening || !Form ? clsLossCause::None : lossCause();
    } catch (...) {
        // If the comparison fails, assume that there are unsaved changes.
        return clsLossCause::UnsavedChanges;
    }
}

bool HoldsUnsavedWork(const QString &text)
{
    return text != CleanXML && clsAroundPath(text) != clsAroundPath(CleanXML);
}
