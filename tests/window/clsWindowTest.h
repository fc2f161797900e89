#pragma once

#include "base/clsFileSystem.h"
#include "base/mdClock.h"
#include "base/mdDatabasePath.h"
#include "base/mdGetResourceData.h"
#include "base/mdLog.h"
#include "base/mdProgramFolder.h"
#include "commands/clsNotStored.h"
#include "commands/mdFirmOffer.h"
#include "formdata/clsZR3Form.h"
#include "formdata/clsZR3PreferencesDatabase.h"
#include "formdata/mdGlobals.h"
#include "tests/support/clsScriptedUserInterface.h"
#include "tests/support/mdTestPaths.h"
#include "tests/support/mdTestPrinting.h"

#include <QDir>
#include <QTemporaryDir>
#include <QTest>
#include <QWidget>

#include <gtest/gtest.h>

/// Base of tests of windows: a temporary program folder, no stored database folder, a scripted user, and no claim or
/// preferences left behind.
class clsWindowTest : public testing::Test {
protected:
    void SetUp() override
    {
        ASSERT_TRUE(folder.isValid());
        for (const char *name : {"program/Databases", "program/Logs", "claims"})
            ASSERT_TRUE(QDir(folder.path()).mkpath(QString::fromLatin1(name)));
        SetProgramFolder(path("program"));
        qputenv("XDG_STATE_HOME", QFile::encodeName(path("state")));
        SetDatabasePath(QString());
        writePreferences({});
        // Tests of the offer reset this.
        mdFirmOfferAnswered();
    }
    void TearDown() override
    {
        NotStored().leaveClaim();
        Form.reset();
        Preferences.reset();
        CleanXML.clear();
        SetLogSwitch(nullptr);
        SetClock(nullptr);
        SetProgramFolder(QString());
    }

    QString path(const char *relative) const { return folder.filePath(QString::fromUtf8(relative)); }

    /// Writes the preferences file of the program folder, with these switches on.
    void writePreferences(std::initializer_list<const char *> switchedOn) const
    {
        QString text = GetResourceData(QStringLiteral("xmlZR3PreferencesDatabase"), QStringLiteral("VELMORZR3XML"));
        for (const char *name : switchedOn) {
            const QString off = QStringLiteral("<%1>False</%1>").arg(QString::fromLatin1(name).toLower());
            ASSERT_TRUE(text.contains(off)) << name;
            text.replace(off, QString(off).replace(QLatin1String("False"), QLatin1String("True")));
        }
        QFile file(path("program/Databases/Preferences Database.vzp"));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(text.toLatin1());
    }

    /// A copy of a sample claim that the test may change.
    QString sample(const char *name) const
    {
        const QString copy = path("claims") + u'/' + QString::fromLatin1(name);
        QFile::remove(copy);
        EXPECT_TRUE(QFile::copy(mdSamplePath(QString::fromLatin1(name)), copy));
        QFile(copy).setPermissions(QFile::ReadOwner | QFile::WriteOwner);
        return copy;
    }

    template <class Control> static Control &control(const QWidget &window, const char *name)
    {
        auto *found = window.findChild<Control *>(QString::fromLatin1(name));
        if (!found)
            throw std::runtime_error(std::string("no control ") + name);
        return *found;
    }

    static void show(QWidget &window)
    {
        window.show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    }

    QTemporaryDir folder;
    clsScriptedUserInterface user;

private:
    clsUserInterfaceScope m_scope {user};
};
