#include "wordexport/document/clsWordDocument.h"

#include "wordexport/document/clsWordComposer.h"
#include "wordexport/document/clsWordFinder.h"
#include "wordexport/document/clsWordParagraph.h"
#include "wordexport/document/mdDocumentFile.h"
#include "wordexport/document/mdWordPages.h"
#include "wordexport/document/mdWordXml.h"

#include <algorithm>
#include <string_view>

using pugi::xml_node;

namespace {

constexpr QChar LineBreak(11);

// Visits the paragraphs of the story in document order, until the visitor stops it.
template <class Visitor> bool visitParagraphs(const xml_node &container, const Visitor &visitor)
{
    for (xml_node block = WordXml::firstItem(container, WordXml::isBlock); block;
         block = WordXml::nextItem(block, WordXml::isBlock)) {
        if (WordXml::is(block, "w:p")) {
            if (visitor(block))
                return true;
            continue;
        }
        for (xml_node row = WordXml::firstItem(block, WordXml::isRow); row;
             row = WordXml::nextItem(row, WordXml::isRow))
            for (xml_node cell = WordXml::firstItem(row, WordXml::isCell); cell;
                 cell = WordXml::nextItem(cell, WordXml::isCell))
                if (visitParagraphs(cell, visitor))
                    return true;
    }
    return false;
}

bool holdsTextOf(const QString &text, bool (*test)(QChar))
{
    return std::any_of(text.begin(), text.end(), test);
}

bool isTick(QChar c)
{
    return c == QChar(0xFE) || c == QChar(0xA8);
}

bool isHidden(const xml_node &format)
{
    const xml_node hidden = format.child("w:vanish");
    return hidden && WordXml::isOn(hidden);
}

// The insertion or deletion marks of a paragraph mark are not part of the look to copy.
constexpr const char *OfMark[] = {"w:ins", "w:del", "w:moveFrom", "w:moveTo", "w:rPrChange"};

bool saysOfMark(const xml_node &format)
{
    for (xml_node child = format.first_child(); child; child = child.next_sibling())
        if (std::any_of(
                std::begin(OfMark), std::end(OfMark), [&](const char *name) { return WordXml::is(child, name); }))
            return true;
    return false;
}

void setFont(xml_node format, const char *font)
{
    format.remove_child("w:rFonts");
    xml_node fonts = WordXml::addChild(format, "w:rFonts");
    for (const char *script : {"w:ascii", "w:hAnsi", "w:cs"})
        fonts.append_attribute(script) = font;
}

} // namespace

clsWordDocument::clsWordDocument(const QString &path, const QString &shownName)
    : clsWordDocument(path, shownName, clsZipPackage::fromFile(path, shownName))
{ }

clsWordDocument::clsWordDocument(const QString &path, const QString &shownName, clsZipPackage content)
    : m_path(path)
    , m_package(std::move(content), shownName)
    , m_cursor(body())
{ }

clsWordDocument::~clsWordDocument() = default;

xml_node clsWordDocument::body()
{
    return m_package.mainRoot().child("w:body");
}

void clsWordDocument::save(clsZipPackage::Packing packing, bool toDisk)
{
    const QByteArray bytes = m_package.toBytes(packing);
    if (toDisk)
        mdWriteDocumentFile(m_path, bytes);
    else
        mdWriteWorkingFile(m_path, bytes);
    const QByteArray &text = m_package.partBytes(m_package.mainPart());
    // It is near the front: QByteArray's search would spend long on its preparation.
    const size_t place
        = std::string_view(bytes.data(), size_t(bytes.size())).find(std::string_view(text.data(), size_t(text.size())));
    m_savedText = {bytes.size(), qint64(place), text.size()};
}

QByteArray clsWordDocument::styles()
{
    const int styles = m_package.relatedPart("styles");
    return styles < 0 ? QByteArray() : m_package.partBytes(styles);
}

std::vector<clsFittedText> clsWordDocument::fit()
{
    if (m_typed.isEmpty())
        return {};
    return mdFitTypedText(body(), *looks(), m_typed);
}

int clsWordDocument::paperPages()
{
    return mdPaperPages(body(), *looks());
}

std::vector<clsPlaceholderPlace> clsWordDocument::placeholderPlaces()
{
    return mdPlaceholderPlaces(body(), *looks());
}

