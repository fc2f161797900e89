// Documents whose text another document takes over unchanged.

#include "tests/support/clsScriptedUserInterface.h"
#include "tests/wordexport/clsTestDocument.h"
#include "wordexport/document/clsPlainText.h"

namespace {

const QByteArray Section = "<w:sectPr><w:pgSz w:w=\"11906\" w:h=\"16838\"/></w:sectPr>";
const QByteArray Last = "<w:p><w:pPr><w:pStyle w:val=\"Tail\"/></w:pPr></w:p>";

QByteArray mainPart(const QByteArray &body, const QByteArray &rootAttributes = {})
{
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?><w:document xmlns:w=\"" + QByteArray(WordXml::MainNamespace) + '"'
        + rootAttributes + "><w:body>" + body + "</w:body></w:document>";
}

bool isPlain(const QByteArray &bytes)
{
    pugi::xml_document tree;
    EXPECT_TRUE(tree.load_buffer(bytes.constData(), size_t(bytes.size()), WordXml::ParseFlags)) << bytes.constData();
    return mdIsPlainText(tree);
}

QByteArray paragraph(const QByteArray &content)
{
    return "<w:p>" + content + "</w:p>";
}

QString cut(const QByteArray &bytes)
{
    const auto body = mdPlainBody(bytes);
    return body ? QString::fromUtf8(
               body->blocks.toByteArray() + " | " + body->end.toByteArray() + " | " + body->section.toByteArray())
                : QStringLiteral("(nothing)");
}

} // namespace

TEST(PlainText, IsTextWithLooksAndNothingElse)
{
    const QByteArray run = "<w:r><w:rPr><w:b/></w:rPr><w:t xml:space=\"preserve\"> a </w:t><w:tab/><w:br/></w:r>";
    EXPECT_TRUE(isPlain(mainPart(Last + Section)));
    EXPECT_TRUE(isPlain(mainPart(paragraph(run) + Last + Section)));
    EXPECT_TRUE(isPlain(mainPart("<w:tbl><w:tr><w:tc>" + paragraph(run) + "</w:tc></w:tr></w:tbl>" + Last + Section)));
}

TEST(PlainText, HasNoIdentitiesReferencesOrHistory)
{
    for (const char *content : {"<w:bookmarkStart w:id=\"0\" w:name=\"a\"/>", "<w:bookmarkEnd w:id=\"0\"/>",
             "<w:r><w:instrText>REF a</w:instrText></w:r>", "<w:hyperlink w:anchor=\"a\"><w:r/></w:hyperlink>",
             "<w:pPr><w:numPr><w:numId w:val=\"1\"/></w:numPr></w:pPr>", "<w:fldSimple w:instr=\"PAGE\"/>",
             "<w:commentRangeStart w:id=\"0\"/>", "<w:r><w:footnoteReference w:id=\"2\"/></w:r>",
             "<w:sdt><w:sdtPr/></w:sdt>", "<w:r w:rsidR=\"001\"/>", "<w:r><wp:docPr id=\"1\"/></w:r>",
             "<w:r r:id=\"rId1\"/>", "<w:pPr><w:sectPr/></w:pPr>",
             "<w:pPr><w:pStyle w:val=\"a\"><w:b/></w:pStyle></w:pPr>", "<!-- note -->"})
        EXPECT_FALSE(isPlain(mainPart(paragraph(content) + Last + Section))) << content;
}

