// The differences between two claims, and their value.

#include "costing/comparing/mdChangesReport.h"
#include "costing/comparing/mdPairFiles.h"
#include "tests/costing/clsComparingTest.h"
#include "tests/support/mdTestPaths.h"

#include <QDir>

namespace {

class Comparing : public clsComparingTest { };

} // namespace

TEST_F(Comparing, AClaimAndItsCopyAreTheSame)
{
    EXPECT_TRUE(changes().isEmpty());
    EXPECT_EQ(QString(), mdChangesInLines(changes()));
    for (const QString &name : QDir(mdSampleFolder()).entryList({"*.zr3"_q}, QDir::Files)) {
        clsZR3Form one;
        clsZR3Form other;
        ASSERT_TRUE(one.LoadXML(mdSamplePath(name)));
        ASSERT_TRUE(other.LoadXML(mdSamplePath(name)));
        EXPECT_TRUE(mdCompareClaims(one, other).isEmpty()) << name.toStdString();
    }
}

TEST_F(Comparing, WhatASaveAndTheUseOfTheProgramWriteIsNoDifference)
{
    now.path = "elsewhere.zr3"_q;
    now.Version = "0.0.1"_q;
    now.ExportPath = "elsewhere"_q;
    now.TimeSpent = "12:34"_q;
    now.DefaultFeeEarnerListIndex = 7;
    now.GenerateUniqueID();
    EXPECT_TRUE(changes().isEmpty());
}

TEST_F(Comparing, FieldsStandUnderTheirScreens)
{
    now.FormType = "Claim1A"_q;
    now.IncludePage3 = !form.IncludePage3();
    now.ExcludeNonAdvocacy = true;
    now.ExpertsMeetMOJStandardReasons = "None"_q;
    now.ClientDetails.Surname = "O'Kafor & \"Co\""_q;
    now.Communications.EnhanceCalls = true;
    now.DebtorsDetails.Address = "1\r\n2"_q;
    now.XMLNode().append_child("costslimit").text().set("12%2C000.00");
    EXPECT_EQ(
        QStringList({"Form Setup|FormType|Claim1|Claim1A"_q,
            "Form Setup|IncludePage3|%1"_q.arg(form.IncludePage3() ? "True|False"_q : "False|True"_q),
            "Schedule of Time|ExcludeNonAdvocacy|False|True"_q, "Disbursements|ExpertsMeetMOJStandardReasons||None"_q,
            "Client Details|Surname||O'Kafor & \"Co\""_q, "Communications|EnhanceCalls|False|True"_q,
            "Debtor's Details|Address||1\r\n2"_q, "Costs Limit|CostsLimit||12,000.00"_q}),
        fields());
}

TEST_F(Comparing, EachElementOfTheClaimAndItsSectionsIsCompared)
{
    const QStringList passedOver
        = {"path"_q, "version"_q, "exportpath"_q, "timespent"_q, "idcounter"_q, "defaultfeeearnerlistindex"_q};
    const QStringList lists = {"feeearnergroups"_q, "feeearners"_q, "counsel"_q, "enhancements"_q, "fasitems"_q,
        "scheduleoftimeitems"_q, "expertinvoices"_q, "jointinstructions"_q, "disbursements"_q};
    // Elements of the templates that the program doesn't read.
    const QStringList unread = {"counselunderfgf"_q, "familyproceedings"_q};
    QStringList changed;
    const auto change = [&](pugi::xml_node leaf) {
        leaf.text().set(QByteArrayView(leaf.child_value()) == QByteArrayView("True") ? "False" : "7");
        if (const QString name = QString::fromLatin1(leaf.name()); !unread.contains(name))
            changed << name;
    };
    for (const pugi::xml_node child : now.XMLNode().children()) {
        const QString name = QString::fromLatin1(child.name());
        if (lists.contains(name) || unread.contains(name))
            continue;
        const auto isElement = [](pugi::xml_node node) { return node.type() == pugi::node_element; };
        if (!child.find_child(isElement) && !passedOver.contains(name))
            change(child);
        for (const pugi::xml_node leaf : child.children())
            if (isElement(leaf))
                change(leaf);
    }
    EXPECT_GT(changed.size(), 150);
    QStringList told;
    for (const clsFieldChange &field : changes().Fields)
        told << field.Property.toLower();
    for (const QString &name : std::as_const(changed))
        EXPECT_TRUE(told.removeOne(name)) << name.toStdString();
    EXPECT_EQ(QStringList(), told);
}

