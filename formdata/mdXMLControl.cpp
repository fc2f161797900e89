#include "formdata/mdXMLControl.h"

#include "base/mdCodePage.h"
#include "formdata/mdURLEncode.h"
#include "formdata/mdXMLReplaceProblemCharacters.h"

#include <QStringDecoder>

#include <cstring>
#include <utility>
#include <vector>

namespace {

// A claim is four levels deep. The limit protects recursive code from a malicious file, and leaves ample room for later
// versions.
constexpr int DeepestNesting = 1000;

// Tags of a text. A bill of a hundred thousand items has fewer; garbage that happens to parse would exhaust the memory.
constexpr qsizetype MostTags = 4'000'000;

// Items of all lists together, two levels below the root; this includes the few hundred fields of the sections. Each
// item gets an object and all the elements of its template: an empty one of four bytes grows to two thousand. This many
// of the largest items have fewer tags than the limit for a text, so a file that was opened can be opened again after a
// save.
constexpr int ItemLevel = 2;
constexpr int MostItems = 100'000;

// White space between elements has no meaning and is dropped; comments and instructions are kept, so that loading and
// saving loses nothing unknown. Parsed as a fragment, to detect text beside the root. The text at the start of an
// element is stored as the element's value instead of a child node, which saves half of all nodes.
constexpr unsigned ParseOptions
    = pugi::parse_default | pugi::parse_comments | pugi::parse_pi | pugi::parse_fragment | pugi::parse_embed_pcdata;

constexpr unsigned OutputFormat = pugi::format_raw | pugi::format_no_declaration;

/// True if there is anything but comments and instructions beside the root: the text is then not an XML document, and a
/// save, which writes only the root, would lose the rest.
bool hasContentBesideRoot(const pugi::xml_document &document, pugi::xml_node root)
{
    for (const pugi::xml_node node : document.children())
        if (node != root
            && (node.type() == pugi::node_element || node.type() == pugi::node_pcdata
                || node.type() == pugi::node_cdata))
            return true;
    return false;
}

bool isBlank(const char *text)
{
    // Called for all texts of a claim, hardly any of which starts with a blank.
    return static_cast<unsigned char>(*text) <= ' ' && text[std::strspn(text, " \t\r\n")] == '\0';
}

/// True for a text of only blanks, in a node or as the value of an element.
bool isBlankText(const pugi::xml_node &node)
{
    static const char *const None = pugi::xml_node().value(); // the library's result for no value
    const char *text = node.value();
    if (text == None || !isBlank(text))
        return false;
    return node.type() == pugi::node_pcdata || (node.type() == pugi::node_element && node.text().data() == node);
}

void removeText(const pugi::xml_node &node)
{
    if (node.type() == pugi::node_pcdata)
        node.parent().remove_child(node);
    else
        node.text().set("");
}

/// Checks that a tree is neither too deep nor too large, and collects the texts of only blanks.
class TreeCheck final : public pugi::xml_tree_walker {
public:
    std::vector<pugi::xml_node> blanks;
    bool for_each(pugi::xml_node &node) override
    {
        if (isBlankText(node))
            blanks.push_back(node);
        m_items += depth() == ItemLevel;
        return depth() < DeepestNesting && m_items <= MostItems;
    }

private:
    int m_items = 0;
};

/// Receives the serialisation in pieces, so that it is never in memory twice.
class TextWriter final : public pugi::xml_writer {
public:
    QString text;
    void write(const void *data, size_t size) override
    {
        const QByteArrayView piece(static_cast<const char *>(data), qsizetype(size));
        const qsizetype before = text.size();
        text.resize(before + m_decoder.requiredSpace(piece.size()));
        const QChar *end = m_decoder.appendToBuffer(text.data() + before, piece);
        text.resize(end - text.constData());
        m_bytes += piece.size();
        m_hasReturn = m_hasReturn || piece.contains('\r');
    }
    /// True if the text needs no references: the program's own output is plain ASCII, which has as many characters as
    /// bytes.
    bool isPlain() const { return text.size() == m_bytes && !m_hasReturn; }

private:
    QStringDecoder m_decoder {QStringDecoder::Utf8};
    qsizetype m_bytes = 0;
    bool m_hasReturn = false;
};

/// Compares the serialisation with a text, in pieces, while it is plain.
class TextComparison final : public pugi::xml_writer {
public:
    explicit TextComparison(QStringView text)
        : m_left(text)
    { }
    void write(const void *data, size_t size) override
    {
        const QByteArrayView piece(static_cast<const char *>(data), qsizetype(size));
        m_plain = m_plain && mdIsPlainAscii(piece) && !piece.contains('\r');
        if (!m_same || !m_plain)
            return;
        m_same = m_left.startsWith(QLatin1String(piece));
        m_left = m_same ? m_left.sliced(piece.size()) : QStringView();
    }
    bool isSame() const { return m_same && m_left.isEmpty(); }
    /// False if the serialisation has characters that are written differently from the tree.
    bool isPlain() const { return m_plain; }

private:
    QStringView m_left;
    bool m_same = true;
    bool m_plain = true;
};

/// True for a character that the file can't contain directly: one outside its code page, or a carriage return, which
/// every parser reads as a line feed. This program writes neither, but other programs may, as references.
bool needsReference(QChar c)
{
    const char16_t code = c.unicode();
    return code == u'\r' || ((code > 0xFF || (code >= 0x80 && code < 0xA0)) && !mdInCodePage(c));
}

/// The end of a piece in which references don't apply: a comment, an instruction or raw characters. 0 if there is none
/// at the start.
qsizetype sizeOfRawPiece(QStringView text)
{
    constexpr std::pair<QLatin1String, QLatin1String> Pieces[] = {
        {QLatin1String("<!--"), QLatin1String("-->")},
        {QLatin1String("<?"), QLatin1String("?>")},
        {QLatin1String("<![CDATA["), QLatin1String("]]>")},
    };
    for (const auto &[begin, end] : Pieces)
        if (text.startsWith(begin))
            return text.indexOf(end, begin.size()) + end.size();
    return 0;
}

/// The text with these characters as references again.
QString withReferences(const QString &text)
{
    QString written;
    for (qsizetype at = 0; at < text.size();) {
        if (const qsizetype raw = sizeOfRawPiece(QStringView(text).sliced(at)); raw > 0) {
            written += QStringView(text).sliced(at, raw);
            at += raw;
            continue;
        }
        const bool pair = text[at].isHighSurrogate() && at + 1 < text.size() && text[at + 1].isLowSurrogate();
        const uint code = pair ? QChar::surrogateToUcs4(text[at], text[at + 1]) : text[at].unicode();
        if (needsReference(text[at]))
            written += QStringLiteral("&#%1;").arg(code);
        else
            written += text[at];
        at += pair ? 2 : 1;
    }
    return written;
}

/// A text too short for that many of the shortest tags need not be counted.
bool hasTooManyTags(const QByteArray &text)
{
    constexpr qsizetype ShortestTag = 3;
    return text.size() > MostTags * ShortestTag && text.count('<') > MostTags;
}

} // namespace

