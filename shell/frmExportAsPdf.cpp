#include "shell/frmExportAsPdf.h"

#include "base/clsRunTimeError.h"
#include "base/mdCustomMessages.h"
#include "base/mdDesktopFolder.h"
#include "base/mdLog.h"
#include "controls/mdShowModal.h"
#include "controls/mdTheme.h"
#include "controls/oButtonBar.h"
#include "controls/oCustomButton.h"
#include "controls/oFrame.h"
#include "controls/oHeaderBar.h"
#include "formdata/clsZR3Form.h"
#include "formdata/mdGlobals.h"
#include "wordexport/document/clsZipPackage.h"
#include "wordexport/document/mdDocumentFile.h"
#include "wordexport/mdOfficeProgram.h"

#include <QDir>
#include <QFileInfo>
#include <QLabel>
#include <QProgressBar>
#include <QTemporaryDir>
#include <QTimer>
#include <QVBoxLayout>

namespace {

constexpr int Width = 460;

QString title()
{
    return QStringLiteral("Export as PDF");
}

/// The claim's folder and name; for a claim that was never saved, the form's name in the export folder.
QString proposedPath()
{
    const QString claim = Document().filePath();
    if (!claim.isEmpty()) {
        const QFileInfo file(claim);
        return QDir(file.absolutePath()).filePath(file.completeBaseName() + QStringLiteral(".pdf"));
    }
    const QString folder = Form->ExportPath();
    return QDir(folder.isEmpty() ? mdDesktopFolder() : folder).filePath(Form->FormType() + QStringLiteral(".pdf"));
}

void tellNotMade(const QString &why)
{
    mdCustomMessages(QStringLiteral("The PDF was not made.\r\n\r\n") + why, QStringLiteral("Export as PDF"));
}

bool write(const QByteArray &pdf, const QString &path)
{
    try {
        const QTemporaryDir folder;
        const QString written = folder.filePath(QStringLiteral("pages.pdf"));
        mdWriteWorkingFile(written, pdf);
        mdPutDocumentInPlace(written, path, Document().filePath(), ZipLimits::PackageBytes);
        return true;
    } catch (const clsRunTimeError &error) {
        tellNotMade(QStringLiteral("The PDF could not be written: %1.").arg(error.description()));
        return false;
    }
}

} // namespace

frmExportAsPdf::frmExportAsPdf(QWidget *parent)
    : QDialog(parent)
    , lblProgress(new QLabel)
    , pbProgress(new QProgressBar)
{
    setObjectName(QStringLiteral("frmExportAsPdf"));
    setWindowTitle(title());
    WriteLog(objectName() + QStringLiteral(" Opened"));
    build();
    connect(&m_maker, &clsPagesMaker::Progress, this, [this](int value, int maximum, const QString &text) {
        pbProgress->setRange(0, maximum);
        pbProgress->setValue(value);
        lblProgress->setText(text);
        repaint();
    });
    connect(&m_maker, &clsPagesMaker::Ended, this, [this](clsPagesMaker::clsResult result) {
        m_result = result;
        QDialog::done(result == clsPagesMaker::Made ? Accepted : Rejected);
    });
}

void frmExportAsPdf::build()
{
    auto *header = new oHeaderBar(this);
    header->setObjectName(QStringLiteral("oHeader"));
    header->setCaption(title());
    header->setSubCaption(QStringLiteral("Draw the pages of the form"));
    auto *frame = new oFrame(this);
    frame->setCaption(QStringLiteral("Progress"));
    lblProgress->setObjectName(QStringLiteral("lblProgress"));
    pbProgress->setObjectName(QStringLiteral("pbProgress"));
    pbProgress->setAccessibleName(QStringLiteral("Progress"));
    pbProgress->setTextVisible(false);
    pbProgress->setFixedHeight(Theme::Space8);
    frame->bodyLayout()->setSpacing(Theme::Space8);
    frame->bodyLayout()->addWidget(lblProgress);
    frame->bodyLayout()->addWidget(pbProgress);
    auto *cancel = new oCustomButton(this);
    cancel->setObjectName(QStringLiteral("cmdCancel"));
    cancel->setCaption(QStringLiteral("&Cancel"));
    connect(cancel, &oCustomButton::Click, this, &QDialog::reject);
    auto *bar = new oButtonBar(this);
    bar->AddButton(cancel);
    oButtonBar::layOut(*this, header, frame, bar);
    setMinimumWidth(Theme::scaled(Width));
}

clsPagesMaker::clsResult frmExportAsPdf::Make()
{
    m_result = clsPagesMaker::Cancelled;
    // After the dialog is visible: an export of many items takes a moment.
    QTimer::singleShot(0, this, [this] { m_maker.Start(*Form); });
    mdShowModal(*this);
    return m_result;
}

void frmExportAsPdf::done(int result)
{
    if (m_maker.isRunning())
        m_maker.Cancel(); // which closes the dialog
    else
        QDialog::done(result);
}

void mdExportAsPdf(const QByteArray &atHand, QWidget *parent)
{
    if (mdOfficeProgram().isEmpty()) {
        tellNotMade(mdNoOfficeProgramMessage());
        return;
    }
    const QString path = UserInterface().chooseFileToExport(
        QStringLiteral("PDF Documents (*.pdf)|*.pdf"), QStringLiteral(".pdf"), proposedPath());
    if (path.isEmpty())
        return;
    QByteArray pdf = atHand;
    if (pdf.isEmpty()) {
        frmExportAsPdf dialog(parent);
        const clsPagesMaker::clsResult result = dialog.Make();
        if (result == clsPagesMaker::Failed)
            tellNotMade(dialog.Maker().Failure());
        if (result != clsPagesMaker::Made)
            return;
        pdf = dialog.Maker().Pdf();
    }
    if (write(pdf, path))
        mdCustomMessages(
            QStringLiteral("Exporting is complete."), QStringLiteral("Export Complete"), clsUserInterface::OKOnly, 2);
}
