#pragma once

#include "shell/clsFolderRow.h"
#include "shell/mdToolProcess.h"

#include <QObject>
#include <QSet>
#include <QStringList>
#include <QTimer>

#include <vector>

/// What has been read from a folder since the last report.
struct clsFolderNews {
    std::vector<clsFolderRow> rows;
    QStringList gone; ///< paths of deleted claims
    QString trouble; ///< why the folder as a whole can't be read; empty if it can
    bool isUpToDate = false; ///< all claims of the folder have been reported
};

/// Reads the claims of a folder, and reads them again when they change. Only separate processes access the folder, so
/// that a slow or missing drive doesn't block the window.
class clsFolderReader : public QObject {
    Q_OBJECT

public:
    explicit clsFolderReader(QObject *parent = nullptr);

    void Start(const QString &folder);
    void Stop();

    QString tool = mdToolPath();

signals:
    void Arrived(const clsFolderNews &news);

private:
    void begin();
    void readLines();
    void readLine(const QByteArray &line);
    void takeGone(const QString &path);
    void takeUpToDate();
    void ended();
    void tell();

    clsToolProcess m_process;
    QString m_folder;
    clsFolderNews m_news;
    QSet<QString> m_known; ///< paths reported so far, by this process or an earlier one
    QSet<QString> m_seen; ///< paths reported by this process
    QTimer m_batch; ///< until the collected rows are reported
    QTimer m_again; ///< until a reader that has ended is restarted
};
