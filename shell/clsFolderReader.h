#pragma once

#include "shell/clsFolderRow.h"
#include "shell/mdToolProcess.h"

#include <QObject>
#include <QSet>
#include <QStringList>
#include <QTimer>

#include <vector>

/// What has been read of a folder since it was told last.
struct clsFolderNews {
    std::vector<clsFolderRow> rows;
    QStringList gone; ///< paths
    QString trouble; ///< why the folder as a whole can't be read; empty while all is well
    bool isUpToDate = false; ///< all that is there has been told
};

/// Reads the claims of a folder and goes on with what changes. All of the folder is looked at by processes beside the
/// window, so that a drive that is slow or gone keeps nobody waiting.
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
    QSet<QString> m_known; ///< paths that were told, by this reader or the one before
    QSet<QString> m_seen; ///< by this one
    QTimer m_batch; ///< until what has come in is told
    QTimer m_again; ///< until a reader that has ended is started anew
};
