// The schedule: no time, no rate, too much in a day, entered twice, long without a description.

#include "tests/costing/clsCheckTest.h"

namespace {

class CheckSchedule : public clsCheckTest { };

} // namespace

TEST_F(CheckSchedule, NoTime)
{
    item->TTime = "00:01"_q;
    EXPECT_EQ(QStringList(), found("time-zero"));
    item->TTime = "00:00"_q;
    EXPECT_EQ(QStringList {"error|Schedule of Time|schedule|1|TTime"_q}, found("time-zero"));
    EXPECT_EQ(QStringList {"Item 1, 03/06/25, has a time of 00:00: enter the time, or delete the item."_q},
        said("time-zero"));
    item->TTime = QString(); // can't be computed, which is another rule's finding
    EXPECT_EQ(QStringList(), found("time-zero"));
    item->TTime = "00:00"_q;
    beClaim1A();
    form.ExcludeNonAdvocacy = true;
    EXPECT_EQ(QStringList(), found("time-zero"));
}

TEST_F(CheckSchedule, NoRateForWhatIsBilled)
{
    group->AdvocacyRate = "0.00"_q; // used by no item
    EXPECT_EQ(QStringList(), found("rate-zero"));
    const auto hearing = addDated("01:00", "02/06/25");
    hearing->Advocacy = true;
    EXPECT_EQ(QStringList {"error|Fee Earners / Rates|groups|1|AdvocacyRate"_q}, found("rate-zero"));
    EXPECT_EQ(
        QStringList {"Group A has an advocacy rate of 0.00, which item 2 takes: enter the rate."_q}, said("rate-zero"));
    hearing->TTime = "00:00"_q;
    EXPECT_EQ(QStringList(), found("rate-zero"));
    hearing->TTime = "01:00"_q;
    hearing->UseHourlyRate = true; // uses the hourly rate
    EXPECT_EQ(QStringList(), found("rate-zero"));
    group->AdvocacyRate = "none"_q; // can't be computed
    hearing->UseHourlyRate = false;
    EXPECT_EQ(QStringList(), found("rate-zero"));
}

TEST_F(CheckSchedule, NoRateOfSeveralGroupsByTheirOrder)
{
    const auto second = addEarner("B");
    second->Group()->TravelAndWaitingRate = "0"_q;
    second->Group()->CounselRate = "0"_q;
    for (const char *tick : {"Waiting", "Travel", "Counsel"}) {
        const auto added = claim.addItem(second, "01:00");
        added->dDate = "01/06/25"_q;
        added->field(QString::fromLatin1(tick))->writeBoolean(true);
    }
    group->HourlyRate = "0.00004"_q; // zero at four decimals
    EXPECT_EQ(QStringList({"error|Fee Earners / Rates|groups|1|HourlyRate"_q,
                  "error|Fee Earners / Rates|groups|2|CounselRate"_q,
                  "error|Fee Earners / Rates|groups|2|TravelAndWaitingRate"_q}),
        found("rate-zero"));
}

TEST_F(CheckSchedule, ADayOfMoreThanTwelveHours)
{
    addDated("11:00", "3.6.2025");
    EXPECT_EQ(QStringList(), found("day-hours")); // twelve
    const auto last = addDated("00:01", "03/06/25");
    addDated("05:00", "02/06/25");
    EXPECT_EQ(QStringList {"warning|Schedule of Time|schedule|3|TTime"_q}, found("day-hours"));
    EXPECT_EQ(QStringList {"Fee earner AB has 12:01 hours on 03/06/25, item 3 the last: correct the times or the "
                           "dates."_q},
        said("day-hours"));
    last->TTime = "12:00"_q;
    EXPECT_EQ(QStringList {"warning|Schedule of Time|schedule|3|TTime"_q}, found("day-hours")); // 24:00
    last->TTime = "12:01"_q;
    EXPECT_EQ(QStringList {"error|Schedule of Time|schedule|3|TTime"_q}, found("day-hours"));
    last->TTime = "long"_q;
    EXPECT_EQ(QStringList(), found("day-hours"));
}

