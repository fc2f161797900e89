#include "tests/support/mdExpectError.h"
#include "tests/wordexport/clsTestDocument.h"
#include "wordexport/document/mdCheckDocument.h"

// The check of a document from outside, part by part.

namespace {

const QString Damaged = QStringLiteral("The document X.doc is damaged: its part ");

/// The problem of a package, without the surrounding words; empty if there is none.
QString complaintAbout(const clsZipPackage &zip)
{
    try {
        clsWordPackage package(zip, QStringLiteral("X.doc"));
        mdCheckDocument(package);
    } catch (const clsRunTimeError &error) {
        EXPECT_EQ(error.number(), clsRunTimeError::InvalidFileFormat);
        EXPECT_TRUE(error.description().startsWith(Damaged)) << error.description().toStdString();
        return error.description().mid(Damaged.size());
    }
    return {};
}

/// A document with a picture in its text and its header, a link, and settings that the layer never reads.
clsTestDocument wholeDocument()
{
    const QString type = QStringLiteral("application/vnd.openxmlformats-officedocument.wordprocessingml.%1+xml");
    const QString picture = QStringLiteral("<w:p><w:r><w:object r:id=\"%1\"/></w:r></w:p>");
    clsTestDocument document(picture.arg(QStringLiteral("rId4")) + picture.arg(QStringLiteral("rIdX1")));
    document.styles = QStringLiteral("<w:style w:type=\"paragraph\" w:styleId=\"a\"/>");
    document.externalLinks << QStringLiteral("https://example.org/");
    document.parts = {
        {QStringLiteral("word/media/image1.png"), "<no picture", QStringLiteral("image/png"), QStringLiteral("image"),
            QStringLiteral("rId4")},
        {QStringLiteral("word/header1.xml"), clsTestDocument::root("w:hdr", picture.arg(QStringLiteral("rId1"))),
            type.arg(QStringLiteral("header")), QStringLiteral("header"), QStringLiteral("rId5")},
        {QStringLiteral("word/_rels/header1.xml.rels"),
            clsTestDocument::relationships(
                QStringLiteral("<Relationship Id=\"rId1\" Type=\"t/image\" Target=\"media/image1.png\"/>")),
            QStringLiteral("application/vnd.openxmlformats-package.relationships+xml"), QString(), QString()},
        {QStringLiteral("word/settings.xml"), clsTestDocument::root("w:settings", QStringLiteral("<w:zoom/>")),
            type.arg(QStringLiteral("settings")), QStringLiteral("settings"), QStringLiteral("rId6")},
        {QStringLiteral("docProps/core.xml"), "<coreProperties/>",
            QStringLiteral("application/vnd.openxmlformats-package.core-properties+xml"), QString(), QString()},
    };
    return document;
}

clsZipPackage with(const char *part, const QByteArray &before, const QByteArray &after)
{
    clsZipPackage zip = wholeDocument().zip();
    const int index = zip.indexOf(QLatin1String(part));
    QByteArray bytes = zip.bytes(index);
    EXPECT_TRUE(bytes.contains(before)) << part;
    zip.setBytes(index, bytes.replace(before, after));
    return zip;
}

clsZipPackage without(const char *part)
{
    clsZipPackage zip;
    const clsZipPackage whole = wholeDocument().zip();
    for (const clsZipPackage::Entry &entry : whole.entries())
        if (entry.name != QLatin1String(part))
            zip.add(entry.name, entry.bytes);
    return zip;
}

QString unreadable(const char *part)
{
    return QLatin1String(part) + QStringLiteral(" can't be read.");
}

QString refersToNothing(const char *part)
{
    return QLatin1String(part) + QStringLiteral(" refers to a part that is missing.");
}

TEST(CheckDocument, TakesASoundOne)
{
    EXPECT_EQ(complaintAbout(wholeDocument().zip()), QString());
}

TEST(CheckDocument, EachPartThatIsXmlIsReadToTheLetter)
{
    for (const char *part :
        {"[Content_Types].xml", "_rels/.rels", "word/document.xml", "word/_rels/document.xml.rels", "word/styles.xml",
            "word/header1.xml", "word/_rels/header1.xml.rels", "word/settings.xml", "docProps/core.xml"}) {
        clsZipPackage zip = wholeDocument().zip();
        const int index = zip.indexOf(QLatin1String(part));
        const QByteArray whole = zip.bytes(index);
        for (const QByteArray &broken : {QByteArray(), whole.left(whole.size() / 2), whole + "more",
                 whole + "<!-- \x01 -->", QByteArray(whole).replace("/>", " a=\"1\" a=\"2\"/>"),
                 QByteArray(whole).replace("/>", " x:a=\"1\"/>")}) {
            zip.setBytes(index, broken);
            EXPECT_EQ(complaintAbout(zip), unreadable(part)) << broken.toStdString();
        }
    }
}

TEST(CheckDocument, WhatIsNoXmlMayHoldAnything)
{
    EXPECT_EQ(complaintAbout(with("word/media/image1.png", "<no picture", QByteArray("\0\xFF\xFE", 3))), QString());
}

TEST(CheckDocument, EachRelationshipLeadsToAPart)
{
    EXPECT_EQ(complaintAbout(without("word/media/image1.png")), refersToNothing("word/document.xml"));
    EXPECT_EQ(complaintAbout(without("word/settings.xml")), refersToNothing("word/document.xml"));
    EXPECT_EQ(complaintAbout(with("word/_rels/header1.xml.rels", "media/image1.png", "media/image2.png")),
        refersToNothing("word/header1.xml"));
    EXPECT_EQ(
        complaintAbout(with("_rels/.rels", "</Relationships>",
            "<Relationship Id=\"rId2\" Type=\"t/thumbnail\" Target=\"docProps/thumbnail.png\"/></Relationships>")),
        refersToNothing("_rels/.rels"));
}

TEST(CheckDocument, EachReferenceIsToARelationship)
{
    EXPECT_EQ(complaintAbout(with("word/document.xml", "rId4", "rId44")), refersToNothing("word/document.xml"));
    EXPECT_EQ(complaintAbout(with("word/header1.xml", "rId1", "rId4")), refersToNothing("word/header1.xml"));
    EXPECT_EQ(complaintAbout(without("word/_rels/header1.xml.rels")), refersToNothing("word/header1.xml"));
}

TEST(CheckDocument, RelationshipsBelongToAPart)
{
    clsZipPackage zip = wholeDocument().zip();
    zip.add(QStringLiteral("word/_rels/footer1.xml.rels"), clsTestDocument::relationships(QString()));
    EXPECT_EQ(complaintAbout(zip), refersToNothing("word/_rels/footer1.xml.rels"));
}

TEST(CheckDocument, NoTwoRelationshipsHaveOneId)
{
    EXPECT_EQ(complaintAbout(with("word/_rels/document.xml.rels", "rId5", "rId4")), unreadable("word/document.xml"));
}

TEST(CheckDocument, EachPartIsOfAKnownKind)
{
    EXPECT_EQ(complaintAbout(with("[Content_Types].xml", "<Override PartName=\"/word/media/image1.png\"",
                  "<Override PartName=\"/word/media/image2.png\"")),
        unreadable("word/media/image1.png"));
}

TEST(CheckDocument, AWorldOfAttributesIsRefusedAtOnce)
{
    QByteArray attributes;
    for (int i = 0; i < 400000; ++i)
        attributes += " a" + QByteArray::number(i) + "=\"\"";
    EXPECT_EQ(complaintAbout(with("word/settings.xml", "<w:zoom/>", "<w:zoom" + attributes + "/>")),
        unreadable("word/settings.xml"));
}

} // namespace
