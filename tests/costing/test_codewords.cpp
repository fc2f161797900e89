// The firm's words for the codes, and their file.

#include "base/clsFileSystem.h"
#include "base/mdDatabasePath.h"
#include "costing/tables/clsTextTable.h"
#include "costing/tables/mdCodeWordsFile.h"
#include "formdata/mdScheduleOfTimeCodesCollection.h"
#include "tests/support/clsFolderTest.h"
#include "tests/support/clsScriptedUserInterface.h"
#include "tests/support/mdTestPrinting.h"

#include <QFileInfo>

#include <gtest/gtest.h>

#include <cerrno>

namespace {

const QString Hfn = QStringLiteral("HFN");
const QString Act = QStringLiteral("ACT");

class CodeWords : public clsFolderTest {
protected:
    void SetUp() override
    {
        clsFolderTest::SetUp();
        SetDatabasePath(folder.path());
    }
    void TearDown() override
    {
        FileSystem().faultPoint = nullptr;
        SetDatabasePath(QString());
        clsFolderTest::TearDown();
    }
    QByteArray file() const { return bytesOf(path("Codes.csv")); }

    clsScriptedUserInterface user;
    clsUserInterfaceScope scope {user};
};

} // namespace

TEST(CodeWordsTable, AreReadWithAnySeparatorAndWithOrWithoutAHeader)
{
    for (const char *text :
        {"HFN,Final hearing\nACT,Attending court", "Code;Words\r\nhfn;Final hearing\r\n act ;Attending court\r\n",
            "Code\tWords\nHFN\tFinal hearing\nACT\tAttending court\n"}) {
        const clsCodeWords words(QString::fromUtf8(text));
        EXPECT_EQ(QStringLiteral("Final hearing"), words.of(Hfn)) << text;
        EXPECT_EQ(QStringLiteral("Attending court"), words.of(Act)) << text;
        EXPECT_EQ(QString(), words.of(QStringLiteral("DOT"))) << text;
        EXPECT_EQ(QString(), words.wrongLinesInWords()) << text;
    }
}

TEST(CodeWordsTable, WordsWithACommaBelongTogether)
{
    const clsCodeWords words(u"HFN,Final hearing, first day\nACT,\"Attending, court\"\n");
    EXPECT_EQ(QStringLiteral("Final hearing, first day"), words.of(Hfn));
    EXPECT_EQ(QStringLiteral("Attending, court"), words.of(Act));
}

TEST(CodeWordsTable, LinesThatCantBeUsedAreToldByTheirNumbersAndKept)
{
    const clsCodeWords one(u"Code,Words\nHFN,Final hearing\nXYZ,Unknown\n");
    EXPECT_EQ(QStringLiteral("Line 3 of Codes.csv names no code, or one a second time"), one.wrongLinesInWords());
    clsCodeWords two(u"HFN,Final hearing\nXYZ,Unknown\n\nHFN,Once more\n");
    EXPECT_EQ(QStringLiteral("Lines 2, 4 of Codes.csv name no code, or one a second time"), two.wrongLinesInWords());
    EXPECT_EQ(QStringLiteral("Final hearing"), two.of(Hfn)) << "the first counts";
    two.set(Act, QStringLiteral("Attending court"));
    EXPECT_EQ(QByteArray("Code,Words\r\nACT,Attending court\r\nHFN,Final hearing\r\nXYZ,Unknown\r\nHFN,Once more\r\n"),
        two.asCsv());
    QString many;
    for (int n = 0; n < 8; ++n)
        many += QStringLiteral("??,x\n");
    EXPECT_EQ(QStringLiteral("Lines 1, 2, 3, 4, 5 and 3 more of Codes.csv name no code, or one a second time"),
        clsCodeWords(many).wrongLinesInWords());
}

TEST(CodeWordsTable, WhatIsWrittenIsReadAgain)
{
    clsCodeWords words;
    words.set(Hfn, QStringLiteral("  =Final \u201Chearing\u201D,\n\u0142 "));
    words.set(Act, QStringLiteral("gone"));
    words.set(Act, QString());
    const QByteArray written = words.asCsv();
    EXPECT_EQ(QByteArray("Code,Words\r\nHFN,\"'=Final \xE2\x80\x9Chearing\xE2\x80\x9D, \xC5\x82\"\r\n"), written);
    EXPECT_EQ(QStringLiteral("=Final \u201Chearing\u201D, \u0142"), clsCodeWords(QString::fromUtf8(written)).of(Hfn));
}

