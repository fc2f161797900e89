#pragma once

#include "shell/clsFolderWork.h"
#include "shell/frmFolderResults.h"

#include <QJsonObject>
#include <QObject>
#include <QStringList>

#include <optional>

class clsFolderModel;
struct clsComparison;

/// The outcome of work on the chosen claims, for the line that reports it.
struct clsFolderOutcome {
    QString text;
    bool hasFailed = false;
    std::optional<clsFolderResults> details {};
    std::function<void()> replace {}; ///< exports again, replacing the documents that already existed
};

/// The actions on the chosen claims of a folder. The claims are read by separate processes.
class clsFolderActions : public QObject {
    Q_OBJECT

public:
    clsFolderActions(clsFolderModel &model, QWidget *window);

    clsFolderWork &Work() { return m_work; }

    void Check(const QStringList &paths);
    void Export(const QStringList &paths, const QString &target, bool pdf, bool replaces = false);
    void CompareTwo(const QString &before, const QString &now);
    /// Compares with the claims of the same names in another folder.
    void CompareWith(const QStringList &paths, const QString &folder, const QString &other);

signals:
    void Told(const clsFolderOutcome &outcome);

private:
    void checked(const QStringList &paths, const clsFolderWork::clsResult &result);
    void exported(const QStringList &paths, const QString &target, bool pdf, const clsFolderWork::clsResult &result);
    std::optional<QJsonObject> readComparison(const clsFolderWork::clsResult &result);
    void compared(const clsFolderWork::clsResult &result, const QString &before, const QString &now);
    void comparedAll(const clsFolderWork::clsResult &result, const QString &other);
    void show(const clsComparison &comparison, QWidget *parent) const;
    bool stopped(const clsFolderWork::clsResult &result, const QString &what, bool isWhole = true);

    clsFolderModel &m_model;
    QWidget *m_window;
    clsFolderWork m_work;
};
