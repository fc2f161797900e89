#include "tests/support/clsScriptedUserInterface.h"
#include "tests/wordexport/clsTestDocument.h"

#include <zlib.h>

namespace {

QByteArray number(quint32 value, int bytes)
{
    QByteArray out;
    for (int i = 0; i < bytes; ++i)
        out += char(value >> (8 * i));
    return out;
}

/// A zip written by hand, which can have faults that no library would write.
struct clsRawEntry {
    QByteArray name;
    QByteArray data;
    quint32 statedSize;
    quint16 method = 0;
    quint16 flags = 0;
    quint32 crc = 0;
};

QByteArray rawZip(const std::vector<clsRawEntry> &entries)
{
    QByteArray out;
    QByteArray directory;
    for (const clsRawEntry &entry : entries) {
        const QByteArray common = number(20, 2) + number(entry.flags, 2) + number(entry.method, 2) + number(0, 2)
            + number(0x21, 2) + number(entry.crc, 4) + number(quint32(entry.data.size()), 4)
            + number(entry.statedSize, 4) + number(quint32(entry.name.size()), 2) + number(0, 2);
        directory += "PK\1\2" + number(20, 2) + common + number(0, 2) + number(0, 2) + number(0, 2) + number(0, 4)
            + number(quint32(out.size()), 4) + entry.name;
        out += "PK\3\4" + common + entry.name + entry.data;
    }
    const quint32 start = quint32(out.size());
    return out + directory + "PK\5\6" + number(0, 4) + number(quint32(entries.size()), 2)
        + number(quint32(entries.size()), 2) + number(quint32(directory.size()), 4) + number(start, 4) + number(0, 2);
}

clsRawEntry stored(const QByteArray &name, const QByteArray &data)
{
    const quint32 crc = quint32(crc32(0, reinterpret_cast<const Bytef *>(data.constData()), uInt(data.size())));
    return {name, data, quint32(data.size()), 0, 0, crc};
}

/// The message of a clsMSWord that opens these bytes, without the surrounding words.
QString complaintAbout(const QByteArray &bytes)
{
    clsScriptedUserInterface user;
    const clsUserInterfaceScope scope(user);
    const clsTestFolder folder;
    const QString path = folder.write(QStringLiteral("X.doc"), bytes);
    clsMSWord word;
    word.OpenDocument(path);
    EXPECT_TRUE(word.sheetLost());
    EXPECT_EQ(user.messages.size(), 1u);
    const QString text = user.messages.empty() ? QString() : user.messages[0].text;
    const qsizetype from = text.indexOf(QLatin1String("Error Number: "));
    const qsizetype to = text.indexOf(QLatin1String("\r\nSubroutine"));
    return text.mid(from, to - from)
        .replace(path, QLatin1String("X.doc"))
        .replace(QLatin1String("\r\n"), QLatin1String(" | "));
}

const QString Complaint = QStringLiteral("Error Number: 321 | Error Description: The document X.doc ");
const QString NotWord = Complaint + QStringLiteral("is not a Word document.");
const QString Damaged = Complaint + QStringLiteral("is damaged.");
QString unreadable(const char *part)
{
    return Complaint + QStringLiteral("is damaged: its part %1 can't be read.").arg(QLatin1String(part));
}
const QString TooLarge = Complaint + QStringLiteral("is too large.");

clsZipPackage with(const QString &entry, const QByteArray &bytes)
{
    clsZipPackage zip = clsTestDocument(p()).zip();
    zip.setBytes(zip.indexOf(entry), bytes);
    return zip;
}

QByteArray packed(const clsZipPackage &zip)
{
    return zip.toBytes(clsZipPackage::Deflated);
}

TEST(HostilePackages, WhatIsNoPackageIsNoWordDocument)
{
    EXPECT_EQ(complaintAbout(QByteArray()), NotWord);
    EXPECT_EQ(complaintAbout("just a text"), NotWord);
    EXPECT_EQ(complaintAbout(packed([] {
        clsZipPackage zip;
        zip.add(QStringLiteral("a.txt"), "a");
        return zip;
    }())),
        NotWord);
}

TEST(HostilePackages, TheOlderBinaryFormatIsRefusedByName)
{
    EXPECT_EQ(complaintAbout(QByteArray::fromHex("D0CF11E0A1B11AE1") + QByteArray(600, '\0')),
        Complaint
            + QStringLiteral("is in the older binary format or protected by a password. Please save it again "
                             "as a Word 2007 document without a password."));
}

TEST(HostilePackages, ACutOffPackageIsDamaged)
{
    const QByteArray whole = clsTestDocument(p(QStringLiteral("text"))).bytes();
    EXPECT_EQ(complaintAbout(whole.left(whole.size() / 2)), Damaged);
    EXPECT_EQ(complaintAbout("PK\3\4"), Damaged);
}

TEST(HostilePackages, AWrongSumIsDamage)
{
    clsRawEntry entry = stored("[Content_Types].xml", "<Types/>");
    entry.crc ^= 1;
    EXPECT_EQ(complaintAbout(rawZip({entry})), Damaged);
}

TEST(HostilePackages, ABombIsTooLargeWithoutBeingUnpacked)
{
    clsZipPackage zip = clsTestDocument(p()).zip();
    zip.add(QStringLiteral("word/bomb.bin"), QByteArray(20 * 1024 * 1024, '\0'));
    const QByteArray bomb = packed(zip);
    ASSERT_LT(bomb.size(), 100 * 1024);
    EXPECT_EQ(complaintAbout(bomb), TooLarge);
}

TEST(HostilePackages, AnEntryThatStatesAHugeSizeIsTooLarge)
{
    clsRawEntry entry = stored("[Content_Types].xml", "<Types/>");
    entry.statedSize = 0xF0000000u;
    EXPECT_EQ(complaintAbout(rawZip({entry})), TooLarge);
}

TEST(HostilePackages, AnEntryThatHoldsMoreThanItStatesIsDamage)
{
    const QByteArray content(100000, 'a');
    QByteArray deflated(200000, '\0');
    z_stream stream {};
    ASSERT_EQ(deflateInit2(&stream, 9, Z_DEFLATED, -15, 8, Z_DEFAULT_STRATEGY), Z_OK);
    stream.next_in = reinterpret_cast<Bytef *>(const_cast<char *>(content.constData()));
    stream.avail_in = uInt(content.size());
    stream.next_out = reinterpret_cast<Bytef *>(deflated.data());
    stream.avail_out = uInt(deflated.size());
    ASSERT_EQ(deflate(&stream, Z_FINISH), Z_STREAM_END);
    deflated.truncate(qsizetype(stream.total_out));
    deflateEnd(&stream);
    const quint32 crc = quint32(crc32(0, reinterpret_cast<const Bytef *>(content.constData()), 10));
    EXPECT_EQ(complaintAbout(rawZip({{"[Content_Types].xml", deflated, 10, 8, 0, crc}})), Damaged);
}

TEST(HostilePackages, TooManyEntriesAreTooLarge)
{
    std::vector<clsRawEntry> entries;
    for (int i = 0; i < 5000; ++i)
        entries.push_back(stored("e" + QByteArray::number(i), ""));
    EXPECT_EQ(complaintAbout(rawZip(entries)), TooLarge);
}

TEST(HostilePackages, NamesThatPointOutsideAreRefused)
{
    for (const char *name : {"../evil", "word/../../evil", "/etc/evil", "word\\evil", "C:/evil", "a/./b"})
        EXPECT_EQ(complaintAbout(rawZip({stored(name, "x")})),
            Complaint + QStringLiteral("holds a part whose name points outside the document."))
            << name;
}

TEST(HostilePackages, TwoPartsOfOneNameAreDamage)
{
    EXPECT_EQ(complaintAbout(rawZip({stored("word/a.xml", "1"), stored("Word/A.xml", "2")})), Damaged);
}

TEST(HostilePackages, AnEncryptedEntryIsProtectedByAPassword)
{
    clsRawEntry entry = stored("[Content_Types].xml", "012345678901xxxx");
    entry.flags = 1;
    EXPECT_EQ(complaintAbout(rawZip({entry})), Complaint + QStringLiteral("is protected by a password."));
}

TEST(HostilePackages, AMissingMainPartIsDamage)
{
    const clsZipPackage whole = clsTestDocument(p()).zip();
    clsZipPackage zip;
    for (const clsZipPackage::Entry &entry : whole.entries())
        if (entry.name != QLatin1String("word/document.xml"))
            zip.add(entry.name, entry.bytes);
    EXPECT_EQ(complaintAbout(packed(zip)), Damaged);
}

TEST(HostilePackages, ARelationshipThatLeavesThePackageIsDamage)
{
    EXPECT_EQ(complaintAbout(packed(with(QStringLiteral("_rels/.rels"),
                  clsTestDocument::relationships(QStringLiteral(
                      "<Relationship Id=\"rId1\" "
                      "Type=\"http://schemas.openxmlformats.org/officeDocument/2006/relationships/officeDocument\" "
                      "Target=\"../../word/document.xml\"/>"))))),
        Damaged);
}

TEST(HostilePackages, XmlThatIsNotWellFormedIsDamage)
{
    for (const char *xml : {"", "<w:document>", "<w:document><w:body></w:document>", "<a b=1/>", "\xFF\xFE"})
        EXPECT_EQ(
            complaintAbout(packed(with(QStringLiteral("word/document.xml"), xml))), unreadable("word/document.xml"))
            << xml;
}

TEST(HostilePackages, TextThatIsNoUtf8IsDamage)
{
    QByteArray xml = clsTestDocument(p(QStringLiteral("a"))).zip().bytes(2);
    xml.replace(">a<", ">\xC3\x28<");
    EXPECT_EQ(complaintAbout(packed(with(QStringLiteral("word/document.xml"), xml))), unreadable("word/document.xml"));
}

TEST(HostilePackages, TenThousandLevelsAreDamageNotACrash)
{
    const int Levels = 10000;
    const QString deep = QStringLiteral("<w:p>").repeated(Levels) + QStringLiteral("</w:p>").repeated(Levels);
    EXPECT_EQ(complaintAbout(clsTestDocument(deep).bytes()), unreadable("word/document.xml"));
}

TEST(HostilePackages, EntitiesAreNotExpanded)
{
    QByteArray xml = clsTestDocument(p(QStringLiteral("&b;"))).zip().bytes(2);
    xml.replace("<w:document ", "<!DOCTYPE d [<!ENTITY a \"aaaaaaaaaa\"><!ENTITY b \"&a;&a;&a;&a;&a;\">]><w:document ");
    const clsTestFolder folder;
    const QString path = folder.write(QStringLiteral("a.doc"), packed(with(QStringLiteral("word/document.xml"), xml)));
    EXPECT_EQ(plain(path), QStringLiteral("&b;/"));
}

TEST(HostilePackages, AnotherKindOfOfficeDocumentIsNoWordDocument)
{
    EXPECT_EQ(complaintAbout(packed(with(QStringLiteral("word/document.xml"),
                  "<workbook xmlns=\"http://schemas.openxmlformats.org/spreadsheetml/2006/main\"/>"))),
        NotWord);
}

TEST(HostilePackages, TheStrictFormIsRefusedWithAdvice)
{
    const QString strict = Complaint
        + QStringLiteral("is in the strict form of its format, which is not supported. "
                         "Please save it again as an ordinary Word document.");
    EXPECT_EQ(complaintAbout(packed(with(QStringLiteral("word/document.xml"),
                  "<w:document xmlns:w=\"http://purl.oclc.org/ooxml/wordprocessingml/main\"><w:body/></w:document>"))),
        strict);
    EXPECT_EQ(complaintAbout(packed(with(QStringLiteral("_rels/.rels"),
                  clsTestDocument::relationships(
                      QStringLiteral("<Relationship Id=\"rId1\" "
                                     "Type=\"http://purl.oclc.org/ooxml/officeDocument/relationships/officeDocument\" "
                                     "Target=\"word/document.xml\"/>"))))),
        strict);
}

TEST(HostilePackages, AFolderUnderTheNameIsAnAccessError)
{
    clsScriptedUserInterface user;
    const clsUserInterfaceScope scope(user);
    const QTemporaryDir folder;
    clsMSWord word;
    word.OpenDocument(folder.path());
    ASSERT_EQ(user.messages.size(), 1u);
    EXPECT_TRUE(user.messages[0].text.contains(QLatin1String("Error Number: 75\r\n")));
}

TEST(HostilePackages, ASecondRootIsDamage)
{
    const clsZipPackage whole = clsTestDocument(p()).zip();
    for (const char *part : {"[Content_Types].xml", "_rels/.rels", "word/document.xml"}) {
        const QByteArray xml = whole.bytes(whole.indexOf(QLatin1String(part)));
        for (const QByteArray &second : {QByteArray("<more/>"), QByteArray("<!-- c --><more><more/></more>")})
            EXPECT_EQ(complaintAbout(packed(with(QLatin1String(part), xml + second))), unreadable(part));
    }
}

/// A document of one paragraph "first" with another one joined to it, and the reported failures.
struct clsAppended {
    explicit clsAppended(const clsTestDocument &document)
    {
        clsTestDocument first(p(QStringLiteral("first")));
        first.styles = QStringLiteral("<w:style w:type=\"paragraph\" w:styleId=\"own\"/>"); // so that the styles differ
        const clsUserInterfaceScope scope(user);
        const clsTestFolder folder;
        const QString path = folder.write(QStringLiteral("first.doc"), first);
        clsMSWord word(clsMSWord::Finished);
        word.OpenDocument(path);
        word.InsertFileAtEnd(folder.write(QStringLiteral("X.doc"), document));
        sheetLost = word.sheetLost();
        word.SaveAndClose();
        body = bodyXml(path);
        text = plain(path);
    }

