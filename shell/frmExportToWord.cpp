#include "shell/frmExportToWord.h"

#include "base/clsFileSystem.h"
#include "base/mdCustomMessages.h"
#include "base/mdDesktopFolder.h"
#include "base/mdGetFolder.h"
#include "base/mdLog.h"
#include "base/mdProgramFolder.h"
#include "base/mdShellExecute.h"
#include "commands/mdFileHandling.h"
#include "controls/mdSigns.h"
#include "controls/mdTheme.h"
#include "controls/oButtonBar.h"
#include "controls/oCustomButton.h"
#include "controls/oFrame.h"
#include "controls/oHeaderBar.h"
#include "formdata/clsZR3Form.h"
#include "formdata/mdGlobals.h"
#include "shell/clsCheckState.h"
#include "shell/clsLongWork.h"
#include "shell/mdExportOutcome.h"
#include "wordexport/clsExport.h"
#include "wordexport/mdExportDriver.h"
#include "wordexport/mdExportWordCombineDocuments.h"
#include "wordexport/mdForecast.h"
#include "wordexport/mdWordAlreadyRunning.h"

#include <QFileInfo>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QScopedValueRollback>
#include <QSignalBlocker>
#include <QVBoxLayout>

#include <algorithm>

namespace {

constexpr int SignSide = 14;

} // namespace

frmExportToWord::frmExportToWord(QWidget *parent, clsCheckState *check)
    : QDialog(parent)
    , bxGeneral(new oFrame(this))
    , txtExportPath(new QLineEdit(bxGeneral))
    , cmdExportPathBrowse(button("cmdExportPathBrowse", QStringLiteral("&Browse...")))
    , cmdBesideTheClaim(button("cmdBesideTheClaim", QStringLiteral("Beside the C&laim")))
    , cmdOpenExportFolder(button("cmdOpenExportFolder", QStringLiteral("&Open")))
    , cmdOpenDocument(button("cmdOpenDocument", QStringLiteral("Open &Document")))
    , m_check(check)
    , m_checkLine(new QWidget(bxGeneral))
    , lblCheckSign(new QLabel(m_checkLine))
    , lblCheckCounts(new QLabel(m_checkLine))
    , cmdShowCheck(button("cmdShowCheck", QStringLiteral("&Show")))
    , lblOutcome(new QLabel(bxGeneral))
    , cmdExport(button("cmdExport", QStringLiteral("&Export")))
    , cmdClose(button("cmdClose", QStringLiteral("&Close")))
{
    setObjectName(QStringLiteral("frmExportToWord"));
    setWindowTitle(QStringLiteral("Export to Word"));
    WriteLog(objectName() + QStringLiteral(" Opened"));
    build();
    connect(txtExportPath, &QLineEdit::textChanged, this, &frmExportToWord::txtExportPath_Change);
    connect(cmdExportPathBrowse, &oCustomButton::Click, this, &frmExportToWord::cmdExportPathBrowse_Click);
    connect(cmdBesideTheClaim, &oCustomButton::Click, this, &frmExportToWord::cmdBesideTheClaim_Click);
    connect(cmdOpenDocument, &oCustomButton::Click, this, &frmExportToWord::cmdOpenDocument_Click);
    connect(cmdOpenExportFolder, &oCustomButton::Click, this, &frmExportToWord::cmdOpenExportFolder_Click);
    connect(cmdExport, &oCustomButton::Click, this, &frmExportToWord::cmdExport_Click);
    connect(cmdClose, &oCustomButton::Click, this, &QDialog::reject);

    const QString path = Form->ExportPath();
    txtExportPath->setText(path.isEmpty() ? mdDesktopFolder() : path);
    txtExportPath->setFocus();
    if (m_check)
        watchCheck();
}

oCustomButton *frmExportToWord::button(const char *name, const QString &caption)
{
    auto *result = new oCustomButton(this);
    result->setObjectName(QString::fromLatin1(name));
    result->setCaption(caption);
    return result;
}

