#include "wordexport/clsPdfConversion.h"

#include "base/clsRunTimeError.h"
#include "wordexport/document/clsZipPackage.h"
#include "wordexport/document/mdDocumentFile.h"
#include "wordexport/mdOfficeProgram.h"
#include "wordexport/mdProcessGroup.h"

#include <QDeadlineTimer>
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QTimer>
#include <QUrl>

namespace {

enum Reason { None, NoProgram, NotCopied, NotStarted, BrokeDown, ExitStatus, NoPdf, TooLong };

bool isPdf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) && file.read(5) == "%PDF-";
}

} // namespace

class clsPdfConversion::clsRun : public QObject {
public:
    clsRun(const QString &document, std::function<void()> ended)
        : m_ended(std::move(ended))
        , m_deadline(mdOfficeProgramLongestMilliseconds())
    {
        const QString program = mdOfficeProgram();
        if (program.isEmpty()) {
            fail(NoProgram);
            return;
        }
        try {
            if (!m_folder.isValid() || !QDir(m_folder.path()).mkdir(QStringLiteral("tmp")))
                throw clsRunTimeError(clsRunTimeError::PathFileAccess);
            mdWriteWorkingFile(copyPath(), mdReadDocumentFile(document, ZipLimits::PackageBytes));
        } catch (const clsRunTimeError &error) {
            fail(NotCopied, error.description());
            return;
        }
        start(program);
    }

    ~clsRun() override
    {
        m_process.disconnect(this);
        kill();
    }

    void cancel()
    {
        if (state != Running)
            return;
        m_process.disconnect(this);
        kill();
        end(Cancelled);
    }

    void wait()
    {
        while (state == Running)
            if (!m_process.waitForFinished(int(m_deadline.remainingTime())) && state == Running)
                giveUp();
    }

    QString pdf() const { return m_folder.filePath(QStringLiteral("document.pdf")); }

    clsState state = Running;
    Reason reason = None;
    QString detail;

private:
    QString copyPath() const { return m_folder.filePath(QStringLiteral("document.doc")); }

    void start(const QString &program)
    {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        // Even if the office program is killed, nothing of the claim is left anywhere.
        environment.insert(QStringLiteral("TMPDIR"), m_folder.filePath(QStringLiteral("tmp")));
        m_process.setProcessEnvironment(environment);
        m_process.setWorkingDirectory(m_folder.path());
        m_process.setStandardInputFile(QProcess::nullDevice());
        m_process.setStandardOutputFile(QProcess::nullDevice());
        m_process.setStandardErrorFile(QProcess::nullDevice());
        mdGiveOwnGroup(m_process);
        QObject::connect(&m_process, &QProcess::started, this, [this] { m_group = m_process.processId(); });
        QObject::connect(&m_process, &QProcess::finished, this, [this] { finished(); });
        QObject::connect(&m_process, &QProcess::errorOccurred, this, [this](QProcess::ProcessError error) {
            if (error == QProcess::FailedToStart)
                end(Failed, NotStarted, m_process.errorString());
        });
        m_process.start(program,
            {QStringLiteral("-env:UserInstallation=")
                    + QUrl::fromLocalFile(m_folder.filePath(QStringLiteral("profile"))).toString(QUrl::FullyEncoded),
                QStringLiteral("--headless"), QStringLiteral("--norestore"), QStringLiteral("--nologo"),
                QStringLiteral("--nolockcheck"), QStringLiteral("--convert-to"),
                QStringLiteral("pdf:writer_pdf_Export"), QStringLiteral("--outdir"), m_folder.path(), copyPath()});
        m_begun = true;
        QTimer::singleShot(mdOfficeProgramLongestMilliseconds(), this, [this] { giveUp(); });
    }

    void finished()
    {
        // Child processes that are still running are no longer needed.
        mdKillGroup(m_group);
        mdWaitForGroup(m_group);
        if (m_process.exitStatus() != QProcess::NormalExit)
            end(Failed, BrokeDown);
        else if (m_process.exitCode() != 0)
            end(Failed, ExitStatus, QString::number(m_process.exitCode()));
        else if (!isPdf(pdf()))
            end(Failed, NoPdf);
        else
            end(Done);
    }

    void giveUp()
    {
        if (state != Running)
            return;
        m_process.disconnect(this);
        kill();
        end(Failed, TooLong, QString::number(mdOfficeProgramLongestMilliseconds() / 1000.0));
    }

    void kill()
    {
        if (m_process.state() == QProcess::NotRunning)
            return;
        const qint64 group = m_process.processId();
        mdKillGroup(group);
        m_process.kill(); // in case it has no group yet
        m_process.waitForFinished();
        mdWaitForGroup(group);
    }

    void fail(Reason why, const QString &more = {})
    {
        state = Failed;
        reason = why;
        detail = more;
    }

    void end(clsState how, Reason why = None, const QString &more = {})
    {
        fail(why, more);
        state = how;
        // Queued, so that the callback may destroy this object.
        if (m_begun && m_ended)
            QMetaObject::invokeMethod(this, m_ended, Qt::QueuedConnection);
    }

    std::function<void()> m_ended;
    QDeadlineTimer m_deadline;
    QTemporaryDir m_folder;
    QProcess m_process;
    qint64 m_group = 0;
    bool m_begun = false;
};

clsPdfConversion::clsPdfConversion(const QString &document, std::function<void()> ended)
    : m_run(std::make_unique<clsRun>(document, std::move(ended)))
{ }

clsPdfConversion::~clsPdfConversion() = default;

clsPdfConversion::clsState clsPdfConversion::state() const
{
    return m_run->state;
}

QString clsPdfConversion::failure() const
{
    switch (m_run->reason) {
    case NoProgram: return mdNoOfficeProgramMessage();
    case NotCopied: return QStringLiteral("The document could not be copied for the PDF: %1.").arg(m_run->detail);
    case NotStarted: return QStringLiteral("LibreOffice could not be started: %1.").arg(m_run->detail);
    case BrokeDown: return QStringLiteral("LibreOffice broke down while it made the PDF.");
    case ExitStatus: return QStringLiteral("LibreOffice failed to make the PDF (exit status %1).").arg(m_run->detail);
    case NoPdf: return QStringLiteral("LibreOffice ended without making the PDF.");
    case TooLong:
        return QStringLiteral("LibreOffice did not make the PDF within %1 seconds and was stopped.").arg(m_run->detail);
    case None: break;
    }
    return {};
}

QString clsPdfConversion::pdf() const
{
    return m_run->state == Done ? m_run->pdf() : QString();
}

void clsPdfConversion::cancel()
{
    m_run->cancel();
}

clsPdfConversion::clsState clsPdfConversion::wait()
{
    m_run->wait();
    return m_run->state;
}

QString mdPutPdfInPlace(const clsPdfConversion &conversion, const QString &document, const QString &pdf)
{
    if (conversion.state() != clsPdfConversion::Done)
        return conversion.failure();
    try {
        mdPutDocumentInPlace(conversion.pdf(), pdf, document, ZipLimits::PackageBytes);
    } catch (const clsRunTimeError &error) {
        return QStringLiteral("The PDF could not be written: %1.").arg(error.description());
    }
    return {};
}
