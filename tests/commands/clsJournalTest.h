#pragma once

#include "commands/clsLeftJournals.h"
#include "tests/commands/clsDocumentTest.h"

#include <sys/stat.h>

/// Base of tests of the journal: it runs from the start, and what a killed program leaves can be inspected.
class clsJournalTest : public clsDocumentTest {
protected:
    void SetUp() override
    {
        clsDocumentTest::SetUp();
        SetClock([] { return QDateTime(QDate(2026, 11, 22), QTime(14, 3, 22)); });
        begin();
    }
    void TearDown() override
    {
        FileSystem().faultPoint = nullptr;
        clsDocumentTest::TearDown();
    }
    void begin()
    {
        Journal().begin({[this] { ++steps; }, [this] { return typed; }});
    }
    /// What a kill leaves: the lock is released, everything else stays.
    void kill()
    {
        Journal().end();
        begin();
    }
    /// A saved claim with a change that only the journal has.
    QString changedClaim(const char *name = "claims/Smith.zr3")
    {
        const QString claim = savedClaim(name);
        change();
        Journal().flush();
        return claim;
    }
    QStringList journals() const
    {
        return QDir(path("state/Velmor/Journal")).entryList({QStringLiteral("*.journal")}, QDir::Files);
    }
    QStringList allFiles() const { return QDir(path("state/Velmor/Journal")).entryList(QDir::Files | QDir::Hidden); }
    QString journal(int index = 0) const { return path("state/Velmor/Journal/") + journals().value(index); }
    std::optional<clsJournalContents> contents(int index = 0) const { return ReadJournal(bytesOf(journal(index))); }
    static mode_t modeOf(const QString &at)
    {
        struct stat status = {};
        return ::stat(QFile::encodeName(at).constData(), &status) == 0 ? status.st_mode & 07777 : 0;
    }

    std::vector<clsTypedTexts> typed;
    int steps = 0;
};
