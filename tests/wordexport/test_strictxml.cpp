#include "wordexport/document/mdStrictXml.h"

#include "wordexport/document/mdWordXml.h"

#include <QStringEncoder>

#include <gtest/gtest.h>

// What the strict reader accepts and refuses. The layer's parser accepts half of what it refuses.

namespace {

struct Row {
    const char *what;
    QByteArray xml;
};

QByteArray utf16(const QString &text)
{
    QStringEncoder encoder(QStringConverter::Utf16LE, QStringConverter::Flag::WriteBom);
    return encoder(text);
}

const Row Sound[] = {
    {"everything",
        "<?xml version=\"1.0\" encoding=\"UTF-8\" standalone=\"yes\"?>\r\n<!-- a --><a xmlns:w=\"u\" w:x=\"1\" "
        "x='2' xml:space=\"preserve\">\t&amp;&lt;&gt;&quot;&apos;&#65;&#x1F600;<?p i?><w:b/><![CDATA[<&]]]></a >\n"
        "<!-- b --><?p?>\n"},
    {"a byte order mark", "\xEF\xBB\xBF<a/>"},
    {"UTF-16", utf16(QStringLiteral("<?xml version=\"1.0\" encoding=\"UTF-16\"?><a>é</a>"))},
    {"an encoding in small letters", "<?xml version=\"1.0\" encoding=\"utf-8\"?><a/>"},
    {"letters of the world in names", "<\xC3\xA9t\xC3\xA9 \xC3\xA9=\"1\"/>"},
    {"a prefix for the children alone", "<a xmlns:x=\"u\"><x:b xmlns:x=\"v\"/><x:c/></a>"},
    {"two attributes of one name and two namespaces", "<a xmlns:x=\"u\" xmlns:y=\"v\" x:b=\"1\" y:b=\"2\" b=\"3\"/>"},
    {"a default namespace that ends", "<a xmlns=\"u\"><b xmlns=\"\"/></a>"},
    {"a greater-than sign in an attribute", "<a b=\">\"/>"},
};

const Row Refused[] = {
    {"nothing", ""},
    {"blanks alone", " \n"},
    {"no root", "<?xml version=\"1.0\"?><!-- a -->"},
    {"half of a document", "<a><b></b>"},
    {"half of a tag", "<a><b"},
    {"a wrong end", "<a></b>"},
    {"an attribute twice", "<a b=\"1\" b=\"2\"/>"},
    {"an attribute twice under two prefixes", "<a xmlns:x=\"u\" xmlns:y=\"u\" x:b=\"1\" y:b=\"2\"/>"},
    {"a prefix declared twice", "<a xmlns:x=\"u\" xmlns:x=\"v\"/>"},
    {"a default namespace declared twice", "<a xmlns=\"u\" xmlns=\"v\"/>"},
    {"an attribute without blanks before it", "<a b=\"1\"c=\"2\"/>"},
    {"an attribute without a value", "<a b/>"},
    {"an attribute without quotation marks", "<a b=1/>"},
    {"an element's prefix that is not declared", "<x:a/>"},
    {"an attribute's prefix that is not declared", "<a x:b=\"1\"/>"},
    {"a prefix beyond its element", "<a><b xmlns:x=\"u\"/><x:c/></a>"},
    {"a prefix for nothing", "<a xmlns:x=\"\"/>"},
    {"a prefix with another meaning than its fixed one", "<a xmlns:xml=\"u\"/>"},
    {"a name with two colons", "<a xmlns:x=\"u\"><x:b:c/></a>"},
    {"a name that ends with a colon", "<a xmlns:x=\"u\"><x:/></a>"},
    {"a name that begins with a digit", "<1a/>"},
    {"an attribute that begins with a digit after its prefix", "<a xmlns:x=\"u\" x:1=\"1\"/>"},
    {"a sign in a name", "<a\xC3\x97/>"},
    {"a control character in a text", "<a>\x01</a>"},
    {"a control character in an attribute", "<a b=\"\x02\"/>"},
    {"a control character in a comment", "<a><!--\x1F--></a>"},
    {"a control character in an instruction", "<a><?p \x01?></a>"},
    {"a control character in a marked section", "<a><![CDATA[\x01]]></a>"},
    {"a character of nought", QByteArray("<a>x\0y</a>", 10)},
    {"a character of nought at the end", QByteArray("<a/>\0", 5)},
    {"a character that is none", "<a>\xEF\xBF\xBE</a>"},
    {"a reference to a control character", "<a>&#1;</a>"},
    {"a reference to nought", "<a b=\"&#0;\"/>"},
    {"a reference to half of a pair", "<a>&#xD800;</a>"},
    {"a reference beyond the last character", "<a>&#x110000;</a>"},
    {"a reference beyond all numbers", "<a>&#4294967361;</a>"},
    {"a reference without a number", "<a>&#;</a>"},
    {"an entity that is not declared", "<a>&nbsp;</a>"},
    {"an ampersand in a text", "<a>a & b</a>"},
    {"an ampersand in an attribute", "<a b=\"a & b\"/>"},
    {"an ampersand without its end", "<a>&amp</a>"},
    {"a less-than sign in an attribute", "<a b=\"<\"/>"},
    {"the end of a marked section in a text", "<a>]]></a>"},
    {"two hyphens in a comment", "<a><!-- a -- b --></a>"},
    {"a comment of three hyphens at its end", "<a><!-- a ---></a>"},
    {"bytes that are not UTF-8", "<a>\xC3\x28</a>"},
    {"bytes that are not UTF-8 in a comment", "<a><!--\xFF--></a>"},
    {"half of a character at the end", "<a/> \xC3"},
    {"half of a pair as UTF-8", "<a>\xED\xA0\x80</a>"},
    {"half of a pair in UTF-16", utf16(QStringLiteral("<a>%1</a>").arg(QChar(0xD800)))},
    {"half of a character in UTF-16", utf16(QStringLiteral("<a/>")) + ' '},
    {"UTF-16 without its mark", utf16(QStringLiteral("<a/>")).mid(2)},
    {"two byte order marks", "\xEF\xBB\xBF\xEF\xBB\xBF<a/>"},
    {"an encoding of the format's strangers", "<?xml version=\"1.0\" encoding=\"ISO-8859-1\"?><a/>"},
    {"an encoding that nothing knows", "<?xml version=\"1.0\" encoding=\"none\"?><a/>"},
    {"another encoding than its own", "<?xml version=\"1.0\" encoding=\"UTF-16\"?><a/>"},
    {"another encoding than its own in UTF-16",
        utf16(QStringLiteral("<?xml version=\"1.0\" encoding=\"UTF-8\"?><a/>"))},
    {"a declaration without a version", "<?xml encoding=\"UTF-8\"?><a/>"},
    {"a declaration in the wrong order", "<?xml version=\"1.0\" standalone=\"yes\" encoding=\"UTF-8\"?><a/>"},
    {"a declaration with a word of its own", "<?xml version=\"1.0\" word=\"1\"?><a/>"},
    {"a declaration in capitals", "<?XML version=\"1.0\"?><a/>"},
    {"a declaration after a blank", " <?xml version=\"1.0\"?><a/>"},
    {"a declaration after a comment", "<!-- a --><?xml version=\"1.0\"?><a/>"},
    {"a declaration twice", "<?xml version=\"1.0\"?><?xml version=\"1.0\"?><a/>"},
    {"a declaration within", "<a><?xml version=\"1.0\"?></a>"},
    {"text before the root", "a<a/>"},
    {"text after the root", "<a/>a"},
    {"a reference after the root", "<a/>&#32;"},
    {"a marked section after the root", "<a/><![CDATA[a]]>"},
    {"a second root", "<a/><b/>"},
    {"a document type", "<!DOCTYPE a><a/>"},
    {"a document type with entities", "<!DOCTYPE a [<!ENTITY b \"c\">]><a>&b;</a>"},
};

TEST(StrictReading, TakesWhatIsSound)
{
    for (const Row &row : Sound)
        EXPECT_TRUE(mdReadStrictly(row.xml).isSound) << row.what;
}

TEST(StrictReading, RefusesWhatIsNot)
{
    for (const Row &row : Refused)
        EXPECT_FALSE(mdReadStrictly(row.xml).isSound) << row.what;
}

TEST(StrictReading, TellsTheRelationshipsReferredToWhateverTheirPrefix)
{
    const QByteArray xml = QByteArray("<a xmlns:r=\"") + WordXml::RelationshipNamespace + "\" xmlns:q=\""
        + WordXml::RelationshipNamespace
        + "\" xmlns:o=\"other\" r:id=\"rId1\"><b q:embed=\"rId2\" r:link=\"\" o:id=\"rId3\" id=\"rId4\"/></a>";
    const clsStrictReading reading = mdReadStrictly(xml);
    EXPECT_TRUE(reading.isSound);
    EXPECT_EQ(reading.relationshipIds, (QStringList {QStringLiteral("rId1"), QStringLiteral("rId2")}));
}

} // namespace
