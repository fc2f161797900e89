#pragma once

#include "tests/zr3tool/clsToolTest.h"

#include <QJsonArray>

#include <filesystem>

/// Base of tests with several claims.
class clsManyTest : public clsToolTest {
protected:
    /// A claim of one hour at 40.00, in a folder below the test's.
    QString addClaim(const QString &name, const QString &formType = "Claim1"_q) const
    {
        clsZR3Form form;
        form.FormType = formType;
        fill(form);
        // One sheet is enough.
        for (int page = 2; page <= 13; ++page)
            form.field("IncludePage%1"_q.arg(page))->writeBoolean(false);
        return putBelow(name, form.XMLOutput().toLatin1());
    }
    QString putBelow(const QString &name, const QByteArray &bytes) const
    {
        const QString file = path("claims") + u'/' + name;
        EXPECT_TRUE(QDir().mkpath(QFileInfo(file).path()));
        QFile made(file);
        EXPECT_TRUE(made.open(QIODevice::WriteOnly));
        EXPECT_EQ(bytes.size(), made.write(bytes));
        return file;
    }
    QString claims() const { return path("claims"); }
    QString out() const
    {
        EXPECT_TRUE(QDir(folder.path()).mkpath("out"_q));
        return path("out");
    }
    /// The text with paths relative to the claims' folder.
    QByteArray below(const QByteArray &text) const { return QByteArray(text).replace((claims() + u'/').toUtf8(), ""); }
    static QJsonArray claimsOf(const clsToolResult &result)
    {
        return QJsonDocument::fromJson(result.out).object()["Claims"_q].toArray();
    }
    static QList<QJsonObject> linesOf(const clsToolResult &result)
    {
        QList<QJsonObject> lines;
        for (const QByteArray &line : result.out.split('\n'))
            if (!line.isEmpty())
                lines << QJsonDocument::fromJson(line).object();
        return lines;
    }
    static void setAge(const QString &file, int seconds)
    {
        const auto when = std::filesystem::file_time_type::clock::now() - std::chrono::seconds(seconds);
        std::filesystem::last_write_time(file.toStdString(), when);
    }

    const QByteArray m_noClaim
        = "There was a problem opening the selected file. Please ensure that the file is a valid ZR3 "
          "file and try again";
};
