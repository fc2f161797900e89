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

TEST(XMLLoadElement, RefusesMoreItemsThanAnyBillHas)
{
    // Short in the file, each would come to some kilobytes once it is brought up to date.
    const QString list = QStringLiteral("<root><list>%1</list></root>");
    EXPECT_TRUE(loads(list.arg(QStringLiteral("<item/>").repeated(250'000))));
    EXPECT_FALSE(loads(list.arg(QStringLiteral("<item/>").repeated(250'001))));
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

TEST(XMLElementOutput, DropsBlanksHoweverTheyAreWritten)
{
    EXPECT_EQ(QStringLiteral("<root><a/><b/><c> 1 </c></root>"),
        roundTrip("<root><a>&#32;&#9;</a>&#10;<b>&#13;</b><c>&#32;1&#32;</c></root>"));
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

TEST(XMLElementOutput, WhatTheCodePageLacksStaysAReference)
{
    // No save of ours writes such characters, but a file by another hand may hold them: a save would make question
    // marks of the first, and the next parser a line feed of the last.
    EXPECT_EQ(QString::fromUtf8("<root>\u20ac&#20013;&#128512;&#128;&#13;\n</root>"),
        roundTrip("<root>&#8364;&#20013;&#x1F600;&#128;&#13;&#10;</root>"));
    EXPECT_EQ(QStringLiteral("<root a=\"&#20013;&#13;\"/>"), roundTrip("<root a=\"&#20013;&#13;\"/>"));
    // In these a reference would be no reference.
    const char *raw = "<root><?note a\r\nb?><!-- <? --><![CDATA[<!--]]><a>&#13;</a>x&#13;</root>";
    EXPECT_EQ(QStringLiteral("<root><?note a\r\nb?><!-- <? --><![CDATA[<!--]]><a/>x&#13;</root>"), roundTrip(raw));
}
