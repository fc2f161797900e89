#pragma once

#include <QByteArray>
#include <QList>
#include <QString>

#include <vector>

/// Checks what the program writes: each saved claim must load with the same text and figures that it had when it was
/// saved, and each exported document must be sound and without placeholders.
class clsDiskCheck {
public:
    clsDiskCheck() = default;
    ~clsDiskCheck();
    clsDiskCheck(const clsDiskCheck &) = delete;
    clsDiskCheck &operator=(const clsDiskCheck &) = delete;

    /// Starts checking.
    void begin();
    /// Call when the user has been told that an export is complete.
    void exported();
    /// The problems with what was written since the last call; empty if there are none.
    QString whatIsWrong();

    int saves() const { return m_saves; }
    int exports() const { return m_exports; }

private:
    struct clsSaved {
        QString path;
        QString text;
        QList<QByteArray> figures;
    };

    /// Keeps the claim as it is while it is being written: the action that saved it may open the next claim.
    void aboutToWrite(const QString &path);

    static QString wrongWith(const clsSaved &saved);

    std::vector<clsSaved> m_saved;
    std::vector<QString> m_documents;
    int m_saves = 0;
    int m_exports = 0;
};
