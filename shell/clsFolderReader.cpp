#include "shell/clsFolderReader.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>

#include <utility>

namespace {

/// The interval at which new rows are shown together, in milliseconds.
constexpr int Batch = 250;
/// The pause before a reader that has ended is restarted, in milliseconds.
constexpr int Again = 5000;

} // namespace

clsFolderReader::clsFolderReader(QObject *parent)
    : QObject(parent)
{
    m_batch.setSingleShot(true);
    m_batch.setInterval(Batch);
    connect(&m_batch, &QTimer::timeout, this, &clsFolderReader::tell);
    m_again.setSingleShot(true);
    m_again.setInterval(Again);
    connect(&m_again, &QTimer::timeout, this, &clsFolderReader::begin);
}

void clsFolderReader::Start(const QString &folder)
{
    Stop();
    m_folder = folder;
    begin();
}

void clsFolderReader::Stop()
{
    m_seen.clear();
    m_process.reset();
    m_batch.stop();
    m_again.stop();
    m_news = {};
    m_known.clear();
}

void clsFolderReader::begin()
{
    m_known += m_seen;
    m_seen.clear();
    m_news.trouble.clear();
    m_process = mdToolProcess(
        tool, {QStringLiteral("list"), QStringLiteral("--jsonl"), QStringLiteral("--follow"), m_folder});
    m_process->setStandardErrorFile(QProcess::nullDevice());
    connect(m_process.get(), &QProcess::readyReadStandardOutput, this, &clsFolderReader::readLines);
    connect(m_process.get(), &QProcess::finished, this, &clsFolderReader::ended);
    connect(m_process.get(), &QProcess::errorOccurred, this, [this](QProcess::ProcessError error) {
        if (error == QProcess::FailedToStart)
            ended();
    });
    m_process->start(QIODevice::ReadOnly);
}

void clsFolderReader::readLines()
{
    while (m_process && m_process->canReadLine())
        readLine(m_process->readLine());
    if (!m_batch.isActive())
        m_batch.start();
}

void clsFolderReader::readLine(const QByteArray &line)
{
    const QJsonObject object = QJsonDocument::fromJson(line).object();
    const QString path = object[QLatin1String("path")].toString();
    if (path.isEmpty()) {
        takeUpToDate();
        return;
    }
    m_news.isUpToDate = false;
    const bool isGone = object[QLatin1String("gone")].toBool();
    // A line about the folder itself says that it can't be read, or can be again.
    if (path == m_folder) {
        m_news.trouble = isGone ? QString() : object[QLatin1String("error")].toString().remove(u'\r').trimmed();
    } else if (isGone) {
        takeGone(path);
    } else {
        m_news.gone.removeOne(path);
        m_news.rows.push_back(clsFolderRow::read(object));
        m_seen << path;
    }
}

void clsFolderReader::takeGone(const QString &path)
{
    std::erase_if(m_news.rows, [&](const clsFolderRow &row) { return row.path == path; });
    m_news.gone << path;
    m_seen.remove(path);
}

void clsFolderReader::takeUpToDate()
{
    m_news.isUpToDate = true;
    // Claims deleted while no reader was running.
    for (const QString &path : m_known - m_seen)
        if (!m_news.gone.contains(path))
            m_news.gone << path;
    m_known = m_seen;
}

void clsFolderReader::ended()
{
    m_news.trouble
        = QStringLiteral("The claims can't be read: zr3tool %1.")
              .arg(m_process->error() == QProcess::FailedToStart ? QStringLiteral("is missing beside the program")
                                                                 : QStringLiteral("has ended; it is started again"));
    m_news.isUpToDate = true;
    tell();
    m_again.start();
}

void clsFolderReader::tell()
{
    clsFolderNews news = std::exchange(m_news, {});
    // Kept until the reader reports a change.
    m_news.trouble = news.trouble;
    emit Arrived(news);
}
