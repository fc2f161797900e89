#include "formdata/mdXMLControl.h"

#include "base/mdCodePage.h"
#include "formdata/mdURLEncode.h"
#include "formdata/mdXMLReplaceProblemCharacters.h"

#include <QStringDecoder>

#include <cstring>
#include <utility>
#include <vector>

namespace {

// A claim is four levels deep. The bound keeps whatever walks a tree safe from a file made to exhaust it, and leaves
// later versions all the room that they could want.
constexpr int DeepestNesting = 1000;

// Tags of a text. A bill of a hundred thousand items has fewer; rubbish that happens to parse would fill the memory.
constexpr qsizetype MostTags = 4'000'000;

// Items of all lists together, which lie two levels below the root; the few hundred fields of the sections lie there
// too. Each item gets all the elements of its template and an object: an empty one of four bytes becomes two thousand.
// So many of the longest kind have fewer tags than a text may have: what was opened can be opened again after a save.
constexpr int ItemLevel = 2;
constexpr int MostItems = 100'000;

// White space between elements carries no meaning and is dropped; comments and instructions are kept, since nothing
// that the program does not know may be lost by a load and a save. As a fragment, so that text beside the root is seen.
// The text that an element begins with is the element's own value and no node beside it: half of all nodes would be
// such.
constexpr unsigned ParseOptions
    = pugi::parse_default | pugi::parse_comments | pugi::parse_pi | pugi::parse_fragment | pugi::parse_embed_pcdata;

constexpr unsigned OutputFormat = pugi::format_raw | pugi::format_no_declaration;

/// True when something but comments and instructions stands beside the root: the text is then no XML document, and a
/// save, which writes the root only, would lose the rest.
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
    // Hardly any text begins with a blank, and all of a claim's are asked.
    return static_cast<unsigned char>(*text) <= ' ' && text[std::strspn(text, " \t\r\n")] == '\0';
}

/// True for a text of nothing but blanks, be it a node or the value of an element.
bool isBlankText(const pugi::xml_node &node)
{
    static const char *const None = pugi::xml_node().value(); // what the library gives for no value at all
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

/// Walks a tree that is neither too deep nor too large, and finds the texts of nothing but blanks.
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

/// Takes the serialisation piece by piece, so that it never stands in the memory twice.
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
    /// True when the text needs no reference: what this program writes is plain ASCII, which alone has as many
    /// characters as bytes.
    bool isPlain() const { return text.size() == m_bytes && !m_hasReturn; }

private:
    QStringDecoder m_decoder {QStringDecoder::Utf8};
    qsizetype m_bytes = 0;
    bool m_hasReturn = false;
};

/// Compares the serialisation with a text, piece by piece, for as long as it is plain.
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
    /// False when the serialisation holds what is written otherwise than it stands in the tree.
    bool isPlain() const { return m_plain; }

private:
    QStringView m_left;
    bool m_same = true;
    bool m_plain = true;
};

/// True for a character that the file can't hold as itself: one outside its code page, and a carriage return, which
/// every parser reads as a line feed. This program writes neither, but another hand may have, as a reference.
bool needsReference(QChar c)
{
    const char16_t code = c.unicode();
    return code == u'\r' || ((code > 0xFF || (code >= 0x80 && code < 0xA0)) && !mdInCodePage(c));
}

/// Where the piece of a text ends in which no reference is one: a comment, an instruction or raw characters. 0 where no
/// such piece begins.
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

/// The text with those characters as references again.
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

/// A text too short for so many of the shortest tags need not be counted through.
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
        if (uchar(*end) >= 0x80) // as only another hand can have written it
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
    if (*element.child_value()) // the text that it began with is no child
        element.text().set("");
}

clsXMLElement XMLLoadElement(const QString &xml, const char *name)
{
    return XMLLoadElement(xml.toUtf8(), name);
}

clsXMLElement XMLLoadElement(QByteArray utf8, const char *name)
{
    // The parser would take a zero for the end.
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
    // The parser has dropped blanks between tags already, but not those written as references: a save writes them as
    // blanks, and they would be gone only when that is read.
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