std::shared_ptr<const clsWordLooks> clsWordDocument::looks()
{
    return clsWordLooks::ofStyles(styles());
}

void clsWordDocument::moved()
{
    m_found.clear();
    m_bold.reset();
    m_symbolFont = false;
}

void clsWordDocument::goToStart()
{
    m_package.restoreBody(); // the start of a joined document is in the settled text
    m_cursor.goToStart();
    moved();
}

void clsWordDocument::lineDown()
{
    m_cursor.lineDown();
    moved();
}

void clsWordDocument::cellRight()
{
    m_cursor.cellRight();
    moved();
}

void clsWordDocument::rowStart()
{
    m_cursor.rowStart();
    moved();
}

void clsWordDocument::findFirst(const QString &find)
{
    goToStart();
    const clsWordFinder finder(find);
    if (finder.isEmpty())
        return;
    const char sure = finder.sureCharacter();
    const auto selectIn = [&](const xml_node &paragraph) {
        const clsWordFinder::Hit hit = finder.firstIn(clsWordParagraph(paragraph).text());
        if (hit.from < 0)
            return false;
        m_cursor.select(paragraph, hit.from, hit.to);
        m_found = find;
        return true;
    };
    if (sure == 0) {
        visitParagraphs(body(), selectIn);
        return;
    }
    std::vector<xml_node> &candidates = paragraphsThatMayHold(sure);
    std::erase_if(
        candidates, [sure](const xml_node &paragraph) { return !clsWordParagraph::mayHold(paragraph, sure); });
    (void)std::any_of(candidates.begin(), candidates.end(), selectIn);
}

void clsWordDocument::removeHidden(const QString &text)
{
    goToStart();
    const std::string sought = text.toStdString();
    for (const xml_node &found : paragraphsThatMayHold(sought.front())) {
        clsWordParagraph paragraph(found, &m_typed);
        size_t at = 0;
        while ((at = paragraph.text().find(sought, at)) != std::string::npos) {
            const int end = int(at + sought.size());
            const std::vector<xml_node> formats = paragraph.formatsIn(int(at), end);
            if (!std::all_of(formats.begin(), formats.end(), isHidden)) {
                ++at;
                continue;
            }
            paragraph.erase(int(at), end);
            changed();
        }
    }
}

// A sheet is searched for many placeholders, all of which contain a brace: the paragraphs with a brace are collected
// once. The list may contain too many, but never too few.
std::vector<xml_node> &clsWordDocument::paragraphsThatMayHold(char c)
{
    const auto known = m_placeholders.find(c);
    if (known != m_placeholders.end())
        return known->second;
    std::vector<xml_node> &found = m_placeholders[c];
    const auto collect = [&](const xml_node &paragraph) {
        if (clsWordParagraph::mayHold(paragraph, c))
            found.push_back(paragraph);
        return false;
    };
    visitParagraphs(body(), collect);
    return found;
}

const clsWordBoldness &clsWordDocument::boldness()
{
    if (!m_boldness)
        m_boldness = clsWordBoldness::ofStyles(styles());
    return *m_boldness;
}

bool clsWordDocument::selectionIsBold()
{
    const clsWordParagraph paragraph(m_cursor.paragraph());
    std::vector<xml_node> formats = paragraph.formatsIn(m_cursor.from(), m_cursor.to());
    if (formats.empty())
        formats.push_back(paragraph.formatAt(m_cursor.from(), m_cursor.to()));
    return std::any_of(formats.begin(), formats.end(),
        [this](const xml_node &format) { return boldness().isBold(format, m_cursor.paragraph()); });
}

void clsWordDocument::typeText(const QString &text)
{
    if (text.isEmpty())
        return;
    QString typed = text;
    typed.replace(LineBreak, u'\n'); // which survives the removal of forbidden characters
    typed = WordXml::withoutForbiddenCharacters(typed);
    typed.replace(QLatin1String("\r\n"), QLatin1String("\n"));
    typed.replace(u'\r', LineBreak);
    typed.replace(u'\n', LineBreak);
    type(typed);
}

void clsWordDocument::typePageBreak()
{
    type(QString(QChar(clsWordParagraph::PageBreak)));
}

