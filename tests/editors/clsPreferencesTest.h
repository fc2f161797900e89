#pragma once

#include "base/clsFileSystem.h"
#include "base/mdDatabasePath.h"
#include "base/mdGetResourceData.h"
#include "base/mdProgramFolder.h"
#include "editors/mdScreenControls.h"
#include "editors/mdScreens.h"
#include "formdata/clsZR3PreferencesDatabase.h"
#include "tests/editors/clsScreenTest.h"
#include "tests/editors/mdOnceOpened.h"

#include <QDir>

/// Base of tests of the preferences' screens: a program folder with a fresh preferences file, already loaded.
class clsPreferencesTest : public clsScreenTest {
protected:
    void SetUp() override
    {
        clsScreenTest::SetUp();
        for (const char *name : {"program/Databases", "program/Logs"})
            ASSERT_TRUE(QDir(folder.path()).mkpath(QString::fromLatin1(name)));
        SetProgramFolder(path("program"));
        SetDatabasePath(path("program/Databases"));
        put(File,
            GetResourceData(QStringLiteral("xmlZR3PreferencesDatabase"), QStringLiteral("VELMORZR3XML")).toLatin1());
        Preferences = std::make_unique<clsZR3PreferencesDatabase>();
    }
    void TearDown() override
    {
        FileSystem().faultPoint = nullptr;
        Preferences.reset();
        SetProgramFolder(QString());
        clsScreenTest::TearDown();
    }

    static constexpr const char *File = "program/Databases/Preferences Database.vzp";
    QByteArray file() const { return bytesOf(path(File)); }

    static std::shared_ptr<clsZR3Replacement> addReplacement(const char *input, const char *output)
    {
        const auto item = Preferences->AddReplacement();
        item->InputText = QString::fromUtf8(input);
        item->OutputText = QString::fromUtf8(output);
        return item;
    }
    static std::shared_ptr<clsZR3RateSet> addRateSet(const char *name, const char *hourly)
    {
        const auto item = Preferences->AddRateSet();
        item->Name = QString::fromUtf8(name);
        item->HourlyRate = QString::fromUtf8(hourly);
        return item;
    }
    /// The abbreviations and their texts, in the order of the file.
    static QStringList replacements()
    {
        QStringList result;
        for (const auto &item : Preferences->ReplacementsCollection())
            result << item->InputText() + u'>' + item->OutputText();
        return result;
    }
    static QStringList rateSets()
    {
        QStringList result;
        for (const auto &item : Preferences->RateSetsCollection())
            result << item->Name() + u'>' + item->HourlyRate();
        return result;
    }

    /// The editor of an item, or of a new one without `item`, filled and shown.
    static std::unique_ptr<frmScreen> editor(const clsScreen &table, clsXMLRecord *item = nullptr)
    {
        auto screen = std::make_unique<frmScreen>(table);
        screen->Initialise(item);
        show(*screen);
        return screen;
    }

    static QString text(const frmScreen &screen, const char *box) { return mdTextOf(screen.Box(box)); }
};
