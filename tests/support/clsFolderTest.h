#pragma once

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

/// Base of tests with a temporary folder.
class clsFolderTest : public testing::Test {
protected:
    QString path(const char *name) const { return folder.filePath(QString::fromUtf8(name)); }

    QString put(const char *name, const QByteArray &bytes) const
    {
        QFile file(path(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        EXPECT_EQ(bytes.size(), file.write(bytes));
        return path(name);
    }

    static QByteArray bytesOf(const QString &path)
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArrayLiteral("(no file)");
    }

    QTemporaryDir folder;
};
