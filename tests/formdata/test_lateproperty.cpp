// Access to items' properties by name, without knowing their classes.

#include "formdata/mdLateProperty.h"
#include "formdata/mdReadDerived.h"
#include "tests/formdata/clsTestClaim.h"

namespace {

/// A record with one derived property of each kind.
class clsDerivedRecord : public clsXMLRecord {
public:
    static std::span<const clsXMLDerivedProperty> DerivedProperties()
    {
        static constexpr clsXMLDerivedProperty table[] = {
            {"Number", &mdReadDerived<&clsDerivedRecord::Number>},
            {"IsOdd", &mdReadDerived<&clsDerivedRecord::IsOdd>},
            {"Greeting", &mdReadDerived<&clsDerivedRecord::Greeting>},
        };
        return table;
    }
    clsDerivedRecord()
        : clsXMLRecord(clsXMLPropertyTable::of<clsDerivedRecord>())
    { }
    int Number = 7;
    bool IsOdd() const { return Number % 2 != 0; }
    QString Greeting(const QString &name) const { return "Hello "_q + name; }
};

} // namespace

TEST(LateProperty, StoredPropertiesReadAsTextByTheirKind)
{
    clsTestClaim claim;
    const auto group = claim.addGroup("47.25");
    group->Reference = "P&R <x>"_q;
    group->Enhance = true;
    EXPECT_EQ("P&R <x>"_q, ReadProperty(*group, u"Reference"));
    EXPECT_EQ("47.25"_q, ReadProperty(*group, u"HourlyRate"));
    EXPECT_EQ("True"_q, ReadProperty(*group, u"Enhance"));
    EXPECT_EQ("False"_q, ReadProperty(*group, u"EnhanceComms"));
    EXPECT_EQ("1"_q, ReadProperty(*group, u"OrderID"));
}

TEST(LateProperty, ABooleanOfAnotherSpellingReadsAsOneOfTheTwoWords)
{
    clsTestClaim claim;
    const auto group = claim.addGroup();
    group->XMLNode().child("enhance").text().set("tRUE");
    EXPECT_EQ("True"_q, ReadProperty(*group, u"Enhance"));
    group->XMLNode().child("enhance").text().set("0");
    EXPECT_EQ("False"_q, ReadProperty(*group, u"Enhance"));
}

TEST(LateProperty, CapitalsOfTheNameDoNotMatter)
{
    clsTestClaim claim;
    const auto item = claim.addItem(claim.addFeeEarner(claim.addGroup()), "01:30");
    item->dDate = "02/03/26"_q;
    EXPECT_EQ("02/03/26"_q, ReadProperty(*item, u"DDate"));
    EXPECT_EQ("02/03/26"_q, ReadProperty(*item, u"dDate"));
    EXPECT_EQ("20260302"_q, ReadProperty(*item, u"ddateserial"));
}

TEST(LateProperty, DerivedPropertiesOfTheListsRead)
{
    clsTestClaim claim;
    const auto group = claim.addGroup();
    group->Reference = "PTR"_q;
    const auto feeEarner = claim.addFeeEarner(group, "MO");
    feeEarner->Calls = 3;
    feeEarner->LettersIn = 4;
    feeEarner->LettersOut = 5;
    const auto item = claim.addItem(feeEarner, "01:30", "DST");
    item->SOTItemNumber = 12;
    const auto hearing = claim.addFASItem(2, "10.00", "0.00");
    hearing->dDate = "31/12/29"_q;
    EXPECT_EQ("PTR"_q, ReadProperty(*feeEarner, u"GroupReference"));
    EXPECT_EQ("3"_q, ReadProperty(*group, u"Calls"));
    EXPECT_EQ("4"_q, ReadProperty(*group, u"LettersIn"));
    EXPECT_EQ("5"_q, ReadProperty(*group, u"LettersOut"));
    EXPECT_EQ("3"_q, ReadProperty(*feeEarner, u"Calls"));
    EXPECT_EQ("MO"_q, ReadProperty(*item, u"FeeEarnerReference"));
    EXPECT_EQ("MO"_q, ReadProperty(*item, u"FeeEarnerInitials"));
    EXPECT_EQ("1"_q, ReadProperty(*item, u"TimeColumn"));
    EXPECT_EQ("12"_q, ReadProperty(*item, u"SOTItemNumber"));
    EXPECT_EQ("20291231"_q, ReadProperty(*hearing, u"DDateSerial"));
}

TEST(LateProperty, AnUnknownNameIsItsOwnError)
{
    clsTestClaim claim;
    const auto group = claim.addGroup();
    for (const QString &name : {"Surname"_q, ""_q, "Reference "_q, "GroupReference"_q, "TimeColumn"_q}) {
        EXPECT_EQ(438, errorOf([&] { ReadProperty(*group, name); })) << name.toStdString();
        EXPECT_EQ(438, errorOf([&] { WriteProperty(*group, name, "1"_q); })) << name.toStdString();
    }
    EXPECT_EQ("Object doesn't support this property or method"_q, clsRunTimeError(438).description());
}

TEST(LateProperty, APropertysOwnErrorComesThrough)
{
    clsTestClaim claim;
    const auto item = claim.form.AddScheduleOfTimeItem();
    EXPECT_EQ(91, errorOf([&] { ReadProperty(*item, u"FeeEarnerReference"); }));
    item->XMLNode().child("travel").text().set("perhaps");
    EXPECT_EQ(13, errorOf([&] { ReadProperty(*item, u"Travel"); }));
}

TEST(LateProperty, WritesStoredPropertiesByTheirKindAndNoDerivedOnes)
{
    clsTestClaim claim;
    const auto group = claim.addGroup();
    WriteProperty(*group, u"orderid", "5"_q);
    WriteProperty(*group, u"Reference", "A&B"_q);
    WriteProperty(*group, u"Enhance", "True"_q);
    EXPECT_EQ(5, group->OrderID());
    EXPECT_EQ("A&B"_q, group->Reference());
    EXPECT_TRUE(group->Enhance());
    EXPECT_EQ(group, claim.form.FeeEarnerGroupByOrderID(5));
    EXPECT_EQ(13, errorOf([&] { WriteProperty(*group, u"OrderID", "five"_q); }));
    EXPECT_EQ(13, errorOf([&] { WriteProperty(*group, u"Enhance", "perhaps"_q); }));
    EXPECT_EQ(438, errorOf([&] { WriteProperty(*group, u"Calls", "1"_q); }));
}

TEST(LateProperty, AnArgumentGoesToThePropertyThatTakesOne)
{
    const clsDerivedRecord record;
    EXPECT_EQ("Hello you"_q, ReadProperty(record, u"greeting", "you"_q));
    EXPECT_EQ("Hello "_q, ReadProperty(record, u"greeting", QString()));
    EXPECT_EQ("7"_q, ReadProperty(record, u"Number"));
    EXPECT_EQ("True"_q, ReadProperty(record, u"IsOdd"));
    EXPECT_EQ(449, errorOf([&] { ReadProperty(record, u"Greeting"); }));
    EXPECT_EQ(450, errorOf([&] { ReadProperty(record, u"Number", "x"_q); }));
    EXPECT_EQ(450, errorOf([&] { ReadProperty(record, u"IsOdd", "x"_q); }));
    clsTestClaim claim;
    EXPECT_EQ(450, errorOf([&] { ReadProperty(*claim.addGroup(), u"Reference", "x"_q); }));
}
