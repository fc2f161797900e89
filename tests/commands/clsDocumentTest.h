#pragma once

#include "base/mdGetResourceData.h"
#include "commands/clsJournal.h"
#include "commands/mdFileHandling.h"
#include "formdata/clsZR3Form.h"
#include "formdata/clsZR3PreferencesDatabase.h"
#include "formdata/mdGlobals.h"
#include "tests/base/clsShellTest.h"
#include "tests/support/mdExpectError.h"
#include "tests/support/mdTestPaths.h"

#include <QStringList>

/// Base of tests of commands on the current claim: fresh preferences in a temporary database folder, a record of calls
/// to the window, and no claim left open afterwards.
class clsDocumentTest : public clsShellTest {
protected:
    void SetUp() override
    {
        clsShellTest::SetUp();
        qputenv("XDG_STATE_HOME", QFile::encodeName(path("state")));
        make(QStringLiteral("program/Databases"));
        make(QStringLiteral("claims"));
        put(path("program/Databases/Preferences Database.vzp"),
            GetResourceData(QStringLiteral("xmlZR3PreferencesDatabase"), QStringLiteral("VELMORZR3XML")).toLatin1());
        Preferences = std::make_unique<clsZR3PreferencesDatabase>();
        SetFormDisplay({[this] { shown << QStringLiteral("activate"); },
            [this] { shown << QStringLiteral("clear preview"); }, [this] { shown << QStringLiteral("stop timer"); }});
        user.progress.clear();
    }
    void TearDown() override
    {
        SetFormDisplay({});
        Journal().end();
        Form.reset();
        Preferences.reset();
        CleanXML.clear();
        clsShellTest::TearDown();
    }

    /// A copy of a sample claim that the test may change.
    QString claimFrom(const char *sample, const char *name = "claims/Smith.zr3") const
    {
        QFile::remove(path(name));
        EXPECT_TRUE(QFile::copy(mdSamplePath(QString::fromUtf8(sample)), path(name)));
        QFile::setPermissions(path(name), QFile::ReadOwner | QFile::WriteOwner);
        return path(name);
    }
    /// The same, saved there by this program, so that it is clean when it is opened again.
    QString savedClaim(const char *name = "claims/Smith.zr3")
    {
        OpenFormFile(claimFrom("housing-typical.zr3", name));
        EXPECT_TRUE(SaveForm(false));
        OpenFormFile(path(name));
        EXPECT_FALSE(FormIsDirty());
        shown.clear();
        return path(name);
    }
    static void change() { Form->Notes = Form->Notes() + QStringLiteral("!"); }

    /// The text of the claim in a file; for a clean claim it equals the clean text.
    static QString textOf(const QString &file) { return QString::fromLatin1(bytesOf(file)); }

    struct Box {
        QString title;
        QString text;
        bool operator==(const Box &) const = default;
    };
    void expectBoxes(const std::vector<Box> &boxes) const
    {
        ASSERT_EQ(boxes.size(), user.messages.size());
        for (size_t i = 0; i < boxes.size(); ++i) {
            EXPECT_EQ(boxes[i].title, user.messages[i].title);
            EXPECT_EQ(boxes[i].text, user.messages[i].text);
        }
    }
    static QString saveBox(const QString &file, const char *error)
    {
        return QStringLiteral("There was a problem writing to the following path:\r\n\r\n") + file
            + QStringLiteral("\r\n\r\nThe error reported is:\r\n\r\n") + QString::fromUtf8(error);
    }

    QStringList shown;
};