    clsScriptedUserInterface user;
    bool sheetLost = false;
    QString body;
    QString text;
};

TEST(HostilePackages, WhatStaysBehindMayStandInOneAnother)
{
    const QString reference = QStringLiteral("<w:commentReference w:id=\"0\">%1</w:commentReference>");
    const QString bookmark = QStringLiteral("<w:bookmarkStart w:id=\"%1\" w:name=\"%2\">%3</w:bookmarkStart>");
    const QString inner = bookmark.arg(2).arg(QStringLiteral("b"), reference.arg(QString()));
    const QString run = QStringLiteral("<w:r>%1</w:r>");
    const QString deepRun = QStringLiteral("<w:r><w:rPr>%1</w:rPr>%2</w:r>");
    const QString style = QStringLiteral("<w:pStyle w:val=\"none\"><w:rStyle w:val=\"none\">%1</w:rStyle></w:pStyle>");
    const QString hostile[] = {
        run.arg(reference.arg(reference.arg(reference.arg(QString())))),
        run.arg(reference.arg(run.arg(reference.arg(QString())))),
        run.arg(reference.arg(QString()) + reference.arg(QString())),
        bookmark.arg(1).arg(QStringLiteral("_GoBack"), inner),
        bookmark.arg(1).arg(QStringLiteral("a"), inner),
        bookmark.arg(1).arg(QStringLiteral("a"), QString()) + bookmark.arg(1).arg(QStringLiteral("b"), QString()),
        run.arg(reference.arg(bookmark.arg(1).arg(QStringLiteral("a"), QString()))),
        QStringLiteral("<w:pPr>%1</w:pPr>").arg(style.arg(reference.arg(QString()))),
        deepRun.arg(inner, reference.arg(QString())),
        deepRun.arg(deepRun.arg(inner, reference.arg(QString())), reference.arg(QString())),
        deepRun.arg(run.arg(reference.arg(QString())) + style, reference.arg(inner)),
    };
    for (const QString &content : hostile) {
        SCOPED_TRACE(content.toStdString());
        const QString paragraph = QStringLiteral("<w:p>%1%2</w:p>").arg(content, r(QStringLiteral("text")));
        const clsAppended appended(clsTestDocument(paragraph + paragraph));
        EXPECT_FALSE(appended.sheetLost);
        EXPECT_EQ(appended.text, QStringLiteral("first/text/text/"));
        for (const char *left : {"commentReference", "bookmarkStart", "\"none\""})
            EXPECT_FALSE(appended.body.contains(QLatin1String(left))) << appended.body.toStdString();
    }
}

TEST(HostilePackages, AFooterThatIsNoneIsDamage)
{
    for (const char *root : {"w:commentReference", "w:bookmarkStart", "w:r", "w:p"}) {
        clsTestDocument document(p(QStringLiteral("text"))
            + QStringLiteral("<w:sectPr><w:footerReference w:type=\"default\" r:id=\"rId7\"/></w:sectPr>"));
        document.parts.push_back(
            {QStringLiteral("word/footer1.xml"), clsTestDocument::root(root, QStringLiteral("<w:commentReference/>")),
                QStringLiteral("application/vnd.openxmlformats-officedocument.wordprocessingml.footer+xml"),
                QStringLiteral("footer"), QStringLiteral("rId7")});
        const clsAppended appended(document);
        EXPECT_TRUE(appended.sheetLost) << root;
        ASSERT_EQ(appended.user.messages.size(), 1u);
        EXPECT_TRUE(appended.user.messages[0].text.contains(QStringLiteral("is damaged.")));
        EXPECT_EQ(appended.text, QStringLiteral("first/"));
    }
}

TEST(clsZipPackage, KeepsTheOrderThatReadersExpect)
{
    clsZipPackage zip;
    for (const char *name : {"word/styles.xml", "_rels/.rels", "word/document.xml", "a.xml", "[Content_Types].xml"})
        zip.add(QLatin1String(name), name);
    zip.setMainEntry(QStringLiteral("word/document.xml"));
    QStringList names;
    const clsZipPackage read = clsZipPackage::fromBytes(packed(zip), QStringLiteral("X"));
    for (const auto &entry : read.entries()) {
        names << entry.name;
        EXPECT_EQ(entry.bytes, entry.name.toLatin1());
    }
    EXPECT_EQ(names,
        (QStringList {QStringLiteral("[Content_Types].xml"), QStringLiteral("_rels/.rels"),
            QStringLiteral("word/document.xml"), QStringLiteral("a.xml"), QStringLiteral("word/styles.xml")}));
}

TEST(clsZipPackage, WritesTheSameBytesWhateverTheClockAndTheTimeZoneSay)
{
    const clsZipPackage zip = clsTestDocument(p(QStringLiteral("text"))).zip();
    const QByteArray first = packed(zip);
    qputenv("TZ", "Pacific/Kiritimati");
    tzset();
    const QByteArray second = packed(zip);
    qunsetenv("TZ");
    tzset();
    EXPECT_EQ(first, second);
    // No host names, only the fixed time, no descriptors after the data.
    EXPECT_EQ(first.mid(10, 4), QByteArray("\0\0\x21\0", 4));
    EXPECT_EQ(first[6] & 8, 0);
}

TEST(clsZipPackage, StoredAndDeflatedHoldTheSame)
{
    const clsZipPackage zip = clsTestDocument(p(QString(10000, u'a'))).zip();
    const QByteArray stored = zip.toBytes(clsZipPackage::Stored);
    EXPECT_GT(stored.size(), packed(zip).size());
    const clsZipPackage read = clsZipPackage::fromBytes(stored, QString());
    ASSERT_EQ(read.entries().size(), zip.entries().size());
    for (const auto &entry : zip.entries())
        EXPECT_EQ(read.bytes(read.indexOf(entry.name)), entry.bytes);
}

TEST(clsZipPackage, StoredSaysTheSumAndTheSizesOfEachEntry)
{
    clsZipPackage zip;
    zip.add(QStringLiteral("empty"), {});
    zip.add(QString(QChar(0xE9)), "123456789"); // its checksum is the algorithm's check value
    const QByteArray stored = zip.toBytes(clsZipPackage::Stored);
    EXPECT_EQ(stored.size(), (30 + 46) * 2 + 2 * (5 + 2) + 9 + 22);
    EXPECT_EQ(stored.mid(30 + 5, 4), "PK\3\4");
    EXPECT_EQ(stored.mid(30 + 5 + 6, 24),
        QByteArray("\0\x08\0\0\0\0\x21\0\x26\x39\xF4\xCB\x09\0\0\0\x09\0\0\0\x02\0\0\0", 24));
    EXPECT_EQ(stored.mid(30 + 5 + 30, 2 + 9),
        "\xC3\xA9"
        "123456789");
    const clsZipPackage read = clsZipPackage::fromBytes(stored, QString());
    ASSERT_EQ(read.entries().size(), 2U);
    EXPECT_EQ(read.entries()[0].bytes, QByteArray());
    EXPECT_EQ(read.entries()[1].name, QString(QChar(0xE9)));
    EXPECT_EQ(read.entries()[1].bytes, "123456789");
}

TEST(clsWordPackage, FindsTheMainPartByItsRelationshipWhateverItIsCalled)
{
    clsTestDocument document(p(QStringLiteral("{x}")));
    document.mainName = QStringLiteral("other/place/story.xml");
    EXPECT_EQ(plainAfterEditing(document,
                  [](clsMSWord &w) { w.DoReplace(QStringLiteral("{x}"), QStringLiteral("y"), false, false, true); }),
        QStringLiteral("y/"));
}

TEST(clsWordPackage, LeavesUntouchedPartsAsTheyAreByteForByte)
{
    clsTestDocument document(p(QStringLiteral("{x}")));
    const QByteArray odd = "<?xml version='1.0'?>\r\n<!-- odd -->\n<w:styles   xmlns:w = "
                           "'http://schemas.openxmlformats.org/wordprocessingml/2006/main' ></w:styles>";
    document.parts.push_back({QStringLiteral("word/styles.xml"), odd,
        QStringLiteral("application/vnd.openxmlformats-officedocument.wordprocessingml.styles+xml"),
        QStringLiteral("styles"), QStringLiteral("rId5")});
    const clsTestFolder folder;
    const QString path = folder.write(QStringLiteral("a.doc"), document);
    clsMSWord word;
    word.OpenDocument(path);
    word.DoReplace(QStringLiteral("{x}"), QStringLiteral("y"), false, false, true);
    word.SaveAndClose();
    const clsZipPackage before = document.zip();
    const clsZipPackage after = clsZipPackage::fromFile(path);
    for (const auto &entry : before.entries())
        if (entry.name != QLatin1String("word/document.xml")) {
            EXPECT_EQ(after.bytes(after.indexOf(entry.name)), entry.bytes) << entry.name.toStdString();
        }
}

TEST(clsWordPackage, KeepsBlanksBetweenAndInTexts)
{
    const QString body
        = QStringLiteral("<w:p><w:r><w:t xml:space=\"preserve\"> </w:t></w:r> <w:r><w:t>a</w:t></w:r></w:p><!-- c -->");
    EXPECT_EQ(afterEditing(body + p(QStringLiteral("{x}")),
                  [](clsMSWord &w) { w.DoReplace(QStringLiteral("{x}"), QStringLiteral("y"), false, false, true); }),
        body + p(QStringLiteral("y")));
}

TEST(clsWordPackage, ReadsUtf16AndWritesUtf8)
{
    clsZipPackage zip = clsTestDocument(p(QStringLiteral("£{x}"))).zip();
    const QString xml = QString::fromUtf8(zip.bytes(2)).replace(QLatin1String("UTF-8"), QLatin1String("UTF-16"));
    zip.setBytes(2, QByteArray("\xFF\xFE") + QByteArray(reinterpret_cast<const char *>(xml.utf16()), xml.size() * 2));
    const clsTestFolder folder;
    const QString path = folder.write(QStringLiteral("a.doc"), packed(zip));
    clsMSWord word;
    word.OpenDocument(path);
    word.DoReplace(QStringLiteral("{x}"), QStringLiteral("y"), false, false, true);
    word.SaveAndClose();
    EXPECT_EQ(plain(path), QStringLiteral("£y/"));
    EXPECT_TRUE(clsZipPackage::fromFile(path).bytes(2).startsWith("<?xml version=\"1.0\" encoding=\"UTF-8\""));
}

} // namespace
