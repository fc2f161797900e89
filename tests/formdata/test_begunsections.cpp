// Which sections of a claim have content.

#include "formdata/mdBegunSections.h"
#include "formdata/mdSectionTabs.h"
#include "tests/formdata/clsFormTest.h"
#include "tests/support/mdTestPaths.h"

namespace {

class BegunSections : public clsFormTest {
protected:
    static QStringList begun(const clsZR3Form &form)
    {
        const QSet<QString> set = mdBegunSections(form);
        QStringList sorted(set.begin(), set.end());
        sorted.sort();
        return sorted;
    }
    static QStringList only(const char *section) { return {QString::fromLatin1(section)}; }

    clsZR3Form form;
};

} // namespace

TEST_F(BegunSections, OfANewClaimThereAreNone)
{
    EXPECT_EQ(QStringList(), begun(form));
    form.Version = QStringLiteral("1.1.140"); // as New does
    form.VATRate = QStringLiteral("20.00");
    form.path = QStringLiteral("/claims/a.zr3");
    form.TimeSpent = QStringLiteral("01:20");
    EXPECT_EQ(QStringList(), begun(form));
}

TEST_F(BegunSections, EachPropertyOfASectionBeginsIt)
{
    forEachSection(form, [&](const char *name, clsXMLRecord &section) {
        for (const clsXMLPropertyPlace &place : section.properties()) {
            clsXMLField &field = *section.field(QString::fromLatin1(place.property->name));
            const QByteArray before = field.content();
            if (place.property->kind == clsXMLKind::Boolean)
                field.writeBoolean(true);
            else
                field.writeText(QStringLiteral("1"));
            EXPECT_EQ(1, begun(form).size()) << name << ' ' << place.property->name;
            field.setContent(before);
        }
        EXPECT_EQ(QStringList(), begun(form)) << name;
    });
}

TEST_F(BegunSections, WhatStandsForNothingBeginsNone)
{
    for (const char *nothing : {"False", "0", "0.00", "00:00", " ", "\r\n", "31/12/29"}) {
        form.CaseInformation.NameOfCourt = QString::fromLatin1(nothing);
        EXPECT_EQ(QStringList(), begun(form)) << nothing;
    }
    for (const char *something : {"0.01", "1", "x", "-", "True", "31/12/28"}) {
        form.CaseInformation.NameOfCourt = QString::fromLatin1(something);
        EXPECT_EQ(only("Case Information"), begun(form)) << something;
    }
}

TEST_F(BegunSections, AnItemBeginsTheSectionOfItsList)
{
    form.AddFeeEarnerGroup();
    EXPECT_EQ(only("Fee Earners / Rates"), begun(form));
    addToEachList(form);
    EXPECT_EQ(QStringList({QStringLiteral("Counsel"), QStringLiteral("Disbursements"), QStringLiteral("Enhancements"),
                  QStringLiteral("Family Advocacy Scheme"), QStringLiteral("Fee Earners / Rates"),
                  QStringLiteral("Schedule of Time")}),
        begun(form));
}

TEST_F(BegunSections, LettersAndCallsStandWithTheFeeEarners)
{
    const auto feeEarner = form.AddFeeEarner();
    EXPECT_EQ(only("Fee Earners / Rates"), begun(form));
    feeEarner->LettersIn = 2;
    EXPECT_EQ(QStringList({QStringLiteral("Communications"), QStringLiteral("Fee Earners / Rates")}), begun(form));
}

TEST_F(BegunSections, FormSetupIsBegunWhereItDiffersFromANewClaims)
{
    form.IncludePage9 = false;
    EXPECT_EQ(only("Form Setup"), begun(form));
    form.IncludePage9 = true;
    form.Notes = QStringLiteral("x");
    EXPECT_EQ(only("Form Setup"), begun(form));
    form.Notes = QString();
    form.FormType = QStringLiteral("Claim1A");
    EXPECT_EQ(only("Form Setup"), begun(form));
}

TEST_F(BegunSections, TheStandardOfTheExpertsIsEnteredWithTheDisbursements)
{
    form.ExpertsMeetMOJStandardNo = true;
    EXPECT_EQ(only("Disbursements"), begun(form));
}

TEST_F(BegunSections, NamesTabsOfTheFormsAndNoOthers)
{
    forEachSection(form, [](const char *, clsXMLRecord &section) {
        for (const clsXMLPropertyPlace &place : section.properties())
            section.field(QString::fromLatin1(place.property->name))->writeText(QStringLiteral("1"));
    });
    addToEachList(form);
    form.Notes = QStringLiteral("x");
    QSet<QString> tabs;
    for (const char *type : {"Claim1", "Claim1A"})
        for (int tab = 1; tab <= 4; ++tab)
            for (const QString &text : mdSubSectionTabs(tab, QString::fromLatin1(type)))
                tabs << text;
    EXPECT_EQ(tabs, mdBegunSections(form));
}

TEST_F(BegunSections, ReadsWhatNoBoxWouldTake)
{
    setContentOf(form.OutcomeOfCase.XMLNode(), "result", "much");
    setContentOf(form.PreviousAdvice.XMLNode(), "legalhelpyes", "perhaps");
    EXPECT_EQ(QStringList({QStringLiteral("Outcome of Case"), QStringLiteral("Previous Advice")}), begun(form));
}
