#include "formdata/mdXMLControl.h"
#include "formdata/mdXMLTemplate.h"
#include "tests/support/mdTestPrinting.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <iterator>

namespace {

bool loads(const QString &xml)
{
    return bool(XMLLoadElement(xml, "root"));
}

QString roundTrip(const char *xml)
{
    return XMLElementOutput(XMLLoadElement(QString::fromUtf8(xml), "root").node());
}

QString nested(int depth)
{
    return QStringLiteral("<root>") + QStringLiteral("<a>").repeated(depth) + QStringLiteral("</a>").repeated(depth)
        + QStringLiteral("</root>");
}

} // namespace

TEST(XMLLoadElement, ReturnsTheElementOfThatName)
{
    const clsXMLElement element = XMLLoadElement(QStringLiteral("<root><a>1</a></root>"), "root");
    ASSERT_TRUE(element);
    EXPECT_STREQ("root", element.node().name());
    EXPECT_STREQ("1", element.node().child_value("a"));
}

TEST(XMLLoadElement, TheElementKeepsItsDocumentAlive)
{
    clsXMLElement kept;
    {
        const clsXMLElement element = XMLLoadElement(QStringLiteral("<root><a>1</a></root>"), "root");
        kept = element;
    }
    EXPECT_STREQ("1", kept.node().child_value("a"));
}

TEST(XMLLoadElement, ReturnsNothingForWhatIsNoXmlOrHasAnotherRoot)
{
    for (const char *xml :
        {"", " ", "\r\n", "root", "<", "<root", "<root>", "<root><a></root>", "<root></Root>", "<other/>", "<Root/>",
            "<other><root/></other>", "<roots/>", "<!-- <root/> -->", "&lt;root/&gt;", "{\"root\": 1}", "</root>"})
        EXPECT_FALSE(loads(QString::fromUtf8(xml))) << xml;
}

TEST(XMLLoadElement, ReturnsNothingForWhatFollowsOrPrecedesTheRoot)
{
    // It would be lost: a save writes only the root.
    for (const char *xml : {"<root/>rubbish", "rubbish<root/>", "<root/><root/>", "<root/><other/>", "<root/></root>"})
        EXPECT_FALSE(loads(QString::fromUtf8(xml))) << xml;
}

TEST(XMLLoadElement, TakesADeclarationAndWhiteSpaceAroundTheRoot)
{
    EXPECT_TRUE(loads(QStringLiteral("<?xml version=\"1.0\"?>\r\n<root/>\r\n")));
    EXPECT_TRUE(loads(QStringLiteral("<!-- kept by hand --><root/>")));
}

