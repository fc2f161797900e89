#include "shell/frmMain.h"

#include "base/mdCustomMessages.h"
#include "base/mdGetResourceData.h"
#include "base/mdLocalFile.h"
#include "base/mdLog.h"
#include "base/mdProgramFolder.h"
#include "base/mdShellExecute.h"
#include "commands/mdAutoSave.h"
#include "commands/mdFileHandling.h"
#include "controls/mdLeaveFocusedBox.h"
#include "controls/mdShowModal.h"
#include "controls/oFooterBar.h"
#include "controls/oTimeSpentBox.h"
#include "costing/mdCheckForBlankItems.h"
#include "editors/mdShowPreferences.h"
#include "formdata/mdGlobals.h"
#include "preview/mdPreview.h"
#include "shell/clsCheckState.h"
#include "shell/clsFormPages.h"
#include "shell/clsJournalKeeper.h"
#include "shell/clsLongWork.h"
#include "shell/frmAbout.h"
#include "shell/frmExportAsPdf.h"
#include "shell/frmExportToWord.h"
#include "shell/frmFolderOfClaims.h"

#include <QCloseEvent>
#include <QDragEnterEvent>
#include <QFileInfo>
#include <QMimeData>
#include <QScopedValueRollback>
#include <QTimer>
#include <QUrl>

// The commands of the main window's menu, claims dropped on the window, and closing it.

namespace {

/// The path of a claim dragged onto the window; empty if there is none or more than one.
QString draggedClaim(const QMimeData &data)
{
    const QList<QUrl> urls = data.urls();
    const QString path = urls.size() == 1 ? mdLocalFile(urls.first()) : QString();
    return path.endsWith(QLatin1String(".zr3"), Qt::CaseInsensitive) ? path : QString();
}

} // namespace

bool frmMain::leaveForAnotherClaim()
{
    if (!mdLeaveFocusedBox(this))
        return false;
    // A box with the focus keeps its text, and would write it into the next claim.
    if (QWidget *box = focusWidget(); box && oFooter->TimeSpentTimer()->isAncestorOf(box))
        box->clearFocus();
    return true;
}

void frmMain::replaceClaim(const std::function<void()> &command)
{
    if (!leaveForAnotherClaim())
        return;
    {
        const QScopedValueRollback<bool> follows(m_drawingFollows, true);
        command();
    }
    UpdateInfo();
    PreviewScheduleOfTime();
}

void frmMain::New()
{
    replaceClaim([] { NewForm(false); });
}

void frmMain::Open()
{
    replaceClaim([] { OpenFormDialog(false); });
}

void frmMain::Save()
{
    // Saves even if the box refuses to lose the focus: an invalid text is not in the claim, and must not prevent its
    // save.
    mdLeaveFocusedBox(this);
    SaveForm(false);
    UpdateInfo();
}

void frmMain::SaveAs()
{
    mdLeaveFocusedBox(this);
    SaveForm(true);
    UpdateInfo();
}

void frmMain::ExportToWord()
{
    if (!wordInstalled()) {
        mdCustomMessages(
            QStringLiteral("Velmor ZR3 could not detect Microsoft Word. Please install Microsoft Word onto "
                           "your computer and try again."),
            QStringLiteral("Word Error"));
        return;
    }
    frmExportToWord dialog(this, m_check);
    whileModal([&] {
        mdShowModal(dialog);
        m_check->Postpone();
    });
    if (dialog.leadsToCheck())
        CheckClaim();
}

void frmMain::ExportAsPdf()
{
    whileModal([this] { mdExportAsPdf(m_pages->CurrentPdf(), this); });
}

void frmMain::FolderOfClaims()
{
    const QString claim = Document().filePath();
    frmFolderOfClaims folder(claim.isEmpty() ? QString() : QFileInfo(claim).absolutePath(), this);
    whileModal([&folder] { mdShowModal(folder); });
    if (const QString chosen = folder.ChosenClaim(); !chosen.isEmpty())
        openInstead([&chosen] { OpenFormFile(chosen); });
}

void frmMain::ShowPreferences()
{
    whileModal([this] { mdShowPreferences(this); });
}

void frmMain::CheckForBlank()
{
    CheckForBlankItems();
}

void frmMain::UserGuide()
{
    ShellOpen(ProgramPath(QStringLiteral("Documentation/Velmor ZR3 User Guide.pdf")));
}

void frmMain::KeyboardShortcutsList()
{
    ShellOpen(ProgramPath(QStringLiteral("Documentation/Velmor ZR3 Keyboard Shortcuts.pdf")));
}

void frmMain::MakeASuggestion()
{
    ShellOpen(GetResourceData(QStringLiteral("ciSuggestionURL"), QStringLiteral("COMPANYINFO")));
}

void frmMain::About()
{
    frmAbout dialog(wordInstalled(), this);
    whileModal([&dialog] { mdShowModal(dialog); });
}

void frmMain::dragEnterEvent(QDragEnterEvent *event)
{
    if (!draggedClaim(*event->mimeData()).isEmpty())
        event->acceptProposedAction();
}

void frmMain::dropEvent(QDropEvent *event)
{
    const QString path = draggedClaim(*event->mimeData());
    if (path.isEmpty())
        return;
    event->acceptProposedAction();
    // Delayed: the program that the file was dragged from waits until this event is handled.
    QTimer::singleShot(0, this, [this, path] { openDropped(path); });
}

void frmMain::openDropped(const QString &path)
{
    openInstead([&path] { OpenFormFile(path); });
}

void frmMain::openInstead(const std::function<void()> &open)
{
    if (m_modal || clsLongWork::isRunning() || !leaveForAnotherClaim() || !ConfirmDrop())
        return;
    {
        const QScopedValueRollback<bool> follows(m_drawingFollows, true);
        open();
        mdClearPreview();
        oFooter->TimeSpentTimer()->StopTimer();
        Activate();
    }
    PreviewScheduleOfTime();
}

bool frmMain::confirmExit()
{
    // An invalid text doesn't keep the user from leaving the program.
    mdLeaveFocusedBox(this);
    return ConfirmExit();
}

void frmMain::closeEvent(QCloseEvent *event)
{
    event->ignore();
    if (clsLongWork::isRunning() || !confirmExit())
        return;
    event->accept();
    tmrAutoBackup->stop();
    m_journal->leave();
    WriteLog(QStringLiteral("Program Ended\r\n") + QString(110, u'#'));
    m_loaded = false;
    emit Closed();
}

void frmMain::tmrAutoBackup_Timer()
{
    // A backup during long work could contain a half-changed claim, and its error message would interrupt the work.
    if (!clsLongWork::isRunning())
        mdAutoBackupTick(m_backupTag);
}