TEST_F(CheckSchedule, ADayOfAnotherFeeEarnerOrOfNone)
{
    const auto other = claim.addItem(addEarner("B"), "11:30");
    other->dDate = "03/06/25"_q;
    EXPECT_EQ(QStringList(), found("day-hours"));
    other->FeeEarnerUniqueID = "ID99"_q;
    const auto gone = claim.addItem(feeEarner, "11:30");
    gone->FeeEarnerUniqueID = "ID99"_q;
    gone->dDate = "03/06/25"_q;
    EXPECT_EQ(QStringList(), found("day-hours"));
}

TEST_F(CheckSchedule, DaysStandAtTheirLastItems)
{
    item->TTime = "13:00"_q; // 3 June: items 1 and 4
    addDated("13:00", "02/06/25"); // 2 June: items 2 and 3
    addDated("01:00", "02/06/25");
    addDated("02:00", "03/06/25");
    EXPECT_EQ(
        QStringList({"warning|Schedule of Time|schedule|3|TTime"_q, "warning|Schedule of Time|schedule|4|TTime"_q}),
        found("day-hours"));
}

TEST_F(CheckSchedule, EnteredTwice)
{
    const auto again = addDated("1:00", "3/6/2025");
    EXPECT_EQ(QStringList {"warning|Schedule of Time|schedule|2|"_q}, found("double-entry"));
    EXPECT_EQ(
        QStringList {"Item 2, 03/06/25, equals item 1: delete one, or say what differs."_q}, said("double-entry"));
    addDated("01:00", "03/06/25");
    EXPECT_EQ(2, found("double-entry").size());
    form.DeleteScheduleOfTimeItem(3);
    for (const char *tick : {"Advocacy", "Counsel", "Travel", "Waiting", "UseHourlyRate"}) {
        again->field(QString::fromLatin1(tick))->writeBoolean(true);
        EXPECT_EQ(QStringList(), found("double-entry")) << tick;
        again->field(QString::fromLatin1(tick))->writeBoolean(false);
    }
    for (const auto &[property, text] : {std::pair("Code", "DBL"), std::pair("Description", "call"),
             std::pair("dDate", "02/06/25"), std::pair("TTime", "01:01"), std::pair("FeeEarnerUniqueID", "ID9")}) {
        clsXMLField &field = *again->field(QString::fromLatin1(property));
        const QString before = field.readText();
        field.writeText(QString::fromLatin1(text));
        EXPECT_EQ(QStringList(), found("double-entry")) << property;
        field.writeText(before);
    }
    again->IncludeInEnhancements = true; // not compared
    EXPECT_EQ(1, found("double-entry").size());
}

TEST_F(CheckSchedule, EnteredTwiceWithoutADateOrWithATickThatIsNone)
{
    const auto again = addDated("01:00", "03/06/25");
    setContent(*again, "counsel", "Perhaps");
    EXPECT_EQ(QStringList(), found("double-entry"));
    setContent(*again, "counsel", "False");
    EXPECT_EQ(1, found("double-entry").size());
    again->dDate = QString();
    item->dDate = QString();
    EXPECT_EQ(QStringList(), found("double-entry"));
}

TEST_F(CheckSchedule, LongWithoutADescription)
{
    item->TTime = "02:59"_q;
    EXPECT_EQ(QStringList(), found("long-item"));
    item->TTime = "03:00"_q;
    item->Description = " \r\n "_q;
    EXPECT_EQ(QStringList {"note|Schedule of Time|schedule|1|Description"_q}, found("long-item"));
    EXPECT_EQ(
        QStringList {"Item 1, 03/06/25, takes 03:00 and has no description: say what was done."_q}, said("long-item"));
    item->Description = "Trial"_q;
    EXPECT_EQ(QStringList(), found("long-item"));
    item->Description = QString();
    item->TTime = "long"_q;
    EXPECT_EQ(QStringList(), found("long-item"));
}
