#include "formdata/mdSectionTabs.h"

#include "tests/support/mdTestPrinting.h"

#include <gtest/gtest.h>

namespace {

QStringList split(const char *texts)
{
    return QString::fromLatin1(texts).split(u'|');
}

} // namespace

TEST(SectionTabs, FirstRow)
{
    EXPECT_EQ(split("Form Options|Pre-Bill Sections|Bill|Post-Bill Sections"), mdSectionTabs());
}

TEST(SectionTabs, SecondRowOfClaim1)
{
    const QString type = QStringLiteral("Claim1");
    EXPECT_EQ(split("Form Setup|Fee Earners / Rates|Counsel|Enhancements"), mdSubSectionTabs(1, type));
    EXPECT_EQ(
        split("Client Details|Solicitor Details|Previous Advice|Case Information|Outcome of Case|Late Submission"),
        mdSubSectionTabs(2, type));
    EXPECT_EQ(split("Counsel Outstanding Claims|Details of Work|Schedule of Time|Disbursements|Communications"),
        mdSubSectionTabs(3, type));
    EXPECT_EQ(split("Details of Costs Awarded|Details of Monies Awarded|Debtor's Details"), mdSubSectionTabs(4, type));
}

TEST(SectionTabs, SecondRowOfClaim1A)
{
    const QString type = QStringLiteral("Claim1A");
    EXPECT_EQ(split("Form Setup|Fee Earners / Rates|Counsel|Enhancements"), mdSubSectionTabs(1, type));
    EXPECT_EQ(
        split("Client Details|Solicitor Details|Previous Advice|Outcome of Case|Nature of Proceedings|Actual Costs"),
        mdSubSectionTabs(2, type));
    EXPECT_EQ(split("Counsel Outstanding Claims|Disbursements|Family Advocacy Scheme|Details of Work|Schedule of Time|"
                    "Communications"),
        mdSubSectionTabs(3, type));
    EXPECT_EQ(split("Details of Costs Awarded|Debtor's Details"), mdSubSectionTabs(4, type));
}

TEST(SectionTabs, AnyOtherTypeHasAnEmptySecondRow)
{
    for (const char *type : {"", "claim1", "Claim2"})
        for (int tab = 1; tab <= 4; ++tab)
            EXPECT_TRUE(mdSubSectionTabs(tab, QString::fromLatin1(type)).isEmpty()) << type << tab;
    EXPECT_TRUE(mdSubSectionTabs(0, QStringLiteral("Claim1")).isEmpty());
    EXPECT_TRUE(mdSubSectionTabs(5, QStringLiteral("Claim1")).isEmpty());
}

TEST(SectionTabs, AreWalkedInTheirOrderFromGroupToGroup)
{
    for (const char *type : {"Claim1", "Claim1A"}) {
        QStringList all;
        for (int tab = 1; tab <= 4; ++tab)
            all += mdSubSectionTabs(tab, QString::fromLatin1(type));
        QStringList forward {all.first()}, backward {all.last()};
        while (!forward.last().isEmpty())
            forward << mdSectionBeside(forward.last(), QString::fromLatin1(type), true);
        while (!backward.first().isEmpty())
            backward.prepend(mdSectionBeside(backward.first(), QString::fromLatin1(type), false));
        EXPECT_EQ(all + QStringList(QString()), forward);
        EXPECT_EQ(QStringList(QString()) + all, backward);
    }
    EXPECT_EQ(QStringLiteral("Client Details"),
        mdSectionBeside(QStringLiteral("Enhancements"), QStringLiteral("Claim1"), true));
}

TEST(SectionTabs, WhatTheFormDoesNotHaveHasNoNeighbours)
{
    EXPECT_EQ(QString(), mdSectionBeside(QStringLiteral("Case Information"), QStringLiteral("Claim1A"), true));
    EXPECT_EQ(QString(), mdSectionBeside(QStringLiteral("Client Details"), QStringLiteral("Claim2"), true));
}
