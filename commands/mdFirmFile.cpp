#include "commands/mdFirmFile.h"

#include "base/clsFileSystem.h"
#include "base/clsRunTimeError.h"
#include "base/mdDatabasePath.h"
#include "base/mdStateFolder.h"
#include "base/mdSystemFailure.h"
#include "commands/clsFirm.h"
#include "commands/mdDatedCopy.h"
#include "commands/mdFirmTable.h"
#include "formdata/clsZR3PreferencesDatabase.h"
#include "formdata/mdGlobals.h"

#include <QFile>

namespace {

const QString FileName = QStringLiteral("Firm.csv");
const QString AsideName = QStringLiteral("Firm.csv.broken");

/// Doesn't report a missing folder: the preferences are in the same folder and have reported it.
QString pathOf(const QString &name)
{
    return StoredDatabasePath() + u'/' + name;
}

std::unique_ptr<clsFirm> emptyFirm()
{
    auto firm = std::make_unique<clsFirm>();
    firm->form.VAT = true;
    if (Preferences)
        firm->form.VATRate = Preferences->DefaultVATRate();
    return firm;
}

/// Renames a file with invalid content so that it can be repaired, and tells the user why in one line.
void setAside(const QString &reason)
{
    try {
        FileSystem().RenameFile(pathOf(FileName), pathOf(AsideName));
        UserInterface().tellLine(
            QStringLiteral("Firm.csv is broken%1. It was set aside as Firm.csv.broken").arg(reason));
    } catch (const clsRunTimeError &) {
        UserInterface().tellLine(QStringLiteral("Firm.csv is broken%1. It is not used").arg(reason));
    }
}

/// The firm in the file; raises the file system's error if it can't be read.
std::unique_ptr<clsFirm> readFile()
{
    auto firm = emptyFirm();
    if (!mdHasFirm())
        return firm;
    const QByteArray bytes = FileSystem().ReadFile(pathOf(FileName));
    if (const QString why = mdReadFirmCsv(bytes, *firm); !why.isEmpty()) {
        setAside(why);
        return emptyFirm();
    }
    firm->bytes = bytes;
    return firm;
}

/// Sets aside another user's content that this program hasn't read; false if there was none. Raises an error on
/// failure.
bool keepOthers(const QByteArray &known)
{
    if (!mdHasFirm())
        return false;
    const QByteArray bytes = FileSystem().ReadFile(pathOf(FileName));
    if (bytes == known)
        return false;
    if (!MakeStateFolder() || WriteDatedCopy(StateFolder() + QStringLiteral("/Set Aside"), bytes, FileName).isEmpty())
        throw clsRunTimeError(clsRunTimeError::PathFileAccess);
    return true;
}

void tellSaved(bool keptOthers, bool fillsNewClaims)
{
    if (keptOthers)
        UserInterface().tellLine(QStringLiteral("Saved. What another user had put into Firm.csv was set aside"));
    else if (fillsNewClaims)
        UserInterface().tellLine(QStringLiteral("Saved. The next new claim begins with these"));
    else
        UserInterface().tellLine(QStringLiteral("Saved. New claims are not filled with these"));
}

/// Renamed into place, so that no reader sees a half-written file. The new file has the permissions of the old one, or
/// of the preferences.
void replaceFile(const QByteArray &bytes)
{
    const QString path = pathOf(FileName);
    const QString fresh = path + QStringLiteral(".new");
    const QString like = mdHasFirm() ? path : pathOf(QStringLiteral("Preferences Database.vzp"));
    try {
        FileSystem().EmptyFile(fresh);
        FileSystem().WriteFile(fresh, bytes);
        QFile::setPermissions(fresh, QFile::permissions(like) | QFile::ReadOwner | QFile::WriteOwner);
        FileSystem().RenameFile(fresh, path);
    } catch (const clsRunTimeError &) {
        QFile::remove(fresh);
        throw;
    }
}

} // namespace

bool mdHasFirm()
{
    try {
        return FileSystem().FileExists(pathOf(FileName));
    } catch (const clsRunTimeError &) {
        return true;
    }
}

std::unique_ptr<clsFirm> mdReadFirm()
{
    try {
        return readFile();
    } catch (const clsRunTimeError &error) {
        mdSystemFailure(QStringLiteral("File Not Read"),
            QStringLiteral("There was a problem reading the following path:"), pathOf(FileName), error);
        return {};
    }
}

bool mdWriteFirm(clsFirm &firm)
{
    const QByteArray bytes = mdFirmAsCsv(firm);
    try {
        const bool keptOthers = keepOthers(firm.bytes);
        replaceFile(bytes);
        tellSaved(keptOthers, firm.fillsNewClaims);
    } catch (const clsRunTimeError &error) {
        mdSystemFailure(QStringLiteral("File Not Saved"),
            QStringLiteral("There was a problem writing to the following path:"), pathOf(FileName), error);
        return false;
    }
    firm.bytes = bytes;
    return true;
}

std::unique_ptr<clsFirm> mdFirmForNewClaims()
{
    if (!mdHasFirm())
        return {};
    try {
        auto firm = readFile();
        return firm->fillsNewClaims ? std::move(firm) : nullptr;
    } catch (const clsRunTimeError &error) {
        UserInterface().tellLine(QStringLiteral("Firm.csv could not be read: ") + error.description());
        return {};
    }
}
