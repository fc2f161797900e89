// An item that caches its elements reads the same as one that searches for them each time, however the tree is changed.

#include "tests/formdata/clsFormTest.h"

#include <algorithm>
#include <random>

namespace {

constexpr int NoElement = clsRunTimeError::ObjectNotSet;

/// All that an item reads, by field; the error number if it can't be read.
QStringList contentsOf(const clsXMLRecord &item)
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

class RecordReading : public clsFormTest {
protected:
    clsZR3Form form;

    /// The only item of a claim loaded from a file, with this element content.
    std::shared_ptr<clsZR3ScheduleOfTimeItem> itemOf(const QByteArray &content)
    {
        const QByteArray claim = "<vzrform><scheduleoftimeitems><scheduleoftimeitem><orderid>1</orderid>" + content
            + "</scheduleoftimeitem></scheduleoftimeitems></vzrform>";
        EXPECT_TRUE(form.LoadXML(put("claim.zr3", claim)));
        return form.ScheduleOfTimeItem(1);
    }
    /// Getting the element may lead to changes, so from then on the item searches for its elements.
    static void expectTheSameBySearch(const clsZR3ScheduleOfTimeItem &item)
    {
        const QStringList known = contentsOf(item);
        item.XMLNode();
        EXPECT_EQ(contentsOf(item), known);
    }
};

} // namespace

TEST_F(RecordReading, FindsTheElementsOfTheFileAndOfTheTemplate)
{
    const auto item = itemOf("<waiting>True</waiting><code>ACT</code>");
    EXPECT_EQ(QStringLiteral("ACT"), item->Code());
    EXPECT_TRUE(item->Waiting());
    EXPECT_FALSE(item->Travel());
    expectTheSameBySearch(*item);
}

TEST_F(RecordReading, OfDoubledElementsTheFirstCounts)
{
    const auto item = itemOf("<code>first</code><ttime>first</ttime><code>last</code><ttime>last</ttime>");
    EXPECT_EQ(QStringLiteral("first"), item->Code());
    item->TTime = QStringLiteral("01:00");
    EXPECT_EQ(QStringLiteral("01:00"), item->TTime());
    expectTheSameBySearch(*item);
    EXPECT_TRUE(item->XMLOutput().contains(QStringLiteral("<ttime>last</ttime>")));
}

TEST_F(RecordReading, AnElementThatNoTemplateHasIsTheObjectErrorUntilItIsThere)
{
    const auto item = itemOf({});
    EXPECT_EQ(NoElement, errorOf([&] { item->TypeOfCase(); }));
    EXPECT_EQ(NoElement, errorOf([&] { item->TypeOfCase = 1; }));
    item->XMLNode().append_child("typeofcase").text().set("7");
    EXPECT_EQ(7, item->TypeOfCase());
    EXPECT_EQ(7, itemOf("<typeofcase>7</typeofcase>")->TypeOfCase());
}

TEST_F(RecordReading, TheOrderOfTheElementsAndStrangersAmongThemMakeNoDifference)
{
    std::vector<QByteArray> elements = {"<!-- code -->", "<?code?>", "<stranger>?</stranger>", "<codes>?</codes>"};
    const auto complete = itemOf({});
    for (const clsXMLPropertyPlace &place : complete->properties())
        if (const QByteArray name = place.property->element; name != "orderid")
            elements.push_back('<' + name + '>' + name.toUpper() + "</" + name + '>');
    std::mt19937 random(1);
    for (int n = 0; n < 60; ++n) {
        std::shuffle(elements.begin(), elements.end(), random);
        QByteArray content;
        for (size_t i = 0; i < elements.size() - size_t(n % 5); ++i) // some are missing now and then
            content += elements[i];
        expectTheSameBySearch(*itemOf(content));
    }
}

TEST_F(RecordReading, SeesWhatIsWrittenByWhomever)
{
    const auto item = itemOf("<code>ACT</code>");
    item->Code = QStringLiteral("DOC");
    EXPECT_EQ(QStringLiteral("DOC"), item->Code());
    item->Code = QString();
    EXPECT_EQ(QString(), item->Code());
    item->Code = QStringLiteral("ACT");
    expectTheSameBySearch(*item);
    setContentOf(item->XMLNode(), "code", "HRG");
    EXPECT_EQ(QStringLiteral("HRG"), item->Code());
}

TEST_F(RecordReading, FollowsEveryChangeByWhoeverHasTheElementTheListOrTheClaim)
{
    using Give = pugi::xml_node (*)(clsZR3Form &);
    const Give ways[] = {[](clsZR3Form &claim) { return claim.ScheduleOfTimeItem(1)->XMLNode(); },
        [](clsZR3Form &claim) { return claim.XMLScheduleOfTimeItemsNode().first_child(); },
        [](clsZR3Form &claim) { return claim.XMLNode().child("scheduleoftimeitems").first_child(); }};
    for (const Give give : ways) {
        const auto item = itemOf("<code>ACT</code><ttime>01:00</ttime>");
        pugi::xml_node node = give(form);
        EXPECT_EQ(QStringLiteral("ACT"), item->Code());
        node.remove_child("code");
        EXPECT_EQ(NoElement, errorOf([&] { item->Code(); }));
        EXPECT_EQ(NoElement, errorOf([&] { item->Code = QStringLiteral("DOC"); }));
        node.append_child("code").text().set("HRG");
        EXPECT_EQ(QStringLiteral("HRG"), item->Code());
        node.prepend_child("code").text().set("DPL");
        EXPECT_EQ(QStringLiteral("DPL"), item->Code());
        node.child("ttime").set_name("other");
        EXPECT_EQ(NoElement, errorOf([&] { item->TTime(); }));
        node.remove_children();
        EXPECT_EQ(NoElement, errorOf([&] { item->OrderID(); }));
    }
}

TEST_F(RecordReading, AnItemAddedOrRenderedLaterFollowsThemToo)
{
    pugi::xml_node list = form.XMLScheduleOfTimeItemsNode();
    const auto added = form.AddScheduleOfTimeItem();
    EXPECT_EQ(QString(), added->Code());
    list.first_child().remove_child("code");
    EXPECT_EQ(NoElement, errorOf([&] { added->Code(); }));
    form.RenderScheduleOfTimeItems();
    const auto rendered = form.ScheduleOfTimeItem(1);
    EXPECT_EQ(QString(), rendered->Code()); // it is complete again
    list.first_child().remove_child("code");
    EXPECT_EQ(NoElement, errorOf([&] { rendered->Code(); }));
}

TEST_F(RecordReading, AnItemThatIsTakenOutReadsItsOwnElement)
{
    const auto item = itemOf("<code>ACT</code>");
    EXPECT_EQ(QStringLiteral("ACT"), item->Code());
    form.DeleteScheduleOfTimeItem(1);
    EXPECT_EQ(QStringLiteral("ACT"), item->Code());
    item->Code = QStringLiteral("DOC");
    EXPECT_EQ(QStringLiteral("DOC"), item->Code());
    expectTheSameBySearch(*item);
    item->XMLNode().remove_child("code");
    EXPECT_EQ(NoElement, errorOf([&] { item->Code(); }));
}

TEST_F(RecordReading, AnItemOfAListThatWasMadeAnewHasNoElement)
{
    const auto item = itemOf("<code>ACT</code>");
    EXPECT_EQ(QStringLiteral("ACT"), item->Code());
    form.RenderScheduleOfTimeItems();
    EXPECT_EQ(NoElement, errorOf([&] { item->Code(); }));
    EXPECT_EQ(QStringLiteral("ACT"), form.ScheduleOfTimeItem(1)->Code());
}
