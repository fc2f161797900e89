#pragma once

#include "base/mdDatabasePath.h"
#include "base/mdGetResourceData.h"
#include "formdata/clsZR3PreferencesDatabase.h"
#include "formdata/mdGlobals.h"
#include "tests/base/clsShellTest.h"

/// Base of tests with preferences, initially without abbreviations.
class clsReplacementsTest : public clsShellTest {
protected:
    void SetUp() override
    {
        clsShellTest::SetUp();
        make(QStringLiteral("program/Databases"));
        make(QStringLiteral("program/Logs"));
        put(path("program/Databases/Preferences Database.vzp"),
            GetResourceData(QStringLiteral("xmlZR3PreferencesDatabase"), QStringLiteral("VELMORZR3XML")).toLatin1());
        // Set explicitly: the settings of window tests persist from one test to the next.
        SetDatabasePath(path("program/Databases"));
        Preferences = std::make_unique<clsZR3PreferencesDatabase>();
    }
    void TearDown() override
    {
        Preferences.reset();
        clsShellTest::TearDown();
    }

    static void replace(const char *input, const char *output)
    {
        const auto replacement = Preferences->AddReplacement();
        replacement->InputText = QString::fromUtf8(input);
        replacement->OutputText = QString::fromUtf8(output);
    }
};