TEST(PlainText, EndsWithAParagraphAndASection)
{
    EXPECT_FALSE(isPlain(mainPart(Section)));
    EXPECT_FALSE(isPlain(mainPart(Last)));
    EXPECT_FALSE(isPlain(mainPart(Last + "<w:tbl/>" + Section)));
    EXPECT_FALSE(isPlain(mainPart(Last + Section + Section)));
    EXPECT_FALSE(isPlain(mainPart(Last + Section + "<!-- note -->")));
    EXPECT_FALSE(isPlain(mainPart("stray" + Last + Section)));
    EXPECT_FALSE(isPlain(mainPart(Last + "<w:sectPr><w:headerReference r:id=\"rId1\"/></w:sectPr>")));
    // This last paragraph could not be distinguished from the one inside it.
    const QByteArray nested = paragraph("<w:r><w:pict>" + Last + "</w:pict></w:r>");
    EXPECT_FALSE(isPlain(mainPart(nested + Section)));
    EXPECT_FALSE(isPlain(mainPart(nested + Last + Section)));
    EXPECT_TRUE(isPlain(mainPart(nested + Last + Last + Section)));
}

TEST(PlainText, DeclaresOnePrefixAndHoldsOneBody)
{
    EXPECT_FALSE(isPlain(mainPart(Last + Section, " xmlns:a=\"urn:a\"")));
    EXPECT_FALSE(isPlain(mainPart(Last + Section, " w:conformance=\"strict\"")));
    const QByteArray plain = mainPart(Last + Section);
    EXPECT_FALSE(isPlain(QByteArray(plain).replace("<w:body>", "<w:background/><w:body>")));
    EXPECT_FALSE(isPlain(QByteArray(plain).replace("<w:body>", "<w:body w:a=\"1\">")));
    EXPECT_FALSE(isPlain(QByteArray(plain).replace("<w:document", "<!-- <w:body> --><w:document")));
    EXPECT_FALSE(isPlain(plain + "<!-- note -->"));
}

TEST(PlainText, IsCutBeforeItsLastParagraphs)
{
    const QString section = QString::fromUtf8(Section);
    const QString last = QString::fromUtf8(Last);
    EXPECT_EQ(QStringLiteral(" | ") + last + QStringLiteral(" | ") + section, cut(mainPart(Last + Section)));
    EXPECT_EQ(QStringLiteral("<w:tbl/> | ") + last + QStringLiteral(" | ") + section,
        cut(mainPart("<w:tbl/>" + Last + Section)));
    EXPECT_EQ(last + QStringLiteral(" | ") + last + last + QStringLiteral(" | ") + section,
        cut(mainPart(Last + Last + Last + Section)));
    EXPECT_EQ(last + QStringLiteral(" | <w:p/><w:p/> | <w:sectPr/>"), cut(mainPart(Last + "<w:p/><w:p/><w:sectPr/>")));
    EXPECT_EQ(
        QStringLiteral("<w:tbl><w:tr><w:tc><w:p/></w:tc></w:tr></w:tbl> | ") + last + QStringLiteral(" | ") + section,
        cut(mainPart("<w:tbl><w:tr><w:tc><w:p/></w:tc></w:tr></w:tbl>" + Last + Section)));
}

TEST(PlainText, IsNotCutWhereItIsNotWhatItShouldBe)
{
    const QByteArray plain = mainPart(Last + Section);
    EXPECT_EQ(QStringLiteral("(nothing)"), cut({}));
    EXPECT_EQ(QStringLiteral("(nothing)"), cut(plain.chopped(1)));
    EXPECT_EQ(QStringLiteral("(nothing)"), cut(mainPart(Last)));
    EXPECT_EQ(QStringLiteral("(nothing)"), cut(mainPart(Section)));
    EXPECT_EQ(QStringLiteral("(nothing)"), cut(mainPart(Last + "<w:tbl/>" + Section)));
    EXPECT_EQ(QStringLiteral("(nothing)"), cut(QByteArray(plain).replace("<w:body>", "<w:body >")));
}

