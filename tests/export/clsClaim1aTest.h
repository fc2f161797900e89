#pragma once

#include "tests/export/clsExportTest.h"
#include "tests/export/mdDocumentText.h"

/// Base of tests that export a Claim 1A.
class clsClaim1aTest : public clsExportTest {
protected:
    void SetUp() override
    {
        clsExportTest::SetUp();
        form.FormType = QStringLiteral("Claim1A");
    }
    /// The start of a sheet's text, up to the title of its first section.
    QString startOf(const char *sheet) const
    {
        return mdDocumentText(temporary() + u'/' + QString::fromLatin1(sheet) + QStringLiteral(".doc")).left(12);
    }
};
