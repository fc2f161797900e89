#include "shell/clsPagesMaker.h"

#include "base/clsQuietUserInterface.h"
#include "base/mdLog.h"
#include "base/mdProgramFolder.h"
#include "base/mdRunTimeErrorOf.h"
#include "formdata/clsZR3Form.h"
#include "shell/clsLongWork.h"
#include "wordexport/clsExport.h"
#include "wordexport/clsPdfConversion.h"
#include "wordexport/mdExportDriver.h"
#include "wordexport/mdExportWordCombineDocuments.h"
#include "wordexport/mdForecast.h"
#include "wordexport/mdOfficeProgram.h"

#include <QCryptographicHash>
#include <QFile>
#include <QRegularExpression>
#include <QTemporaryDir>

#include <cmath>
#include <functional>

namespace {

constexpr int ProgressMaximum = 100;
constexpr int ExportsShare = 30; ///< of the progress
constexpr int TickMilliseconds = 200;
constexpr qint64 FirstExpectedMilliseconds = 6000;

/// Collects the messages of an export for the one message at the end, and passes on its progress.
class clsPagesListener final : public clsQuietUserInterface {
public:
    explicit clsPagesListener(std::function<void(int, int, const QString &)> progress)
        : m_progress(std::move(progress))
    { }

    Answer customMessage(const QString &message, const QString &, Buttons buttons, int, int) override
    {
        return listen(message, buttons);
    }
    Answer systemMessage(const QString &message, const QString &, SystemIcon, Buttons buttons) override
    {
        return listen(message, buttons);
    }
    void showProgress(int value, int maximum, const QString &text) override { m_progress(value, maximum, text); }

    QString told;

private:
    Answer listen(const QString &message, Buttons buttons)
    {
        if (told.isEmpty())
            told = message;
        return answerThatChangesNothing(buttons);
    }

    std::function<void(int, int, const QString &)> m_progress;
};

QByteArray bytesOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

QString mdPrintedText(const clsZR3Form &form)
{
    const QRegularExpression unprinted(
        QStringLiteral("<(path|version|timespent|idcounter|exportpath|defaultfeeearnerlistindex)>[^<]*</\\1>"));
    return form.XMLOutput().remove(unprinted);
}

clsPagesMaker::clsPagesMaker(QObject *parent)
    : QObject(parent)
    , m_expected(FirstExpectedMilliseconds)
{
    m_ticks.setInterval(TickMilliseconds);
    connect(&m_ticks, &QTimer::timeout, this, &clsPagesMaker::showConverting);
}

clsPagesMaker::~clsPagesMaker() = default;

void clsPagesMaker::Start(const clsZR3Form &form, const QByteArray &madeBefore)
{
    if (isRunning())
        return;
    m_failure.clear();
    m_folder = std::make_unique<QTemporaryDir>();
    if (mdOfficeProgram().isEmpty()) {
        m_failure = mdNoOfficeProgramMessage();
        return end(Failed);
    }
    if (!m_folder->isValid()) {
        m_failure = QStringLiteral("No folder could be made for the pages: %1.").arg(m_folder->errorString());
        return end(Failed);
    }
    if (!exportCopy(form))
        return end(Failed);
    const QByteArray name = QCryptographicHash::hash(bytesOf(m_file), QCryptographicHash::Sha256);
    if (name == madeBefore)
        return end(Unchanged);
    m_document = name;
    convert();
}

bool clsPagesMaker::exportCopy(const clsZR3Form &form)
{
    const clsLongWork work;
    const clsNoLogScope noLog;
    clsPagesListener listener([this](int value, int maximum, const QString &text) {
        emit Progress(value * ExportsShare / std::max(1, maximum), ProgressMaximum, text);
    });
    const clsUserInterfaceScope scope(listener);
    bool finished = false;
    try {
        clsZR3Form copy;
        copy.takeCopyOf(form);
        clsExport run {.form = copy, .templatesFolder = TemplatesFolder(), .exportFolder = m_folder->path()};
        run.stopsAtLostSheet = true;
        m_file = mdFinishedDocumentPath(run.exportFolder, copy.FormType());
        if (const clsExportDriver driver = mdExportDriver(copy.FormType()))
            finished = driver(run);
        else
            listener.told = mdNoPagesMessage(copy.FormType());
        m_sheets = finished ? mdForecastOf(run) : clsForecast();
    } catch (const std::exception &) {
        // No error of any kind may leave this object in the running state.
        const clsRunTimeError error = mdRunTimeErrorOf(std::current_exception());
        listener.told = error.cause().isEmpty() ? error.description() : error.cause();
    }
    if (!finished)
        m_failure = listener.told;
    return finished;
}

void clsPagesMaker::convert()
{
    m_converting.start();
    m_conversion = std::make_unique<clsPdfConversion>(m_file, [this] { converted(); });
    if (m_conversion->state() != clsPdfConversion::Running)
        return converted();
    m_ticks.start();
    showConverting();
}

void clsPagesMaker::showConverting()
{
    // The office program reports no progress: the bar approaches its end at the pace of the previous conversion.
    const double part = 1 - std::exp(-1.5 * double(m_converting.elapsed()) / double(m_expected));
    emit Progress(ExportsShare + int((ProgressMaximum - ExportsShare) * part), ProgressMaximum,
        m_sheets.PaperPages() == 1 ? QStringLiteral("Drawing 1 page")
                                   : QStringLiteral("Drawing %1 pages").arg(m_sheets.PaperPages()));
}

void clsPagesMaker::converted()
{
    if (m_conversion->state() == clsPdfConversion::Done) {
        m_expected = std::max<qint64>(1, m_converting.elapsed());
        m_pdf = bytesOf(m_conversion->pdf());
        return end(Made);
    }
    m_failure = m_conversion->failure();
    end(Failed);
}

void clsPagesMaker::Cancel()
{
    if (!isRunning())
        return;
    end(Cancelled);
}

void clsPagesMaker::end(clsResult result)
{
    m_ticks.stop();
    m_conversion.reset();
    m_folder.reset();
    if (result != Made && result != Unchanged)
        m_document.clear();
    emit Ended(result);
}