QByteArray XMLEncodeText(const QString &text)
{
    return URLEncode(ReplaceProblemCharacters(text));
}

QString XMLDecodeText(const char *content)
{
    bool isEncoded = false;
    const char *end = content;
    for (; *end; ++end) {
        if (uchar(*end) >= 0x80) // written by another program
            return URLDecode(QString::fromUtf8(content));
        isEncoded = isEncoded || *end == '%' || *end == '+';
    }
    const QLatin1String text(content, end - content);
    return isEncoded ? URLDecode(text) : QString(text);
}

void XMLSetContent(pugi::xml_node element, const char *content)
{
    if (*content) {
        element.text().set(content);
        return;
    }
    element.remove_children();
    if (*element.child_value()) // the text at its start is not a child
        element.text().set("");
}

clsXMLElement XMLLoadElement(const QString &xml, const char *name)
{
    return XMLLoadElement(xml.toUtf8(), name);
}

clsXMLElement XMLLoadElement(QByteArray utf8, const char *name)
{
    // The parser would take a zero as the end.
    if (utf8.contains('\0') || hasTooManyTags(utf8))
        return {};
    auto document = std::make_shared<clsXMLDocument>();
    document->text = std::move(utf8);
    pugi::xml_document &tree = document->tree;
    if (!tree.load_buffer_inplace(
            document->text.data(), size_t(document->text.size()), ParseOptions, pugi::encoding_utf8))
        return {};
    const pugi::xml_node root = tree.document_element();
    TreeCheck check;
    if (std::strcmp(root.name(), name) != 0 || hasContentBesideRoot(tree, root) || !tree.traverse(check))
        return {};
    // The parser has already dropped blanks between tags, but not those written as references: a save would write these
    // as blanks, and the next load would drop them.
    for (const pugi::xml_node &blank : check.blanks)
        removeText(blank);
    return {std::move(document), root};
}

QString XMLElementOutput(pugi::xml_node node)
{
    TextWriter writer;
    node.print(writer, "", OutputFormat, pugi::encoding_utf8);
    return writer.isPlain() ? writer.text : withReferences(writer.text);
}

bool XMLElementOutputIs(pugi::xml_node node, const QString &text)
{
    TextComparison comparison(text);
    node.print(comparison, "", OutputFormat, pugi::encoding_utf8);
    return comparison.isPlain() ? comparison.isSame() : XMLElementOutput(node) == text;
}
