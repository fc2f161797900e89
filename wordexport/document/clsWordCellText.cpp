#include "wordexport/document/clsWordCellText.h"

#include "wordexport/document/clsWordParagraph.h"
#include "wordexport/document/mdWordXml.h"

#include <algorithm>
#include <string_view>

using pugi::xml_node;

namespace {

constexpr int HalfPointsOfNoStyle = 20;
constexpr int TwipsPerHalfPoint = 10;
constexpr char32_t Picture = 0xFFFC; // as wide as its font size

// The natural line height of the font: 1.15 of its size.
int naturalLine(int halfPoints)
{
    return (halfPoints * 23 + 1) / 2;
}

// The character that represents a non-text element of a run.
char32_t characterOf(const xml_node &node)
{
    if (WordXml::is(node, "w:tab") || WordXml::is(node, "w:ptab"))
        return U'\t';
    if (WordXml::is(node, "w:br") || WordXml::is(node, "w:cr"))
        return TextLayout::LineBreak;
    if (WordXml::is(node, "w:noBreakHyphen"))
        return 0x2011;
    if (WordXml::is(node, "w:softHyphen"))
        return 0xAD;
    if (WordXml::is(node, "w:sym"))
        return 0xF000; // of another font: as wide as its size
    return Picture;
}

std::u32string charactersOf(std::string_view text)
{
    if (std::all_of(text.begin(), text.end(), [](char c) { return (c & 0x80) == 0; }))
        return std::u32string(text.begin(), text.end());
    return QString::fromUtf8(text.data(), qsizetype(text.size())).toStdU32String();
}

int widthOfPicture(const xml_node &node)
{
    constexpr int UnitsPerTwip = 635; // in the unit of drawings
    return node.child("wp:inline").child("wp:extent").attribute("cx").as_int() / UnitsPerTwip;
}

int heightOfTable(const xml_node &table)
{
    int height = 0;
    for (xml_node row = WordXml::firstItem(table, WordXml::isRow); row; row = WordXml::nextItem(row, WordXml::isRow))
        height += row.child("w:trPr").child("w:trHeight").attribute("w:val").as_int();
    return height;
}

// The only child of an element apart from its properties, if it has that name and `properties` is the name of the
// properties.
xml_node onlyChild(const xml_node &node, const char *properties, const char *name)
{
    xml_node child = node.first_child();
    if (WordXml::is(child, properties))
        child = child.next_sibling();
    return WordXml::is(child, name) && !child.next_sibling() ? child : xml_node();
}

bool hasOnly(const xml_node &properties, std::initializer_list<const char *> names)
{
    for (xml_node property = properties.first_child(); property; property = property.next_sibling())
        if (std::none_of(names.begin(), names.end(), [&](const char *name) { return WordXml::is(property, name); }))
            return false;
    return true;
}

} // namespace

bool clsWordCellText::fitsAtAGlance(
    const xml_node &cell, const Place &place, int room, const clsWordLooks &looks, const clsWordTyped &typed)
{
    const xml_node paragraph = onlyChild(cell, "w:tcPr", "w:p");
    const xml_node run = onlyChild(paragraph, "w:pPr", "w:r");
    const xml_node text = onlyChild(run, "w:rPr", "w:t");
    const clsWordTyped::Mark *mark = typed.of(run);
    const xml_node properties = paragraph.child("w:pPr");
    const xml_node format = run.child("w:rPr");
    if (!text || !mark || mark->before > 0 || !hasOnly(properties, {"w:pStyle", "w:jc", "w:rPr"})
        || !hasOnly(format, {"w:b", "w:bCs", "w:sz", "w:szCs", "w:color"}))
        return false;
    const clsWordLooks::Paragraph &look = looks.ofStyles(WordXml::val(properties.child("w:pStyle")), place.tableStyle);
    if (look.lineRule != "exact" || look.before.value_or(0) + look.line.value_or(room + 1) > room
        || look.run.capitals.value_or(false) || look.run.hidden.value_or(false))
        return false;
    const clsWordLooks::Run runLook = looks.ofRun(format, look.run);
    TextLayout::Character character {0, runLook.halfPoints.value_or(HalfPointsOfNoStyle), runLook.bold.value_or(false)};
    int left = TextLayout::roomOnLine(
        place.width - look.left.value_or(0) - look.right.value_or(0) - std::max(0, look.firstLine.value_or(0)));
    for (const char *c = text.text().get(); *c != 0 && left >= 0; ++c) {
        if (static_cast<signed char>(*c) < ' ') // a control character or the first of several bytes
            return false;
        character.code = char32_t(*c);
        left -= TextLayout::widthOf(character);
    }
    return left >= 0;
}