namespace {

/// Two sheets as written by the layer itself.
class PlainJoin : public testing::Test {
protected:
    void SetUp() override
    {
        place = written(QStringLiteral("b.doc"), "b");
        written(QStringLiteral("a.doc"), "a");
    }
    clsTextPlace written(const QString &name, const QByteArray &text)
    {
        clsTestDocument document;
        document.styles
            = QStringLiteral("<w:style w:type=\"paragraph\" w:styleId=\"Tail\"><w:name w:val=\"t\"/></w:style>");
        clsZipPackage zip = document.zip();
        zip.setBytes(zip.indexOf(document.mainName),
            mainPart(paragraph("<w:r><w:t>" + text + "</w:t></w:r>") + Last + Last + Section));
        styles = zip.bytes(zip.indexOf(QStringLiteral("word/styles.xml")));
        folder.write(name, zip.toBytes(clsZipPackage::Deflated));
        clsMSWord word;
        word.OpenDocument(folder.path(name));
        word.SetText(QStringLiteral("typed "), false, false, false, false);
        word.SaveAndClose();
        EXPECT_EQ(folder.path(name), word.savedPath());
        return word.savedText();
    }
    /// The bytes of the two joined sheets.
    QByteArray joined(const clsPlainText *known)
    {
        folder.write(QStringLiteral("Joined.doc"), folder.read(QStringLiteral("a.doc")));
        clsMSWord word(clsMSWord::Finished);
        word.OpenDocument(folder.path(QStringLiteral("Joined.doc")));
        for (int times = 0; times < 3; ++times)
            word.InsertFileAtEnd(folder.path(QStringLiteral("b.doc")), {}, known);
        word.TypeBackSpace();
        word.SaveAndClose();
        EXPECT_FALSE(word.ErrorShown);
        EXPECT_EQ(clsWordLint::problemsOf(folder.path(QStringLiteral("Joined.doc"))), QStringList());
        return folder.read(QStringLiteral("Joined.doc"));
    }

    clsScriptedUserInterface user;
    clsUserInterfaceScope scope {user};
    clsTestFolder folder;
    QByteArray styles;
    clsTextPlace place;
};

} // namespace

TEST_F(PlainJoin, GivesTheSameBytesAsReadingTheDocument)
{
    const QByteArray bytes = joined(nullptr);
    const clsPlainText known {styles, place};
    EXPECT_TRUE(bytes == joined(&known));
    EXPECT_EQ(
        QStringLiteral("typed a///typed b///typed b///typed b//"), plain(folder.path(QStringLiteral("Joined.doc"))));
}

TEST_F(PlainJoin, ReadsTheDocumentAllTheSameWhereWhatIsKnownOfItDoesNotHold)
{
    const QByteArray bytes = joined(nullptr);
    const clsPlainText otherStyles {styles + ' ', place};
    EXPECT_TRUE(bytes == joined(&otherStyles));
    const clsPlainText otherSize {styles, {place.fileSize + 1, place.at, place.size}};
    EXPECT_TRUE(bytes == joined(&otherSize));
    const clsPlainText otherPlace {styles, {place.fileSize, place.at - 1, place.size}};
    EXPECT_TRUE(bytes == joined(&otherPlace));
    const clsPlainText beyond {styles, {place.fileSize, place.fileSize - 1, place.size}};
    EXPECT_TRUE(bytes == joined(&beyond));
}

TEST_F(PlainJoin, TellsOfAFileThatIsGone)
{
    const clsPlainText known {styles, place};
    clsMSWord word;
    word.OpenDocument(folder.path(QStringLiteral("a.doc")));
    ASSERT_TRUE(QFile::remove(folder.path(QStringLiteral("b.doc"))));
    word.InsertFileAtEnd(folder.path(QStringLiteral("b.doc")), {}, &known);
    EXPECT_TRUE(word.sheetLost());
    ASSERT_EQ(1u, user.messages.size());
    EXPECT_TRUE(user.messages[0].text.contains(QStringLiteral("File not found"))) << qPrintable(user.messages[0].text);
}

TEST_F(PlainJoin, KnowsNoSavedTextWhereNothingWasSaved)
{
    clsMSWord word;
    word.OpenDocument(folder.path(QStringLiteral("a.doc")));
    word.SaveAndClose();
    EXPECT_FALSE(word.savedPath().isEmpty());
    word.SaveAndClose(); // no document is open
    EXPECT_TRUE(word.savedPath().isEmpty());
}