void clsWordDocument::type(const QString &typed)
{
    clearSelectedCell();
    clsWordParagraph paragraph(m_cursor.paragraph(), &m_typed);
    const bool symbols = m_symbolFont;
    // Ticks are separate symbol elements; only other text needs the font.
    const bool symbolFont = symbols && !holdsTextOf(typed, isTick);
    const xml_node format = formatForTyping(paragraph.formatAt(m_cursor.from(), m_cursor.to()), symbolFont);
    const int end = paragraph.type(m_cursor.from(), m_cursor.to(), typed, format, symbols, m_found);
    m_found.clear();
    m_cursor.place(m_cursor.paragraph(), end);
    // Typed text can bring the character into further paragraphs.
    std::erase_if(m_placeholders, [&typed](const auto &known) { return typed.contains(QLatin1Char(known.first)); });
    changed();
}

// Typing over a selected cell leaves one paragraph in it, with only the typed text.
void clsWordDocument::clearSelectedCell()
{
    xml_node cell = m_cursor.selectedCell();
    if (!cell)
        return;
    xml_node kept;
    std::vector<xml_node> others;
    for (xml_node block = WordXml::firstItem(cell, WordXml::isBlock); block;
         block = WordXml::nextItem(block, WordXml::isBlock)) {
        if (!kept && WordXml::is(block, "w:p"))
            kept = block;
        else
            others.push_back(block);
    }
    for (const xml_node &block : others) {
        m_typed.forgetBelow(block);
        block.parent().remove_child(block);
    }
    if (!others.empty())
        m_placeholders.clear();
    if (!kept)
        kept = cell.append_child("w:p");
    m_cursor.select(kept, 0, clsWordParagraph(kept).length());
}

xml_node clsWordDocument::formatForTyping(const xml_node &like, bool symbolFont)
{
    const bool otherBoldness = m_bold && *m_bold != boldness().isBold(like, m_cursor.paragraph());
    if (!otherBoldness && !symbolFont && !saysOfMark(like))
        return like;
    m_format.remove_children();
    xml_node format = like ? m_format.append_copy(like) : m_format.append_child("w:rPr");
    for (const char *name : OfMark)
        format.remove_child(name);
    if (otherBoldness) {
        xml_node bold = WordXml::ensureChild(format, "w:b");
        bold.remove_attributes();
        if (!*m_bold)
            bold.append_attribute("w:val") = "0";
    }
    if (symbolFont)
        setFont(format, "Wingdings");
    return format;
}

void clsWordDocument::startParagraph()
{
    clearSelectedCell();
    clsWordParagraph paragraph(m_cursor.paragraph(), &m_typed);
    paragraph.erase(m_cursor.from(), m_cursor.to());
    m_cursor.place(paragraph.split(m_cursor.from()), 0);
    m_placeholders.clear();
    changed();
}

void clsWordDocument::backSpace()
{
    clearSelectedCell();
    clsWordParagraph paragraph(m_cursor.paragraph(), &m_typed);
    const int at = m_cursor.from();
    if (m_cursor.to() > at) {
        paragraph.erase(at, m_cursor.to());
        m_cursor.place(m_cursor.paragraph(), at);
        changed();
        return;
    }
    if (at > 0) {
        const int start = paragraph.before(at);
        paragraph.erase(start, at);
        m_cursor.place(m_cursor.paragraph(), start);
        changed();
        return;
    }
    // At a paragraph's start, the previous paragraph mark is deleted. It is kept if it is also the end of a section or
    // follows a table; and the first paragraph of a cell or a document has none before it.
    const xml_node before = WordXml::previousItem(m_cursor.paragraph(), WordXml::isBlock);
    if (!WordXml::is(before, "w:p") || before.child("w:pPr").child("w:sectPr")
        || before.parent() != m_cursor.paragraph().parent())
        return;
    clsWordParagraph joined(before);
    const int end = joined.length();
    joined.join(m_cursor.paragraph());
    m_cursor.place(before, end);
    m_placeholders.clear();
    moved();
    changed();
}

void clsWordDocument::append(const QString &path, const QString &shownName, const clsPlainText *plain)
{
    m_cursor.goToEnd();
    moved();
    if (!m_composer)
        m_composer = std::make_unique<clsWordComposer>(m_package);
    m_composer->append(path, shownName, plain);
    m_placeholders.clear();
    m_cursor.goToEnd();
}
