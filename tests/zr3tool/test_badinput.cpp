// Files that are not claims: one message, status 2, and no result.

#include "tests/zr3tool/clsToolTest.h"

#include <tuple>

namespace {

const QByteArray NoClaim
    = "Error: There was a problem opening the selected file. Please ensure that the file is a valid ZR3 "
      "file and try again\n";

class BadInput : public clsToolTest {
protected:
    /// Runs each command on a file that is not a claim; each must print only that message.
    void expectRefused(const QString &file, const QByteArray &message)
    {
        ASSERT_TRUE(QDir(folder.path()).mkpath("out"_q));
        for (const QStringList &arguments :
            {QStringList {"totals"_q, file}, {"check"_q, file}, {"save"_q, file, path("out/new.zr3")},
                {"export"_q, file, path("out")}, {"export"_q, file, path("out"), "--force"_q}}) {
            const clsToolResult result = run(arguments);
            EXPECT_EQ(2, result.status) << arguments.join(u' ').toStdString();
            EXPECT_EQ("", result.out);
            EXPECT_EQ(message, result.err);
        }
        EXPECT_EQ(QStringList(), filesOf(path("out")));
    }

    static QByteArray notRead(const QString &file, const char *error)
    {
        return "File Not Read: There was a problem reading the following path:\n\n" + file.toUtf8()
            + "\n\nThe error reported is:\n\n" + error + "\n";
    }
};

} // namespace

TEST_F(BadInput, AMissingFile)
{
    expectRefused(path("missing.zr3"), notRead(path("missing.zr3"), "53 - File not found"));
}

TEST_F(BadInput, AMissingFolder)
{
    const clsToolResult result = run({"totals"_q, path("missing/claim.zr3")});
    EXPECT_EQ(2, result.status);
    EXPECT_TRUE(result.err.startsWith("File Not Read: ")) << result.err.constData();
    EXPECT_EQ(1, result.err.count("File Not Read"));
}

TEST_F(BadInput, AFolderWhereOneClaimIsAskedFor)
{
    for (const QStringList &arguments : {QStringList {"save"_q, folder.path(), path("new.zr3")},
             {"forecast"_q, folder.path()}, {"why"_q, folder.path(), "total"_q, "vat"_q}}) {
        const clsToolResult result = run(arguments);
        EXPECT_EQ(2, result.status) << arguments.join(u' ').toStdString();
        EXPECT_EQ("", result.out);
        EXPECT_EQ(notRead(folder.path(), "75 - Path/File access error"), result.err);
    }
    EXPECT_EQ(QStringList(), filesOf(folder.path()));
}

TEST_F(BadInput, APipeIsNotWaitedFor)
{
    ASSERT_EQ(0, mkfifo(QFile::encodeName(path("pipe")).constData(), 0600));
    const clsToolResult result = run({"totals"_q, path("pipe")});
    EXPECT_EQ(2, result.status);
    EXPECT_EQ("", result.out);
    EXPECT_EQ(1, result.err.count("File Not Read: ")) << result.err.constData();
}

TEST_F(BadInput, AnUnreadableFile)
{
    const QString file = putClaim(clsZR3Form());
    ASSERT_EQ(0, chmod(QFile::encodeName(file).constData(), 0));
    const auto asSomebodyElse = asOrdinaryUser();
    if (!asSomebodyElse)
        GTEST_SKIP() << "no other user can run the program where it lies";
    const clsToolResult result = run({"totals"_q, file}, {}, *asSomebodyElse);
    EXPECT_EQ(2, result.status);
    EXPECT_EQ("", result.out);
    EXPECT_EQ(notRead(file, "70 - Permission denied"), result.err);
}

