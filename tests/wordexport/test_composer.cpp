#include "tests/support/clsScriptedUserInterface.h"
#include "tests/wordexport/clsJoin.h"
#include "wordexport/document/mdCheckDocument.h"

// Joining documents: their sections, lists, parts, footers and identities.

namespace {

TEST(InsertFileAtEnd, EachDocumentIsASectionWithItsOwnPageSetup)
{
    const clsJoin join({clsTestDocument(p(QStringLiteral("a")) + p() + section(page(100))),
        clsTestDocument(p(QStringLiteral("b")) + p() + section(page(200))),
        clsTestDocument(p(QStringLiteral("c")) + p() + section(page(300)))});
    EXPECT_EQ(join.body(),
        p(QStringLiteral("a")) + withSection(section(page(100))) + p(QStringLiteral("b"))
            + withSection(section(page(200))) + p(QStringLiteral("c")) + p() + section(page(300)));
}

TEST(InsertFileAtEnd, TheSectionsEndGoesWhereReadersExpectItAmongTheParagraphsProperties)
{
    const QString paragraph
        = QStringLiteral("<w:p><w:pPr><w:jc w:val=\"right\"/><w:rPr><w:b/></w:rPr>%1</w:pPr></w:p>");
    const clsJoin join({clsTestDocument(paragraph.arg(QString()) + section(page(100))), sheet(QStringLiteral("b"))});
    EXPECT_TRUE(join.body().startsWith(paragraph.arg(section(page(100)))));
}

TEST(InsertFileAtEnd, ADocumentThatEndsWithATableOrASectionsEndGetsATinyParagraph)
{
    const QString ended = withSection(section(page(50)));
    for (const QString &body : {grid(1, 1), ended}) {
        // A document may break the rule that a body ends with a paragraph; the joined document must not.
        const clsJoin join({clsTestDocument(body + section(page(100))), sheet(QStringLiteral("b"))});
        EXPECT_TRUE(join.body().startsWith(body
            + QStringLiteral("<w:p><w:pPr><w:spacing w:before=\"0\" w:after=\"0\" w:line=\"20\" w:lineRule=\"exact\"/>"
                             "<w:rPr><w:sz w:val=\"2\"/></w:rPr>")
            + section(page(100)) + QStringLiteral("</w:pPr></w:p>") + p(QStringLiteral("b"))))
            << join.body().toStdString();
    }
}

TEST(InsertFileAtEnd, AFirstSectionThatContinuesBeginsOnANewPageInstead)
{
    const auto typed = [](const char *type) {
        return section(QStringLiteral("<w:type w:val=\"%1\"/>").arg(QLatin1String(type)) + page(300));
    };
    const clsJoin join({sheet(QStringLiteral("a")), clsTestDocument(p() + typed("continuous")),
        clsTestDocument(withSection(typed("nextColumn")) + p() + typed("continuous")),
        clsTestDocument(p() + typed("oddPage"))});
    const QString body = join.body();
    EXPECT_EQ(body.count(typed("nextPage")), 2);
    EXPECT_EQ(body.count(typed("continuous")), 1); // within its document
    EXPECT_EQ(body.count(typed("oddPage")), 1);
}

TEST(InsertFileAtEnd, ADocumentWithoutASectionGetsOne)
{
    const clsJoin join({clsTestDocument(p(QStringLiteral("a"))), clsTestDocument(p(QStringLiteral("b")))});
    EXPECT_EQ(join.body(),
        QStringLiteral("<w:p><w:pPr><w:sectPr/></w:pPr>") + r(QStringLiteral("a")) + QStringLiteral("</w:p>")
            + p(QStringLiteral("b")) + QStringLiteral("<w:sectPr/>"));
}

TEST(TypeBackSpaceAfterJoining, TakesTheLastTailAndNoSection)
{
    const clsJoin join({sheet(QStringLiteral("a"), 100), sheet(QStringLiteral("b"), 200)}, true);
    QString sealed = Tail;
    sealed.replace(QLatin1String("</w:pPr>"), section(page(100)) + QStringLiteral("</w:pPr>"));
    EXPECT_EQ(join.body(), p(QStringLiteral("a")) + Tail + sealed + p(QStringLiteral("b")) + Tail + section(page(200)));
}

TEST(TypeBackSpaceAfterJoining, AfterATableOrASectionsEndNothingGoes)
{
    for (const QString &before : {grid(1, 1), withSection(section(page(9)))}) {
        const clsJoin join({sheet(QStringLiteral("a")), clsTestDocument(before + p() + section(page(200)))}, true);
        EXPECT_TRUE(join.body().endsWith(before + p() + section(page(200))));
    }
}

TEST(TypeBackSpaceAfterJoining, WithNothingInsertedChangesNothing)
{
    const clsTestDocument only = sheet(QStringLiteral("a"));
    const clsJoin join({only}, true);
    EXPECT_EQ(join.body(), only.body);
}

const QString Numbering = QStringLiteral("<w:abstractNum w:abstractNumId=\"0\"><w:nsid w:val=\"00000001\"/><w:lvl "
                                         "w:ilvl=\"0\"><w:numFmt w:val=\"decimal\"/></w:lvl></w:abstractNum>"
                                         "<w:num w:numId=\"1\"><w:abstractNumId w:val=\"0\"/></w:num>");

QString listed(int numId)
{
    return QStringLiteral("<w:p><w:pPr><w:numPr><w:ilvl w:val=\"0\"/><w:numId w:val=\"%1\"/></w:numPr></w:pPr></w:p>")
        .arg(numId);
}

clsTestDocument withList(int numId = 1)
{
    clsTestDocument document(listed(numId) + p() + section(page(100)));
    document.numbering = Numbering;
    return document;
}

TEST(JoinedLists, EachDocumentsListsStartAgain)
{
    const clsJoin join({withList(), withList(), withList()});
    for (int list = 1; list <= 3; ++list)
        EXPECT_EQ(join.body().count(listed(list)), 1) << list;
    const QString numbering = join.part(QStringLiteral("word/numbering.xml"));
    EXPECT_EQ(numbering.count(QStringLiteral("<w:abstractNum ")), 3);
    EXPECT_TRUE(numbering.endsWith(QStringLiteral("<w:num w:numId=\"3\"><w:abstractNumId w:val=\"2\"/></w:num>")));
    EXPECT_EQ(numbering.count(QStringLiteral("<w:nsid w:val=\"00000001\"/>")), 1);
}

TEST(JoinedLists, ADocumentWithoutListsGetsThemWithThePart)
{
    const clsJoin join({sheet(QStringLiteral("a")), withList()});
    EXPECT_TRUE(join.part(QStringLiteral("word/numbering.xml")).contains(QStringLiteral("<w:num w:numId=\"1\">")));
}

TEST(JoinedLists, NumbersStayInTheRangeOfTheFormatWhateverTheDocumentBeginsWith)
{
    clsTestDocument first = withList(2147483647);
    first.numbering.replace(QStringLiteral("numId=\"1\""), QStringLiteral("numId=\"2147483647\""))
        .replace(QStringLiteral("abstractNumId=\"0\""), QStringLiteral("abstractNumId=\"2147483647\""))
        .replace(QStringLiteral("abstractNumId w:val=\"0\""), QStringLiteral("abstractNumId w:val=\"2147483647\""));
    const clsJoin join({first, withList()});
    EXPECT_EQ(join.body().count(listed(2147483647)), 1);
    EXPECT_EQ(join.body().count(listed(1)), 1);
}

TEST(JoinedLists, NoListStaysNoListAndANumberOfNoListBecomesNone)
{
    const clsJoin join({sheet(QStringLiteral("a")), withList(0), withList(77)});
    EXPECT_EQ(join.body().count(listed(0)), 2);
}

clsTestDocument withImage(const QByteArray &image, const QString &name = QStringLiteral("word/media/image1.png"))
{
    clsTestDocument document(
        QStringLiteral(
            "<w:p><w:r><w:drawing xmlns:wp=\"http://schemas.openxmlformats.org/drawingml/2006/wordprocessingDrawing\" "
            "xmlns:a=\"http://schemas.openxmlformats.org/drawingml/2006/main\"><wp:inline><wp:docPr id=\"1\" "
            "name=\"P\"/>"
            "<a:blip r:embed=\"rId7\"/></wp:inline></w:drawing></w:r></w:p>")
        + p() + section(page(100)));
    document.parts.push_back(
        {name, image, QStringLiteral("image/png"), QStringLiteral("image"), QStringLiteral("rId7")});
    return document;
}

TEST(JoinedParts, PicturesComeAlongAndEqualOnesAreThereOnce)
{
    const clsJoin join({withImage("one"), withImage("two"), withImage("one", QStringLiteral("word/media/logo.png")),
        withImage("two")});
    QStringList media = join.parts().filter(QStringLiteral("media"));
    EXPECT_EQ(media, (QStringList {QStringLiteral("word/media/image1.png"), QStringLiteral("word/media/image2.png")}));
    const clsZipPackage zip = clsZipPackage::fromFile(join.path);
    EXPECT_EQ(zip.bytes(zip.indexOf(QStringLiteral("word/media/image2.png"))), QByteArray("two"));
    EXPECT_EQ(join.body().count(QStringLiteral("r:embed=\"rId7\"")), 2);
    EXPECT_EQ(join.body().count(QStringLiteral("r:embed=\"rId8\"")), 2);
}

TEST(JoinedParts, LinksToTheWebStayLinks)
{
    clsTestDocument document(
        QStringLiteral("<w:p><w:hyperlink r:id=\"rIdX1\">%1</w:hyperlink></w:p>").arg(r(QStringLiteral("link")))
        + section(page(100)));
    document.externalLinks = QStringList {QStringLiteral("https://example.org/?a=1&amp;b=2")};
    const clsJoin join({sheet(QStringLiteral("a")), document, document});
    clsWordPackage package = clsWordPackage::fromFile(join.path);
    ASSERT_EQ(package.relationships(package.mainPart()).size(), 1u);
    EXPECT_TRUE(package.relationships(package.mainPart())[0].external);
    EXPECT_EQ(package.relationships(package.mainPart())[0].target, "https://example.org/?a=1&b=2");
}

TEST(JoinedParts, PartsOfPartsComeAlongWithTheirOwnRelationships)
{
    // A chart with a workbook: a part that refers to another.
    clsTestDocument document(QStringLiteral("<w:p><w:r><w:object r:id=\"rId9\"/></w:r></w:p>") + section(page(100)));
    document.parts.push_back({QStringLiteral("word/charts/chart1.xml"), "<c r:id='rId1' xmlns:r='x'/>",
        QStringLiteral("application/chart+xml"), QStringLiteral("chart"), QStringLiteral("rId9")});
    document.parts.push_back({QStringLiteral("word/embeddings/book1.xlsx"), "book", QStringLiteral("application/book"),
        QString(), QString()});
    document.parts.push_back({QStringLiteral("word/charts/_rels/chart1.xml.rels"),
        clsTestDocument::relationships(
            QStringLiteral("<Relationship Id=\"rId1\" Type=\"t/package\" Target=\"../embeddings/book1.xlsx\"/>")),
        QStringLiteral("application/vnd.openxmlformats-package.relationships+xml"), QString(), QString()});
    const clsJoin join({sheet(QStringLiteral("a")), document});
    EXPECT_TRUE(join.parts().contains(QStringLiteral("word/embeddings/book1.xlsx")));
    clsWordPackage package = clsWordPackage::fromFile(join.path);
    const int chart = package.findPart(QStringLiteral("word/charts/chart1.xml"));
    ASSERT_GE(chart, 0);
    EXPECT_EQ(package.partBytes(package.targetOf(chart, package.relationships(chart)[0])), QByteArray("book"));
    EXPECT_EQ(package.contentType(chart), "application/chart+xml");
}

TEST(JoinedParts, ADocumentWithAMissingPartIsRefusedAndTheTargetStaysAsItWas)
{
    clsTestDocument broken = withImage("one");
    broken.parts.clear();
    broken.externalLinks = QStringList();
    const clsTestFolder folder;
    const QString path = folder.write(QStringLiteral("a.doc"), sheet(QStringLiteral("a")));
    clsScriptedUserInterface user;
    const clsUserInterfaceScope scope(user);
    clsMSWord word(clsMSWord::Finished);
    word.OpenDocument(path);
    word.InsertFileAtEnd(folder.write(QStringLiteral("b.doc"), broken));
    EXPECT_TRUE(word.sheetLost());
    ASSERT_EQ(user.messages.size(), 1u);
    EXPECT_TRUE(user.messages[0].text.contains(QStringLiteral("b.doc is damaged.\r\nSubroutine: InsertFileAtEnd")));
    word.SaveAndClose();
    EXPECT_EQ(bodyXml(path), sheet(QStringLiteral("a")).body);
}

TEST(JoinedParts, AChainOfPartsThatNoWordProcessorWritesIsRefused)
{
    constexpr int Length = 1900; // each has relationships, and the size of a package is limited
    clsTestDocument chain(QStringLiteral("<w:p><w:r><w:object r:id=\"rId9\"/></w:r></w:p>") + section(page(100)));
    for (int i = 0; i < Length; ++i) {
        const QString name = QStringLiteral("word/charts/%1%2.xml%3");
        chain.parts.push_back({name.arg(QString(), QString::number(i), QString()), "<c/>",
            QStringLiteral("application/c"), i ? QString() : QStringLiteral("chart"), QStringLiteral("rId9")});
        chain.parts.push_back({name.arg(QStringLiteral("_rels/"), QString::number(i), QStringLiteral(".rels")),
            clsTestDocument::relationships(
                QStringLiteral("<Relationship Id=\"rId1\" Type=\"t/c\" Target=\"%1.xml\"/>").arg(i + 1)),
            QStringLiteral("application/vnd.openxmlformats-package.relationships+xml"), QString(), QString()});
    }
    chain.parts.push_back({QStringLiteral("word/charts/%1.xml").arg(Length), "<c/>", QStringLiteral("application/c"),
        QString(), QString()});
    const clsTestFolder folder;
    clsScriptedUserInterface user;
    const clsUserInterfaceScope scope(user);
    clsMSWord word(clsMSWord::Finished);
    word.OpenDocument(folder.write(QStringLiteral("a.doc"), sheet(QStringLiteral("a"))));
    word.InsertFileAtEnd(folder.write(QStringLiteral("b.doc"), chain));
    EXPECT_TRUE(word.sheetLost());
    ASSERT_EQ(user.messages.size(), 1u);
    EXPECT_TRUE(user.messages[0].text.contains(QStringLiteral("b.doc is damaged.")));
}

clsTestDocument withFooter(const QString &text, const char *type = "default")
{
    clsTestDocument document(p(text)
        + section(
            QStringLiteral("<w:footerReference w:type=\"%1\" r:id=\"rId7\"/>").arg(QLatin1String(type)) + page(100)));
    document.parts.push_back({QStringLiteral("word/footer1.xml"), clsTestDocument::root("w:ftr", p(text)),
        QStringLiteral("application/vnd.openxmlformats-officedocument.wordprocessingml.footer+xml"),
        QStringLiteral("footer"), QStringLiteral("rId7")});
    return document;
}

TEST(JoinedFooters, EachDocumentKeepsItsOwnAndEqualOnesAreShared)
{
    const clsJoin join(
        {withFooter(QStringLiteral("one")), withFooter(QStringLiteral("two")), withFooter(QStringLiteral("one"))});
    EXPECT_EQ(join.parts().filter(QStringLiteral("footer")).size(), 2);
    EXPECT_EQ(join.part(QStringLiteral("word/footer1.xml")), p(QStringLiteral("one")));
    EXPECT_EQ(join.part(QStringLiteral("word/footer2.xml")), p(QStringLiteral("two")));
    EXPECT_EQ(join.body().count(QStringLiteral("<w:footerReference w:type=\"default\" r:id=\"rId7\"/>")), 2);
}

TEST(JoinedFooters, ADocumentWithoutAFooterDoesNotTakeTheOneBefore)
{
    const clsJoin join({withFooter(QStringLiteral("one")), sheet(QStringLiteral("b")), sheet(QStringLiteral("c")),
        withFooter(QStringLiteral("four"), "first")});
    EXPECT_EQ(join.part(QStringLiteral("word/footer2.xml")), QStringLiteral("<w:p/>"));
    // The empty footer serves both documents that have none, and the last one's default footer.
    EXPECT_EQ(join.body().count(QStringLiteral("<w:footerReference w:type=\"default\" r:id=\"rId8\"/>")), 3);
}

TEST(JoinedIdentities, PicturesBookmarksAndControlsAreNumberedAnew)
{
    clsTestDocument document(
        QStringLiteral("<w:p><w:bookmarkStart w:id=\"0\" w:name=\"Total\"/><w:bookmarkEnd w:id=\"0\"/>"
                       "<w:hyperlink w:anchor=\"Total\"/><w:r><w:instrText>REF Total \\h</w:instrText></w:r>"
                       "<w:bookmarkStart w:id=\"1\" w:name=\"_GoBack\"/><w:bookmarkEnd w:id=\"1\"/></w:p>"
                       "<w:sdt><w:sdtPr><w:id w:val=\"5\"/><w:dataBinding "
                       "w:xpath=\"x\"/></w:sdtPr><w:sdtContent><w:p/></w:sdtContent></w:sdt>")
        + p() + section(page(100)));
    clsTestDocument first = document;
    first.body.remove(QStringLiteral("<w:bookmarkStart w:id=\"1\" w:name=\"_GoBack\"/><w:bookmarkEnd w:id=\"1\"/>"));
    const clsJoin join({first, document, document});
    const QString body = join.body();
    EXPECT_TRUE(body.contains(
        QStringLiteral("<w:bookmarkStart w:id=\"1\" w:name=\"Total_2\"/><w:bookmarkEnd w:id=\"1\"/><w:hyperlink "
                       "w:anchor=\"Total_2\"/><w:r><w:instrText>REF Total_2 \\h</w:instrText></w:r></w:p>")))
        << body.toStdString();
    EXPECT_TRUE(body.contains(QStringLiteral("w:name=\"Total_3\"")));
    EXPECT_TRUE(body.contains(QStringLiteral("<w:sdtPr><w:id w:val=\"7\"/></w:sdtPr>")));
    EXPECT_FALSE(body.contains(QStringLiteral("_GoBack")));
}

TEST(JoinedIdentities, HistoryAndCommentsStayBehind)
{
    clsTestDocument document(
        QStringLiteral("<w:p w:rsidR=\"00AA\" w14:paraId=\"01\" w14:textId=\"02\"><w:commentRangeStart "
                       "w:id=\"0\"/><w:r w:rsidRPr=\"00BB\"><w:t>a</w:t></w:r>"
                       "<w:commentRangeEnd w:id=\"0\"/><w:r><w:rPr/><w:commentReference w:id=\"0\"/></w:r></w:p>")
        + section(page(100)));
    document.rootAttributes = QStringLiteral(
        "xmlns:w14=\"http://schemas.microsoft.com/office/word/2010/wordml\" "
        "xmlns:mc=\"http://schemas.openxmlformats.org/markup-compatibility/2006\" mc:Ignorable=\"w14\"");
    const clsJoin join({sheet(QStringLiteral("x")), document});
    EXPECT_TRUE(join.body().endsWith(QStringLiteral("<w:p><w:r><w:t>a</w:t></w:r></w:p>") + section(page(100))));
}

TEST(JoinedNamespaces, PrefixesAreDeclaredAndOnesThatClashAreRenamed)
{
    const auto document = [](const QString &meaning) {
        clsTestDocument made(QStringLiteral("<w:p><x:note x:kind=\"k\"/></w:p>") + section(page(100)));
        made.rootAttributes = QStringLiteral(
            "xmlns:x=\"urn:%1\" xmlns:mc=\"http://schemas.openxmlformats.org/markup-compatibility/2006\" "
            "mc:Ignorable=\"x\"")
                                  .arg(meaning);
        return made;
    };
    const clsJoin join({sheet(QStringLiteral("a")), document(QStringLiteral("one")), document(QStringLiteral("two")),
        document(QStringLiteral("two"))});
    EXPECT_EQ(join.body().count(QStringLiteral("<x:note x:kind=\"k\"/>")), 1);
    EXPECT_EQ(join.body().count(QStringLiteral("<x2:note x2:kind=\"k\"/>")), 2);
    clsWordPackage package = clsWordPackage::fromFile(join.path);
    const pugi::xml_node root = package.partXml(package.mainPart()).document_element();
    EXPECT_STREQ(root.attribute("xmlns:x2").value(), "urn:two");
    EXPECT_STREQ(root.attribute("mc:Ignorable").value(), "x x2");
}

TEST(JoinedNamespaces, APrefixKeepsItsMeaningWhereAnElementDeclaresItAnew)
{
    clsTestDocument first(p(QStringLiteral("a")) + section(page(100)));
    first.rootAttributes = QStringLiteral("xmlns:x=\"urn:one\" xmlns:y=\"urn:two\"");
    clsTestDocument second(
        QStringLiteral("<w:p><x:note x:kind=\"k\"/><x:note xmlns:x=\"urn:three\" x:kind=\"k\"><x:in/></x:note>"
                       "<x:note xmlns:y=\"urn:four\" x:kind=\"k\" y:kind=\"k\"/></w:p>")
        + section(page(100)));
    second.rootAttributes = QStringLiteral("xmlns:x=\"urn:two\"");
    const clsJoin join({first, second});
    // The document has a prefix for "two", which an element of the second document uses for something else.
    EXPECT_TRUE(join.body().contains(
        QStringLiteral("<x2:note x2:kind=\"k\"/><x:note xmlns:x=\"urn:three\" x:kind=\"k\"><x:in/></x:note>"
                       "<x2:note xmlns:y=\"urn:four\" x2:kind=\"k\" y:kind=\"k\"/>")))
        << join.body().toStdString();
}

/// A document whose text uses another prefix for relationships than its root, or declares its own.
clsZipPackage withPrefix(const clsTestDocument &document, const char *rootPrefix, const QByteArray &ownDeclaration)
{
    clsZipPackage zip = document.zip();
    const int main = zip.indexOf(QStringLiteral("word/document.xml"));
    QByteArray xml = zip.bytes(main);
    xml.replace("xmlns:r=", QByteArray("xmlns:") + rootPrefix + '=');
    xml.replace("<a:blip r:embed", "<a:blip " + ownDeclaration + " q:embed");
    zip.setBytes(main, xml);
    return zip;
}

TEST(JoinedNamespaces, RelationshipsAreFoundWhateverTheirPrefix)
{
    const QByteArray own = QByteArray("xmlns:q=\"") + WordXml::RelationshipNamespace + '"';
    const clsZipPackage documents[] = {withPrefix(withImage("two"), "q", {}), withPrefix(withImage("two"), "r", own),
        withPrefix(withImage("two"), "s", own)};
    for (const clsZipPackage &document : documents) {
        const clsTestFolder folder;
        const QString path = folder.write(QStringLiteral("Joined.doc"), withImage("one"));
        clsMSWord word(clsMSWord::Finished);
        word.OpenDocument(path);
        word.InsertFileAtEnd(folder.write(QStringLiteral("b.doc"), document.toBytes(clsZipPackage::Deflated)));
        word.SaveAndClose();
        EXPECT_TRUE(bodyXml(path).contains(QStringLiteral("q:embed=\"rId8\""))) << bodyXml(path).toStdString();
        clsWordPackage package = clsWordPackage::fromFile(path);
        mdCheckDocument(package);
    }
}

TEST(JoinedNamespaces, AHeaderThatIsAddedDeclaresItsPrefix)
{
    const auto unprefixed = [](clsTestDocument document, const QString &declaration) {
        document.body.replace(QStringLiteral("r:id"),
            QStringLiteral("xmlns:q=\"%1\" q:id").arg(QLatin1String(WordXml::RelationshipNamespace)));
        clsZipPackage zip = document.zip();
        QByteArray xml = zip.bytes(2);
        zip.setBytes(2, xml.replace(declaration.toUtf8(), {}));
        return zip;
    };
    const QString declared = QStringLiteral(" xmlns:r=\"%1\"").arg(QLatin1String(WordXml::RelationshipNamespace));
    const clsTestFolder folder;
    const QString path = folder.write(QStringLiteral("Joined.doc"),
        unprefixed(withFooter(QStringLiteral("a")), declared).toBytes(clsZipPackage::Deflated));
    clsMSWord word(clsMSWord::Finished);
    word.OpenDocument(path);
    word.InsertFileAtEnd(folder.write(
        QStringLiteral("b.doc"), unprefixed(sheet(QStringLiteral("b")), declared).toBytes(clsZipPackage::Deflated)));
    word.SaveAndClose();
    EXPECT_EQ(clsWordLint::problemsOf(path), QStringList());
    clsWordPackage package = clsWordPackage::fromFile(path);
    mdCheckDocument(package);
}

TEST(InsertFileAtEnd, ADocumentWithFootnotesIsRefusedRatherThanAppendedWithoutThem)
{
    const clsTestFolder folder;
    clsScriptedUserInterface user;
    const clsUserInterfaceScope scope(user);
    clsMSWord word;
    word.OpenDocument(folder.write(QStringLiteral("a.doc"), sheet(QStringLiteral("a"))));
    word.InsertFileAtEnd(folder.write(QStringLiteral("b.doc"),
        clsTestDocument(QStringLiteral("<w:p><w:r><w:footnoteReference w:id=\"2\"/></w:r></w:p>"))));
    ASSERT_EQ(user.messages.size(), 1u);
    EXPECT_TRUE(user.messages[0].text.contains(
        QStringLiteral("holds footnotes or endnotes, so that it can't be appended to another.")));
}

TEST(InsertFileAtEnd, TheJoinedDocumentCanBeEditedFromItsStart)
{
    const auto made
        = [](const QString &text) { return clsTestDocument(p(text) + p(QStringLiteral("{x}")) + section(page(100))); };
    const clsTestFolder folder;
    const QString path = folder.write(QStringLiteral("a.doc"), made(QStringLiteral("a &lt;&amp;&gt; {y}")));
    const QString b = folder.write(QStringLiteral("b.doc"), made(QStringLiteral("b {y}")));
    const QString c = folder.write(QStringLiteral("c.doc"), made(QStringLiteral("c {z}")));
    clsMSWord word;
    word.OpenDocument(path);
    word.InsertFileAtEnd(b);
    word.InsertFileAtEnd(c);
    word.DoReplace(QStringLiteral("{y}"), QStringLiteral("1"), false, false, true);
    word.DoReplace(QStringLiteral("{y}"), QStringLiteral("2"), false, false, true);
    word.DoReplace(QStringLiteral("{z}"), QStringLiteral("3"), false, false, true);
    word.DoReplace(QStringLiteral("{none}"), QStringLiteral("!"), false, false, true);
    word.MoveCursorDown(2);
    word.SetText(QStringLiteral("#"), false, false, true, false);
    word.InsertFileAtEnd(c);
    word.SaveAndClose();
    EXPECT_EQ(clsWordLint::problemsOf(path), QStringList());
    EXPECT_EQ(plain(path), QStringLiteral("!a <&> 1/{x}/#b 2/{x}/c 3/{x}/c {z}/{x}/"));
}

TEST(InsertFileAtEnd, ATextThatLooksLikeTheLayersOwnMarksDoesNoHarm)
{
    clsTestDocument made(QStringLiteral("<?settled-?>") + p(QStringLiteral("a")) + section(page(100)));
    const clsJoin join({made, made, made});
    EXPECT_EQ(join.body().count(QStringLiteral("<?settled-?>")), 1); // the first's; an appended one is not text
    EXPECT_EQ(join.text(), QStringLiteral("a/a/a/"));
}

TEST(InsertFileAtEnd, ADocumentNestedBeyondAllMeasureIsRefused)
{
    // Recursive removal from the tree, level by level, would overflow the stack.
    constexpr int Depth = 300000;
    const clsTestDocument deep(QStringLiteral("<w:p>").repeated(Depth) + QStringLiteral("</w:p>").repeated(Depth));
    const clsTestFolder folder;
    const QString path = folder.write(QStringLiteral("a.doc"), sheet(QStringLiteral("a")));
    clsScriptedUserInterface user;
    const clsUserInterfaceScope scope(user);
    clsMSWord word(clsMSWord::Finished);
    word.OpenDocument(path);
    // Stored uncompressed, because it would be refused for its compression ratio.
    word.InsertFileAtEnd(folder.write(QStringLiteral("b.doc"), deep.zip().toBytes(clsZipPackage::Stored)));
    EXPECT_TRUE(word.sheetLost());
    ASSERT_EQ(user.messages.size(), 1u);
    EXPECT_TRUE(
        user.messages[0].text.contains(QStringLiteral("b.doc is damaged: its part word/document.xml can't be read.")));
    word.SaveAndClose();
    EXPECT_EQ(bodyXml(path), sheet(QStringLiteral("a")).body);
}

TEST(InsertFileAtEnd, AFailedOneLeavesTheOnesBeforeAndAfter)
{
    const clsTestFolder folder;
    clsScriptedUserInterface user;
    const clsUserInterfaceScope scope(user);
    const QString path = folder.write(QStringLiteral("a.doc"), sheet(QStringLiteral("a")));
    clsMSWord word;
    word.OpenDocument(path);
    word.InsertFileAtEnd(folder.write(QStringLiteral("b.doc"), sheet(QStringLiteral("b"))));
    word.InsertFileAtEnd(folder.write(QStringLiteral("bad.doc"), clsTestDocument(QStringLiteral("<w:p>"))));
    word.InsertFileAtEnd(folder.write(QStringLiteral("c.doc"), sheet(QStringLiteral("c"))));
    word.SaveAndClose();
    EXPECT_EQ(user.messages.size(), 1u);
    EXPECT_EQ(clsWordLint::problemsOf(path), QStringList());
    EXPECT_EQ(plain(path), QStringLiteral("a///b///c///"));
}

std::vector<clsTestDocument> manySheets(int count)
{
    QString rows;
    for (int i = 0; i < 100; ++i)
        rows += p(QStringLiteral("Row %1").arg(i));
    std::vector<clsTestDocument> sheets;
    for (int i = 0; i < count; ++i) {
        clsTestDocument made = i % 3 == 0 ? withList()
            : i % 3 == 1                  ? withImage("image" + QByteArray::number(i % 5))
                                          : withFooter(QStringLiteral("f%1").arg(i % 4));
        made.body = rows + made.body;
        sheets.push_back(made);
    }
    return sheets;
}

TEST(InsertFileAtEnd, TwoHundredDocumentsOfAllKindsAreOneSoundDocument)
{
    const clsJoin join(manySheets(200), true);
    EXPECT_EQ(join.text().count(QStringLiteral("Row 99/")), 200);
    EXPECT_EQ(join.body().count(QStringLiteral("<w:sectPr>")), 200);
}

TEST(InsertFileAtEnd, TheSameDocumentsGiveTheSameBytes)
{
    const clsJoin once(manySheets(9), true);
    const clsJoin again(manySheets(9), true);
    EXPECT_EQ(once.folder.read(QStringLiteral("Joined.doc")), again.folder.read(QStringLiteral("Joined.doc")));
}

} // namespace