TEST_F(Comparing, ValuesThatAreWrittenOtherwiseAreTheSame)
{
    now.XMLNode().child("excludenonadvocacy").text().set("false");
    now.XMLNode().child("formtype").text().set("%43laim1");
    EXPECT_EQ(QStringList(), fields());
}

TEST_F(Comparing, AnItemThatIsAdded)
{
    const auto added = now.AddScheduleOfTimeItem();
    added->FeeEarnerUniqueID = feeEarner->UniqueID();
    added->dDate = "04/06/25"_q;
    added->TTime = "00:30"_q;
    EXPECT_EQ(QStringList({"schedule|added|0|4|30|FeeEarnerUniqueID,dDate,TTime,Advocacy,Counsel,Travel,Waiting,"
                           "UseHourlyRate,IncludeInEnhancements"_q}),
        items());
    // Three hours at 60.00 were 180.00; 20 per cent of that is 36.00.
    EXPECT_EQ("180|210"_q, total("ScheduleTotal"));
    EXPECT_EQ("36|42"_q, total("ProfitCostsVAT"));
    EXPECT_EQ("216|252"_q, total("grandtotal"));
    EXPECT_EQ(QString(), total("CommsTotal"));
}

TEST_F(Comparing, AnItemThatIsRemovedTakesNoOthersPlace)
{
    now.DeleteScheduleOfTimeItem(1);
    now.ScheduleOfTimeItem(1)->OrderID = 1;
    now.ScheduleOfTimeItem(2)->OrderID = 2;
    ASSERT_EQ(1, items().size());
    EXPECT_TRUE(items().front().startsWith("schedule|removed|1|0|-60|"_q)) << items().front().toStdString();
    EXPECT_EQ("01/06/25"_q, changes().Items.front().Fields.at(1).Old);
    EXPECT_EQ(""_q, changes().Items.front().Fields.at(1).New);
}

TEST_F(Comparing, AnItemThatIsChangedIsKnownByItsDateAndFeeEarner)
{
    now.ScheduleOfTimeItem(2)->TTime = "01:45"_q;
    EXPECT_EQ(QStringList({"schedule|changed|2|2|45|TTime"_q}), items());
    EXPECT_EQ("180|225"_q, total("ScheduleTotal"));
    // With a different date it is another item.
    now.ScheduleOfTimeItem(2)->dDate = "05/06/25"_q;
    ASSERT_EQ(2, items().size());
    EXPECT_TRUE(items()[0].startsWith("schedule|removed|2|0|-60|"_q));
    EXPECT_TRUE(items()[1].startsWith("schedule|added|0|2|105|"_q));
}

TEST_F(Comparing, EqualItemsAreMatchedBeforeThoseOfOneDay)
{
    // Two items on one day: the second is unchanged, so the first is the changed one.
    form.ScheduleOfTimeItem(2)->dDate = "01/06/25"_q;
    form.ScheduleOfTimeItem(2)->Description = "Kept"_q;
    now.ScheduleOfTimeItem(2)->dDate = "01/06/25"_q;
    now.ScheduleOfTimeItem(2)->Description = "Kept"_q;
    now.ScheduleOfTimeItem(1)->Description = "New"_q;
    now.ScheduleOfTimeItem(1)->OrderID = 2;
    now.ScheduleOfTimeItem(2)->OrderID = 1;
    EXPECT_EQ(QStringList({"schedule|changed|1|2|0|Description"_q}), items());
}

TEST_F(Comparing, SeveralOfOneKeyAreMatchedInTheirOrder)
{
    for (clsZR3Form *of : {&form, &now})
        for (int n = 1; n <= 3; ++n)
            of->ScheduleOfTimeItem(n)->dDate = "01/06/25"_q;
    // Three equal items: their order is reversed and two times are changed.
    now.ScheduleOfTimeItem(1)->OrderID = 3;
    now.ScheduleOfTimeItem(3)->OrderID = 1;
    now.ScheduleOfTimeItem(1)->TTime = "03:00"_q;
    now.ScheduleOfTimeItem(2)->TTime = "02:00"_q;
    // The new item of order 1 still equals the old item of order 1; the others are matched in their order.
    EXPECT_EQ(QStringList({"schedule|changed|2|2|60|TTime"_q, "schedule|changed|3|3|120|TTime"_q}), items());
}

