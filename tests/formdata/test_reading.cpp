// A record whose elements are found by one walk reads as one whose elements are found one by one.

#include "formdata/clsXMLReading.h"
#include "tests/formdata/clsFormTest.h"

namespace {

constexpr int NoElement = clsRunTimeError::ObjectNotSet;

/// All that an item reads, by its fields; the number of the error where it can't be read.
QStringList contentsOf(const clsZR3ScheduleOfTimeItem &item)
{
    QStringList contents;
    for (const clsXMLPropertyPlace &place : item.properties()) {
        const clsXMLField *field = item.field(QString::fromLatin1(place.property->name));
        const char *content = "";
        const int error = errorOf([&] { content = field->content(); });
        contents << QString::fromLatin1(place.property->name) + u'='
                + (error ? QString::number(error) : QString::fromUtf8(content));
    }
    return contents;
}

class RecordReading : public testing::Test {
protected:
    clsZR3Form form;
    clsZR3ScheduleOfTimeItem &item = *form.AddScheduleOfTimeItem();
    pugi::xml_node node = item.XMLNode();

    void SetUp() override
    {
        item.Code = QStringLiteral("ACT");
        item.TTime = QStringLiteral("01:30");
        item.Waiting = true;
    }
    void expectTheSame() const
    {
        const QStringList oneByOne = contentsOf(item);
        const clsXMLReading reading(item);
        EXPECT_EQ(oneByOne, contentsOf(item));
    }
};

} // namespace

TEST_F(RecordReading, FindsTheElementsOfTheTemplate)
{
    expectTheSame();
    const clsXMLReading reading(item);
    EXPECT_EQ(QStringLiteral("ACT"), item.Code());
    EXPECT_TRUE(item.Waiting());
}

TEST_F(RecordReading, OfDoubledElementsTheFirstCounts)
{
    node.append_child("code").text().set("last");
    node.prepend_child("ttime").text().set("first");
    expectTheSame();
    const clsXMLReading reading(item);
    EXPECT_EQ(QStringLiteral("ACT"), item.Code());
    EXPECT_EQ(QStringLiteral("first"), item.TTime());
}

TEST_F(RecordReading, AMissingElementIsTheObjectError)
{
    node.remove_child("code");
    node.remove_child("enhancementuniqueid");
    expectTheSame();
    const clsXMLReading reading(item);
    EXPECT_EQ(NoElement, errorOf([this] { item.Code(); }));
    EXPECT_EQ(NoElement, errorOf([this] { item.Code = QStringLiteral("new"); }));
    EXPECT_EQ(QStringLiteral("01:30"), item.TTime());
}

TEST_F(RecordReading, TheOrderOfTheElementsAndStrangersAmongThemMakeNoDifference)
{
    for (int n = 0; n < 40; ++n) {
        // The second element goes to the front and the third to the end, until all have been everywhere.
        node.prepend_move(node.first_child().next_sibling());
        node.append_move(node.first_child().next_sibling().next_sibling());
        if (n % 10 == 0)
            node.prepend_child("stranger").text().set("?");
        if (n % 10 == 5)
            node.append_child(pugi::node_comment).set_value("code");
        expectTheSame();
    }
}

TEST_F(RecordReading, SeesWhatIsWrittenMeanwhile)
{
    const clsXMLReading reading(item);
    item.Code = QStringLiteral("DOC");
    EXPECT_EQ(QStringLiteral("DOC"), item.Code());
    node.child("code").text().set("HRG");
    EXPECT_EQ(QStringLiteral("HRG"), item.Code());
    item.Code = QString();
    EXPECT_EQ(QString(), item.Code());
}

TEST_F(RecordReading, EndsWithItself)
{
    {
        const clsXMLReading reading(item);
        EXPECT_EQ(QStringLiteral("ACT"), item.Code());
    }
    node.remove_child("code");
    EXPECT_EQ(NoElement, errorOf([this] { item.Code(); }));
    EXPECT_EQ(QStringLiteral("01:30"), item.TTime());
}

TEST_F(RecordReading, IsOfItsOwnRecordOnly)
{
    clsZR3ScheduleOfTimeItem &other = *form.AddScheduleOfTimeItem();
    other.Code = QStringLiteral("DOC");
    const clsXMLReading reading(item);
    EXPECT_EQ(QStringLiteral("DOC"), other.Code());
    {
        const clsXMLReading inner(other);
        EXPECT_EQ(QStringLiteral("DOC"), other.Code());
        EXPECT_EQ(QStringLiteral("ACT"), item.Code());
    }
    EXPECT_EQ(QStringLiteral("ACT"), item.Code());
}

TEST_F(RecordReading, ARecordThatGetsAnotherElementReadsThat)
{
    const auto owned = form.ScheduleOfTimeItem(1);
    const clsXMLReading reading(item);
    form.DeleteScheduleOfTimeItem(1);
    EXPECT_EQ(QStringLiteral("ACT"), item.Code());
    item.Code = QStringLiteral("DOC");
    EXPECT_EQ(QStringLiteral("DOC"), item.Code());
}

TEST_F(RecordReading, OfARecordOfManyFieldsIsNone)
{
    const clsXMLReading reading(form);
    form.FormType = QStringLiteral("Claim1A");
    EXPECT_EQ(QStringLiteral("Claim1A"), form.FormType());
}