TEST_F(BadInput, WhatIsNoClaim)
{
    QByteArray rubbish;
    for (int i = 0; i < 100'000; ++i)
        rubbish += char(i * 7919 % 251);
    const QByteArray claim = clsZR3Form().XMLOutput().toLatin1();
    const std::pair<const char *, QByteArray> rows[] = {
        {"empty.zr3", ""},
        {"text.zr3", "Dear Sirs,\r\n"},
        {"root.zr3", "<preferencesdatabase/>"},
        {"cut.zr3", claim.left(claim.size() * 2 / 3)},
        {"cut1.zr3", claim.chopped(1)},
        {"rubbish.zr3", rubbish},
        {"package.zr3", "PK\x03\x04" + rubbish},
        {"zeros.zr3", claim + QByteArray(4096, '\0')},
        {"twice.zr3", claim + claim},
        {"deep.zr3",
            "<vzrform>" + QByteArray("<a>").repeated(100'000) + QByteArray("</a>").repeated(100'000) + "</vzrform>"},
        {"deeper.zr3", QByteArray("<vzrform>").repeated(100'000)},
    };
    for (const auto &[name, bytes] : rows) {
        SCOPED_TRACE(name);
        expectRefused(put(name, bytes), NoClaim);
    }
}

TEST_F(BadInput, TwoHundredMegabytesOfNothing)
{
    // A sparse file, which takes no space on the disk.
    QFile file(path("large.zr3"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    ASSERT_TRUE(file.resize(200'000'000));
    file.close();
    const clsToolResult result = run({"totals"_q, path("large.zr3")});
    EXPECT_EQ(2, result.status);
    EXPECT_EQ("", result.out);
    EXPECT_EQ(NoClaim, result.err);
}

TEST_F(BadInput, TwoHundredMegabytesOfRubbishWithoutAZero)
{
    constexpr qsizetype Size = 200'000'000;
    QByteArray letters(1'000'000, Qt::Uninitialized);
    quint32 random = 1;
    for (char &letter : letters) {
        random = random * 1664525 + 1013904223;
        letter = char('!' + (random >> 24) % 94);
    }
    const QByteArray tags = QByteArray("<a>").repeated(letters.size() / 3);
    for (const auto &[start, block] : {std::pair("", letters),
             std::pair("<vzrform>", letters.replace('<', '(').replace('&', '+')), std::pair("<vzrform>", tags)}) {
        SCOPED_TRACE(start + block.left(20).toStdString());
        QFile file(path("large.zr3"));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(start);
        while (file.pos() < Size)
            ASSERT_EQ(block.size(), file.write(block));
        file.close();
        const clsToolResult result = run({"totals"_q, path("large.zr3")});
        EXPECT_TRUE(file.remove());
        EXPECT_EQ(2, result.status);
        EXPECT_EQ("", result.out);
        EXPECT_EQ(NoClaim, result.err);
    }
}

TEST_F(BadInput, AClaimWhoseOrderHasAGapEndsItsLoad)
{
    const QString file = put("gap.zr3",
        "<vzrform><disbursements><disbursement><orderid>2</orderid></disbursement>"
        "</disbursements></vzrform>");
    expectRefused(file,
        "Run-time error '91': Object variable or With block variable not set\n"
        "No disbursement has place 1 in the order of its list\n");
}

TEST_F(BadInput, ABooleanThatIsNoneEndsALoadThatReadsIt)
{
    const QString file = put("boolean.zr3",
        "<vzrform><disbursements><disbursement><orderid>1</orderid><counsel>perhaps</counsel>"
        "</disbursement></disbursements></vzrform>");
    expectRefused(file,
        "Run-time error '13': Type mismatch\n"
        "Disbursement 1: the tick Counsel holds \"perhaps\", which is neither True nor False\n");
}

TEST_F(BadInput, ANumberBeyondItsRangeEndsALoadThatReadsIt)
{
    const QString file = put("number.zr3",
        "<vzrform><fasitems><fasitem><orderid>99999999999</orderid></fasitem></fasitems>"
        "</vzrform>");
    expectRefused(file,
        "Run-time error '6': Overflow\n"
        "FAS item 99999999999: Order ID holds \"99999999999\", which is too large a number\n");
}

TEST_F(BadInput, ANameThatIsNotUtf8IsRefused)
{
    const QString claim = putClaim(clsZR3Form());
    ASSERT_TRUE(QDir(folder.path()).mkpath("out"_q));
    const auto message = [](const char *name) {
        return QByteArray("File Name: The name of this file or folder has characters that the program can't read:\n\n")
            + name + "\n\nPlease rename it and try again.\n";
    };
    // Created by the shell, because a QString can't hold this name.
    const auto runAs = [&](const char *words) {
        return runProgram("sh"_q,
            {"-c"_q, "odd=$(printf '\\377'); exec \"$0\" "_q + QString::fromLatin1(words), QStringLiteral(ZR3_TOOL),
                claim});
    };
    const std::tuple<const char *, const char *, int> rows[] = {
        {"save \"$1\" \"$odd.zr3\"", "\\xff.zr3", 4},
        {"save \"$odd.zr3\" new.zr3", "\\xff.zr3", 2},
        {"totals \"$odd.zr3\"", "\\xff.zr3", 2},
        {"check \"$odd.zr3\"", "\\xff.zr3", 2},
        {"export \"$odd.zr3\" out", "\\xff.zr3", 2},
        {"export \"$1\" \"$odd\"", "\\xff", 4},
        {"export \"$1\" out --templates \"$odd\"", "\\xff", 4},
        {"export \"$1\" out --templates=\"$odd\"", "--templates=\\xff", 4},
    };
    for (const auto &[words, name, status] : rows) {
        const clsToolResult result = runAs(words);
        EXPECT_EQ(status, result.status) << words;
        EXPECT_EQ("", result.out);
        EXPECT_EQ(message(name), result.err);
    }
    EXPECT_EQ(QStringList({"claim.zr3"_q, "out"_q}), filesOf(folder.path()));
    EXPECT_EQ(QStringList(), filesOf(path("out")));
}

TEST_F(BadInput, ACurrentFolderWhoseNameIsNotUtf8TakesNoFileByARelativeName)
{
    const QString claim = putClaim(clsZR3Form());
    const auto runThere = [&](const char *words) {
        return runProgram("sh"_q,
            {"-c"_q,
                "odd=$(printf '\\377'); mkdir -p \"$odd\" && cd \"$odd\" && exec \"$0\" "_q
                    + QString::fromLatin1(words),
                QStringLiteral(ZR3_TOOL), claim});
    };
    // The folder that the name would become as a text.
    ASSERT_TRUE(QDir(folder.path()).mkpath(QString(QChar::ReplacementCharacter)));
    const clsToolResult refused = runThere("save \"$1\" new.zr3");
    EXPECT_EQ(4, refused.status);
    EXPECT_TRUE(refused.err.startsWith("File Name: ")) << refused.err.constData();
    EXPECT_TRUE(refused.err.contains("\\xff")) << refused.err.constData();
    EXPECT_EQ(QStringList(), filesOf(path("\xef\xbf\xbd")));
    EXPECT_EQ(0, runThere(("save \"$1\" '" + path("new.zr3").toUtf8() + "'").constData()).status);
    EXPECT_EQ(0, runThere("check ../claim.zr3").status);
    EXPECT_EQ(0, rmdir((QFile::encodeName(folder.path()) + "/\xff").constData()));
}