TEST_F(Comparing, ListsWithIdentitiesAreMatchedByThem)
{
    now.FeeEarnerGroup(1)->HourlyRate = "90.00"_q;
    now.FeeEarner(1)->Reference = "XY"_q;
    now.FeeEarner(1)->Calls = 3;
    EXPECT_EQ(QStringList({"feeearners|changed|1|1||Reference,Calls"_q, "groups|changed|1|1||HourlyRate"_q}), items());
    // Three hours at 90.00, and three calls at 4.00.
    EXPECT_EQ("180|270"_q, total("ScheduleTotal"));
    EXPECT_EQ("0|12"_q, total("CommsTotal"));
    EXPECT_EQ("180|282"_q, total("npc"));
}

TEST_F(Comparing, DisbursementsExpertsAndHearings)
{
    const auto court = claim.addDisbursement("100.00", "20.00");
    court->Description = "Court fee"_q;
    const auto expert = form.AddExpertInvoice();
    expert->ExpertType = "Surveyor"_q;
    expert->NetAmount = "200.00"_q;
    expert->VATAmount = "40.00"_q;
    const auto joint = form.AddJointInstruction();
    joint->ExpertType = "Surveyor"_q;
    joint->PercentApportioned = "50"_q;
    const auto hearing = claim.addFASItem(2, "10.50", "0");
    hearing->dDate = "03/06/25"_q;
    form.SeparateCounselAndNonCounselDisbursements();
    now.takeCopyOf(form);
    EXPECT_TRUE(changes().isEmpty());
    now.Disbursement(1)->VAT = "10.00"_q;
    now.ExpertInvoice(1)->NetAmount = "150.50"_q;
    now.JointInstruction(1)->PercentApportioned = "40"_q;
    now.FASItem(1)->HearingUnits = 3;
    EXPECT_EQ(QStringList({"disbursements|changed|1|1|-10|VAT"_q, "experts|changed|1|1|-49.5|NetAmount"_q,
                  "joint|changed|1|1||PercentApportioned"_q, "fas|changed|1|1|10.5|HearingUnits"_q}),
        items());
    EXPECT_EQ("200|150.5"_q, total("nex"));
    EXPECT_EQ("20|10"_q, total("vdibs"));
    EXPECT_EQ("21|31.5"_q, total("FASItemsTotal"));
}

TEST_F(Comparing, AFigureThatFailsStandsAsItsError)
{
    now.ScheduleOfTimeItem(1)->TTime = "soon"_q;
    EXPECT_EQ(QStringList({"schedule|changed|1|1|!9|TTime"_q}), items());
    EXPECT_EQ("180|!9"_q, total("ScheduleTotal"));
    form.ScheduleOfTimeItem(1)->TTime = "soon"_q;
    EXPECT_TRUE(changes().isEmpty());
}

TEST_F(Comparing, AKeyThatOneFormLacksIsEmptyThere)
{
    now.FormType = "Claim1A"_q;
    EXPECT_EQ("216|"_q, total("grandtotal"));
    EXPECT_EQ("|180"_q, total("nsubtotal"));
    EXPECT_EQ(QString(), total("npc"));
}

TEST_F(Comparing, BrokenElementsAreComparedAsTheyStand)
{
    now.XMLScheduleOfTimeItemsNode().first_child().child("advocacy").text().set("Perhaps");
    now.XMLScheduleOfTimeItemsNode().first_child().child("orderid").text().set("99999999999");
    EXPECT_EQ(QStringList({"schedule|changed|1|0|!13|Advocacy"_q}), items());
    now.XMLScheduleOfTimeItemsNode().first_child().remove_child("advocacy");
    EXPECT_EQ(QStringList({"schedule|changed|1|0|!91|Advocacy"_q}), items());
}

TEST(PairingFiles, ByNameAndFirstByPlace)
{
    const auto pairs = mdPairFiles("old"_q, {"old/a.zr3"_q, "old/b.zr3"_q, "old/x/c.zr3"_q, "old/x/a.zr3"_q}, "new/"_q,
        {"new/c.zr3"_q, "new/d.zr3"_q, "new/x/a.zr3"_q});
    QStringList texts;
    for (const clsFilePair &pair : pairs)
        texts << QStringList {pair.Name, pair.Old, pair.New}.join(u'|');
    EXPECT_EQ(QStringList({"x/a.zr3|old/x/a.zr3|new/x/a.zr3"_q, "a.zr3|old/a.zr3|"_q, "b.zr3|old/b.zr3|"_q,
                  "c.zr3|old/x/c.zr3|new/c.zr3"_q, "d.zr3||new/d.zr3"_q}),
        texts);
}
