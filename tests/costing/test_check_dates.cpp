// Dates of work: missing, in the future, before the certificate, and after the final work.

#include "costing/checking/mdCheckWords.h"
#include "tests/costing/clsCheckTest.h"

namespace {

class CheckDates : public clsCheckTest {
protected:
    void SetUp() override
    {
        clsCheckTest::SetUp();
        form.CaseInformation.DateOfFinalWorkDate = "31/12/25"_q;
    }
};

const QString Item1 = "error|Schedule of Time|schedule|1|dDate"_q;

} // namespace

TEST_F(CheckDates, ReadsStoredDates)
{
    const QDate day(2025, 6, 3);
    for (const char *text : {"03/06/25", "3/6/25", "03.06.2025", "3-6-25", "3 6 25", " 03/06/25 ", "03/06/2025"})
        EXPECT_EQ(day, mdStoredDate(QString::fromLatin1(text))) << text;
    EXPECT_EQ(QDate(2029, 12, 30), mdStoredDate("30/12/29"_q));
    EXPECT_EQ(QDate(1930, 1, 1), mdStoredDate("01/01/30"_q));
    EXPECT_EQ(QDate(2005, 1, 1), mdStoredDate("1/1/5"_q));
    EXPECT_EQ(QDate(2029, 12, 31), mdStoredDate("31/12/2029"_q));
    for (const char *text : {"", " ", "31/12/29", "31.12.29", "03/06", "31/06/25", "13/13/25", "soon", "03/06/225"})
        EXPECT_EQ(std::nullopt, mdStoredDate(QString::fromLatin1(text))) << text;
}

TEST_F(CheckDates, MissingOfABilledItem)
{
    for (const char *text : {"31/12/29", "", "03/06", "soon"}) {
        item->dDate = QString::fromLatin1(text);
        EXPECT_EQ(QStringList {"warning|Schedule of Time|schedule|1|dDate"_q}, found("date-missing")) << text;
    }
    EXPECT_EQ(QStringList {"Item 1 has no date: enter the day of the work."_q}, said("date-missing"));
    beClaim1A();
    form.ExcludeNonAdvocacy = true;
    EXPECT_EQ(QStringList(), found("date-missing"));
    item->Advocacy = true;
    EXPECT_EQ(1, found("date-missing").size());
}

TEST_F(CheckDates, MissingOfCounselsFeesAndHearings)
{
    const auto fee = addFee();
    fee->DateOfWork = "31/12/29"_q;
    fee->Description = "Brief\r\nfee"_q;
    addSpent()->DateOfWork = QString(); // not counsel's
    addHearing("");
    EXPECT_EQ(QStringList {"warning|Disbursements|disbursements|1|DateOfWork"_q}, found("date-missing"));
    EXPECT_EQ(
        QStringList {"Disbursement 1, Brief fee, has no date: enter the day of the work."_q}, said("date-missing"));
    beClaim1A();
    EXPECT_EQ(QStringList({"warning|Disbursements|disbursements|1|DateOfWork"_q,
                  "warning|Family Advocacy Scheme|fas|1|dDate"_q}),
        found("date-missing"));
    setContent(*fee, "counsel", "Perhaps");
    EXPECT_EQ(QStringList {"warning|Family Advocacy Scheme|fas|1|dDate"_q}, found("date-missing"));
}

TEST_F(CheckDates, InTheFuture)
{
    item->dDate = "31/12/25"_q; // today
    EXPECT_EQ(QStringList(), found("date-future"));
    item->dDate = "01/01/26"_q;
    EXPECT_EQ(QStringList {Item1}, found("date-future"));
    EXPECT_EQ(
        QStringList {"Item 1, 01/01/26, is dated after today, 31/12/25: correct the date."_q}, said("date-future"));
    item->dDate = "31/12/29"_q; // no date
    EXPECT_EQ(QStringList(), found("date-future"));
    addFee()->DateOfWork = "1.1.2026"_q;
    beClaim1A();
    addHearing("01/01/26");
    EXPECT_EQ(
        QStringList({"error|Disbursements|disbursements|1|DateOfWork"_q, "error|Family Advocacy Scheme|fas|1|dDate"_q}),
        found("date-future"));
}

TEST_F(CheckDates, BeforeTheCertificate)
{
    EXPECT_EQ(QStringList(), found("date-before-certificate"));
    form.CaseInformation.SubstantiveCertificateDate = "03/06/25"_q;
    EXPECT_EQ(QStringList(), found("date-before-certificate"));
    form.CaseInformation.SubstantiveCertificateDate = "10/06/25"_q;
    EXPECT_EQ(QStringList {Item1}, found("date-before-certificate"));
    EXPECT_EQ(QStringList {"Item 1, 03/06/25, is dated before the certificate of 10/06/25."_q},
        said("date-before-certificate"));
    form.CaseInformation.EmergencyCertificateDate = "03/06/25"_q; // the earlier of the two
    EXPECT_EQ(QStringList(), found("date-before-certificate"));
    form.CaseInformation.EmergencyCertificateDate = "03/06"_q; // no date
    EXPECT_EQ(QStringList {Item1}, found("date-before-certificate"));
    item->dDate = QString();
    EXPECT_EQ(QStringList(), found("date-before-certificate"));
}

TEST_F(CheckDates, BeforeTheCertificateComparesDaysAndNotTexts)
{
    form.CaseInformation.EmergencyCertificateDate = "02/12/24"_q;
    EXPECT_EQ(QStringList(), found("date-before-certificate"));
    item->dDate = "31/01/24"_q;
    EXPECT_EQ(QStringList {Item1}, found("date-before-certificate"));
}

TEST_F(CheckDates, BeforeTheCertificateOfTheFormsOwnScreen)
{
    form.CaseInformation.EmergencyCertificateDate = "10/06/25"_q;
    beClaim1A();
    EXPECT_EQ(QStringList(), found("date-before-certificate"));
    form.OutcomeOfCase.EmergencyCertificateDate = "10/06/25"_q;
    form.IncludePage2 = false; // whether it is printed or not
    EXPECT_EQ(QStringList {Item1}, found("date-before-certificate"));
}

TEST_F(CheckDates, AfterTheFinalWork)
{
    form.CaseInformation.DateOfFinalWorkDate = "03/06/25"_q;
    EXPECT_EQ(QStringList(), found("date-after-final-work"));
    form.CaseInformation.DateOfFinalWorkDate = "02/06/25"_q;
    EXPECT_EQ(QStringList {"warning|Schedule of Time|schedule|1|dDate"_q}, found("date-after-final-work"));
    form.CaseInformation.DateOfFinalWorkDate = "02/06"_q;
    EXPECT_EQ(QStringList(), found("date-after-final-work"));
    form.CaseInformation.DateOfFinalWorkDate = "02/06/25"_q;
    beClaim1A();
    EXPECT_EQ(QStringList(), found("date-after-final-work"));
}