const clsWordTyped::Mark *clsWordCellText::firstTyped(const xml_node &cell, const clsWordTyped &typed)
{
    for (xml_node child = cell.first_child(); child; child = child.next_sibling()) {
        const clsWordTyped::Mark *mark = nullptr;
        if (WordXml::isRun(child))
            mark = typed.of(child);
        else if (WordXml::is(child, "w:p") || WordXml::isWrapper(child))
            mark = firstTyped(child, typed);
        if (mark)
            return mark;
    }
    return nullptr;
}

clsWordCellText::clsWordCellText(const Place &place, clsWordTyped &typed)
    : m_width(place.width)
    , m_typed(typed)
{ }

clsWordCellText clsWordCellText::ofParagraph(
    const xml_node &paragraph, const Place &place, const clsWordLooks &looks, clsWordTyped &typed)
{
    clsWordCellText text(place, typed);
    text.readParagraph(paragraph, place.tableStyle, looks);
    return text;
}

clsWordCellText::clsWordCellText(
    const xml_node &cell, const Place &place, const clsWordLooks &looks, clsWordTyped &typed)
    : clsWordCellText(place, typed)
{
    for (xml_node block = WordXml::firstItem(cell, WordXml::isBlock); block;
         block = WordXml::nextItem(block, WordXml::isBlock)) {
        if (WordXml::is(block, "w:p"))
            readParagraph(block, place.tableStyle, looks);
        else
            m_tables += heightOfTable(block);
    }
}

void clsWordCellText::readParagraph(const xml_node &paragraph, const std::string &tableStyle, const clsWordLooks &looks)
{
    const clsWordLooks::Paragraph look = looks.ofParagraph(paragraph, tableStyle);
    Paragraph &read = m_paragraphs.emplace_back();
    read.node = paragraph;
    read.before = look.before.value_or(0);
    read.after = look.after.value_or(0);
    read.line = look.line.value_or(read.line);
    read.lineRule = look.lineRule.value_or("auto");
    read.layout.left = look.left.value_or(0);
    read.layout.right = look.right.value_or(0);
    read.layout.firstLine = look.firstLine.value_or(0);
    for (const auto &[place, tab] : look.tabs)
        if (tab)
            read.layout.tabs.push_back(*tab);
    read.layout.markHalfPoints
        = looks.ofRun(paragraph.child("w:pPr").child("w:rPr"), look.run).halfPoints.value_or(HalfPointsOfNoStyle);

    const clsWordParagraph words(paragraph);
    xml_node run;
    clsWordLooks::Run runLook;
    int runStart = 0;
    for (const clsWordParagraph::Leaf &leaf : words.leaves()) {
        if (leaf.run != run) {
            run = leaf.run;
            runStart = leaf.start;
            runLook = looks.ofRun(run.child("w:rPr"), look.run);
        }
        if (leaf.length == 0 || runLook.hidden.value_or(false))
            continue;
        const clsWordTyped::Mark *mark = m_typed.of(run);
        const int typedFrom = mark ? std::max(leaf.start, runStart + mark->before) : leaf.start + leaf.length;
        const int inTemplate = std::min(typedFrom, leaf.start + leaf.length) - leaf.start;
        const auto textAt = [&](int from, int to) {
            if (WordXml::is(leaf.node, "w:t"))
                return charactersOf(
                    std::string_view(words.text()).substr(size_t(leaf.start + from), size_t(to - from)));
            return std::u32string(1, characterOf(leaf.node));
        };
        if (inTemplate > 0)
            addPiece(read, {run, 0, 0, leaf.start, false, false}, textAt(0, inTemplate), runLook);
        if (inTemplate < leaf.length) {
            addPiece(read, {run, 0, 0, leaf.start + inTemplate, true, mark->before > 0},
                textAt(inTemplate, leaf.length), runLook);
            note(mark->placeholder, runLook.halfPoints.value_or(HalfPointsOfNoStyle));
        }
        if (read.layout.text.back().code == Picture)
            read.layout.text.back().halfPoints = widthOfPicture(leaf.node) / TwipsPerHalfPoint;
    }
}

void clsWordCellText::addPiece(
    Paragraph &paragraph, const Piece &piece, const std::u32string &text, const clsWordLooks::Run &look)
{
    std::vector<TextLayout::Character> &all = paragraph.layout.text;
    const size_t from = all.size();
    const bool capitals = look.capitals.value_or(false);
    const int halfPoints = look.halfPoints.value_or(HalfPointsOfNoStyle);
    const bool bold = look.bold.value_or(false);
    all.reserve(from + text.size());
    for (const char32_t code : text)
        all.push_back({capitals ? QChar::toUpper(code) : code, halfPoints, bold});
    paragraph.pieces.push_back(piece);
    paragraph.pieces.back().from = from;
    paragraph.pieces.back().to = all.size();
}

