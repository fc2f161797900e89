#include "formdata/mdXMLControl.h"
#include "tests/support/mdTestPrinting.h"

#include <gtest/gtest.h>

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
    // Nobody could give it back: a save writes the root only.
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

TEST(XMLLoadElement, RefusesRubbishOfEveryByte)
{
    QString rubbish;
    for (int i = 0; i < 4096; ++i)
        rubbish += QChar(i * 7919 % 256);
    EXPECT_FALSE(loads(rubbish));
    EXPECT_FALSE(loads(QStringLiteral("<root>") + rubbish));
    EXPECT_FALSE(loads(QString(100, QChar(0))));
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

TEST(XMLElementOutput, KeepsWhatNobodyKnowsToTheLastCharacter)
{
    for (const char *xml :
        {"<root><new x=\"1\" y=\"a b\">  a  b  </new></root>", "<root><!-- note --><a/><!----></root>",
            "<root><new><deep><deeper>&lt;&amp;&gt;</deeper></deep><deep/></new></root>",
            "<root><?target data?></root>", "<root><new>caf\xc3\xa9 \xe2\x82\xac</new></root>"})
        EXPECT_EQ(QString::fromUtf8(xml), roundTrip(xml));
}

TEST(XMLElementOutput, OfNothingIsEmpty)
{
    EXPECT_EQ(QString(), XMLElementOutput({}));
}