void frmExportToWord::build()
{
    auto *header = new oHeaderBar(this);
    header->setObjectName(QStringLiteral("oHeader"));
    header->setCaption(QStringLiteral("Export to Word"));
    header->setSubCaption(QStringLiteral("Export the form to a Word Document"));

    bxGeneral->setObjectName(QStringLiteral("bxGeneral"));
    bxGeneral->setCaption(QStringLiteral("Export Settings"));
    txtExportPath->setObjectName(QStringLiteral("txtExportPath"));
    txtExportPath->setAccessibleName(QStringLiteral("Export to"));
    txtExportPath->setTextMargins(Theme::Space4, 0, Theme::Space4, 0);
    auto *label = new QLabel(QStringLiteral("Export &to:"), bxGeneral);
    label->setBuddy(txtExportPath);
    auto *row = new QHBoxLayout;
    row->setSpacing(Theme::Space8);
    row->addWidget(label);
    row->addSpacing(Theme::Space4);
    row->addWidget(txtExportPath, 1);
    auto *buttons = new QHBoxLayout;
    buttons->setSpacing(Theme::Space8);
    buttons->addWidget(cmdExportPathBrowse);
    buttons->addWidget(cmdBesideTheClaim);
    buttons->addStretch(1);
    buttons->addWidget(cmdOpenExportFolder);
    buttons->addWidget(cmdOpenDocument);
    bxGeneral->bodyLayout()->setSpacing(Theme::Space12);
    bxGeneral->bodyLayout()->addLayout(row);
    bxGeneral->bodyLayout()->addLayout(buttons);

    bxGeneral->bodyLayout()->addWidget(makeCheckLine());

    cmdBesideTheClaim->setEnabled(!Document().filePath().isEmpty());
    if (!cmdBesideTheClaim->isEnabled())
        cmdBesideTheClaim->setToolTip(QStringLiteral("The claim has not been saved yet."));
    cmdOpenDocument->setEnabled(false);
    lblOutcome->setObjectName(QStringLiteral("lblOutcome"));
    lblOutcome->setTextFormat(Qt::PlainText);
    lblOutcome->setWordWrap(true);
    // Always room for two lines, so that nothing moves when text appears.
    lblOutcome->setMinimumHeight(2 * lblOutcome->fontMetrics().lineSpacing());
    lblOutcome->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    bxGeneral->bodyLayout()->addWidget(lblOutcome);

    cmdExport->setLook(oCustomButton::Look::Default);
    auto *bar = new oButtonBar(this);
    bar->AddButton(cmdExport);
    bar->AddButton(cmdClose);
    oButtonBar::layOut(*this, header, bxGeneral, bar);
    setMinimumWidth(Theme::scaled(640));
    QWidget *const order[] = {txtExportPath, cmdExportPathBrowse, cmdBesideTheClaim, cmdOpenExportFolder,
        cmdOpenDocument, cmdShowCheck, cmdExport, cmdClose};
    for (size_t i = 1; i < std::size(order); ++i)
        setTabOrder(order[i - 1], order[i]);
}

QWidget *frmExportToWord::makeCheckLine()
{
    lblCheckCounts->setObjectName(QStringLiteral("lblCheckCounts"));
    lblCheckCounts->setTextFormat(Qt::PlainText);
    cmdShowCheck->setLook(oCustomButton::Look::Small);
    cmdShowCheck->setToolTip(QStringLiteral("Close this window and show what the check has found"));
    auto *line = new QHBoxLayout(m_checkLine);
    line->setContentsMargins(0, 0, 0, 0);
    line->setSpacing(Theme::Space8);
    line->addWidget(lblCheckSign);
    line->addWidget(lblCheckCounts);
    line->addWidget(cmdShowCheck);
    line->addStretch(1);
    // Findings about printed texts come a moment later, and must not move anything.
    QSizePolicy keepsRoom = m_checkLine->sizePolicy();
    keepsRoom.setRetainSizeWhenHidden(m_check != nullptr);
    m_checkLine->setSizePolicy(keepsRoom);
    m_checkLine->hide();
    return m_checkLine;
}

void frmExportToWord::watchCheck()
{
    connect(m_check, &clsCheckState::Changed, this, &frmExportToWord::showCounts);
    connect(cmdShowCheck, &oCustomButton::Click, this, [this] {
        m_leadsToCheck = true;
        reject();
    });
    m_check->RenewPrint(true);
    showCounts();
}

void frmExportToWord::showCounts()
{
    const QString counts = mdCountsInWords(m_check->Groups(), false);
    const bool errors = mdCountOf(m_check->Groups(), clsFindingGroup::Errors) > 0;
    lblCheckCounts->setText(counts);
    lblCheckSign->setPixmap(
        mdSignPixmap(errors ? Sign::Error : Sign::Warning, Theme::scaled(SignSide), lblCheckSign->devicePixelRatioF()));
    m_checkLine->setVisible(!counts.isEmpty());
    cmdShowCheck->setAccessibleDescription(counts);
}

