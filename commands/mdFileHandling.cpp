#include "commands/mdFileHandling.h"

#include "base/clsFileSystem.h"
#include "base/clsFileWatch.h"
#include "base/mdCodePage.h"
#include "base/mdCustomMessages.h"
#include "base/mdGetResourceData.h"
#include "base/mdGetVersionInfo.h"
#include "base/mdStateFolder.h"
#include "base/mdVersionComparison.h"
#include "commands/clsFirm.h"
#include "commands/clsJournal.h"
#include "commands/clsNotStored.h"
#include "commands/mdDatedCopy.h"
#include "commands/mdFirmFile.h"
#include "commands/mdRecoveredCopy.h"
#include "commands/mdRunTimeErrorMessage.h"
#include "formdata/clsZR3Form.h"
#include "formdata/clsZR3PreferencesDatabase.h"
#include "formdata/mdClaimSetup.h"
#include "formdata/mdGlobals.h"

#include <QScopedValueRollback>

namespace {

const QString Filter = QStringLiteral("Velmor ZR3 Files (*.zr3)|*.zr3");
const QString DefaultExtension = QStringLiteral(".zr3");

constexpr int FileIsNewer = 2;

constexpr qsizetype MostSetAside = 10; ///< of files with the same name

// The commands change the window, which is on a higher floor.
clsFormDisplay formDisplay;

void run(const std::function<void()> &action)
{
    if (action)
        action();
}

template <class T> T &existing(const std::unique_ptr<T> &pointer)
{
    if (!pointer)
        throw clsRunTimeError(clsRunTimeError::ObjectNotSet);
    return *pointer;
}

void warnOfNewerVersion(const QString &fileVersion)
{
    const QString paragraph = QStringLiteral("\r\n\r\n");
    mdCustomMessages(
        QStringLiteral("The file you have opened was created on a newer version of the program than you are currently "
                       "running.")
            + paragraph + QStringLiteral("This file was created in version ") + fileVersion
            + QStringLiteral(", you are currently running version ") + GetVersionInfo() + paragraph
            + QStringLiteral(
                "This file may contain functionality that is not recognised by this version and saving may "
                "lose information that is vital to the file.")
            + paragraph + QStringLiteral("Please visit ")
            + GetResourceData(QStringLiteral("ciWebsite"), QStringLiteral("COMPANYINFO"))
            + QStringLiteral(" and download the latest version of the program."),
        QStringLiteral("Version Error"));
}

/// Loads the file into the current claim; if it is not a claim, starts a new one and returns false.
bool loadForm(const QString &path)
{
    if (!Form->LoadXML(path)) {
        NewForm(true);
        return false;
    }
    // Elements that loading adds to an older file count as clean.
    Document().takeAsClean();
    if (CompareVersions(Form->Version(), GetVersionInfo()) == FileIsNewer)
        warnOfNewerVersion(Form->Version());
    return true;
}

/// Sets aside what another program wrote to the claim's file since this one read or saved it, because the coming save
/// overwrites it. Returns whether that succeeded; nothing if there was nothing to keep.
std::optional<bool> setOtherContentAside()
{
    if (!Document().changedOnDisk())
        return {};
    try {
        const QByteArray bytes = FileSystem().ReadFile(Document().filePath());
        // The file could not be read a moment ago, but has the known content.
        if (clsFileWatch::markOf(bytes) == Document().onDisk.mark())
            return {};
        if (!MakeStateFolder())
            return false;
        const QString aside = WriteDatedCopy(StateFolder() + QStringLiteral("/Set Aside"), bytes);
        if (aside.isEmpty())
            return false;
        KeepNewestCopies(aside, MostSetAside);
        return true;
    } catch (const clsRunTimeError &) {
        return false;
    }
}

void leaveClaim()
{
    Journal().leaveClaim();
    NotStored().leaveClaim();
}

/// Sets aside work that counts as saved but would be lost, and tells the user. False if no folder accepted it.
bool setAside()
{
    // The user has already chosen not to save a claim that still counts as changed.
    if (FormIsDirty())
        return true;
    const clsRecoveredCopy copy = WriteRecoveredCopy();
    if (copy.cause == clsLossCause::None)
        return true;
    UserInterface().systemMessage(mdRecoveredCopyMessage(copy), QStringLiteral("Velmor ZR3"),
        copy.path.isEmpty() ? clsUserInterface::Critical : clsUserInterface::Information, clsUserInterface::OKOnly);
    return !copy.path.isEmpty();
}

} // namespace

void SetFormDisplay(clsFormDisplay display)
{
    formDisplay = std::move(display);
}

bool FormIsDirty()
{
    return Document().isDirty();
}

bool ConfirmClose()
{
    if (!FormIsDirty())
        return true;
    switch (mdCustomMessages(QStringLiteral("Save changes to this form before closing?"), QStringLiteral("Save?"),
        clsUserInterface::YesNoCancel, clsUserInterface::Question)) {
    case clsUserInterface::Yes: return SaveForm(false);
    case clsUserInterface::No: return true;
    default: return false;
    }
}

bool ConfirmDrop()
{
    return ConfirmClose() && setAside();
}

