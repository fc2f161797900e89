// What a terminal shows of claims and file names.

#include "tests/zr3tool/clsToolTest.h"

#include <fcntl.h>
#include <poll.h>
#include <pty.h>
#include <termios.h>

namespace {

class Terminal : public clsToolTest {
protected:
    void SetUp() override
    {
        clsToolTest::SetUp();
        ASSERT_EQ(0, openpty(&m_reader, &m_terminal, nullptr, nullptr, nullptr));
        // Line ends as the tool writes them.
        termios asWritten = {};
        ASSERT_EQ(0, tcgetattr(m_terminal, &asWritten));
        cfmakeraw(&asWritten);
        ASSERT_EQ(0, tcsetattr(m_terminal, TCSANOW, &asWritten));
        ASSERT_EQ(0, fcntl(m_reader, F_SETFL, O_NONBLOCK));
    }
    void TearDown() override
    {
        close(m_reader);
        close(m_terminal);
        clsToolTest::TearDown();
    }

    /// Runs the tool with one of its streams on the terminal. Returns the text shown after the progress has been
    /// cleared, which must have no control characters except line feeds.
    QByteArray shownBy(const QStringList &arguments, int stream, int status)
    {
        const clsToolResult result = run(arguments, {}, [this, stream] {
            if (dup2(m_terminal, stream) < 0)
                _exit(127);
        });
        EXPECT_EQ(status, result.status);
        QByteArray shown = whatArrives();
        const QByteArray progressCleared = "\r\033[K";
        if (const qsizetype last = shown.lastIndexOf(progressCleared); last >= 0)
            shown.remove(0, last + progressCleared.size());
        for (const QChar c : QString::fromUtf8(shown))
            EXPECT_TRUE(c == u'\n' || c.category() != QChar::Other_Control) << int(c.unicode());
        return shown;
    }

    /// Text written to a terminal arrives at the other side a little later, and in pieces.
    QByteArray whatArrives() const
    {
        constexpr int LongestWait = 500; // milliseconds
        QByteArray all;
        char piece[4096];
        pollfd reader {m_reader, POLLIN, 0};
        while (poll(&reader, 1, LongestWait) > 0) {
            const ssize_t count = read(m_reader, piece, sizeof piece);
            if (count <= 0)
                break;
            all.append(piece, count);
        }
        return all;
    }

    /// A text that would clear the screen and start a line.
    const QString m_odd = QString::fromUtf8("a\x1b[2Jb\302\201c\nTotals: d\x7f.zr3");
    const QByteArray m_shown = "a?[2Jb?c?Totals: d?.zr3";

private:
    int m_reader = -1;
    int m_terminal = -1;
};

} // namespace

TEST_F(Terminal, ShowsTheNameOfAFileWithoutItsControlCharacters)
{
    const QByteArray before = "File Not Read: There was a problem reading the following path:\n\n";
    const QByteArray after = "\n\nThe error reported is:\n\n53 - File not found\n";
    EXPECT_EQ(before + m_shown + after, shownBy({"totals"_q, m_odd}, STDERR_FILENO, 2));
    // Output to a file is unchanged.
    EXPECT_EQ(before + m_odd.toUtf8() + after, run({"totals"_q, m_odd}).err);
}

TEST_F(Terminal, ShowsTheTextsOfAClaimWithoutTheirControlCharacters)
{
    clsZR3Form form;
    form.FormType = m_odd;
    EXPECT_EQ("Export: There are no pages for the form type \"" + m_shown + "\" of this claim.\n",
        shownBy({"export"_q, putClaim(form), folder.path()}, STDERR_FILENO, 4));
}

TEST_F(Terminal, ALineBreakInAClaimBeginsNoLine)
{
    clsZR3Form form;
    form.FormType = "a\r\nTotals: b"_q;
    EXPECT_EQ("Export: There are no pages for the form type \"a??Totals: b\" of this claim.\n",
        shownBy({"export"_q, putClaim(form), folder.path()}, STDERR_FILENO, 4));
    form.FormType = "Claim1"_q;
    fill(form);
    form.ScheduleOfTimeItem(1)->TTime = "a\r\nTotals"_q;
    EXPECT_TRUE(shownBy({"totals"_q, putClaim(form)}, STDERR_FILENO, 4).contains("the time \"a??Totals\", which"));
}