void frmExportToWord::txtExportPath_Change()
{
    // A path being typed is not a folder until its last letter, so that the box falls back to the desktop at once.
    // Required behaviour; do not fix: the box always holds an existing folder.
    QString text = txtExportPath->text();
    while (text.size() > 1 && (text.endsWith(u'\\') || text.endsWith(u'/')))
        text.chop(1);
    if (!FileSystem().FolderExists(text))
        text = mdDesktopFolder();
    if (text != txtExportPath->text()) {
        const QSignalBlocker quiet(txtExportPath);
        txtExportPath->setText(text);
    }
    Form->ExportPath = text;
}

void frmExportToWord::cmdExportPathBrowse_Click()
{
    const QString folder = GetFolder(QStringLiteral("Please select a folder to export to..."), txtExportPath->text());
    if (!folder.isEmpty())
        txtExportPath->setText(folder);
}

void frmExportToWord::cmdBesideTheClaim_Click()
{
    txtExportPath->setText(QFileInfo(Document().filePath()).absolutePath());
}

void frmExportToWord::cmdOpenDocument_Click()
{
    ShellOpen(m_document);
}

void frmExportToWord::showOutcome(const QString &document, const QString &text)
{
    m_document = document;
    cmdOpenDocument->setEnabled(!document.isEmpty());
    lblOutcome->setText(text);
    // More room if two lines are not enough.
    lblOutcome->setMinimumHeight(
        std::max(lblOutcome->minimumHeight(), lblOutcome->heightForWidth(lblOutcome->width())));
}

void frmExportToWord::cmdOpenExportFolder_Click()
{
    ShellOpen(txtExportPath->text());
}

bool frmExportToWord::mayExport()
{
    const QString paragraph = QStringLiteral("\r\n\r\n");
    if (mdWordAlreadyRunning()
        && mdCustomMessages(
               QStringLiteral("It is recommended that you close all instances of Microsoft Word before exporting.")
                   + paragraph
                   + QStringLiteral("Leaving Microsoft Word open during exporting may lead to Velmor ZR3 closing "
                                    "unexpectedly and any unsaved work will be lost.")
                   + paragraph + QStringLiteral("Click OK to continue."),
               QStringLiteral("Word Instances"), clsUserInterface::OKCancel, 2)
            != clsUserInterface::OK)
        return false;
    if (!FileSystem().FolderExists(txtExportPath->text())) {
        mdCustomMessages(
            QStringLiteral("The selected Export Path does not exist. Please select a valid folder and try again."),
            QStringLiteral("Export Path"), clsUserInterface::OKOnly, 0);
        return false;
    }
    const QString document = mdFinishedDocumentPath(txtExportPath->text(), Form->FormType());
    m_mayReplace = FileSystem().FileExists(document);
    return !m_mayReplace
        || mdCustomMessages(QStringLiteral("The following file will be overwritten:") + paragraph
                   + QFileInfo(document).fileName() + QStringLiteral("\r\n"),
               QStringLiteral("Overwrite?"), clsUserInterface::OKCancel, 1)
        == clsUserInterface::OK;
}

bool frmExportToWord::exportForm()
{
    const clsLongWork work;
    const QScopedValueRollback<bool> exporting(m_exporting, true);
    const clsExportDriver driver = mdExportDriver(Form->FormType());
    // An unknown form type exports nothing and still counts as complete.
    if (!driver)
        return true;
    clsExport run {*Form, TemplatesFolder()};
    run.exportFolder = txtExportPath->text();
    run.claimFile = Document().filePath();
    run.mayReplace = m_mayReplace;
    const bool finished = driver(run);
    if (finished) {
        const QString document = mdFinishedDocumentPath(run.exportFolder, run.form.FormType());
        showOutcome(document, mdExportOutcome(document, mdForecastOf(run)));
    }
    if (run.stoppedAtDocument)
        mdCustomMessages(QStringLiteral("Another program has just made this document in the folder. It was not "
                                        "replaced. To replace it, export again."),
            QStringLiteral("Export"));
    return finished;
}

void frmExportToWord::cmdExport_Click()
{
    if (!mayExport())
        return;
    showOutcome({}, {});
    setEnabled(false);
    const bool finished = exportForm();
    setEnabled(true);
    cmdExport->setFocus();
    // If there is no document the user has already been told why.
    if (finished)
        mdCustomMessages(
            QStringLiteral("Exporting is complete."), QStringLiteral("Export Complete"), clsUserInterface::OKOnly, 2);
}

void frmExportToWord::done(int result)
{
    if (!m_exporting)
        QDialog::done(result);
}