bool ConfirmExit()
{
    if (!ConfirmClose())
        return false;
    setAside();
    return true;
}

bool SaveForm(bool saveAs)
{
    clsZR3Form &form = existing(Form);
    if ((form.path.isEmpty() || saveAs) && !SaveFormDialog())
        return false;
    // Set before the text is written, so that the text contains it.
    form.Version = GetVersionInfo();
    const std::optional<bool> keptOther = setOtherContentAside();
    // If the program ends during the save, the journal must not be older than the file.
    Journal().flush();
    int failure = 0;
    const bool written = form.SaveXML(Document().filePath(), &failure);
    Document().lastSave = written ? clsDocument::clsSaved::Written : clsDocument::clsSaved::Failed;
    // Also after a failed write: its box has told the user, and the old content is kept beside the file. Required
    // behaviour; do not fix.
    Document().takeAsClean();
    if (written)
        Document().onDisk.wasWritten(Document().filePath(), mdToCodePage(CleanXML));
    else if (!keptOther)
        Document().onDisk.wasLeft(Document().filePath());
    NotStored().claimSaved(Document().filePath());
    Journal().saved(written, failure);
    if (written && keptOther)
        UserInterface().tellLine(*keptOther
                ? QStringLiteral("Saved. The other program's version was set aside")
                : QStringLiteral("Saved. The other program's version could not be set aside"));
    run(formDisplay.activate);
    return true;
}

bool SaveFormDialog()
{
    existing(Form);
    const QString path = UserInterface().chooseFileToSave(Filter, DefaultExtension);
    if (path.isEmpty() || !ConfirmOverwrite(path))
        return false;
    Document().givePath(path);
    return true;
}

bool ConfirmOverwrite(const QString &path)
{
    try {
        if (!FileSystem().FileExists(path))
            return true;
    } catch (const clsRunTimeError &) {
        // The write will fail for the same reason, and will tell the user.
        return true;
    }
    return mdCustomMessages(QStringLiteral("The chosen file path already exists. Would you like to overwrite it?"),
               QStringLiteral("Overwrite?"), clsUserInterface::YesNo, clsUserInterface::Question)
        == clsUserInterface::Yes;
}

void NewForm(bool skipConfirm)
{
    if (!skipConfirm && !ConfirmDrop())
        return;
    // Read before the claim is replaced: reading lets timers run.
    const std::unique_ptr<clsFirm> firm = mdFirmForNewClaims();
    BeginForm([&firm](clsZR3Form &form) {
        if (firm)
            mdCopySetup(firm->form, form);
    });
}

void BeginForm(const std::function<void(clsZR3Form &form)> &fill)
{
    leaveClaim();
    Document().replaceForm();
    Form->Version = GetVersionInfo();
    Form->VAT = true;
    Form->VATRate = existing(Preferences).DefaultVATRate();
    fill(*Form);
    Document().takeAsClean();
    run(formDisplay.stopTimer);
    run(formDisplay.activate);
}

QString ChooseClaim()
{
    return UserInterface().chooseFileToOpen(Filter);
}

void OpenFormDialog(bool clearPath)
{
    // Before the dialog: a user who cancels it has already been asked, and keeps the claim with its changes.
    if (!ConfirmDrop())
        return;
    const QString path = ChooseClaim();
    if (!path.isEmpty()) {
        OpenFormFile(path);
        if (clearPath)
            Document().givePath(QString());
        run(formDisplay.clearPreview);
        run(formDisplay.stopTimer);
    }
    run(formDisplay.activate);
}

void OpenFormFile(const QString &path)
{
    // A stopwatch tick would write the old claim's time into this one.
    run(formDisplay.stopTimer);
    // Before `opening` is set: if a save failed, the journal still takes the claim's last changes.
    leaveClaim();
    const QScopedValueRollback<bool> reading(Document().opening, true);
    // From here on the old claim and its clean text are gone, even if the load fails.
    Document().replaceForm();
    Document().takeAsClean();
    const std::optional<clsFileStamp> before = FileStamp(path);
    try {
        if (!loadForm(path))
            return;
    } catch (...) {
        // Passed on to the top level. A claim that was never opened holds none of the user's work.
        Document().takeAsClean();
        throw;
    }
    // After the clean text was taken: a path that differs from the one in the file counts as a change, so a copy or
    // backup asks to be saved in its present place.
    Document().givePath(path);
    Document().onDisk.wasRead(path, before);
    NotStored().openClaim(path);
}

bool OpenFormText(const QByteArray &bytes, const QString &path, const QByteArray &known)
{
    run(formDisplay.stopTimer);
    // The open claim stays until the new one is complete.
    auto form = std::make_unique<clsZR3Form>();
    if (!form->LoadText(mdUtf8FromCodePage(bytes)))
        return false;
    // Before `opening` is set: if a save failed, the journal still takes the claim's last changes.
    leaveClaim();
    const QScopedValueRollback<bool> reading(Document().opening, true);
    Document().replaceForm();
    Form = std::move(form);
    Document().givePath(path);
    // Nothing in it counts as saved.
    CleanXML.clear();
    Document().onDisk.wasKnown(path, known);
    if (!path.isEmpty())
        NotStored().openClaim(path);
    return true;
}