TEST_F(Terminal, ShowsTheFiguresWithTheirControlCharactersEscaped)
{
    clsZR3Form form;
    form.FormType = m_odd;
    const QByteArray shown = shownBy({"totals"_q, putClaim(form)}, STDOUT_FILENO, 0);
    EXPECT_TRUE(shown.contains(R"("FormType": "a\u001b[2Jb\u0081c\nTotals: d\u007f.zr3")")) << shown.constData();
    EXPECT_EQ(m_odd, QJsonDocument::fromJson(shown)["FormType"_q].toString());
    // Wherever the figures are written.
    EXPECT_EQ(shown, run({"totals"_q, path("claim.zr3")}).out);
}

TEST_F(Terminal, ShowsWhatAnErrorComesFromOnLinesOfItsOwn)
{
    clsZR3Form form;
    fill(form);
    form.ScheduleOfTimeItem(1)->FeeEarnerUniqueID = "ID99"_q;
    form.AddExpertInvoice()->VATAmount = QString();
    const QByteArray item = "Schedule item 1 names a fee earner that no longer exists\n";
    const QString claim = putClaim(form);
    EXPECT_EQ(
        "Totals: Some figures of this claim can't be computed. Each of them stands as \"!\" and the number of its "
        "run-time error.\n"
            + item + "Expert invoice 1: VAT Amount is empty\n",
        shownBy({"totals"_q, claim}, STDERR_FILENO, 4));
    EXPECT_EQ("Run-time error '91': Object variable or With block variable not set\n" + item,
        shownBy({"export"_q, claim, folder.path()}, STDERR_FILENO, 4));
}

TEST_F(Terminal, ShowsTheCheckLineByLine)
{
    clsZR3Form form;
    fill(form);
    form.AddDisbursement();
    EXPECT_EQ("Blank items: \n\nDisbursements: 1\n", shownBy({"check"_q, putClaim(form)}, STDOUT_FILENO, 3));
}

TEST_F(Terminal, ShowsTheFullCheckWithoutControlCharacters)
{
    clsZR3Form form;
    fill(form);
    for (int page = 1; page <= 13; ++page)
        form.field("IncludePage%1"_q.arg(page))->writeBoolean(false);
    form.ScheduleOfTimeItem(1)->dDate = "03/06/25"_q;
    form.AddDisbursement()->Description = QString::fromUtf8("a\x1b[2Jb\r\nTotals: c");
    const QByteArray shown
        = "error, Disbursements, 1, Disbursement 1, a?[2Jb Totals: c, has an amount of 0.00: enter the "
          "amount, or delete it.\n";
    EXPECT_EQ(shown, shownBy({"check"_q, "--full"_q, putClaim(form)}, STDOUT_FILENO, 3));
    EXPECT_EQ(QByteArray(shown).replace("a?[", "a\x1b["), run({"check"_q, "--full"_q, path("claim.zr3")}).out);
}

TEST_F(Terminal, ShowsATableLineByLine)
{
    clsZR3Form form;
    form.AddEnhancement()->Name = m_odd + "\r\n2"_q;
    const QString claim = putClaim(form);
    EXPECT_EQ("orderid,uniqueid,name,rate\n1,ID1," + m_shown + "??2,0.00\n",
        shownBy({"table"_q, claim, "enhancements"_q}, STDOUT_FILENO, 0));
    // Output to a file is unchanged.
    EXPECT_EQ("orderid,uniqueid,name,rate\r\n1,ID1,\"" + m_odd.toUtf8() + "\r\n2\",0.00\r\n",
        run({"table"_q, claim, "enhancements"_q}).out);
}

TEST_F(Terminal, ShowsWhatDiffersLineByLine)
{
    clsZR3Form form;
    const QString old = putClaim(form, "old.zr3");
    form.Notes = m_odd + "\r\n2"_q;
    EXPECT_EQ("Form Setup, Notes: \"\" -> \"" + QByteArray(m_shown).replace("c?T", "c T") + "  2\"\n",
        shownBy({"diff"_q, old, putClaim(form)}, STDOUT_FILENO, 3));
}
