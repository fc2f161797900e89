#pragma once

#include "base/clsFileSystem.h"
#include "base/mdClock.h"
#include "base/mdLog.h"
#include "base/mdPlayWav.h"
#include "base/mdProgramFolder.h"
#include "tests/support/clsScriptedUserInterface.h"
#include "tests/support/mdTestPrinting.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

/// Base of tests of the shell's services: temporary folders for the program and the user's configuration and a scripted
/// user; resets clocks, switches and faults afterwards.
class clsShellTest : public testing::Test {
protected:
    void SetUp() override
    {
        ASSERT_TRUE(folder.isValid());
        ASSERT_TRUE(QDir(folder.path()).mkpath(QStringLiteral("program")));
        SetProgramFolder(path("program"));
        qputenv("XDG_CONFIG_HOME", QFile::encodeName(path("config")));
        qputenv("XDG_CONFIG_DIRS", QFile::encodeName(path("machine")));
    }
    void TearDown() override
    {
        FileSystem().faultPoint = nullptr;
        SetLogSwitch(nullptr);
        SetSoundSwitch(nullptr);
        SetClock(nullptr);
        SetProgramFolder(QString());
    }

    QString path(const char *relative) const { return folder.filePath(QString::fromUtf8(relative)); }

    void make(const QString &relative) const { ASSERT_TRUE(QDir(folder.path()).mkpath(relative)); }
    static void put(const QString &file, const QByteArray &bytes)
    {
        QFile out(file);
        ASSERT_TRUE(out.open(QIODevice::WriteOnly)) << qPrintable(file);
        ASSERT_EQ(bytes.size(), out.write(bytes));
    }
    static QByteArray bytesOf(const QString &file)
    {
        QFile in(file);
        return in.open(QIODevice::ReadOnly) ? in.readAll() : QByteArrayLiteral("(no file)");
    }
    static bool exists(const QString &file) { return QFile::exists(file); }

    /// Expects exactly one box, with this title and text.
    void expectOneBox(const char *title, const QString &text) const
    {
        ASSERT_EQ(1u, user.messages.size());
        EXPECT_EQ(QString::fromUtf8(title), user.messages[0].title);
        EXPECT_EQ(text, user.messages[0].text);
        EXPECT_TRUE(user.messages[0].system);
        EXPECT_EQ(int(clsUserInterface::Critical), user.messages[0].icon);
        EXPECT_EQ(clsUserInterface::OKOnly, user.messages[0].buttons);
    }

    QTemporaryDir folder;
    clsScriptedUserInterface user;

private:
    clsUserInterfaceScope m_scope {user};
};
