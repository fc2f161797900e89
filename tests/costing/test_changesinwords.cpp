// The differences between two claims in words.

#include "costing/comparing/mdChangesReport.h"
#include "tests/costing/clsComparingTest.h"

namespace {

class InWords : public clsComparingTest { };

} // namespace

TEST_F(InWords, AnItemIsKnownByItsName)
{
    const auto other = claim.addFeeEarner(group, "OQ");
    form.AddCounsel()->Name = "Oak & Ash"_q;
    const auto enhancement = form.AddEnhancement();
    enhancement->Name = "Urgent"_q;
    claim.addDisbursement("1000", "")->Description = "Brief"_q;
    now.takeCopyOf(form);
    const auto item = now.ScheduleOfTimeItem(1);
    item->FeeEarnerUniqueID = other->UniqueID();
    item->EnhancementUniqueID = enhancement->UniqueID();
    item->Advocacy = true;
    now.Disbursement(1)->Counsel = true;
    now.Disbursement(1)->CounselUniqueID = form.Counsel(1)->UniqueID();
    now.Communications.LettersOutEnhancementUniqueID = enhancement->UniqueID();
    const clsClaimChanges words = inWords();
    ASSERT_EQ(1u, words.Fields.size());
    EXPECT_EQ("Letters Out Enhancement"_q, words.Fields[0].Property);
    EXPECT_EQ("Urgent"_q, words.Fields[0].New);
    // With another fee earner it doesn't match the same day's item.
    ASSERT_EQ(3u, words.Items.size());
    EXPECT_EQ("Schedule item 1"_q, words.Items[0].Name);
    EXPECT_EQ("Fee Earner|AB|"_q, itemInWords(0).value(0));
    EXPECT_EQ("-60.00"_q, words.Items[0].Effect);
    EXPECT_TRUE(itemInWords(1).contains("Fee Earner||OQ"_q));
    EXPECT_TRUE(itemInWords(1).contains("Enhancement||Urgent"_q));
    EXPECT_TRUE(itemInWords(1).contains("Advocacy||yes"_q));
    EXPECT_TRUE(itemInWords(1).contains("Travel||no"_q));
    EXPECT_EQ(QStringList({"Counsel|no|yes"_q, "Counsel's Name||Oak & Ash"_q}), itemInWords(2));
    EXPECT_EQ("ID"_q, changes().Items[1].Fields[0].New.left(2)) << "the stored values stay as they are";
}

TEST_F(InWords, IdentitiesAreLeftOut)
{
    now.AddCounsel()->Name = "Ash"_q;
    EXPECT_EQ(QStringList({"Name||Ash"_q, "VAT||no"_q}), itemInWords(0));
    EXPECT_EQ("Counsel Ash"_q, inWords().Items[0].Name);
    // An identity without an item is shown unchanged.
    now.ScheduleOfTimeItem(1)->EnhancementUniqueID = "ID99"_q;
    EXPECT_EQ(QStringList {"Enhancement||ID99"_q}, itemInWords(0));
    // Items with the same name are shown with their identities.
    const auto namesake = form.AddFeeEarnerGroup();
    namesake->Reference = "A"_q;
    now.takeCopyOf(form);
    now.FeeEarner(1)->GroupUniqueID = namesake->UniqueID();
    EXPECT_EQ(QStringList {"Group|A (%1)|A (%2)"_q.arg(group->UniqueID(), namesake->UniqueID())}, itemInWords(0));
}

TEST_F(InWords, PlacesInAListAreItsEntriesAndTotalsAreNamedOnce)
{
    now.OutcomeOfCase.StageOfCaseEnd = 3;
    now.XMLNode().child("outcomeofcase").child("result").text().set("99");
    now.XMLNode().child("outcomeofcase").child("costs").text().set("Perhaps");
    now.ScheduleOfTimeItem(1)->TTime = "20:00"_q;
    clsClaimChanges words = inWords();
    ASSERT_EQ(3u, words.Fields.size());
    EXPECT_EQ("Stage Of Case End"_q, words.Fields[0].Property);
    EXPECT_EQ("No Selection"_q, words.Fields[0].Old);
    EXPECT_EQ("C) Determined at final hearing"_q, words.Fields[0].New);
    EXPECT_EQ("99"_q, words.Fields[1].New);
    EXPECT_EQ("no"_q, words.Fields[2].Old);
    EXPECT_EQ("Perhaps"_q, words.Fields[2].New);
    // "ProfitCostsTotal" and the summary's "npc" are the same figure: 22 hours at 60.00.
    QStringList totals;
    for (const clsTotalChange &total : words.Totals)
        totals << QStringList {total.Key, total.Old, total.New}.join(u'|');
    EXPECT_EQ(1, totals.count("Profit costs|180.00|1,320.00"_q)) << totals.join(u'\n').toStdString();
    EXPECT_EQ(1, totals.count("Total with VAT|216.00|1,584.00"_q));
    EXPECT_EQ(0, totals.filter("npc"_q).size());
    // The figures of the other form also have names, and errors are shown as such.
    now.FormType = "Claim1A"_q;
    now.ScheduleOfTimeItem(1)->TTime = "soon"_q;
    words = inWords();
    totals.clear();
    for (const clsTotalChange &total : words.Totals)
        totals << QStringList {total.Key, total.Old, total.New}.join(u'|');
    EXPECT_TRUE(totals.contains("Total with VAT|216.00|"_q)) << totals.join(u'\n').toStdString();
    EXPECT_TRUE(totals.contains("Net subtotal||!9"_q)) << totals.join(u'\n').toStdString();
}

TEST_F(InWords, StandInLines)
{
    now.ClientDetails.FirstName = "Ada\r\nMary"_q;
    now.ScheduleOfTimeItem(2)->TTime = "01:30"_q;
    const QStringList lines = mdChangesInLines(inWords(), "a.zr3: "_q).split("\r\n"_q);
    EXPECT_EQ("a.zr3: Client Details, First Name: \"\" -> \"Ada  Mary\""_q, lines.value(0));
    EXPECT_EQ("a.zr3: schedule 2 changed, Time: \"01:00\" -> \"01:30\", effect: 30.00"_q, lines.value(1));
    EXPECT_EQ("a.zr3: Schedule of time: \"180.00\" -> \"210.00\""_q, lines.value(2));
}