void clsWordCellText::note(const QString &placeholder, int halfPoints)
{
    for (Typed &text : m_texts)
        if (text.placeholder == placeholder) {
            text.halfPoints = std::max(text.halfPoints, halfPoints);
            return;
        }
    m_texts.push_back({placeholder, halfPoints});
}

int clsWordCellText::shrunk(int halfPoints, int less)
{
    return halfPoints <= SmallestHalfPoints ? halfPoints : std::max(SmallestHalfPoints, halfPoints - less);
}

int clsWordCellText::mostLess() const
{
    int most = 0;
    for (const Typed &text : m_texts)
        most = std::max(most, text.halfPoints - SmallestHalfPoints);
    return most;
}

bool clsWordCellText::Paragraph::holdsTyped() const
{
    return std::any_of(pieces.begin(), pieces.end(), [](const Piece &piece) { return piece.typed; });
}

TextLayout::Paragraph clsWordCellText::Paragraph::at(int less) const
{
    TextLayout::Paragraph smaller = layout;
    for (const Piece &piece : pieces)
        for (size_t i = piece.from; piece.typed && i < piece.to; ++i)
            smaller.text[i].halfPoints = shrunk(smaller.text[i].halfPoints, less);
    return smaller;
}

// Exact line heights shrink with the largest size visible in the paragraph, so that the template's words keep their
// height. The line is never higher than the smaller type needs: otherwise a template's wide line spacing would make the
// typed text even smaller.
int clsWordCellText::Paragraph::exactLine(int less) const
{
    if (less == 0 || !holdsTyped())
        return line;
    int own = 0;
    int now = 0;
    for (const Piece &piece : pieces)
        for (size_t i = piece.from; i < piece.to; ++i) {
            const TextLayout::Character &character = layout.text[i];
            if (character.code == U' ' || character.code == U'\t' || character.code == TextLayout::LineBreak)
                continue;
            own = std::max(own, character.halfPoints);
            now = std::max(now, piece.typed ? shrunk(character.halfPoints, less) : character.halfPoints);
        }
    return now == own ? line : std::min(line * now / own, naturalLine(now));
}

int clsWordCellText::Paragraph::lineHeight(int halfPoints, int less) const
{
    if (lineRule == "exact")
        return exactLine(less);
    const int natural = naturalLine(halfPoints);
    return lineRule == "atLeast" ? std::max(line, natural) : natural * line / 240;
}

clsWordCellText::Measure clsWordCellText::measure(int less) const
{
    Measure measure;
    measure.height = m_tables;
    for (const Paragraph &paragraph : m_paragraphs) {
        const TextLayout::Lines lines = TextLayout::layOut(less == 0 ? paragraph.layout : paragraph.at(less), m_width);
        measure.height += paragraph.before;
        for (const int halfPoints : lines.sizes)
            measure.height += paragraph.lineHeight(halfPoints, less);
        if (&paragraph != &m_paragraphs.back())
            measure.height += paragraph.after;
        if (!paragraph.holdsTyped())
            continue;
        measure.lines += lines.count();
        measure.brokenWords += lines.brokenWords;
        measure.brokenAmounts += lines.brokenAmounts;
        measure.tooNarrow = measure.tooNarrow || lines.tooNarrow;
    }
    return measure;
}

std::vector<int> clsWordCellText::lineHeights() const
{
    std::vector<int> heights;
    if (m_tables > 0)
        heights.push_back(m_tables);
    for (const Paragraph &paragraph : m_paragraphs) {
        const size_t first = heights.size();
        for (const int halfPoints : TextLayout::layOut(paragraph.layout, m_width).sizes)
            heights.push_back(paragraph.lineHeight(halfPoints, 0));
        heights[first] += paragraph.before;
        if (&paragraph != &m_paragraphs.back())
            heights.back() += paragraph.after;
    }
    return heights;
}

void clsWordCellText::shrink(int less)
{
    for (Paragraph &paragraph : m_paragraphs) {
        const int line = paragraph.exactLine(less);
        if (paragraph.lineRule == "exact" && line != paragraph.line) {
            xml_node spacing = WordXml::ensureChild(WordXml::ensureProperties(paragraph.node, "w:pPr"), "w:spacing");
            WordXml::setAttribute(spacing, "w:line", std::to_string(line));
            WordXml::setAttribute(spacing, "w:lineRule", "exact");
        }
        for (const Piece &piece : paragraph.pieces) {
            if (!piece.typed)
                continue;
            const xml_node run
                = piece.behindOthers ? clsWordParagraph(paragraph.node, &m_typed).splitRunAt(piece.at) : piece.run;
            const xml_node format = WordXml::ensureProperties(run, "w:rPr");
            const int size = shrunk(paragraph.layout.text[piece.from].halfPoints, less);
            for (const char *name : {"w:sz", "w:szCs"})
                WordXml::setAttribute(WordXml::ensureChild(format, name), "w:val", std::to_string(size));
        }
    }
}