TEST(XMLLoadElement, RefusesNestingThatNoProgramCanHaveWritten)
{
    EXPECT_TRUE(loads(nested(100)));
    EXPECT_FALSE(loads(nested(100'000)));
}

TEST(XMLLoadElement, RefusesMoreItemsThanAnyBillHas)
{
    // Short in the file, but each would become several kilobytes when brought up to date.
    const QString list = QStringLiteral("<root><list>%1</list></root>");
    EXPECT_TRUE(loads(list.arg(QStringLiteral("<item/>").repeated(100'000))));
    EXPECT_FALSE(loads(list.arg(QStringLiteral("<item/>").repeated(100'001))));
}

TEST(XMLLoadElement, TakesAsManyItemsWithAllTheirElementsAsASaveWritesThem)
{
    // As many elements as the longest kind has, with short names.
    std::ptrdiff_t count = 0;
    for (const char *name :
        {"xmlZR3Counsel", "xmlZR3Disbursement", "xmlZR3Enhancement", "xmlZR3ExpertInvoice", "xmlZR3FASItem",
            "xmlZR3FeeEarner", "xmlZR3FeeEarnerGroup", "xmlZR3JointInstruction", "xmlZR3ScheduleOfTimeItem"}) {
        const auto elements = mdXMLTemplate(name).children();
        count = std::max(count, std::distance(elements.begin(), elements.end()));
    }
    ASSERT_EQ(15, count);
    const QString item = QStringLiteral("<i>%1</i>").arg(QStringLiteral("<e>1</e>").repeated(count));
    EXPECT_TRUE(loads(QStringLiteral("<root><list>%1</list></root>").arg(item.repeated(100'000))));
}

TEST(XMLLoadElement, RefusesRubbishOfEveryByte)
{
    QString rubbish;
    for (int i = 0; i < 4096; ++i)
        rubbish += QChar(i * 7919 % 256);
    EXPECT_FALSE(loads(rubbish));
    EXPECT_FALSE(loads(QStringLiteral("<root>") + rubbish));
    EXPECT_FALSE(loads(QString(100, QChar(0))));
}

TEST(XMLLoadElement, ReadsUtf8AsItReadsText)
{
    const QString xml = QString::fromUtf8("<root a=\"\xc2\xa3\">caf\xc3\xa9</root>");
    EXPECT_EQ(xml, XMLElementOutput(XMLLoadElement(xml.toUtf8(), "root").node()));
    EXPECT_FALSE(XMLLoadElement(QByteArray("<root/>\0", 8), "root"));
    EXPECT_FALSE(XMLLoadElement(QByteArray(), "root"));
    // A byte array that somebody else holds too is not changed by parsing it.
    const QByteArray shared("<root>&lt;</root>");
    const clsXMLElement element = XMLLoadElement(shared, "root");
    EXPECT_STREQ("<", element.node().child_value());
    EXPECT_EQ(QByteArray("<root>&lt;</root>"), shared);
}

TEST(XMLSetContent, TakesThePlaceOfTheTextAndLeavesNothingWhereItIsEmpty)
{
    struct {
        const char *before, *content, *after;
    } const rows[] = {
        {"<a/>", "new", "<a>new</a>"},
        {"<a>old</a>", "new", "<a>new</a>"},
        {"<a>old</a>", "", "<a/>"},
        {"<a/>", "", "<a/>"},
        {"<a>old<b/>more</a>", "new", "<a>new<b/>more</a>"},
        {"<a>old<b/>more</a>", "", "<a/>"},
        {"<a><!-- note -->old</a>", "new", "<a><!-- note -->new</a>"},
        {"<a><!-- note -->old</a>", "", "<a/>"},
        {"<a><!-- note --></a>", "new", "<a><!-- note -->new</a>"},
        {"<a><![CDATA[old]]></a>", "", "<a/>"},
    };
    for (const auto &row : rows) {
        const clsXMLElement element
            = XMLLoadElement(QStringLiteral("<root>%1</root>").arg(QLatin1String(row.before)), "root");
        const pugi::xml_node node = element.node().first_child();
        XMLSetContent(node, row.content);
        EXPECT_EQ(QString::fromUtf8(row.after), XMLElementOutput(node)) << row.before;
        EXPECT_STREQ(row.content, node.child_value()) << row.before;
        // A second write works, whatever the first has left.
        XMLSetContent(node, "last");
        EXPECT_STREQ("last", node.child_value()) << row.before;
        XMLSetContent(node, "");
        EXPECT_EQ(QStringLiteral("<a/>"), XMLElementOutput(node)) << row.before;
    }
}

TEST(XMLElementOutput, TheSameTreeGivesTheSameText)
{
    const clsXMLElement element = XMLLoadElement(QStringLiteral("<root><a>1</a><b/></root>"), "root");
    EXPECT_EQ(QStringLiteral("<root><a>1</a><b/></root>"), XMLElementOutput(element.node()));
    EXPECT_EQ(XMLElementOutput(element.node()), XMLElementOutput(element.node()));
}

TEST(XMLElementOutput, DropsWhiteSpaceBetweenElements)
{
    EXPECT_EQ(
        QStringLiteral("<root><a>1</a><b/></root>"), roundTrip("<root>\r\n\t<a>1</a>\r\n  <b></b>\r\n</root>\r\n"));
}

TEST(XMLElementOutput, DropsBlanksHoweverTheyAreWritten)
{
    EXPECT_EQ(QStringLiteral("<root><a/><b/><c> 1 </c></root>"),
        roundTrip("<root><a>&#32;&#9;</a>&#10;<b>&#13;</b><c>&#32;1&#32;</c></root>"));
    // Beside content that stays as well as alone, and a text that ends before it begins.
    EXPECT_EQ(QStringLiteral("<root><a><!-- note --><b/></a><c><b/></c><d/></root>"),
        roundTrip("<root><a>&#32;<!-- note -->&#9;<b/></a><c><b/>&#32;</c><d>&#0;</d></root>"));
}

TEST(XMLElementOutput, KeepsWhatNobodyKnowsToTheLastCharacter)
{
    for (const char *xml :
        {"<root><new x=\"1\" y=\"a b\">  a  b  </new></root>", "<root><!-- note --><a/><!----></root>",
            "<root><new><deep><deeper>&lt;&amp;&gt;</deeper></deep><deep/></new></root>",
            "<root><?target data?></root>", "<root><new>caf\xc3\xa9 \xe2\x82\xac</new></root>"})
        EXPECT_EQ(QString::fromUtf8(xml), roundTrip(xml));
}

TEST(XMLElementOutput, KeepsTextAmongElementsInItsPlace)
{
    for (const char *xml : {"<root><a>one<b/>two<c>three</c>four</a></root>", "<root><a><!-- note -->one</a></root>",
             "<root><a>one<![CDATA[two]]></a></root>", "<root>one<a/></root>"})
        EXPECT_EQ(QString::fromUtf8(xml), roundTrip(xml));
}

TEST(XMLElementOutput, PutsCharactersOfManyBytesTogetherWhereverTheWriterCutsThem)
{
    for (const char *content : {"\xe2\x82\xac", "a\xe2\x82\xac", "\xc3\xa9", "a\xc3\xa9"}) {
        const QString xml = QStringLiteral("<root>%1</root>")
                                .arg(QStringLiteral("<a>%1</a>").arg(QString::fromUtf8(content)).repeated(10'000));
        EXPECT_EQ(xml, XMLElementOutput(XMLLoadElement(xml, "root").node()));
    }
}

TEST(XMLElementOutput, OfNothingIsEmpty)
{
    EXPECT_EQ(QString(), XMLElementOutput({}));
}

TEST(XMLElementOutput, WhatTheCodePageLacksStaysAReference)
{
    // We never save such characters, but files from elsewhere may contain them: saving would turn the first into
    // question marks, and the next parser would turn the last into a line feed.
    EXPECT_EQ(QString::fromUtf8("<root>\u20ac&#20013;&#128512;&#128;&#13;\n</root>"),
        roundTrip("<root>&#8364;&#20013;&#x1F600;&#128;&#13;&#10;</root>"));
    EXPECT_EQ(QStringLiteral("<root a=\"&#20013;&#13;\"/>"), roundTrip("<root a=\"&#20013;&#13;\"/>"));
    // In these, a reference is not interpreted.
    const char *raw = "<root><?note a\r\nb?><!-- <? --><![CDATA[<!--]]><a>&#13;</a>x&#13;</root>";
    EXPECT_EQ(QStringLiteral("<root><?note a\r\nb?><!-- <? --><![CDATA[<!--]]><a/>x&#13;</root>"), roundTrip(raw));
}
