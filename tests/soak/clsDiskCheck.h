#pragma once

#include <QByteArray>
#include <QList>
#include <QString>

#include <vector>

/// Looks at what the program has written: each saved claim must load to the same text and the same figures that it had
/// when it was saved, and each exported document must be sound and without a placeholder.
class clsDiskCheck {
public:
    clsDiskCheck() = default;
    ~clsDiskCheck();
    clsDiskCheck(const clsDiskCheck &) = delete;
    clsDiskCheck &operator=(const clsDiskCheck &) = delete;

    /// Looks from now on.
    void begin();
    /// To be told when an export has told the user that it is complete.
    void exported();
    /// What is wrong with what was written since the last call; empty where nothing is.
    QString whatIsWrong();

    int saves() const { return m_saves; }
    int exports() const { return m_exports; }

private:
    struct clsSaved {
        QString path;
        QString text;
        QList<QByteArray> figures;
    };

    /// The claim as it stands while it is being written: the action that saved it may go on to the next claim.
    void aboutToWrite(const QString &path);

    static QString wrongWith(const clsSaved &saved);

    std::vector<clsSaved> m_saved;
    std::vector<QString> m_documents;
    int m_saves = 0;
    int m_exports = 0;
};
