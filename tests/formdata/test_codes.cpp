// The activity codes of the schedule of time.

#include "formdata/mdScheduleOfTimeCodesCollection.h"
#include "tests/formdata/clsClaimTest.h"

using Codes = clsClaimTest;

TEST_F(Codes, AreThese32InThisOrder)
{
    const QStringList expected = {
        "ACL"_q,
        "ACO"_q,
        "ACT"_q,
        "AEX"_q,
        "AOS"_q,
        "AOT"_q,
        "ASI"_q,
        "ASO"_q,
        "AWI"_q,
        "DAF"_q,
        "DAG"_q,
        "DAN"_q,
        "DAP"_q,
        "DBL"_q,
        "DCN"_q,
        "DFL"_q,
        "DIC"_q,
        "DNO"_q,
        "DOT"_q,
        "DPL"_q,
        "DST"_q,
        "HDI"_q,
        "HFN"_q,
        "HIN"_q,
        "HOT"_q,
        "OOT"_q,
        "RES"_q,
        "REX"_q,
        "RMD"_q,
        "ROP"_q,
        "ROT"_q,
        "RWE"_q,
    };
    ASSERT_EQ(32, expected.size());
    EXPECT_EQ(expected, mdScheduleOfTimeCodesCollection());
}

TEST_F(Codes, ACodeIsAcceptedInSilence)
{
    for (const QString &code : mdScheduleOfTimeCodesCollection())
        EXPECT_TRUE(mdCheckScheduleOfTimeCode(code));
    EXPECT_TRUE(claim.user.messages.empty());
}

TEST_F(Codes, AnythingElseIsToldAndRefused)
{
    for (const char *code : {"", "dot", "DO", "DOTT", "DOT ", "QQQ"}) {
        claim.user.messages.clear();
        EXPECT_FALSE(mdCheckScheduleOfTimeCode(QString::fromLatin1(code))) << code;
        ASSERT_EQ(1u, claim.user.messages.size());
        EXPECT_EQ("Invalid Code"_q, claim.user.messages[0].title);
        EXPECT_EQ("The code entered is invalid"_q, claim.user.messages[0].text);
        EXPECT_EQ(clsUserInterface::OKOnly, claim.user.messages[0].buttons);
    }
}