TEST(CodeWordsTable, WhatIsInTheFileComesBackAsItWas)
{
    const QByteArray sound = "Code;Words\r\nHFN;Final hearing\r\nACT;'=a; b\r\n\"DBL\";\"Bundle, all\"\r\nXYZ;=1\r\n";
    unsigned seed = 1;
    const auto next = [&seed](unsigned below) { return (seed = seed * 1664525u + 1013904223u) / 65536u % below; };
    constexpr char Pieces[] = "\",;\t\r\n'=+-@HFNACT \0\xE9";
    for (int round = 0; round < 5'000; ++round) {
        QByteArray bytes = sound;
        for (unsigned change = 0; change < next(6); ++change)
            bytes[qsizetype(next(unsigned(bytes.size())))] = Pieces[next(sizeof Pieces - 1)];
        const clsCodeWords words(mdTextOfTable(bytes));
        if (!words.error().isEmpty())
            continue;
        const QByteArray written = words.asCsv();
        const clsCodeWords again(mdTextOfTable(written));
        ASSERT_EQ(QString(), again.error()) << bytes.toStdString();
        for (const QString &code : mdScheduleOfTimeCodesCollection())
            ASSERT_EQ(words.of(code), again.of(code)) << bytes.toStdString() << '\n' << written.toStdString();
        ASSERT_EQ(written, again.asCsv()) << bytes.toStdString();
    }
}

TEST_F(CodeWords, WithoutAFileThereAreNone)
{
    EXPECT_EQ(QString(), mdReadCodeWords().of(Hfn));
    EXPECT_TRUE(user.lines.isEmpty());
}

TEST_F(CodeWords, AFileOfTheCodePageIsReadToo)
{
    put("Codes.csv", "HFN;Caf\xE9 hearing\r\n");
    EXPECT_EQ(QStringLiteral("Caf\u00E9 hearing"), mdReadCodeWords().of(Hfn));
}

TEST_F(CodeWords, AChangeGoesIntoTheFileAsAnotherUserHasLeftIt)
{
    put("Codes.csv", "HFN,Final hearing\r\n");
    const clsCodeWords opened = mdReadCodeWords();
    put("Codes.csv", "HFN,Hearing at the end\r\nREX,Expert's report\r\nXYZ,Unknown\r\n");
    EXPECT_TRUE(mdWriteCodeWords({{Act, QStringLiteral("Attending \u0142")}}));
    EXPECT_EQ(QByteArray("Code,Words\r\nACT,Attending \xC5\x82\r\nHFN,Hearing at the end\r\nREX,Expert's report\r\n"
                         "XYZ,Unknown\r\n"),
        file());
    EXPECT_TRUE(user.messages.empty());
}

TEST_F(CodeWords, ANewFileIsForTheUsersOfThePreferences)
{
    put("Preferences Database.vzp", "x");
    const QFile::Permissions shared = QFile::ReadOwner | QFile::WriteOwner | QFile::ReadGroup | QFile::WriteGroup;
    ASSERT_TRUE(QFile::setPermissions(path("Preferences Database.vzp"), shared));
    ASSERT_TRUE(mdWriteCodeWords({{Hfn, QStringLiteral("Final hearing")}}));
    EXPECT_TRUE(QFileInfo(path("Codes.csv")).permissions().testFlags(QFile::ReadGroup | QFile::WriteGroup));
    EXPECT_FALSE(QFileInfo(path("Codes.csv")).permissions().testFlag(QFile::ReadOther));
}

TEST_F(CodeWords, ABrokenFileIsSetAsideAndToldInOneLine)
{
    for (const QByteArray &broken : {QByteArray("HFN,\"Final hearing\r\n"), QByteArray("HFN\0x", 5)}) {
        user.lines.clear();
        put("Codes.csv", broken);
        EXPECT_EQ(QString(), mdReadCodeWords().of(Hfn));
        EXPECT_EQ(QStringList {QStringLiteral("Codes.csv was broken and has been set aside")}, user.lines);
        EXPECT_FALSE(QFileInfo::exists(path("Codes.csv")));
        EXPECT_EQ(broken, bytesOf(path("Codes.csv.broken")));
    }
}

TEST_F(CodeWords, WhereItCantBeWrittenTheUserIsToldOnceAndTheFileStays)
{
    put("Codes.csv", "HFN,Final hearing\r\n");
    FileSystem().faultPoint = [](clsFileStep step, const QString &) {
        return clsFileFault {step == clsFileStep::OpenToWrite || step == clsFileStep::Truncate ? EACCES : 0};
    };
    EXPECT_FALSE(mdWriteCodeWords({{Act, QStringLiteral("Attending court")}}));
    FileSystem().faultPoint = nullptr;
    ASSERT_EQ(1u, user.messages.size());
    EXPECT_EQ(QStringLiteral("File Not Saved"), user.messages[0].title);
    EXPECT_EQ(QByteArray("HFN,Final hearing\r\n"), file());
}

TEST_F(CodeWords, AFileThatCantBeReadIsNotWrittenOver)
{
    put("Codes.csv", "HFN,Final hearing\r\n");
    FileSystem().faultPoint
        = [](clsFileStep step, const QString &) { return clsFileFault {step == clsFileStep::OpenToRead ? EACCES : 0}; };
    EXPECT_EQ(QString(), mdReadCodeWords().of(Hfn));
    ASSERT_EQ(1, user.lines.size());
    EXPECT_TRUE(user.lines[0].startsWith(QStringLiteral("Codes.csv can't be read: "))) << user.lines[0].toStdString();
    EXPECT_FALSE(mdWriteCodeWords({{Act, QStringLiteral("Attending court")}}));
    FileSystem().faultPoint = nullptr;
    EXPECT_EQ(1u, user.messages.size());
    EXPECT_EQ(QByteArray("HFN,Final hearing\r\n"), file());
}
