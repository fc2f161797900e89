// A document and the operations of the export. The input is text in parts separated by form feeds, which XML can't
// contain: the operations, one per line; then the body of the document and of one that is appended to it, and the
// styles, lists and header of each, if any.

#include "tests/fuzz/mdFuzz.h"
#include "tests/fuzz/mdFuzzSchema.h"
#include "tests/fuzz/mdFuzzXml.h"
#include "tests/support/clsWordLint.h"
#include "tests/wordexport/clsTestDocument.h"
#include "wordexport/document/clsMSWord.h"
#include "wordexport/document/mdCheckDocument.h"

#include <QRegularExpression>

#include <optional>

extern "C" size_t LLVMFuzzerMutate(uint8_t *data, size_t size, size_t longest);

namespace {

using Error = clsRunTimeError;

constexpr char Parting = '\f';

enum Piece { Operations, Bodies, Styles = Bodies + 2, Lists = Styles + 2, Headers = Lists + 2, Pieces = Headers + 2 };
constexpr size_t First = 0;
constexpr size_t Second = 1;

clsFuzzUser &user()
{
    static clsFuzzUser user;
    return user;
}

std::vector<std::string> piecesOf(const std::string &input)
{
    std::vector<std::string> pieces;
    size_t from = 0;
    while (pieces.size() + 1 < Pieces) {
        const size_t end = input.find(Parting, from);
        pieces.push_back(input.substr(from, end - from));
        if (end == std::string::npos)
            break;
        from = end + 1;
    }
    if (pieces.size() + 1 == Pieces)
        pieces.push_back(input.substr(from));
    pieces.resize(Pieces);
    return pieces;
}

clsTestDocument documentOf(const std::vector<std::string> &pieces, size_t which)
{
    const std::string &body = pieces[Bodies + which];
    const std::string &header = pieces[Headers + which];
    clsTestDocument document(QString::fromStdString(body));
    document.styles = QString::fromStdString(pieces[Styles + which]);
    document.numbering = QString::fromStdString(pieces[Lists + which]);
    const QString type = QStringLiteral("application/vnd.openxmlformats-officedocument.wordprocessingml.header+xml");
    if (!header.empty())
        document.parts.push_back(
            {QStringLiteral("word/header1.xml"), clsTestDocument::root("w:hdr", QString::fromStdString(header)), type,
                QStringLiteral("header"), QStringLiteral("rId3")});
    if (body.find("rId4") != std::string::npos)
        document.parts.push_back({QStringLiteral("word/media/image1.png"), "picture", QStringLiteral("image/png"),
            QStringLiteral("image"), QStringLiteral("rId4")});
    document.externalLinks << QStringLiteral("https://example.org/");
    return document;
}

const QString Shown = QStringLiteral("attacked");

/// The problems of a document, by the part of the schema that matters here and by rules that no schema covers.
QStringList problemsOf(const clsZipPackage &zip)
{
    QStringList problems;
    const int error = mdFuzzErrorOf({Error::InvalidFileFormat}, "a damaged document is told in one way", [&] {
        clsWordPackage package(zip, Shown);
        if (!mdFuzzFitsSchema(package.mainRoot().child("w:body")))
            problems << QStringLiteral("an element out of its place");
        problems << clsWordLint::problemsOf(std::move(package));
    });
    if (error)
        problems << QStringLiteral("damaged");
    return problems;
}

/// Whether a document passes the check of page templates: each part strictly well-formed, and each relationship with an
/// existing target.
bool passesTheCheck(const clsZipPackage &zip)
{
    return mdFuzzErrorOf({Error::InvalidFileFormat}, "a damaged document is told in one way", [&] {
        clsWordPackage package(zip, Shown);
        mdCheckDocument(package);
    }) == 0;
}

/// One operation: a letter and its arguments.
void operate(clsMSWord &word, const QString &line, const QString &second)
{
    const QString rest = line.mid(2);
    const int number = line.size() > 1 ? line[1].unicode() % 8 : 0;
    const bool tick = number & 1;
    const bool money = number & 2;
    const bool blankZero = number & 4;
    switch (line[0].unicode()) {
    case 'r': word.DoReplace(rest.section(u'|', 0, 0), rest.section(u'|', 1), tick, money, blankZero); break;
    case 't': word.SetText(QString(rest), tick, money, false, blankZero); break;
    case 'd': word.MoveCursorDown(number); break;
    case 'c': word.MoveCursorRight(number); break;
    case 's': word.MoveCursorToStartOfRow(); break;
    case 'n': word.MoveSursorToNextLine(); break;
    case 'l': word.NextLine(); break;
    case 'T': word.NextColumn(); break;
    case 'm': word.MoveColumns(number); break;
    case 'p': word.PageBreak(); break;
    case 'b': word.TypeBackSpace(); break;
    case 'i': word.InsertFileAtEnd(second); break;
    default: break;
    }
}

/// The XML of a part without differences between equivalent forms: an empty text, left by a reference to the character
/// 0, and a carriage return from a reference, which counts as a blank like the line feed.
QByteArray withoutOddities(QByteArray xml)
{
    xml.replace('\r', '\n');
    for (qsizetype at = xml.indexOf("></"); at >= 0; at = xml.indexOf("></", at + 1)) {
        const qsizetype start = xml.lastIndexOf('<', at);
        const qsizetype end = xml.indexOf('>', at + 1);
        if (xml[start + 1] != '/' && xml[at - 1] != '/')
            xml.replace(at, end - at + 1, "/>");
    }
    return xml;
}

const QByteArray &mainPartOf(const clsZipPackage &zip)
{
    return zip.bytes(zip.indexOf(QStringLiteral("word/document.xml")));
}

/// A saved document must be readable, and saving it again must not change it. Returns the document's text.
QString attackRoundTrip(const QByteArray &saved, const QByteArray &mainPartBefore)
{
    const clsZipPackage zip = clsZipPackage::fromBytes(saved, Shown);
    clsWordPackage package(zip, Shown);
    mdFuzzSame(saved, package.toBytes(clsZipPackage::Stored), "a document that was saved is saved again as it is");
    const pugi::xml_document &tree = package.partXml(package.mainPart());
    // Only parts written by the program have a fixed form.
    if (const QByteArray &written = mainPartOf(zip); written != mainPartBefore) {
        std::ostringstream out;
        tree.save(out, "", pugi::format_raw, pugi::encoding_utf8);
        mdFuzzSame(withoutOddities(written), withoutOddities(QByteArray::fromStdString(out.str())),
            "what was written is read as it was meant");
    }
    QString text;
    appendPlain(package.mainRoot().child("w:body"), text);
    return text;
}

/// The number of the error shown to the user, 0 for none.
int errorTold()
{
    mdFuzzRequire(user().messages <= 1, "a failure is told once");
    if (user().messages == 0)
        return 0;
    static const QRegularExpression number(QStringLiteral("Error Number: (\\d+)"));
    return number.match(user().lastMessage).captured(1).toInt();
}

/// Opens the document, applies the operations and saves it; false if it can't be opened. `mark` is typed at the end.
bool operateAll(const QString &path, const QString &second, const QString &operations, const QString &mark)
{
    clsMSWord word;
    word.OpenDocument(path);
    if (!word.isOpen()) {
        mdFuzzRequire(errorTold() == Error::InvalidFileFormat, "a damaged document is told in one way");
        return false;
    }
    constexpr int Most = 24;
    int count = 0;
    for (const QString &line : operations.split(u'\n'))
        if (!line.isEmpty() && ++count <= Most)
            mdFuzzErrorOf({Error::InvalidProcedureCall}, "only a cursor without a cell to go to raises an error",
                [&] { operate(word, line, second); });
    const int told = errorTold();
    mdFuzzRequire(told == 0 || told == Error::TypeMismatch || told == Error::InvalidFileFormat,
        "an operation fails on a damaged document or an amount that is none");
    if (!mark.isEmpty())
        word.DoReplace(QStringLiteral("{Mark}"), mark, false, false, false);
    word.SaveAndClose();
    mdFuzzRequire(!word.isOpen(), "a document can be saved");
    mdFuzzRequire(errorTold() == told, "a plain text can always be typed");
    return true;
}

void attackDocument(const clsZipPackage &first, const clsZipPackage &second, const QString &operations)
{
    const QString path = mdFuzzPut(QStringLiteral("Sheet.doc"), first.toBytes(clsZipPackage::Stored));
    const QString secondPath = mdFuzzFolder() + QStringLiteral("/Second.doc");
    const bool appends = operations.contains(u'i');
    if (appends)
        mdFuzzPut(QStringLiteral("Second.doc"), second.toBytes(clsZipPackage::Stored));
    const bool sound = problemsOf(first).isEmpty() && (!appends || problemsOf(second).isEmpty());
    const bool checked = passesTheCheck(first) && (!appends || passesTheCheck(second));

    // Replacing joins appended text runs; without it they stay as they are.
    const QString mark = operations.endsWith(u'i') ? QString() : QStringLiteral("the mark of the attack");
    if (!operateAll(path, secondPath, operations, mark))
        return;
    const QByteArray saved = mdFuzzBytesOf(path);
    mdFuzzRequire(attackRoundTrip(saved, mainPartOf(first)).contains(mark), "what was typed is in the document");
    const clsZipPackage finished = clsZipPackage::fromBytes(saved, Shown);
    mdFuzzRequire(!checked || passesTheCheck(finished), "a document that passes the check passes it when it is saved");
    if (!sound)
        return;
    if (const QStringList problems = problemsOf(finished); !problems.isEmpty())
        mdFuzzFail("a sound document stays sound", problems.join(u'\n'));
}

const clsFuzzWords &words()
{
    static const clsFuzzWords words {
        {"w:p", "w:r", "w:t", "w:tbl", "w:tr", "w:tc", "w:pPr", "w:rPr", "w:tcPr", "w:trPr", "w:tblPr", "w:tblGrid",
            "w:gridCol", "w:gridSpan", "w:vMerge", "w:b", "w:pStyle", "w:rStyle", "w:tblStyle", "w:numPr", "w:numId",
            "w:ilvl", "w:sectPr", "w:headerReference", "w:footerReference", "w:pgSz", "w:pgMar", "w:type", "w:titlePg",
            "w:br", "w:tab", "w:sym", "w:cr", "w:noBreakHyphen", "w:sdt", "w:sdtPr", "w:sdtContent", "w:id",
            "w:hyperlink", "w:ins", "w:del", "w:delText", "w:fldSimple", "w:fldChar", "w:instrText", "w:bookmarkStart",
            "w:bookmarkEnd", "w:smartTag", "w:customXml", "w:drawing", "w:pict", "w:proofErr", "w:style", "w:name",
            "w:basedOn", "w:next", "w:link", "w:docDefaults", "w:rPrDefault", "w:num", "w:abstractNum",
            "w:abstractNumId", "w:lvl", "w:lvlOverride", "w:rFonts", "w:moveFrom", "w:moveTo", "w:commentReference",
            "w:footnoteReference", "wp:docPr", "w:gridBefore"},
        {"w:val", "w:id", "w:name", "r:id", "r:embed", "w:styleId", "w:type", "w:default", "w:numId", "w:abstractNumId",
            "w:fldCharType", "w:char", "w:font", "xml:space", "w:ilvl", "id", "mc:Ignorable", "xmlns:x", "w:anchor",
            "xmlns:q", "q:id"},
        {"", "0", "1", "2", "3", "-1", "true", "false", "on", "{Name}", "{Mark}", "{", "}", "Name}", "page", "nextPage",
            "continuous", "even", "first", "default", "restart", "continue", "begin", "separate", "end", "rId1", "rId2",
            "rId3", "rId4", "rIdX1", "paragraph", "character", "table", "numbering", "Normal", "Strong", "a b", " ",
            "preserve", "F0FE", "Wingdings", "2147483647", "x", "\n", "\t", WordXml::RelationshipNamespace},
        mdFuzzInsertFitting,
    };
    return words;
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int *, char ***)
{
    static const clsUserInterfaceScope scope(user());
    return 0;
}

void mdFuzzAttack(const uint8_t *data, size_t size)
{
    const auto pieces = piecesOf(std::string(reinterpret_cast<const char *>(data), size));
    user().messages = 0;
    attackDocument(
        documentOf(pieces, First).zip(), documentOf(pieces, Second).zip(), QString::fromStdString(pieces[Operations]));
}

extern "C" size_t LLVMFuzzerCustomMutator(uint8_t *data, size_t size, size_t longest, unsigned seed)
{
    constexpr unsigned WholeOnceIn = 16;
    if (seed % WholeOnceIn == 0)
        return LLVMFuzzerMutate(data, size, longest);
    auto pieces = piecesOf(std::string(reinterpret_cast<const char *>(data), size));
    std::string &piece = pieces[seed / WholeOnceIn % Pieces];
    const size_t room = longest - std::min(longest, size + Pieces) + piece.size();
    if (&piece == &pieces[Operations]) {
        const size_t old = piece.size();
        piece.resize(std::max(room, old));
        piece.resize(LLVMFuzzerMutate(reinterpret_cast<uint8_t *>(piece.data()), old, piece.size()));
    } else {
        piece = mdFuzzChangedXml(piece, room, seed / WholeOnceIn / Pieces, words());
    }
    std::string changed;
    for (size_t i = 0; i < pieces.size(); ++i)
        changed += (i ? std::string(1, Parting) : std::string()) + pieces[i];
    const size_t newSize = std::min(changed.size(), longest);
    std::memcpy(data, changed.data(), newSize);
    return newSize;
}
