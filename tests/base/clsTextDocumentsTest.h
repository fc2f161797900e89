#pragma once

#include "base/mdTextDocumentHandling.h"
#include "tests/base/clsShellTest.h"

/// Base of tests that read and write a claim's file, which has a side file while it is written.
class clsTextDocumentsTest : public clsShellTest {
protected:
    void SetUp() override
    {
        clsShellTest::SetUp();
        claim = path("claim.zr3");
        side = path("claim.zr3a");
    }

    void startWith(const QByteArray &content)
    {
        QFile::remove(side);
        QFile::remove(claim);
        put(claim, content);
        user.messages.clear();
    }

    /// All files in the claim's folder, without the program's folders.
    QStringList names() const { return QDir(folder.path()).entryList(QDir::Files | QDir::Hidden, QDir::Name); }

    static QString readBox(const QString &path, const char *error)
    {
        return QStringLiteral("There was a problem reading the following path:\r\n\r\n") + path
            + QStringLiteral("\r\n\r\nThe error reported is:\r\n\r\n") + QString::fromUtf8(error);
    }
    static QString writeBox(const QString &path, const char *error)
    {
        return QStringLiteral("There was a problem writing to the following path:\r\n\r\n") + path
            + QStringLiteral("\r\n\r\nThe error reported is:\r\n\r\n") + QString::fromUtf8(error);
    }

    const QByteArray old = QByteArrayLiteral("the old claim\r\n");
    const QString next = QStringLiteral("the new claim");
    QString claim;
    QString side;
};
